// Rows whose stable indices are their positions.
#pragma once

#include "framework/export.h"

class CDataTable;

namespace orv3 {

// Gives every row its position as its stable index, and marks as changed those whose it was not.
//
// CDataTable::AddTableItem puts a new row at the position that equals the first deleted row's
// index, over whatever row is there. Who adds rows aligns the table first: then that is the deleted
// row's own place.
ORV3CAL_API void AlignIndices(CDataTable& table);

}  // namespace orv3
