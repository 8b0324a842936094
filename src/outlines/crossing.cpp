#include "outlines/crossing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "outlines/edge.h"

namespace orv3 {
namespace {

// Arcs of less sweep are taken as their chords.
constexpr double kFlat = 1e-6;
// Points nearer than this share of the size are one; edges at a smaller angle run alongside.
constexpr double kNear = 1e-10;
constexpr double kAlongside = 1e-7;

double Cross(CPoint a, CPoint b) { return a.x * b.y - a.y * b.x; }
double Dot(CPoint a, CPoint b) { return a.x * b.x + a.y * b.y; }
CPoint Minus(CPoint a, CPoint b) { return {a.x - b.x, a.y - b.y}; }

struct CPlacedEdge {
  CEdge edge;
  std::size_t loop = 0, number = 0;
  std::size_t before = 0;  // the edge that ends where this starts
  CPoint center{};         // of an arc
};

// The extent of edges along x, y and the diagonals, so that long slanting edges side by side are
// told apart.
struct CExtent {
  std::array<double, 4> low, high;

  bool Meets(const CExtent& other, double near) const {
    for (std::size_t i = 0; i < 4; ++i) {
      if (low[i] > other.high[i] + near || other.low[i] > high[i] + near) return false;
    }
    return true;
  }
  void Add(const CExtent& other) {
    for (std::size_t i = 0; i < 4; ++i) {
      low[i] = std::min(low[i], other.low[i]);
      high[i] = std::max(high[i], other.high[i]);
    }
  }
};

CExtent ExtentOf(const CEdge& edge) {
  const auto along = [](CPoint p) {
    return std::array{p.x, p.y, (p.x + p.y) / std::numbers::sqrt2,
                      (p.x - p.y) / std::numbers::sqrt2};
  };
  CExtent extent{along(edge.At(0)), along(edge.At(0))};
  const int pieces = edge.IsArc() ? 1 + static_cast<int>(std::fabs(edge.Sweep())) : 1;
  for (int i = 1; i <= pieces; ++i)
    extent.Add({along(edge.At(1.0 * i / pieces)), along(edge.At(1.0 * i / pieces))});
  if (!edge.IsArc()) return extent;
  // An arc of angle a leaves its chord by no more than length * a / 8.
  const double out = edge.Length() / pieces * std::fabs(edge.Sweep()) / pieces / 7;
  for (std::size_t i = 0; i < 4; ++i) {
    extent.low[i] -= out;
    extent.high[i] += out;
  }
  return extent;
}

bool IsRound(const CEdge& edge) { return std::fabs(edge.Sweep()) > kFlat; }

// The t of a point on the circle or line of an edge; outside 0 to 1 beside the edge.
double PlaceOf(const CPlacedEdge& e, CPoint p) {
  if (!IsRound(e.edge)) {
    const CPoint a = e.edge.At(0), d = Minus(e.edge.At(1), a);
    return Dot(Minus(p, a), d) / Dot(d, d);
  }
  const CPoint middle = Minus(e.edge.At(0.5), e.center), u = Minus(p, e.center);
  return 0.5 + std::atan2(Cross(middle, u), Dot(middle, u)) / e.edge.Sweep();
}

// Where the lines or circles of two edges meet.
std::vector<CPoint> Meetings(const CPlacedEdge& a, const CPlacedEdge& b) {
  if (!IsRound(a.edge) && IsRound(b.edge)) return Meetings(b, a);
  const CPoint p = b.edge.At(0), d = Minus(b.edge.At(1), p);
  if (!IsRound(a.edge)) {
    const CPoint q = a.edge.At(0), c = Minus(a.edge.At(1), q);
    const double cross = Cross(d, c);
    if (cross == 0) return {};
    const double t = Cross(Minus(q, p), c) / cross;
    return {{p.x + t * d.x, p.y + t * d.y}};
  }
  const double r = std::fabs(a.edge.Length() / a.edge.Sweep());
  CPoint foot, along;
  if (IsRound(b.edge)) {
    const double s = std::fabs(b.edge.Length() / b.edge.Sweep());
    const CPoint o = Minus(b.center, a.center);
    const double away = std::hypot(o.x, o.y);
    if (away == 0) return {};
    const double out = (away * away + r * r - s * s) / (2 * away);
    foot = {a.center.x + o.x / away * out, a.center.y + o.y / away * out};
    along = {-o.y / away, o.x / away};
  } else {
    const double length = std::hypot(d.x, d.y);
    along = {d.x / length, d.y / length};
    const double t = Dot(Minus(a.center, p), along);
    foot = {p.x + t * along.x, p.y + t * along.y};
  }
  const CPoint out = Minus(foot, a.center);
  const double square = r * r - Dot(out, out);
  if (!(square > 0)) return {};
  const double half = std::sqrt(square);
  return {{foot.x + half * along.x, foot.y + half * along.y},
          {foot.x - half * along.x, foot.y - half * along.y}};
}

class CFinder {
 public:
  explicit CFinder(std::span<const CPath> loops) {
    const CBox box = PathBounds(loops);
    m_near = kNear * std::max(box.Width(), box.Height());
    for (std::size_t i = 0; i < loops.size(); ++i) AddLoop(loops[i], i);
    m_leaves = 1;
    while (m_leaves < m_edges.size()) m_leaves *= 2;
    m_extents.assign(2 * m_leaves, {{1, 1, 1, 1}, {-1, -1, -1, -1}});
    for (CExtent& e : m_extents) {
      e.low.fill(HUGE_VAL);
      e.high.fill(-HUGE_VAL);
    }
    for (std::size_t i = 0; i < m_edges.size(); ++i)
      m_extents[m_leaves + i] = ExtentOf(m_edges[i].edge);
    for (std::size_t i = m_leaves - 1; i > 0; --i) {
      m_extents[i] = m_extents[2 * i];
      m_extents[i].Add(m_extents[2 * i + 1]);
    }
  }

