#include "sections/section_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "framework/number_text.h"
#include "sections/dimension_rows.h"
#include "sections/section_dimensions.h"

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
constexpr double kLabelRoom = 26;  // for an axis letter

CString ValueText(double value) {
  if (!std::isfinite(value)) return L"—";
  const CString exact = FormatShortest(value);
  return exact.GetLength() <= 9 ? exact : FormatG(value);
}

CString SizeText(const CSizeDimension& size) {
  return size.m_szSign + (L" = " + ValueText(size.m_dValue));
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
  CPictureLayout(const CSectionPicture& picture, const COutline& outline)
      : m_picture(picture),
        m_outline(outline),
        m_sizes(SizeDimensions(picture.m_nStyle, picture.m_arrSize)) {
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
    DrawRadii();
    DrawTexts();
    return drawing;
  }

 private:
  // --- Layout -----------------------------------------------------------------------------------
  void FindFrame() {
    m_box = PathBounds(m_outline.m_arrLoop);
    Include(m_box, {0, 0});
    Include(m_box, {m_outline.m_dWidth, m_outline.m_dHeight});
    const CBox section = m_box;
    m_bBase = IsNear(section, m_picture.m_base);
    m_bCentroid = IsNear(section, m_picture.m_centroid);
    if (m_bBase) Include(m_box, m_picture.m_base);
    if (m_bCentroid) Include(m_box, m_picture.m_centroid);
    for (const CSizeDimension& size : m_sizes) {
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
      if (m_bBase) range.m_arrBar.push_back(m_picture.m_base.x * m_dScale);
    }
    rows.m_nRows = PlaceInRows(rows.m_arrItem, range);
    return rows;
  }

  double AxisTop() const { return m_frame.top + m_top.Depth(0) + kAxisReach + 4; }
  double AxisRight() const { return m_frame.right + kAxisReach; }

  void FindPage() {
    const double left = m_frame.left - m_left.Depth(kLabelRoom) - kMargin;
    const double right =
        std::max({AxisRight() + kLabelRoom, m_top.HighestText(), m_bottom.HighestText()}) + kMargin;
    const double top =
        std::max(AxisTop() + 6, m_left.HighestText()) + 2 * kLineHeight + kMargin / 2;
    const double bottom =
        std::min(m_frame.bottom - m_bottom.Depth(kAxisReach), m_left.LowestText()) -
        2 * kLineHeight - kMargin;
    const double text = std::max({TextWidth(Title(), kTitleSize), TextWidth(BaseText(), kTextSize),
                                  TextWidth(CentroidText(), kTextSize)}) +
                        2 * kMargin + 20;
    m_dPageWidth = std::ceil(std::max(right - left, text));
    m_dPageHeight = std::ceil(top - bottom);
    m_origin = {-left + (m_dPageWidth - (right - left)) / 2, -bottom};
  }

  CString Title() const {
    return m_picture.m_strName.IsEmpty() ? m_picture.m_strTitle
                                         : m_picture.m_strTitle + L"  " + m_picture.m_strName;
  }
  CString CentroidText() const {
    return PointText(L"重心", L"xo", L"yo", m_picture.m_centroid, m_bCentroid);
  }
  CString BaseText() const { return PointText(L"基点", L"x", L"y", m_picture.m_base, m_bBase); }

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
    const CPoint o = Page(m_picture.m_base);
    if (m_bBase) {
      DrawAxisPair(CLayer::BaseAxis, o);
      DrawBaseMark(o);
    }
    if (m_bCentroid) {
      DrawAxisPair(CLayer::CentroidAxis, c);
      DrawCentroidMark(c);
    }
    const bool both = m_bBase && m_bCentroid;
    if (m_bCentroid) DrawAxisLetters(CLayer::CentroidAxis, c, both ? o : c, L"X0", L"Y0", both);
    if (m_bBase) DrawAxisLetters(CLayer::BaseAxis, o, both ? c : o, L"X", L"Y", false);
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
      d.m_dLine = vertical                       ? m_origin.x + m_frame.left - away
                  : where == CDimensionSide::Top ? m_origin.y + m_frame.top + away - kTextSize
                                                 : m_origin.y + m_frame.bottom - away;
      d.m_strText = SizeText(size);
      d.m_dTextAt = text + side.m_arrItem[i].m_dTextAt;
      d.m_dTextSize = kTextSize;
      m_pDrawing->AddDimension(d);
    }
  }

  // A line from the center through the point on the circle to the text outside.
  void DrawRadii() {
    for (const CSizeDimension& size : m_sizes) {
      if (size.m_nSide != CDimensionSide::Radius) continue;
      const CPoint center = Page(size.m_from);
      const CPoint rim = Page(size.m_to);
      const double radius = std::hypot(rim.x - center.x, rim.y - center.y);
      if (radius == 0) continue;
      const CPoint u{(rim.x - center.x) / radius, (rim.y - center.y) / radius};
      const double out = m_picture.m_arrSize[0] * m_dScale + 16;
      const CPoint end{center.x + u.x * out, center.y + u.y * out};
      m_pDrawing->AddLine(CLayer::Dimension, center, end);
      m_pDrawing->AddArrowHead(CLayer::Dimension, center, rim);
      m_pDrawing->AddLabel({CLayer::Dimension,
                            {end.x + (u.x > 0 ? 4 : -4), end.y + 3},
                            SizeText(size),
                            kTextSize,
                            u.x > 0 ? CAnchor::Left : CAnchor::Right,
                            false});
    }
  }

  void DrawTexts() {
    const double titleAt = m_dPageHeight - kMargin - kTitleSize / 2;
    m_pDrawing->AddLabel(
        {CLayer::Text, {kMargin, titleAt}, Title(), kTitleSize, CAnchor::Left, false});
    const double second = kMargin + kTextSize / 2;
    const double first = second + kLineHeight;
    const double text = kMargin + 20;
    m_pDrawing->AddLabel(
        {CLayer::Text, {text, first}, CentroidText(), kTextSize, CAnchor::Left, false});
    m_pDrawing->AddLabel(
        {CLayer::Text, {text, second}, BaseText(), kTextSize, CAnchor::Left, false});
    DrawCentroidMark({kMargin + 6, first});
    DrawBaseMark({kMargin + 6, second});
  }

  const CSectionPicture& m_picture;
  const COutline& m_outline;
  std::vector<CSizeDimension> m_sizes;
  CBox m_box;    // what the picture shows, mm
  CBox m_frame;  // the same in page units
  double m_dScale = 1;
  bool m_bBase = false;  // whether it is near enough to be drawn
  bool m_bCentroid = false;
  CSide m_top;
  CSide m_bottom;
  CSide m_left;
  CPoint m_origin;  // of the section on the page
  double m_dPageWidth = 0;
  double m_dPageHeight = 0;
  CDrawing* m_pDrawing = nullptr;
};

// What there is to say of sizes that bound no section.
CDrawing SizeList(const CSectionPicture& picture) {
  const auto sizes = SizeDimensions(picture.m_nStyle, picture.m_arrSize);
  std::vector<CString> lines{picture.m_strTitle + L"  " + picture.m_strName,
                             L"这些尺寸不能构成截面"};
  for (const CSizeDimension& size : sizes) lines.push_back(SizeText(size));
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

}  // namespace

CDrawing SectionPictureDrawing(const CSectionPicture& picture) {
  const COutline outline = SectionOutline(picture.m_nStyle, picture.m_arrSize);
  return outline.m_arrLoop.empty() ? SizeList(picture) : CPictureLayout(picture, outline).Draw();
}

std::string SectionPictureSvg(const CSectionPicture& picture) {
  return DrawingSvg(SectionPictureDrawing(picture), picture.m_strTitle + L" " + picture.m_strName);
}

}  // namespace orv3
