#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include "framework/number_text.h"
#include "picture_check.h"
#include "sections/outline.h"
#include "sections/section_picture.h"
#include "svg_check.h"

namespace {

using namespace orv3;
using CSizes = std::array<double, kSectionSizes>;

struct CIntegral {
  double area = 0;
  double x = 0;  // first moments, later the centroid
  double y = 0;
};

// Green's theorem over the straight edges, and the circle segment beside each arc.
CIntegral Integrate(const std::vector<CPath>& loops) {
  CIntegral sum;
  for (const CPath& loop : loops) {
    const auto& v = loop.m_arrVertex;
    for (std::size_t i = 0; i < v.size(); ++i) {
      const CVertex& a = v[i];
      const CVertex& b = v[(i + 1) % v.size()];
      const double cross = a.x * b.y - b.x * a.y;
      sum.area += cross / 2;
      sum.x += cross * (a.x + b.x) / 6;
      sum.y += cross * (a.y + b.y) / 6;
      if (a.bulge == 0) continue;
      // Only half circles occur: area and centroid of a half disc.
      EXPECT_EQ(std::fabs(a.bulge), 1);
      const double r = std::hypot(b.x - a.x, b.y - a.y) / 2;
      const double disc = a.bulge * std::acos(-1.0) * r * r / 2;
      const double shift = a.bulge * 4 * r / (3 * std::acos(-1.0)) / (2 * r);
      sum.area += disc;
      sum.x += disc * ((a.x + b.x) / 2 + shift * (b.y - a.y));
      sum.y += disc * ((a.y + b.y) / 2 - shift * (b.x - a.x));
    }
  }
  sum.x /= sum.area;
  sum.y /= sum.area;
  return sum;
}

// Area and centroid worked out by hand from the plates.
const struct CStyleCase {
  int style;
  CSizes sizes;
  double width, height, area, x, y;
} kStyles[] = {
    {0, {300, 400, 20, 10}, 300, 400, 15600, 150, 200},
    {1, {300, 400, 12}, 300, 400, 16224, 150, 200},
    {2, {500, 600, 200, 250, 12, 20}, 500, 600, 30096, 250, 300},
    {3, {200, 400}, 200, 400, 80000, 100, 200},
    {4, {100}, 173.205080757, 200, 25980.7621135, 86.6025403784, 100},
    {5, {300, 400}, 300, 400, 60000, 150, 400.0 / 3},
    {6, {150}, 300, 300, 70685.8347058, 150, 150},
    {7, {150, 140}, 300, 300, 9110.61869541, 150, 150},
    {8,
     {10, 250, 16, 90, 100},
     200,
     250,
     5540,
     (3200 * 100.0 + 2340 * 95) / 5540,
     (3200 * 242.0 + 2340 * 117) / 5540},
    {9,
     {10, 400, 20, 16, 80, 120, 145, 145},
     300,
     400,
     13000,
     2017200 / 13000.0,
     2112400 / 13000.0},
    {9,
     {10, 400, 20, 16, 145, 20, 80, 145},
     300,
     400,
     175 * 16 + 3640 + 235 * 20,
     (2800 * 87.5 + 3640 * 150.0 + 4700 * 182.5) / 11140,
     (2800 * 392.0 + 3640 * 202 + 4700 * 10) / 11140},
    {10, {10, 200, 12, 110}, 120, 200, 3320, 95800 / 3320.0, 207920 / 3320.0},
    {11, {8, 200, 10, 10, 70, 80}, 158, 200, 3100, 237300 / 3100.0, 300500 / 3100.0},
    {12, {10, 320, 14, 14, 90, 80}, 100, 320, 5580, 141300 / 5580.0, 871380 / 5580.0},
    {13, {40, 400, 160, 200, 150, 170}, 360, 400, 28800, 175, 5504000 / 28800.0},
    {14, {300, 400, 12, 20, 10, 14}, 300, 400, 18432, 2967936 / 18432.0, 3280128 / 18432.0},
};

TEST(Outline, HasTheAreaAndCentroidOfThePlates) {
  for (const CStyleCase& c : kStyles) {
    const COutline outline = SectionOutline(c.style, c.sizes);
    const CIntegral sum = Integrate(outline.m_arrLoop);
    EXPECT_NEAR(sum.area, c.area, 1e-9 * c.area) << c.style;
    EXPECT_NEAR(sum.x, c.x, 1e-9 * c.width) << c.style;
    EXPECT_NEAR(sum.y, c.y, 1e-9 * c.height) << c.style;
    const CBox box = PathBounds(outline.m_arrLoop);
    EXPECT_NEAR(box.left, 0, 1e-9) << c.style;
    EXPECT_NEAR(box.bottom, 0, 1e-9) << c.style;
    EXPECT_NEAR(box.right, c.width, 1e-9 * c.width) << c.style;
    EXPECT_NEAR(box.top, c.height, 1e-9 * c.height) << c.style;
    EXPECT_NEAR(outline.m_dWidth, c.width, 1e-9 * c.width) << c.style;
    EXPECT_NEAR(outline.m_dHeight, c.height, 1e-9 * c.height) << c.style;
  }
}

TEST(Outline, TakesOddButLegalSizes) {
  const struct {
    const char* what;
    int style;
    CSizes sizes;
    std::size_t loops;
    double area;
  } cases[] = {
      {"T without flange", 8, {10, 250, 16, 0, 0}, 1, 2500},
      {"T with a flange of no thickness", 8, {10, 250, 0, 50, 50}, 1, 2500},
      {"H without bottom flange", 9, {10, 400, 0, 16, 50, 50, 70, 70}, 1, 110 * 16 + 384 * 10},
      {"H without web", 9, {0, 400, 20, 16, 50, 50, 60, 60}, 2, 1600 + 2400},
      {"H of two flanges that touch", 9, {10, 36, 20, 16, 50, 50, 60, 60}, 1, 110 * 16 + 130 * 20},
      {"flange narrower than the web",
       9,
       {50, 400, 20, 16, -10, -10, 10, 10},
       1,
       30 * 16 + 364 * 50 + 70 * 20},
      {"cross with one arm", 13, {40, 100, 0, 60, 0, 50}, 1, 40 * 60 + 90 * 40},
      {"box filled by its plates", 1, {20, 100, 10}, 1, 2000},
      {"box without side plates", 14, {100, 50, 5, 6, 0, 0}, 2, 1100},
      {"tube without hole", 7, {10, 0}, 1, 100 * std::acos(-1.0)},
      {"flanged cross without flanges", 2, {100, 100, 0, 0, 10, 5}, 1, 90 * 10 + 80 * 10},
      {"flanged cross without webs", 2, {100, 100, 50, 40, 0, 5}, 4, 900},
      {"H lower than its flanges", 0, {300, 30, 20, 10}, 0, 0},
      {"negative web", 12, {-10, 320, 14, 14, 90, 80}, 0, 0},
      {"hole as large as the tube", 7, {150, 150}, 0, 0},
      {"box of no thickness", 1, {100, 100, 0}, 0, 0},
      {"no height", 3, {100, 0}, 0, 0},
      {"no number", 3, {std::nan(""), 100}, 0, 0},
      {"infinite", 6, {std::numeric_limits<double>::infinity()}, 0, 0},
      {"no such style", 15, {100, 100, 10, 10}, 0, 0},
      {"negative style", -1, {100, 100, 10, 10}, 0, 0},
  };
  for (const auto& c : cases) {
    const COutline outline = SectionOutline(c.style, c.sizes);
    EXPECT_EQ(outline.m_arrLoop.size(), c.loops) << c.what;
    const double area = c.loops ? Integrate(outline.m_arrLoop).area : 0;
    EXPECT_NEAR(area, c.area, 1e-9 * c.area) << c.what;
  }
}

// --- The picture
// ----------------------------------------------------------------------------------

CSectionPicture Picture(int style, const CSizes& sizes, CPoint base) {
  const COutline outline = SectionOutline(style, sizes);
  const CIntegral sum = Integrate(outline.m_arrLoop);
  return {style, sizes, base, {sum.x, sum.y}, L"截面", L"A<1> & \"B\""};
}

TEST(SectionPicture, ShowsEverySizeWithItsSignAndValue) {
  const char* signs[kSectionStyles] = {"b h tf tw",
                                       "b h t",
                                       "b h bf1 bf2 tw tf",
                                       "b h",
                                       "a",
                                       "b h",
                                       "R",
                                       "R r",
                                       "b h bh bf1 bf2",
                                       "b h bh1 bh2 bf1 bf2 bf3 bf4",
                                       "b h bh bf",
                                       "b h bh1 bh2 bf1 bf2",
                                       "b h bh1 bh2 bf1 bf2",
                                       "b h bh1 bh2 bf1 bf2",
                                       "b h t1 t2 t3 t4"};
  for (const CStyleCase& c : kStyles) {
    const std::string svg = SectionPictureSvg(Picture(c.style, c.sizes, {0, 0}));
    CheckSvg(svg);
    std::size_t i = 0;
    std::istringstream words(signs[c.style]);
    for (std::string sign; words >> sign; ++i) {
      std::string text = ">";
      text += sign;
      text += " = ";
      text += ToUtf8(FormatG(c.sizes[i]));
      text += "<";
      EXPECT_NE(svg.find(text), std::string::npos) << c.style << " " << text;
    }
    for (const char* letter : {">X<", ">Y<", ">X0<", ">Y0<"})
      EXPECT_NE(svg.find(letter), std::string::npos) << c.style << " " << letter;
  }
}

TEST(SectionPicture, NeverLetsTextsCollide) {
  std::mt19937 random(1);
  int drawn = 0;
  for (const CStyleCase& c : kStyles) {
    for (const CPoint at : {CPoint{0, 0}, {0.5, 0.5}, {1, 1}, {-0.3, 0.4}, {0.5, 1.2}, {9, 9}}) {
      const CPoint base{at.x * c.width, at.y * c.height};
      CheckLegible(SectionPictureDrawing(Picture(c.style, c.sizes, base)), std::to_string(c.style));
    }
    // Each size up to 30 times larger or smaller; what bounds no section is listed instead.
    for (int i = 0; i < 60; ++i) {
      CSizes sizes = c.sizes;
      std::string what = std::to_string(c.style);
      for (double& size : sizes) {
        size *= std::exp(std::uniform_real_distribution(-3.4, 3.4)(random));
        what += ' ';
        what += std::to_string(size);
      }
      drawn += !SectionOutline(c.style, sizes).m_arrLoop.empty();
      CheckLegible(SectionPictureDrawing(Picture(c.style, sizes, {0, 0})), what);
    }
  }
  EXPECT_GT(drawn, 500);
  const CSizes thin[] = {{2000, 2000, 2, 2}, {20, 600, 4, 2}, {600, 20, 4, 2}};
  for (const CSizes& sizes : thin)
    CheckLegible(SectionPictureDrawing(Picture(0, sizes, {0, 0})), "thin plates");
}

TEST(SectionPicture, StaysWholeForDegenerateSizes) {
  const double odd[] = {
      0, -5, 1e-300, 1e299, 1e308, std::nan(""), -std::numeric_limits<double>::infinity()};
  for (int style = -1; style <= kSectionStyles; ++style) {
    for (const double value : odd) {
      for (std::size_t i = 0; i < kSectionSizes; ++i) {
        CSizes sizes{100, 200, 10, 10, 10, 10, 10, 10};
        sizes[i] = value;
        CheckSvg(SectionPictureSvg({style, sizes, {value, 0}, {50, value}, L"截面", L""}));
      }
    }
  }
}

}  // namespace
