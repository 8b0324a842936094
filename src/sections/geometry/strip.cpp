#include "sections/geometry/strip.h"

#include "framework/elementary.h"

namespace orv3 {

namespace {

struct CDirection {
  double x, y, length;
};

CDirection Along(CStripPoint from, CStripPoint to) {
  const double x = to.x - from.x, y = to.y - from.y;
  const double length = Hypot(x, y);
  return {x / length, y / length, length};
}

// What rounding the corner at height y adds: the arc, less the tangents it replaces.
double CornerMoment(double y, CDirection in, CDirection out, double r) {
  const double half = Acos(in.x * out.x + in.y * out.y) / 2;
  const double tangent = r * Tan(half);
  // From the corner towards the arc's centre.
  const double inward = (out.y - in.y) / (2 * Sin(half));
  const double toArc = r / Cos(half) - r * Sin(half) / half;
  const double straight = tangent * (2 * y + (out.y - in.y) * tangent / 2);
  return 2 * r * half * (y + inward * toArc) - straight;
}

}  // namespace

double StripMoment(std::span<const CStripPoint> points, double r, double t) {
  double moment = 0;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const CDirection out = Along(points[i], points[i + 1]);
    moment += out.length * (points[i].y + points[i + 1].y) / 2;
    if (i > 0) moment += CornerMoment(points[i].y, Along(points[i - 1], points[i]), out, r);
  }
  return moment * t;
}

}  // namespace orv3
