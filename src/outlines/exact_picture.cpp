#include "outlines/exact_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/geometric_figures.h"

namespace orv3 {
namespace {

// Page units.
constexpr double kPlot = 440;
constexpr double kMargin = 18;
constexpr double kReach = 26;  // of the axes beyond the section
constexpr double kTextSize = 12;
constexpr double kTitleSize = 17;
constexpr double kLineHeight = 20;

// From no stress to the greatest, blue to red, apart in grey print too.
constexpr std::array<std::uint32_t, 8> kScale{0x2C4B9B, 0x2E7EBB, 0x3FB0C4, 0x7CCBA2,
                                              0xD9D27A, 0xF4A74B, 0xE4632F, 0xA81D1D};

CString Value(double value) { return FormatG(value); }

class CExactLayout {
 public:
  explicit CExactLayout(const CExactPicture& picture)
      : m_picture(picture), m_exact(picture.m_exact), m_box(PathBounds(picture.m_arrLoop)) {
    if (m_exact.xs == m_exact.xs) {  // the shear centre may lie outside
      m_box = {std::min(m_box.left, m_exact.xs), std::min(m_box.bottom, m_exact.ys),
               std::max(m_box.right, m_exact.xs), std::max(m_box.top, m_exact.ys)};
    }
    m_dScale = kPlot / std::max(m_box.Width(), m_box.Height());
    WriteNotes();
    double width = m_box.Width() * m_dScale + 2 * (kReach + kMargin);
    for (const auto& note : m_arrNote)
      width = std::max(width, TextWidth(note, kTextSize) + 2 * kMargin);
    width = std::max(width, TextWidth(picture.m_strTitle, kTitleSize) + 2 * kMargin);
    const double notes = static_cast<double>(m_arrNote.size()) * kLineHeight;
    const double legend = Stressed() ? kLineHeight : 0;
    m_dWidth = std::ceil(width);
    m_dHeight = std::ceil(m_box.Height() * m_dScale + 2 * (kReach + kMargin) + notes + legend +
                          kLineHeight);
    m_origin = {(m_dWidth - m_box.Width() * m_dScale) / 2 - m_box.left * m_dScale,
                kMargin + notes + legend + kReach - m_box.bottom * m_dScale};
  }

  CDrawing Draw() {
    CDrawing drawing(m_dWidth, m_dHeight);
    DrawSteel(drawing);
    DrawAxes(drawing);
    drawing.AddLabel({CLayer::Text,
                      {kMargin, m_dHeight - kMargin - kTitleSize / 2},
                      m_picture.m_strTitle,
                      kTitleSize,
                      CAnchor::Left,
                      false});
    double y = kMargin + kTextSize / 2;
    if (Stressed()) {
      DrawScale(drawing, y);
      y += kLineHeight;
    }
    for (std::size_t i = m_arrNote.size(); i-- > 0; y += kLineHeight)
      drawing.AddLabel({CLayer::Text, {kMargin, y}, m_arrNote[i], kTextSize, CAnchor::Left, false});
    return drawing;
  }

 private:
  bool Stressed() const { return m_pGreatest != nullptr; }
  CString In(const char* chinese, const char* english) const {
    return FromUtf8(m_picture.m_nLanguage == CLanguage::Chinese ? chinese : english);
  }

  void WriteNotes() {
    const auto point = [&](const CString& what, const wchar_t* x, double a, const wchar_t* y,
                           double b) {
      m_arrNote.push_back(what + L"  " + x + L" = " + Value(a) + L", " + y + L" = " + Value(b) +
                          L" mm");
    };
    point(In("形心", "centroid"), L"xo", m_exact.xo, L"yo", m_exact.yo);
    if (std::isfinite(m_exact.xs))
      point(In("剪心 S", "shear centre S"), L"xs", m_exact.xs, L"ys", m_exact.ys);
    point(In("塑性中和轴", "plastic axes"), L"xp", m_exact.xp, L"yp", m_exact.yp);
    if (HasSlantAxes(m_exact))
      m_arrNote.push_back(In("主轴1倾角", "principal axis 1 at") + L" " + Value(m_exact.theta) +
                          L"°");
    m_pGreatest = GreatestStress(m_picture.m_arrStress).m_pMises;
    if (m_pGreatest == nullptr) return;
    m_arrNote.push_back(In("最大折算应力", "greatest equivalent stress") + L" " +
                        Value(m_pGreatest->mises) + L" N/mm²  x = " +
                        Value(m_pGreatest->m_point.x) + L", y = " + Value(m_pGreatest->m_point.y) +
                        L" mm");
  }

