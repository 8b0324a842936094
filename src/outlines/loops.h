// What a loop of lines and arcs encloses.
#pragma once

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// The area that a closed loop encloses, positive when it runs counter-clockwise.
ORV3CAL_API double LoopArea(const CPath& loop);

// Whether a point lies inside a loop, however it runs.
ORV3CAL_API bool Encloses(const CPath& loop, CPoint point);

}  // namespace orv3
