// orv3cal store export: tables of a store as a table file, CSV, JSON, a workbook or IFC.

#include "store/store_export.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/import/csv_table.h"
#include "catalogue/import/section_rows.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "output/csv_output.h"
#include "output/exact_columns.h"
#include "output/ifc_output.h"
#include "output/output.h"
#include "output/table_json.h"
#include "platform/file_system.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "store/store_commands.h"
#include "store/store_place.h"
#include "store/store_table.h"
#include "tables/edit_state.h"
#include "tables/file/check.h"
#include "tables/file/store_check.h"

namespace orv3::cli {
namespace {

struct CStoreExportOptions {
  std::vector<std::string> tables;
  std::string to;
  bool guard = false;
  bool exact = false;
  CStoreOptions store;
};

[[noreturn]] void Fail(const CString& text) {
  throw CCommandError(CExit::FileTrouble, ToUtf8(text));
}

// The table without its deleted rows, numbered anew.
CDataTable Live(const CDataTable& stored) {
  CDataTable table;
  table.SetTableName(stored.GetTableName());
  table.m_Title = stored.m_Title;
  for (const CDataItem& row : stored.m_arrItem) {
    if (IsDeleted(row.m_nModifyType)) continue;
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

std::string CsvText(const std::vector<CDataTable>& tables, bool guard) {
  if (tables.size() != 1) {
    Refuse(Say("--to: CSV 文件只放一个表，要导出的有 {1} 个；请给一个 TABLE，或改用其他种类的文件",
               "--to: a CSV file holds one table, the export has {1}; right would be one TABLE, or "
               "a file of another kind",
               {std::to_string(tables.size())}));
  }
  std::string text = kCsvMark + CsvLine(FirstLine(tables[0]));
  for (const CDataItem& row : tables[0].m_arrItem) {
    std::vector<std::string> cells = RowCells(row);
    if (guard) GuardFormulas(cells);
    text += CsvLine(cells);
  }
  return text;
}

// By table, and by row of it.
using CTablesExact = std::vector<std::map<int, CExactProperties>>;

std::string JsonText(const std::vector<CDataTable>& tables, const CTablesExact& exacts) {
  CJson list = CJson::array();
  for (const CDataTable& table : tables) {
    CJson json = TableJson(ToUtf8(table.GetTableName()), table);
    if (!exacts.empty()) AddAccuracies(json, exacts[list.size()]);
    list.push_back(std::move(json));
  }
  return CJson{{"tables", list}}.dump(2) + "\n";
}

// The tables as a file that has never been anywhere: saved into a store that is not committed.
std::string TableFileBytes(std::vector<CDataTable>& tables, int kind) {
  const CTemporaryFile place;
  CStoreBatch batch(place.Path());
  for (CDataTable& table : tables) {
    const auto faults = SaveFaults(table, place.Path(), true);
    if (!faults.empty()) Fail(faults.front().m_strText);
    if (!batch.IsHeld() || !table.WriteTable(place.Path(), kind, 1)) {
      Fail(LastStoreError().m_strText);
    }
  }
  const auto file = CStoreFile::OpenToRead(place.Path());
  if (!file) Fail(LastStoreError().m_strText);
  std::string bytes(static_cast<std::size_t>(file->Size()), '\0');
  if (!file->Read(0, bytes.data(), bytes.size()))
    Fail(Say(L"{1}: 不能读取", L"{1}: cannot be read", {place.Path()}));
  return bytes;
}

bool IsThere(const std::string& file) {
  CFileStamp stamp;
  return Files().Stamp(FromUtf8(file), stamp) != CFileError::NotFound;
}

bool HasExtension(const std::string& file, const std::string& extension) {
  if (file.size() <= extension.size()) return false;
  return std::equal(extension.begin(), extension.end(), file.end() - std::ssize(extension),
                    [](char wanted, char ch) {
                      return wanted == (ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch);
                    });
}

// --- The command ---------------------------------------------------------------------------------

std::vector<CDataTable> TablesOf(const CString& store, const CStoreExportOptions& options) {
  CStringArray names;
  for (const std::string& name : options.tables) names.Add(FromUtf8(name));
  if (names.IsEmpty()) names = StoreTableNames(store);
  if (names.IsEmpty())
    Refuse(
        Say("{1}: 库中没有可以导出的表", "{1}: the store has no table to export", {ToUtf8(store)}));
  for (int i = 0; i < names.GetSize(); ++i) {
    if (std::find(names.begin(), names.begin() + i, names[i]) == names.begin() + i) continue;
    Refuse(Say("TABLE: “{1}”给出了两次；每个表只能给一次",
               "TABLE: \"{1}\" is given twice; right would be each table once",
               {ToUtf8(names[i])}));
  }
  std::vector<CDataTable> tables;
  for (const CString& name : names) tables.push_back(Live(StoreTable(store, name)));
  return tables;
}

// All tables as they were at one time: read anew when somebody has saved between two of them.
std::vector<CDataTable> TablesAtOnce(const CString& store, const CStoreExportOptions& options) {
  constexpr int kTries = 20;
  for (int i = 0; i < kTries; ++i) {
    CFileStamp before;
    CFileStamp after;
    Files().Stamp(store, before);
    std::vector<CDataTable> tables = TablesOf(store, options);
    Files().Stamp(store, after);
    if (before == after) return tables;
  }
  Fail(Say(L"{1}: 一直在被其他程序修改；请稍后再试",
           L"{1}: changed by others all the time; try again later", {store}));
}

// The store that is read and the file that is written, by whatever names they go.
void RefuseOwnStore(const CString& store, const std::string& to) {
  CFileStamp from;
  CFileStamp target;
  if (Files().Stamp(store, from) != CFileError::None ||
      Files().Stamp(FromUtf8(to), target) != CFileError::None ||
      from.m_nVolume != target.m_nVolume || from.m_nFile != target.m_nFile) {
    return;
  }
  Refuse(Say("--to: “{1}”正是要导出的库；请另给文件",
             "--to: \"{1}\" is the store that is exported; right would be another file", {to}));
}

// A table file holds what a store holds.
CTablesExact AddExactFigures(std::vector<CDataTable>& tables, const std::string& to) {
  if (HasExtension(to, ".kdb")) {
    Refuse(Say("--exact：.KDB 文件只存表中的列；请用 .xlsx、.csv 或 .json",
               "--exact: a .KDB file keeps the table's own columns; right would be .xlsx, .csv or "
               ".json"));
  }
  if (HasExtension(to, ".ifc")) {
    Refuse(
        Say("--exact：.ifc 文件本来就含这些量；请不写此选项",
            "--exact: an .ifc file has these figures anyway; right would be without the option"));
  }
  CTablesExact exacts;
  for (CDataTable& table : tables) exacts.push_back(AddExactColumns(table, ExactSigns()));
  return exacts;
}

std::string Content(const CStoreExportOptions& options, std::vector<CDataTable>& tables,
                    const CTablesExact& exacts, int kind) {
  if (HasExtension(options.to, ".csv")) return CsvText(tables, options.guard);
  if (HasExtension(options.to, ".json")) return JsonText(tables, exacts);
  if (HasExtension(options.to, ".ifc")) return IfcText(tables, "Orv3Cal");
  if (HasExtension(options.to, ".xlsx")) return WorkbookBytes(options.to, tables);
  // An interrupted save of a store that was here before has no say in the new one.
  if (!IsThere(options.to)) RemoveJournal(FromUtf8(options.to));
  return TableFileBytes(tables, kind);
}

void RunExport(const CStoreExportOptions& options) {
  static constexpr const char* kForms[] = {".kdb", ".csv", ".json", ".xlsx", ".ifc"};
  if (std::none_of(std::begin(kForms), std::end(kForms),
                   [&](const char* form) { return HasExtension(options.to, form); })) {
    Refuse(Say("--to: “{1}”；文件名应以 .KDB、.csv、.json、.xlsx 或 .ifc 结尾",
               "--to: \"{1}\"; right would be a file named .KDB, .csv, .json, .xlsx or .ifc",
               {options.to}));
  }
  if (options.guard && !HasExtension(options.to, ".csv")) {
    Refuse(Say("--guard：只用于 .csv 文件；请改用 .csv 或不写此选项",
               "--guard: is for .csv files alone; right would be such a file, or leave the option "
               "out"));
  }
  SetBusyWait(std::chrono::seconds{5});
  const CString store = StoreToRead(options.store);
  RefuseOwnStore(store, options.to);
  CStoreInfo info;
  if (!ReadStoreInfo(store, info)) Fail(LastStoreError().m_strText);
  std::vector<CDataTable> tables = TablesAtOnce(store, options);
  CTablesExact exacts;
  if (options.exact) exacts = AddExactFigures(tables, options.to);
  WriteFile(options.to, Content(options, tables, exacts, info.m_nKind));
  int rows = 0;
  for (const CDataTable& table : tables) rows += table.GetTableRowNum();
  const std::string count = std::to_string(tables.size());
  Print(options.to + ": " +
        Say("{1} 个表，{2} 行\n", "{1} {3}, {2} {4}\n",
            {count, std::to_string(rows), tables.size() == 1 ? "table" : "tables",
             rows == 1 ? "row" : "rows"}));
}

CString TemporaryFolder() {
  std::error_code error;
  const std::u8string folder = std::filesystem::temp_directory_path(error).u8string();
  return FromUtf8(std::string(folder.begin(), folder.end())) + L"/";
}

}  // namespace

CTemporaryFile::CTemporaryFile() : CFreshFile(TemporaryFolder()) {
  if (Error() != CFileError::None) {
    throw CCommandError(
        CExit::FileTrouble,
        Say("{1}: 不能在此建立临时文件，{2}", "{1}: no temporary file can be made here, {2}",
            {ToUtf8(TemporaryFolder()), WriteTrouble(Error())}));
  }
  Close();
}

void AddStoreExportCommand(CLI::App& store) {
  auto options = std::make_shared<CStoreExportOptions>();
  CLI::App* command = store.add_subcommand(
      "export", Say("把表写入 .KDB、.csv、.json、.xlsx 或 .ifc 文件",
                    "Write tables to a .KDB, .csv, .json, .xlsx or .ifc file"));
  command->add_option(
      "TABLE", options->tables,
      Say("表名；不给时为库中全部", "The tables; all of the store if none is named"));
  command
      ->add_option("--to", options->to,
                   Say("文件，由文件名决定格式", "The file, whose name tells the form"))
      ->type_name("FILE")
      ->required();
  command->add_flag(
      "--guard", options->guard,
      Say("CSV 的单元格不会被电子表格当作公式", "No cell of a CSV is a formula to a spreadsheet"));
  command->add_flag("--exact", options->exact,
                    Say("另加由轮廓精确计算的各量为列",
                        "Add the exact properties, computed from the outlines, as columns"));
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunExport(*options); });
}

}  // namespace orv3::cli
