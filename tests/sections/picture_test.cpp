// The outline of every style, and the picture that is drawn of it.
#include "sections/outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "framework/number_text.h"
#include "outlines/outline_moments.h"
#include "picture_check.h"
#include "sections/section_picture.h"
#include "sections/section_style.h"
#include "sections/style_cases.h"
#include "svg_check.h"

namespace {

using namespace orv3;
using CSizes = CStyleSizes;

TEST(Outline, HasTheAreaAndCentroidOfThePlates) {
  for (const CStyleCase& c : kStyleCases) {
    const COutline outline = SectionOutline(c.style, c.sizes);
    const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
    const CBox box = PathBounds(outline.m_arrLoop);
    const std::pair<double, double> figures[] = {
        {m.m_dArea, c.area},         {m.m_dArea * m.m_centroid.x, c.Sy},
        {box.left + 1, 1},           {m.m_dArea * m.m_centroid.y, c.Sx},
        {box.bottom + 1, 1},         {box.right, outline.m_dWidth},
        {box.top, outline.m_dHeight}};
    for (const auto& [told, expected] : figures)
      EXPECT_NEAR(told, expected, 1e-9 * expected) << c.style;
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
      {"no such style", kSectionStyles, {100, 100, 10, 10}, 0, 0},
      {"negative style", -1, {100, 100, 10, 10}, 0, 0},
  };
  for (const auto& c : cases) {
    const COutline outline = SectionOutline(c.style, c.sizes);
    EXPECT_EQ(outline.m_arrLoop.size(), c.loops) << c.what;
    EXPECT_NEAR(RowOutlineMoments(outline.m_arrLoop).m_dArea, c.area, 1e-9 * c.area) << c.what;
  }
}

// --- The picture ---------------------------------------------------------------------------------

CSectionPicture Picture(int style, const CSizes& sizes, CPoint base) {
  const CPoint centroid = RowOutlineMoments(SectionOutline(style, sizes).m_arrLoop).m_centroid;
  return {style, sizes, base, centroid, L"截面", L"A<1> & \"B\""};
}

TEST(SectionPicture, ShowsEverySizeWithItsSignAndValue) {
  for (const CStyleCase& c : kStyleCases) {
    const std::string svg = SectionPictureSvg(Picture(c.style, c.sizes, {0, 0}));
    CheckSvg(svg);
    for (std::size_t i = 0; i < FindSectionStyle(c.style)->Sizes().size(); ++i) {
      const std::string sign = ToUtf8(FindSectionStyle(c.style)->Sizes()[i].m_szSign);
      const std::string text =
          ">" + sign.substr(0, sign.find('(')) + " = " + ToUtf8(FormatG(c.sizes[i])) + "<";
      EXPECT_NE(svg.find(text), std::string::npos) << c.style << " " << text;
    }
    for (const char* letter : {">X<", ">Y<", ">X0<", ">Y0<"})
      EXPECT_NE(svg.find(letter), std::string::npos) << c.style << " " << letter;
  }
}

TEST(SectionPicture, NeverLetsTextsCollide) {
  std::mt19937 random(1);
  int drawn = 0;
  for (const CStyleCase& c : kStyleCases) {
    const COutline outline = SectionOutline(c.style, c.sizes);
    for (const CPoint at : {CPoint{0, 0}, {0.5, 0.5}, {1, 1}, {-0.3, 0.4}, {0.5, 1.2}, {9, 9}}) {
      const CPoint base{at.x * outline.m_dWidth, at.y * outline.m_dHeight};
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
