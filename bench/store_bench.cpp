// Table files beside SQLite on a file with its default durability (rollback journal, synchronous
// FULL): the same tables, the same values, every save on the medium before it returns.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "tables/data_table.h"

namespace {

constexpr int kTables = 45;
constexpr int kColumns = 39;
constexpr int kRows = 80;
constexpr int kLongRows = 1000;

std::filesystem::path Folder() {
  static const std::filesystem::path folder = [] {
    // In the working folder, not in a temporary one that may be in memory.
    const auto made = std::filesystem::current_path() / "store_bench.tmp";
    std::filesystem::create_directories(made);
    std::atexit(
        [] { std::filesystem::remove_all(std::filesystem::current_path() / "store_bench.tmp"); });
    return made;
  }();
  return folder;
}

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "store_bench: %s failed\n", what);
  std::exit(1);
}

std::string TableName(int i) { return "t" + std::to_string(i); }

std::string Value(int row, int column) {
  return column == 0 ? "H" + std::to_string(row) : std::to_string(row * 100 + column) + ".25";
}

CDataTable MakeTable(int number, int rows) {
  CDataTable table;
  table.SetTableName(orv3::FromUtf8(TableName(number)));
  for (int c = 0; c < kColumns; ++c) {
    table.AddTableCol(L"c" + orv3::FormatInt(c), L"c" + orv3::FormatInt(c),
                      c == 0 ? CDataTypeStruct::KVBT_STRING : CDataTypeStruct::KVBT_DOUBLE, c == 0);
  }
  CStringArray values;
  values.SetSize(kColumns);
  for (int row = 0; row < rows; ++row) {
    for (int c = 0; c < kColumns; ++c) values[c] = orv3::FromUtf8(Value(row, c));
    Check(table.AddTableItem(values, 1) == 1, "adding a row");
  }
  return table;
}

// The last of the tables is the long one.
const CString& Store() {
  static const CString path = [] {
    const CString made = (Folder() / "bench.KDB").wstring();
    std::filesystem::remove(Folder() / "bench.KDB");
    for (int i = 0; i < kTables; ++i) {
      CDataTable table = MakeTable(i, i + 1 < kTables ? kRows : kLongRows);
      Check(table.WriteTable(made, 0, 0) == 1, "saving");
    }
    return made;
  }();
  return path;
}

void Run(sqlite3* base, const std::string& sql) {
  Check(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, sql.c_str());
}

