// Whether a cell's text is what readers of its column take it for.
#pragma once

#include "framework/export.h"
#include "framework/language.h"
#include "tables/data_item.h"

namespace orv3 {

// Nothing, or a value of the type: a whole number of 32 bits, a number within the type's range, one
// character. Any other text reads as something else, "1.5" in an integer as 1, "abc" as 0.
ORV3CAL_API bool Fits(const CDataCell& cell);

// The first cell of a row that does not fit, -1 when all do.
ORV3CAL_API int FindMisfit(const CDataItem& row);

// What a misfit says: its column, its value and what would be right.
ORV3CAL_API CSentence MisfitText(const CDataCell& cell);

}  // namespace orv3
