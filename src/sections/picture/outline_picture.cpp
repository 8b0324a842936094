#include "sections/picture/outline_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "framework/elementary.h"
#include "sections/picture/picture_layout.h"

namespace orv3 {
namespace {

constexpr double kInsideText = 22;  // of a text beyond the flange that it measures

class CPictureDrawing {
 public:
  explicit CPictureDrawing(const COutlinePicture& picture)
      : m_picture(picture),
        m_outline(picture.m_outline),
        m_layout(picture),
        m_frame(m_layout.Frame()),
        m_origin(m_layout.Origin()),
        m_drawing(m_layout.PageWidth(), m_layout.PageHeight()) {}

  CDrawing Draw() {
    DrawSection();
    DrawAxes();
    for (const auto side : {CDimensionSide::Top, CDimensionSide::Bottom, CDimensionSide::Left})
      DrawSide(m_layout.Side(side), side);
    for (const CSizeDimension& size : m_picture.m_arrSize) DrawAlone(size);
    DrawTexts();
    if (m_picture.m_axes.m_szStrong != nullptr) {
      DrawSlantAxis(m_picture.m_dStrongAngle, m_picture.m_axes.m_szStrong);
      DrawSlantAxis(m_picture.m_dStrongAngle + std::numbers::pi / 2, m_picture.m_axes.m_szWeak);
    }
    return std::move(m_drawing);
  }

 private:
  CPoint Page(CPoint mm) const {
    return {m_origin.x + mm.x * m_layout.Scale(), m_origin.y + mm.y * m_layout.Scale()};
  }

  void DrawSection() {
    std::vector<CPath> loops = m_outline.m_arrLoop;
    for (CPath& loop : loops) {
      for (CVertex& v : loop.m_arrVertex) {
        const CPoint p = Page({v.x, v.y});
        v = {p.x, p.y, v.bulge};
      }
    }
    m_drawing.AddSection(loops);
  }

  void DrawAxes() {
    const CPoint c = Page(m_picture.m_centroid);
    const CPoint o = m_layout.ShowsBase() ? Page(*m_picture.m_base) : c;
    if (m_layout.ShowsBase()) {
      DrawAxisPair(CLayer::BaseAxis, o);
      DrawBaseMark(o);
    }
    if (m_layout.ShowsCentroid()) {
      DrawAxisPair(CLayer::CentroidAxis, c);
      DrawCentroidMark(c);
      DrawAxisLetters(CLayer::CentroidAxis, c, o, m_picture.m_axes.m_szX, m_picture.m_axes.m_szY,
                      m_layout.ShowsBase());
    }
    if (m_picture.m_plastic) {
      DrawPlasticAxes(Page(*m_picture.m_plastic),
                      {m_origin.x, m_origin.y, m_origin.x + m_outline.m_dWidth * m_layout.Scale(),
                       m_origin.y + m_outline.m_dHeight * m_layout.Scale()});
    }
    if (m_layout.ShowsShearCenter()) DrawShearMark(Page(*m_picture.m_shearCenter));
    const CAxisLetters& base = m_picture.m_baseAxes;
    if (m_layout.ShowsBase())
      DrawAxisLetters(CLayer::BaseAxis, o, m_layout.ShowsCentroid() ? c : o, base.m_szX, base.m_szY,
                      false);
  }

  void DrawAxisPair(CLayer layer, CPoint at) {
    m_drawing.AddLine(layer, {m_origin.x + m_frame.left - kAxisReach, at.y},
                      {m_origin.x + m_layout.AxisRight(), at.y});
    m_drawing.AddLine(layer, {at.x, m_origin.y + m_frame.bottom - kAxisReach},
                      {at.x, m_origin.y + m_layout.AxisTop()});
  }

