// The program directory and the look-ups in its stores.
#include "sections/load_data_table.h"

#include <memory>
#include <utility>

#include "sections/system_tables.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace {

CDataItem RowOf(const CString& store, const CString& table, const CString& no) {
  const auto read = orv3::SystemTable(store, table);
  const int position = read ? read->Find(no) : -1;
  return position < 0 ? CDataItem() : read->Table()[position];
}

// The table of the store in front, where there is one and it has the table, else the catalogue's.
std::shared_ptr<const orv3::CSystemTable> TableOf(const CString& table) {
  const CString front = orv3::StoreInFront();
  auto read = front.IsEmpty() ? nullptr : orv3::SystemTable(front, table);
  return read ? read : orv3::SystemTable(orv3::SystemStorePath(), table);
}

}  // namespace

void CLoadDataTable::SetOrvoPrgPath(const CString& path) { orv3::SetProgramPath(path); }

CString CLoadDataTable::GetOrvoPrgPath() { return orv3::ProgramPath(); }

int CLoadDataTable::GetSysTemItemNo(const CString& tableName, CStringArray& numbers) {
  const auto read = TableOf(tableName);
  numbers.RemoveAll();  // of which the name may be one
  if (!read || read->Table().GetTableColNum() < 2) return 0;
  for (const CDataItem& row : read->Table().m_arrItem) {
    const int cell = row.GetSignIndex(L"No.");
    if (!orv3::IsDeleted(row.m_nModifyType) && cell >= 0)
      numbers.Add(row.m_arrCell.GetAt(cell).m_strValue);
  }
  return 1;
}

CDataItem CLoadDataTable::GetSysTemJMItem(const CString& tableName, const CString& no) {
  const CString front = orv3::StoreInFront();
  if (!front.IsEmpty()) {
    const CDataItem row = RowOf(front, tableName, no);
    if (!row.IsEmpty()) return row;
  }
  return RowOf(orv3::SystemStorePath(), tableName, no);
}

CDataItem CLoadDataTable::GetUserJMItem(const CString& tableName, const CString& no,
                                        const CString& file) {
  CDataTable table;
  table.SetTableName(tableName);
  table.SetSaveTablePath(orv3::ProgramPath());
  if (!table.GetUserJmTable(file) || table.GetTableColNum() == 0) return {};
  const int position = table.IsHaveValue(0, no, -1);
  return position < 0 ? CDataItem() : std::as_const(table)[position];
}

int CLoadDataTable::IsHaveSystemJMItem(const CString& tableName, const wchar_t* expression) {
  const auto read = orv3::SystemTable(orv3::SystemStorePath(), tableName);
  if (!read) return 0;
  CDataTable table = read->Table();
  return table.SearchTable(expression, 0).GetTableRowNum() > 0 ? 1 : 0;
}
