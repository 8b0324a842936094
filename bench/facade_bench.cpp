// A section looked up in the system store beside SQLite's prepared look-up of the same row in a
// file: 45 tables of 80 rows and 39 columns each, nothing changed between the look-ups.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"

namespace {

constexpr int kTables = 45;
constexpr int kColumns = 39;
constexpr int kRows = 80;

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "facade_bench: %s failed\n", what);
  std::exit(1);
}

// In the working folder, not in a temporary one that may be in memory.
const std::filesystem::path& Folder() {
  static const std::filesystem::path folder = [] {
    const auto made = std::filesystem::current_path() / "facade_bench.tmp";
    std::filesystem::remove_all(made);
    std::filesystem::create_directories(made);
    std::atexit(
        [] { std::filesystem::remove_all(std::filesystem::current_path() / "facade_bench.tmp"); });
    return made;
  }();
  return folder;
}

std::string TableName(int i) { return "t" + std::to_string(i); }

std::string Value(int row, int column) {
  return column == 0 ? "H" + std::to_string(row) : std::to_string(row * 100 + column) + ".25";
}

bool MakeStore() {
  CLoadDataTable::SetOrvoPrgPath(CString((Folder() / "").wstring()));
  for (int number = 0; number < kTables; ++number) {
    CDataTable table;
    table.SetTableName(orv3::FromUtf8(TableName(number)));
    for (int c = 0; c < kColumns; ++c) {
      const CString sign = L"c" + orv3::FormatInt(c);
      const auto type = c == 0 ? CDataTypeStruct::KVBT_STRING : CDataTypeStruct::KVBT_DOUBLE;
      table.AddTableCol(sign, sign, type, c == 0);
    }
    CStringArray values;
    values.SetSize(kColumns);
    for (int row = 0; row < kRows; ++row) {
      for (int c = 0; c < kColumns; ++c) values[c] = orv3::FromUtf8(Value(row, c));
      Check(table.AddTableItem(values, 1) == 1, "adding a row");
    }
    Check(table.WriteSystemJmTable() == 1, "saving");
  }
  return true;
}

void LookUpOrv3(benchmark::State& state) {
  static const bool made = MakeStore();
  Check(made, "making the store");
  std::vector<CString> numbers;
  for (int i = 0; i < kRows; ++i) numbers.push_back(orv3::FromUtf8(Value(i, 0)));
  std::size_t i = 0;
  for (auto _ : state) {
    const CDataItem row = CLoadDataTable::GetSysTemJMItem(L"t20", numbers[i++ % numbers.size()]);
    Check(row.GetItemLength() == kColumns, "looking up");
    double area = 0;
    Check(row.GetCellValue(5, area) == 1 && area > 0, "reading a value");
    benchmark::DoNotOptimize(area);
  }
}
BENCHMARK(LookUpOrv3);

void Run(sqlite3* base, const std::string& sql) {
  Check(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, sql.c_str());
}

sqlite3* MakeSqlite() {
  sqlite3* base = nullptr;
  Check(sqlite3_open((Folder() / "bench.sqlite").string().c_str(), &base) == SQLITE_OK, "open");
  Run(base, "BEGIN");
  for (int number = 0; number < kTables; ++number) {
    std::string columns = "c0 TEXT PRIMARY KEY";
    for (int c = 1; c < kColumns; ++c) columns += ", c" + std::to_string(c) + " REAL";
    Run(base, "CREATE TABLE " + TableName(number) + " (" + columns + ")");
    for (int row = 0; row < kRows; ++row) {
      std::string values = "'" + Value(row, 0) + "'";
      for (int c = 1; c < kColumns; ++c) values += ", " + Value(row, c);
      Run(base, "INSERT INTO " + TableName(number) + " VALUES (" + values + ")");
    }
  }
  Run(base, "COMMIT");
  return base;
}

// The statement is prepared once; each look-up takes the row's 39 values, as a caller of the other
// side has them.
void LookUpSqlite(benchmark::State& state) {
  static sqlite3* const base = MakeSqlite();
  sqlite3_stmt* select = nullptr;
  Check(
      sqlite3_prepare_v2(base, "SELECT * FROM t20 WHERE c0 = ?", -1, &select, nullptr) == SQLITE_OK,
      "prepare");
  std::vector<std::string> numbers;
  for (int i = 0; i < kRows; ++i) numbers.push_back(Value(i, 0));
  std::size_t i = 0;
  for (auto _ : state) {
    const std::string& no = numbers[i++ % numbers.size()];
    sqlite3_bind_text(select, 1, no.c_str(), static_cast<int>(no.size()), SQLITE_STATIC);
    Check(sqlite3_step(select) == SQLITE_ROW, "looking up");
    double sum = 0;
    for (int c = 1; c < kColumns; ++c) sum += sqlite3_column_double(select, c);
    benchmark::DoNotOptimize(sum);
    sqlite3_reset(select);
  }
  sqlite3_finalize(select);
}
BENCHMARK(LookUpSqlite);

}  // namespace

BENCHMARK_MAIN();
