// How CLoadDataTable opens a dialog that ends with a row.
#pragma once

#include "dialogs/win32/win32_api.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "sections/load_data_table.h"
#include "tables/data_item.h"

namespace orv3 {

inline constexpr int kLeastCells = 3;  // a number and two sizes: fewer are no section

inline CStringArray TableNamesOf(long mask) {
  CStringArray names;
  CLoadDataTable::GetTableNameArray(mask, names);
  return names;
}

// Runs a dialog on the tables and hands its row on; 0, and `item` as it was, without one.
template <class Dialog>
int ChooseRow(const CStringArray& names, const CString& path, CDataItem& item) {
  Dialog dialog;
  dialog.m_strPath = path;
  dialog.m_arrTableName.Append(names);
  dialog.m_item = CDataItem(item);
  if (dialog.DoModal() != IDOK || dialog.m_item.GetItemLength() < kLeastCells) return 0;
  item = dialog.m_item;
  return 1;
}

}  // namespace orv3
