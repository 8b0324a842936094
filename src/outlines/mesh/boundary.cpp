#include "outlines/mesh/boundary.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "framework/elementary.h"
#include "outlines/mesh/arc_rings.h"
#include "outlines/mesh/edge_distance.h"

namespace orv3 {
namespace {

// Beyond so many edges the outline is taken as it is: it is fine enough, and the search for near
// edges would not be done in time.
constexpr std::size_t kGradedEdges = 2000;
// Stretches at a corner are as long as the section is thick there, times this; away from it they
// grow by kGrowth of the distance.
constexpr double kAtCorner = 1.5;
constexpr double kAtSharp = 0.35;
constexpr double kGrowth = 1.5;
// The same where an arc comes near another edge, closer than kNarrow of its radius: the wall there
// thickens with the square of the distance.
constexpr double kNarrow = 0.2;
constexpr double kNarrowGrowth = 0.8;
constexpr double kArcStep = std::numbers::pi / 6;
constexpr double kSagitta = 0.2;  // of an arc's stretch, by the thickness
constexpr int kDeepest = 24;
// Points inside keep off a line of symmetry by this part of their distance from a corner.
constexpr double kClearOfLine = 0.3;

// Where two edges of the outline meet.
struct CCornerPoint {
  CPoint at;
  std::size_t in = 0, out = 0;  // edges
  double thick = 0;
  double turn = 0;     // to the left positive
  bool plain = false;  // the edges run on as one line or circle
  double size = 0;     // of the stretches here
};

// Where an arc comes near another edge.
struct CNarrow {
  CPoint at;
  double size = 0;  // of the stretches here
};

class CCutter {
 public:
  CCutter(std::span<const CPath> loops, int arcs, const CFold& fold) : m_arcs(arcs) {
    int number = 0;
    for (const CPath& loop : loops) AddLoop(loop, number++);
    m_folded = KeepAll();
    if (fold.Any()) Fold(fold);
  }

  CBoundary Cut() {
    const bool graded = m_edges.size() <= kGradedEdges;
    if (graded) {
      FindThickness();
      FindNarrows();
    }
    AddLine(m_folded.m_onX, CStretch::kOnX);
    AddLine(m_folded.m_onY, CStretch::kOnY);
    for (const auto& [e, from, to] : m_folded.m_arrKept) {
      const CEdge& edge = m_edges[e];
      const int pieces = edge.IsArc() ? ArcPieces(e, to - from) : 1;
      const auto at = [&, from = from, to = to](int i) {
        return i == pieces ? to : from + (to - from) * i / pieces;
      };
      for (int i = 0; i < pieces; ++i) CutStretch(e, at(i), at(i + 1), graded ? 0 : kDeepest);
    }
    if (graded) {
      AddInner();
      AddRings(m_edges, m_out.m_arrInner);
      std::erase_if(m_out.m_arrInner, [&](CPoint p) { return m_out.m_fold.Inside(p) <= 0; });
    }
    m_out.m_arrEdge = std::move(m_edges);
    return std::move(m_out);
  }

