// CSV for an import: any text becomes rows that a store takes, or is refused with a reason, under
// the columns of a section table, under those of a store and where nobody knows the columns.
#include "catalogue/import/csv_table.h"

#include <string>

#include "memory_files.h"
#include "sections/load_data_table.h"
#include "tables/file/check.h"

namespace {

CDataTableTitle StoredColumns() {
  CDataTable table;
  table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
  table.AddTableCol(L"高", L"h", CDataTypeStruct::KVBT_DOUBLE, 0);
  table.AddTableCol(L"高", L"h", CDataTypeStruct::KVBT_INT, 0);
  return table.m_Title;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles files;
  static const CDataTableTitle stored = StoredColumns();
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::pair<const wchar_t*, CDataTableTitle> tables[] = {
      {L"自定义对称H型钢", {}}, {L"双肢格构柱", {}}, {L"别的", stored}, {L"新的", {}}};
  for (const auto& [name, columns] : tables) {
    orv3::CImportTable table;
    CString why;
    const bool read = orv3::ReadCsvTable(text, name, columns, table, why);
    Require(read == why.IsEmpty());
    if (!read) continue;
    for (const CDataItem& row : std::as_const(table.m_table).m_arrItem) {
      Require(row.GetItemLength() == table.m_table.GetTableColNum());
    }
    for (const orv3::CRefusedRow& row : table.m_arrRefused) Require(!row.m_strWhy.IsEmpty());
    const orv3::CImportReport report = orv3::ImportTables({table}, L"store.KDB");
    Require(report.m_bDone);
    const std::string first = files[L"store.KDB"];
    Require(orv3::ImportTables({table}, L"store.KDB").m_bDone);
    Require(files[L"store.KDB"] == first);
    files.Remove(L"store.KDB");
  }
  return 0;
}
