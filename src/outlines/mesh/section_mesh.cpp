#include "outlines/mesh/section_mesh.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "framework/elementary.h"
#include "outlines/mesh/boundary.h"
#include "outlines/mesh/triangulation.h"

namespace orv3 {
namespace {

// An outline of size 1 lies on a grid of this many steps, for questions of side alone; the mesh
// keeps the points themselves.
constexpr double kGrid = 1 << 28;
// Nearer points are one, as for CheckOutline: 1e-9 of an outline of 0.5 to 1.
constexpr double kSame = 5e-10;
constexpr int kArcTrials = 6;
constexpr double kArcReach = 1.5;
constexpr std::size_t kMostGraded = 2000;  // triangles

std::size_t Index(int i) { return static_cast<std::size_t>(i); }

std::uint64_t Key(int a, int b) {
  return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(a)) << 32) |
         static_cast<std::uint32_t>(b);
}

CGridPoint OnGrid(CPoint p) { return {std::llround(p.x * kGrid), std::llround(p.y * kGrid)}; }

struct CGridHash {
  std::size_t operator()(const CGridPoint& p) const noexcept {
    return static_cast<std::size_t>(p.x * 0x9E3779B1 + p.y * 0x85EBCA77);
  }
};

// Points, those that fall on one of the grid only once.
class CPoints {
 public:
  int Add(CPoint p) {
    const auto [found, fresh] = m_of.try_emplace(OnGrid(p), static_cast<int>(m_points.size()));
    if (fresh) {
      m_points.push_back(p);
      m_grid.push_back(found->first);
    }
    return found->second;
  }
  int Find(CPoint p) const {
    const auto found = m_of.find(OnGrid(p));
    return found == m_of.end() ? -1 : found->second;
  }
  const std::vector<CPoint>& Points() const { return m_points; }
  const std::vector<CGridPoint>& Grid() const { return m_grid; }

 private:
  std::unordered_map<CGridPoint, int, CGridHash> m_of;
  std::vector<CPoint> m_points;
  std::vector<CGridPoint> m_grid;
};

