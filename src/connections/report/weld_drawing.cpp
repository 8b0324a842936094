#include "connections/report/weld_drawing.h"

#include <algorithm>
#include <numbers>

#include "connections/cases/case_rules.h"
#include "framework/elementary.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr double kWidth = 640;
constexpr double kHeight = 196;
constexpr CPoint kDetail = {150, 94};  // centre of the section across the weld
constexpr double kArea = 340;          // left end of the weld's area on the page
constexpr double kAreaLength = 210;
constexpr double kAxis = 104;

CPath Polygon(std::vector<CPoint> corners) {
  CPath path;
  for (const CPoint corner : corners) path.m_arrVertex.push_back({corner.x, corner.y});
  return path;
}

CPoint Toward(CPoint from, double degrees, double length) {
  const double angle = degrees * std::numbers::pi / 180;
  return {from.x + length * Cos(angle), from.y + length * Sin(angle)};
}

CString Named(const char* szSign, double value) {
  return FromUtf8(std::string(szSign) + " = " + PlainNumber(value));
}

void Dimension(CDrawing& drawing, CPoint from, CPoint to, bool bVertical, double line,
               const CString& text) {
  CDimension dimension;
  dimension.m_bVertical = bVertical;
  dimension.m_from = from;
  dimension.m_to = to;
  dimension.m_dLine = line;
  dimension.m_strText = text;
  dimension.m_dTextAt = bVertical ? (from.y + to.y) / 2 : (from.x + to.x) / 2;
  drawing.AddDimension(dimension);
}

// The weld's area lw x thickness with N across it, V along it and M in its plane.
class CWeldArea {
 public:
  CWeldArea(CDrawing& drawing, double lw, double thickness) : m_drawing(drawing) {
    const double scale = kAreaLength / lw;
    m_dHalf = std::clamp(scale * thickness / 2, 4.0, 30.0);
    m_drawing.AddSection({RectPath(kArea, kAxis - m_dHalf, kAreaLength, 2 * m_dHalf)});
    m_drawing.AddLine(CLayer::CentroidAxis, {kArea - 14, kAxis}, {kArea + kAreaLength + 14, kAxis});
    Dimension(m_drawing, {kArea, kAxis - m_dHalf}, {kArea + kAreaLength, kAxis - m_dHalf}, false,
              kAxis - m_dHalf - 34, Named("lw", lw));
  }

  void Loads(int loadCase, double N, double M, double V) {
    const double middle = kArea + kAreaLength / 2;
    const double above = kAxis + m_dHalf + 6;
    if (TakesN(loadCase) && N != 0) {
      const double far = above + 44;
      m_drawing.AddArrow(CLayer::Text, {middle, N > 0 ? above : far},
                         {middle, N > 0 ? far : above});
      Label({middle + 7, far - 8}, "N", CAnchor::Left);
    }
    if (TakesV(loadCase) && V != 0) {
      const double near = kArea + kAreaLength + 18;
      const double far = near + 40;
      m_drawing.AddArrow(CLayer::Text, {V > 0 ? near : far, kAxis}, {V > 0 ? far : near, kAxis});
      Label({far + 5, kAxis}, "V", CAnchor::Left);
    }
    if (TakesM(loadCase) && M != 0) Moment(M > 0);
  }

 private:
  void Label(CPoint at, const char* szText, CAnchor anchor) {
    m_drawing.AddLabel({.m_at = at, .m_strText = FromUtf8(szText), .m_nAnchor = anchor});
  }

  // A half circle over the left end.
  void Moment(bool bClockwise) {
    const double r = 20;
    const CPoint centre = {kArea + 32, kAxis + m_dHalf + 8};
    CPath arc;
    arc.m_bClosed = false;
    arc.m_arrVertex = {{centre.x - r, centre.y, -1}, {centre.x + r, centre.y, 0}};
    m_drawing.AddPath(CLayer::Text, arc);
    const double end = centre.x + (bClockwise ? r : -r);
    m_drawing.AddArrowHead(CLayer::Text, {end, centre.y + 10}, {end, centre.y});
    Label({centre.x, centre.y + r + 10}, "M", CAnchor::Middle);
  }

  CDrawing& m_drawing;
  double m_dHalf = 0;
};

