#include "connections/report/bolt_drawing.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/bolt_case.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr double kPageWidth = 640;
constexpr double kMostHeight = 240;  // of the plate on the page
constexpr double kMargin = 66;       // around the plate: dimensions and loads

// The interaction ratio of one bolt; sense +1 for a clockwise torque.
double BoltRatio(const NormalBoltData& group, const BoltPoint& bolt, double sense) {
  const double perMm = group.m_dSumR2 > 0 ? sense * group.m_dT / group.m_dSumR2 : 0;
  const double shear = std::hypot(group.m_dNvx + perMm * bolt.dy, group.m_dNvy - perMm * bolt.dx) /
                       (group.m_dNvb * group.m_dBeta);
  const double moment = group.m_dSumLy2 > 0 ? group.m_dM * bolt.ly / group.m_dSumLy2 : 0;
  const double tension = std::max(0.0, moment + group.m_dNtN) / group.m_dNtb;
  return group.m_nBoltType == kFrictionBolt ? shear + tension : std::hypot(shear, tension);
}

double WorstRatio(const NormalBoltData& group, double sense) {
  double worst = 0;
  for (const BoltPoint& bolt : group.m_PointArr)
    worst = std::max(worst, BoltRatio(group, bolt, sense));
  return worst;
}

class CBoltPainter {
 public:
  explicit CBoltPainter(const NormalBoltData& group)
      : m_group(group),
        m_dPlateWidth(group.m_dWidth + 2 * group.m_dEx),
        m_dPlateHeight(group.m_dHeight + 2 * group.m_dEy),
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
    for (const int index : MostStressedBolts(m_group).m_arrBolt) {
      const BoltPoint& bolt = m_group.m_PointArr[index];
      m_drawing.AddArea(CLayer::CentroidAxis, {CirclePath(At(bolt.x, bolt.y), 0.8 * radius)});
    }
  }

  // A cut from edge to edge through the given bolts, named at its far end, or at its near one.
  void Cut(const std::vector<CPoint>& bolts, bool bVertical, const wchar_t* szName,
           bool bNear = false) {
    if (bolts.empty()) return;
    CPath path;
    path.m_bClosed = false;
    const auto add = [&path](CPoint point) { path.m_arrVertex.push_back({point.x, point.y}); };
    const CPoint first = bolts.front();
    const CPoint last = bolts.back();
    add(bVertical ? CPoint{first.x, kMargin - 4} : CPoint{m_dLeft - 4, first.y});
    for (const CPoint point : bolts) add(point);
    const CPoint end = bVertical ? CPoint{last.x, Top() + 4} : CPoint{Right() + 4, last.y};
    add(end);
    m_drawing.AddPath(CLayer::BaseAxis, path);
    CPoint label = bVertical ? CPoint{end.x, end.y + 9} : CPoint{end.x + 4, end.y};
    if (bNear)
      label = bVertical ? CPoint{first.x + 8, kMargin - 10} : CPoint{m_dLeft - 12, first.y + 9};
    m_drawing.AddLabel({.m_nLayer = CLayer::BaseAxis,
                        .m_at = label,
                        .m_strText = szName,
                        .m_nAnchor = bVertical ? CAnchor::Middle : CAnchor::Left});
  }

  // The bolts for which `take` holds, in the order of `before`, on the page.
  template <class TAKE, class BEFORE>
  std::vector<CPoint> Line(TAKE take, BEFORE before) const {
    std::vector<BoltPoint> line;
    for (const BoltPoint& bolt : m_group.m_PointArr)
      if (take(bolt)) line.push_back(bolt);
    std::sort(line.begin(), line.end(), before);
    std::vector<CPoint> points;
    for (const BoltPoint& bolt : line) points.push_back(At(bolt.x, bolt.y));
    return points;
  }

  void Cuts() {
    const bool bStaggered = m_group.m_nLayout == 1;
    const bool bZigzag = bStaggered && m_group.m_nBoltType != kFrictionBolt;
    const int column = bStaggered ? (m_group.m_nCols - 1) / 2 * 2 : m_group.m_nCols - 1;
    double x = 0;
    for (int i = 0; i < column; ++i) x += m_group.m_EcArr[i];
    const double before = bStaggered && column > 0 ? x - m_group.m_EcArr[column - 1]
                          : bStaggered             ? x + m_group.m_EcArr[0]
                                                   : x;
    const double half = bStaggered ? m_group.m_ErArr[0] / 2 : 0;
    const auto near = [](double a, double b) { return std::fabs(a - b) < 1e-6; };
    const auto byX = [](const BoltPoint& a, const BoltPoint& b) { return a.x < b.x; };
    const auto byY = [](const BoltPoint& a, const BoltPoint& b) { return a.y < b.y; };
    if (!IsZero(m_group.m_dVx)) {
      Cut(Line([&](const BoltPoint& b) { return near(b.x, x); }, byY), true, L"1");
      const auto inEither = [&](const BoltPoint& b) { return near(b.x, x) || near(b.x, before); };
      if (bZigzag) Cut(Line(inEither, byY), true, L"2", true);
    }
    if (!IsZero(m_group.m_dVy)) {
      Cut(Line([&](const BoltPoint& b) { return near(b.y, 0); }, byX), false, L"3");
      const auto inEither = [&](const BoltPoint& b) { return near(b.y, 0) || near(b.y, half); };
      if (bZigzag) Cut(Line(inEither, byX), false, L"4", true);
    }
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
    if (!IsZero(m_group.m_dT)) Torque(centroid, MostStressedBolts(m_group).m_bClockwise);
  }

  // An arc of three quarters about the centroid.
  void Torque(CPoint centroid, bool bClockwise) {
    const double r = 17;
    const double side = bClockwise == (m_group.m_dT > 0) ? 1 : -1;
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

  const NormalBoltData& m_group;
  double m_dPlateWidth;
  double m_dPlateHeight;
  double m_dScale;
  double m_dLeft;
  CDrawing m_drawing;
};

}  // namespace

CStressedBolts MostStressedBolts(const NormalBoltData& group) {
  CStressedBolts stressed;
  const double clockwise = WorstRatio(group, 1);
  const double counter = WorstRatio(group, -1);
  stressed.m_bClockwise = clockwise >= counter - 1e-9;
  const double sense = stressed.m_bClockwise ? 1 : -1;
  const double worst = std::max(clockwise, counter);
  for (int i = 0; i < group.m_PointArr.GetSize(); ++i) {
    if (BoltRatio(group, group.m_PointArr[i], sense) >= worst * (1 - 1e-9) - 1e-12)
      stressed.m_arrBolt.push_back(i);
  }
  return stressed;
}

CDrawing BoltGroupDrawing(const NormalBoltData& group) { return CBoltPainter(group).Draw(); }

}  // namespace orv3
