// What a save of a table would cut, lose or refuse, asked for before anything is written.
#pragma once

#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

class CDataTable;

namespace orv3 {

struct CSaveFault {
  int m_nRow = -1;     // position of the row; -1 for the heading, the table or the file
  int m_nColumn = -1;  // -1 for the whole row or heading
  CString m_strText;   // one line that names table, row and column, what is wrong and what fits
  CString m_strInRow;  // the same without table and row
};

// The faults of saving `table` into the store at `path` (not looked at when empty): of its unsaved
// rows, or of all its rows with `all`. None: the save writes every character.
ORV3CAL_API std::vector<CSaveFault> SaveFaults(const CDataTable& table, const CString& path,
                                               bool all = false);

}  // namespace orv3
