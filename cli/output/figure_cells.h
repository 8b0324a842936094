// Cells of section rows as they are shown: "∞" for a modulus whose fibre lies on the axis (1e100 in
// a table), "-" for a first moment that nobody computed (0 there).
#pragma once

#include <string>
#include <vector>

#include "output/output.h"
#include "tables/data_table.h"

namespace orv3::cli {

// Puts those texts into the cells. A row of other sizes than its figures keeps what stands there.
void ShowFigures(CDataItem& row);
void ShowFigures(CDataTable& table);

// A cell's text for JSON; null for one of those.
CJson CellJson(const CDataCell& cell);

}  // namespace orv3::cli
