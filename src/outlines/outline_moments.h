// Area, centroid and moments of inertia of an outline, exact for straight edges and arcs.
#pragma once

#include <span>

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

struct COutlineMoments {
  double m_dArea = 0;                       // mm^2
  CPoint m_centroid;                        // mm
  double m_dIx = 0, m_dIy = 0, m_dIxy = 0;  // mm^4, about the centroid: of y^2, of x^2, of x y
};

// Loops add by their sense: counter-clockwise ones are steel, clockwise ones holes. All 0 when they
// enclose nothing.
ORV3CAL_API COutlineMoments RowOutlineMoments(std::span<const CPath> loops);

}  // namespace orv3
