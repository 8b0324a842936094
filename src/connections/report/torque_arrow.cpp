#include "connections/report/torque_arrow.h"

namespace orv3 {

void AddTorque(CDrawing& drawing, CPoint about, bool bClockwise) {
  constexpr double r = 17;
  const double side = bClockwise ? 1 : -1;
  CPath arc;
  arc.m_bClosed = false;
  constexpr double kThreeQuarters = 2.414213562373095;  // tan(270 / 4 degrees)
  arc.m_arrVertex = {{about.x, about.y - r, -side * kThreeQuarters},
                     {about.x + side * r, about.y, 0}};
  drawing.AddPath(CLayer::Text, arc);
  drawing.AddArrowHead(CLayer::Text, {about.x + side * r, about.y + 8},
                       {about.x + side * r, about.y - 2});
  drawing.AddLabel({.m_nLayer = CLayer::Text,
                    .m_at = {about.x + side * (r + 5), about.y + 14},
                    .m_strText = L"T",
                    .m_nAnchor = side > 0 ? CAnchor::Left : CAnchor::Right});
}

}  // namespace orv3
