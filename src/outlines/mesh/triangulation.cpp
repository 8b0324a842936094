#include "outlines/mesh/triangulation.h"

#include <cmath>
#include <deque>
#include <utility>

namespace orv3 {
namespace {

using std::int64_t;

constexpr int64_t kMostGrid = int64_t{1} << 28;
constexpr int64_t kFar = 2 * kMostGrid;  // corners of the triangle around everything

// Positive when c lies to the left of a -> b. Exact: differences have 31 bits.
int64_t Side(CGridPoint a, CGridPoint b, CGridPoint c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// d lies within the circle through a, b, c by more than rounding: what rounding leaves open is
// as good either way, and a flip that is not repeated ends.
bool InCircle(CGridPoint a, CGridPoint b, CGridPoint c, CGridPoint d) {
  const auto dx = [&](CGridPoint p) { return static_cast<double>(p.x - d.x); };
  const auto dy = [&](CGridPoint p) { return static_cast<double>(p.y - d.y); };
  const auto square = [&](CGridPoint p) { return dx(p) * dx(p) + dy(p) * dy(p); };
  const double bc = static_cast<double>(Side(d, b, c));
  const double ca = static_cast<double>(Side(d, c, a));
  const double ab = static_cast<double>(Side(d, a, b));
  const double sum = square(a) * bc + square(b) * ca + square(c) * ab;
  const double size =
      square(a) * std::fabs(bc) + square(b) * std::fabs(ca) + square(c) * std::fabs(ab);
  return sum > 1e-14 * size;
}

constexpr int After(int i) { return i == 2 ? 0 : i + 1; }
constexpr int Before(int i) { return i == 0 ? 2 : i - 1; }

class CTriangulator {
 public:
  CTriangulator(std::span<const CGridPoint> points, std::span<const CGridEdge> edges)
      : m_points(points.begin(), points.end()), m_count(static_cast<int>(points.size())) {
    m_points.insert(m_points.end(), {{-kFar, -kFar}, {2 * kFar, -kFar}, {-kFar, 2 * kFar}});
    m_of.assign(m_points.size(), 0);
    m_triangles.reserve(2 * m_points.size() + edges.size());
    m_ends.assign(m_points.size(), 0);
    for (const CGridEdge& edge : edges) m_ends[Index(edge.from)] = m_ends[Index(edge.to)] = 1;
    m_triangles.push_back({{{m_count, m_count + 1, m_count + 2}, {-1, -1, -1}}, {0, 0, 0}});
    for (int i = 0; i < 3; ++i) m_of[Index(m_count + i)] = 0;
    for (int i = 0; i < m_count; ++i) Insert(i);
  }

  // False when the edge crosses one that was laid before, or runs through another's end.
  bool Lay(int from, int to) {
    while (from != to) {
      const int reached = LayUpToVertex(from, to);
      if (reached < 0 || (reached != to && m_ends[Index(reached)])) return false;
      from = reached;
    }
    return true;
  }

  std::vector<CTriangle> Inside() const;

 private:
  struct CCell {
    CTriangle t;
    // Of the edge opposite each vertex: edges laid along it less those against it, walking the
    // triangle counter-clockwise; kFixed is added when any was laid.
    std::array<int, 3> laid{};
  };
  static constexpr int kFixed = 1 << 20;
  static int Net(int laid) { return laid >= kFixed / 2 ? laid - kFixed : laid; }

  static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
  CCell& Cell(int i) { return m_triangles[Index(i)]; }
  const CCell& Cell(int i) const { return m_triangles[Index(i)]; }
  CGridPoint Point(int v) const { return m_points[Index(v)]; }
  static int Corner(const CCell& cell, int v) {
    return cell.t.m_vertex[0] == v ? 0 : cell.t.m_vertex[1] == v ? 1 : 2;
  }
  // Which edge of `across` borders the triangle `cell`.
  int EdgeTo(int across, int cell) const {
    const auto& next = Cell(across).t.m_next;
    return next[0] == cell ? 0 : next[1] == cell ? 1 : 2;
  }
  void Join(int cell, int edge, int other) { Cell(cell).t.m_next[Index(edge)] = other; }
  void Repoint(int cell, int from, int to) {
    if (cell >= 0) Join(cell, EdgeTo(cell, from), to);
  }
  void Own(int cell) {
    for (int v : Cell(cell).t.m_vertex) m_of[Index(v)] = cell;
  }

  int Locate(CGridPoint p) const;
  void Insert(int v);
  void SplitCell(int cell, int v);
  void SplitEdge(int cell, int edge, int v);
  void Flip(int cell, int edge);
  bool ShouldFlip(int cell, int edge) const;
  void Legalize(std::vector<std::pair<int, int>> edges);  // by their ends
  bool FindEdge(int a, int b, int& cell, int& edge) const;
  int LayUpToVertex(int from, int to);
  void MarkLaid(int cell, int edge);
  template <class Visit>
  void AroundVertex(int v, Visit visit) const;

  std::vector<CGridPoint> m_points;
  int m_count;
  std::vector<char> m_ends;  // by vertex: of an edge to be laid
  std::vector<CCell> m_triangles;
  std::vector<int> m_of;  // a triangle of each vertex
  mutable int m_last = 0;
};

// Walks towards the point; in a Delaunay triangulation the walk ends.
int CTriangulator::Locate(CGridPoint p) const {
  int cell = m_last;
  for (std::size_t steps = 0; steps < 4 * m_triangles.size() + 8; ++steps) {
    const CTriangle& t = Cell(cell).t;
    int out = -1;
    for (int i = 0; i < 3 && out < 0; ++i) {
      if (Side(Point(t.m_vertex[Index(After(i))]), Point(t.m_vertex[Index(Before(i))]), p) < 0)
        out = i;
    }
    if (out < 0) break;
    cell = t.m_next[Index(out)];
  }
  return m_last = cell;
}

void CTriangulator::Insert(int v) {
  const int cell = Locate(Point(v));
  const CTriangle t = Cell(cell).t;
  const int made = static_cast<int>(m_triangles.size());
  std::vector<int> around{cell, made, made + 1};
  int on = -1;
  for (int i = 0; i < 3; ++i) {
    const int a = t.m_vertex[Index(After(i))], b = t.m_vertex[Index(Before(i))];
    if (Side(Point(a), Point(b), Point(v)) == 0) on = i;
  }
  if (on < 0) {
    SplitCell(cell, v);
  } else {
    around.push_back(t.m_next[Index(on)]);
    SplitEdge(cell, on, v);
  }
  // Delaunay again: of the triangles around v, those whose circle holds the vertex beyond.
  while (!around.empty()) {
    const int at = around.back();
    around.pop_back();
    const int edge = Corner(Cell(at), v);
    const int across = Cell(at).t.m_next[Index(edge)];
    if (across < 0 || !ShouldFlip(at, edge)) continue;
    Flip(at, edge);
    around.insert(around.end(), {at, across});
  }
  m_last = m_of[Index(v)];
}

bool CTriangulator::ShouldFlip(int cell, int edge) const {
  const auto& t = Cell(cell).t;
  const int across = t.m_next[Index(edge)];
  if (across < 0 || Cell(cell).laid[Index(edge)] != 0) return false;
  const CGridPoint a = Point(t.m_vertex[Index(edge)]);
  const CGridPoint b = Point(t.m_vertex[Index(After(edge))]);
  const CGridPoint c = Point(t.m_vertex[Index(Before(edge))]);
  const CGridPoint d = Point(Cell(across).t.m_vertex[Index(EdgeTo(across, cell))]);
  return InCircle(a, b, c, d) && Side(a, b, d) > 0 && Side(a, d, c) > 0;
}

void CTriangulator::SplitCell(int cell, int v) {
  const CTriangle t = Cell(cell).t;
  const int one = static_cast<int>(m_triangles.size());
  const int two = one + 1;
  const auto [a, b, c] = t.m_vertex;
  Cell(cell).t = {{v, b, c}, {t.m_next[0], one, two}};
  m_triangles.push_back({{{v, c, a}, {t.m_next[1], two, cell}}, {0, 0, 0}});
  m_triangles.push_back({{{v, a, b}, {t.m_next[2], cell, one}}, {0, 0, 0}});
  Repoint(t.m_next[1], cell, one);
  Repoint(t.m_next[2], cell, two);
  Own(cell);
  Own(one);
  Own(two);
}

// The vertex lies on the edge: both triangles there are halved.
void CTriangulator::SplitEdge(int cell, int edge, int v) {
  const int across = Cell(cell).t.m_next[Index(edge)];
  const int other = EdgeTo(across, cell);
  const CTriangle t = Cell(cell).t, u = Cell(across).t;
  const int a = t.m_vertex[Index(edge)], b = t.m_vertex[Index(After(edge))];
  const int c = t.m_vertex[Index(Before(edge))], d = u.m_vertex[Index(other)];
  const int ab = t.m_next[Index(Before(edge))], ca = t.m_next[Index(After(edge))];
  const int bd = u.m_next[Index(After(other))], dc = u.m_next[Index(Before(other))];
  const int one = static_cast<int>(m_triangles.size());
  const int two = one + 1;
  Cell(cell).t = {{v, a, b}, {ab, across, one}};
  Cell(across).t = {{v, b, d}, {bd, two, cell}};
  m_triangles.push_back({{{v, c, a}, {ca, cell, two}}, {0, 0, 0}});
  m_triangles.push_back({{{v, d, c}, {dc, one, across}}, {0, 0, 0}});
  Repoint(ca, cell, one);
  Repoint(dc, across, two);
  for (int i : {cell, across, one, two}) Own(i);
}

// The edge becomes the other diagonal of the two triangles beside it.
void CTriangulator::Flip(int cell, int edge) {
  const int across = Cell(cell).t.m_next[Index(edge)];
  const int other = EdgeTo(across, cell);
  const CCell t = Cell(cell), u = Cell(across);
  const int a = t.t.m_vertex[Index(edge)], b = t.t.m_vertex[Index(After(edge))];
  const int c = t.t.m_vertex[Index(Before(edge))], d = u.t.m_vertex[Index(other)];
  const auto at = [](const auto& list, int i) { return list[Index(i)]; };
  Cell(cell) = {{{a, b, d}, {at(u.t.m_next, After(other)), across, at(t.t.m_next, Before(edge))}},
                {at(u.laid, After(other)), 0, at(t.laid, Before(edge))}};
  Cell(across) = {{{a, d, c}, {at(u.t.m_next, Before(other)), at(t.t.m_next, After(edge)), cell}},
                  {at(u.laid, Before(other)), at(t.laid, After(edge)), 0}};
  Repoint(at(u.t.m_next, After(other)), across, cell);
  Repoint(at(t.t.m_next, After(edge)), cell, across);
  Own(cell);
  Own(across);
}

void CTriangulator::Legalize(std::vector<std::pair<int, int>> edges) {
  while (!edges.empty()) {
    const auto [a, b] = edges.back();
    edges.pop_back();
    int cell = 0, edge = 0;
    if (!FindEdge(a, b, cell, edge)) continue;
    if (!ShouldFlip(cell, edge)) continue;
    const int apex = Cell(cell).t.m_vertex[Index(edge)];
    const int across = Cell(cell).t.m_next[Index(edge)];
    const int opposite = Cell(across).t.m_vertex[Index(EdgeTo(across, cell))];
    const int u = Cell(cell).t.m_vertex[Index(After(edge))];
    const int w = Cell(cell).t.m_vertex[Index(Before(edge))];
    Flip(cell, edge);
    edges.insert(edges.end(), {{u, opposite}, {opposite, w}, {w, apex}, {apex, u}});
  }
}

// Calls visit(cell, corner) for the triangles around a vertex that is not of the outermost
// triangle, until it answers true.
template <class Visit>
void CTriangulator::AroundVertex(int v, Visit visit) const {
  const int first = m_of[Index(v)];
  int cell = first;
  do {
    const int corner = Corner(Cell(cell), v);
    if (visit(cell, corner)) return;
    cell = Cell(cell).t.m_next[Index(After(corner))];
  } while (cell >= 0 && cell != first);
  if (cell == first) return;
  // A vertex of the outermost triangle: what lies the other way round.
  for (cell = first;;) {
    const int corner = Corner(Cell(cell), v);
    cell = Cell(cell).t.m_next[Index(Before(corner))];
    if (cell < 0 || visit(cell, Corner(Cell(cell), v))) return;
  }
}

bool CTriangulator::FindEdge(int a, int b, int& cell, int& edge) const {
  bool found = false;
  AroundVertex(a, [&](int c, int corner) {
    const auto& v = Cell(c).t.m_vertex;
    found = v[Index(After(corner))] == b;  // the edge a -> b, opposite the third
    if (found) cell = c, edge = Before(corner);
    return found;
  });
  return found;
}

void CTriangulator::MarkLaid(int cell, int edge) {
  const int across = Cell(cell).t.m_next[Index(edge)];
  const auto mark = [](int& laid, int by) { laid = Net(laid) + by + kFixed; };
  mark(Cell(cell).laid[Index(edge)], 1);
  if (across >= 0) mark(Cell(across).laid[Index(EdgeTo(across, cell))], -1);
}

// Lays an edge up to the first vertex that lies on it, and gives that; -1 when it crosses another.
int CTriangulator::LayUpToVertex(int from, int to) {
  int start = -1, reached = -1;
  int left = 0, right = 0;  // ends of the first edge that is crossed
  AroundVertex(from, [&](int cell, int corner) {
    const auto& v = Cell(cell).t.m_vertex;
    const int a = v[Index(After(corner))], b = v[Index(Before(corner))];
    const int64_t sideA = Side(Point(from), Point(to), Point(a));
    const int64_t sideB = Side(Point(from), Point(to), Point(b));
    const auto ahead = [&](int w) {
      const CGridPoint f = Point(from), t = Point(to), p = Point(w);
      return (p.x - f.x) * (t.x - f.x) + (p.y - f.y) * (t.y - f.y) > 0;
    };
    if (a == to || (sideA == 0 && ahead(a))) {
      reached = a;
      return true;
    }
    if (b == to || (sideB == 0 && ahead(b))) {
      reached = b;
      return true;
    }
    if (sideA < 0 && sideB > 0) {
      start = cell;
      right = a;
      left = b;
      return true;
    }
    return false;
  });
  int cell = 0, edge = 0;
  if (reached >= 0) {
    if (!FindEdge(from, reached, cell, edge)) return -1;
    MarkLaid(cell, edge);
    return reached;
  }
  if (start < 0) return -1;
  // The edges on the way.
  std::deque<std::pair<int, int>> crossed;
  int end = to;
  for (cell = start;;) {
    crossed.push_back({right, left});
    if (!FindEdge(right, left, cell, edge)) return -1;
    if (Cell(cell).laid[Index(edge)] != 0) return -1;
    const int across = Cell(cell).t.m_next[Index(edge)];
    if (across < 0) return -1;
    const int apex = Cell(across).t.m_vertex[Index(EdgeTo(across, cell))];
    const int64_t side = Side(Point(from), Point(to), Point(apex));
    if (apex == to || side == 0) {
      end = apex;
      break;
    }
    (side > 0 ? left : right) = apex;
  }
  // Flipped until none crosses.
  std::vector<std::pair<int, int>> made;
  std::size_t budget = 64 + crossed.size() * (crossed.size() + 4) * 4;
  while (!crossed.empty() && budget-- > 0) {
    const auto [a, b] = crossed.front();
    crossed.pop_front();
    if (!FindEdge(a, b, cell, edge)) return -1;
    const int across = Cell(cell).t.m_next[Index(edge)];
    const int apex = Cell(cell).t.m_vertex[Index(edge)];
    const int far = Cell(across).t.m_vertex[Index(EdgeTo(across, cell))];
    if (Side(Point(apex), Point(far), Point(b)) <= 0 ||
        Side(Point(apex), Point(far), Point(a)) >= 0) {
      // Not convex: `a -> b` has the apex on its left; later.
      crossed.push_back({a, b});
      continue;
    }
    Flip(cell, edge);
    const auto crosses = [&](int p, int q) {
      if (p == from || q == from || p == end || q == end) return false;
      const int64_t one = Side(Point(from), Point(end), Point(p));
      const int64_t two = Side(Point(from), Point(end), Point(q));
      return (one > 0 && two < 0) || (one < 0 && two > 0);
    };
    if (crosses(apex, far)) {
      crossed.push_back({apex, far});
    } else {
      made.push_back({apex, far});
    }
  }
  if (!FindEdge(from, end, cell, edge)) return -1;
  MarkLaid(cell, edge);
  Legalize(std::move(made));
  return end;
}

std::vector<CTriangle> CTriangulator::Inside() const {
  // Winding numbers spread from the outermost triangle's vertex.
  std::vector<int> winding(m_triangles.size(), 0);
  std::vector<char> seen(m_triangles.size(), 0);
  std::vector<int> todo{m_of[Index(m_count)]};
  seen[Index(todo[0])] = 1;
  while (!todo.empty()) {
    const int cell = todo.back();
    todo.pop_back();
    for (int i = 0; i < 3; ++i) {
      const int next = Cell(cell).t.m_next[Index(i)];
      if (next < 0 || seen[Index(next)]) continue;
      seen[Index(next)] = 1;
      winding[Index(next)] = winding[Index(cell)] - Net(Cell(cell).laid[Index(i)]);
      todo.push_back(next);
    }
  }
  std::vector<int> renumbered(m_triangles.size(), -1);
  std::vector<CTriangle> inside;
  for (std::size_t i = 0; i < m_triangles.size(); ++i) {
    if (winding[i] <= 0) continue;
    renumbered[i] = static_cast<int>(inside.size());
    inside.push_back(m_triangles[i].t);
  }
  for (CTriangle& t : inside) {
    for (int& next : t.m_next) next = next < 0 ? -1 : renumbered[Index(next)];
  }
  return inside;
}

}  // namespace

std::optional<std::vector<CTriangle>> Triangulate(std::span<const CGridPoint> points,
                                                  std::span<const CGridEdge> edges) {
  const auto isWithin = [](int64_t x) { return x >= 0 && x <= kMostGrid; };
  for (CGridPoint p : points) {
    if (!isWithin(p.x) || !isWithin(p.y)) return std::nullopt;
  }
  CTriangulator triangulator(points, edges);
  for (const CGridEdge& edge : edges) {
    if (!triangulator.Lay(edge.from, edge.to)) return std::nullopt;
  }
  auto inside = triangulator.Inside();
  for (const CTriangle& t : inside) {
    for (int v : t.m_vertex) {
      if (v >= static_cast<int>(points.size())) return std::nullopt;
    }
  }
  if (inside.empty()) return std::nullopt;
  return inside;
}

}  // namespace orv3
