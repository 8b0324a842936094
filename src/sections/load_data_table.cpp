// The program directory and the look-ups in its stores.
#include "sections/load_data_table.h"

#include <utility>

#include "sections/system_tables.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"

void CLoadDataTable::SetOrvoPrgPath(const CString& path) { orv3::SetProgramPath(path); }

CString CLoadDataTable::GetOrvoPrgPath() { return orv3::ProgramPath(); }

int CLoadDataTable::GetSysTemItemNo(const CString& tableName, CStringArray& numbers) {
  return orv3::StoredNumbers(orv3::ServingStore(), tableName, numbers);
}

CDataItem CLoadDataTable::GetSysTemJMItem(const CString& tableName, const CString& no) {
  return orv3::StoredRow(orv3::ServingStore(), tableName, no);
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
