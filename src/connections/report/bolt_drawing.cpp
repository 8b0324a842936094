#include "connections/report/bolt_drawing.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr double kPageWidth = 640;
constexpr double kMostHeight = 240;  // of the plate on the page
constexpr double kMargin = 66;       // around the plate: dimensions and loads

// The interaction ratio of one bolt; sense +1 for a clockwise torque.
double BoltRatio(const CBoltCheck& check, const BoltPoint& bolt, double sense) {
  const NormalBoltData& group = check.Record();
  const CBoltFigures& judged = check.Figures();
  const double perMm = group.m_dSumR2 > 0 ? sense * std::fabs(group.m_dT) / group.m_dSumR2 : 0;
  const double shear = std::hypot(group.m_dNvx + perMm * bolt.dy, group.m_dNvy - perMm * bolt.dx) /
                       (group.m_dNvb * group.m_dBeta);
  const double tension =
      std::max(0.0, judged.m_dNtFirst + judged.m_dNtPerMm * bolt.y) / group.m_dNtb;
  return group.m_nBoltType == kFrictionBolt ? shear + tension : std::hypot(shear, tension);
}

double WorstRatio(const CBoltCheck& check, double sense) {
  double worst = 0;
  for (const BoltPoint& bolt : check.Record().m_PointArr)
    worst = std::max(worst, BoltRatio(check, bolt, sense));
  return worst;
}

class CBoltPainter {
 public:
  explicit CBoltPainter(const CBoltCheck& check)
      : m_check(check),
        m_group(check.Record()),
        m_dPlateWidth(m_group.m_dWidth + 2 * m_group.m_dEx),
        m_dPlateHeight(m_group.m_dHeight + 2 * m_group.m_dEy),
        m_dScale(std::min((kPageWidth - 2 * kMargin - 60) / m_dPlateWidth,
                          kMostHeight / m_dPlateHeight)),
        m_dLeft((kPageWidth - m_dScale * m_dPlateWidth) / 2),
        m_drawing(kPageWidth, m_dScale * m_dPlateHeight + 2 * kMargin) {}

  CDrawing Draw() {
    m_drawing.AddSection(
        {RectPath(m_dLeft, kMargin, m_dScale * m_dPlateWidth, m_dScale * m_dPlateHeight)});
    Axes();
    Bolts();
    Cuts();
    Dimensions();
    Loads();
    return std::move(m_drawing);
  }

 private:
  // Page position of a point of the group, mm from the first bolt.
  CPoint At(double x, double y) const {
    return {m_dLeft + m_dScale * (x + m_group.m_dEx), kMargin + m_dScale * (y + m_group.m_dEy)};
  }
  double Right() const { return m_dLeft + m_dScale * m_dPlateWidth; }
  double Top() const { return kMargin + m_dScale * m_dPlateHeight; }

  void Axes() {
    const CPoint centroid = At(m_group.m_dXc, m_group.m_dYc);
    m_drawing.AddLine(CLayer::CentroidAxis, {m_dLeft - 12, centroid.y}, {Right() + 12, centroid.y});
    m_drawing.AddLine(CLayer::CentroidAxis, {centroid.x, kMargin - 12}, {centroid.x, Top() + 12});
  }

  void Bolts() {
    const double radius = std::max(1.0, m_dScale * m_group.m_dD0 / 2);
    for (const BoltPoint& bolt : m_group.m_PointArr)
      m_drawing.AddCircle(CLayer::Outline, At(bolt.x, bolt.y), radius);
    for (const int index : MostStressedBolts(m_check).m_arrBolt) {
      const BoltPoint& bolt = m_group.m_PointArr[index];
      m_drawing.AddArea(CLayer::CentroidAxis, {CirclePath(At(bolt.x, bolt.y), 0.8 * radius)});
    }
  }

  // A cut from edge to edge through the given holes, named at its far end.
  void Cut(const std::vector<CHole>& holes, bool bVertical, const wchar_t* szName) {
    if (holes.empty()) return;
    CPath path;
    path.m_bClosed = false;
    const auto add = [&path](CPoint point) { path.m_arrVertex.push_back({point.x, point.y}); };
    const CPoint first = At(holes.front().m_x, holes.front().m_y);
    const CPoint last = At(holes.back().m_x, holes.back().m_y);
    add(bVertical ? CPoint{first.x, kMargin - 4} : CPoint{m_dLeft - 4, first.y});
    for (const CHole& hole : holes) add(At(hole.m_x, hole.m_y));
    const CPoint end = bVertical ? CPoint{last.x, Top() + 4} : CPoint{Right() + 4, last.y};
    add(end);
    m_drawing.AddPath(CLayer::BaseAxis, path);
    m_drawing.AddLabel({.m_nLayer = CLayer::BaseAxis,
                        .m_at = bVertical ? CPoint{end.x, end.y + 9} : CPoint{end.x + 4, end.y},
                        .m_strText = szName,
                        .m_nAnchor = bVertical ? CAnchor::Middle : CAnchor::Left});
  }

  void Cuts() {
    Cut(m_check.Figures().m_x.m_arrHole, true, L"1");
    const bool bBoth = m_check.Figures().m_x.Holes() > 0;
    Cut(m_check.Figures().m_y.m_arrHole, false, bBoth ? L"2" : L"1");
  }

