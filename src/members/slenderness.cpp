#include "members/slenderness.h"

#include <algorithm>
#include <cmath>

#include "framework/elementary.h"

namespace orv3 {

double TorsionalSlenderness(double I0, double It, double Iw, double lw) noexcept {
  return std::sqrt(I0 / (It / 25.7 + Iw / (lw * lw)));
}

double FlexuralTorsionalSlenderness(double lambda, double lambdaZ, double e, double i02) noexcept {
  const double a = lambda * lambda, z = lambdaZ * lambdaZ;
  const double root = (a + z) * (a + z) - 4 * (1 - e * e / i02) * a * z;
  return std::sqrt((a + z + std::sqrt(std::max(0.0, root))) / 2);
}

double AngleSlenderness2017(double lambda, double lambdaZ, double factor) noexcept {
  const double great = std::max(lambda, lambdaZ), small = std::min(lambda, lambdaZ);
  return great * (1 + factor * (small / great) * (small / great));
}

double AngleSlenderness2003(const CAngleFactors2003& f, double lambda, double b, double t,
                            double l) noexcept {
  const double b4 = b * b * b * b, l2t2 = l * l * t * t;
  if (b / t <= f.m_dLimit * l / b) return lambda * (1 + f.m_dSlender * b4 / l2t2);
  return f.m_dStocky * b / t * (1 + l2t2 / (f.m_dDivisor * b4));
}

double LacedSlenderness(double lambda, double factor, double A, double A1) noexcept {
  return std::sqrt(lambda * lambda + factor * A / A1);
}

double BattenedSlenderness(double lambda, double lambda1) noexcept {
  return Hypot(lambda, lambda1);
}

}  // namespace orv3
