// Paths as a DXF file, for drawing programs.
#pragma once

#include <span>
#include <string>

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// An ASCII DXF of release 2000 (AC1015), in mm: each path a polyline with its arcs as they are, on
// the layer "SECTION", the view on all of them. Coordinates have all their digits; those within
// 1e-9 mm of 0 are 0.
ORV3CAL_API std::string PathsDxf(std::span<const CPath> paths);

}  // namespace orv3
