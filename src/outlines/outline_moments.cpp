#include "outlines/outline_moments.h"

#include "outlines/edge.h"

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

// The sector between the origin and an arc, likewise.
void AddArc(CIntegrals& sum, const CEdge& arc) {
  CIntegrals over;
  ForEachGaussPoint(arc, 0, 1, [&over](CPoint p, CPoint d, double weight) {
    const double cross = p.x * d.y - p.y * d.x;
    over.one += weight * cross;
    over.x += weight * (cross * p.x);
    over.y += weight * (cross * p.y);
    over.xx += weight * (cross * (p.x * p.x));
    over.yy += weight * (cross * (p.y * p.y));
    over.xy += weight * (cross * (p.x * p.y));
  });
  sum.one += over.one / 2;
  sum.x += over.x / 3;
  sum.y += over.y / 3;
  sum.xx += over.xx / 4;
  sum.yy += over.yy / 4;
  sum.xy += over.xy / 4;
}

void AddLoop(CIntegrals& sum, const CPath& loop) {
  const auto& vertices = loop.m_arrVertex;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t i) {
    const CVertex& to = vertices[(i + 1) % vertices.size()];
    if (edge.IsArc()) return AddArc(sum, edge);
    AddEdge(sum, {vertices[i].x, vertices[i].y}, {to.x, to.y});
  });
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
