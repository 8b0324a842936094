// Exact properties as columns of a table, computed row by row.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "outlines/exact_properties.h"
#include "output/output.h"
#include "tables/data_table.h"
#include "tables/expression.h"

namespace orv3::cli {

// Appends a column for each of `signs` that names an exact property (outlines/exact_keys.h) and no
// column of the table: numbers with all their digits, empty where a row has no such figure. Other
// signs are passed over. Answers the rows' properties by GetItemIndex; empty without a column.
std::map<int, CExactProperties> AddExactColumns(CDataTable& table,
                                                const std::vector<std::string>& signs);

// "accurate" and "errors" (exact_view.h) with each row of a TableJson that has exact properties.
void AddAccuracies(CJson& table, const std::map<int, CExactProperties>& exacts);

// The signs of all of them.
const std::vector<std::string>& ExactSigns();

// Whether the column at a position is one of those.
bool IsExactColumn(const CDataTypeStruct& column);

// Takes away the rows that match the expression by nothing but a figure that they do not have.
void RemoveUnknown(CDataTable& table, const CSearchExpression& search, bool wildcard);
// Puts the rows that lack the figure behind the others, as they follow each other.
void SortUnknownLast(CDataTable& table, int column);

}  // namespace orv3::cli
