#include "sections/sketch/sketch.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "sections/sketch/drawings.h"

namespace orv3 {
namespace {

constexpr int kNoSketch = 8076;

struct CSketchName {
  std::wstring_view m_strTable;
  int m_nResource;
};

constexpr CSketchName kNames[] = {
    {L"热轧普通工字钢", 8013},
    {L"热轧轻型工字钢", 8013},
    {L"热轧普通焊接H型钢", 8014},
    {L"热轧轻型焊接H型钢", 8014},
    {L"热轧宽翼缘H型钢", 8010},
    {L"热轧窄翼缘H型钢", 8011},
    {L"冷弯薄壁方钢管", 8021},
    {L"剖分T型钢", 8029},
    {L"热轧普通槽钢", 8012},
    {L"热轧轻型槽钢", 8012},
    {L"冷弯薄壁槽钢", 8017},
    {L"冷弯薄壁卷边槽钢", 8018},
    {L"冷弯薄壁卷边Z型钢", 8019},
    {L"冷弯薄壁斜卷边Z型钢", 8020},
    {L"冷弯焊接薄壁圆钢管", 8022},
    {L"热轧等边角钢", 8008},
    {L"热轧不等边角钢", 8009},
    {L"冷弯薄壁等边角钢", 8016},
    {L"冷弯卷边等边角钢", 8015},
    {L"热轧等边角钢组合", 8023},
    {L"热轧不等边角钢长边组合", 8024},
    {L"热轧不等边角钢短边组合", 8025},
    {L"热轧等边角钢十字组合", 8026},
    {L"热轧普通槽钢][组合", 8028},
    {L"热轧轻型槽钢][组合", 8028},
    {L"热轧普通槽钢[]组合", 8027},
    {L"热轧轻型槽钢[]组合", 8027},
    {L"自定义对称H型钢", 8048},
    {L"自定义非对称H型钢", 8043},
    {L"自定义对称箱形截面", 8035},
    {L"自定义非对称箱形截面", 8038},
    {L"自定义十字形截面", 8037},
    {L"自定义翼缘十字形截面", 8047},
    {L"自定义T形截面", 8036},
    {L"自定义槽钢", 8046},
    {L"自定义Z形截面", 8045},
    {L"自定义圆形截面", 8042},
    {L"自定义L形截面", 8044},
    {L"自定义圆管", 8041},
    {L"矩形截面", 8049},
    {L"六边形截面", 8039},
    {L"三角形截面", 8040},
    {L"双肢格构柱", 8078},
    {L"四肢格构柱", 8077},
};

struct CSketchEntry {
  int m_nResource;
  void (*m_pDraw)(CSketchPen&);
};

constexpr CSketchEntry kSketches[] = {
    {8008, sketch::EqualAngle},
    {8009, sketch::UnequalAngle},
    {8010, sketch::WideH},
    {8011, sketch::NarrowH},
    {8012, sketch::RolledChannel},
    {8013, sketch::RolledI},
    {8014, sketch::WeldedH},
    {8015, sketch::ColdLippedAngle},
    {8016, sketch::ColdAngle},
    {8017, sketch::ColdChannel},
    {8018, sketch::ColdLippedChannel},
    {8019, sketch::ColdLippedZ},
    {8020, sketch::ColdSlantLippedZ},
    {8021, sketch::SquareTube},
    {8022, sketch::RoundTube},
    {8023, sketch::EqualAnglePair},
    {8024, sketch::LongLegPair},
    {8025, sketch::ShortLegPair},
    {8026, sketch::CrossAnglePair},
    {8027, sketch::ChannelsToeToToe},
    {8028, sketch::ChannelsBackToBack},
    {8029, sketch::RolledT},
    {8035, sketch::Box},
    {8036, sketch::PlateT},
    {8037, sketch::Cross},
    {8038, sketch::GeneralBox},
    {8039, sketch::Hexagon},
    {8040, sketch::Triangle},
    {8041, sketch::Tube},
    {8042, sketch::Circle},
    {8043, sketch::GeneralH},
    {8044, sketch::PlateL},
    {8045, sketch::PlateZ},
    {8046, sketch::PlateChannel},
    {8047, sketch::FlangedCross},
    {8048, sketch::PlateH},
    {8049, sketch::Rectangle},
    {8076, sketch::GeneralSection},
    {8077, sketch::FourLimbs},
    {8078, sketch::TwoLimbs},
};

CSketchPen DrawSketch(int resource) {
  const auto* found =
      std::find_if(std::begin(kSketches), std::end(kSketches),
                   [resource](const CSketchEntry& entry) { return entry.m_nResource == resource; });
  CSketchPen pen;
  (found == std::end(kSketches) ? sketch::GeneralSection : found->m_pDraw)(pen);
  return pen;
}

}  // namespace

int SketchResource(std::wstring_view tableName) noexcept {
  const auto* found =
      std::find_if(std::begin(kNames), std::end(kNames),
                   [tableName](const CSketchName& name) { return name.m_strTable == tableName; });
  return found == std::end(kNames) ? kNoSketch : found->m_nResource;
}

CBitmap SketchBitmap(int resource, double scale) {
  return DrawingBitmap(DrawSketch(resource).Drawing(), scale);
}

CBitmap SketchIcon(int resource, int size) {
  const CSketchPen sketch = DrawSketch(resource);
  std::vector<CPath> steel;
  for (const CFigure& figure : sketch.Drawing().Figures()) {
    if (figure.m_nLayer != CLayer::Section) continue;
    steel.insert(steel.end(), figure.m_arrPath.begin(), figure.m_arrPath.end());
  }
  return SteelIcon(std::move(steel), size);
}

CBitmap SteelIcon(std::vector<CPath> steel, int size) {
  const CBox box = PathBounds(steel);
  const double unit = std::max(box.Width(), box.Height()) / (size - 2);  // a pixel, in page units
  const double side = unit * size;
  CDrawing icon(side, side);
  // Left and lower edges come to the edges of pixels, where they are sharp.
  const double dx = unit * std::floor((side - box.Width()) / 2 / unit) - box.left;
  const double dy = unit * std::floor((side - box.Height()) / 2 / unit) - box.bottom;
  for (CPath& path : steel) path = Moved(std::move(path), dx, dy);
  // Without outlines, which would fill the gaps of so small a picture.
  icon.AddArea(CLayer::Outline, std::move(steel));
  return DrawingBitmap(icon, 1 / unit);
}

std::string SketchSvg(int resource) { return DrawingSvg(DrawSketch(resource).Drawing()); }

}  // namespace orv3
