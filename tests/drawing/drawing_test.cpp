#include "drawing/drawing.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "framework/exception.h"
#include "svg_check.h"

namespace {

using namespace orv3;
constexpr double kPi = std::numbers::pi;

double Area(const CPath& path) {
  const std::vector<CPoint> points = Flattened(path, 1e-4);
  double twice = 0;
  for (std::size_t i = 1; i < points.size(); ++i)
    twice += points[i - 1].x * points[i].y - points[i].x * points[i - 1].y;
  return twice / 2;
}

TEST(Path, ArcsHaveTheirTrueExtentAndArea) {
  const CCorner square[] = {{0, 0, 10}, {100, 0, 10}, {100, 60, 10}, {0, 60, 10}};
  const CCorner notch[] = {{0, 0}, {40, 0}, {40, 10}, {10, 10, 5}, {10, 40}, {0, 40}};
  const CCorner tight[] = {{0, 0, 50}, {20, 0, 50}, {20, 20, 50}, {0, 20, 50}};
  const struct {
    const char* what;
    CPath path;
    CBox box;
    double area;
  } cases[] = {
      {"circle", CirclePath({5, 7}, 10), {-5, -3, 15, 17}, 100 * kPi},
      {"half circle below its chord", {{{0, 0, 1}, {10, 0, 0}}, true}, {0, -5, 10, 0}, 12.5 * kPi},
      {"three quarters",
       {{{1, 0, std::tan(3 * kPi / 8)}, {0, -1, 0}, {0, 0, 0}}, true},
       {-1, -1, 1, 1},
       0.75 * kPi},
      {"rounded outer corners", RoundedPath(square), {0, 0, 100, 60}, 6000 - (4 - kPi) * 100},
      {"fillet in an inner corner", RoundedPath(notch), {0, 0, 40, 40}, 700 + (1 - kPi / 4) * 25},
      {"radius cut to half an edge", RoundedPath(tight), {0, 0, 20, 20}, 100 * kPi},
      {"mirror image", MirroredX(RoundedPath(notch)), {-40, 0, 0, 40}, 700 + (1 - kPi / 4) * 25},
      {"mirror image upside down",
       MirroredY(RoundedPath(notch)),
       {0, -40, 40, 0},
       700 + (1 - kPi / 4) * 25},
      {"quarter turn", Turned(RoundedPath(notch), 90), {-40, 0, 0, 40}, 700 + (1 - kPi / 4) * 25},
      {"hole", Reversed(CirclePath({0, 0}, 2)), {-2, -2, 2, 2}, -4 * kPi},
  };
  for (const auto& c : cases) {
    const CBox box = PathBounds({&c.path, 1});
    EXPECT_NEAR(box.left, c.box.left, 1e-9) << c.what;
    EXPECT_NEAR(box.bottom, c.box.bottom, 1e-9) << c.what;
    EXPECT_NEAR(box.right, c.box.right, 1e-9) << c.what;
    EXPECT_NEAR(box.top, c.box.top, 1e-9) << c.what;
    EXPECT_NEAR(Area(c.path), c.area, 2e-3 * std::fabs(c.area)) << c.what;
  }
}

TEST(Svg, IsWholeWhateverTheTextsAndNumbers) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  CDrawing drawing(100, 80);
  drawing.AddLabel({CLayer::Text, {10, 10}, L"<b> & \"腹板\" \x01\xFFFE", 12, CAnchor::Left, true});
  drawing.AddLabel({CLayer::Text, {nan, 10}, L"lost", 12, CAnchor::Left, false});
  drawing.AddLine(CLayer::Outline, {nan, 0}, {1, 1});
  drawing.AddCircle(CLayer::Outline, {0, 0}, infinity);
  drawing.AddArrow(CLayer::Dimension, {5, 5}, {5, 5});
  const std::string svg = DrawingSvg(drawing, L"a < b");
  CheckSvg(svg);
  EXPECT_NE(svg.find("&lt;b&gt; &amp; &quot;腹板&quot;"), std::string::npos);
  EXPECT_EQ(svg.find("lost"), std::string::npos);
}

