// The figures that integrals give, against closed forms.
#include "outlines/exact_properties.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace orv3 {
namespace {

using CLoops = std::vector<CPath>;
constexpr double kPi = std::numbers::pi;

struct CFigureCase {
  const char* what;
  CLoops loops;
  double CExactProperties::*figure;
  double expected;
};

TEST(ExactProperties, AreExactOnLinesAndArcs) {
  const CLoops rect{RectPath(3, 5, 30, 80)};
  const CLoops half{{{{-20, 0, 0}, {20, 0, 1}}, true}};
  const CLoops ring{CirclePath({9, 9}, 50), Reversed(CirclePath({9, 9}, 30))};
  const CLoops tee{{{{45, 0, 0},
                     {55, 0, 0},
                     {55, 90, 0},
                     {100, 90, 0},
                     {100, 100, 0},
                     {0, 100, 0},
                     {0, 90, 0},
                     {45, 90, 0}},
                    true}};
  const CLoops pair{RectPath(0, 0, 10, 40), RectPath(30, 0, 10, 40)};
  const CPath angle{{{0, 0, 0}, {80, 0, 0}, {80, 8, 0}, {8, 8, 0}, {8, 80, 0}, {0, 80, 0}}, true};
  // An arc of next to no bulge is the chord.
  const CLoops flat{{{{0, 0, 1e-9}, {10, 0, 0}, {10, 40, -1e-12}, {0, 40, 0}}, true}};
  // Half disc: the height that halves the area, h = r s with asin s + s sqrt(1 - s^2) = pi / 4.
  const double s = 0.40397275329951720931;
  const std::vector<CFigureCase> cases = {
      {"rectangle", rect, &CExactProperties::Wpx, 30 * 80 * 80 / 4.0},
      {"rectangle", rect, &CExactProperties::Wpy, 80 * 30 * 30 / 4.0},
      {"rectangle", rect, &CExactProperties::yp, 40},
      {"rectangle", rect, &CExactProperties::Wx1, 30 * 80 * 80 / 6.0},
      {"rectangle", rect, &CExactProperties::theta, 0},
      {"rectangle", rect, &CExactProperties::mass, 18.84},
      {"rectangle", rect, &CExactProperties::surface, 0.22},
      {"rectangle", rect, &CExactProperties::betax, 0},
      {"lying", {RectPath(0, 0, 80, 30)}, &CExactProperties::theta, 90},
      {"half disc", half, &CExactProperties::A, 200 * kPi},
      {"half disc", half, &CExactProperties::yo, 80 / (3 * kPi)},
      {"half disc", half, &CExactProperties::Ix, (kPi / 8 - 8 / (9 * kPi)) * 160000},
      {"half disc", half, &CExactProperties::yp, 20 * s},
      {"half disc", half, &CExactProperties::Wpy, 2 * 20 * 20 * 20 / 3.0},
      {"ring", ring, &CExactProperties::Wpx, 4.0 / 3 * (125000 - 27000)},
      {"ring", ring, &CExactProperties::surface, kPi / 10},
      {"ring", ring, &CExactProperties::theta, 0},
      {"tee", tee, &CExactProperties::yp, 90.5},
      {"tee", tee, &CExactProperties::Wpx, 100 * 9.5 * 9.5 / 2 + 100 * 0.125 + 900 * 45.5},
      {"pair", pair, &CExactProperties::xp, 20},
      {"pair", pair, &CExactProperties::Wpy, 800 * 15},
      {"angle", {angle}, &CExactProperties::theta, 45},
      {"angle", {MirroredX(angle)}, &CExactProperties::theta, -45},
      {"flat arcs", flat, &CExactProperties::Ix, 10 * 64000 / 12.0},
      {"flat arcs", flat, &CExactProperties::Wpx, 10 * 1600 / 4.0},
  };
  for (const CFigureCase& c : cases) {
    EXPECT_NEAR(ExactProperties(c.loops).*c.figure, c.expected, 1e-9 * std::fabs(c.expected) + 1e-9)
        << c.what;
  }
}

// A rolled section's printed figures: IPE 300 of EN 10365. Its It and Iw are printed by formulas of
// thin walls, 1.9 % above and 1.3 % above.
TEST(ExactProperties, AreThoseOfAPrintedTable) {
  const std::vector<CCorner> corners{{0, 0, 0},          {150, 0, 0},        {150, 10.7, 0},
                                     {78.55, 10.7, 15},  {78.55, 289.3, 15}, {150, 289.3, 0},
                                     {150, 300, 0},      {0, 300, 0},        {0, 289.3, 0},
                                     {71.45, 289.3, 15}, {71.45, 10.7, 15},  {0, 10.7, 0}};
  const CExactProperties p = ExactProperties(CLoops{RoundedPath(corners)});
  EXPECT_NEAR(p.A / 100, 53.81, 0.005);
  EXPECT_NEAR(p.Ix / 1e4, 8356, 0.5);
  EXPECT_NEAR(p.Iy / 1e4, 603.8, 0.05);
  EXPECT_NEAR(p.Wpx / 1e3, 628.4, 0.05);
  EXPECT_NEAR(p.Wpy / 1e3, 125.2, 0.05);
  EXPECT_NEAR(p.It / 1e4, 20.12, 0.02 * 20.12);
  EXPECT_NEAR(p.Iw / 1e9, 125.9, 0.015 * 125.9);
  EXPECT_TRUE(p.m_bAccurate);
}

}  // namespace
}  // namespace orv3
