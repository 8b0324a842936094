// What is wrong or doubtful about a row of a rolled-section table that somebody typed in.
#pragma once

#include <optional>
#include <vector>

#include "framework/export.h"
#include "framework/language.h"
#include "sections/row_check.h"
#include "tables/data_item.h"

namespace orv3 {

// The first cell that the row's figures are computed from and that holds no number they could be
// computed from, or sizes that bound no section; nothing for a row that has what it needs, and for
// a row of another table.
ORV3CAL_API std::optional<CRowFault> CheckRolledRow(const CDataItem& row);

// A figure of a row, of one section or of a pair, that is farther than printed figures ever are
// from the one that the outline of the row's sizes has: 2 % of the area, 3 % of every other.
// Printed figures have three digits or more but for the least of them, whose last digit is
// worth 1.7 %.
struct CRowDoubt {
  const char* m_szKey;         // "A", "Ix", "iy", "Wx1", "imin", "Sx"
  double m_dTold, m_dOutline;  // mm^2, mm^4, mm, mm^3
};
ORV3CAL_API std::vector<CRowDoubt> RowDoubts(const CDataItem& row);

// The first of them in words, for a row that contradicts itself: "A = 26131 mm², its sizes give
// 2613.1 mm²". A lattice column does when a limb's row does: "I99: A = 26131 mm², ...".
ORV3CAL_API std::optional<CText> Contradiction(const CDataItem& row);

}  // namespace orv3