  // Letters of the axes through `at`, kept apart from those of the axes through `other`; `first`
  // decides who gives way upwards and to the right when both are the same.
  void DrawAxisLetters(CLayer layer, CPoint at, CPoint other, const wchar_t* x, const wchar_t* y,
                       bool first) {
    const double apart = 15;
    double shift = 0;
    const bool single =
        at.x == other.x && at.y == other.y && !(m_layout.ShowsBase() && m_layout.ShowsCentroid());
    if (!single && std::fabs(at.y - other.y) < apart) {
      const bool upper = at.y > other.y || (at.y == other.y && first);
      shift = (at.y + other.y) / 2 + (upper ? apart : -apart) / 2 - at.y;
    }
    m_drawing.AddLabel({layer,
                        {m_origin.x + m_layout.AxisRight() + 4, at.y + shift},
                        x,
                        kTextSize,
                        CAnchor::Left,
                        false});
    const bool right =
        single || at.x > other.x || (at.x == other.x && first) || other.x - at.x > 2 * kLabelRoom;
    m_drawing.AddLabel({layer,
                        {at.x + (right ? 4 : -4), m_origin.y + m_layout.AxisTop() - 3},
                        y,
                        kTextSize,
                        right ? CAnchor::Left : CAnchor::Right,
                        false});
  }

  // An axis through the centroid, drawn to one side as far as its letter, which stands at the first
  // end where nothing else does, and a little to the other.
  void DrawSlantAxis(double angle, const wchar_t* letter) {
    const CPoint c = Page(m_picture.m_centroid);
    const double side = std::min(m_frame.Width(), m_frame.Height());
    CPoint u{Cos(angle), Sin(angle)};
    CPoint end = c;
    CBox box;
    for (const double part : {0.5, -0.5, 0.42, -0.42, 0.34, -0.34, 0.58, -0.58, 0.26, -0.26, 0.2}) {
      u = part < 0 ? CPoint{-Cos(angle), -Sin(angle)} : CPoint{Cos(angle), Sin(angle)};
      end = {c.x + u.x * std::fabs(part) * side, c.y + u.y * std::fabs(part) * side};
      box = LetterBox(end, u, letter);
      if (IsFree(box)) break;
    }
    const double back = 0.14 * side;
    m_drawing.AddLine(CLayer::CentroidAxis, {c.x - u.x * back, c.y - u.y * back}, end);
    m_drawing.AddLabel({CLayer::CentroidAxis,
                        {(box.left + box.right) / 2, (box.bottom + box.top) / 2},
                        letter,
                        kTextSize,
                        CAnchor::Middle,
                        false});
  }

  // Of a letter beyond the end of a line that runs along u.
  static CBox LetterBox(CPoint end, CPoint u, const wchar_t* letter) {
    const double width = TextWidth(letter, kTextSize) / 2;
    const double away = Hypot(width, kTextSize / 2) + 1;
    const CPoint at{end.x + u.x * away, end.y + u.y * away};
    return {at.x - width, at.y - kTextSize / 2, at.x + width, at.y + kTextSize / 2};
  }

  // Whether the box is beside no row of dimensions, and no text and no level or upright line drawn
  // so far meets it.
  bool IsFree(const CBox& box) const {
    if (box.left < m_origin.x + m_frame.left - kAxisReach ||
        box.right > m_origin.x + m_frame.right + kAxisReach ||
        box.bottom < m_origin.y + m_frame.bottom - kAxisReach)
      return false;
    const auto meets = [&box](const CBox& other) {
      return box.left <= other.right && other.left <= box.right && box.bottom <= other.top &&
             other.bottom <= box.top;
    };
    for (const CLabel& label : m_drawing.Labels()) {
      const double width = TextWidth(label.m_strText, label.m_dSize);
      const double reach = label.m_bUpward ? label.m_dSize / 2 : width;
      const double rise = label.m_bUpward ? width : label.m_dSize / 2;
      if (meets({label.m_at.x - reach, label.m_at.y - rise, label.m_at.x + reach,
                 label.m_at.y + rise}))
        return false;
    }
    const auto& figures = m_drawing.Figures();
    return std::none_of(figures.begin(), figures.end(), [&](const CFigure& figure) {
      const CBox line = PathBounds(figure.m_arrPath);
      return !figure.m_bFilled && (line.Width() == 0 || line.Height() == 0) && meets(line);
    });
  }

  void DrawCentroidMark(CPoint at) {
    m_drawing.AddArea(CLayer::CentroidAxis, {CirclePath(at, 3.2)});
  }

