// Properties of every style, against an integration of the outline that is drawn of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

#include "sections/outline_integral.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "sections/style_cases.h"

namespace {

using Sizes = std::vector<double>;
constexpr double kNoFibre = 1e100;

CSteelJMData Record(int style, const Sizes& sizes, double x = 0, double y = 0) {
  CArray<double, double> array;
  for (const double size : sizes) array.Add(size);
  CSteelJMData jm;
  jm.SetSectSize(style, array);
  jm.m_dX = x;
  jm.m_dY = y;
  return jm;
}

CSteelJMData Calculated(int style, const Sizes& sizes, double x = 0, double y = 0) {
  CSteelJMData jm = Record(style, sizes, x, y);
  CSteelJMData::CalSectCharacterStyle(jm);
  return jm;
}

void ExpectNear(double expected, double actual, double tolerance, const char* what) {
  EXPECT_LE(std::fabs(expected - actual), tolerance * std::max(1.0, std::fabs(expected)))
      << what << ": expected " << expected << ", got " << actual;
}

// A style's section as polygons, the circles of very many corners.
struct CShape {
  explicit CShape(const CStyleCase& c) : style(c.style) {
    const orv3::COutline drawn = orv3::SectionOutline(c.style, c.sizes);
    outline = Polygons(drawn, 0, 5000);
    W = drawn.m_dWidth;
    H = drawn.m_dHeight;
    tolerance = style == 6 || style == 7 ? 5e-8 : 1e-10;
  }

