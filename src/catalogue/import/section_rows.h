// What is known of a section table by its name: its columns, and which of them are computed.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"
#include "tables/data_type.h"

namespace orv3 {

// The columns of a rolled, user-defined or lattice table. False for any other name.
ORV3CAL_API bool KnownHeading(const CString& table, CDataTableTitle& title);

// How many of a table's first columns are given; those behind them are computed from them. All of
// them for a table whose rows nobody computes.
ORV3CAL_API int GivenColumns(const CString& table, const CDataTableTitle& title);

// A row of a table with nothing in it but 0 for the base point of a user-defined section.
ORV3CAL_API CDataItem EmptyRow(const CString& table, const CDataTableTitle& title);

// Why no table takes a row, whoever brings it in: a value that its column cannot hold, or an empty
// first cell in a table with a key. Empty when one does.
ORV3CAL_API CString RowMisfit(const CDataItem& row);

// Checks a row that was typed in and computes what is computed of it; of a table that is no section
// table, only whether it takes the row. What is wrong and what would be right otherwise; empty when
// the row is complete.
ORV3CAL_API CString CompleteRow(CDataItem& row);

}  // namespace orv3