 private:
  void AddLoop(const CPath& loop, int number) {
    const std::size_t first = m_edges.size();
    ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
      if (edge.Length() == 0) return;
      m_edges.push_back(edge);
      m_loop.push_back(number);
    });
    const std::size_t count = m_edges.size() - first;
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t in = first + (i + count - 1) % count, out = first + i;
      const CPoint u = m_edges[in].Derivative(1), v = m_edges[out].Derivative(0);
      CCornerPoint corner{m_edges[out].At(0), in, out};
      corner.turn = Atan2(u.x * v.y - u.y * v.x, u.x * v.x + u.y * v.y);
      const double bend =
          m_edges[in].Sweep() / m_edges[in].Length() - m_edges[out].Sweep() / m_edges[out].Length();
      corner.plain = std::fabs(corner.turn) < 1e-6 && std::fabs(bend) < 1e-6;
      m_corners.push_back(corner);
    }
  }

  CFoldedEdges KeepAll() const {
    CFoldedEdges all;
    for (std::size_t e = 0; e < m_edges.size(); ++e) all.m_arrKept.push_back({e, 0, 1});
    return all;
  }

  // Not where a sharp corner lies on a line.
  void Fold(const CFold& fold) {
    const auto onLine = [&](const CCornerPoint& c) {
      return IsSharp(c) && std::fabs(fold.Inside(c.at)) < 1e-9;
    };
    if (std::any_of(m_corners.begin(), m_corners.end(), onLine)) return;
    auto folded = Folded(m_edges, fold);
    if (!folded) return;
    m_folded = std::move(*folded);
    m_out.m_fold = fold;
  }

  void AddLine(const std::vector<CEdge>& line, int loop) {
    for (const CEdge& edge : line) {
      m_folded.m_arrKept.push_back({m_edges.size(), 0, 1});
      m_edges.push_back(edge);
      m_loop.push_back(loop);
    }
  }

  // The distance from each corner to what lies across the material.
  void FindThickness() {
    for (CCornerPoint& c : m_corners) {
      c.thick = 1;
      for (std::size_t e = 0; e < m_edges.size(); ++e) {
        const CEdge& edge = m_edges[e];
        if (e == c.in || e == c.out) {
          // An arc may bend back on its own end.
          if (edge.IsArc()) c.thick = std::min(c.thick, Distance(edge.At(0), edge.At(0.5)));
          continue;
        }
        const CNear near = Nearest(c.at, edge);
        if (near.left) c.thick = std::min(c.thick, near.distance);
      }
      c.thick = std::max(c.thick, 1e-7);
      c.size = c.plain ? 1 : c.thick * (IsSharp(c) ? kAtSharp : kAtCorner);
    }
  }

  // Where an arc comes nearest to another edge across the material, between the corners of both.
  void FindNarrows() {
    for (std::size_t e = 0; e < m_edges.size(); ++e) {
      if (!m_edges[e].IsArc()) continue;
      for (std::size_t other = 0; other < m_edges.size(); ++other) {
        if (other != e) AddNarrow(m_edges[e], m_edges[other]);
      }
    }
  }

  void AddNarrow(const CEdge& arc, const CEdge& other) {
    // On the line through the center that meets the other edge at a right angle.
    const CCircle circle = CircleOf(arc);
    const CPoint to =
        other.IsArc() ? CircleOf(other).center : Foot(circle.center, other.At(0), other.At(1));
    const double away = Distance(circle.center, to);
    if (!(away > 0)) return;
    for (const double by : {circle.radius / away, -circle.radius / away}) {
      const CPoint on{circle.center.x + by * (to.x - circle.center.x),
                      circle.center.y + by * (to.y - circle.center.y)};
      if (!IsBeside(on, arc, circle)) continue;
      const CNear near = Nearest(on, other);
      // At its ends the corners tell.
      const double end = std::min(Distance(on, arc.At(0)), Distance(on, arc.At(1)));
      if (end <= 2 * near.distance + 1e-6) continue;
      if (near.left && near.distance < kNarrow * circle.radius)
        m_narrows.push_back({on, std::max(near.distance, 1e-7) * kAtCorner});
    }
  }

  static bool IsSharp(const CCornerPoint& c) { return c.turn < -0.3; }

  // Pieces whose bulge is small beside the thickness; thin rings need many.
  int ArcPieces(std::size_t e, double part) const {
    const CEdge& edge = m_edges[e];
    const double radius = edge.Length() / std::fabs(edge.Sweep());
    double step = kArcStep;
    for (const CCornerPoint& c : m_corners) {
      if (c.in != e && c.out != e) continue;
      step = std::min(step, std::sqrt(8 * kSagitta * std::max(c.thick, 1e-6) / radius));
    }
    step /= 1 << m_arcs;
    return std::max(1, static_cast<int>(std::ceil(std::fabs(edge.Sweep()) * part / step - 1e-9)));
  }

  void CutStretch(std::size_t e, double from, double to, int depth) {
    const CEdge& edge = m_edges[e];
    const CPoint a = edge.At(from), b = edge.At(to);
    if (depth < kDeepest && edge.Length() * (to - from) > 1.001 * SizeAlong(a, b)) {
      const double middle = (from + to) / 2;
      CutStretch(e, from, middle, depth + 1);
      CutStretch(e, middle, to, depth + 1);
      return;
    }
    m_out.m_arrStretch.push_back({m_loop[e], static_cast<int>(e), from, to});
  }

  double SizeAlong(CPoint a, CPoint b) const {
    double size = 1;
    for (const CCornerPoint& c : m_corners) {
      if (c.size >= size) continue;
      size = std::min(size, c.size + kGrowth * Nearest(c.at, a, b).distance);
    }
    for (const CNarrow& n : m_narrows) {
      if (n.size >= size) continue;
      size = std::min(size, n.size + kNarrowGrowth * Nearest(n.at, a, b).distance);
    }
    return size;
  }

  // Around a sharp corner, points as far inside as the next ones lie on its edges.
  void AddInner() {
    std::vector<double> before(m_edges.size(), 0), after(m_edges.size(), 0);
    for (const CStretch& s : m_out.m_arrStretch) {
      const auto e = static_cast<std::size_t>(s.m_nEdge);
      const double length = m_edges[e].Length() * (s.m_dTo - s.m_dFrom);
      if (s.m_dFrom == 0) after[e] = length;
      if (s.m_dTo == 1) before[e] = length;
    }
    for (const CCornerPoint& c : m_corners) {
      if (!IsSharp(c) || m_out.m_fold.Inside(c.at) < 0) continue;
      m_out.m_arrCorner.push_back(c.at);
      const double inside = std::numbers::pi - c.turn;
      const CPoint d = m_edges[c.out].Derivative(0);
      const double start = Atan2(d.y, d.x);
      const int rays = std::max(2, static_cast<int>(std::lround(inside / 1.4)));
      for (int i = 1; i < rays; ++i) {
        const double part = 1.0 * i / rays;
        const double r = std::min(after[c.out] * (1 - part) + before[c.in] * part, c.thick * 0.7);
        const CPoint p{c.at.x + r * Cos(start + inside * part),
                       c.at.y + r * Sin(start + inside * part)};
        if (m_out.m_fold.Inside(p) > kClearOfLine * r) m_out.m_arrInner.push_back(p);
      }
    }
  }

  int m_arcs;
  std::vector<CEdge> m_edges;
  std::vector<int> m_loop;
  CFoldedEdges m_folded;
  std::vector<CCornerPoint> m_corners;
  std::vector<CNarrow> m_narrows;
  CBoundary m_out;
};

}  // namespace

CBoundary CutBoundary(std::span<const CPath> loops, int arcs, const CFold& fold) {
  return CCutter(loops, arcs, fold).Cut();
}

}  // namespace orv3
