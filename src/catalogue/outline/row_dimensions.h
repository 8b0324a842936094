// Where the sizes of a row are measured on its outline.
#pragma once

#include <vector>

#include "sections/outline.h"
#include "sections/section_dimensions.h"
#include "tables/data_item.h"

namespace orv3 {

// The main dimensions of the unturned row, whose outline is `outline`; none for a row without one.
std::vector<CSizeDimension> RowDimensions(const CDataItem& row, const COutline& outline);

// A point, and the dimensions, as they stand on the outline after 0 to 3 quarter turns
// counter-clockwise; width and height are those of the unturned outline.
CPoint QuarterTurned(CPoint p, int quarters, double width, double height);
std::vector<CSizeDimension> QuarterTurned(std::vector<CSizeDimension> sizes, int quarters,
                                          double width, double height);

}  // namespace orv3
