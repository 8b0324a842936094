// The program directory and the look-ups in its stores.
#include "sections/load_data_table.h"

#include <utility>

#include "sections/system_tables.h"
#include "tables/data_table.h"
#include "tables/table_store.h"

void CLoadDataTable::SetOrvoPrgPath(const CString& path) { orv3::SetProgramPath(path); }

CString CLoadDataTable::GetOrvoPrgPath() { return orv3::ProgramPath(); }

int CLoadDataTable::GetSysTemItemNo(const CString& tableName, CStringArray& numbers) {
  const CString name = tableName;  // which may be one of `numbers`
  numbers.RemoveAll();
  const auto read = orv3::SystemTable(name);
  if (!read || read->Table().GetTableColNum() < 2) return 0;
  for (const CDataItem& row : read->Table().m_arrItem) {
    const int cell = row.GetSignIndex(L"No.");
    if (row.m_nModifyType >= 0 && cell >= 0) numbers.Add(row.m_arrCell.GetAt(cell).m_strValue);
  }
  return 1;
}

CDataItem CLoadDataTable::GetSysTemJMItem(const CString& tableName, const CString& no) {
  const auto read = orv3::SystemTable(tableName);
  const int position = read ? read->Find(no) : -1;
  return position < 0 ? CDataItem() : read->Table()[position];
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
  const auto read = orv3::SystemTable(tableName);
  if (!read) return 0;
  CDataTable table = read->Table();
  return table.SearchTable(expression, 0).GetTableRowNum() > 0 ? 1 : 0;
}
