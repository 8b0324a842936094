#include "members/width_forms.h"

#include <cstddef>

namespace orv3 {
namespace {

// Of axial compression by element: 2017, 7.3.1; 2003, 5.4.1 to 5.4.5. Both hold λmax to 30 to 100,
// but for the leg of an angle in 2017.
constexpr struct CAxialForms {
  CWidthElement m_element;
  const char* m_sz2017;
  const char* m_sz2003;
} kAxialForms[] = {
    {CWidthElement::Flange, "(10 + 0.1·min(100, max(30, {λmax})))·{εk}",
     "(10 + 0.1·min(100, max(30, {λmax})))·{εk}"},
    {CWidthElement::WebI, "(25 + 0.5·min(100, max(30, {λmax})))·{εk}",
     "(25 + 0.5·min(100, max(30, {λmax})))·{εk}"},
    {CWidthElement::BoxWall, "40·{εk}", "40·{εk}"},
    {CWidthElement::WebTRolled, "(15 + 0.2·min(100, max(30, {λmax})))·{εk}",
     "(15 + 0.2·min(100, max(30, {λmax})))·{εk}"},
    {CWidthElement::WebTWelded, "(13 + 0.17·min(100, max(30, {λmax})))·{εk}",
     "(13 + 0.17·min(100, max(30, {λmax})))·{εk}"},
    {CWidthElement::AngleLeg, "15·{εk}", "(10 + 0.1·min(100, max(30, {λmax})))·{εk}"},
    {CWidthElement::Tube, "100·{εk}²", "100·{εk}²"},
};
constexpr const char* kSlenderAngle2017 = "5·{εk} + 0.125·{λmax}";  // λmax above 80 εk

// Of S4, Table 3.5.1.
constexpr struct CClass4Form {
  CClassElement m_element;
  const char* m_szForm;
} kClass4Forms[] = {
    {CClassElement::FlangeOutstand, "15·{εk}"},
    {CClassElement::WebBending, "124·{εk}"},
    {CClassElement::WebCompressed, "(45 + 25·{α0}^1.66)·{εk}"},
    {CClassElement::BoxFlange, "42·{εk}"},
    {CClassElement::BoxWall, "45·{εk}"},
    {CClassElement::Tube, "100·{εk}²"},
};

// Every element up to `last`, in the order of the enum.
template <class ROW, std::size_t N, class ELEMENT>
constexpr bool HasEach(const ROW (&rows)[N], ELEMENT last) {
  for (std::size_t i = 0; i < N; ++i) {
    if (static_cast<std::size_t>(rows[i].m_element) != i) return false;
  }
  return static_cast<std::size_t>(last) + 1 == N;
}
static_assert(HasEach(kAxialForms, CWidthElement::Tube));
static_assert(HasEach(kClass4Forms, CClassElement::Tube));

}  // namespace

const char* AxialWidthForm(CCodeEdition edition, CWidthElement element, double lambda,
                           double epsilonK) noexcept {
  const CAxialForms& forms = kAxialForms[static_cast<std::size_t>(element)];
  if (edition == CCodeEdition::Gb2003) return forms.m_sz2003;
  const bool bSlender = element == CWidthElement::AngleLeg && lambda > 80 * epsilonK;
  return bSlender ? kSlenderAngle2017 : forms.m_sz2017;
}

const char* Class4Form(CClassElement element) noexcept {
  return kClass4Forms[static_cast<std::size_t>(element)].m_szForm;
}

const char* WebForm2003(double alpha0) noexcept {
  return alpha0 <= 1.6 ? "(16·{α0} + 0.5·min(100, max(30, {λ})) + 25)·{εk}"
                       : "(48·{α0} + 0.5·min(100, max(30, {λ})) − 26.2)·{εk}";
}

const char* BoxWallForm2003(double alpha0) noexcept {
  return alpha0 <= 1.6 ? "max(40·{εk}, 0.8·(16·{α0} + 0.5·min(100, max(30, {λ})) + 25)·{εk})"
                       : "max(40·{εk}, 0.8·(48·{α0} + 0.5·min(100, max(30, {λ})) − 26.2)·{εk})";
}

const char* TWebForm2003(CWidthElement element, const CBeamColumnWeb& web) noexcept {
  if (web.m_bFreeEdgeCompressed) return web.m_dAlpha0 <= 1 ? "15·{εk}" : "18·{εk}";
  return element == CWidthElement::WebTRolled ? "(15 + 0.2·min(100, max(30, {λ})))·{εk}"
                                              : "(13 + 0.17·min(100, max(30, {λ})))·{εk}";
}

}  // namespace orv3
