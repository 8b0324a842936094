#include "sections/sketch/sketch.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "sections/section_kind.h"
#include "sections/sketch/drawings.h"

namespace orv3 {
namespace {

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
  const CSectionTable* table = FindSectionTable(tableName);
  return table ? table->m_nSketch : kNoSketch;
}

CBitmap SketchBitmap(int resource, double scale) {
  return DrawingBitmap(DrawSketch(resource).Drawing(), scale);
}

std::vector<CPath> SketchSteel(int resource) {
  const CSketchPen sketch = DrawSketch(resource);
  std::vector<CPath> steel;
  for (const CFigure& figure : sketch.Drawing().Figures()) {
    if (figure.m_nLayer != CLayer::Section) continue;
    steel.insert(steel.end(), figure.m_arrPath.begin(), figure.m_arrPath.end());
  }
  return steel;
}

CBitmap SketchIcon(int resource, int size) { return SteelIcon(SketchSteel(resource), size); }

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
