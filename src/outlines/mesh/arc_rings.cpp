#include "outlines/mesh/arc_rings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "framework/elementary.h"
#include "outlines/mesh/edge_distance.h"

namespace orv3 {
namespace {

constexpr int kRays = 8;
constexpr std::size_t kFewRings = 2;  // a mesh without them follows the arc as well
constexpr std::size_t kMostPoints = 3000;
// Points keep off the boundary and each other by this part of their distance in a ring.
constexpr double kClear = 0.5;

bool IsFree(CPoint p, double clear, const std::vector<CEdge>& edges,
            const std::vector<CPoint>& points) {
  for (CPoint other : points) {
    if (Distance(p, other) < clear) return false;
  }
  double turned = 0;
  for (const CEdge& edge : edges) {
    if (Nearest(p, edge).distance < clear) return false;
    turned += Turned(p, edge);
  }
  return turned > std::numbers::pi;
}

}  // namespace

void AddRings(const std::vector<CEdge>& edges, std::vector<CPoint>& to) {
  for (const CEdge& arc : edges) {
    if (!arc.IsArc() || arc.Sweep() > 0) continue;
    const CCircle circle = CircleOf(arc);
    const CPoint middle = arc.At(0.5);
    const double first = Atan2(middle.y - circle.center.y, middle.x - circle.center.x);
    const std::size_t before = to.size();
    std::size_t rings = 0;
    for (double radius = 2 * circle.radius; radius < 1; radius *= 2) {
      const std::size_t had = to.size();
      const double step = 2 * std::numbers::pi / kRays;
      for (int i = 0; i < kRays; ++i) {
        const double angle = first + (i + 0.5 * static_cast<double>(rings % 2)) * step;
        const CPoint p{circle.center.x + radius * Cos(angle),
                       circle.center.y + radius * Sin(angle)};
        if (IsFree(p, kClear * step * radius, edges, to)) to.push_back(p);
      }
      if (to.size() == had) break;
      ++rings;
    }
    if (rings <= kFewRings) to.resize(before);
    if (to.size() > kMostPoints) return;
  }
}

}  // namespace orv3
