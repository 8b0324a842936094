// The outline of a user-defined section, true to scale.
//
// The fifteen styles are those of the section record, numbered 0 to 14: symmetric H, symmetric box,
// flanged cross, rectangle, hexagon, triangle, circle, tube, T, general H, L, Z, channel, cross,
// general box. Lengths in mm, x to the right, y upwards, origin at the lower-left corner of the
// section's enclosing rectangle.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"
#include "framework/export.h"
#include "sections/section_style.h"

namespace orv3 {

struct COutline {
  // Counter-clockwise loops bound steel, clockwise ones holes. No loops when the sizes bound no
  // section: a size that is not finite, a negative thickness, plates that overlap or leave nothing.
  std::vector<CPath> m_arrLoop;
  // The enclosing rectangle that the section's edge distances are measured to. A flange of no
  // thickness counts for it, though it bounds nothing; so its area may touch fewer sides.
  double m_dWidth = 0;
  double m_dHeight = 0;
};

// Sizes in the order of the style's columns. The loops are exact (circles as arcs) and do not
// overlap, with two exceptions that the properties count in the same way: the corners of a flanged
// cross whose flanges meet, and an H whose web lies beside its flanges, joined by an edge without
// width. Parts separated by a plate without thickness are loops of their own. Unknown styles give
// no loops.
ORV3CAL_API COutline SectionOutline(int style, std::span<const double, kSectionSizes> sizes);

}  // namespace orv3
