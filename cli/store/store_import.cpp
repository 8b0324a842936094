// orv3cal store import: rows from data files, table files and CSV into a store.

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/import/csv_table.h"
#include "catalogue/import/section_rows.h"
#include "catalogue/import/table_import.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "input/input.h"
#include "output/output.h"
#include "output/progress.h"
#include "output/table_json.h"
#include "sections/section_kind.h"
#include "store/store_commands.h"
#include "store/store_place.h"

namespace orv3::cli {
namespace {

struct CStoreImportOptions {
  std::vector<std::string> files;
  std::string table;
  bool overwrite = false;
  bool json = false;
  CStoreOptions store;
};

// --- Sources -------------------------------------------------------------------------------------

// More than all rows of any table with their cells at full length.
constexpr std::uint64_t kLargestCsv = std::uint64_t{1} << 26;

// What comes through a pipe is CSV: the other kinds are told by their names and read at random.
bool IsCsv(const std::string& file) {
  if (IsStream(file)) return true;
  std::string end = file.size() > 4 ? file.substr(file.size() - 4) : "";
  std::transform(end.begin(), end.end(), end.begin(),
                 [](char ch) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch; });
  return end == ".csv";
}

// The table that a CSV file is for: the one of --table, else the one that its name tells.
CString CsvTableName(const std::string& file, const std::string& given) {
  if (!given.empty()) return FromUtf8(given);
  if (IsStream(file))
    Refuse(Say("{1}: 文件名不能说明是哪个表；请给出 --table TABLE",
               "{1}: its name tells no table; right would be --table TABLE", {file}));
  const std::size_t slash = file.find_last_of("/\\");
  const std::string name = file.substr(slash == std::string::npos ? 0 : slash + 1);
  const CString table = FromUtf8(name.substr(0, name.size() - 4));
  CDataTableTitle known;
  if (!KnownHeading(table, known)) {
    Refuse(Say("{1}: “{2}”不是截面表；请给出 --table TABLE",
               "{1}: \"{2}\" is no section table; right would be --table TABLE",
               {file, ToUtf8(table)}));
  }
  return table;
}

CImportTable ReadCsv(const std::string& file, const CStoreImportOptions& options,
                     const CString& store, CProgress& progress) {
  const CString name = CsvTableName(file, options.table);
  std::string text = ReadInput(file, kLargestCsv);
  if (text.size() > kLargestCsv) {
    Refuse(Say("{1}: 大于 64 MB；一个表约可放 1,700 行，请分为几个表",
               "{1}: more than 64 MB; a table takes some 1,700 rows, right would be several tables",
               {file}));
  }
  CDataTable stored;
  stored.SetTableName(name);
  CString line;
  stored.GetTable(store, line);
  CImportTable table;
  CString why;
  const auto tell = [&progress](double done) { progress.Share(done / 2); };
  if (!ReadCsvTable(std::move(text), name, stored.m_Title, table, why, tell)) {
    Refuse(file + ": " + ToUtf8(why));
  }
  return table;
}

std::vector<CImportTable> ReadSources(const CStoreImportOptions& options, const CString& store,
                                      CProgress& progress) {
  std::vector<CImportTable> sources;
  for (const std::string& file : options.files) {
    if (IsCsv(file)) {
      sources.push_back(ReadCsv(file, options, store, progress));
      continue;
    }
    std::vector<CImportTable> tables;
    CString why;
    if (!ReadImportFile(FromUtf8(file), tables, why)) {
      throw CCommandError(CExit::FileTrouble, ToUtf8(why));
    }
    std::move(tables.begin(), tables.end(), std::back_inserter(sources));
  }
  return sources;
}

// --- The report ----------------------------------------------------------------------------------

CJson RowsJson(const std::vector<CRefusedRow>& rows) {
  CJson list = CJson::array();
  for (const CRefusedRow& row : rows)
    list.push_back({{"no", ToUtf8(row.m_strNo)}, {"why", ToUtf8(row.m_strWhy)}});
  return list;
}

CJson ReportJson(const CImportReport& report) {
  CJson tables = CJson::array();
  for (const CTableImport& table : report.m_arrTable) {
    const CJson refused = RowsJson(table.m_arrRefused), doubtful = RowsJson(table.m_arrDoubtful);
    tables.push_back({{"table", ToUtf8(table.m_strTable)},
                      {"added", table.m_nAdded},
                      {"replaced", table.m_nReplaced},
                      {"unchanged", table.m_nUnchanged},
                      {"refused", refused},
                      {"doubtful", doubtful},
                      {"why", ToUtf8(table.m_strWhy)}});
  }
  return {{"tables", tables}};
}

// What came into the store, in one line; empty when nothing did.
std::string SavedLine(const CImportReport& report) {
  std::string line;
  for (const CTableImport& table : report.m_arrTable) {
    if (table.m_nAdded + table.m_nReplaced == 0) continue;
    line += (line.empty() ? "" : Say("；", "; ")) +
            Say("{1}: 增加 {2} 行，替换 {3} 行", "{1}: {2} added, {3} replaced",
                {ToUtf8(table.m_strTable), std::to_string(table.m_nAdded),
                 std::to_string(table.m_nReplaced)});
  }
  return line;
}

void PrintReport(const CImportReport& report) {
  for (const CTableImport& table : report.m_arrTable) {
    std::string text = ToUtf8(table.m_strTable) + ": ";
    if (!table.m_strWhy.IsEmpty()) {
      text += Say("被拒绝，{1}", "refused, {1}", {ToUtf8(table.m_strWhy)}) + "\n";
    } else {
      text += Say("增加 {1} 行，替换 {2} 行，不变 {3} 行，拒绝 {4} 行",
                  "{1} added, {2} replaced, {3} unchanged, {4} refused",
                  {std::to_string(table.m_nAdded), std::to_string(table.m_nReplaced),
                   std::to_string(table.m_nUnchanged), std::to_string(table.m_arrRefused.size())}) +
              "\n";
    }
    for (const CRefusedRow& row : table.m_arrRefused) {
      text += Say("  拒绝“{1}”：{2}\n", "  refused \"{1}\": {2}\n",
                  {ToUtf8(row.m_strNo), ToUtf8(row.m_strWhy)});
    }
    for (const CRefusedRow& row : table.m_arrDoubtful) {
      text += Say("  注意：“{1}”已导入，但自相矛盾：{2}\n",
                  "  note: \"{1}\" came in but contradicts itself: {2}\n",
                  {ToUtf8(row.m_strNo), ToUtf8(row.m_strWhy)});
    }
    Print(text);
  }
}

bool IsRefused(const CTableImport& table) {
  return !table.m_strWhy.IsEmpty() || !table.m_arrRefused.empty();
}

void RunImport(const CStoreImportOptions& options) {
  CStoreToWrite store(options.store);
  CImportReport report;
  {
    CProgress progress;
    const std::vector<CImportTable> sources = ReadSources(options, store.Path(), progress);
    CImportOptions how;
    how.m_bOverwrite = options.overwrite;
    how.m_strTable = FromUtf8(options.table);
    how.m_progress = [&progress](double done) { progress.Share(0.5 + done / 2); };
    report = ImportTables(sources, store.Path(), how);  // which commits what is in the store
  }
  if (!report.m_bDone) throw CCommandError(CExit::FileTrouble, ToUtf8(report.m_strWhy));
  NoteSaved(SavedLine(report));
  if (options.json) {
    PrintJson(ReportJson(report));
  } else {
    PrintReport(report);
  }
  if (std::any_of(report.m_arrTable.begin(), report.m_arrTable.end(), IsRefused)) {
    throw CExit::BadInput;
  }
}

}  // namespace

