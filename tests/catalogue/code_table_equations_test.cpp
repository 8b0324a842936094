// The effective-length tables against the equations that GB 50017-2003 prints under Tables D-1 to
// D-6. With x = pi / mu, the column buckles at the smallest positive root. The equations are
// multiplied by the cosines or sines of their tangents' and cotangents' denominators, so that they
// have no poles.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>
#include <utility>

#include "orv3cal.h"

namespace {

constexpr double kPi = std::numbers::pi;
using T = CTableSearch;

// The first root of f above `from`, 0 when there is none below `to`.
template <class F>
double FirstRoot(F f, double from, double to) {
  constexpr double kStep = 0.01;
  const bool bPositive = f(from) > 0;
  for (int step = 0; from + kStep * step < to; ++step) {
    double low = from + kStep * step;
    double high = low + kStep;
    if ((f(high) > 0) == bPositive) continue;
    for (int i = 0; i < 50; ++i) {
      const double middle = (low + high) / 2;
      ((f(middle) > 0) == bPositive ? low : high) = middle;
    }
    return (low + high) / 2;
  }
  return 0;
}

template <class F>
double Mu(F f, double from = 0.05, double to = kPi) {
  return kPi / FirstRoot(f, from, to);
}

// D-1, without sidesway.
double NoSway(double x, double k1, double k2) {
  const double sum = k1 + k2;
  const double product = k1 * k2;
  return (x * x + 2 * sum - 4 * product) * x * std::sin(x) -
         2 * (sum * x * x + 4 * product) * std::cos(x) + 8 * product;
}

// D-2, with sidesway.
double Sway(double x, double k1, double k2) {
  return (36 * k1 * k2 - x * x) * std::sin(x) + 6 * (k1 + k2) * x * std::cos(x);
}

// D-3: eta1 K1 tan x tan(eta1 x) = 1.
double SingleFree(double x, double eta1, double k1) {
  return eta1 * k1 * std::sin(x) * std::sin(eta1 * x) - std::cos(x) * std::cos(eta1 * x);
}

// D-4: tan(eta1 x) + eta1 K1 tan x = 0.
double SingleSliding(double x, double eta1, double k1) {
  return std::sin(eta1 * x) * std::cos(x) + eta1 * k1 * std::sin(x) * std::cos(eta1 * x);
}

struct CDouble {
  double eta1, eta2, k1, k2;
};

// D-5.
double DoubleFree(double x, const CDouble& p) {
  const double s = std::sin(x), c = std::cos(x);
  const double s1 = std::sin(p.eta1 * x), c1 = std::cos(p.eta1 * x);
  const double s2 = std::sin(p.eta2 * x), c2 = std::cos(p.eta2 * x);
  return p.eta1 * p.k1 / (p.eta2 * p.k2) * s1 * s2 * c + p.eta1 * p.k1 * s1 * s * c2 +
         p.eta2 * p.k2 * s2 * s * c1 - c1 * c2 * c;
}

// D-6.
double DoubleSliding(double x, const CDouble& p) {
  const double s = std::sin(x), c = std::cos(x);
  const double s1 = std::sin(p.eta1 * x), c1 = std::cos(p.eta1 * x);
  const double s2 = std::sin(p.eta2 * x), c2 = std::cos(p.eta2 * x);
  const double lower = p.eta2 * p.k2;
  return p.eta1 * p.k1 / lower * c1 * c2 * s + p.eta1 * p.k1 / (lower * lower) * c1 * c * s2 +
         c2 * c * s1 / lower - s1 * s2 * s;
}

// The print of the code differs from the rounded root in a few cells of Tables D-1 and D-2: by less
// than a whole last digit.
using CCells = std::set<std::pair<double, double>>;
const CCells kNoSwayPrint = {{0, 2}, {0.1, 0.1}, {0.2, 5}};
const CCells kSwayPrint = {{0, 0.5}, {0.05, 3}, {0.5, 5}, {4, 5}};

TEST(EffectiveLengthEquations, FrameColumns) {
  for (int i = 0; i < 13; ++i) {
    for (int j = 0; j < 13; ++j) {
      const double k1 = orv3::kFrameK[i], k2 = orv3::kFrameK[j];
      const std::pair cell = std::minmax(k1, k2);
      EXPECT_NEAR(T::g_sub16[i][j],
                  Mu([=](double x) { return NoSway(x, k1, k2); }, 1.0, 2 * kPi + 0.1),
                  kNoSwayPrint.count(cell) ? 0.00055 : 0.0005)
          << "D-1 at " << k1 << ", " << k2;
      if (i == 0 && j == 0) continue;  // infinity
      EXPECT_NEAR(T::g_sub17[i][j], Mu([=](double x) { return Sway(x, k1, k2); }, 0.05, kPi + 0.1),
                  kSwayPrint.count(cell) ? 0.0055 : 0.005)
          << "D-2 at " << k1 << ", " << k2;
    }
  }
}

TEST(EffectiveLengthEquations, SingleSteppedColumns) {
  for (int i = 0; i < 19; ++i) {
    for (int j = 0; j < 18; ++j) {
      const double eta1 = orv3::kSingleEta1[i];
      const double k1 = orv3::kSingleK1[j];
      EXPECT_NEAR(T::g_sub18[i][j], Mu([=](double x) { return SingleFree(x, eta1, k1); }), 0.005)
          << "D-3 at " << eta1 << ", " << k1;
      EXPECT_NEAR(T::g_sub19[i][j], Mu([=](double x) { return SingleSliding(x, eta1, k1); }), 0.005)
          << "D-4 at " << eta1 << ", " << k1;
    }
  }
}

// The command's roots, on both sides of eta1 = 1 and beyond the tables.
TEST(EffectiveLengthEquations, SingleSteppedColumnsBeyondTheTables) {
  const std::pair<double, double> ratios[] = {{5, 1.5},   {1, 0.3},  {0.05, 0.01}, {0.1, 20},
                                              {0.9, 2.5}, {1.1, 40}, {7, 0.02},    {3.5, 0.06}};
  for (const auto& [eta1, k1] : ratios) {
    const auto expect = [e = eta1, k = k1](orv3::CSteppedTop top, auto equation) {
      const double mu = Mu([&](double x) { return equation(x, e, k); }, 1e-3);
      EXPECT_NEAR(orv3::SingleSteppedMu(top, e, k), mu, 1e-6 * mu) << e << ", " << k;
    };
    expect(orv3::CSteppedTop::Free, SingleFree);
    expect(orv3::CSteppedTop::Sliding, SingleSliding);
  }
}

TEST(EffectiveLengthEquations, DoubleSteppedColumns) {
  for (int n = 0; n < 9 * 6 * 4 * 11; ++n) {
    const int i1 = n / (6 * 4 * 11);
    const int i2 = n / (4 * 11) % 6;
    const int j1 = n / 11 % 4;
    const int j2 = n % 11;
    const CDouble p = {orv3::kDoubleEta1[i1], orv3::kDoubleEta2[i2], orv3::kDoubleK1[j1],
                       orv3::kDoubleK2[j2]};
    const int row = 6 * (j1 / 2) + i2;
    const int column = 22 * i1 + 11 * (j1 % 2) + j2;
    EXPECT_NEAR(T::g_sub20[row][column], Mu([&](double x) { return DoubleFree(x, p); }), 0.005)
        << "D-5 at " << p.eta1 << ", " << p.eta2 << ", " << p.k1 << ", " << p.k2;
    EXPECT_NEAR(T::g_sub21[row][column], Mu([&](double x) { return DoubleSliding(x, p); }), 0.005)
        << "D-6 at " << p.eta1 << ", " << p.eta2 << ", " << p.k1 << ", " << p.k2;
  }
}

}  // namespace