// The page's y runs upwards, SVG's downwards: a counter-clockwise arc has the sweep flag 0.
TEST(Svg, TurnsThePageOver) {
  CDrawing drawing(100, 80);
  drawing.AddPath(CLayer::Outline, {{{10, 20, std::tan(kPi / 8)}, {40, 50, 0}}, false});
  drawing.AddPath(CLayer::Outline, {{{10, 20, -std::tan(3 * kPi / 8)}, {40, 50, 0}}, false});
  const std::string svg = DrawingSvg(drawing);
  EXPECT_NE(svg.find("M10 60A30 30 0 0 0 40 30"), std::string::npos) << svg;
  EXPECT_NE(svg.find("M10 60A30 30 0 1 1 40 30"), std::string::npos) << svg;
}

TEST(Raster, CoversTheShareOfAPixelThatAnAreaCovers) {
  CDrawing drawing(20, 10);
  const std::uint32_t fill = LayerPen(CLayer::Section).m_nFillColor;
  drawing.AddArea(CLayer::Section,
                  {RectPath(2, 1, 8.5, 6), Reversed(RectPath(4, 3, 2, 2)), RectPath(2, 1, 1, 1)});
  const CBitmap bitmap = DrawingBitmap(drawing);
  ASSERT_EQ(bitmap.GetWidth(), 20);
  ASSERT_EQ(bitmap.GetHeight(), 10);
  EXPECT_EQ(bitmap.GetPixel(2, 8), fill) << "bottom row, wound round twice";
  EXPECT_EQ(bitmap.GetPixel(9, 3), fill) << "top row";
  EXPECT_EQ(bitmap.GetPixel(9, 2), 0xFFFFFFu) << "above";
  EXPECT_EQ(bitmap.GetPixel(2, 9), 0xFFFFFFu) << "below";
  EXPECT_EQ(bitmap.GetPixel(4, 5), 0xFFFFFFu) << "hole";
  const double half = (0xFF + (fill >> 16)) / 2.0;
  EXPECT_NEAR(bitmap.GetPixel(10, 5) >> 16, half, 1.0) << "half a pixel";
  EXPECT_EQ(DrawingBitmap(drawing, 2.5).GetWidth(), 50);
}

TEST(Raster, DrawsDashesAndLetters) {
  CDrawing drawing(60, 20);
  drawing.AddLine(CLayer::BaseAxis, {0, 15.5}, {60, 15.5});
  const CBitmap dashes = DrawingBitmap(drawing);
  int changes = 0;
  for (int x = 1; x < 60; ++x)
    changes += (dashes.GetPixel(x, 4) < 0x808080) != (dashes.GetPixel(x - 1, 4) < 0x808080);
  EXPECT_GE(changes, 8);

  // Every sign of a size has letters of its own, and no two look the same.
  std::vector<std::vector<std::uint8_t>> seen;
  for (const wchar_t ch : std::wstring_view(L"abdefhkmnortwxyzθδABCHRXY0123456789=-.?")) {
    CDrawing letter(20, 20);
    letter.AddLabel({CLayer::Text, {10, 10}, CString(ch), 16, CAnchor::Middle, false});
    const auto picture = DrawingBitmap(letter).ToBmp();
    for (const auto& other : seen) EXPECT_NE(picture, other) << static_cast<int>(ch);
    seen.push_back(picture);
  }
}

TEST(Raster, RefusesAPageThatIsNoBitmap) {
  EXPECT_THROW(DrawingBitmap(CDrawing(0, 10)), CInvalidArgException);
  EXPECT_THROW(DrawingBitmap(CDrawing(100, 10), 41), CInvalidArgException);
  EXPECT_THROW(DrawingBitmap(CDrawing(std::nan(""), 10)), CInvalidArgException);
}

}  // namespace
