#include "members/width_forms.h"

namespace orv3 {

const char* AxialWidthForm(CCodeEdition edition, CWidthElement element, double lambda,
                           double epsilonK) noexcept {
  switch (element) {
    case CWidthElement::AngleLeg:
      if (edition == CCodeEdition::Gb2017)
        return lambda <= 80 * epsilonK ? "15·{εk}" : "5·{εk} + 0.125·{λmax}";
      [[fallthrough]];
    case CWidthElement::Flange:
      return "(10 + 0.1·min(100, max(30, {λmax})))·{εk}";
    case CWidthElement::WebI:
      return "(25 + 0.5·min(100, max(30, {λmax})))·{εk}";
    case CWidthElement::BoxWall:
      return "40·{εk}";
    case CWidthElement::WebTRolled:
      return "(15 + 0.2·min(100, max(30, {λmax})))·{εk}";
    case CWidthElement::WebTWelded:
      return "(13 + 0.17·min(100, max(30, {λmax})))·{εk}";
    case CWidthElement::Tube:
      break;
  }
  return "100·{εk}²";
}

const char* Class4Form(CClassElement element) noexcept {
  switch (element) {
    case CClassElement::FlangeOutstand:
      return "15·{εk}";
    case CClassElement::WebBending:
      return "124·{εk}";
    case CClassElement::BoxFlange:
      return "42·{εk}";
    case CClassElement::BoxWall:
      return "45·{εk}";
    case CClassElement::Tube:
      return "100·{εk}²";
    case CClassElement::WebCompressed:
      break;
  }
  return nullptr;
}

const char* WebForm2003(double alpha0) noexcept {
  return alpha0 <= 1.6 ? "(16·{α0} + 0.5·min(100, max(30, {λ})) + 25)·{εk}"
                       : "(48·{α0} + 0.5·min(100, max(30, {λ})) − 26.2)·{εk}";
}

}  // namespace orv3