  void DrawBaseMark(CPoint at) {
    m_drawing.AddPath(CLayer::Outline, CirclePath(at, 4.5));
    m_drawing.AddArea(CLayer::BaseAxis, {CirclePath(at, 1.8)});
  }

  // A ring with a cross through it.
  void DrawShearMark(CPoint at) {
    m_drawing.AddCircle(CLayer::Dimension, at, 4.5);
    m_drawing.AddLine(CLayer::Dimension, {at.x - 7, at.y}, {at.x + 7, at.y});
    m_drawing.AddLine(CLayer::Dimension, {at.x, at.y - 7}, {at.x, at.y + 7});
  }

  // Lines over the section that end in bars.
  void DrawPlasticAxes(CPoint at, const CBox& over) {
    constexpr double kBar = 4;
    m_drawing.AddLine(CLayer::Dimension, {over.left, at.y}, {over.right, at.y});
    m_drawing.AddLine(CLayer::Dimension, {at.x, over.bottom}, {at.x, over.top});
    for (const double x : {over.left, over.right})
      m_drawing.AddLine(CLayer::Dimension, {x, at.y - kBar}, {x, at.y + kBar});
    for (const double y : {over.bottom, over.top})
      m_drawing.AddLine(CLayer::Dimension, {at.x - kBar, y}, {at.x + kBar, y});
  }

  void DrawSide(const CSideRows& side, CDimensionSide where) {
    const bool vertical = where == CDimensionSide::Left;
    const double text = vertical ? m_origin.y : m_origin.x;
    for (std::size_t i = 0; i < side.m_arrSize.size(); ++i) {
      const CSizeDimension& size = side.m_arrSize[i];
      const double away = kFirstRow + side.m_arrItem[i].m_nRow * kRow;
      CDimension d;
      d.m_bVertical = vertical;
      d.m_from = Page(size.m_from);
      d.m_to = Page(size.m_to);
      d.m_dLine = vertical ? m_origin.x + m_frame.left - m_layout.LeaderRoom() - away
                  : where == CDimensionSide::Top ? m_origin.y + m_frame.top + away - kTextSize
                                                 : m_origin.y + m_frame.bottom - away;
      d.m_strText = SizeText(size);
      d.m_dTextAt = text + side.m_arrItem[i].m_dTextAt;
      d.m_dTextSize = kTextSize;
      m_drawing.AddDimension(d);
    }
  }

  // The sizes that stand in no row.
  void DrawAlone(const CSizeDimension& size) {
    switch (size.m_nSide) {
      case CDimensionSide::Radius:
        return DrawRadius(size);
      case CDimensionSide::Leader:
        return DrawLeader(size);
      case CDimensionSide::Right:
        return DrawRight(size);
      case CDimensionSide::Inside:
        return DrawInside(size);
      case CDimensionSide::Top:
      case CDimensionSide::Bottom:
      case CDimensionSide::Left:
        return;
    }
  }

  // A line from the center through the point on the circle to the text outside.
  void DrawRadius(const CSizeDimension& size) {
    const CPoint center = Page(size.m_from);
    const CPoint rim = Page(size.m_to);
    const double radius = Hypot(rim.x - center.x, rim.y - center.y);
    if (radius == 0) return;
    const CPoint u{(rim.x - center.x) / radius, (rim.y - center.y) / radius};
    const double out = m_outline.m_dWidth / 2 * m_layout.Scale() + 16;
    const CPoint end{center.x + u.x * out, center.y + u.y * out};
    m_drawing.AddLine(CLayer::Dimension, center, end);
    m_drawing.AddArrowHead(CLayer::Dimension, center, rim);
    Text({end.x + (u.x > 0 ? 4 : -4), end.y + 3}, SizeText(size),
         u.x > 0 ? CAnchor::Left : CAnchor::Right);
  }

