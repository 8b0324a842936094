// Where the sizes of a row are measured on its outline.
#pragma once

#include <vector>

#include "sections/outline.h"
#include "sections/section_dimensions.h"
#include "tables/data_item.h"

namespace orv3 {

// The main dimensions of the unturned row, whose outline is `outline`; none for a row without one.
std::vector<CSizeDimension> RowDimensions(const CDataItem& row, const COutline& outline);

// The same as they stand on the outline after so many quarter turns counter-clockwise; width and
// height are those of the unturned outline.
std::vector<CSizeDimension> QuarterTurned(std::vector<CSizeDimension> sizes, int quarters,
                                          double width, double height);

}  // namespace orv3
