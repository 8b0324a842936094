// The section browser on the shipped store, from nothing to a filled list, and its searches, beside
// SQLite reading and searching the same rows in a file. A stored table holds at most some 1,900
// rows, since its record names their blocks; the 10,000 rows that are searched are in memory here,
// as in the dialog.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "dialogs/model/browser_model.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"

namespace {

constexpr wchar_t kTable[] = L"热轧普通工字钢";
constexpr wchar_t kOther[] = L"热轧等边角钢";
constexpr int kVisible = 40;  // rows that the list shows at once
constexpr int kBig = 10000;

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "dialogs_bench: %s failed\n", what);
  std::exit(1);
}

// Nobody in front of the dialog.
class CNobody final : public orv3::CDialogUser {
 public:
  orv3::CMessageAnswer Message(const orv3::CMessage&) override { return {}; }
  bool AskText(const CString&, const CString&, CString&) override { return false; }
  bool OpenFiles(const CString&, const std::vector<orv3::CFileFilter>&,
                 std::vector<CString>&) override {
    return false;
  }
  bool SaveFile(const CString&, const std::vector<orv3::CFileFilter>&, CString&) override {
    return false;
  }
  bool Run(orv3::CPropertyModel&) override { return false; }
  bool Run(orv3::CSignModel&) override { return false; }
  bool Run(orv3::CSpacingModel&) override { return false; }
  bool Run(orv3::CColumnModel&) override { return false; }
  bool Run(orv3::CTableNameModel&) override { return false; }
  void Progress(const CString&, int, int) override {}
};

CString CatalogueFolder() { return orv3::FromUtf8(ORV3CAL_CATALOGUE "/"); }

std::size_t ReadVisible(const orv3::CBrowserModel& model) {
  std::size_t length = 0;
  for (int item = 0; item < std::min(model.ItemCount(), kVisible); ++item) {
    for (int column = 0; column < model.ColumnCount(); ++column) {
      length += static_cast<std::size_t>(model.ItemText(item, column)[0]);
    }
  }
  return length;
}

void OpenBrowser(benchmark::State& state) {
  CNobody nobody;
  CStringArray names;
  CLoadDataTable::GetTableNameArray(TABLE_ROLLED | TABLE_CUSTOM | 0xFFF, names);
  for (auto _ : state) {
    orv3::CBrowserModel model(CatalogueFolder(), names, CDataItem(), nobody);
    model.Open();
    Check(model.ItemCount() == 34, "opening the browser");
    benchmark::DoNotOptimize(ReadVisible(model));
  }
}

void SelectTable(benchmark::State& state) {
  CNobody nobody;
  CStringArray names;
  names.Add(kTable);
  names.Add(kOther);
  orv3::CBrowserModel model(CatalogueFolder(), names, CDataItem(), nobody);
  model.Open();
  int nodes[2] = {-1, -1};
  for (int i = 0; i < static_cast<int>(model.Tree().size()); ++i) {
    const CString& text = model.Tree()[static_cast<std::size_t>(i)].m_strText;
    if (text == kTable) nodes[0] = i;
    if (text == kOther) nodes[1] = i;
  }
  int i = 0;
  for (auto _ : state) {
    model.SelectNode(nodes[++i % 2]);
    benchmark::DoNotOptimize(ReadVisible(model));
  }
}

CDataTable Stored(const wchar_t* name) {
  CDataTable table;
  table.SetTableName(name);
  table.SetSaveTablePath(CatalogueFolder());
  Check(table.GetSystemJmTable() == 1, "reading the shipped store");
  return table;
}

// The I sections over and over, each with a number of its own.
CDataTable& Big() {
  static CDataTable& big = *[] {
    const CDataTable source = Stored(kTable);
    auto* table = new CDataTable;
    table->SetTableName(kTable);
    table->m_Title = source.m_Title;
    for (int i = 0; i < kBig; ++i) {
      CDataItem row = source[i % source.GetTableRowNum()];
      row[0].m_strValue += L"-" + orv3::FormatInt(i);
      table->AddTableItem(row, 1, 1);
    }
    return table;
  }();
  return big;
}

void Search(benchmark::State& state, const wchar_t* expression, int wildcard, int found) {
  CDataTable& table = Big();
  for (auto _ : state) {
    const CDataTable shown = table.SearchTable(expression, wildcard);
    Check(shown.GetTableRowNum() == found, "searching");
    benchmark::DoNotOptimize(&shown);
  }
}

// --- SQLite -------------------------------------------------------------------------------------

