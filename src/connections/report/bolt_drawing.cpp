#include "connections/report/bolt_drawing.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/torque_arrow.h"
#include "framework/elementary.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr double kPageWidth = 640;
constexpr double kMostHeight = 240;  // of the plate on the page
constexpr double kMargin = 66;       // around the plate: dimensions and loads

// The interaction ratio of one bolt; sense +1 for a clockwise torque.
double BoltRatio(const CBoltView& view, const CHole& bolt, double sense) {
  const CBoltCase& input = view.m_input;
  const CBoltResults& r = view.m_results;
  const CBoltShape& shape = view.m_shape;
  const bool bTorque = !IsZero(input.m_dT) && !IsZero(shape.SumR2());
  const double perMm = bTorque ? sense * std::fabs(input.m_dT) / shape.SumR2() : 0;
  const double x = input.m_dVx / r.m_nBolts + perMm * (bolt.m_y - shape.m_dYc);
  const double y = input.m_dVy / r.m_nBolts - perMm * (bolt.m_x - shape.m_dXc);
  const double shear = Hypot(x, y) / (view.m_judged.m_dShear * r.m_dBeta);
  const double tension =
      std::max(0.0, view.m_judged.m_dNtFirst + view.m_judged.m_dNtPerMm * bolt.m_y) / r.m_dNtb;
  return input.m_nType == kFrictionBolt ? shear + tension : Hypot(shear, tension);
}

double WorstRatio(const CBoltView& view, double sense) {
  double worst = 0;
  for (const CHole& bolt : view.m_shape.m_arrBolt)
    worst = std::max(worst, BoltRatio(view, bolt, sense));
  return worst;
}

