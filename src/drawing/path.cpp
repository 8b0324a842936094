#include "drawing/path.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr int kMaxChords = 256;

CPoint PointAt(const CArc& arc, double part) {
  const double angle = arc.start + arc.sweep * part;
  return {arc.center.x + arc.radius * Cos(angle), arc.center.y + arc.radius * Sin(angle)};
}

// Calls visit(from, to) for every edge.
template <class Visit>
void ForEachEdge(const CPath& path, Visit visit) {
  const auto& vertices = path.m_arrVertex;
  for (std::size_t i = 0; i + 1 < vertices.size(); ++i) visit(vertices[i], vertices[i + 1]);
  if (path.m_bClosed && vertices.size() > 1) visit(vertices.back(), vertices.front());
}

void AddPoint(CBox& box, bool& first, CPoint p) {
  if (std::exchange(first, false)) box = {p.x, p.y, p.x, p.y};
  box.left = std::min(box.left, p.x);
  box.right = std::max(box.right, p.x);
  box.bottom = std::min(box.bottom, p.y);
  box.top = std::max(box.top, p.y);
}

// The points where an arc is farthest left, right, up or down.
void AddArcExtremes(CBox& box, bool& first, const CArc& arc) {
  const double quarter = std::numbers::pi / 2;
  const double low = std::min(arc.start, arc.start + arc.sweep);
  const double high = std::max(arc.start, arc.start + arc.sweep);
  for (double k = std::ceil(low / quarter); k * quarter <= high; ++k) {
    AddPoint(box, first,
             {arc.center.x + arc.radius * Cos(k * quarter),
              arc.center.y + arc.radius * Sin(k * quarter)});
  }
}

// A corner with the unit vectors along its edges.
struct CBend {
  CPoint u;          // towards the corner before
  CPoint v;          // towards the corner after
  double angle = 0;  // between them
  double cut = 0;    // from the corner to the ends of its arc; 0 for a sharp one
};

CBend BendOf(const CCorner& before, const CCorner& at, const CCorner& after) {
  const double toBefore = Hypot(before.x - at.x, before.y - at.y);
  const double toAfter = Hypot(after.x - at.x, after.y - at.y);
  if (!(at.radius > 0) || toBefore == 0 || toAfter == 0) return {};
  CBend bend{{(before.x - at.x) / toBefore, (before.y - at.y) / toBefore},
             {(after.x - at.x) / toAfter, (after.y - at.y) / toAfter}};
  bend.angle = Acos(std::clamp(bend.u.x * bend.v.x + bend.u.y * bend.v.y, -1.0, 1.0));
  bend.cut = at.radius / Tan(bend.angle / 2);
  return bend;
}

void AddBend(CPath& path, const CCorner& at, const CBend& bend, double cut) {
  if (!(cut > 0)) {
    path.m_arrVertex.push_back({at.x, at.y, 0});
    return;
  }
  const double turn = bend.u.y * bend.v.x - bend.u.x * bend.v.y;  // positive for a left turn
  const double bulge = std::copysign(Tan((std::numbers::pi - bend.angle) / 4), turn);
  path.m_arrVertex.push_back({at.x + bend.u.x * cut, at.y + bend.u.y * cut, bulge});
  path.m_arrVertex.push_back({at.x + bend.v.x * cut, at.y + bend.v.y * cut, 0});
}

}  // namespace

CPath RectPath(double left, double bottom, double width, double height) {
  return {{{left, bottom, 0},
           {left + width, bottom, 0},
           {left + width, bottom + height, 0},
           {left, bottom + height, 0}},
          true};
}

CPath CirclePath(CPoint center, double radius) {
  return {{{center.x + radius, center.y, 1}, {center.x - radius, center.y, 1}}, true};
}

CPath LinePath(CPoint from, CPoint to) { return {{{from.x, from.y, 0}, {to.x, to.y, 0}}, false}; }