double Cross(CPoint a, CPoint b, CPoint c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// How an arc on an edge changes its triangle.
struct CBend {
  double bulge = 0;   // how far it reaches into the triangle, by the triangle's height
  double corner = 1;  // the least of the mapping's determinants at its ends, by the triangle's own
};

CBend BendOf(const CSectionMesh& mesh, const CMeshTriangle& t, int i) {
  const int s = t.m_stretch[Index(i)];
  if (s < 0) return {};
  const CStretch& stretch = mesh.m_arrStretch[Index(s)];
  const CEdge& edge = mesh.m_arrEdge[Index(stretch.m_nEdge)];
  if (!edge.IsArc()) return {};
  const CPoint a = mesh.m_arrVertex[Index(t.m_vertex[Index(i)])];
  const CPoint b = mesh.m_arrVertex[Index(t.m_vertex[Index((i + 1) % 3)])];
  const CPoint c = mesh.m_arrVertex[Index(t.m_vertex[Index((i + 2) % 3)])];
  const double twice = Cross(a, b, c), length = stretch.m_dTo - stretch.m_dFrom;
  const auto corner = [&](CPoint end, double at) {
    const CPoint d = edge.Derivative(at);
    return length * (d.x * (c.y - end.y) - d.y * (c.x - end.x)) / twice;
  };
  return {Cross(a, b, mesh.At(stretch, 0.5)) / twice,
          std::min(corner(a, stretch.m_dFrom), corner(b, stretch.m_dTo))};
}

// An arc takes no more of its triangle than leaves the mapping sound.
bool IsSound(const CSectionMesh& mesh) {
  for (const CMeshTriangle& t : mesh.m_arrTriangle) {
    const auto v = [&](int i) { return mesh.m_arrVertex[Index(t.m_vertex[Index(i)])]; };
    if (!(Cross(v(0), v(1), v(2)) > 0)) return false;
    for (int i = 0; i < 3; ++i) {
      const CBend bend = BendOf(mesh, t, i);
      if (bend.bulge > 0.35 || bend.bulge < -2 || bend.corner < 0.1) return false;
    }
  }
  return true;
}

// The triangles in groups that share edges, each with vertices of its own.
std::vector<CSectionMesh> Separated(const CSectionMesh& all,
                                    const std::vector<CTriangle>& triangles) {
  std::vector<CSectionMesh> meshes;
  std::vector<char> seen(triangles.size(), 0);
  for (std::size_t first = 0; first < triangles.size(); ++first) {
    if (seen[first]) continue;
    std::vector<std::size_t> group{first};
    seen[first] = 1;
    for (std::size_t i = 0; i < group.size(); ++i) {
      for (int next : triangles[group[i]].m_next) {
        if (next >= 0 && !std::exchange(seen[Index(next)], 1)) group.push_back(Index(next));
      }
    }
    CSectionMesh mesh;
    mesh.m_arrEdge = all.m_arrEdge;
    mesh.m_arrStretch = all.m_arrStretch;
    mesh.m_fold = all.m_fold;
    std::unordered_map<int, int> of;
    for (std::size_t i : group) {
      CMeshTriangle t = all.m_arrTriangle[i];
      for (int& v : t.m_vertex) {
        const auto [found, fresh] = of.try_emplace(v, static_cast<int>(of.size()));
        if (fresh) {
          mesh.m_arrVertex.push_back(all.m_arrVertex[Index(v)]);
          mesh.m_arrSharp.push_back(all.m_arrSharp[Index(v)]);
        }
        v = found->second;
      }
      mesh.m_arrTriangle.push_back(t);
    }
    meshes.push_back(std::move(mesh));
  }
  return meshes;
}

std::vector<CSectionMesh> TryMeshes(std::span<const CPath> loops, int arcs, const CFold& fold) {
  CBoundary boundary = CutBoundary(loops, arcs, fold);
  CPoints points;
  std::vector<CGridEdge> edges;
  std::unordered_map<std::uint64_t, int> stretches;
  CSectionMesh all;
  all.m_arrEdge = std::move(boundary.m_arrEdge);
  all.m_arrStretch = std::move(boundary.m_arrStretch);
  all.m_fold = boundary.m_fold;
  for (std::size_t i = 0; i < all.m_arrStretch.size(); ++i) {
    const int from = points.Add(all.At(all.m_arrStretch[i], 0));
    const int to = points.Add(all.At(all.m_arrStretch[i], 1));
    // What the grid cannot tell apart must be no gap, wall or edge.
    const auto strays = [&](int v, double at) {
      const CPoint p = all.At(all.m_arrStretch[i], at), q = points.Points()[Index(v)];
      return Hypot(p.x - q.x, p.y - q.y) > kSame;
    };
    if (strays(from, 0) || strays(to, 1)) return {};
    if (from == to) continue;
    edges.push_back({from, to});
    stretches[Key(from, to)] = static_cast<int>(i);
  }
  for (CPoint p : boundary.m_arrInner) points.Add(p);
  const auto triangles = Triangulate(points.Grid(), edges);
  if (!triangles) return {};
  all.m_arrVertex = points.Points();
  all.m_arrSharp.assign(all.m_arrVertex.size(), 0);
  for (CPoint p : boundary.m_arrCorner) {
    const int v = points.Find(p);
    if (v >= 0) all.m_arrSharp[Index(v)] = 1;
  }
  for (const CTriangle& t : *triangles) {
    CMeshTriangle m{t.m_vertex, {-1, -1, -1}};
    for (int i = 0; i < 3; ++i) {
      // The edge from vertex i lies opposite the vertex before it.
      if (t.m_next[Index((i + 2) % 3)] >= 0) continue;
      const auto found = stretches.find(Key(t.m_vertex[Index(i)], t.m_vertex[Index((i + 1) % 3)]));
      if (found != stretches.end()) m.m_stretch[Index(i)] = found->second;
    }
    all.m_arrTriangle.push_back(m);
  }
  return IsSound(all) ? Separated(all, *triangles) : std::vector<CSectionMesh>{};
}

// Halves triangles through the middles of marked edges.
class CRefiner {
 public:
  explicit CRefiner(const CSectionMesh& mesh) : m_mesh(mesh) {}

  CSectionMesh Refine(std::span<const char> marked) {
    Mark(marked);
    const std::vector<CMeshTriangle> old = std::exchange(m_mesh.m_arrTriangle, {});
    for (const CMeshTriangle& t : old) Emit(t);
    return std::move(m_mesh);
  }

 private:
  static std::uint64_t EdgeKey(const CMeshTriangle& t, int i) {
    const int a = t.m_vertex[Index(i)], b = t.m_vertex[Index((i + 1) % 3)];
    return Key(std::min(a, b), std::max(a, b));
  }

  // The longest edge; among equals the same from both sides.
  int Longest(const CMeshTriangle& t) const {
    const auto rank = [&](int i) {
      const CPoint a = m_mesh.m_arrVertex[Index(t.m_vertex[Index(i)])];
      const CPoint b = m_mesh.m_arrVertex[Index(t.m_vertex[Index((i + 1) % 3)])];
      return std::pair{Hypot(a.x - b.x, a.y - b.y), EdgeKey(t, i)};
    };
    int best = 0;
    for (int i = 1; i < 3; ++i) {
      if (rank(i) > rank(best)) best = i;
    }
    return best;
  }

  // The middle of the longest edge of every marked triangle, and of every triangle that has one.
  void Mark(std::span<const char> marked) {
    const auto& triangles = m_mesh.m_arrTriangle;
    std::unordered_map<std::uint64_t, std::array<int, 2>> beside;
    for (std::size_t i = 0; i < triangles.size(); ++i) {
      for (int k = 0; k < 3; ++k) {
        auto& pair = beside.try_emplace(EdgeKey(triangles[i], k), std::array{-1, -1}).first->second;
        (pair[0] < 0 ? pair[0] : pair[1]) = static_cast<int>(i);
      }
    }
    std::vector<int> todo;
    for (std::size_t i = 0; i < triangles.size(); ++i) {
      if (marked[i]) todo.push_back(static_cast<int>(i));
    }
    while (!todo.empty()) {
      const CMeshTriangle& t = triangles[Index(todo.back())];
      todo.pop_back();
      const int longest = Longest(t);
      const auto key = EdgeKey(t, longest);
      HalveArcs(t);
      if (m_middle.contains(key)) continue;
      AddMiddle(t, longest, key);
      for (int other : beside[key]) {
        if (other >= 0) todo.push_back(other);
      }
    }
  }

  // An arc that stays whole reaches twice as far into the half of its triangle.
  void HalveArcs(const CMeshTriangle& t) {
    for (int i = 0; i < 3; ++i) {
      const auto key = EdgeKey(t, i);
      const CBend bend = BendOf(m_mesh, t, i);
      const bool strong = std::fabs(bend.bulge) > 0.1 || bend.corner < 0.7;
      if (strong && !m_middle.contains(key)) AddMiddle(t, i, key);
    }
  }

  void AddMiddle(const CMeshTriangle& t, int i, std::uint64_t key) {
    const CPoint a = m_mesh.m_arrVertex[Index(t.m_vertex[Index(i)])];
    const CPoint b = m_mesh.m_arrVertex[Index(t.m_vertex[Index((i + 1) % 3)])];
    const int s = t.m_stretch[Index(i)];
    m_middle[key] = static_cast<int>(m_mesh.m_arrVertex.size());
    m_mesh.m_arrVertex.push_back(s >= 0 ? m_mesh.At(m_mesh.m_arrStretch[Index(s)], 0.5)
                                        : CPoint{(a.x + b.x) / 2, (a.y + b.y) / 2});
    m_mesh.m_arrSharp.push_back(0);
  }

  void Emit(const CMeshTriangle& t) {
    int cut = Longest(t);
    for (int i = 0; i < 3 && !m_middle.contains(EdgeKey(t, cut)); ++i) cut = i;
    const auto found = m_middle.find(EdgeKey(t, cut));
    if (found == m_middle.end()) {
      m_mesh.m_arrTriangle.push_back(t);
      return;
    }
    const auto [a, b, c] = std::array{cut, (cut + 1) % 3, (cut + 2) % 3};
    const auto halves = Halves(t.m_stretch[Index(cut)]);
    const auto v = [&](int i) { return t.m_vertex[Index(i)]; };
    Emit({{v(a), found->second, v(c)}, {halves[0], -1, t.m_stretch[Index(c)]}});
    Emit({{found->second, v(b), v(c)}, {halves[1], t.m_stretch[Index(b)], -1}});
  }

  std::array<int, 2> Halves(int stretch) {
    if (stretch < 0) return {-1, -1};
    const CStretch whole = m_mesh.m_arrStretch[Index(stretch)];
    const double middle = (whole.m_dFrom + whole.m_dTo) / 2;
    m_mesh.m_arrStretch[Index(stretch)].m_dTo = middle;
    m_mesh.m_arrStretch.push_back({whole.m_nLoop, whole.m_nEdge, middle, whole.m_dTo});
    return {stretch, static_cast<int>(m_mesh.m_arrStretch.size()) - 1};
  }

  CSectionMesh m_mesh;
  std::unordered_map<std::uint64_t, int> m_middle;
};

// As far as it goes; false when an arc would cut through a triangle. Of too many arcs nothing more.
bool GradeToArcs(CSectionMesh& mesh) {
  for (;;) {
    const std::vector<char> marked = CoarseAtArcs(mesh);
    if (std::find(marked.begin(), marked.end(), 1) == marked.end()) return true;
    auto refined = Refined(mesh, marked);
    if (!refined) return false;
    if (refined->m_arrTriangle.size() > kMostGraded) return true;
    mesh = std::move(*refined);
  }
}

}  // namespace

