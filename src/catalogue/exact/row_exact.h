// The exact properties of a section row, whatever its cells say: those of its outline.
#pragma once

#include "framework/export.h"
#include "outlines/exact_properties.h"
#include "sections/outline.h"
#include "tables/data_item.h"

namespace orv3 {

// Of the row's outline as it stands untouched (catalogue/outline/row_outline.h), in its frame. The
// parts of a pair and the limbs of a lattice column are not joined along their length: It is added
// up, and what asks for one part is NaN. All NaN for a row without an outline; the solver's figures
// are for sizes whose plates overlap, touch or meet in an edge without width.
//
// Looked up where the catalogue's figures hold the row (exact_figures.h), computed otherwise.
ORV3CAL_API CExactProperties ExactProperties(const CDataItem& row);

// The same, always computed.
ORV3CAL_API CExactProperties ComputedExact(const CDataItem& row);

// Of an outline in its own frame, whose rectangle may be wider than its loops.
ORV3CAL_API CExactProperties ExactProperties(const COutline& outline);

}  // namespace orv3
