// The line that halves the area of an outline, and the plastic modulus about it.
#pragma once

#include <span>

#include "drawing/path.h"

namespace orv3 {

struct CPlasticAxis {
  double m_dAt = 0;       // of the line; the middle where a gap leaves a choice
  double m_dModulus = 0;  // the integral of the distance from it
};

// Of the horizontal line y = at, and of the vertical line x = at. Exact for arcs, but for rounding:
// the outline is of size 1 about the origin.
CPlasticAxis PlasticAxisX(std::span<const CPath> loops);
CPlasticAxis PlasticAxisY(std::span<const CPath> loops);

}  // namespace orv3
