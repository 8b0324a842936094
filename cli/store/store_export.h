// The forms in which orv3cal store export writes tables.
#pragma once

#include <string>
#include <vector>

#include "platform/whole_file.h"
#include "tables/data_table.h"

namespace orv3::cli {

// A workbook with a sheet for each table: a line of titles and one of signs that stay in view, then
// the live rows, numbers as numbers. CCommandError, which names `file`, when it cannot be made, or
// where the program was built without the library for it.
std::string WorkbookBytes(const std::string& file, const std::vector<CDataTable>& tables);

// An empty file in the system's folder for temporary ones, removed at the end. CCommandError with
// status 3 when there can be none.
class CTemporaryFile : public CFreshFile {
 public:
  CTemporaryFile();
};

}  // namespace orv3::cli
