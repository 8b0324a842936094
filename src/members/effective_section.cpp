#include "members/effective_section.h"

#include <algorithm>
#include <cmath>

namespace orv3 {
namespace {

// What is taken out: area, its first and second moment about the centroid of the whole, y towards
// the compressed edge, and its second moment about y.
struct CLost {
  double m_dA = 0, m_dS = 0, m_dIx = 0, m_dIy = 0;
  void Strip(double width, double height, double y, double x) noexcept {
    const double a = width * height;
    m_dA += a;
    m_dS += a * y;
    m_dIx += a * height * height / 12 + a * y * y;
    m_dIy += a * width * width / 12 + a * x * x;
  }
};

}  // namespace

CEffectiveSection EffectiveSection(const CMemberSection& s, CSide compressed, double alpha0,
                                   double epsilonK, CReducedPlates reduced) noexcept {
  const bool bTop = compressed == CSide::Top;
  const double toEdge = s.m_dIx / (bTop ? s.m_dWTop : s.m_dWBottom);
  const double toOther = s.m_dIx / (bTop ? s.m_dWBottom : s.m_dWTop);
  CEffectiveSection e;
  CLost lost;
  if (reduced.m_bWeb) {
    e.m_dKSigma =
        16 / (2 - alpha0 + std::sqrt((2 - alpha0) * (2 - alpha0) + 0.112 * alpha0 * alpha0));
    e.m_dLambdaNp = s.m_dH0 / s.m_dTw / (28.1 * std::sqrt(e.m_dKSigma)) / epsilonK;
    if (e.m_dLambdaNp > 0.75) e.m_dRho = (1 - 0.19 / e.m_dLambdaNp) / e.m_dLambdaNp;
    e.m_dHc = alpha0 > 1 ? s.m_dH0 / alpha0 : s.m_dH0;
    const double he = e.m_dRho * e.m_dHc;
    const double first = alpha0 > 1 ? 0.4 * he : 2 * he / (4 + alpha0);
    e.m_dLost = e.m_dHc - he;
    const double y = (bTop ? s.m_dWebTop : s.m_dWebBottom) - first - e.m_dLost / 2;
    const double x = s.m_nWebs > 1 ? (s.m_dB0 + s.m_dTw) / 2 : 0;
    for (int web = 0; web < s.m_nWebs; ++web) lost.Strip(s.m_dTw, e.m_dLost, y, x);
  }
  const auto cut = [&](const CMemberFlange& flange, double edge, double sign) {
    const double excess = std::max(0.0, flange.m_dOutstand - 15 * epsilonK * flange.m_dThick);
    for (int side = 0; side < 2; ++side)
      lost.Strip(excess, flange.m_dThick, sign * (edge - flange.m_dThick / 2),
                 (flange.m_dWidth - excess) / 2);
    e.m_dFlangeLost = std::max(e.m_dFlangeLost, excess);
  };
  if (reduced.m_bFlange) cut(bTop ? s.m_top : s.m_bottom, toEdge, 1);
  if (reduced.m_bOtherFlange) cut(bTop ? s.m_bottom : s.m_top, toOther, -1);
  e.m_dA = s.m_dA - lost.m_dA;
  e.m_dE = lost.m_dS / e.m_dA;
  const double I = s.m_dIx - lost.m_dIx - e.m_dA * e.m_dE * e.m_dE;
  e.m_dWCompressed = I / (toEdge + e.m_dE);
  e.m_dWOther = I / (toOther - e.m_dE);
  e.m_dWSide = (s.m_dIy - lost.m_dIy) * s.m_dWSide / s.m_dIy;
  return e;
}

}  // namespace orv3