  int style;
  CPolygons outline;
  double W, H;  // bounding box
  double tolerance;
};

// Centroid, inertia, radii and moduli. `factor` scales the centroidal inertia that is expected.
void CheckInertia(const CShape& s, const CSteelJMData& jm, double factor) {
  const CIntegrals i = Central(s.outline);
  const double xo = i.x, yo = i.y, Ixo = factor * i.yy, Iyo = factor * i.xx;
  const double Ix = Ixo + i.A * (yo - jm.m_dY) * (yo - jm.m_dY);
  const double Iy = Iyo + i.A * (xo - jm.m_dX) * (xo - jm.m_dX);
  const auto modulus = [](double I, double fibre) {
    return fibre == 0 ? kNoFibre : I / std::fabs(fibre);
  };
  const struct {
    const char* what;
    double expected, actual;
  } checks[] = {
      {"xo", xo, jm.m_dXo},
      {"yo", yo, jm.m_dYo},
      {"A", i.A, jm.m_dA},
      {"Ixo", Ixo, jm.m_dIxo},
      {"Iyo", Iyo, jm.m_dIyo},
      {"Ix", Ix, jm.m_dIx},
      {"Iy", Iy, jm.m_dIy},
      {"ixo", std::sqrt(Ixo / i.A), jm.m_dixo},
      {"iyo", std::sqrt(Iyo / i.A), jm.m_diyo},
      {"ix", std::sqrt(Ix / i.A), jm.m_dix},
      {"iy", std::sqrt(Iy / i.A), jm.m_diy},
      {"Wxo1", modulus(Ixo, s.H - yo), jm.m_dWxo1},
      {"Wxo2", modulus(Ixo, yo), jm.m_dWxo2},
      {"WyoL", modulus(Iyo, xo), jm.m_dWyoL},
      {"WyoR", modulus(Iyo, s.W - xo), jm.m_dWyoR},
      {"Wx1", modulus(Ix, s.H - jm.m_dY), jm.m_dWx1},
      {"Wx2", modulus(Ix, jm.m_dY), jm.m_dWx2},
      {"WyL", modulus(Iy, jm.m_dX), jm.m_dWyL},
      {"WyR", modulus(Iy, s.W - jm.m_dX), jm.m_dWyR},
  };
  for (const auto& c : checks) ExpectNear(c.expected, c.actual, s.tolerance, c.what);
}

void CheckFirstMoments(const CShape& s, const CSteelJMData& jm) {
  const bool any = s.style != 2 && s.style != 4 && s.style != 5;
  const bool base = any && s.style != 6 && s.style != 7;
  const bool inY = base && jm.m_dY >= 0 && jm.m_dY <= s.H;
  const bool inX = base && jm.m_dX >= 0 && jm.m_dX <= s.W;
  const CIntegrals i = Central(s.outline);
  const struct {
    const char* what;
    double expected, actual;
  } checks[] = {
      {"Sxo", any ? MomentX(s.outline, i.y, 1) : 0, jm.m_dSxo},
      {"Syo", any ? MomentY(s.outline, i.x, 1) : 0, jm.m_dSyo},
      {"Sx1", inY ? MomentX(s.outline, jm.m_dY, 1) : 0, jm.m_dSx1},
      {"Sx2", inY ? MomentX(s.outline, jm.m_dY, -1) : 0, jm.m_dSx2},
      {"SyL, the part to the right", inX ? MomentY(s.outline, jm.m_dX, 1) : 0, jm.m_dSyL},
      {"SyR, the part to the left", inX ? MomentY(s.outline, jm.m_dX, -1) : 0, jm.m_dSyR},
  };
  for (const auto& c : checks) ExpectNear(c.expected, c.actual, s.tolerance, c.what);
}

TEST(SectionCalc, AgreesWithTheIntegratedOutline) {
  std::set<int> styles;
  for (const CStyleCase& c : kStyleCases) {
    const CShape s(c);
    const double W = s.W, H = s.H;
    const CPoint bases[] = {{0, 0},         {0.3 * W, 0.65 * H}, {0.85 * W, 0.1 * H},
                            {W, H},         {0, 0.5 * H},        {-0.25 * W, 1.5 * H},
                            {0.5 * W, -40}, {2 * W, 0.5 * H}};
    for (const CPoint& base : bases) {
      SCOPED_TRACE(testing::Message()
                   << "style " << c.style << ", base " << base.x << ", " << base.y);
      const CSteelJMData jm = Calculated(c.style, {c.sizes.begin(), c.sizes.end()}, base.x, base.y);
      // The hexagon's inertia is the customary 0.541 a^4 instead of 5 sqrt(3) a^4 / 16.
      CheckInertia(s, jm, s.style == 4 ? 0.541 / (5 * std::sqrt(3.0) / 16) : 1);
      CheckFirstMoments(s, jm);
    }
    styles.insert(c.style);
  }
  EXPECT_EQ(styles.size(), orv3::SectionStyles().size());
}

// Sizes in tenths of a millimetre: width and height are sums that miss the decimals of a base point
// by rounding.
TEST(SectionCalc, ABasePointOnTheFarEdgesOfDecimalSizes) {
  unsigned state = 1;
  const auto tenths = [&state](int least, int most) {
    state = state * 1664525U + 1013904223U;
    return least + static_cast<int>(state >> 8) % (most - least);
  };
  for (int round = 0; round < 5000; ++round) {
    const int h = tenths(1000, 9000), t = tenths(30, 400), left = tenths(0, 2000);
    const int right = tenths(0, 2000), left2 = tenths(0, 2000), right2 = tenths(0, 2000);
    const int web = tenths(30, 300);
    const int W = std::max(left, left2) + web + std::max(right, right2);
    const Sizes sizes = {web / 10.0,  h / 10.0,     t / 10.0,     t / 10.0,
                         left / 10.0, right / 10.0, left2 / 10.0, right2 / 10.0};
    const CSteelJMData jm = Calculated(9, sizes, W / 10.0, h / 10.0);
    ASSERT_EQ(kNoFibre, jm.m_dWx1) << W << " " << h;
    ASSERT_EQ(kNoFibre, jm.m_dWyR) << W << " " << h;
    ASSERT_EQ(0, jm.m_dSx1);
    ASSERT_EQ(0, jm.m_dSyL) << "nothing lies to the right";
    ASSERT_NEAR(jm.m_dA * (W / 10.0 - jm.m_dXo), jm.m_dSyR, 1e-11 * jm.m_dA * W);
  }
  // Whoever means a point beside the edge gets it.
  EXPECT_LT(Calculated(3, {200, 400}, 0, 400 + 1e-9).m_dWx1, kNoFibre);
}

TEST(SectionCalc, SlotsBehindTheOwnSizesKeepTheModelsSizes) {
  const double z = -777;  // marks slots that nobody may touch
  const struct {
    int style;
    Sizes before, after;
  } cases[] = {
      {0, {300, 400, 20, 10, z, z, z, z}, {300, 400, 20, 10, 145, 145, 145, 145}},
      {1, {300, 400, 16, z, z, z, z, z}, {300, 400, 16, 16, 16, 16, z, z}},
      {2, {400, 500, 150, 180, 12, 16, z, z}, {400, 500, 150, 180, 12, 16, z, z}},
      {3, {200, 400, z, z, z, z, z, z}, {200, 400, z, z, z, z, z, z}},
      {8, {12, 300, 18, 60, 110, z, z, z}, {12, 300, 18, 60, 110, 110, 0, 0}},
      {9, {14, 600, 25, 20, 80, 140, 120, 90}, {14, 600, 25, 20, 80, 140, 120, 90}},
      {10, {16, 200, 20, 144, z, z, z, z}, {16, 200, 20, 144, 0, 0, 0, 144}},
      {11, {10, 250, 14, 18, 70, 90, z, z}, {10, 250, 14, 18, 70, 90, 0, 90}},
      {12, {9, 320, 16, 12, 110, 80, z, z}, {9, 320, 16, 12, 110, 80, 0, 110}},
      {13, {30, 400, 150, 210, 90, 120, z, z}, {30, 400, 150, 210, 90, 120, -90, -120}},
      {14, {300, 400, 30, 20, 12, 16, z, z}, {300, 400, 30, 20, 12, 16, z, z}},
  };
  for (const auto& c : cases) {
    const CSteelJMData jm = Calculated(c.style, c.before);
    EXPECT_EQ(c.style, jm.m_nStyle);
    EXPECT_EQ(c.after, Sizes(std::begin(jm.m_dSize), std::end(jm.m_dSize))) << "style " << c.style;
  }
}

using CWorker = void (*)(CSteelJMData&);
struct CNumbering {
  CWorker worker;
  int style;
};
constexpr CNumbering kNumbering[] = {
    {CSteelJMData::CalSectCharacterStyle1, 3},   {CSteelJMData::CalSectCharacterStyle2, 14},
    {CSteelJMData::CalSectCharacterStyle3, 4},   {CSteelJMData::CalSectCharacterStyle4, 5},
    {CSteelJMData::CalSectCharacterStyle5, 6},   {CSteelJMData::CalSectCharacterStyle6, 7},
    {CSteelJMData::CalSectCharacterStyle7, 8},   {CSteelJMData::CalSectCharacterStyle8, 9},
    {CSteelJMData::CalSectCharacterStyle9, 10},  {CSteelJMData::CalSectCharacterStyle10, 11},
    {CSteelJMData::CalSectCharacterStyle11, 12}, {CSteelJMData::CalSectCharacterStyle12, 13},
    {CSteelJMData::CalSectCharacterStyle13, 2},  {CSteelJMData::CalSectCharacterStyle14, 0},
    {CSteelJMData::CalSectCharacterStyle15, 1},
};

TEST(SectionCalc, WorkersServeTheirOwnStyleOnly) {
  const Sizes sizes = {60, 80, 6, 7, 8, 9, 10, 11};
  for (const CNumbering& n : kNumbering) {
    for (int style = -1; style <= 15; ++style) {
      CSteelJMData jm = Record(style, sizes);
      jm.m_dA = -1;
      n.worker(jm);
      if (style == n.style) {
        EXPECT_EQ(Calculated(style, sizes).m_dA, jm.m_dA) << "style " << style;
        continue;
      }
      EXPECT_EQ(-1, jm.m_dA) << "worker of " << n.style << " took style " << style;
      EXPECT_EQ(sizes, Sizes(std::begin(jm.m_dSize), std::end(jm.m_dSize)));
    }
  }
}

TEST(SectionCalc, AnEntryStartsFromZeroAWorkerDoesNot) {
  for (const int style : {-1, 15, 99}) {
    CSteelJMData jm = Record(style, {100, 200}, 3, 4);
    jm.m_dA = jm.m_dSx1 = jm.m_diy = 5;
    CSteelJMData::CalSectCharacterStyle(jm);
    for (const auto& p : orv3::SectionProperties().subspan(2)) EXPECT_EQ(0, jm.*p.m_pField);
    EXPECT_EQ(3, jm.m_dX);
    EXPECT_EQ(100, jm.m_dSize[0]);
  }
  CSteelJMData outside = Record(3, {100, 200}, -1, -1);
  outside.m_dSx1 = outside.m_dSyR = 5;
  CSteelJMData::CalSectCharacterStyle1(outside);
  EXPECT_EQ(5, outside.m_dSx1);
  EXPECT_EQ(5, outside.m_dSyR);
  CSteelJMData::CalSectCharacterStyle(outside);
  EXPECT_EQ(0, outside.m_dSx1);
  EXPECT_EQ(0, outside.m_dSyR);
}

TEST(SectionCalc, NoAreaAndImpossibleSizes) {
  CSteelJMData none = Calculated(3, {0, 0}, 3, -4);
  EXPECT_EQ(0, none.m_dixo);
  EXPECT_EQ(4, none.m_dix);
  EXPECT_EQ(3, none.m_diy);
  EXPECT_EQ(kNoFibre, none.m_dWxo1);

  const CSteelJMData solid = Calculated(14, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(0, solid.m_dXo);

  // The inner radius is beyond the outer one: area and inertia are negative; their ratio is not.
  const CSteelJMData inside = Calculated(7, {90, 100});
  EXPECT_LT(inside.m_dA, 0);
  EXPECT_GT(inside.m_dixo, 0);
  // A negative radicand is not hidden.
  CSteelJMData odd = Record(3, {1, 1});
  odd.m_dA = -1;
  odd.m_dIxo = 1;
  CSteelJMData::CalSectMomByI0(odd, 1, 1);
  EXPECT_TRUE(std::isnan(odd.m_dixo));
}

TEST(SectionCalc, RectangleHelpers) {
  const struct {
    const char* label;
    double b, h, y0, yc;
    double above, below;
  } cases[] = {
      {"axis through the middle", 10, 20, 5, 15, 500, 500},
      {"axis above", 10, 20, 5, 30, 0, 3000},
      {"axis on the lower edge", 10, 20, 5, 5, 2000, 0},
      {"negative height counts upwards", 10, -20, 5, 15, 500, 500},
      {"negative width", -10, 20, 5, 0, 3000, 0},
  };
  for (const auto& c : cases) {
    EXPECT_DOUBLE_EQ(c.above, CSteelJMData::CalRectMomS(c.b, c.h, c.y0, c.yc, 1)) << c.label;
    EXPECT_DOUBLE_EQ(c.below, CSteelJMData::CalRectMomS(c.b, c.h, c.y0, c.yc, 0)) << c.label;
  }
  EXPECT_DOUBLE_EQ(10 * 20 * 9 + 10 * 8000 / 12.0, CSteelJMData::CalRectGxj(10, 20, 3));

  double x = 0, y = 0;
  CSteelJMData::CalRectBarycenterAdd(1, 0, 10, 3, 8, 2, x, y);
  EXPECT_DOUBLE_EQ(6, x);
  EXPECT_DOUBLE_EQ(4, y);
  CSteelJMData::CalRectBarycenterAdd(2, 7, 9, -2, 8, 2, x, y);
  EXPECT_EQ(7, x);
  EXPECT_EQ(9, y);
}

}  // namespace
