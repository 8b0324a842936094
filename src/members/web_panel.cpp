#include "members/web_panel.h"

#include <cmath>

namespace orv3 {

double PanelBendingDivisor(CCodeEdition edition, bool bRestrained) noexcept {
  if (bRestrained) return 177;
  return edition == CCodeEdition::Gb2017 ? 138 : 153;
}

double PanelBendingSlenderness(CCodeEdition edition, bool bRestrained, double twiceHcOverTw,
                               double epsilonK) noexcept {
  return twiceHcOverTw / PanelBendingDivisor(edition, bRestrained) / epsilonK;
}

double PanelShearFactor(double h0, double a) noexcept {
  if (a == 0) return 5.34;
  const double square = h0 / a * (h0 / a);
  return a <= h0 ? 4 + 5.34 * square : 5.34 + 4 * square;
}

double PanelShearSlenderness(CCodeEdition edition, bool bSimpleSpan, double h0, double tw, double a,
                             double epsilonK) noexcept {
  const double base = edition == CCodeEdition::Gb2003 ? 41
                      : bSimpleSpan                   ? 37 * kPanelSimpleSpan
                                                      : 37;
  return h0 / tw / (base * std::sqrt(PanelShearFactor(h0, a))) / epsilonK;
}

double PanelCriticalStress(double lambda, double f) noexcept {
  if (lambda <= 0.85) return f;
  return lambda <= 1.25 ? (1 - 0.75 * (lambda - 0.85)) * f : 1.1 * f / (lambda * lambda);
}

double PanelCriticalShear(double lambda, double fv) noexcept {
  if (lambda <= 0.8) return fv;
  return lambda <= 1.2 ? (1 - 0.59 * (lambda - 0.8)) * fv : 1.1 * fv / (lambda * lambda);
}

}  // namespace orv3
