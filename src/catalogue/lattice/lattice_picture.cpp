#include "catalogue/lattice/lattice_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "catalogue/outline/row_outline.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

// Page units.
constexpr double kPlot = 420;  // greater side of the column
constexpr double kMargin = 18;
constexpr double kReach = 14;      // of the axes beyond the column
constexpr double kDimension = 46;  // of the dimension lines from the column
constexpr double kLetterRoom = 30;
constexpr double kTextSize = 12;
constexpr double kTitleSize = 17;
constexpr double kLineHeight = 20;

CString LengthText(double value) {
  const CString exact = FormatShortest(value);
  return exact.GetLength() <= 9 ? exact : FormatG(value);
}

CSentence OriginText(std::size_t limbs) {
  if (limbs == 2) return Both(L"坐标原点：第一肢形心", L"origin: centroid of limb 1");
  if (limbs == 3)
    return Both(L"坐标原点：第一、二肢形心连线的中点", L"origin: midway between limbs 1 and 2");
  return Both(L"坐标原点：各肢形心所成矩形的中心",
              L"origin: middle of the rectangle of the limbs' centroids");
}

// The limb in the column's frame, mm.
std::vector<CPath> LimbLoops(const CLatticeLimb& limb) {
  const double left = limb.m_at.m_x - limb.m_box.m_dCx;
  const double bottom = limb.m_at.m_y - limb.m_box.m_dCy;
  std::vector<CPath> loops = RowOutline(limb.m_row, limb.m_dAngle).m_arrLoop;
  if (loops.empty()) loops.push_back(RectPath(0, 0, limb.m_box.m_dWidth, limb.m_box.m_dHeight));
  for (CPath& loop : loops) loop = Moved(std::move(loop), left, bottom);
  return loops;
}

CBox Around(const CBox& a, const CBox& b) {
  return {std::min(a.left, b.left), std::min(a.bottom, b.bottom), std::max(a.right, b.right),
          std::max(a.top, b.top)};
}

class CLatticeLayout {
 public:
  explicit CLatticeLayout(const CLatticePicture& picture)
      : m_picture(picture),
        m_arrLimb(picture.m_limbs.m_arrLimb),
        m_properties(picture.m_limbs.Properties()) {
    FindFrame();
    FindPage();
  }

  CDrawing Draw() {
    CDrawing drawing(m_dPageWidth, m_dPageHeight);
    m_pDrawing = &drawing;
    for (std::size_t i = 0; i < m_arrLimb.size(); ++i) DrawLimb(i);
    DrawPlaces();
    DrawAxes();
    DrawSpacings();
    DrawTexts();
    return drawing;
  }

 private:
  // --- Layout -----------------------------------------------------------------------------------
  void FindFrame() {
    for (const CLatticeLimb& limb : m_arrLimb) {
      m_arrLoops.push_back(LimbLoops(limb));
      m_arrBox.push_back(PathBounds(m_arrLoops.back()));
      m_box = Around(m_arrBox.size() == 1 ? m_arrBox.back() : m_box, m_arrBox.back());
    }
    m_dScale = kPlot / std::max({m_box.Width(), m_box.Height(), 1e-6});
  }

  void FindPage() {
    const double lines = static_cast<double>(m_arrLimb.size() + 2);
    const double left = kMargin + kDimension + kLetterRoom;
    const double right = kMargin + kReach + kLetterRoom;
    const double bottom =
        kMargin + lines * kLineHeight + kLetterRoom + (m_arrLimb.size() > 2 ? kDimension : kReach);
    const double top = kMargin + 2 * kLineHeight + kReach + kLetterRoom;
    double text = TextWidth(Title(), kTitleSize);
    for (std::size_t i = 0; i < m_arrLimb.size(); ++i)
      text = std::max(text, kLetterRoom + TextWidth(LimbText(i), kTextSize));
    text = std::max({text, kLetterRoom + TextWidth(CentroidText(), kTextSize),
                     kLetterRoom + TextWidth(Origin(), kTextSize)});
    const double width = left + m_box.Width() * m_dScale + right;
    m_dPageWidth = std::ceil(std::max(width, text + 2 * kMargin));
    m_dPageHeight = std::ceil(bottom + m_box.Height() * m_dScale + top);
    m_corner = {left + (m_dPageWidth - width) / 2, bottom};
  }

