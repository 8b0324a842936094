// Writing rolled-section data files (".kvb"); rolled_records.h has their layout.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_table.h"

namespace orv3 {

// Writes the live rows of a table of the style, 0 to 26, as the data file `path`, whose name must
// be the style's or its twin's for readers to know it. A table without rows gives a file of the
// record size alone, which readers take for no data.
//
// 1, or 0 and nothing written, when a model number is too long for the record, a value is not
// finite or a size is no whole number of 16 bits; LastStoreError() then names row and column.
ORV3CAL_API int WriteRolledFile(const CString& path, int style, const CDataTable& table);

}  // namespace orv3
