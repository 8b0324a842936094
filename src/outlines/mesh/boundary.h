// The outline of a part cut into the stretches that the first mesh has as edges.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"
#include "outlines/mesh/fold.h"
#include "outlines/mesh/section_mesh.h"

namespace orv3 {

struct CBoundary {
  std::vector<CEdge> m_arrEdge;
  std::vector<CStretch> m_arrStretch;
  std::vector<CPoint> m_arrInner;   // points inside, around re-entrant corners
  std::vector<CPoint> m_arrCorner;  // sharp re-entrant corners
  CFold m_fold;
};

// arcs: how finely arcs are cut; each step up halves their stretches once more. fold: lines to cut
// the part in half at, of which what comes out may leave some unused.
CBoundary CutBoundary(std::span<const CPath> loops, int arcs, const CFold& fold);

}  // namespace orv3
