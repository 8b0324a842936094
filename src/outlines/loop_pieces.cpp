#include "outlines/loop_pieces.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "framework/elementary.h"

namespace orv3 {
namespace {

bool IsNear(CPoint a, CPoint b, double tolerance) {
  return Hypot(a.x - b.x, a.y - b.y) <= tolerance;
}

bool InBox(const CBox& box, CPoint p, double slack) {
  return p.x >= box.left - slack && p.x <= box.right + slack && p.y >= box.bottom - slack &&
         p.y <= box.top + slack;
}

CPoint PointAt(const CArc& arc, double angle) {
  return {arc.center.x + arc.radius * Cos(angle), arc.center.y + arc.radius * Sin(angle)};
}

// The angles between an arc's ends at which its circle turns from rising to falling; none so near
// an end that the piece between would be no longer than the tolerance.
std::vector<double> Turns(const CArc& arc, double tolerance) {
  constexpr double quarter = std::numbers::pi / 2;
  const double slack = std::max(1e-9, 8 * tolerance / arc.radius);
  const double low = std::min(arc.start, arc.start + arc.sweep) + slack;
  const double high = std::max(arc.start, arc.start + arc.sweep) - slack;
  std::vector<double> angles;
  for (double k = std::ceil(low / quarter); k * quarter <= high; ++k) angles.push_back(k * quarter);
  if (arc.sweep < 0) std::reverse(angles.begin(), angles.end());
  return angles;
}

class CPieceMaker {
 public:
  explicit CPieceMaker(double tolerance) : m_dTolerance(tolerance) {}

  void AddLoop(const CPath& loop, int number) {
    const auto& vertices = loop.m_arrVertex;
    const std::size_t first = m_arrPiece.size();
    for (std::size_t i = 0; i < vertices.size(); ++i)
      AddEdge(vertices[i], vertices[(i + 1) % vertices.size()], number);
    if (m_arrPiece.size() > first) m_arrPiece.back().m_nNext = static_cast<int>(first);
  }
  std::vector<CLoopPiece> Take() { return std::move(m_arrPiece); }

 private:
  void Add(CLoopPiece piece) {
    piece.m_nNext = static_cast<int>(m_arrPiece.size()) + 1;
    m_arrPiece.push_back(piece);
  }
  void AddEdge(const CVertex& from, const CVertex& to, int loop) {
    CLoopPiece piece{{from.x, from.y}, {to.x, to.y}, {}, 0, loop, 0};
    const double chord = Hypot(to.x - from.x, to.y - from.y);
    if (std::fabs(from.bulge) * chord / 2 <= m_dTolerance) return Add(piece);
    const CArc arc = EdgeArc(from, to);
    piece.m_center = arc.center;
    piece.m_dRadius = arc.radius;
    const CPoint end = piece.m_to;
    for (const double angle : Turns(arc, m_dTolerance)) {
      piece.m_to = PointAt(arc, angle);
      Add(piece);
      piece.m_from = piece.m_to;
    }
    piece.m_to = end;
    Add(piece);
  }

