// The rows of a store whose figures are not those of their sizes.
#pragma once

#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/file/store_check.h"

namespace orv3 {

// One for each such row of a rolled table, with its place in the file; those of tables that can be
// read.
ORV3CAL_API std::vector<CStoreFault> ContradictingRows(const CString& store);

}  // namespace orv3
