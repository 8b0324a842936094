// How the straight welds of a group lie to one another.
#pragma once

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "connections/weld_group/weld_group.h"

namespace orv3 {

// Length of the run that each weld is part of, mm: welds whose ends meet nearer than the smaller
// leg and that go on in one direction are one weld in pieces, whatever their legs.
std::vector<double> RunLengths(std::span<const CWeldLine> welds);

// Two welds side by side over a length, as two welds cannot lie, by their indices: their throats
// would count twice. Legs of 1.2 t on either side of a plate (2003: 8.2.7) leave room; welds that
// cross and ends that meet do too.
std::optional<std::pair<std::size_t, std::size_t>> WeldsTooClose(std::span<const CWeldLine> welds);

}  // namespace orv3
