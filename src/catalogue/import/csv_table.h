// A table written as CSV, for an import: as a spreadsheet saves it, in UTF-8, UTF-16 with a byte
// order mark or the code page, separated by commas, semicolons or tabs.
//
// The first line names the columns by their signs. A table that is new to the store, and whose
// columns nobody knows, has each as sign:type, the key columns as sign:type:key. Columns may be in
// any order; those that are computed may be missing, and what stands in them is computed anew.
#pragma once

#include <functional>
#include <string>

#include "catalogue/import/table_import.h"

namespace orv3 {

// The names of value types in a first line: text, int, long, float, double, char.
ORV3CAL_API const char* ValueTypeName(CDataTypeStruct::KVBT_Value_Type type);

// The table of a CSV text under the columns that the store has, or without columns for a
// table that the store lacks. Rows that are none are refused one by one, by their line, and rows
// without a value are passed over. False, with `why` set, when the first line is none, a cell in
// quotation marks is malformed or the rows are more than a table takes: no more of them are read.
ORV3CAL_API bool ReadCsvTable(std::string text, const CString& name, const CDataTableTitle& stored,
                              CImportTable& table, CString& why,
                              const std::function<void(double)>& progress = {});

}  // namespace orv3
