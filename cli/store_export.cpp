// orv3cal store export: tables of a store as a table file, CSV, JSON or a workbook.

#include "store_export.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/import/csv_table.h"
#include "catalogue/import/section_rows.h"
#include "csv_output.h"
#include "error.h"
#include "framework/utf8.h"
#include "output.h"
#include "platform/file_system.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "store_commands.h"
#include "store_place.h"
#include "store_table.h"
#include "table_json.h"
#include "tables/file/check.h"
#include "tables/file/store_check.h"

namespace orv3::cli {
namespace {

struct COptions {
  std::vector<std::string> tables;
  std::string to;
  CStoreOptions store;
};

[[noreturn]] void Refuse(const std::string& text) { throw CCommandError(CExit::BadInput, text); }
[[noreturn]] void Fail(const CString& text) {
  throw CCommandError(CExit::FileTrouble, ToUtf8(text));
}

// The table without its deleted rows, numbered anew.
CDataTable Live(const CDataTable& stored) {
  CDataTable table;
  table.SetTableName(stored.GetTableName());
  table.m_Title = stored.m_Title;
  for (const CDataItem& row : stored.m_arrItem) {
    if (row.m_nModifyType < 0) continue;
    CDataItem copy = row;
    copy.m_nIndex = table.GetTableRowNum();
    table.AddTableItem(copy, 0, 1);
  }
  return table;
}

// --- Forms ---------------------------------------------------------------------------------------

// The first line that an import takes: signs alone where everybody knows the columns.
std::vector<std::string> FirstLine(const CDataTable& table) {
  CDataTableTitle known;
  const bool bare = KnownHeading(table.GetTableName(), known) && known.IsEqualOf(table.m_Title);
  std::vector<std::string> cells;
  for (int i = 0; i < table.GetTableColNum(); ++i) {
    const CDataTypeStruct& column = table.m_Title[i];
    std::string cell = ToUtf8(column.m_strSign);
    if (!bare) cell += std::string(":") + ValueTypeName(column.m_nType);
    if (!bare && column.m_bKey) cell += ":key";
    cells.push_back(cell);
  }
  return cells;
}

void WriteCsv(const std::string& file, const std::vector<CDataTable>& tables) {
  if (tables.size() != 1) {
    Refuse("--to: a CSV file holds one table, the export has " + std::to_string(tables.size()) +
           "; right would be one TABLE, or a file of another kind");
  }
  std::string text = kCsvMark + CsvLine(FirstLine(tables[0]));
  for (const CDataItem& row : tables[0].m_arrItem) text += CsvLine(RowCells(row));
  WriteFile(file, text);
}

void WriteJson(const std::string& file, const std::vector<CDataTable>& tables) {
  CJson list = CJson::array();
  for (const CDataTable& table : tables) {
    list.push_back(TableJson(ToUtf8(table.GetTableName()), table));
  }
  WriteFile(file, CJson{{"tables", list}}.dump(2) + "\n");
}

// A table file replaces the one that is there when it is whole.
void WriteTableFile(const std::string& file, std::vector<CDataTable>& tables, int kind) {
  const CString to = FromUtf8(file);
  const CString part = to + L".part";
  Files().Remove(part);
  {
    CStoreBatch batch(part);
    for (CDataTable& table : tables) {
      const auto faults = SaveFaults(table, part, true);
      if (!faults.empty()) Fail(faults.front().m_strText);
      if (!batch.IsHeld() || !table.WriteTable(part, kind, 1)) Fail(LastStoreError().m_strText);
    }
    if (!batch.Commit()) Fail(LastStoreError().m_strText);
  }
  if (Files().Rename(part, to)) return;
  Files().Remove(part);
  Fail(to + L": not written, it may be open elsewhere or its folder closed to this user");
}

bool HasExtension(const std::string& file, const std::string& extension) {
  if (file.size() <= extension.size()) return false;
  return std::equal(extension.begin(), extension.end(), file.end() - std::ssize(extension),
                    [](char wanted, char ch) {
                      return wanted == (ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch);
                    });
}

// --- The command ---------------------------------------------------------------------------------

std::vector<CDataTable> TablesOf(const CString& store, const COptions& options) {
  CStringArray names;
  for (const std::string& name : options.tables) names.Add(FromUtf8(name));
  if (names.IsEmpty()) names = StoreTableNames(store);
  if (names.IsEmpty()) Refuse(ToUtf8(store) + ": the store has no table to export");
  std::vector<CDataTable> tables;
  for (const CString& name : names) tables.push_back(Live(StoreTable(store, name)));
  return tables;
}

void RunExport(const COptions& options) {
  static constexpr const char* kForms[] = {".kdb", ".csv", ".json", ".xlsx"};
  if (std::none_of(std::begin(kForms), std::end(kForms),
                   [&](const char* form) { return HasExtension(options.to, form); })) {
    Refuse("--to: \"" + options.to + "\"; right would be a file named .KDB, .csv, .json or .xlsx");
  }
  const CString store = StoreToRead(options.store);
  CStoreInfo info;
  if (!ReadStoreInfo(store, info)) Fail(LastStoreError().m_strText);
  std::vector<CDataTable> tables = TablesOf(store, options);
  if (HasExtension(options.to, ".kdb")) WriteTableFile(options.to, tables, info.m_nKind);
  if (HasExtension(options.to, ".csv")) WriteCsv(options.to, tables);
  if (HasExtension(options.to, ".json")) WriteJson(options.to, tables);
  if (HasExtension(options.to, ".xlsx")) WriteWorkbook(options.to, tables);
  int rows = 0;
  for (const CDataTable& table : tables) rows += table.GetTableRowNum();
  Print(options.to + ": " + std::to_string(tables.size()) +
        (tables.size() == 1 ? " table, " : " tables, ") + std::to_string(rows) + " rows\n");
}

}  // namespace

void AddStoreExportCommand(CLI::App& store) {
  auto options = std::make_shared<COptions>();
  CLI::App* command =
      store.add_subcommand("export", "Write tables to a .KDB, .csv, .json or .xlsx file");
  command->add_option("TABLE", options->tables, "The tables; all of the store if none is named");
  command->add_option("--to", options->to, "The file, whose name tells the form")
      ->type_name("FILE")
      ->required();
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunExport(*options); });
}

}  // namespace orv3::cli
