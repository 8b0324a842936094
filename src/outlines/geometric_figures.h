// The figures that integrals of an outline alone give.
#pragma once

#include <span>

#include "outlines/exact_properties.h"

namespace orv3 {

// A to surface; all NaN when the loops enclose no area.
CExactProperties GeometricFigures(std::span<const CPath> loops);

}  // namespace orv3