  CString Title() const { return m_picture.m_strTable + L"  " + m_picture.m_strName; }
  CString LimbText(std::size_t i) const {
    const CLatticeLimb& limb = m_arrLimb[i];
    return Both(L"{1}  {2}，转角 {3}°", L"{1}  {2}, turned by {3}°",
                {limb.m_row.m_strTableName, limb.m_row[0].m_strValue, LengthText(limb.m_dAngle)})
        .In(m_picture.m_nLanguage);
  }
  CString Origin() const { return OriginText(m_arrLimb.size()).In(m_picture.m_nLanguage); }
  CString CentroidText() const {
    return Both(L"形心  xo = {1}, yo = {2} mm", L"centroid  xo = {1}, yo = {2} mm",
                {LengthText(m_properties.m_dXo), LengthText(m_properties.m_dYo)})
        .In(m_picture.m_nLanguage);
  }

  CPoint Page(double x, double y) const {
    return {m_corner.x + (x - m_box.left) * m_dScale, m_corner.y + (y - m_box.bottom) * m_dScale};
  }

  // --- Drawing ----------------------------------------------------------------------------------
  // The limb and its number on the side away from the column's middle.
  void DrawLimb(std::size_t i) {
    std::vector<CPath> loops = m_arrLoops[i];
    for (CPath& loop : loops) {
      for (CVertex& v : loop.m_arrVertex) {
        const CPoint p = Page(v.x, v.y);
        v = {p.x, p.y, v.bulge};
      }
    }
    m_pDrawing->AddSection(loops);
    const CBox& box = m_arrBox[i];
    const bool upper = m_arrLimb[i].m_at.m_y > (m_box.bottom + m_box.top) / 2;
    CPoint at = Page(m_arrLimb[i].m_at.m_x, upper ? box.top : box.bottom);
    at.x += m_arrLimb[i].m_at.m_x < m_properties.m_dXo ? -kReach : kReach;
    at.y += upper ? kReach : -kReach;
    m_pDrawing->AddLabel(
        {CLayer::Text, at, FormatInt(static_cast<int>(i + 1)), kTextSize, CAnchor::Middle, false});
  }

  // The figure that the limbs' centroids form, and the frame's origin.
  void DrawPlaces() {
    CPath path;
    for (const CLatticeLimb& limb : m_arrLimb) {
      const CPoint p = Page(limb.m_at.m_x, limb.m_at.m_y);
      path.m_arrVertex.push_back({p.x, p.y, 0});
      m_pDrawing->AddArea(CLayer::BaseAxis, {CirclePath(p, 2)});
    }
    path.m_bClosed = m_arrLimb.size() > 2;
    m_pDrawing->AddPath(CLayer::BaseAxis, path);
    DrawOriginMark(Page(0, 0));
  }

  void DrawAxes() {
    const CPoint c = Page(m_properties.m_dXo, m_properties.m_dYo);
    const CPoint low = Page(m_box.left, m_box.bottom);
    const CPoint high = Page(m_box.right, m_box.top);
    m_pDrawing->AddLine(CLayer::CentroidAxis, {low.x - kReach, c.y}, {high.x + kReach, c.y});
    m_pDrawing->AddLine(CLayer::CentroidAxis, {c.x, low.y - kReach}, {c.x, high.y + kReach});
    m_pDrawing->AddLabel(
        {CLayer::CentroidAxis, {high.x + kReach + 4, c.y}, L"X", kTextSize, CAnchor::Left, false});
    m_pDrawing->AddLabel({CLayer::CentroidAxis,
                          {c.x, high.y + kReach + 9},
                          L"Y",
                          kTextSize,
                          CAnchor::Middle,
                          false});
    DrawCentroidMark(c);
  }

