#include "sections/outline_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "framework/number_text.h"
#include "sections/dimension_rows.h"

namespace orv3 {
namespace {

// Page units.
constexpr double kPlot = 440;  // greater side of the section, base point included
constexpr double kMargin = 18;
constexpr double kRow = 21;        // distance of dimension rows
constexpr double kFirstRow = 30;   // of the first row from the section
constexpr double kAxisReach = 12;  // of the axes beyond the section
constexpr double kTextSize = 12;
constexpr double kTitleSize = 17;
constexpr double kLineHeight = 20;
constexpr double kLabelRoom = 26;   // for an axis letter
constexpr double kLeader = 30;      // length of a leader
constexpr double kRightLine = 16;   // of a dimension line beside the section's right edge
constexpr double kInsideText = 22;  // of a text beyond the flange that it measures

CString ValueText(double value) {
  if (!std::isfinite(value)) return L"—";
  const CString exact = FormatShortest(value);
  return exact.GetLength() <= 9 ? exact : FormatG(value);
}

CString PointText(const wchar_t* what, const wchar_t* x, const wchar_t* y, CPoint p, bool drawn) {
  return CString(what) + L"  " + x + L" = " + ValueText(p.x) + L", " + y + L" = " + ValueText(p.y) +
         L" mm" + (drawn ? L"" : L"（在图外）");
}

void Include(CBox& box, CPoint p) {
  box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
         std::max(box.top, p.y)};
}

bool IsNear(const CBox& box, CPoint p) {
  const double reach = std::max(box.Width(), box.Height()) / 2;
  return p.x >= box.left - reach && p.x <= box.right + reach && p.y >= box.bottom - reach &&
         p.y <= box.top + reach;
}

// The dimensions of one side with their places in rows, in page units from the section's origin.
struct CSide {
  std::vector<CSizeDimension> m_arrSize;
  std::vector<CRowItem> m_arrItem;
  int m_nRows = 0;

  // Depth that the rows take beside the section.
  double Depth(double without) const {
    return m_nRows == 0 ? without : kFirstRow + (m_nRows - 1) * kRow + kTextSize;
  }
  double LowestText() const {
    double low = 0;
    for (const CRowItem& item : m_arrItem) low = std::min(low, item.m_dTextAt - item.m_dText / 2);
    return low;
  }
  double HighestText() const {
    double high = 0;
    for (const CRowItem& item : m_arrItem) high = std::max(high, item.m_dTextAt + item.m_dText / 2);
    return high;
  }
};

class CPictureLayout {
 public:
  explicit CPictureLayout(const COutlinePicture& picture)
      : m_picture(picture), m_outline(picture.m_outline), m_sizes(picture.m_arrSize) {
    FindFrame();
    m_top = Rows(CDimensionSide::Top);
    m_bottom = Rows(CDimensionSide::Bottom);
    m_left = Rows(CDimensionSide::Left);
    FindPage();
  }

  CDrawing Draw() {
    CDrawing drawing(m_dPageWidth, m_dPageHeight);
    m_pDrawing = &drawing;
    DrawSection();
    DrawAxes();
    DrawSide(m_top, CDimensionSide::Top);
    DrawSide(m_bottom, CDimensionSide::Bottom);
    DrawSide(m_left, CDimensionSide::Left);
    for (const CSizeDimension& size : m_sizes) DrawAlone(size);
    DrawTexts();
    if (m_picture.m_axes.m_szStrong != nullptr) {
      DrawSlantAxis(m_picture.m_dStrongAngle, m_picture.m_axes.m_szStrong);
      DrawSlantAxis(m_picture.m_dStrongAngle + std::numbers::pi / 2, m_picture.m_axes.m_szWeak);
    }
    return drawing;
  }

