#include "store_table.h"

#include <algorithm>

#include "error.h"
#include "framework/utf8.h"
#include "nearest.h"
#include "platform/store_error.h"

namespace orv3::cli {
namespace {

[[noreturn]] void NotRead(const CString& store) {
  const CStoreError& error = LastStoreError();
  throw CCommandError(CExit::FileTrouble, error.m_strText.IsEmpty()
                                              ? ToUtf8(store) + ": cannot be read as a store"
                                              : ToUtf8(error.m_strText));
}

}  // namespace

CStringArray StoreTableNames(const CString& store) {
  CStringArray names;
  CDataTable::GetTableNameFromFile(store, names);
  if (names.IsEmpty() && LastStoreError().m_nTrouble != CStoreTrouble::None) NotRead(store);
  return names;
}

CDataTable StoreTable(const CString& store, const CString& name) {
  CDataTable table;
  table.SetTableName(name);
  CString info;
  if (table.GetTable(store, info)) return table;
  const CStringArray names = StoreTableNames(store);
  if (std::find(names.begin(), names.end(), name) != names.end()) NotRead(store);
  Refuse("TABLE: the store has no table \"" + ToUtf8(name) +
         (names.IsEmpty() ? "\", nor any other"
                          : "\"; the nearest are: " + Nearest(ToUtf8(name), names)));
}

int ColumnOf(const CDataTable& table, const std::string& what, const std::string& sign) {
  const int column = table.GetTableColIndex(FromUtf8(sign));
  if (column >= 0) return column;
  CStringArray signs;
  for (int i = 0; i < table.GetTableColNum(); ++i) signs.Add(table.m_Title[i].m_strSign);
  Refuse(what + ": the table has no column \"" + sign +
         "\"; the nearest are: " + Nearest(sign, signs));
}

}  // namespace orv3::cli
