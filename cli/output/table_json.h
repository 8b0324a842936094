// A table as JSON: {"table", "columns": [{"sign","name","title","type","key"}],
// "rows": [{"index","state","cells"}]}, its live rows, cells as text. The name is the store's, the
// title the same in the language of messages.
#pragma once

#include <string>
#include <vector>

#include "output/output.h"
#include "tables/data_table.h"

namespace orv3::cli {

CJson TableJson(const std::string& name, const CDataTable& table);

// The values of a row as UTF-8.
std::vector<std::string> RowCells(const CDataItem& row);

}  // namespace orv3::cli
