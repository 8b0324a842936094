#include "codes/steel_grade.h"

#include <cmath>

#include "codes/grade_notes.h"
#include "codes/refusals.h"

namespace orv3 {

std::span<const CSteelGrade> GradesOf(CCodeEdition edition) noexcept {
  using enum CSteelGrade;
  static constexpr CSteelGrade k2003[] = {Q235, Q345, Q390, Q420};
  static constexpr CSteelGrade k2017[] = {Q235, Q345, Q355, Q390, Q420, Q460, Q345GJ};
  if (edition == CCodeEdition::Gb2003) return k2003;
  return k2017;
}

CCodeAnswer<CSteelGrade> GradeByName(CCodeEdition edition, std::string_view name) {
  for (std::size_t i = 0; i < std::size(kGradeNames); ++i) {
    const auto grade = static_cast<CSteelGrade>(i);
    if (name != kGradeNames[i]) continue;
    if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
    return {grade, {edition, {"", ""}}};
  }
  const std::span<const CSteelGrade> grades = GradesOf(edition);
  CCodeRefusal refusal = NoneOf("grade", name, {});
  refusal.m_right = OneOf(grades);
  return refusal;
}

bool HasGrade(CCodeEdition edition, CSteelGrade grade) noexcept {
  return edition == CCodeEdition::Gb2017 ||
         (grade != CSteelGrade::Q355 && grade != CSteelGrade::Q460 && grade != CSteelGrade::Q345GJ);
}

double NominalYield(CSteelGrade grade) noexcept {
  static constexpr double kYield[] = {235, 345, 345, 390, 420, 460, 345};
  return kYield[static_cast<std::size_t>(grade)];
}

double EpsilonK(CSteelGrade grade) noexcept { return std::sqrt(235 / NominalYield(grade)); }

CCodeAnswer<double> EpsilonK(CCodeEdition edition, CSteelGrade grade) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  const CTextLiteral place = edition == CCodeEdition::Gb2017
                                 ? CTextLiteral{"2.2.4 钢号修正系数 εk", "2.2.4, factor εk"}
                                 : CTextLiteral{"5.4.1 √(235/fy)", "5.4.1, √(235/fy)"};
  return {EpsilonK(grade), OfGrade(grade, {edition, place})};
}

}  // namespace orv3
