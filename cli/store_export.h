// The forms in which orv3cal store export writes tables.
#pragma once

#include <string>
#include <vector>

#include "tables/data_table.h"

namespace orv3::cli {

// A workbook with a sheet for each table: a line of titles and one of signs that stay in view, then
// the live rows, numbers as numbers. CCommandError when it cannot be written, or where the program
// was built without the library for it.
void WriteWorkbook(const std::string& file, const std::vector<CDataTable>& tables);

}  // namespace orv3::cli
