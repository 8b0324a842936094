// What is wrong or doubtful about a row of a rolled-section table that somebody typed in.
#pragma once

#include <optional>
#include <vector>

#include "framework/export.h"
#include "sections/row_check.h"
#include "tables/data_item.h"

namespace orv3 {

// The first cell that the row's figures are computed from and that holds no number they could be
// computed from, or sizes that bound no section; nothing for a row that has what it needs, and for
// a row of another table.
ORV3CAL_API std::optional<CRowFault> CheckRolledRow(const CDataItem& row);

// A figure of a row that is farther than printed figures ever are from the one that the outline of
// the row's sizes has: 2 % of the area, 3 % of a moment of inertia.
struct CRowDoubt {
  const char* m_szKey;         // "A", "Ix", "Iy"
  double m_dTold, m_dOutline;  // mm^2, mm^4
};
ORV3CAL_API std::vector<CRowDoubt> RowDoubts(const CDataItem& row);

}  // namespace orv3
