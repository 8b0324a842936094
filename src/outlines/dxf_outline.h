// The loops that a DXF file draws.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "outlines/outline_check.h"

namespace orv3 {

// Reads the ENTITIES of an ASCII DXF file: closed polylines (LWPOLYLINE, POLYLINE) with bulges,
// circles, and lines, arcs and open polylines whose ends lie within 0.001 mm of each other.
// `layer`: of this layer only, UTF-8; empty: of all that are neither off nor frozen. Texts,
// dimensions, hatches, points and the like are passed over; another entity (SPLINE, ELLIPSE,
// INSERT, ...) is a fault, as is what is drawn outside of the plane, or on other layers alone.
// Coordinates become mm by $INSUNITS: inches, feet, mm, cm, m, dm, or none, which counts as mm.
//
// The loops are not checked beyond that (outline_check.h). On a fault, which names the line where
// there is one, `loops` is empty.
ORV3CAL_API std::optional<COutlineFault> ReadDxfOutline(std::string_view text,
                                                        const std::string& layer,
                                                        std::vector<CPath>& loops);

}  // namespace orv3
