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

TEST(Sketch, IsChosenByTheWholeTableName) {
  const std::pair<const wchar_t*, int> cases[] = {{L"热轧普通工字钢", 8013},
                                                  {L"热轧轻型焊接H型钢", 8014},
                                                  {L"热轧宽翼缘H型钢", 8010},
                                                  {L"热轧窄翼缘H型钢", 8011},
                                                  {L"冷弯薄壁斜卷边Z型钢", 8020},
                                                  {L"热轧不等边角钢长边组合", 8024},
                                                  {L"热轧轻型槽钢][组合", 8028},
                                                  {L"热轧轻型槽钢[]组合", 8027},
                                                  {L"剖分T型钢", 8029},
                                                  {L"自定义非对称H型钢", 8043},
                                                  {L"三角形截面", 8040},
                                                  {L"双肢格构柱", 8078},
                                                  {L"四肢格构柱", 8077},
                                                  {L"三肢格构柱", 8076},
                                                  {L"自定义对称h型钢", 8076},
                                                  {L"矩形截面 ", 8076},
                                                  {L"", 8076}};
  for (const auto& [name, resource] : cases)
    EXPECT_EQ(orv3::SketchResource(name), resource) << testing::PrintToString(name);
  EXPECT_EQ(orv3::SketchSvg(0), orv3::SketchSvg(8076));
  EXPECT_EQ(orv3::SketchSvg(8030), orv3::SketchSvg(8076));
}

}  // namespace