void FillSqlite(sqlite3* base, int number, int rows) {
  std::string columns = "c0 TEXT PRIMARY KEY";
  std::string marks = "?";
  for (int c = 1; c < kColumns; ++c) {
    columns += ", c" + std::to_string(c) + " REAL";
    marks += ", ?";
  }
  Run(base, "CREATE TABLE " + TableName(number) + " (" + columns + ")");
  Run(base, "BEGIN");
  sqlite3_stmt* insert = nullptr;
  const std::string sql = "INSERT INTO " + TableName(number) + " VALUES (" + marks + ")";
  Check(sqlite3_prepare_v2(base, sql.c_str(), -1, &insert, nullptr) == SQLITE_OK, "prepare");
  for (int row = 0; row < rows; ++row) {
    sqlite3_bind_text(insert, 1, Value(row, 0).c_str(), -1, SQLITE_TRANSIENT);
    for (int c = 1; c < kColumns; ++c) {
      sqlite3_bind_double(insert, c + 1, orv3::ToDouble(orv3::FromUtf8(Value(row, c))));
    }
    Check(sqlite3_step(insert) == SQLITE_DONE, "insert");
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
  Run(base, "COMMIT");
}

const std::string& Sqlite() {
  static const std::string path = [] {
    const std::string made = (Folder() / "bench.sqlite").string();
    std::filesystem::remove(made);
    sqlite3* base = nullptr;
    Check(sqlite3_open(made.c_str(), &base) == SQLITE_OK, "open");
    for (int i = 0; i < kTables; ++i) FillSqlite(base, i, i + 1 < kTables ? kRows : kLongRows);
    sqlite3_close(base);
    return made;
  }();
  return path;
}

void SaveOneRowOrv3(benchmark::State& state) {
  CDataTable table;
  table.SetTableName(orv3::FromUtf8(TableName(kTables - 1)));
  CString line;
  Check(table.GetTable(Store(), line) == 1, "reading");
  int i = 0;
  for (auto _ : state) {
    const int position = (i * 37) % kLongRows;
    CDataItem row = std::as_const(table.m_arrItem)[position];
    row[5].m_strValue = orv3::FormatInt(++i);
    Check(table.ModifyTableItem(row.m_nIndex, row) == 1, "changing");
    Check(table.WriteTable(Store(), 0, 0) == 1, "saving");
  }
}
BENCHMARK(SaveOneRowOrv3)->Unit(benchmark::kMicrosecond)->UseRealTime();

void SaveOneRowSqlite(benchmark::State& state) {
  sqlite3* base = nullptr;
  Check(sqlite3_open(Sqlite().c_str(), &base) == SQLITE_OK, "open");
  sqlite3_stmt* update = nullptr;
  const std::string sql = "UPDATE " + TableName(kTables - 1) + " SET c5 = ? WHERE c0 = ?";
  Check(sqlite3_prepare_v2(base, sql.c_str(), -1, &update, nullptr) == SQLITE_OK, "prepare");
  int i = 0;
  for (auto _ : state) {
    const std::string key = Value((i * 37) % kLongRows, 0);
    sqlite3_bind_double(update, 1, ++i);
    sqlite3_bind_text(update, 2, key.c_str(), -1, SQLITE_TRANSIENT);
    Check(sqlite3_step(update) == SQLITE_DONE, "update");
    sqlite3_reset(update);
  }
  sqlite3_finalize(update);
  sqlite3_close(base);
}
BENCHMARK(SaveOneRowSqlite)->Unit(benchmark::kMicrosecond)->UseRealTime();

void OpenAndReadOrv3(benchmark::State& state) {
  for (auto _ : state) {
    CDataTable table;
    table.SetTableName(orv3::FromUtf8(TableName(20)));
    CString line;
    Check(table.GetTable(Store(), line) == 1 && table.GetTableRowNum() == kRows, "reading");
    benchmark::DoNotOptimize(table);
  }
}
BENCHMARK(OpenAndReadOrv3)->Unit(benchmark::kMicrosecond)->UseRealTime();

void OpenAndReadSqlite(benchmark::State& state) {
  const std::string sql = "SELECT * FROM " + TableName(20);
  for (auto _ : state) {
    sqlite3* base = nullptr;
    Check(sqlite3_open(Sqlite().c_str(), &base) == SQLITE_OK, "open");
    sqlite3_stmt* select = nullptr;
    Check(sqlite3_prepare_v2(base, sql.c_str(), -1, &select, nullptr) == SQLITE_OK, "prepare");
    std::vector<std::vector<std::string>> rows;
    while (sqlite3_step(select) == SQLITE_ROW) {
      std::vector<std::string>& row = rows.emplace_back();
      for (int c = 0; c < kColumns; ++c) {
        row.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select, c)));
      }
    }
    sqlite3_finalize(select);
    sqlite3_close(base);
    Check(std::ssize(rows) == kRows, "reading");
    benchmark::DoNotOptimize(rows);
  }
}
BENCHMARK(OpenAndReadSqlite)->Unit(benchmark::kMicrosecond)->UseRealTime();

// Time per row stays the same as a table grows.
void SaveAndLoadOrv3(benchmark::State& state) {
  const auto rows = static_cast<int>(state.range(0));
  const CDataTable made = MakeTable(0, rows);
  const CString path = (Folder() / "growth.KDB").wstring();
  for (auto _ : state) {
    std::filesystem::remove(Folder() / "growth.KDB");
    CDataTable table = made;
    Check(table.WriteTable(path, 0, 0) == 1, "saving");
    CDataTable read;
    read.SetTableName(made.GetTableName());
    CString line;
    Check(read.GetTable(path, line) == 1 && read.GetTableRowNum() == rows, "reading");
  }
  state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(SaveAndLoadOrv3)->Arg(150)->Arg(300)->Arg(600)->Arg(1200)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