CPath RoundedPath(std::span<const CCorner> corners) {
  CPath path;
  const std::size_t n = corners.size();
  std::vector<CBend> bends(n);
  for (std::size_t i = 0; i < n; ++i)
    bends[i] = BendOf(corners[(i + n - 1) % n], corners[i], corners[(i + 1) % n]);
  // What a bend may take of the edge that it shares with another.
  const auto room = [&](std::size_t i, std::size_t other) {
    const double edge = Hypot(corners[i].x - corners[other].x, corners[i].y - corners[other].y);
    return std::max(edge / 2, edge - bends[other].cut);
  };
  for (std::size_t i = 0; i < n; ++i) {
    const double fits = std::min(room(i, (i + n - 1) % n), room(i, (i + 1) % n));
    AddBend(path, corners[i], bends[i], std::min(bends[i].cut, fits));
  }
  return path;
}

CArc EdgeArc(const CVertex& from, const CVertex& to) {
  const double sweep = 4 * Atan(from.bulge);
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  // From the chord's middle to the center, as a share of the chord, to the left of its direction.
  const double shift = (1 - from.bulge * from.bulge) / (4 * from.bulge);
  const CPoint center{(from.x + to.x) / 2 - shift * dy, (from.y + to.y) / 2 + shift * dx};
  return {center, Hypot(from.x - center.x, from.y - center.y),
          Atan2(from.y - center.y, from.x - center.x), sweep};
}

CPath Moved(CPath path, double dx, double dy) {
  for (CVertex& v : path.m_arrVertex) {
    v.x += dx;
    v.y += dy;
  }
  return path;
}

CPath Turned(CPath path, double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  const double c = Cos(angle);
  const double s = Sin(angle);
  for (CVertex& v : path.m_arrVertex) v = {c * v.x - s * v.y, s * v.x + c * v.y, v.bulge};
  return path;
}

CPath Reversed(CPath path) {
  auto& vertices = path.m_arrVertex;
  std::reverse(vertices.begin(), vertices.end());
  // The edge that left a vertex now leaves its other end.
  if (!vertices.empty()) {
    const double first = vertices.front().bulge;
    for (std::size_t i = 0; i + 1 < vertices.size(); ++i)
      vertices[i].bulge = -vertices[i + 1].bulge;
    vertices.back().bulge = -first;
  }
  return path;
}

CPath MirroredX(CPath path) {
  for (CVertex& v : path.m_arrVertex) v = {-v.x, v.y, -v.bulge};
  return Reversed(std::move(path));
}

CPath MirroredY(CPath path) {
  for (CVertex& v : path.m_arrVertex) v = {v.x, -v.y, -v.bulge};
  return Reversed(std::move(path));
}

CBox PathBounds(std::span<const CPath> paths) {
  CBox box;
  bool first = true;
  for (const CPath& path : paths) {
    for (const CVertex& v : path.m_arrVertex) AddPoint(box, first, {v.x, v.y});
    ForEachEdge(path, [&](const CVertex& from, const CVertex& to) {
      if (from.bulge != 0) AddArcExtremes(box, first, EdgeArc(from, to));
    });
  }
  return box;
}

std::vector<CPoint> Flattened(const CPath& path, double tolerance) {
  std::vector<CPoint> points;
  if (path.m_arrVertex.empty()) return points;
  points.push_back({path.m_arrVertex[0].x, path.m_arrVertex[0].y});
  ForEachEdge(path, [&](const CVertex& from, const CVertex& to) {
    if (from.bulge != 0) {
      const CArc arc = EdgeArc(from, to);
      const double step = 2 * Acos(std::clamp(1 - tolerance / arc.radius, 0.0, 0.999));
      const int chords = static_cast<int>(
          std::clamp(std::ceil(std::fabs(arc.sweep) / step), 1.0, 1.0 * kMaxChords));
      for (int i = 1; i < chords; ++i) points.push_back(PointAt(arc, 1.0 * i / chords));
    }
    points.push_back({to.x, to.y});
  });
  return points;
}

bool IsFinite(const CPath& path) noexcept {
  return std::all_of(path.m_arrVertex.begin(), path.m_arrVertex.end(), [](const CVertex& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.bulge);
  });
}

}  // namespace orv3
