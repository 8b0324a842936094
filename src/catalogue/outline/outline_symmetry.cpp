#include "catalogue/outline/outline_symmetry.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr double kSame = 1e-6;

CPoint EdgeMiddle(const CVertex& from, const CVertex& to) {
  if (from.bulge == 0) return {(from.x + to.x) / 2, (from.y + to.y) / 2};
  const CArc arc = EdgeArc(from, to);
  const double middle = arc.start + arc.sweep / 2;
  return {arc.center.x + arc.radius * Cos(middle), arc.center.y + arc.radius * Sin(middle)};
}

// Corners and the middles of edges, from the middle of the rectangle.
std::vector<CPoint> PointsOf(const COutline& outline) {
  std::vector<CPoint> points;
  const auto add = [&](CPoint p) {
    points.push_back({p.x - outline.m_dWidth / 2, p.y - outline.m_dHeight / 2});
  };
  for (const CPath& loop : outline.m_arrLoop) {
    const auto& vertices = loop.m_arrVertex;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      add({vertices[i].x, vertices[i].y});
      add(EdgeMiddle(vertices[i], vertices[(i + 1) % vertices.size()]));
    }
  }
  return points;
}

CPoint Mirrored(CPoint p, CMirrorLine line) {
  switch (line) {
    case CMirrorLine::Horizontal:
      return {p.x, -p.y};
    case CMirrorLine::Vertical:
      return {-p.x, p.y};
    case CMirrorLine::Rising:
      return {p.y, p.x};
    case CMirrorLine::Falling:
      break;
  }
  return {-p.y, -p.x};
}

}  // namespace

bool IsMirrored(const COutline& outline, CMirrorLine line) {
  const std::vector<CPoint> points = PointsOf(outline);
  return std::all_of(points.begin(), points.end(), [&](CPoint p) {
    const CPoint image = Mirrored(p, line);
    return std::any_of(points.begin(), points.end(), [&](CPoint q) {
      return std::fabs(q.x - image.x) < kSame && std::fabs(q.y - image.y) < kSame;
    });
  });
}

}  // namespace orv3
