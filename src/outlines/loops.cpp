#include "outlines/loops.h"

#include <cmath>
#include <numbers>

#include "framework/elementary.h"
#include "outlines/edge.h"

namespace orv3 {
namespace {

double Cross(CPoint a, CPoint b) { return a.x * b.y - a.y * b.x; }
double Dot(CPoint a, CPoint b) { return a.x * b.x + a.y * b.y; }
CPoint Minus(CPoint a, CPoint b) { return {a.x - b.x, a.y - b.y}; }

}  // namespace

double LoopArea(const CPath& loop) {
  if (loop.m_arrVertex.empty()) return 0;
  const CPoint o{loop.m_arrVertex[0].x, loop.m_arrVertex[0].y};
  double twice = 0;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    if (edge.IsArc()) {
      twice += Integrate(edge, 0, 1, [&](CPoint p, CPoint d) { return Cross(Minus(p, o), d); });
    } else {
      twice += Cross(Minus(edge.At(0), o), Minus(edge.At(1), o));
    }
  });
  return twice / 2;
}

bool Encloses(const CPath& loop, CPoint point) {
  const CBox box = PathBounds({&loop, 1});
  if (point.x < box.left || point.x > box.right || point.y < box.bottom || point.y > box.top)
    return false;
  // The angle under which the loop is seen, summed over its edges.
  double angle = 0;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    const int chords = edge.IsArc() ? 1 + static_cast<int>(std::fabs(edge.Sweep()) * 16) : 1;
    for (int i = 0; i < chords; ++i) {
      const CPoint u = Minus(edge.At(1.0 * i / chords), point);
      const CPoint v = Minus(edge.At((i + 1.0) / chords), point);
      angle += Atan2(Cross(u, v), Dot(u, v));
    }
  });
  return std::fabs(angle) > 3;
}

}  // namespace orv3
