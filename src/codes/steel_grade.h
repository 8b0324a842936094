// Grades of structural steel: which edition has which, their nominal yield strength and epsilon-k.
#pragma once

#include <span>
#include <string_view>

#include "codes/answer.h"

namespace orv3 {

// Q355 is the name under which the product standard goes on with Q345: GB 50017-2017 is read in its
// Q345 column, and every answer says so.
enum class CSteelGrade { Q235, Q345, Q355, Q390, Q420, Q460, Q345GJ };
inline constexpr const char* kGradeNames[] = {"Q235", "Q345", "Q355",  "Q390",
                                              "Q420", "Q460", "Q345GJ"};

inline constexpr double kElasticModulus = 206000;  // E, N/mm2: 4.4.8 (2003: 3.4.3)
inline constexpr double kShearModulus = 79000;     // G, N/mm2

constexpr const char* GradeName(CSteelGrade grade) noexcept {
  return kGradeNames[static_cast<std::size_t>(grade)];
}

// The grades that an edition has.
ORV3CAL_API std::span<const CSteelGrade> GradesOf(CCodeEdition edition) noexcept;

// The grade by its name; a name that the edition lacks is refused, with what the edition has.
ORV3CAL_API CCodeAnswer<CSteelGrade> GradeByName(CCodeEdition edition, std::string_view name);

// The column in which a grade is looked up: Q345 for Q355, otherwise the grade itself.
constexpr CSteelGrade ColumnGrade(CSteelGrade grade) noexcept {
  return grade == CSteelGrade::Q355 ? CSteelGrade::Q345 : grade;
}

// The yield figure in the grade's name, N/mm2, whatever the thickness: 235, 345 (Q355 and Q345GJ
// too), 390, 420, 460. The limits of widths and slenderness and the formula of phi take it.
ORV3CAL_API double NominalYield(CSteelGrade grade) noexcept;

// epsilon-k = sqrt(235 / nominal yield).
ORV3CAL_API double EpsilonK(CSteelGrade grade) noexcept;

// The same with its source; refused for a grade that the edition lacks.
ORV3CAL_API CCodeAnswer<double> EpsilonK(CCodeEdition edition, CSteelGrade grade);

}  // namespace orv3
