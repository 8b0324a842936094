// Whether loops of lines and arcs can be the boundary of a section.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// Two edges that meet where they must not: m_nLoop and m_nEdge tell each by its loop and the vertex
// it leaves.
struct CCrossing {
  std::size_t m_nLoop[2] = {0, 0};
  std::size_t m_nEdge[2] = {0, 0};
  CPoint m_point;
};

// A pair of edges, of one loop or of two, that cross. Edges that touch, or lie on one another, do
// not. In O(n log n) where no two edges are long and near at once, as they are in a comb.
ORV3CAL_API std::optional<CCrossing> FindCrossing(std::span<const CPath> loops);

// No point of the loop's inside is hidden from another: it turns to one side only.
ORV3CAL_API bool IsConvex(const CPath& loop);

// The area that a closed loop encloses, positive when it runs counter-clockwise.
ORV3CAL_API double LoopArea(const CPath& loop);

// Whether a point lies inside a loop, however it runs.
ORV3CAL_API bool Encloses(const CPath& loop, CPoint point);

}  // namespace orv3
