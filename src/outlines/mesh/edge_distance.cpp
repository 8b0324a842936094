#include "outlines/mesh/edge_distance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "framework/elementary.h"

namespace orv3 {

double Distance(CPoint a, CPoint b) { return Hypot(a.x - b.x, a.y - b.y); }

CCircle CircleOf(const CEdge& arc) {
  const CPoint middle = arc.At(0.5), d = arc.Derivative(0.5);
  const double radius = arc.Length() / arc.Sweep();
  return {{middle.x - d.y / arc.Length() * radius, middle.y + d.x / arc.Length() * radius},
          std::fabs(radius)};
}

bool IsBeside(CPoint p, const CEdge& arc, const CCircle& circle) {
  const CPoint middle = arc.At(0.5);
  const CPoint u{p.x - circle.center.x, p.y - circle.center.y};
  const CPoint m{middle.x - circle.center.x, middle.y - circle.center.y};
  const double angle = Atan2(m.x * u.y - m.y * u.x, m.x * u.x + m.y * u.y);
  return 2 * std::fabs(angle) <= std::fabs(arc.Sweep());
}

CPoint Foot(CPoint p, CPoint a, CPoint b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  const double t =
      square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0.0;
  return {a.x + t * dx, a.y + t * dy};
}

CNear Nearest(CPoint p, CPoint a, CPoint b) {
  return {Distance(p, Foot(p, a, b)), (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x) > 0};
}

CNear Nearest(CPoint p, const CEdge& edge) {
  const CPoint a = edge.At(0), b = edge.At(1);
  if (std::fabs(edge.Sweep()) < 1e-3) return Nearest(p, a, b);
  const CCircle circle = CircleOf(edge);
  const double away = Distance(p, circle.center);
  const bool left = (away < circle.radius) == (edge.Sweep() > 0);
  if (IsBeside(p, edge, circle)) return {std::fabs(away - circle.radius), left};
  return {std::min(Distance(p, a), Distance(p, b)), left};
}

double Turned(CPoint p, const CEdge& edge) {
  const CPoint a = edge.At(0), b = edge.At(1);
  const CPoint u{a.x - p.x, a.y - p.y}, v{b.x - p.x, b.y - p.y};
  const double chord = Atan2(u.x * v.y - u.y * v.x, u.x * v.x + u.y * v.y);
  if (!edge.IsArc()) return chord;
  // Between the arc and its chord a whole turn more.
  const CCircle circle = CircleOf(edge);
  const double sense = edge.Sweep() > 0 ? 1 : -1;
  const bool bBeyond = sense * (u.x * v.y - u.y * v.x) < 0;
  const bool bBetween = bBeyond && Distance(p, circle.center) < circle.radius;
  return bBetween ? chord + sense * 2 * std::numbers::pi : chord;
}

}  // namespace orv3
