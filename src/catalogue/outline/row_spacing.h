// What a pair of sections is made of: two equal parts, and their clear distance, which a row
// carries when it has been chosen.
#pragma once

#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

// Whether a table's rows are pairs of angles or channels, or crosses of angles.
ORV3CAL_API bool IsPairTable(const CString& tableName);

// Either part's row in the system store; empty for what is no pair, and when the store has none.
ORV3CAL_API CDataItem PairPartRow(const CDataItem& row);

// The sign of the cell that a pair's spacing stands in, "a(mm)" or "δ(mm)"; empty for a table that
// has none: no pairs, or channels whose toes touch.
ORV3CAL_API CString PairSpacingSign(const CString& tableName);

// The row with its spacing in whole mm as an integer cell right after "No.", in place of one that
// is there; unchanged when its table has no spacing.
ORV3CAL_API CDataItem WithPairSpacing(CDataItem row, int spacing);

}  // namespace orv3
