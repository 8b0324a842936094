#include "members/beam_column.h"

#include <cmath>
#include <numbers>

#include "codes/steel_grade.h"

namespace orv3 {

double EulerForce(double A, double lambda) noexcept {
  return std::numbers::pi * std::numbers::pi * kElasticModulus * A / (lambda * lambda);
}

double ReducedEulerForce(double A, double lambda) noexcept { return EulerForce(A, lambda) / 1.1; }

double AxialTerm(double N, double phi, double A, double f) noexcept { return N / (phi * A * f); }

double AmplifiedTerm(double betaM, double gammaW, double share, double N, double NE,
                     double f) noexcept {
  const double left = 1 - share * N / NE;
  if (betaM == 0) return 0;
  return left > 0 ? betaM / (gammaW * left * f) : HUGE_VAL;
}

double LateralTerm(double eta, double betaM, double phiB, double W, double f) noexcept {
  return betaM == 0 ? 0 : eta * betaM / (phiB * W * f);
}

double CombinedStress(double sigma, double tau) noexcept {
  return std::sqrt(sigma * sigma + 3 * tau * tau);
}

}  // namespace orv3
