#include "sections/sketch/sketch.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "sections/section_kind.h"
#include "sections/sketch/drawings.h"

namespace orv3 {
namespace {

// Null for a number that has none.
const sketch::CSketchEntry* Find(int resource) noexcept {
  for (const auto family :
       {sketch::BuiltSketches(), sketch::PlateSketches(), sketch::RolledSketches()}) {
    for (const sketch::CSketchEntry& entry : family) {
      if (entry.m_nResource == resource) return &entry;
    }
  }
  return nullptr;
}

CSketchPen DrawSketch(int resource) {
  const sketch::CSketchEntry* found = Find(resource);
  CSketchPen pen;
  (found != nullptr ? found : Find(kNoSketch))->m_pDraw(pen);
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