 private:
  // --- Layout -----------------------------------------------------------------------------------
  void FindFrame() {
    m_box = PathBounds(m_outline.m_arrLoop);
    Include(m_box, {0, 0});
    Include(m_box, {m_outline.m_dWidth, m_outline.m_dHeight});
    const CBox section = m_box;
    m_bBase = m_picture.m_base && IsNear(section, *m_picture.m_base);
    m_bCentroid = IsNear(section, m_picture.m_centroid);
    if (m_bBase) Include(m_box, *m_picture.m_base);
    if (m_bCentroid) Include(m_box, m_picture.m_centroid);
    for (const CSizeDimension& size : m_sizes) {
      if (size.m_nSide == CDimensionSide::Leader) continue;
      Include(m_box, size.m_from);
      Include(m_box, size.m_to);
    }
    m_dScale = kPlot / std::max(m_box.Width(), m_box.Height());
    m_frame = {m_box.left * m_dScale, m_box.bottom * m_dScale, m_box.right * m_dScale,
               m_box.top * m_dScale};
  }

  CSide Rows(CDimensionSide side) const {
    const bool vertical = side == CDimensionSide::Left;
    CSide rows;
    for (const CSizeDimension& size : m_sizes) {
      if (size.m_nSide != side) continue;
      const double a = (vertical ? size.m_from.y : size.m_from.x) * m_dScale;
      const double b = (vertical ? size.m_to.y : size.m_to.x) * m_dScale;
      rows.m_arrSize.push_back(size);
      rows.m_arrItem.push_back(
          {std::min(a, b), std::max(a, b), TextWidth(SizeText(size), kTextSize), 0, 0});
    }
    CRowRange range{m_frame.left, m_frame.right, false, {}};
    if (vertical) range = {m_frame.bottom, m_frame.top, true, {}};
    if (side == CDimensionSide::Top) {  // where the axes rise through the rows to their letters
      if (m_bCentroid) range.m_arrBar.push_back(m_picture.m_centroid.x * m_dScale);
      if (m_bBase) range.m_arrBar.push_back(m_picture.m_base->x * m_dScale);
    }
    rows.m_nRows = PlaceInRows(rows.m_arrItem, range);
    return rows;
  }

  double AxisTop() const { return m_frame.top + m_top.Depth(0) + kAxisReach + 4; }
  double AxisRight() const { return m_frame.right + kAxisReach; }

  // What stands to the right of the section, in page units from its origin.
  double RightEdge() const {
    double right =
        std::max({AxisRight() + kLabelRoom, m_top.HighestText(), m_bottom.HighestText()});
    for (const CSizeDimension& size : m_sizes) {
      const double text = TextWidth(SizeText(size), kTextSize);
      if (size.m_nSide == CDimensionSide::Right)
        right = std::max(right, m_frame.right + kRightLine + 8 + text);
      if (size.m_nSide == CDimensionSide::Leader && size.m_from.x > size.m_to.x)
        right = std::max(right, LeaderEnd(size).x + 4 + text);
    }
    return right;
  }
  // How far the texts of leaders reach out on the left.
  double LeaderRoom() const {
    double left = m_frame.left;
    for (const CSizeDimension& size : m_sizes) {
      if (size.m_nSide == CDimensionSide::Leader && size.m_from.x <= size.m_to.x)
        left = std::min(left, LeaderEnd(size).x - 4 - TextWidth(SizeText(size), kTextSize));
    }
    return m_frame.left - left;
  }

  int Footers() const { return m_picture.m_base ? 2 : 1; }

  void FindPage() {
    m_dLeaderRoom = LeaderRoom();
    const double left = m_frame.left - m_left.Depth(kLabelRoom) - m_dLeaderRoom - kMargin;
    const double right = RightEdge() + kMargin;
    const double top =
        std::max(AxisTop() + 6, m_left.HighestText()) + 2 * kLineHeight + kMargin / 2;
    const double bottom =
        std::min(m_frame.bottom - m_bottom.Depth(kAxisReach), m_left.LowestText()) -
        Footers() * kLineHeight - kMargin;
    double text = std::max(TextWidth(m_picture.m_strTitle, kTitleSize),
                           TextWidth(CentroidText(), kTextSize) + 20);
    if (m_picture.m_base) text = std::max(text, TextWidth(BaseText(), kTextSize) + 20);
    m_dPageWidth = std::ceil(std::max(right - left, text + 2 * kMargin));
    m_dPageHeight = std::ceil(top - bottom);
    m_origin = {-left + (m_dPageWidth - (right - left)) / 2, -bottom};
  }