void AddStoreImportCommand(CLI::App& store) {
  auto options = std::make_shared<CStoreImportOptions>();
  CLI::App* command = store.add_subcommand(
      "import",
      Say("从 .kvb、.KDB 和 .csv 文件导入各行", "Bring rows in from .kvb, .KDB and .csv files"));
  command->footer(Say("有行或表被拒绝时退出状态为 2；其余已导入。",
                      "Exit status 2 when a row or a table was refused; the others came in."));
  command
      ->add_option("FILE", options->files,
                   Say("型钢数据文件、截面库文件或 CSV 文件；- 表示从标准输入读 CSV",
                       "Data files, table files or CSV files; - for CSV from standard input"))
      ->required();
  command
      ->add_option("--table", options->table,
                   Say("只导入此表；CSV 时为各行所属的表",
                       "This table alone; for CSV the table that the rows are for"))
      ->check([](const std::string& table) {
        const std::string length = std::to_string(FromUtf8(table).GetLength());
        if (FromUtf8(table).GetLength() > CDataTable::kMaxTableName)
          return Say("有 {1} 个字符；表名至多 64 个",
                     "has {1} characters; a table's name has at most 64", {length});
        CString trimmed = FromUtf8(table);
        if (trimmed.Trim() != FromUtf8(table))
          return Say("以空白开头或结尾；请删去空白", "begins or ends with a blank; take it out");
        return table.empty() ? Say("为空；请给出表名，或不写此选项",
                                   "is empty; give a table's name, or leave the option out")
                             : std::string();
      });
  command->add_flag("--overwrite", options->overwrite,
                    Say("替换已有而值不同的行", "Replace rows that are there with other values"));
  command->add_flag("--json", options->json, Say("以 JSON 输出", "Report as JSON"));
  AddStoreOptions(*command, options->store);
  command->callback([options] { RunImport(*options); });
}

}  // namespace orv3::cli
