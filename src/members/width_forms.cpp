#include "members/width_forms.h"

#include <array>
#include <cstddef>

namespace orv3 {
namespace {

using CForms = std::array<const char*, 7>;

constexpr CForms kAxial = {
    "(10 + 0.1·min(100, max(30, {λmax})))·{εk}",   // Flange
    "(25 + 0.5·min(100, max(30, {λmax})))·{εk}",   // WebI
    "40·{εk}",                                     // BoxWall
    "(15 + 0.2·min(100, max(30, {λmax})))·{εk}",   // WebTRolled
    "(13 + 0.17·min(100, max(30, {λmax})))·{εk}",  // WebTWelded
    "(10 + 0.1·min(100, max(30, {λmax})))·{εk}",   // AngleLeg
    "100·{εk}²",                                   // Tube
};
static_assert(kAxial.size() == static_cast<std::size_t>(CWidthElement::Tube) + 1);

constexpr std::array<const char*, 6> kClass4 = {
    "15·{εk}",                   // FlangeOutstand
    "124·{εk}",                  // WebBending
    "(45 + 25·{α0}^1.66)·{εk}",  // WebCompressed
    "42·{εk}",                   // BoxFlange
    "45·{εk}",                   // BoxWall
    "100·{εk}²",                 // Tube
};
static_assert(kClass4.size() == static_cast<std::size_t>(CClassElement::Tube) + 1);

}  // namespace

const char* AxialWidthForm(CCodeEdition edition, CWidthElement element, double lambda,
                           double epsilonK) noexcept {
  if (edition == CCodeEdition::Gb2017 && element == CWidthElement::AngleLeg)
    return lambda <= 80 * epsilonK ? "15·{εk}" : "5·{εk} + 0.125·{λmax}";
  return kAxial[static_cast<std::size_t>(element)];
}

const char* Class4Form(CClassElement element) noexcept {
  return kClass4[static_cast<std::size_t>(element)];
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