  const double m_dTolerance;
  std::vector<CLoopPiece> m_arrPiece;
};

// --- Where two pieces meet -----------------------------------------------------------------------

using CPoints = std::vector<CPoint>;

// On the whole line or circle of each; the caller keeps those on the pieces.
void LineLine(const CLoopPiece& a, const CLoopPiece& b, CPoints& found) {
  const CPoint u{a.m_to.x - a.m_from.x, a.m_to.y - a.m_from.y};
  const CPoint v{b.m_to.x - b.m_from.x, b.m_to.y - b.m_from.y};
  const double cross = u.x * v.y - u.y * v.x;
  if (cross == 0) return;
  const double t = ((b.m_from.x - a.m_from.x) * v.y - (b.m_from.y - a.m_from.y) * v.x) / cross;
  found.push_back({a.m_from.x + t * u.x, a.m_from.y + t * u.y});
}

// Half the chord of a circle at a distance from its middle; a line that passes within the tolerance
// touches it. Below 0: apart.
double HalfChord(double radius, double distance, double tolerance) {
  if (distance > radius + tolerance) return -1;
  return std::sqrt(std::max(0.0, (radius - distance) * (radius + distance)));
}

void LineArc(const CLoopPiece& line, const CLoopPiece& arc, double tolerance, CPoints& found) {
  const double dx = line.m_to.x - line.m_from.x;
  const double dy = line.m_to.y - line.m_from.y;
  const double length = Hypot(dx, dy);
  const CPoint u{dx / length, dy / length};
  const CPoint o{arc.m_center.x - line.m_from.x, arc.m_center.y - line.m_from.y};
  const double along = o.x * u.x + o.y * u.y;
  const double half = HalfChord(arc.m_dRadius, std::fabs(o.x * u.y - o.y * u.x), tolerance);
  if (half < 0) return;
  for (const double t : {along - half, along + half})
    found.push_back({line.m_from.x + t * u.x, line.m_from.y + t * u.y});
}

void ArcArc(const CLoopPiece& a, const CLoopPiece& b, double tolerance, CPoints& found) {
  const double dx = b.m_center.x - a.m_center.x;
  const double dy = b.m_center.y - a.m_center.y;
  const double apart = Hypot(dx, dy);
  if (apart <= tolerance || apart < std::fabs(a.m_dRadius - b.m_dRadius) - tolerance) return;
  const double along =
      (apart + (a.m_dRadius - b.m_dRadius) * (a.m_dRadius + b.m_dRadius) / apart) / 2;
  const double half = HalfChord(a.m_dRadius, std::fabs(along), tolerance);
  if (half < 0) return;
  const CPoint u{dx / apart, dy / apart};
  for (const double h : {-half, half})
    found.push_back({a.m_center.x + along * u.x - h * u.y, a.m_center.y + along * u.y + h * u.x});
}

bool IsOn(const CLoopPiece& piece, CPoint p, double tolerance) {
  if (!InBox(piece.Box(), p, tolerance)) return false;
  if (piece.IsArc()) {
    const double r = Hypot(p.x - piece.m_center.x, p.y - piece.m_center.y);
    return std::fabs(r - piece.m_dRadius) <= tolerance;
  }
  const double dx = piece.m_to.x - piece.m_from.x;
  const double dy = piece.m_to.y - piece.m_from.y;
  const double off = (p.x - piece.m_from.x) * dy - (p.y - piece.m_from.y) * dx;
  return std::fabs(off) <= tolerance * Hypot(dx, dy);
}

}  // namespace

CBox CLoopPiece::Box() const noexcept {
  return {std::min(m_from.x, m_to.x), std::min(m_from.y, m_to.y), std::max(m_from.x, m_to.x),
          std::max(m_from.y, m_to.y)};
}

std::vector<CLoopPiece> LoopPieces(std::span<const CPath> loops, double tolerance) {
  CPieceMaker maker(tolerance);
  for (std::size_t i = 0; i < loops.size(); ++i) maker.AddLoop(loops[i], static_cast<int>(i));
  return maker.Take();
}

std::vector<CPoint> Meetings(const CLoopPiece& a, const CLoopPiece& b, double tolerance) {
  CPoints crossings;
  if (a.IsArc() && b.IsArc()) {
    ArcArc(a, b, tolerance, crossings);
  } else if (a.IsArc()) {
    LineArc(b, a, tolerance, crossings);
  } else if (b.IsArc()) {
    LineArc(a, b, tolerance, crossings);
  } else {
    LineLine(a, b, crossings);
  }
  CPoints found;
  const CBox boxA = a.Box();
  const CBox boxB = b.Box();
  for (const CPoint p : crossings) {
    if (InBox(boxA, p, tolerance) && InBox(boxB, p, tolerance)) found.push_back(p);
  }
  for (const CPoint p : {a.m_from, a.m_to}) {
    if (IsOn(b, p, tolerance)) found.push_back(p);
  }
  for (const CPoint p : {b.m_from, b.m_to}) {
    if (IsOn(a, p, tolerance)) found.push_back(p);
  }
  CPoints once;
  for (const CPoint p : found) {
    if (std::none_of(once.begin(), once.end(), [&](CPoint q) { return IsNear(p, q, tolerance); }))
      once.push_back(p);
  }
  return once;
}

double LoopSize(std::span<const CPath> loops) {
  CBox box{1e300, 1e300, -1e300, -1e300};
  for (const CPath& loop : loops) {
    for (const CVertex& v : loop.m_arrVertex) {
      box = {std::min(box.left, v.x), std::min(box.bottom, v.y), std::max(box.right, v.x),
             std::max(box.top, v.y)};
    }
  }
  return std::max({0.0, box.Width(), box.Height()});
}

}  // namespace orv3