// Two plates at the angle of their faces, the weld in the corner, its leg and its throat.
void FilletDetail(CDrawing& drawing, const CFilletCase& input, double throat) {
  const double angle = input.m_dHf != 0 ? input.m_dAngle : 90;
  const CPoint corner = {kDetail.x - 30, kDetail.y - 30};
  constexpr double kPlate = 26;
  constexpr double kLeg = 62;
  drawing.AddSection({RectPath(corner.x - 70, corner.y - kPlate, 210, kPlate)});
  const CPoint end = Toward(corner, angle, 120);
  drawing.AddSection({Polygon(
      {corner, end, Toward(end, angle + 90, kPlate), Toward(corner, angle + 90, kPlate)})});
  const CPoint along = {corner.x + kLeg, corner.y};
  const CPoint up = Toward(corner, angle, kLeg);
  drawing.AddArea(CLayer::Outline, {Polygon({corner, along, up})});
  const CPoint face = {(along.x + up.x) / 2, (along.y + up.y) / 2};
  drawing.AddLine(CLayer::CentroidAxis, corner, Toward(face, angle / 2, 26));
  drawing.AddLabel({.m_nLayer = CLayer::CentroidAxis,
                    .m_at = Toward(face, angle / 2, 32),
                    .m_strText = Named("he", throat)});
  if (input.m_dHf == 0) return;
  Dimension(drawing, corner, along, false, corner.y - kPlate - 22, Named("hf", input.m_dHf));
  drawing.AddLabel({.m_nLayer = CLayer::Dimension,
                    .m_at = {corner.x - 74, corner.y + 16},
                    .m_strText = FromUtf8("α = " + PlainNumber(angle) + "°"),
                    .m_dSize = 11});
}

// A plate that lies on the edge of another, the weld along its edge.
void LapDetail(CDrawing& drawing, const CFilletCase& input, double throat) {
  constexpr double kPlate = 44;
  const CPoint corner = {kDetail.x - 6, kDetail.y - 14};
  drawing.AddSection({RectPath(corner.x - 110, corner.y, 110, kPlate)});
  drawing.AddSection({RectPath(corner.x - 60, corner.y - kPlate, 190, kPlate)});
  const CPoint along = {corner.x + kPlate, corner.y};
  drawing.AddArea(CLayer::Outline, {Polygon({corner, along, {corner.x, corner.y + kPlate}})});
  const CPoint face = {corner.x + kPlate / 2, corner.y + kPlate / 2};
  drawing.AddLine(CLayer::CentroidAxis, corner, Toward(face, 45, 26));
  drawing.AddLabel({.m_nLayer = CLayer::CentroidAxis,
                    .m_at = Toward(face, 45, 32),
                    .m_strText = Named("he", throat)});
  Dimension(drawing, corner, along, false, corner.y - kPlate - 22, Named("hf", input.m_dHf));
}

// Two plates end to end with a groove that is open to the top by `width`, `depth` of the plate
// deep.
void GrooveDetail(CDrawing& drawing, bool bOneSide, bool bBothFaces, double depth) {
  constexpr double kPlate = 72;
  constexpr double kReach = 105;
  const double bottom = kDetail.y - kPlate / 2;
  const double top = bottom + kPlate;
  drawing.AddSection({RectPath(kDetail.x - kReach, bottom, 2 * kReach, kPlate)});
  drawing.AddLine(CLayer::Outline, {kDetail.x, bottom}, {kDetail.x, top});
  const double open = 34;
  const double left = bOneSide ? 0 : open;
  const double deep = depth * kPlate / (bBothFaces ? 2 : 1);
  drawing.AddArea(CLayer::Outline, {Polygon({{kDetail.x, top - deep},
                                             {kDetail.x + open, top},
                                             {kDetail.x, top + 6},
                                             {kDetail.x - left, top}})});
  if (!bBothFaces) return;
  drawing.AddArea(CLayer::Outline, {Polygon({{kDetail.x, bottom + deep},
                                             {kDetail.x - left, bottom},
                                             {kDetail.x, bottom - 6},
                                             {kDetail.x + open, bottom}})});
}

}  // namespace

CDrawing FilletDrawing(const CFilletCase& input, double throat, bool bLap) {
  CDrawing drawing(kWidth, kHeight);
  if (input.m_dS != 0) {
    const bool bOneSide = input.m_nGroove == 1 || input.m_nGroove == 2 || input.m_nGroove == 4;
    const bool bBothFaces = input.m_nGroove == 2;
    GrooveDetail(drawing, bOneSide, bBothFaces, 0.62);
    const double top = kDetail.y + 36;
    Dimension(drawing, {kDetail.x + 40, top - 0.62 * (bBothFaces ? 36 : 72)}, {kDetail.x + 40, top},
              true, kDetail.x + 128, Named("s", input.m_dS));
    drawing.AddLabel({.m_nLayer = CLayer::CentroidAxis,
                      .m_at = {kDetail.x, top + 24},
                      .m_strText = Named("he", throat),
                      .m_nAnchor = CAnchor::Middle});
  } else if (bLap && IsRightAngle(input.m_dAngle)) {
    LapDetail(drawing, input, throat);
  } else {
    FilletDetail(drawing, input, throat);
  }
  CWeldArea area(drawing, input.m_dLw, throat);
  area.Loads(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV);
  return drawing;
}

CDrawing ButtDrawing(const CButtCase& input) {
  CDrawing drawing(kWidth, kHeight);
  GrooveDetail(drawing, false, false, 1);
  const double left = kDetail.x - 105;
  Dimension(drawing, {left, kDetail.y - 36}, {left, kDetail.y + 36}, true, left - 24,
            Named("t", input.m_dThick));
  CWeldArea area(drawing, input.m_dLw, input.m_dThick);
  area.Loads(input.m_nLoadCase, input.m_dN, input.m_dM, input.m_dV);
  return drawing;
}

}  // namespace orv3