  CPoint Page(double x, double y) const {
    return {m_origin.x + x * m_dScale, m_origin.y + y * m_dScale};
  }

  void DrawSteel(CDrawing& drawing) const {
    std::vector<CPath> loops = m_picture.m_arrLoop;
    for (CPath& loop : loops) {
      for (CVertex& v : loop.m_arrVertex) {
        const CPoint p = Page(v.x, v.y);
        v = {p.x, p.y, v.bulge};
      }
    }
    drawing.AddSection(loops);
    if (Stressed()) DrawStresses(drawing);
  }

  std::size_t Band(double mises) const {
    const double share = std::min(1.0, mises / m_pGreatest->mises);
    return std::min(kScale.size() - 1,
                    static_cast<std::size_t>(share * static_cast<double>(kScale.size())));
  }

  // From point to point of each loop, in the colour of the two points' mean.
  void DrawStresses(CDrawing& drawing) const {
    const auto& points = m_picture.m_arrStress;
    std::array<std::vector<CPath>, kScale.size()> bands;
    for (std::size_t i = 0, first = 0; i < points.size(); ++i) {
      if (points[i].m_nLoop == CBoundaryStress::kInside) continue;
      if (points[i].m_nLoop != points[first].m_nLoop) first = i;
      const bool last = i + 1 == points.size() || points[i + 1].m_nLoop != points[i].m_nLoop;
      const CBoundaryStress& to = last ? points[first] : points[i + 1];
      const double mises = (points[i].mises + to.mises) / 2;
      if (!std::isfinite(mises)) continue;
      bands[Band(mises)].push_back(LinePath(Page(points[i].m_point.x, points[i].m_point.y),
                                            Page(to.m_point.x, to.m_point.y)));
    }
    for (std::size_t band = 0; band < bands.size(); ++band) {
      if (!bands[band].empty())
        drawing.AddTinted(CLayer::Outline, kScale[band], std::move(bands[band]));
    }
  }

  void DrawScale(CDrawing& drawing, double y) const {
    constexpr double kStep = 28;
    double x = kMargin;
    drawing.AddLabel({CLayer::Text, {x, y}, L"0", kTextSize, CAnchor::Left, false});
    x += 12;
    for (const std::uint32_t color : kScale) {
      drawing.AddTinted(CLayer::Outline, color, {LinePath({x, y}, {x + kStep, y})});
      x += kStep;
    }
    drawing.AddLabel({CLayer::Text,
                      {x + 4, y},
                      Value(m_pGreatest->mises) + L" N/mm²",
                      kTextSize,
                      CAnchor::Left,
                      false});
  }

  // A line through a point of the section, drawn out beyond the box, its letter at the end.
  void DrawAxis(CDrawing& drawing, CLayer layer, CPoint at, double degrees,
                const wchar_t* letter) const {
    const double angle = degrees * std::numbers::pi / 180;
    const CPoint u{Cos(angle), Sin(angle)};
    const CPoint c = Page(at.x, at.y);
    const CPoint low = Page(m_box.left, m_box.bottom);
    const CPoint high = Page(m_box.right, m_box.top);
    const auto reach = [&](CPoint d) {  // to the box, and beyond it
      double most = 1e9;
      if (d.x > 1e-9) most = std::min(most, (high.x - c.x) / d.x);
      if (d.x < -1e-9) most = std::min(most, (low.x - c.x) / d.x);
      if (d.y > 1e-9) most = std::min(most, (high.y - c.y) / d.y);
      if (d.y < -1e-9) most = std::min(most, (low.y - c.y) / d.y);
      return most + kReach / 2;
    };
    const double ahead = reach(u);
    const double behind = reach({-u.x, -u.y});
    const CPoint end{c.x + ahead * u.x, c.y + ahead * u.y};
    drawing.AddLine(layer, {c.x - behind * u.x, c.y - behind * u.y}, end);
    drawing.AddLabel(
        {layer, {end.x + 8 * u.x, end.y + 8 * u.y}, letter, kTextSize, CAnchor::Middle, false});
  }

