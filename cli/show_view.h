// A row with its geometry, as JSON and as a table for people.
#pragma once

#include "catalogue/outline/row_figures.h"
#include "output.h"
#include "tables/data_item.h"

namespace orv3::cli {

CJson RowJson(const CDataItem& row, const CRowFigures& figures);
void PrintRow(const CDataItem& row, const CRowFigures& figures);

}  // namespace orv3::cli
