// The figures that integrals of an outline alone give.
#pragma once

#include <span>

#include "framework/export.h"
#include "outlines/exact_properties.h"

namespace orv3 {

// A to surface; all NaN when the loops enclose no area.
CExactProperties GeometricFigures(std::span<const CPath> loops);

// Whether the principal axes are others than x and y.
ORV3CAL_API bool HasSlantAxes(const CExactProperties& exact);

// Of the section turned counter-clockwise by quarters, 0 to 3, from the lower left corner of its
// rectangle as it then lies; `width` and `height`, mm, are those before.
ORV3CAL_API CExactProperties QuarterTurned(const CExactProperties& exact, int quarters,
                                           double width, double height);

// The integrals of y (x^2 + y^2) and x (x^2 + y^2) over the area, the first for
// betax, from the centroid.
struct CThirdMoments {
  double forX = 0, forY = 0;
};
CThirdMoments ThirdMoments(std::span<const CPath> loops, CPoint centroid);

}  // namespace orv3