class CBoltPainter {
 public:
  explicit CBoltPainter(const CBoltView& view)
      : m_view(view),
        m_input(view.m_input),
        m_shape(view.m_shape),
        m_dPlateWidth(m_shape.m_dWidth + 2 * m_input.m_dEx),
        m_dPlateHeight(m_shape.m_dHeight + 2 * m_input.m_dEy),
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
    return {m_dLeft + m_dScale * (x + m_input.m_dEx), kMargin + m_dScale * (y + m_input.m_dEy)};
  }
  double Right() const { return m_dLeft + m_dScale * m_dPlateWidth; }
  double Top() const { return kMargin + m_dScale * m_dPlateHeight; }

  void Axes() {
    const CPoint centroid = At(m_shape.m_dXc, m_shape.m_dYc);
    m_drawing.AddLine(CLayer::CentroidAxis, {m_dLeft - 12, centroid.y}, {Right() + 12, centroid.y});
    m_drawing.AddLine(CLayer::CentroidAxis, {centroid.x, kMargin - 12}, {centroid.x, Top() + 12});
  }

  void Bolts() {
    const double radius = std::max(1.0, m_dScale * m_view.m_results.m_dD0 / 2);
    const CPoint slot = SlotHalf();
    for (const CHole& bolt : m_shape.m_arrBolt) {
      if (slot.x > 0 || slot.y > 0)
        m_drawing.AddPath(CLayer::Outline, SlotPath(At(bolt.m_x, bolt.m_y), slot, radius));
      else
        m_drawing.AddCircle(CLayer::Outline, At(bolt.m_x, bolt.m_y), radius);
    }
    for (const int index : MostStressedBolts(m_view).m_arrBolt) {
      const CHole& bolt = m_shape.m_arrBolt[static_cast<std::size_t>(index)];
      m_drawing.AddArea(CLayer::CentroidAxis, {CirclePath(At(bolt.m_x, bolt.m_y), 0.8 * radius)});
    }
  }

  // From the middle of a slot to the centre of one round end, on the page; 0 for round holes, and
  // where the loads leave open which way the slots lie.
  CPoint SlotHalf() const {
    if (!m_view.Is2017()) return {0, 0};
    const CBoltTrace2017& trace = m_view.m_p2017->Trace();
    const double width = m_view.m_results.m_dD0;
    const double alongX = m_dScale * (trace.HoleRoom(false) - width) / 2;
    const double alongY = m_dScale * (trace.HoleRoom(true) - width) / 2;
    const bool bKnown = alongX <= 0 || alongY <= 0;
    return bKnown ? CPoint{std::max(0.0, alongX), std::max(0.0, alongY)} : CPoint{0, 0};
  }

  static CPath SlotPath(CPoint at, CPoint half, double radius) {
    const CPoint side = half.x > 0 ? CPoint{0, radius} : CPoint{-radius, 0};
    return {{{at.x - half.x - side.x, at.y - half.y - side.y, 0},
             {at.x + half.x - side.x, at.y + half.y - side.y, 1},
             {at.x + half.x + side.x, at.y + half.y + side.y, 0},
             {at.x - half.x + side.x, at.y - half.y + side.y, 1}},
            true};
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
    Cut(m_view.m_judged.m_x.m_arrHole, true, L"1");
    const bool bBoth = m_view.m_judged.m_x.Holes() > 0;
    Cut(m_view.m_judged.m_y.m_arrHole, false, bBoth ? L"2" : L"1");
  }

  // Edge, spacings and edge along one side: one by one while there is room, else in sum.
  void Chain(bool bVertical, double edge, const std::vector<double>& spacings) {
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
    const double sum = bVertical ? m_shape.m_dHeight : m_shape.m_dWidth;
    const std::size_t count = spacings.size();
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
    Chain(false, m_input.m_dEx, m_view.m_arrCol);
    Chain(true, m_input.m_dEy, m_view.m_arrRow);
  }

  void Force(CPoint tail, CPoint tip, CPoint label, const wchar_t* szName, CAnchor anchor) {
    m_drawing.AddArrow(CLayer::Text, tail, tip);
    m_drawing.AddLabel({.m_at = label, .m_strText = szName, .m_nAnchor = anchor});
  }

  void Loads() {
    const CPoint centroid = At(m_shape.m_dXc, m_shape.m_dYc);
    if (!IsZero(m_input.m_dVx)) {
      const double near = Right() + 26;
      const double far = near + 38;
      const bool bRight = m_input.m_dVx > 0;
      Force({bRight ? near : far, centroid.y}, {bRight ? far : near, centroid.y},
            {far + 5, centroid.y}, L"Vx", CAnchor::Left);
    }
    if (!IsZero(m_input.m_dVy)) {
      const double near = Top() + 20;
      const double far = Top() + 48;
      const bool bUp = m_input.m_dVy > 0;
      Force({centroid.x, bUp ? near : far}, {centroid.x, bUp ? far : near},
            {centroid.x + 6, far - 4}, L"Vy", CAnchor::Left);
    }
    if (!IsZero(m_input.m_dT))
      AddTorque(m_drawing, centroid, MostStressedBolts(m_view).m_bClockwise);
  }

  const CBoltView& m_view;
  const CBoltCase& m_input;
  const CBoltShape& m_shape;
  double m_dPlateWidth;
  double m_dPlateHeight;
  double m_dScale;
  double m_dLeft;
  CDrawing m_drawing;
};

}  // namespace

CStressedBolts MostStressedBolts(const CBoltView& view) {
  CStressedBolts stressed;
  const double clockwise = WorstRatio(view, 1);
  const double counter = WorstRatio(view, -1);
  stressed.m_bClockwise = clockwise >= counter - 1e-9;
  const double sense = stressed.m_bClockwise ? 1 : -1;
  const double worst = std::max(clockwise, counter);
  for (int i = 0; i < view.m_shape.Bolts(); ++i) {
    const CHole& bolt = view.m_shape.m_arrBolt[static_cast<std::size_t>(i)];
    if (BoltRatio(view, bolt, sense) >= worst * (1 - 1e-9) - 1e-12) stressed.m_arrBolt.push_back(i);
  }
  return stressed;
}

CDrawing BoltGroupDrawing(const CBoltView& view) { return CBoltPainter(view).Draw(); }

}  // namespace orv3
