#include "outlines/crossing.h"

#include <cmath>

#include "outlines/edge.h"

namespace orv3 {

double LoopArea(const CPath& loop) {
  if (loop.m_arrVertex.empty()) return 0;
  const CVertex& o = loop.m_arrVertex[0];
  double twice = 0;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    if (edge.IsArc()) {
      twice += Integrate(edge, 0, 1,
                         [&](CPoint p, CPoint d) { return (p.x - o.x) * d.y - (p.y - o.y) * d.x; });
    } else {
      const CPoint a = edge.At(0), b = edge.At(1);
      twice += (a.x - o.x) * (b.y - o.y) - (b.x - o.x) * (a.y - o.y);
    }
  });
  return twice / 2;
}

bool Encloses(const CPath& loop, CPoint point) {
  // The angle under which the loop is seen, summed over its edges.
  double angle = 0;
  const auto seen = [&](CPoint a, CPoint b) {
    const double ux = a.x - point.x, uy = a.y - point.y, vx = b.x - point.x, vy = b.y - point.y;
    angle += std::atan2(ux * vy - uy * vx, ux * vx + uy * vy);
  };
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    const int chords = edge.IsArc() ? 1 + static_cast<int>(std::fabs(edge.Sweep()) * 16) : 1;
    for (int i = 0; i < chords; ++i) seen(edge.At(1.0 * i / chords), edge.At((i + 1.0) / chords));
  });
  return std::fabs(angle) > 3;
}

}  // namespace orv3