  // Edge, spacings and edge along one side: one by one while there is room, else in sum.
  void Chain(bool bVertical, double edge, const CArray<double, double>& spacings) {
    const double start = bVertical ? kMargin : m_dLeft;
    double at = start;
    const auto add = [&](double length, const std::string& text) {
      const double from = at;
      at += m_dScale * length;
      CDimension dimension;
      dimension.m_bVertical = bVertical;
      dimension.m_from = bVertical ? CPoint{m_dLeft, from} : CPoint{from, kMargin};
      dimension.m_to = bVertical ? CPoint{m_dLeft, at} : CPoint{at, kMargin};
      dimension.m_dLine = bVertical ? m_dLeft - 30 : kMargin - 30;
      dimension.m_strText = FromUtf8(text);
      dimension.m_dTextAt = (from + at) / 2;
      m_drawing.AddDimension(dimension);
    };
    add(edge, PlainNumber(edge));
    const double sum = Sum(spacings);
    const int count = spacings.GetSize();
    bool bRoom = true;
    for (const double space : spacings) bRoom = bRoom && m_dScale * space >= 24;
    if (bRoom) {
      for (const double space : spacings) add(space, PlainNumber(space));
    } else {
      const bool bUniform = std::all_of(spacings.begin(), spacings.end(),
                                        [&](double space) { return space == spacings[0]; });
      const std::string each = std::to_string(count) + "×" + PlainNumber(spacings[0]) + "=";
      add(sum, (bUniform ? each : "") + PlainNumber(sum));
    }
    add(edge, PlainNumber(edge));
  }

  void Dimensions() {
    Chain(false, m_group.m_dEx, m_group.m_EcArr);
    Chain(true, m_group.m_dEy, m_group.m_ErArr);
  }

  void Force(CPoint tail, CPoint tip, CPoint label, const wchar_t* szName, CAnchor anchor) {
    m_drawing.AddArrow(CLayer::Text, tail, tip);
    m_drawing.AddLabel({.m_at = label, .m_strText = szName, .m_nAnchor = anchor});
  }

  void Loads() {
    const CPoint centroid = At(m_group.m_dXc, m_group.m_dYc);
    if (!IsZero(m_group.m_dVx)) {
      const double near = Right() + 26;
      const double far = near + 38;
      const bool bRight = m_group.m_dVx > 0;
      Force({bRight ? near : far, centroid.y}, {bRight ? far : near, centroid.y},
            {far + 5, centroid.y}, L"Vx", CAnchor::Left);
    }
    if (!IsZero(m_group.m_dVy)) {
      const double near = Top() + 20;
      const double far = Top() + 48;
      const bool bUp = m_group.m_dVy > 0;
      Force({centroid.x, bUp ? near : far}, {centroid.x, bUp ? far : near},
            {centroid.x + 6, far - 4}, L"Vy", CAnchor::Left);
    }
    if (!IsZero(m_group.m_dT)) Torque(centroid, MostStressedBolts(m_check).m_bClockwise);
  }

  // An arc of three quarters about the centroid.
  void Torque(CPoint centroid, bool bClockwise) {
    const double r = 17;
    const double side = bClockwise ? 1 : -1;
    CPath arc;
    arc.m_bClosed = false;
    constexpr double kThreeQuarters = 2.414213562373095;  // tan(270 / 4 degrees)
    arc.m_arrVertex = {{centroid.x, centroid.y - r, -side * kThreeQuarters},
                       {centroid.x + side * r, centroid.y, 0}};
    m_drawing.AddPath(CLayer::Text, arc);
    m_drawing.AddArrowHead(CLayer::Text, {centroid.x + side * r, centroid.y + 8},
                           {centroid.x + side * r, centroid.y - 2});
    m_drawing.AddLabel({.m_at = {centroid.x + side * (r + 5), centroid.y + 14},
                        .m_strText = L"T",
                        .m_nAnchor = side > 0 ? CAnchor::Left : CAnchor::Right});
  }

  const CBoltCheck& m_check;
  const NormalBoltData& m_group;
  double m_dPlateWidth;
  double m_dPlateHeight;
  double m_dScale;
  double m_dLeft;
  CDrawing m_drawing;
};

}  // namespace

CStressedBolts MostStressedBolts(const CBoltCheck& check) {
  CStressedBolts stressed;
  const double clockwise = WorstRatio(check, 1);
  const double counter = WorstRatio(check, -1);
  stressed.m_bClockwise = clockwise >= counter - 1e-9;
  const double sense = stressed.m_bClockwise ? 1 : -1;
  const double worst = std::max(clockwise, counter);
  const NormalBoltData& group = check.Record();
  for (int i = 0; i < group.m_PointArr.GetSize(); ++i) {
    if (BoltRatio(check, group.m_PointArr[i], sense) >= worst * (1 - 1e-9) - 1e-12)
      stressed.m_arrBolt.push_back(i);
  }
  return stressed;
}

CDrawing BoltGroupDrawing(const CBoltCheck& check) { return CBoltPainter(check).Draw(); }

}  // namespace orv3
