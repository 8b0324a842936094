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

// The first pair of edges, of one loop or of two, that cross or overlap; touching in a point is
// none. In O(n log n) for outlines that are not made to be slow, never beyond O(n sqrt(n)) a pair
// tested at most once.
ORV3CAL_API std::optional<CCrossing> FindCrossing(std::span<const CPath> loops);

// No point of the loop's inside is hidden from another: it turns to one side only.
ORV3CAL_API bool IsConvex(const CPath& loop);

// The area that a closed loop encloses, positive when it runs counter-clockwise.
ORV3CAL_API double LoopArea(const CPath& loop);

// Whether a point lies inside a loop, however it runs.
ORV3CAL_API bool Encloses(const CPath& loop, CPoint point);

}  // namespace orv3
