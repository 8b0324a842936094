#include "catalogue/code_tables/stepped_column_equation.h"

#include <algorithm>
#include <iterator>
#include <numbers>

#include "catalogue/code_tables/grids.h"
#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr int kHalvings = 200;  // more than a double has digits

// Above 0 in front of the smallest root x = pi / mu, below 0 behind it. Both equations are
// multiplied by the cosines of their tangents' denominators.
double Balance(CSteppedTop top, double eta1, double k1, double x) noexcept {
  const double s = Sin(x), c = Cos(x);
  const double s1 = Sin(eta1 * x), c1 = Cos(eta1 * x);
  if (top == CSteppedTop::Free) return c * c1 - eta1 * k1 * s * s1;
  return s1 * c + eta1 * k1 * s * c1;
}

// Of the two tangents the one of the larger argument reaches its pole first. With a free top the
// root lies before that pole; with a sliding one between it and the nearer of that tangent's zero
// and the other's pole, where the two tangents have opposite signs.
struct CBracket {
  double m_low, m_high;
};
CBracket Bracket(CSteppedTop top, double eta1) noexcept {
  const double pole = std::numbers::pi / 2 / std::max(1.0, eta1);
  if (top == CSteppedTop::Free) return {0, pole};
  return {pole, std::min(2 * pole, std::numbers::pi / 2 / std::min(1.0, eta1))};
}

}  // namespace

double SingleSteppedMu(CSteppedTop top, double eta1, double k1) noexcept {
  CBracket x = Bracket(top, eta1);
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = x.m_low + (x.m_high - x.m_low) / 2;
    (Balance(top, eta1, k1, middle) > 0 ? x.m_low : x.m_high) = middle;
  }
  return std::numbers::pi / x.m_high;
}

bool IsWithinSingleStepped(double eta1, double k1) noexcept {
  const auto within = [](const auto& grid, double value) {
    return value >= *std::begin(grid) && value <= *(std::end(grid) - 1);
  };
  return within(kSingleEta1, eta1) && within(kSingleK1, k1);
}

}  // namespace orv3