std::vector<char> CoarseAtArcs(const CSectionMesh& mesh) {
  std::vector<double> most(mesh.m_arrVertex.size(), HUGE_VAL);
  for (const CMeshTriangle& t : mesh.m_arrTriangle) {
    for (int i = 0; i < 3; ++i) {
      const int s = t.m_stretch[Index(i)];
      if (s < 0) continue;
      const CEdge& edge = mesh.m_arrEdge[Index(mesh.m_arrStretch[Index(s)].m_nEdge)];
      if (!edge.IsArc() || edge.Sweep() > 0) continue;
      const double reach = kArcReach * edge.Length() / -edge.Sweep();
      for (const int v : {t.m_vertex[Index(i)], t.m_vertex[Index((i + 1) % 3)]})
        most[Index(v)] = std::min(most[Index(v)], reach);
    }
  }
  std::vector<char> marked;
  for (const CMeshTriangle& t : mesh.m_arrTriangle) {
    double longest = 0, least = HUGE_VAL;
    for (int i = 0; i < 3; ++i) {
      const int v = t.m_vertex[Index(i)];
      const CPoint a = mesh.m_arrVertex[Index(v)];
      const CPoint b = mesh.m_arrVertex[Index(t.m_vertex[Index((i + 1) % 3)])];
      longest = std::max(longest, Hypot(a.x - b.x, a.y - b.y));
      least = std::min(least, most[Index(v)]);
    }
    marked.push_back(longest > least);
  }
  return marked;
}

std::vector<CSectionMesh> MeshesOfPart(std::span<const CPath> loops, int& arcs, bool fold) {
  CFold lines;
  if (fold) lines = FoldOf(loops);
  std::vector<CSectionMesh> first;
  int found = arcs;
  for (; arcs < kArcTrials; ++arcs) {
    auto meshes = TryMeshes(loops, arcs, lines);
    // Pieces are told from each other in the whole.
    if (lines.Any() && meshes.size() != 1) meshes = TryMeshes(loops, arcs, lines = {});
    if (meshes.empty()) continue;
    const bool graded = std::all_of(meshes.begin(), meshes.end(), GradeToArcs);
    if (first.empty() || graded) {
      first = std::move(meshes);
      found = arcs;
    }
    if (graded) break;
  }
  if (!first.empty()) arcs = found;
  return first;
}

std::optional<CSectionMesh> Refined(const CSectionMesh& mesh, std::span<const char> marked) {
  CSectionMesh refined = CRefiner(mesh).Refine(marked);
  if (!IsSound(refined)) return std::nullopt;
  return refined;
}

}  // namespace orv3
