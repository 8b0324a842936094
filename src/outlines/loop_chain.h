// Lines and arcs joined end to end into closed loops.
#pragma once

#include <optional>
#include <vector>

#include "outlines/outline_check.h"

namespace orv3 {

// Appends to `loops` the closed loops that open paths make whose ends lie within `tolerance` of
// each other, in the order of their first paths. A fault, and `loops` untouched, where a chain
// stays open, or where more than two ends meet.
ORV3CAL_API std::optional<COutlineFault> JoinLoops(const std::vector<CPath>& open, double tolerance,
                                                   std::vector<CPath>& loops);

}  // namespace orv3
