// Strengths of welds, N/mm2: GB 50017-2017, Table 4.4.5; GB 50017-2003, Table 3.4.1-3.
#pragma once

#include <optional>
#include <span>

#include "codes/steel_grade.h"

namespace orv3 {

struct CButtWeldStrengths {
  double m_dFcw;    // compression
  double m_dFtw12;  // tension, quality grades one and two
  double m_dFtw3;   // tension, quality grade three
  double m_dFvw;    // shear
};

// By the thinner plate's thickness t in mm, above 0.
ORV3CAL_API CCodeAnswer<CButtWeldStrengths> ButtWeldStrengths(CCodeEdition edition,
                                                              CSteelGrade grade, double t);

enum class CElectrode { E43, E50, E55, E60 };
inline constexpr const char* kElectrodeNames[] = {"E43", "E50", "E55", "E60"};
constexpr const char* ElectrodeName(CElectrode electrode) noexcept {
  return kElectrodeNames[static_cast<std::size_t>(electrode)];
}

// The electrodes that the code pairs with a grade, the default (lowest) first; empty for a grade
// that the edition lacks.
ORV3CAL_API std::span<const CElectrode> ElectrodesOf(CCodeEdition edition,
                                                     CSteelGrade grade) noexcept;

// ffw of fillet welds, the electrode the default of the grade unless given; one that the code does
// not pair with the grade is refused.
ORV3CAL_API CCodeAnswer<double> FilletWeldStrength(CCodeEdition edition, CSteelGrade grade,
                                                   std::optional<CElectrode> electrode = {});

}  // namespace orv3
