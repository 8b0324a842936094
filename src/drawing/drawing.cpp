#include "drawing/drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "framework/elementary.h"

namespace orv3 {
namespace {

// Dark on white, apart in grey print by dash style as well as by colour.
constexpr std::array<CPen, kLayerCount> kPens{{
    {"section", 0x1F2933, 0xCFDBE8, 1.2, {}},
    {"outline", 0x1F2933, 0x1F2933, 1.4, {}},
    {"base-axes", 0x1B6E3C, 0x1B6E3C, 1.0, {6, 3, 0, 0}},
    {"centroidal-axes", 0xB3261E, 0xB3261E, 1.0, {10, 3, 2, 3}},
    {"dimensions", 0x2F5D94, 0x2F5D94, 0.9, {}},
    {"text", 0x111111, 0x111111, 1.0, {}},
}};

constexpr double kOvershoot = 3;  // of an extension line beyond the dimension line
constexpr double kStandOff = 2;   // of an extension line from what it measures
constexpr double kTextGap = 2.5;  // between a dimension line and its text
constexpr double kCapHeight = 0.72;

double CharWidth(wchar_t ch) noexcept {
  if (ch >= 0x2E80) return 1.0;
  if (ch >= L'A' && ch <= L'Z') return 0.72;
  if (ch == L'm' || ch == L'w') return 0.84;
  if (ch == L' ' || ch == L'.' || ch == L',' || ch == L'f' || ch == L't' || ch == L'r') return 0.36;
  return 0.58;
}

// A dimension in coordinates along and across its line.
class CDimensionPen {
 public:
  CDimensionPen(CDrawing& drawing, const CDimension& dimension)
      : m_drawing(drawing), m_dimension(dimension) {
    m_low = Across(dimension.m_from);
    m_high = Across(dimension.m_to);
    if (m_low.x > m_high.x) std::swap(m_low, m_high);
  }

  void Draw() {
    Extension(m_low);
    Extension(m_high);
    Line();
    Text();
  }

 private:
  // Exchanges "x, y" with "along, across", either way.
  CPoint Across(CPoint p) const { return m_dimension.m_bVertical ? CPoint{p.y, p.x} : p; }

  void Extension(CPoint from) {
    const double line = m_dimension.m_dLine;
    if (std::fabs(line - from.y) <= kStandOff) return;
    const double sense = line > from.y ? 1 : -1;
    m_drawing.AddLine(CLayer::Dimension, Across({from.x, from.y + sense * kStandOff}),
                      Across({from.x, line + sense * kOvershoot}));
  }

  double TextHalf() const {
    const bool level = m_dimension.m_bVertical && m_dimension.m_bUpright;
    return level ? m_dimension.m_dTextSize * kCapHeight / 2
                 : TextWidth(m_dimension.m_strText, m_dimension.m_dTextSize) / 2;
  }

  void Line() {
    const double arrow = CDrawing::kArrow;
    const bool inside = m_high.x - m_low.x >= 2 * arrow + 2;
    double first = inside ? m_low.x : m_low.x - 2 * arrow;
    double last = inside ? m_high.x : m_high.x + 2 * arrow;
    if (!m_dimension.m_strText.IsEmpty()) {
      if (m_dimension.m_dTextAt > m_high.x)
        last = std::max(last, m_dimension.m_dTextAt + TextHalf());
      if (m_dimension.m_dTextAt < m_low.x)
        first = std::min(first, m_dimension.m_dTextAt - TextHalf());
    }
    const double line = m_dimension.m_dLine;
    m_drawing.AddLine(CLayer::Dimension, Across({first, line}), Across({last, line}));
    const double tail = inside ? arrow : -arrow;
    m_drawing.AddArrowHead(CLayer::Dimension, Across({m_low.x + tail, line}),
                           Across({m_low.x, line}));
    m_drawing.AddArrowHead(CLayer::Dimension, Across({m_high.x - tail, line}),
                           Across({m_high.x, line}));
  }

  void Text() {
    const CDimension& d = m_dimension;
    const bool level = d.m_bVertical && d.m_bUpright;
    const double away = level ? kTextGap + 1 : kTextGap + d.m_dTextSize * kCapHeight / 2;
    // "Above" is up for a horizontal line and left for a vertical one.
    const double sense = d.m_bTextBelow == d.m_bVertical ? 1 : -1;
    CLabel label{CLayer::Dimension, Across({d.m_dTextAt, d.m_dLine + sense * away}),
                 d.m_strText,       d.m_dTextSize,
                 CAnchor::Middle,   d.m_bVertical && !d.m_bUpright};
    if (level) label.m_nAnchor = d.m_bTextBelow ? CAnchor::Left : CAnchor::Right;
    m_drawing.AddLabel(std::move(label));
  }

  CDrawing& m_drawing;
  const CDimension& m_dimension;
  CPoint m_low;
  CPoint m_high;
};

}  // namespace

const CPen& LayerPen(CLayer layer) noexcept { return kPens[static_cast<std::size_t>(layer)]; }

double TextWidth(std::wstring_view text, double size) noexcept {
  double width = 0;
  for (const wchar_t ch : text) width += CharWidth(ch);
  return width * size;
}

void CDrawing::AddFigure(CFigure figure) {
  if (std::all_of(figure.m_arrPath.begin(), figure.m_arrPath.end(), IsFinite))
    m_arrFigure.push_back(std::move(figure));
}

void CDrawing::AddArea(CLayer layer, std::vector<CPath> loops) {
  AddFigure({layer, true, std::move(loops), {}});
}

void CDrawing::AddPath(CLayer layer, CPath path) {
  AddFigure({layer, false, {std::move(path)}, {}});
}

void CDrawing::AddTinted(CLayer layer, std::uint32_t color, std::vector<CPath> paths) {
  AddFigure({layer, false, std::move(paths), color});
}

void CDrawing::AddLine(CLayer layer, CPoint from, CPoint to) { AddPath(layer, LinePath(from, to)); }

void CDrawing::AddCircle(CLayer layer, CPoint center, double radius) {
  AddPath(layer, CirclePath(center, radius));
}

void CDrawing::AddSection(const std::vector<CPath>& loops) {
  AddArea(CLayer::Section, loops);
  AddFigure({CLayer::Outline, false, loops, {}});
}

void CDrawing::AddArrowHead(CLayer layer, CPoint tail, CPoint tip) {
  const double length = Hypot(tip.x - tail.x, tip.y - tail.y);
  if (length == 0) return;
  const CPoint u{(tip.x - tail.x) / length, (tip.y - tail.y) / length};
  const CPoint back{tip.x - u.x * kArrow, tip.y - u.y * kArrow};
  const double half = kArrow * 0.3;
  AddArea(layer, {CPath{{{tip.x, tip.y, 0},
                         {back.x - u.y * half, back.y + u.x * half, 0},
                         {back.x + u.y * half, back.y - u.x * half, 0}},
                        true}});
}

void CDrawing::AddArrow(CLayer layer, CPoint tail, CPoint tip) {
  AddLine(layer, tail, tip);
  AddArrowHead(layer, tail, tip);
}

void CDrawing::AddDimension(const CDimension& dimension) { CDimensionPen(*this, dimension).Draw(); }

void CDrawing::AddLabel(CLabel label) {
  if (std::isfinite(label.m_at.x) && std::isfinite(label.m_at.y) && !label.m_strText.IsEmpty())
    m_arrLabel.push_back(std::move(label));
}

}  // namespace orv3
