#include "system_store.h"

#include <iterator>
#include <utility>
#include <vector>

#include "catalogue/import/table_import.h"
#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/rolled/rolled_style.h"
#include "catalogue_csv.h"
#include "framework/utf8.h"
#include "platform/file_system.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "sections/load_data_table.h"
#include "tables/file/table_store.h"

namespace orv3::catalogue {
namespace {

constexpr std::int32_t kLatticeTables = TABLE_CUSTOM | TABLE_FAMILY_LATTICE;

void Save(CDataTable& table) {
  if (!table.WriteSystemJmTable()) throw CCatalogueError(ToUtf8(LastStoreError().m_strText));
}

void AddRolledTables(const CString& folder) {
  std::vector<CImportTable> tables;
  for (const CRolledStyle& style : RolledStyles()) {
    std::vector<CImportTable> read;
    CString why;
    if (!ReadImportFile(folder + style.m_strFile, read, why)) throw CCatalogueError(ToUtf8(why));
    std::move(read.begin(), read.end(), std::back_inserter(tables));
  }
  const CImportReport report = ImportTables(tables, folder + kSystemStore);
  if (!report.m_bDone) throw CCatalogueError(ToUtf8(report.m_strWhy));
  for (const CTableImport& table : report.m_arrTable) {
    for (const CRefusedRow& row : table.m_arrRefused)
      throw CCatalogueError(ToUtf8(table.m_strTable + L": " + row.m_strNo + L": " + row.m_strWhy));
  }
}

// The row with which a user starts; a lattice column's is computed from limbs in the store.
CDataItem Sample(const CString& name) {
  CDataItem row;
  row.m_strTableName = name;
  const bool made = CLoadDataTable::GetDefaultDataItem(row) != 0;
  if (made && !CLoadDataTable::IsTableNameType(name, kLatticeTables)) return row;
  CSteelItemGeGou lattice(row);
  if (!made || !lattice.CalSteelJMGeGou())
    throw CCatalogueError(ToUtf8(name) + ": has no sample row");
  return lattice;
}

// The tables that users fill, with a sample row each, which is the user's own: free to be changed
// and deleted.
void AddUserTables() {
  CStringArray names;
  CLoadDataTable::GetTableNameArray(kUserTables, names);
  for (const CString& name : names) {
    CDataItem sample = Sample(name);
    CDataTable table;
    table.SetTableName(name);
    table.setTableTitle(sample);
    table.AddTableItem(sample, 1);
    Save(table);
  }
}

}  // namespace

void MakeSystemStore(const std::string& name) {
  const CString folder = FromUtf8(name + "/");
  SetProgramPath(folder);
  Files().Remove(folder + kSystemStore);
  AddRolledTables(folder);
  CStoreBatch user(folder + kSystemStore);
  AddUserTables();
  if (!user.Commit()) throw CCatalogueError(ToUtf8(LastStoreError().m_strText));
}

}  // namespace orv3::catalogue
