// The title of a column in both languages. Stores keep the Chinese one; the English one stands
// beside it where the table's columns are described.
#pragma once

#include "framework/export.h"
#include "framework/language.h"
#include "tables/data_type.h"

namespace orv3 {

// A heading that is not the table's own, by its sign or its title, is the same in both.
ORV3CAL_API CText ColumnTitle(const CString& table, const CDataTypeStruct& column);

}  // namespace orv3
