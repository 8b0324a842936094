#include "sections/sketch/sketch.h"

#include <map>
#include <vector>

#include "svg_check.h"

namespace {

// All resource numbers that have a sketch.
std::vector<int> Resources() {
  std::vector<int> all;
  for (const auto& [first, last] : {std::pair{8008, 8029}, {8035, 8049}, {8076, 8078}})
    for (int number = first; number <= last; ++number) all.push_back(number);
  return all;
}

TEST(Sketch, EveryNumberIsAPictureOfItsOwnWithinItsFrame) {
  std::map<std::string, int> pictures;
  std::map<std::string, int> drawings;
  for (const int number : Resources()) {
    const CBitmap bitmap = orv3::SketchBitmap(number);
    const int width = bitmap.GetWidth();
    const int height = bitmap.GetHeight();
    int dark = 0;
    int onEdge = 0;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const std::uint32_t pixel = bitmap.GetPixel(x, y);
        dark += ((pixel >> 16) & 0xFF) < 0x80;
        onEdge += pixel != 0xFFFFFF && (x < 2 || y < 2 || x >= width - 2 || y >= height - 2);
      }
    }
    EXPECT_GT(dark, 300) << number;
    EXPECT_EQ(onEdge, 0) << number << " is cut";
    const auto bytes = bitmap.ToBmp();
    EXPECT_TRUE(pictures.emplace(std::string(bytes.begin(), bytes.end()), number).second) << number;
    const std::string svg = orv3::SketchSvg(number);
    CheckSvg(svg);
    EXPECT_TRUE(drawings.emplace(svg, number).second) << number;
  }
}

TEST(Sketch, IsTheGeneralOneForAnyOtherNameOrNumber) {
  for (const wchar_t* name : {L"自定义对称h型钢", L"矩形截面 ", L""})
    EXPECT_EQ(orv3::SketchResource(name), 8076) << testing::PrintToString(name);
  EXPECT_EQ(orv3::SketchSvg(0), orv3::SketchSvg(8076));
  EXPECT_EQ(orv3::SketchSvg(8030), orv3::SketchSvg(8076));
}

}  // namespace
