#include "outlines/outline_moments.h"

#include <cmath>

namespace orv3 {
namespace {

// Integrals of 1, x, y, x^2, y^2 and x y over an area.
struct CIntegrals {
  double one = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

// The triangle between the origin and a straight edge, by Green's theorem.
void AddEdge(CIntegrals& sum, CPoint a, CPoint b) {
  const double cross = a.x * b.y - b.x * a.y;
  sum.one += cross / 2;
  sum.x += cross * (a.x + b.x) / 6;
  sum.y += cross * (a.y + b.y) / 6;
  sum.xx += cross * (a.x * a.x + a.x * b.x + b.x * b.x) / 12;
  sum.yy += cross * (a.y * a.y + a.y * b.y + b.y * b.y) / 12;
  sum.xy += cross * (2 * a.x * a.y + a.x * b.y + b.x * a.y + 2 * b.x * b.y) / 24;
}

// The circular segment between an arc and its chord: material when the arc runs counter-clockwise.
void AddSegment(CIntegrals& sum, const CArc& arc) {
  const double sweep = std::fabs(arc.sweep);
  const double sign = arc.sweep < 0 ? -1 : 1;
  const double r2 = arc.radius * arc.radius;
  const double half = std::sin(sweep / 2);
  // About the circle's center, u along the line to the arc's middle, v across it.
  const double area = sign * r2 / 2 * (sweep - std::sin(sweep));
  const double u = sign * r2 * arc.radius * 2 / 3 * half * half * half;
  const double twist = 2 * std::sin(sweep) * half * half;
  const double uu = sign * r2 * r2 / 8 * (sweep - std::sin(sweep) + twist);
  const double vv = sign * r2 * r2 / 24 * (3 * (sweep - std::sin(sweep)) - twist);
  const double middle = arc.start + arc.sweep / 2;
  const double c = std::cos(middle);
  const double s = std::sin(middle);
  const CPoint o = arc.center;
  sum.one += area;
  sum.x += area * o.x + u * c;
  sum.y += area * o.y + u * s;
  sum.xx += area * o.x * o.x + 2 * o.x * u * c + uu * c * c + vv * s * s;
  sum.yy += area * o.y * o.y + 2 * o.y * u * s + uu * s * s + vv * c * c;
  sum.xy += area * o.x * o.y + u * (o.x * s + o.y * c) + (uu - vv) * c * s;
}

void AddLoop(CIntegrals& sum, const CPath& loop) {
  const auto& vertices = loop.m_arrVertex;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const CVertex& from = vertices[i];
    const CVertex& to = vertices[(i + 1) % vertices.size()];
    AddEdge(sum, {from.x, from.y}, {to.x, to.y});
    if (from.bulge != 0) AddSegment(sum, EdgeArc(from, to));
  }
}

}  // namespace

COutlineMoments RowOutlineMoments(std::span<const CPath> loops) {
  // About the middle of the bounding box, so that distant outlines lose no digits.
  const CBox box = PathBounds(loops);
  const CPoint middle{(box.left + box.right) / 2, (box.bottom + box.top) / 2};
  CIntegrals sum;
  for (const CPath& loop : loops) AddLoop(sum, Moved(loop, -middle.x, -middle.y));
  if (sum.one == 0) return {};
  const double x = sum.x / sum.one;
  const double y = sum.y / sum.one;
  return {sum.one,
          {middle.x + x, middle.y + y},
          sum.yy - sum.y * y,
          sum.xx - sum.x * x,
          sum.xy - sum.x * y};
}

}  // namespace orv3