  CString CentroidText() const {
    return PointText(L"重心", L"xo", L"yo", m_picture.m_centroid, m_bCentroid);
  }
  CString BaseText() const { return PointText(L"基点", L"x", L"y", *m_picture.m_base, m_bBase); }

  // --- Drawing ----------------------------------------------------------------------------------
  CPoint Page(CPoint mm) const {
    return {m_origin.x + mm.x * m_dScale, m_origin.y + mm.y * m_dScale};
  }

  void DrawSection() {
    std::vector<CPath> loops = m_outline.m_arrLoop;
    for (CPath& loop : loops) {
      for (CVertex& v : loop.m_arrVertex) {
        const CPoint p = Page({v.x, v.y});
        v = {p.x, p.y, v.bulge};
      }
    }
    m_pDrawing->AddSection(loops);
  }

  void DrawAxes() {
    const CPoint c = Page(m_picture.m_centroid);
    const CPoint o = m_bBase ? Page(*m_picture.m_base) : c;
    if (m_bBase) {
      DrawAxisPair(CLayer::BaseAxis, o);
      DrawBaseMark(o);
    }
    if (m_bCentroid) {
      DrawAxisPair(CLayer::CentroidAxis, c);
      DrawCentroidMark(c);
      DrawAxisLetters(CLayer::CentroidAxis, c, o, m_picture.m_axes.m_szX, m_picture.m_axes.m_szY,
                      m_bBase);
    }
    const CAxisLetters& base = m_picture.m_baseAxes;
    if (m_bBase)
      DrawAxisLetters(CLayer::BaseAxis, o, m_bCentroid ? c : o, base.m_szX, base.m_szY, false);
  }

  void DrawAxisPair(CLayer layer, CPoint at) {
    m_pDrawing->AddLine(layer, {m_origin.x + m_frame.left - kAxisReach, at.y},
                        {m_origin.x + AxisRight(), at.y});
    m_pDrawing->AddLine(layer, {at.x, m_origin.y + m_frame.bottom - kAxisReach},
                        {at.x, m_origin.y + AxisTop()});
  }

