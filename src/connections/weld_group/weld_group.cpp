#include "connections/weld_group/weld_group.h"

#include <algorithm>
#include <cmath>

#include "connections/check_math.h"
#include "framework/elementary.h"

namespace orv3 {

double CWeldLine::Length() const noexcept { return Hypot(m_dX2 - m_dX1, m_dY2 - m_dY1); }

CWeldGroupSums SumsOf(std::span<const CWeldLine> welds) noexcept {
  CWeldGroupSums sums;
  for (const CWeldLine& weld : welds) {
    const double area = weld.Throat() * weld.Length();
    sums.m_dA += area;
    sums.m_dXc += area * (weld.m_dX1 + weld.m_dX2) / 2;
    sums.m_dYc += area * (weld.m_dY1 + weld.m_dY2) / 2;
  }
  sums.m_dXc /= sums.m_dA;
  sums.m_dYc /= sums.m_dA;
  for (const CWeldLine& weld : welds) {
    const double area = weld.Throat() * weld.Length();
    const double x = (weld.m_dX1 + weld.m_dX2) / 2 - sums.m_dXc;
    const double y = (weld.m_dY1 + weld.m_dY2) / 2 - sums.m_dYc;
    const double dx = weld.m_dX2 - weld.m_dX1;
    const double dy = weld.m_dY2 - weld.m_dY1;
    sums.m_dIx += area * (y * y + dy * dy / 12);
    sums.m_dIy += area * (x * x + dx * dx / 12);
    sums.m_dIxy += area * (x * y + dx * dy / 12);
  }
  return sums;
}

CCentroidLoads AtCentroid(const CWeldGroupLoads& loads, const CWeldGroupSums& sums) noexcept {
  const double x = loads.m_dX - sums.m_dXc;
  const double y = loads.m_dY - sums.m_dYc;
  return {.m_dN = 1000 * loads.m_dN,
          .m_dVx = 1000 * loads.m_dVx,
          .m_dVy = 1000 * loads.m_dVy,
          .m_dMx = 1000 * (loads.m_dM + loads.m_dN * y),
          .m_dMy = 1000 * loads.m_dN * x,
          .m_dT = 1000 * (loads.m_dT + loads.m_dVy * x - loads.m_dVx * y)};
}

bool FindTension(const CCentroidLoads& loads, const CWeldGroupSums& sums,
                 CTensionPlane& tension) noexcept {
  tension = {.m_dAt = loads.m_dN / sums.m_dA};
  // The principal axes: u with the greatest sum of squares I1, v across it with I2.
  const double half = (sums.m_dIy - sums.m_dIx) / 2;
  const double radius = Hypot(half, sums.m_dIxy);
  const double angle = radius == 0 ? 0 : Atan2(sums.m_dIxy, half) / 2;
  const double ux = Cos(angle);
  const double uy = Sin(angle);
  const double I1 = sums.J() / 2 + radius;
  const double I2 = sums.J() / 2 - radius;
  const double mu = loads.m_dMy * ux + loads.m_dMx * uy;
  const double mv = loads.m_dMx * ux - loads.m_dMy * uy;
  const bool bLine = I2 <= 1e-9 * I1;
  const double small = std::max(1000 * kCheckTolerance, 1e-9 * std::fabs(mu));
  if (bLine && std::fabs(mv) > small) return false;
  const double alongU = mu / I1;
  const double alongV = bLine ? 0 : mv / I2;
  tension.m_dX = alongU * ux - alongV * uy;
  tension.m_dY = alongU * uy + alongV * ux;
  // Axes along x and y leave in the one a rounding of the other.
  const double trace = 1e-12 * Hypot(tension.m_dX, tension.m_dY);
  if (std::fabs(tension.m_dX) < trace) tension.m_dX = 0;
  if (std::fabs(tension.m_dY) < trace) tension.m_dY = 0;
  return true;
}

double AcrossSquared(double a, double b, double betaF) noexcept {
  const double resultant = a * a + b * b;
  return betaF == 1 ? resultant : (resultant + std::fabs(a * b)) / (betaF * betaF);
}

std::vector<CWeldPoint> WeldPoints(std::span<const CWeldLine> welds, const CCentroidLoads& loads,
                                   const CWeldGroupSums& sums, const CTensionPlane& tension,
                                   double betaF) {
  std::vector<CWeldPoint> points;
  points.reserve(2 * welds.size());
  const auto add = [&](const CWeldLine& weld, double x, double y) {
    const double ux = (weld.m_dX2 - weld.m_dX1) / weld.Length();
    const double uy = (weld.m_dY2 - weld.m_dY1) / weld.Length();
    const double dx = x - sums.m_dXc;
    const double dy = y - sums.m_dYc;
    CWeldPoint point = {.m_nWeld = static_cast<int>(points.size() / 2), .m_dX = x, .m_dY = y};
    point.m_dTauX = loads.m_dVx / sums.m_dA - loads.m_dT * dy / sums.J();
    point.m_dTauY = loads.m_dVy / sums.m_dA + loads.m_dT * dx / sums.J();
    point.m_dAlong = point.m_dTauX * ux + point.m_dTauY * uy;
    point.m_dAcross = point.m_dTauY * ux - point.m_dTauX * uy;
    point.m_dOut = tension.m_dAt + tension.m_dX * dx + tension.m_dY * dy;
    const double across = AcrossSquared(point.m_dAcross, point.m_dOut, betaF);
    point.m_dSigma = betaF * std::sqrt(across);
    point.m_dCombined = std::sqrt(across + point.m_dAlong * point.m_dAlong);
    points.push_back(point);
  };
  for (const CWeldLine& weld : welds) {
    add(weld, weld.m_dX1, weld.m_dY1);
    add(weld, weld.m_dX2, weld.m_dY2);
  }
  return points;
}

}  // namespace orv3
