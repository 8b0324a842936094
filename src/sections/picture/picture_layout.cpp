#include "sections/picture/picture_layout.h"

#include <cmath>

#include "framework/elementary.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

constexpr double kPlot = 440;   // greater side of the section, base point included
constexpr double kLeader = 30;  // length of a leader

CString ValueText(double value) {
  if (!std::isfinite(value)) return L"—";
  const CString exact = FormatShortest(value);
  return exact.GetLength() <= 9 ? exact : FormatG(value);
}

// What a picture says of a point.
struct CPointName {
  const wchar_t* m_szChinese;
  const wchar_t* m_szEnglish;
  const wchar_t* m_szX;
  const wchar_t* m_szY;
};
constexpr CPointName kCentroid{L"形心", L"centroid", L"xo", L"yo"};
constexpr CPointName kBase{L"基点", L"base point", L"x", L"y"};
constexpr CPointName kShearCenter{L"剪心", L"shear centre", L"xs", L"ys"};
constexpr CPointName kPlastic{L"塑性中和轴", L"plastic axes", L"xp", L"yp"};

CString PointText(const CPointName& name, CPoint p, bool drawn, CLanguage language) {
  const bool chinese = language == CLanguage::Chinese;
  const wchar_t* away = chinese ? L"（在图外）" : L" (off the picture)";
  return CString(chinese ? name.m_szChinese : name.m_szEnglish) + L"  " + name.m_szX + L" = " +
         ValueText(p.x) + L", " + name.m_szY + L" = " + ValueText(p.y) + L" mm" +
         (drawn ? L"" : away);
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

}  // namespace

CPictureLayout::CPictureLayout(const COutlinePicture& picture)
    : m_picture(picture), m_sizes(picture.m_arrSize) {
  FindFrame();
  m_top = Rows(CDimensionSide::Top);
  m_bottom = Rows(CDimensionSide::Bottom);
  m_left = Rows(CDimensionSide::Left);
  FindPage();
}

void CPictureLayout::FindFrame() {
  const COutline& outline = m_picture.m_outline;
  CBox box = PathBounds(outline.m_arrLoop);
  Include(box, {0, 0});
  Include(box, {outline.m_dWidth, outline.m_dHeight});
  const CBox section = box;
  m_bBase = m_picture.m_base && IsNear(section, *m_picture.m_base);
  m_bCentroid = IsNear(section, m_picture.m_centroid);
  if (m_bBase) Include(box, *m_picture.m_base);
  if (m_bCentroid) Include(box, m_picture.m_centroid);
  m_bShearCenter = m_picture.m_shearCenter && IsNear(section, *m_picture.m_shearCenter);
  if (m_bShearCenter) Include(box, *m_picture.m_shearCenter);
  for (const CSizeDimension& size : m_sizes) {
    if (size.m_nSide == CDimensionSide::Leader) continue;
    Include(box, size.m_from);
    Include(box, size.m_to);
  }
  m_dScale = kPlot / std::max(box.Width(), box.Height());
  m_frame = {box.left * m_dScale, box.bottom * m_dScale, box.right * m_dScale, box.top * m_dScale};
}

CSideRows CPictureLayout::Rows(CDimensionSide side) const {
  const bool vertical = side == CDimensionSide::Left;
  CSideRows rows;
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

// What stands to the right of the section.
double CPictureLayout::RightEdge() const {
  double right = std::max({AxisRight() + kLabelRoom, m_top.HighestText(), m_bottom.HighestText()});
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
double CPictureLayout::FindLeaderRoom() const {
  double left = m_frame.left;
  for (const CSizeDimension& size : m_sizes) {
    if (size.m_nSide == CDimensionSide::Leader && size.m_from.x <= size.m_to.x)
      left = std::min(left, LeaderEnd(size).x - 4 - TextWidth(SizeText(size), kTextSize));
  }
  return m_frame.left - left;
}

void CPictureLayout::FindPage() {
  m_dLeaderRoom = FindLeaderRoom();
  const double left = m_frame.left - m_left.Depth(kLabelRoom) - m_dLeaderRoom - kMargin;
  const double right = RightEdge() + kMargin;
  const double top = std::max(AxisTop() + 6, m_left.HighestText()) + 2 * kLineHeight + kMargin / 2;
  const double bottom = std::min(m_frame.bottom - m_bottom.Depth(kAxisReach), m_left.LowestText()) -
                        Footers() * kLineHeight - kMargin;
  double text = std::max(TextWidth(m_picture.m_strTitle, kTitleSize),
                         TextWidth(CentroidText(), kTextSize) + 20);
  if (m_picture.m_base) text = std::max(text, TextWidth(BaseText(), kTextSize) + 20);
  if (m_picture.m_shearCenter) text = std::max(text, TextWidth(ShearCenterText(), kTextSize) + 20);
  if (m_picture.m_plastic) text = std::max(text, TextWidth(PlasticText(), kTextSize) + 20);
  m_dPageWidth = std::ceil(std::max(right - left, text + 2 * kMargin));
  m_dPageHeight = std::ceil(top - bottom);
  m_origin = {-left + (m_dPageWidth - (right - left)) / 2, -bottom};
}

CString CPictureLayout::CentroidText() const {
  return PointText(kCentroid, m_picture.m_centroid, m_bCentroid, m_picture.m_nLanguage);
}

CString CPictureLayout::BaseText() const {
  return PointText(kBase, *m_picture.m_base, m_bBase, m_picture.m_nLanguage);
}

CString CPictureLayout::ShearCenterText() const {
  return PointText(kShearCenter, *m_picture.m_shearCenter, m_bShearCenter, m_picture.m_nLanguage);
}

CString CPictureLayout::PlasticText() const {
  return PointText(kPlastic, *m_picture.m_plastic, true, m_picture.m_nLanguage);
}

CPoint CPictureLayout::LeaderEnd(const CSizeDimension& size) const {
  const CPoint away{size.m_from.x - size.m_to.x, size.m_from.y - size.m_to.y};
  const double length = Hypot(away.x, away.y);
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

CString SizeText(const CSizeDimension& size) {
  return size.m_szSign + (L" = " + ValueText(size.m_dValue));
}

}  // namespace orv3