  void DrawLeader(const CSizeDimension& size) {
    const CPoint end = m_layout.LeaderEnd(size);
    const CPoint tail{m_origin.x + end.x, m_origin.y + end.y};
    m_drawing.AddArrow(CLayer::Dimension, tail, Page(size.m_to));
    const bool right = size.m_from.x > size.m_to.x;
    Text({tail.x + (right ? 4 : -4), tail.y}, SizeText(size),
         right ? CAnchor::Left : CAnchor::Right);
  }

  void DrawRight(const CSizeDimension& size) {
    CDimension d = Vertical(size);
    d.m_dLine = m_origin.x + m_frame.right + kRightLine;
    d.m_dTextAt = (d.m_from.y + d.m_to.y) / 2;
    m_drawing.AddDimension(d);
  }

  // Across a flange, the text towards the section's middle and beside the flange's outer half.
  void DrawInside(const CSizeDimension& size) {
    CDimension d = Vertical(size);
    d.m_dLine = d.m_from.x;
    d.m_bTextBelow = size.m_from.x > m_outline.m_dWidth / 2;
    const bool upper = size.m_from.y > m_outline.m_dHeight / 2;
    d.m_dTextAt = upper ? std::min(d.m_from.y, d.m_to.y) - kInsideText
                        : std::max(d.m_from.y, d.m_to.y) + kInsideText;
    m_drawing.AddDimension(d);
  }

  // A height with its text level, on the right of the line.
  CDimension Vertical(const CSizeDimension& size) const {
    CDimension d;
    d.m_bVertical = d.m_bUpright = d.m_bTextBelow = true;
    d.m_from = Page(size.m_from);
    d.m_to = Page(size.m_to);
    d.m_strText = SizeText(size);
    d.m_dTextSize = kTextSize;
    return d;
  }

  void Text(CPoint at, const CString& text, CAnchor anchor) {
    m_drawing.AddLabel({CLayer::Dimension, at, text, kTextSize, anchor, false});
  }

  void DrawTexts() {
    const double titleAt = m_layout.PageHeight() - kMargin - kTitleSize / 2;
    m_drawing.AddLabel(
        {CLayer::Text, {kMargin, titleAt}, m_picture.m_strTitle, kTitleSize, CAnchor::Left, false});
    double y = kMargin + kTextSize / 2 + (m_layout.Footers() - 1) * kLineHeight;
    const double text = kMargin + 20;
    m_drawing.AddLabel(
        {CLayer::Text, {text, y}, m_layout.CentroidText(), kTextSize, CAnchor::Left, false});
    DrawCentroidMark({kMargin + 6, y});
    const auto next = [&](const CString& line) {
      y -= kLineHeight;
      m_drawing.AddLabel({CLayer::Text, {text, y}, line, kTextSize, CAnchor::Left, false});
      return CPoint{kMargin + 6, y};
    };
    if (m_picture.m_base) DrawBaseMark(next(m_layout.BaseText()));
    if (m_picture.m_shearCenter) DrawShearMark(next(m_layout.ShearCenterText()));
    if (!m_picture.m_plastic) return;
    const CPoint at = next(m_layout.PlasticText());
    DrawPlasticAxes(at, {at.x - 7, at.y - 7, at.x + 7, at.y + 7});
  }

  const COutlinePicture& m_picture;
  const COutline& m_outline;
  const CPictureLayout m_layout;
  const CBox m_frame;
  const CPoint m_origin;
  CDrawing m_drawing;
};

}  // namespace

CDrawing OutlinePictureDrawing(const COutlinePicture& picture) {
  return CPictureDrawing(picture).Draw();
}

CDrawing TextPictureDrawing(const std::vector<CString>& lines) {
  double width = 0;
  for (const CString& line : lines) width = std::max(width, TextWidth(line, kTitleSize));
  CDrawing drawing(std::ceil(width + 2 * kMargin),
                   std::ceil(static_cast<double>(lines.size()) * kLineHeight + 2 * kMargin));
  double y = drawing.Height() - kMargin - kLineHeight / 2;
  double size = kTitleSize;
  for (const CString& line : lines) {
    drawing.AddLabel(
        {CLayer::Text, {kMargin, y}, line, std::exchange(size, kTextSize), CAnchor::Left, false});
    y -= kLineHeight;
  }
  return drawing;
}

}  // namespace orv3
