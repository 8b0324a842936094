// The row with which a user starts a new section of plates.
#pragma once

#include "framework/export.h"

class CDataItem;

namespace orv3 {

// Fills the row of a user-defined table with its style's sample section, computed; a row of fewer
// than 2 cells gets the style's heading first. 0 for another table or a row of other cells.
ORV3CAL_API int DefaultSectionRow(CDataItem& item);

}  // namespace orv3