  // Letters of the axes through `at`, kept apart from those of the axes through `other`; `first`
  // decides who gives way upwards and to the right when both are the same.
  void DrawAxisLetters(CLayer layer, CPoint at, CPoint other, const wchar_t* x, const wchar_t* y,
                       bool first) {
    const double apart = 15;
    double shift = 0;
    const bool single = at.x == other.x && at.y == other.y && !(m_bBase && m_bCentroid);
    if (!single && std::fabs(at.y - other.y) < apart) {
      const bool upper = at.y > other.y || (at.y == other.y && first);
      shift = (at.y + other.y) / 2 + (upper ? apart : -apart) / 2 - at.y;
    }
    m_pDrawing->AddLabel(
        {layer, {m_origin.x + AxisRight() + 4, at.y + shift}, x, kTextSize, CAnchor::Left, false});
    const bool right =
        single || at.x > other.x || (at.x == other.x && first) || other.x - at.x > 2 * kLabelRoom;
    m_pDrawing->AddLabel({layer,
                          {at.x + (right ? 4 : -4), m_origin.y + AxisTop() - 3},
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
    CPoint u{std::cos(angle), std::sin(angle)};
    CPoint end = c;
    CBox box;
    for (const double part : {0.5, -0.5, 0.42, -0.42, 0.34, -0.34, 0.58, -0.58, 0.26, -0.26, 0.2}) {
      u = part < 0 ? CPoint{-std::cos(angle), -std::sin(angle)}
                   : CPoint{std::cos(angle), std::sin(angle)};
      end = {c.x + u.x * std::fabs(part) * side, c.y + u.y * std::fabs(part) * side};
      box = LetterBox(end, u, letter);
      if (IsFree(box)) break;
    }
    const double back = 0.14 * side;
    m_pDrawing->AddLine(CLayer::CentroidAxis, {c.x - u.x * back, c.y - u.y * back}, end);
    m_pDrawing->AddLabel({CLayer::CentroidAxis,
                          {(box.left + box.right) / 2, (box.bottom + box.top) / 2},
                          letter,
                          kTextSize,
                          CAnchor::Middle,
                          false});
  }

  // Of a letter beyond the end of a line that runs along u.
  static CBox LetterBox(CPoint end, CPoint u, const wchar_t* letter) {
    const double width = TextWidth(letter, kTextSize) / 2;
    const double away = std::hypot(width, kTextSize / 2) + 1;
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
    for (const CLabel& label : m_pDrawing->Labels()) {
      const double width = TextWidth(label.m_strText, label.m_dSize);
      const double reach = label.m_bUpward ? label.m_dSize / 2 : width;
      const double rise = label.m_bUpward ? width : label.m_dSize / 2;
      if (meets({label.m_at.x - reach, label.m_at.y - rise, label.m_at.x + reach,
                 label.m_at.y + rise}))
        return false;
    }
    const auto& figures = m_pDrawing->Figures();
    return std::none_of(figures.begin(), figures.end(), [&](const CFigure& figure) {
      const CBox line = PathBounds(figure.m_arrPath);
      return !figure.m_bFilled && (line.Width() == 0 || line.Height() == 0) && meets(line);
    });
  }

  void DrawCentroidMark(CPoint at) {
    m_pDrawing->AddArea(CLayer::CentroidAxis, {CirclePath(at, 3.2)});
  }

  void DrawBaseMark(CPoint at) {
    m_pDrawing->AddPath(CLayer::Outline, CirclePath(at, 4.5));
    m_pDrawing->AddArea(CLayer::BaseAxis, {CirclePath(at, 1.8)});
  }

  void DrawSide(const CSide& side, CDimensionSide where) {
    const bool vertical = where == CDimensionSide::Left;
    const double text = vertical ? m_origin.y : m_origin.x;
    for (std::size_t i = 0; i < side.m_arrSize.size(); ++i) {
      const CSizeDimension& size = side.m_arrSize[i];
      const double away = kFirstRow + side.m_arrItem[i].m_nRow * kRow;
      CDimension d;
      d.m_bVertical = vertical;
      d.m_from = Page(size.m_from);
      d.m_to = Page(size.m_to);
      d.m_dLine = vertical                       ? m_origin.x + m_frame.left - m_dLeaderRoom - away
                  : where == CDimensionSide::Top ? m_origin.y + m_frame.top + away - kTextSize
                                                 : m_origin.y + m_frame.bottom - away;
      d.m_strText = SizeText(size);
      d.m_dTextAt = text + side.m_arrItem[i].m_dTextAt;
      d.m_dTextSize = kTextSize;
      m_pDrawing->AddDimension(d);
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
    const double radius = std::hypot(rim.x - center.x, rim.y - center.y);
    if (radius == 0) return;
    const CPoint u{(rim.x - center.x) / radius, (rim.y - center.y) / radius};
    const double out = m_outline.m_dWidth / 2 * m_dScale + 16;
    const CPoint end{center.x + u.x * out, center.y + u.y * out};
    m_pDrawing->AddLine(CLayer::Dimension, center, end);
    m_pDrawing->AddArrowHead(CLayer::Dimension, center, rim);
    Text({end.x + (u.x > 0 ? 4 : -4), end.y + 3}, SizeText(size),
         u.x > 0 ? CAnchor::Left : CAnchor::Right);
  }

  // Where a leader's text begins, in page units from the section's origin; clear of the axes.
  CPoint LeaderEnd(const CSizeDimension& size) const {
    const CPoint away{size.m_from.x - size.m_to.x, size.m_from.y - size.m_to.y};
    const double length = std::hypot(away.x, away.y);
    const double reach = length > 0 ? kLeader / length : 0;
    const double sense = away.x > 0 ? 1 : -1;
    const double text = TextWidth(SizeText(size), kTextSize) + 4;
    CPoint end{size.m_to.x * m_dScale + away.x * reach, size.m_to.y * m_dScale + away.y * reach};
    const CPoint axis{m_picture.m_centroid.x * m_dScale, m_picture.m_centroid.y * m_dScale};
    const double before = sense * (axis.x - end.x);  // to the Y axis, in the text's direction
    if (before > 0 && before < text + 4) end.x = axis.x;
    if (std::fabs(end.y - axis.y) < kTextSize)
      end.y = axis.y + std::copysign(kTextSize, end.y - axis.y);
    return end;
  }

  void DrawLeader(const CSizeDimension& size) {
    const CPoint end = LeaderEnd(size);
    const CPoint tail{m_origin.x + end.x, m_origin.y + end.y};
    m_pDrawing->AddArrow(CLayer::Dimension, tail, Page(size.m_to));
    const bool right = size.m_from.x > size.m_to.x;
    Text({tail.x + (right ? 4 : -4), tail.y}, SizeText(size),
         right ? CAnchor::Left : CAnchor::Right);
  }

  void DrawRight(const CSizeDimension& size) {
    CDimension d = Vertical(size);
    d.m_dLine = m_origin.x + m_frame.right + kRightLine;
    d.m_dTextAt = (d.m_from.y + d.m_to.y) / 2;
    m_pDrawing->AddDimension(d);
  }

  // Across a flange, the text towards the section's middle and beside the flange's outer half.
  void DrawInside(const CSizeDimension& size) {
    CDimension d = Vertical(size);
    d.m_dLine = d.m_from.x;
    d.m_bTextBelow = size.m_from.x > m_outline.m_dWidth / 2;
    const bool upper = size.m_from.y > m_outline.m_dHeight / 2;
    d.m_dTextAt = upper ? std::min(d.m_from.y, d.m_to.y) - kInsideText
                        : std::max(d.m_from.y, d.m_to.y) + kInsideText;
    m_pDrawing->AddDimension(d);
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
    m_pDrawing->AddLabel({CLayer::Dimension, at, text, kTextSize, anchor, false});
  }

  void DrawTexts() {
    const double titleAt = m_dPageHeight - kMargin - kTitleSize / 2;
    m_pDrawing->AddLabel(
        {CLayer::Text, {kMargin, titleAt}, m_picture.m_strTitle, kTitleSize, CAnchor::Left, false});
    double y = kMargin + kTextSize / 2 + (Footers() - 1) * kLineHeight;
    const double text = kMargin + 20;
    m_pDrawing->AddLabel(
        {CLayer::Text, {text, y}, CentroidText(), kTextSize, CAnchor::Left, false});
    DrawCentroidMark({kMargin + 6, y});
    if (!m_picture.m_base) return;
    y -= kLineHeight;
    m_pDrawing->AddLabel({CLayer::Text, {text, y}, BaseText(), kTextSize, CAnchor::Left, false});
    DrawBaseMark({kMargin + 6, y});
  }

  const COutlinePicture& m_picture;
  const COutline& m_outline;
  const std::vector<CSizeDimension>& m_sizes;
  CBox m_box;    // what the picture shows, mm
  CBox m_frame;  // the same in page units
  double m_dScale = 1;
  bool m_bBase = false;  // whether it is near enough to be drawn
  bool m_bCentroid = false;
  CSide m_top;
  CSide m_bottom;
  CSide m_left;
  double m_dLeaderRoom = 0;  // between the section and the columns on its left
  CPoint m_origin;           // of the section on the page
  double m_dPageWidth = 0;
  double m_dPageHeight = 0;
  CDrawing* m_pDrawing = nullptr;
};

}  // namespace

CString SizeText(const CSizeDimension& size) {
  return size.m_szSign + (L" = " + ValueText(size.m_dValue));
}

CDrawing OutlinePictureDrawing(const COutlinePicture& picture) {
  return CPictureLayout(picture).Draw();
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