  void DrawAxes(CDrawing& drawing) const {
    const CPoint o{m_exact.xo, m_exact.yo};
    DrawAxis(drawing, CLayer::CentroidAxis, o, 0, L"x");
    DrawAxis(drawing, CLayer::CentroidAxis, o, 90, L"y");
    if (HasSlantAxes(m_exact)) {
      DrawAxis(drawing, CLayer::CentroidAxis, o, m_exact.theta, L"1");
      DrawAxis(drawing, CLayer::CentroidAxis, o, m_exact.theta + 90, L"2");
    }
    drawing.AddArea(CLayer::CentroidAxis, {CirclePath(Page(o.x, o.y), 3.2)});
    // To the other side, clear of the letters of axes through the centroid.
    DrawAxis(drawing, CLayer::BaseAxis, {m_box.left, m_exact.yp}, 180, L"p");
    DrawAxis(drawing, CLayer::BaseAxis, {m_exact.xp, m_box.bottom}, 270, L"p");
    if (!std::isfinite(m_exact.xs)) return;
    const CPoint s = Page(m_exact.xs, m_exact.ys);
    drawing.AddCircle(CLayer::Dimension, s, 5);
    drawing.AddLine(CLayer::Dimension, {s.x - 8, s.y}, {s.x + 8, s.y});
    drawing.AddLine(CLayer::Dimension, {s.x, s.y - 8}, {s.x, s.y + 8});
    drawing.AddLabel(
        {CLayer::Dimension, {s.x + 9, s.y + 9}, L"S", kTextSize, CAnchor::Left, false});
  }

  const CExactPicture& m_picture;
  const CExactProperties& m_exact;
  const CBoundaryStress* m_pGreatest = nullptr;
  CBox m_box;
  double m_dScale = 1;
  double m_dWidth = 0, m_dHeight = 0;
  CPoint m_origin;
  std::vector<CString> m_arrNote;
};

}  // namespace

CDrawing ExactPictureDrawing(const CExactPicture& picture) { return CExactLayout(picture).Draw(); }

double StressError(const CBoundaryStress& p, double CBoundaryStress::*figure) {
  if (figure == &CBoundaryStress::sigma || p.tauError == 0) return 0;
  if (figure == &CBoundaryStress::tau) return p.tauError / std::fabs(p.tau);
  return 3 * std::fabs(p.tau) * p.tauError / (p.mises * p.mises);
}

CGreatestStress GreatestStress(const std::vector<CBoundaryStress>& points) {
  CGreatestStress greatest;
  const auto take = [](const CBoundaryStress*& kept, const CBoundaryStress& point,
                       double CBoundaryStress::*field) {
    if (std::isnan(point.*field)) return;
    if (kept == nullptr || std::fabs(point.*field) > std::fabs(kept->*field)) kept = &point;
  };
  for (const CBoundaryStress& point : points) {
    greatest.m_bSharp = greatest.m_bSharp || point.m_bSharp;
    greatest.m_bCoarse = greatest.m_bCoarse || point.m_bCoarse;
    take(greatest.m_pSigma, point, &CBoundaryStress::sigma);
    if (point.m_bSharp) continue;
    take(greatest.m_pTau, point, &CBoundaryStress::tau);
    take(greatest.m_pMises, point, &CBoundaryStress::mises);
  }
  return greatest;
}

}  // namespace orv3
