#include "store/store_table.h"

#include <algorithm>

#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "options/nearest.h"
#include "platform/store_error.h"
#include "sections/system_tables.h"

namespace orv3::cli {
namespace {

[[noreturn]] void NotRead(const CString& store) {
  const CStoreError& error = LastStoreError();
  throw CCommandError(
      CExit::FileTrouble,
      error.m_strText.IsEmpty()
          ? Say("{1}: 不能作为截面库读取", "{1}: cannot be read as a store", {ToUtf8(store)})
          : ToUtf8(error.m_strText));
}

}  // namespace

void FailUnread() {
  if (IsStoreUnread()) NotRead(LastStoreError().m_strPath);
}

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
  const std::string wanted = ToUtf8(name);
  if (names.IsEmpty()) {
    Refuse(Say("TABLE: 库中没有表“{1}”，也没有其他表",
               "TABLE: the store has no table \"{1}\", nor any other", {wanted}));
  }
  Refuse(Say("TABLE: 库中没有表“{1}”；相近的有：{2}",
             "TABLE: the store has no table \"{1}\"; the nearest are: {2}",
             {wanted, Nearest(wanted, names)}));
}

int ColumnOf(const CDataTable& table, const std::string& what, const std::string& sign,
             const std::vector<std::string>& others) {
  const int column = table.GetTableColIndex(FromUtf8(sign));
  if (column >= 0) return column;
  CStringArray signs;
  for (int i = 0; i < table.GetTableColNum(); ++i) signs.Add(table.m_Title[i].m_strSign);
  for (const std::string& other : others) {
    if (table.GetTableColIndex(FromUtf8(other)) < 0) signs.Add(FromUtf8(other));
  }
  Refuse(Say("{1}: 表中没有列“{2}”；相近的有：{3}",
             "{1}: the table has no column \"{2}\"; the nearest are: {3}",
             {what, sign, Nearest(sign, signs)}));
}

}  // namespace orv3::cli
