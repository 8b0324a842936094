// The clear distance of a pair's two parts, which a row carries when it has been chosen.
#pragma once

#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

// Whether the table's pairs stand apart: all but channels toe to toe, which touch.
ORV3CAL_API bool HasPairSpacing(const CString& tableName);

// The row with its spacing in whole mm as an integer cell right after "No.", in place of one that
// is there; unchanged when its table has none.
ORV3CAL_API CDataItem WithPairSpacing(CDataItem row, int spacing);

}  // namespace orv3
