// Torsion, warping and shear: closed solutions, and what must not change.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "outlines/exact_picture.h"
#include "outlines/exact_properties.h"
#include "outlines/section_solver.h"

namespace orv3 {
namespace {

using CLoops = std::vector<CPath>;
constexpr double kPi = std::numbers::pi;
constexpr double kUnasked = CExactProperties::kUnknown;

CPath Polygon(std::vector<CVertex> vertices) { return {std::move(vertices), true}; }

CLoops Ring(double radius, double inner) {
  return {CirclePath({0, 0}, radius), Reversed(CirclePath({0, 0}, inner))};
}

CPath Ellipse(double a, double b) {
  CPath path;
  for (int i = 0; i < 400; ++i)
    path.m_arrVertex.push_back({a * std::cos(kPi * i / 200), b * std::sin(kPi * i / 200), 0});
  return path;
}

// A ring cut open at the right, by a slit whose sides run along the radius.
CPath SlitRing(double radius, double inner, double half) {
  const double bulge = -std::tan((2 * kPi - 2 * half) / 4);
  const double c = std::cos(half), s = std::sin(half);
  return Polygon({{inner * c, inner * s, 0},
                  {radius * c, radius * s, 0},
                  {radius * c, radius * s, -bulge},
                  {radius * c, -radius * s, 0},
                  {inner * c, -inner * s, bulge}});
}

// It of a rectangle, a >= b (Saint-Venant's series).
double RectangleIt(double a, double b) {
  double sum = 0;
  for (int n = 1; n < 60; n += 2) sum += std::tanh(n * kPi * a / (2 * b)) / std::pow(n, 5);
  return a * b * b * b / 3 * (1 - 192 * b / (std::pow(kPi, 5) * a) * sum);
}

// Shear area of a ring, Poisson's ratio 0; m inner by outer radius.
double RingShear(double m) {
  const double k = (1 + m * m) * (1 + m * m);
  return 6 * k / (7 * k + 20 * m * m);
}

struct CClosed {
  const char* what;
  CLoops loops;
  double It, Iw, As;
  double tolerance;  // of the closed solution and of arcs as polygons; the solver's error aside
};

TEST(SectionSolver, MeetsClosedSolutions) {
  const double e = std::sqrt(3.0);
  const double warp = (60.0 * 60 - 25 * 25) / (60.0 * 60 + 25 * 25);
  const double cube = std::pow(60.0 * 25, 3);
  // A thin open ring: of its middle line, radius 100, wall 0.5.
  const double openIw = (2 * kPi * kPi * kPi / 3 - 4 * kPi) * 0.5 * 1e10;
  const std::vector<CClosed> cases = {
      {"square", {RectPath(0, 0, 80, 80)}, RectangleIt(80, 80), kUnasked, 6400 / 1.2, 1e-9},
      {"1 : 2", {RectPath(0, 0, 80, 40)}, RectangleIt(80, 40), kUnasked, 3200 / 1.2, 1e-9},
      {"1 : 10", {RectPath(0, 0, 5, 50)}, RectangleIt(50, 5), kUnasked, 250 / 1.2, 1e-9},
      {"plate 1 : 1000",
       {RectPath(0, 0, 1000, 1)},
       RectangleIt(1000, 1),
       1e9 / 144,
       1e3 / 1.2,
       1e-5},
      {"circle", {CirclePath({0, 0}, 50)}, kPi * std::pow(50, 4) / 2, 0, kPi * 2500 * 6 / 7, 1e-6},
      {"ring", Ring(50, 40), kPi * (std::pow(50, 4) - std::pow(40, 4)) / 2, 0,
       kPi * 900 * RingShear(0.8), 1e-6},
      {"thin ring", Ring(50, 49.95), kPi * (std::pow(50, 4) - std::pow(49.95, 4)) / 2, 0,
       kPi * (2500 - 49.95 * 49.95) * RingShear(0.999), 1e-6},
      {"ellipse",
       {Ellipse(60, 25)},
       kPi * cube / (60 * 60 + 25 * 25),
       warp * warp * kPi * cube / 24,
       kUnasked,
       2e-4},
      {"triangle",
       {Polygon({{0, 0, 0}, {100, 0, 0}, {50, 50 * e, 0}})},
       e * 1e8 / 80,
       kUnasked,
       kUnasked,
       1e-9},
      {"open ring",
       {SlitRing(100.25, 99.75, 1e-5)},
       2 * kPi * 100 * 0.125 / 3,
       openIw,
       kUnasked,
       2e-3},
  };
  for (const CClosed& c : cases) {
    SCOPED_TRACE(c.what);
    const CExactProperties p = ExactProperties(c.loops);
    EXPECT_TRUE(p.m_bAccurate);
    EXPECT_TRUE(p.m_bJoined);
    const auto meets = [&](double value, double closed, double estimate, double limit) {
      if (std::isnan(closed)) return;
      EXPECT_LE(estimate, limit);
      EXPECT_NEAR(value, closed, (estimate + c.tolerance) * closed + 1e-9);
    };
    meets(p.It, c.It, p.m_error.It, 1e-3);
    meets(p.Asx, c.As, p.m_error.As, 3e-3);
    meets(p.Asy, c.As, p.m_error.As, 3e-3);
    if (c.Iw == 0) {
      EXPECT_LT(p.Iw, 1e-9 * p.It * p.A);
    } else {
      meets(p.Iw, c.Iw, p.m_error.Iw, 3e-3);
    }
  }
  // The shear center of an open ring lies two radii from its middle, beyond the wall.
  const CExactProperties open = ExactProperties(CLoops{SlitRing(100.25, 99.75, 1e-5)});
  EXPECT_NEAR(open.xs, 100.25 - 200, 0.1);
}

// Round holes of every size anywhere in plates, the wall beside one down to d / 100,000, two walls
// to d / 1,000. It lies
// between that of the plate and that of the greatest plate beside the hole.
TEST(SectionSolver, AnswersPlatesWithARoundHole) {
  const auto rectangleIt = [](double a, double b) {
    return RectangleIt(std::max(a, b), std::min(a, b));
  };
  for (const auto& [b, h] : {std::pair{60.0, 400.0}, {300.0, 400.0}, {250.0, 250.0}}) {
    for (double size : {0.05, 0.17, 0.33, 0.85}) {
      const double d = size * b;
      for (double along : {0.0, 0.13, 0.45}) {
        for (double up : {0.0, 0.01, 0.3}) {
          const double wall = up > 0 ? 0.05 : along > 0 ? 1e-5 : 1e-3;
          const double near = (0.5 + wall) * d;
          const double x = near + along * (b - 2 * near), y = near + up * (h - 2 * near);
          SCOPED_TRACE(testing::Message()
                       << b << " x " << h << ", " << d << " at " << x << ", " << y);
          const CExactProperties p =
              ExactProperties(CLoops{RectPath(0, 0, b, h), Reversed(CirclePath({x, y}, d / 2))});
          EXPECT_TRUE(p.m_bAccurate);
          EXPECT_NEAR(p.A, b * h - kPi * d * d / 4, 1e-9 * p.A);
          EXPECT_LT(p.It, rectangleIt(b, h));
          EXPECT_GT(p.It, std::max(rectangleIt(b, h - y - d / 2), rectangleIt(b - x - d / 2, h)));
          EXPECT_LE(p.m_error.It, 1e-3);
        }
      }
    }
  }
}

// Points halfway along every edge, arcs included.
CPath SplitEdges(const CPath& path) {
  CPath split;
  const auto& v = path.m_arrVertex;
  for (std::size_t i = 0; i < v.size(); ++i) {
    const CVertex& to = v[(i + 1) % v.size()];
    const double half = std::tan(std::atan(v[i].bulge) / 2);
    const double out = v[i].bulge / 2;  // of the arc's middle from the chord's, by the chord
    split.m_arrVertex.push_back({v[i].x, v[i].y, half});
    split.m_arrVertex.push_back({(v[i].x + to.x) / 2 + out * (to.y - v[i].y),
                                 (v[i].y + to.y) / 2 - out * (to.x - v[i].x), half});
  }
  return split;
}

CPath Scaled(CPath path, double by) {
  for (CVertex& v : path.m_arrVertex) v = {v.x * by, v.y * by, v.bulge};
  return path;
}

struct CChange {
  const char* what;
  std::function<CPath(const CPath&)> change;
  double length = 1;
  bool swapped = false;  // x and y change places
};

TEST(SectionSolver, IsIndifferentToHowTheOutlineIsGiven) {
  // Unequal flanges and a root radius.
  const CPath channel = RoundedPath(std::vector<CCorner>{{0, 0, 0},
                                                         {80, 0, 0},
                                                         {80, 12, 4},
                                                         {9, 12, 10},
                                                         {9, 190, 10},
                                                         {60, 190, 4},
                                                         {60, 200, 0},
                                                         {0, 200, 0}});
  const CExactProperties p = ExactProperties(CLoops{channel});
  ASSERT_TRUE(p.m_bAccurate);
  const std::vector<CChange> changes = {
      {"moved far", [](const CPath& c) { return Moved(c, 1e6, -3e5); }},
      {"mirrored", [](const CPath& c) { return MirroredX(c); }},
      {"turned by 90", [](const CPath& c) { return Turned(c, 90); }, 1, true},
      {"times 1000", [](const CPath& c) { return Scaled(c, 1000); }, 1000},
      {"times 0.001", [](const CPath& c) { return Scaled(c, 0.001); }, 0.001},
      {"edges split", SplitEdges},
      {"other first point",
       [](CPath c) {
         std::rotate(c.m_arrVertex.begin(), c.m_arrVertex.begin() + 3, c.m_arrVertex.end());
         return c;
       }},
      {"turned by 30", [](const CPath& c) { return Turned(c, 30); }, 1, true},
  };
  for (const CChange& c : changes) {
    SCOPED_TRACE(c.what);
    const CExactProperties q = ExactProperties(CLoops{c.change(channel)});
    EXPECT_TRUE(q.m_bAccurate);
    const double l = c.length, near = 1e-9;
    const auto same = [](double a, double b, double tolerance) {
      EXPECT_NEAR(a, b, tolerance * std::fabs(b));
    };
    same(q.A, p.A * l * l, near);
    same(q.I1, p.I1 * std::pow(l, 4), near);
    same(q.I2, p.I2 * std::pow(l, 4), near);
    same(q.It, p.It * std::pow(l, 4), p.m_error.It + q.m_error.It);
    same(q.Iw, p.Iw * std::pow(l, 6), p.m_error.Iw + q.m_error.Iw);
    same(std::hypot(q.xs - q.xo, q.ys - q.yo), std::hypot(p.xs - p.xo, p.ys - p.yo) * l, 1e-4);
    if (std::string(c.what) == "turned by 30") {
      EXPECT_NEAR(q.theta - p.theta, 30, 1e-6);
      continue;
    }
    same(q.Wpx, (c.swapped ? p.Wpy : p.Wpx) * l * l * l, near);
    same(q.Wpy, (c.swapped ? p.Wpx : p.Wpy) * l * l * l, near);
    same(q.Asx, (c.swapped ? p.Asy : p.Asx) * l * l, p.m_error.As + q.m_error.As);
    same(q.Asy, (c.swapped ? p.Asx : p.Asy) * l * l, p.m_error.As + q.m_error.As);
    same(std::fabs(q.betax), std::fabs(c.swapped ? p.betay : p.betax) * l, 1e-3);
    same(std::fabs(q.betay), std::fabs(c.swapped ? p.betax : p.betay) * l, 1e-3);
  }
}

TEST(SectionSolver, AddsPartsAndSaysWhatHasNoAnswer) {
  const CPath plate = RectPath(0, 0, 100, 10);
  const CExactProperties one = ExactProperties(CLoops{plate});
  const CExactProperties two = ExactProperties(CLoops{plate, Moved(plate, 0, 60)});
  EXPECT_FALSE(two.m_bJoined);
  EXPECT_TRUE(two.m_bAccurate);
  EXPECT_NEAR(two.It, 2 * one.It, 1e-9 * two.It);
  for (double none : {two.Iw, two.xs, two.ys, two.Asx, two.Asy, two.betax, two.betay})
    EXPECT_TRUE(std::isnan(none));
  // Arcs that pull in, of a part aside: points around them stay within it.
  const CPath small = Reversed(Polygon({{-360, -13, 0}, {-354, 18, 0.2}, {-336, 4, 0}}));
  for (double x : {-472, -572}) {
    const CPath other = Reversed(Polygon({{x, -26, 0.15}, {x - 5, 0, -0.1}, {x + 24, -5, 0}}));
    const double sum = ExactProperties(CLoops{small}).It + ExactProperties(CLoops{other}).It;
    EXPECT_NEAR(ExactProperties(CLoops{small, other}).It, sum, 0.002 * sum) << x;
  }
  // Loops that bound no section.
  const std::vector<CLoops> wrong = {
      {},
      {Reversed(plate)},                                               // a hole alone
      {plate, Reversed(RectPath(200, 0, 10, 5))},                      // a hole outside
      {Polygon({{0, 0, 0}, {10, 8, 0}, {10, 0, 0}, {0, 10, 0}})},      // crosses itself
      {RectPath(0, 0, 100, 100), Reversed(RectPath(50, 50, 80, 10))},  // hole crosses
      {Polygon({{0, 0, 0}, {10, 0, 0}, {kUnasked, 5, 0}})},
  };
  for (const CLoops& loops : wrong) EXPECT_TRUE(std::isnan(ExactProperties(loops).It));
  // A slit that closes a tube unless it is told from nothing: open, or no figures.
  const auto slit = [](double gap) {
    return CLoops{Polygon({{0, 0, 0},
                           {100, 0, 0},
                           {100, 50, 0},
                           {0, 50, 0},
                           {0, 25 + gap, 0},
                           {5, 25 + gap, 0},
                           {5, 45, 0},
                           {95, 45, 0},
                           {95, 5, 0},
                           {5, 5, 0},
                           {5, 25, 0},
                           {0, 25, 0}})};
  };
  EXPECT_NEAR(ExactProperties(slit(1e-6)).It, 11717.66, 0.001 * 11717.66);
  for (double gap : {3e-7, 2e-7, 1.5e-7, 1.1e-7})
    EXPECT_FALSE(ExactProperties(slit(gap)).It > 12000) << gap;
}

// The greatest shear away from sharp corners, and the stress at the topmost point.
struct CStressCase {
  const char* what;
  CLoops loops;
  CSectionForces forces;
  double sigma, tau;
};

TEST(SectionSolver, GivesStressesAtTheBoundary) {
  const std::vector<CStressCase> cases = {
      {"bent bar", {RectPath(0, 0, 20, 60)}, {.N = 2400, .Mx = 1.2e6}, 2 + 100, 0},
      {"twisted bar", {CirclePath({7, 7}, 20)}, {.T = 1e6}, 0, 1e6 * 2 / (kPi * 8000)},
      {"twisted plate", {RectPath(0, 0, 40, 20)}, {.T = 1e5}, 0, 1e5 / (0.245820 * 40 * 400)},
      {"twisted tube", Ring(50, 40), {.T = 1e6}, 0, 1e6 * 50 / (kPi / 2 * (6.25e6 - 2.56e6))},
      {"sheared bar", {RectPath(0, 0, 20, 60)}, {.Vy = 12e3}, 0, 15},
  };
  for (const CStressCase& c : cases) {
    SCOPED_TRACE(c.what);
    double tau = 0, top = -HUGE_VAL, sigma = 0;
    for (const CBoundaryStress& s : CSectionSolver(c.loops).Stresses(c.forces)) {
      if (!s.m_bSharp) tau = std::max(tau, std::fabs(s.tau));
      if (s.m_point.y > top) {
        top = s.m_point.y;
        sigma = s.sigma;
      }
      EXPECT_DOUBLE_EQ(s.mises, std::sqrt(s.sigma * s.sigma + 3 * s.tau * s.tau));
    }
    EXPECT_NEAR(sigma, c.sigma, 1e-9 * c.sigma);
    EXPECT_NEAR(tau, c.tau, 5e-3 * c.tau + 1e-9);
  }
}

// Between the points of an arc, on either side of a wall.
TEST(SectionSolver, FindsTheGreatestNormalStressOfAnArc) {
  constexpr double kPi = std::numbers::pi;
  for (const double aslant : {0.1, 0.7, 2.2, 4.0}) {
    const CSectionForces forces{.Mx = 5e6 * std::cos(aslant), .My = 5e6 * std::sin(aslant)};
    double greatest = 0, least = 0;
    for (const CBoundaryStress& s : CSectionSolver(Ring(50, 40)).Stresses(forces)) {
      greatest = std::max(greatest, s.sigma);
      least = std::min(least, s.sigma);
    }
    const double exact = 5e6 * 50 / (kPi / 4 * (6.25e6 - 2.56e6));
    EXPECT_NEAR(greatest, exact, 1e-6 * exact) << aslant;
    EXPECT_NEAR(least, -exact, 1e-6 * exact) << aslant;
  }
}

// Weber's shaft with a groove of circular section: the shear in its bottom is that of a shaft
// without it, T R / It, times 2 - b / R.
TEST(SectionSolver, GivesTheShearInAGroove) {
  for (const double b : {20.0, 5.0, 2.0, 0.5, 0.1, 0.001}) {
    SCOPED_TRACE(b);
    constexpr double kR = 50;
    const double x = b * b / (2 * kR), y = std::sqrt(b * b - x * x);
    const double shaft = std::atan2(y, x - kR), groove = std::atan2(y, x);
    const CPoint far{2 * kR, 0};
    const double half = std::tan(shaft / 4);
    const CSectionSolver bar(
        CLoops{Polygon({{x, -y, half}, {far.x, far.y, half}, {x, y, -std::tan(groove / 2)}})});
    const double tau = std::fabs(GreatestStress(bar.Stresses({.T = 1e6})).m_pTau->tau);
    const double exact = 1e6 / bar.Properties().It * (2 * kR - b);
    EXPECT_NEAR(tau, exact, 3e-3 * exact);
  }
}

// Rounding shows in the estimate, and a figure that it has spoilt is none.
TEST(SectionSolver, TellsRoundingInSlenderSections) {
  for (const double t : {1e-5, 1e-6, 1e-7}) {
    SCOPED_TRACE(t);
    const double d = 1e5;
    const CExactProperties p = ExactProperties(CLoops{RectPath(0, 0, d, d * t)});
    if (std::isnan(p.It)) continue;
    const double exact = d * std::pow(d * t, 3) / 3;
    EXPECT_NEAR(p.It, exact, (p.m_bAccurate ? 1e-3 : 0.1) * exact);
    EXPECT_TRUE(p.m_bAccurate || t < 1e-6);
  }
}

// Of a round bar the shear is half as great again in its middle as on average, by which it exceeds
// that on its boundary by half.
TEST(SectionSolver, GivesStressesInsideUnderShear) {
  const CSectionSolver bar(CLoops{CirclePath({20, 20}, 20)});
  EXPECT_TRUE(bar.StressesInside({.N = 1e3, .Mx = 1e6, .T = 1e6}).empty());
  const auto within = bar.StressesInside({.Vy = 12e3});
  const CGreatestStress inside = GreatestStress(within);
  const auto boundary = bar.Stresses({.Vy = 12e3});
  const double mean = 12e3 / (kPi * 400);
  EXPECT_NEAR(inside.m_pTau->tau, 1.5 * mean, 5e-3 * mean);
  EXPECT_NEAR(std::hypot(inside.m_pTau->m_point.x - 20, inside.m_pTau->m_point.y - 20), 0, 2);
  EXPECT_NEAR(std::fabs(GreatestStress(boundary).m_pTau->tau), mean, 5e-3 * mean);
}

}  // namespace
}  // namespace orv3
