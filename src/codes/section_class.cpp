#include "codes/section_class.h"

#include <cmath>

#include "codes/gb2017/tables.h"
#include "codes/grade_notes.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

// h0/tw of an I's web with compression, times epsilon-k; S5 is that of bending.
struct CWebFormula {
  double m_dConstant, m_dFactor, m_dExponent;
};
constexpr CWebFormula kWeb[4] = {{33, 13, 1.3}, {38, 13, 1.39}, {40, 18, 1.5}, {45, 25, 1.66}};
constexpr std::size_t kS5 = 4;  // its limits take no epsilon-k

// The row of gb2017::kClasses.
constexpr std::size_t ClassRow(CClassElement element) noexcept {
  switch (element) {
    case CClassElement::FlangeOutstand:
      return 0;
    case CClassElement::WebBending:
    case CClassElement::WebCompressed:
      return 1;
    case CClassElement::BoxFlange:
      return 2;
    case CClassElement::BoxWall:
      return 3;
    case CClassElement::Tube:
      break;
  }
  return 4;
}

}  // namespace

std::optional<CSectionClass> CClassLimits::ClassOf(double ratio) const noexcept {
  for (std::size_t i = 0; i < m_arrLimit.size(); ++i) {
    if (m_arrLimit[i] && ratio <= *m_arrLimit[i]) return static_cast<CSectionClass>(i);
  }
  return {};
}

CCodeAnswer<CClassLimits> ClassLimits(CCodeEdition edition, CClassElement element,
                                      CSteelGrade grade, double alpha0) {
  if (edition == CCodeEdition::Gb2003)
    return NotInEdition("code", edition, {"截面板件宽厚比等级", "section classes"},
                        {"请用 2017 版（表 3.5.1）", "take the 2017 edition (Table 3.5.1)"});
  if (!(alpha0 >= 0 && alpha0 <= 2)) return NotPossible("alpha0", alpha0, FromTo(0, 2));
  const double epsilon = EpsilonK(grade);
  const double factor = element == CClassElement::Tube ? epsilon * epsilon : epsilon;
  const gb2017::CClassRow& row = gb2017::kClasses[ClassRow(element)];
  CClassLimits limits = {row.m_arrLimit};
  if (element == CClassElement::WebCompressed) {
    const double log = std::log(alpha0);  // -infinity at 0, whose powers are 0
    const auto power = [&](double exponent) {
      return exponent == 1.5 ? alpha0 * std::sqrt(alpha0) : std::exp(exponent * log);
    };
    for (std::size_t i = 0; i < kS5; ++i)
      limits.m_arrLimit[i] = kWeb[i].m_dConstant + kWeb[i].m_dFactor * power(kWeb[i].m_dExponent);
  }
  for (std::size_t i = 0; i < kS5; ++i) *limits.m_arrLimit[i] *= factor;
  return {limits, OfGrade(grade, {edition, {"3.5.1 表 3.5.1", "3.5.1, Table 3.5.1"}})};
}

}  // namespace orv3
