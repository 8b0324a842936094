// Reading the tables of a store, with errors in the command's own way.
#pragma once

#include <string>
#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3::cli {

// CCommandError with status 3 when the last look-up found nothing because the store cannot be read.
void FailUnread();
// CCommandError with status 3 when the store cannot be read.
CStringArray StoreTableNames(const CString& store);
// CCommandError with status 2, which names the nearest tables, when the store has no such table,
// and with status 3 when it cannot be read.
CDataTable StoreTable(const CString& store, const CString& name);

// The position of a column; CCommandError with status 2, which names the nearest signs, when there
// is none, among those of the table and `others`. `what` says where the sign stands, such as
// "--sort".
int ColumnOf(const CDataTable& table, const std::string& what, const std::string& sign,
             const std::vector<std::string>& others = {});

}  // namespace orv3::cli
