// Constrained Delaunay triangulation of points whose coordinates are whole numbers, so that every
// question of side is answered exactly.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orv3 {

// Within 0 to 2^28.
struct CGridPoint {
  std::int64_t x = 0, y = 0;
  bool operator==(const CGridPoint&) const = default;
};

// A piece of boundary with material on its left.
struct CGridEdge {
  int from = 0, to = 0;
};

// Counter-clockwise; m_next[i] is the triangle across the edge opposite m_vertex[i], -1 for none.
struct CTriangle {
  std::array<int, 3> m_vertex{};
  std::array<int, 3> m_next{-1, -1, -1};
};

// The triangles of the points where the edges' winding number is above 0; m_next -1 at the
// boundary. Nothing when two edges cross, a point lies beyond the grid or the points enclose
// nothing. Points must differ.
std::optional<std::vector<CTriangle>> Triangulate(std::span<const CGridPoint> points,
                                                  std::span<const CGridEdge> edges);

}  // namespace orv3