  void DrawSpacings() {
    const CLimbPlace& first = m_arrLimb.front().m_at;
    const CLimbPlace& last = m_arrLimb.back().m_at;
    const CPoint low = Page(m_box.left, m_box.bottom);
    CDimension d;
    d.m_dTextSize = kTextSize;
    d.m_bVertical = true;
    d.m_from = Page(first.m_x, first.m_y);
    d.m_to = Page(last.m_x, last.m_y);
    d.m_dLine = low.x - kDimension;
    d.m_dTextAt = (d.m_from.y + d.m_to.y) / 2;
    d.m_strText =
        (m_arrLimb.size() == 2 ? L"k = " : L"ky = ") + LengthText(m_picture.m_limbs.m_dKy);
    m_pDrawing->AddDimension(d);
    if (m_arrLimb.size() == 2) return;
    d.m_bVertical = false;
    d.m_to = Page(m_arrLimb[1].m_at.m_x, m_arrLimb[1].m_at.m_y);
    d.m_dLine = low.y - kDimension;
    d.m_dTextAt = (d.m_from.x + d.m_to.x) / 2;
    d.m_strText = L"kx = " + LengthText(m_picture.m_limbs.m_dKx);
    m_pDrawing->AddDimension(d);
  }

  void DrawTexts() {
    m_pDrawing->AddLabel({CLayer::Text,
                          {kMargin, m_dPageHeight - kMargin - kTitleSize / 2},
                          Title(),
                          kTitleSize,
                          CAnchor::Left,
                          false});
    double y = kMargin + kTextSize / 2;
    DrawOriginMark({kMargin + 6, y});
    DrawLine(y, Origin());
    DrawCentroidMark({kMargin + 6, y});
    DrawLine(y, CentroidText());
    for (std::size_t i = m_arrLimb.size(); i-- > 0;) {
      m_pDrawing->AddLabel({CLayer::Text,
                            {kMargin + 6, y},
                            FormatInt(static_cast<int>(i + 1)),
                            kTextSize,
                            CAnchor::Middle,
                            false});
      DrawLine(y, LimbText(i));
    }
  }

  // One line of the legend; the next one stands above it.
  void DrawLine(double& y, const CString& text) {
    m_pDrawing->AddLabel({CLayer::Text, {kMargin + 20, y}, text, kTextSize, CAnchor::Left, false});
    y += kLineHeight;
  }
  void DrawCentroidMark(CPoint at) {
    m_pDrawing->AddArea(CLayer::CentroidAxis, {CirclePath(at, 3.2)});
  }
  void DrawOriginMark(CPoint at) {
    m_pDrawing->AddPath(CLayer::Outline, CirclePath(at, 4.5));
    m_pDrawing->AddArea(CLayer::BaseAxis, {CirclePath(at, 1.8)});
  }

  const CLatticePicture& m_picture;
  const std::vector<CLatticeLimb>& m_arrLimb;
  CLatticeProperties m_properties;
  std::vector<std::vector<CPath>> m_arrLoops;  // of each limb, mm
  std::vector<CBox> m_arrBox;
  CBox m_box;  // of the whole column, mm
  double m_dScale = 1;
  CPoint m_corner;  // of the box on the page
  double m_dPageWidth = 0;
  double m_dPageHeight = 0;
  CDrawing* m_pDrawing = nullptr;
};

}  // namespace

CDrawing LatticePictureDrawing(const CLatticePicture& picture) {
  return CLatticeLayout(picture).Draw();
}

std::string LatticePictureSvg(const CLatticePicture& picture) {
  return DrawingSvg(LatticePictureDrawing(picture), picture.m_strTable + L" " + picture.m_strName);
}

}  // namespace orv3
