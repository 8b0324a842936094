// Which loops of an outline lie inside which: what is a part, and what is a hole in it.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// Loops that neither cross nor touch (outline_check.h). A loop in an even number of others bounds
// a part, one in an odd number of others a hole.
struct CLoopPlace {
  int m_nDepth = 0;    // how many loops are around it
  int m_nParent = -1;  // the innermost of them; -1: none
  bool IsHole() const noexcept { return m_nDepth % 2 == 1; }
};

// The place of each loop, in their order; none when the loops are so entangled that the search for
// them would take seconds.
ORV3CAL_API std::vector<CLoopPlace> NestLoops(std::span<const CPath> loops);

// The loops as an outline has them, whichever way they ran before: parts counter-clockwise, holes
// clockwise; arcs that bend nothing straight.
ORV3CAL_API std::vector<CPath> Sensed(std::vector<CPath> loops, std::span<const CLoopPlace> places);

}  // namespace orv3