  // Edges in the order of the loops lie near each other, so halves of the list make a tree.
  std::optional<CCrossing> Find() const {
    if (m_edges.empty()) return std::nullopt;
    std::vector<std::pair<std::size_t, std::size_t>> todo{{1, 1}};
    while (!todo.empty()) {
      const auto [a, b] = todo.back();
      todo.pop_back();
      if (!m_extents[a].Meets(m_extents[b], m_near)) continue;
      if (a < m_leaves) {
        todo.push_back({2 * a, 2 * b});
        todo.push_back({2 * a + 1, 2 * b + 1});
        todo.push_back({2 * a, 2 * b + 1});
        if (a != b) todo.push_back({2 * a + 1, 2 * b});
      } else if (a != b) {
        if (auto crossing = Test(m_edges[a - m_leaves], m_edges[b - m_leaves])) return crossing;
      }
    }
    return std::nullopt;
  }

 private:
  void AddLoop(const CPath& loop, std::size_t number) {
    const std::size_t first = m_edges.size();
    ForEachEdge(loop, [&](const CEdge& edge, std::size_t i) {
      if (!(edge.Length() > m_near)) return;
      CPlacedEdge placed{edge, number, i, m_edges.size() - 1};
      if (IsRound(edge)) {
        const CPoint middle = edge.At(0.5), d = edge.Derivative(0.5);
        placed.center = {middle.x - d.y / edge.Sweep(), middle.y + d.x / edge.Sweep()};
      }
      m_edges.push_back(placed);
    });
    if (m_edges.size() > first) m_edges[first].before = m_edges.size() - 1;
  }

  bool IsInner(const CPlacedEdge& e, double t) const {
    const double end = m_near / e.edge.Length();
    return t > end && t < 1 - end;
  }

  static CCrossing At(const CPlacedEdge& a, const CPlacedEdge& b, CPoint p) {
    return {{a.loop, b.loop}, {a.number, b.number}, p};
  }

  std::optional<CCrossing> Test(const CPlacedEdge& a, const CPlacedEdge& b) const {
    for (CPoint p : Meetings(a, b)) {
      const double s = PlaceOf(a, p), t = PlaceOf(b, p);
      if (!IsInner(a, s) || !IsInner(b, t)) continue;
      const CPoint u = a.edge.Derivative(s), v = b.edge.Derivative(t);
      if (std::fabs(Cross(u, v)) > kAlongside * a.edge.Length() * b.edge.Length())
        return At(a, b, p);
    }
    if (PassesThrough(a, b)) return At(a, b, a.edge.At(0));
    if (PassesThrough(b, a)) return At(b, a, b.edge.At(0));
    return std::nullopt;
  }

  // The vertex at the start of `a` lies on `b`, and the edges there on either side of it.
  bool PassesThrough(const CPlacedEdge& a, const CPlacedEdge& b) const {
    const CPoint p = a.edge.At(0);
    const double t = PlaceOf(b, p);
    if (!IsInner(b, t)) return false;
    const CPoint q = b.edge.At(t);
    if (std::hypot(p.x - q.x, p.y - q.y) > m_near) return false;
    const CEdge& in = m_edges[a.before].edge;
    const CPoint along = b.edge.Derivative(t), from = in.Derivative(1), to = a.edge.Derivative(0);
    const double before = Cross(along, {-from.x, -from.y}) / (b.edge.Length() * in.Length());
    const double after = Cross(along, to) / (b.edge.Length() * a.edge.Length());
    return before * after < 0 && std::fabs(before) > kAlongside && std::fabs(after) > kAlongside;
  }

  std::vector<CPlacedEdge> m_edges;
  std::vector<CExtent> m_extents;  // a binary tree, node i above 2 i and 2 i + 1
  std::size_t m_leaves = 1;
  double m_near = 0;
};

}  // namespace

std::optional<CCrossing> FindCrossing(std::span<const CPath> loops) {
  return CFinder(loops).Find();
}

bool IsConvex(const CPath& loop) {
  const double side = LoopArea(loop) > 0 ? 1 : -1;
  double turned = 0;
  bool convex = true;
  std::vector<CEdge> edges;
  ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
    if (edge.Length() > 0) edges.push_back(edge);
  });
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const CPoint u = edges[i].Derivative(1), v = edges[(i + 1) % edges.size()].Derivative(0);
    const double turn = std::atan2(Cross(u, v), Dot(u, v)) * side;
    convex = convex && turn > -kNear && edges[i].Sweep() * side >= 0;
    turned += turn + edges[i].Sweep() * side;
  }
  return convex && std::fabs(turned - 2 * std::numbers::pi) < 1e-6;
}

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
      angle += std::atan2(Cross(u, v), Dot(u, v));
    }
  });
  return std::fabs(angle) > 3;
}

}  // namespace orv3
