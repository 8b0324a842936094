// The least net section of a plate through the holes of a bolt group: GB 50017-2003, 5.1.1.
#pragma once

#include <span>
#include <vector>

namespace orv3 {

// A cut from edge to edge of the plate. It meets the lines of holes that stand across its way one
// after the other, and runs straight through those of one set or to and fro between the two sets
// of a staggered group.
struct CLeastCut {
  double m_dLength = 0;        // along its legs, without the edge distances, mm
  std::vector<int> m_arrLine;  // the lines whose holes it passes, ascending
  int Holes() const noexcept { return static_cast<int>(m_arrLine.size()); }
};

// The cut of least length, each hole taken off with `deduct` mm. `gaps`: from line to line, mm.
// `across`: how far the holes of the odd lines stand beside those of the even ones, mm; 0: not at
// all, and every line is cut.
//
// No leg need pass over a line of the other set or two of its own: the holes of a set stand one
// behind the other, so that a cut which changes sets elsewhere and runs straight here takes at
// least as many holes on a shorter way.
CLeastCut LeastCut(std::span<const double> gaps, double across, double deduct);

}  // namespace orv3
