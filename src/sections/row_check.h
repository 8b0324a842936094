// Whether a row can be kept in its section table, and what is wrong when it cannot.
#pragma once

#include <optional>

#include "framework/export.h"
#include "framework/language.h"

class CDataItem;

namespace orv3 {

struct CRowFault {
  int m_nCell = -1;  // the cell at fault; -1 for the row
  CSentence m_text;  // what is wrong and what would be right
};

// The first fault of a row in cell order; nothing when its table can take it. Every row needs a
// number ("No.") and values that a table file holds whole; a column of numbers takes numbers, one
// of the catalogue sizes above 0, up to a kilometre, and no figure below 0. A user-defined row
// needs sizes that make a section, a lattice row spacings above 0, limbs that the system store has
// and quarter turns. Results, which are computed, are not looked at.
ORV3CAL_API std::optional<CRowFault> CheckRow(const CDataItem& item);

}  // namespace orv3
