#include "codes/width_limits.h"

#include <algorithm>

#include "codes/grade_notes.h"
#include "codes/refusals.h"
#include "codes/section_class.h"

namespace orv3 {
namespace {

// The slenderness that the limits take: within 30 to 100.
double Held(double lambda) noexcept { return std::clamp(lambda, 30.0, 100.0); }

CTextLiteral AxialPlace(CCodeEdition edition, CWidthElement element) {
  if (edition == CCodeEdition::Gb2017) return {"7.3.1", "7.3.1"};
  switch (element) {
    case CWidthElement::Flange:
    case CWidthElement::AngleLeg:
      return {"5.4.1", "5.4.1"};
    case CWidthElement::WebI:
      return {"5.4.2", "5.4.2"};
    case CWidthElement::BoxWall:
      return {"5.4.3", "5.4.3"};
    case CWidthElement::WebTRolled:
    case CWidthElement::WebTWelded:
      return {"5.4.4", "5.4.4"};
    case CWidthElement::Tube:
      break;
  }
  return {"5.4.5", "5.4.5"};
}

// w/t of an equal angle, 7.3.1.
double AngleLimit(double epsilon, double lambda) noexcept {
  return lambda <= 80 * epsilon ? 15 * epsilon : 5 * epsilon + 0.125 * lambda;
}

double AxialLimit(CCodeEdition edition, CWidthElement element, double epsilon, double lambda) {
  const double held = Held(lambda);
  switch (element) {
    case CWidthElement::AngleLeg:
      if (edition == CCodeEdition::Gb2017) return AngleLimit(epsilon, lambda);
      [[fallthrough]];
    case CWidthElement::Flange:
      return (10 + 0.1 * held) * epsilon;
    case CWidthElement::WebI:
      return (25 + 0.5 * held) * epsilon;
    case CWidthElement::BoxWall:
      return 40 * epsilon;
    case CWidthElement::WebTRolled:
      return (15 + 0.2 * held) * epsilon;
    case CWidthElement::WebTWelded:
      return (13 + 0.17 * held) * epsilon;
    case CWidthElement::Tube:
      break;
  }
  return 100 * epsilon * epsilon;
}

// h0/tw of an I under moments, 5.4.2.
double WebLimit2003(const CBeamColumnWeb& web, double epsilon) noexcept {
  const double half = 0.5 * Held(web.m_dLambda);
  return (web.m_dAlpha0 <= 1.6 ? 16 * web.m_dAlpha0 + half + 25
                               : 48 * web.m_dAlpha0 + half - 26.2) *
         epsilon;
}

// A T's web under moments, 5.4.4.
double TWebLimit2003(CWidthElement element, const CBeamColumnWeb& web, double epsilon) {
  if (web.m_bFreeEdgeCompressed) return (web.m_dAlpha0 <= 1 ? 15 : 18) * epsilon;
  return AxialLimit(CCodeEdition::Gb2003, element, epsilon, web.m_dLambda);
}

double BeamColumnLimit2003(CWidthElement element, const CBeamColumnWeb& web, double epsilon) {
  switch (element) {
    case CWidthElement::Flange:
    case CWidthElement::AngleLeg:
      return (web.m_bGammaReduced ? 15 : 13) * epsilon;
    case CWidthElement::WebI:
      return WebLimit2003(web, epsilon);
    case CWidthElement::BoxWall:
      return std::max(40 * epsilon, 0.8 * WebLimit2003(web, epsilon));
    case CWidthElement::WebTRolled:
    case CWidthElement::WebTWelded:
      return TWebLimit2003(element, web, epsilon);
    case CWidthElement::Tube:
      break;
  }
  return 100 * epsilon * epsilon;
}

// The plate of Table 3.5.1 that an element is.
CClassElement ClassElement(CWidthElement element) noexcept {
  switch (element) {
    case CWidthElement::WebI:
      return CClassElement::WebCompressed;
    case CWidthElement::BoxWall:
      return CClassElement::BoxWall;
    case CWidthElement::Tube:
      return CClassElement::Tube;
    default:
      return CClassElement::FlangeOutstand;
  }
}

CCodeAnswer<double> ClassLimit(CClassElement element, CSteelGrade grade, double alpha0,
                               CSectionClass sectionClass) {
  return ClassLimits(CCodeEdition::Gb2017, element, grade, alpha0).Then([&](const auto& limits) {
    return limits.m_arrLimit[static_cast<std::size_t>(sectionClass)].value_or(0);
  });
}

}  // namespace

CCodeAnswer<double> AxialWidthLimit(CCodeEdition edition, CWidthElement element, CSteelGrade grade,
                                    double lambda) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (!(lambda >= 0)) return NotPossible("lambda", lambda, FromTo(0, 1000));
  return {AxialLimit(edition, element, EpsilonK(grade), lambda),
          OfGrade(grade, {edition, AxialPlace(edition, element)})};
}

CCodeAnswer<double> BeamColumnWidthLimit(CCodeEdition edition, CWidthElement element,
                                         CSteelGrade grade, const CBeamColumnWeb& web) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (edition == CCodeEdition::Gb2003)
    return {BeamColumnLimit2003(element, web, EpsilonK(grade)),
            {edition, AxialPlace(edition, element)}};
  if (element == CWidthElement::WebTRolled || element == CWidthElement::WebTWelded)
    return NotInEdition("element", edition,
                        {" T 形截面腹板的压弯限值", "limit of a T's web under moments"},
                        {"请按 7.3.1 的轴压限值", "take that of axial compression, 7.3.1"});
  const CCodeAnswer<double> limit =
      ClassLimit(ClassElement(element), grade, web.m_dAlpha0, CSectionClass::S4);
  if (!limit) return limit;
  return {*limit, OfGrade(grade, {edition, {"8.4.1 表 3.5.1", "8.4.1, Table 3.5.1"}})};
}

CCodeAnswer<double> BeamFlangeLimit(CCodeEdition edition, CSteelGrade grade, bool bGammaReduced) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (edition == CCodeEdition::Gb2003)
    return {(bGammaReduced ? 15 : 13) * EpsilonK(grade), {edition, {"4.3.8", "4.3.8"}}};
  return ClassLimit(CClassElement::FlangeOutstand, grade, 2,
                    bGammaReduced ? CSectionClass::S4 : CSectionClass::S3);
}

CCodeAnswer<double> StiffenerLimit(CCodeEdition edition, CSteelGrade grade) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  const CTextLiteral place = edition == CCodeEdition::Gb2003 ? CTextLiteral{"4.3.2", "4.3.2"}
                                                             : CTextLiteral{"6.3.2", "6.3.2"};
  return {80 * EpsilonK(grade), OfGrade(grade, {edition, place})};
}

}  // namespace orv3