class CDatabase {
 public:
  explicit CDatabase(const std::string& path) {
    Check(sqlite3_open(path.c_str(), &m_pDatabase) == SQLITE_OK, "opening the database");
  }
  CDatabase(const CDatabase&) = delete;
  CDatabase& operator=(const CDatabase&) = delete;
  ~CDatabase() { sqlite3_close(m_pDatabase); }

  void Run(const std::string& sql) {
    Check(sqlite3_exec(m_pDatabase, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK,
          sql.c_str());
  }
  // The number of rows; the texts of the first `read` are read.
  int Query(const std::string& sql, int read) {
    sqlite3_stmt* query = nullptr;
    Check(sqlite3_prepare_v2(m_pDatabase, sql.c_str(), -1, &query, nullptr) == SQLITE_OK,
          sql.c_str());
    int rows = 0;
    while (sqlite3_step(query) == SQLITE_ROW) {
      for (int c = 0; rows < read && c < sqlite3_column_count(query); ++c)
        benchmark::DoNotOptimize(sqlite3_column_text(query, c));
      ++rows;
    }
    sqlite3_finalize(query);
    return rows;
  }

 private:
  sqlite3* m_pDatabase = nullptr;
};

// Columns by number: SQLite takes "B(mm)" and "b(mm)" for one.
void Fill(CDatabase& database, const CDataTable& table, const std::string& name) {
  std::string columns, values;
  for (int c = 0; c < table.GetTableColNum(); ++c) {
    const bool text = table.GetDataTableColType(c) == CDataTypeStruct::KVBT_STRING;
    columns += (c > 0 ? ", c" : "c") + std::to_string(c) + (text ? " TEXT" : " REAL");
  }
  database.Run("CREATE TABLE \"" + name + "\" (" + columns + ")");
  database.Run("BEGIN");
  for (int r = 0; r < table.GetTableRowNum(); ++r) {
    values.clear();
    for (int c = 0; c < table.GetTableColNum(); ++c)
      values += (c > 0 ? ", '" : "'") + orv3::ToUtf8(table[r][c].m_strValue) + "'";
    database.Run("INSERT INTO \"" + name + "\" VALUES (" + values + ")");
  }
  database.Run("COMMIT");
}

// All tables of the store and the big one; removed when the program ends.
const std::string& DatabaseFile() {
  static const std::string path = [] {
    std::filesystem::remove("dialogs_bench.db");
    std::atexit([] { std::filesystem::remove("dialogs_bench.db"); });
    CDatabase database("dialogs_bench.db");
    CStringArray names;
    CDataTable::GetTableNameFromFile(CatalogueFolder() + L"KvbSystemJmDataBase.KDB", names);
    for (const CString& name : names) Fill(database, Stored(name.GetString()), orv3::ToUtf8(name));
    Fill(database, Big(), "big");
    return std::string("dialogs_bench.db");
  }();
  return path;
}

void OpenSqlite(benchmark::State& state) {
  const std::string& path = DatabaseFile();
  const std::string sql = "SELECT * FROM \"" + orv3::ToUtf8(CString(kTable)) + "\"";
  for (auto _ : state) {
    CDatabase database(path);
    Check(database.Query("SELECT name FROM sqlite_master", kVisible) == 46, "listing the tables");
    Check(database.Query(sql, kVisible) == 34, "reading a table");
  }
}

void SelectSqlite(benchmark::State& state) {
  CDatabase database(DatabaseFile());
  std::string sql[2];
  for (int i = 0; i < 2; ++i)
    sql[i] = "SELECT * FROM \"" + orv3::ToUtf8(CString(i == 0 ? kTable : kOther)) + "\"";
  int i = 0;
  for (auto _ : state) Check(database.Query(sql[++i % 2], kVisible) > 30, "reading a table");
}

void SearchSqlite(benchmark::State& state, const char* condition, int found) {
  CDatabase database(DatabaseFile());
  const std::string sql = std::string("SELECT * FROM big WHERE ") + condition;
  for (auto _ : state) Check(database.Query(sql, kVisible) == found, "searching");
}

BENCHMARK(OpenBrowser)->Unit(benchmark::kMicrosecond);
BENCHMARK(OpenSqlite)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectSqlite)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, text, L"No.==*I2*", 1, 2352)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SearchSqlite, text, "c0 LIKE '%I2%'", 2352)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Search, number, L"A(cm^2)>>50", 0, 7056)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SearchSqlite, number, "c7 > 50", 7056)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
