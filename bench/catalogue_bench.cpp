// Making the system store from the catalogue's data files in two saves, as the build does but
// waiting for the medium, every row held against the outline of its sizes. Beside SQLite stands
// what both do alike: a new file of the tables as they come out of the data files, with default
// durability, one save a table and one for all.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/code_page.h"
#include "platform/store_file.h"
#include "system_store.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"

namespace {

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "catalogue_bench: %s failed\n", what);
  std::exit(1);
}

// The data files, in the working folder and not in a temporary one that may be in memory.
std::filesystem::path Folder() {
  static const std::filesystem::path folder = [] {
    const auto made = std::filesystem::current_path() / "catalogue_bench.tmp";
    std::filesystem::remove_all(made);
    std::filesystem::create_directories(made);
    for (const auto& file : std::filesystem::directory_iterator(ORV3CAL_CATALOGUE)) {
      if (file.path().extension() == ".kvb") std::filesystem::copy(file.path(), made);
    }
    std::atexit([] {
      std::filesystem::remove_all(std::filesystem::current_path() / "catalogue_bench.tmp");
    });
    return made;
  }();
  return folder;
}

void MakeOurs(benchmark::State& state) {
  orv3::SetAnsiCodePage(936);
  const std::string folder = Folder().string();
  for (auto _ : state) orv3::catalogue::MakeSystemStore(folder);
}
BENCHMARK(MakeOurs)->Unit(benchmark::kMillisecond);

std::vector<CDataTable> AllTables() {
  const CString store = orv3::FromUtf8(ORV3CAL_CATALOGUE "/") + orv3::kSystemStore;
  CStringArray names;
  CDataTable::GetTableNameFromFile(store, names);
  std::vector<CDataTable> tables;
  for (const CString& name : names) {
    CDataTable table;
    table.SetTableName(name);
    CString line;
    Check(table.GetTable(store, line) == 1, "reading a table");
    tables.push_back(table);
  }
  return tables;
}

void SaveOurs(benchmark::State& state) {
  const bool atOnce = state.range(0) != 0;
  orv3::SetAnsiCodePage(936);
  std::vector<CDataTable> tables = AllTables();
  const CString path = orv3::FromUtf8((Folder() / "catalogue.KDB").string());
  for (auto _ : state) {
    std::filesystem::remove(orv3::ToUtf8(path));
    std::optional<orv3::CStoreBatch> batch;
    if (atOnce) Check(batch.emplace(path).IsHeld(), "holding the store");
    for (CDataTable& table : tables)
      Check(table.WriteTable(path, orv3::kUserKind, 1) == 1, "saving a table");
    if (atOnce) Check(batch->Commit(), "saving all tables");
  }
}
BENCHMARK(SaveOurs)->ArgName("atOnce")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void Run(sqlite3* base, const std::string& sql) {
  Check(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, sql.c_str());
}

void Fill(sqlite3* base, const CDataTable& table) {
  const std::string name = '"' + orv3::ToUtf8(table.GetTableName()) + '"';
  std::string columns, marks;
  for (int c = 0; c < table.GetTableColNum(); ++c) {
    const bool text = table.GetDataTableColType(c) == CDataTypeStruct::KVBT_STRING;
    // By number: SQLite takes "B(mm)" and "b(mm)" for one name.
    columns += (c == 0 ? "c" : ", c") + std::to_string(c) + (text ? " TEXT" : " REAL") +
               (c == 0 ? " PRIMARY KEY" : "");
    marks += c == 0 ? "?" : ", ?";
  }
  Run(base, "CREATE TABLE " + name + " (" + columns + ")");
  sqlite3_stmt* insert = nullptr;
  const std::string sql = "INSERT INTO " + name + " VALUES (" + marks + ")";
  Check(sqlite3_prepare_v2(base, sql.c_str(), -1, &insert, nullptr) == SQLITE_OK, "prepare");
  for (const CDataItem& row : table.m_arrItem) {
    for (int c = 0; c < row.GetItemLength(); ++c) {
      const std::string value = orv3::ToUtf8(row[c].m_strValue);
      if (row[c].m_nType == CDataTypeStruct::KVBT_STRING)
        sqlite3_bind_text(insert, c + 1, value.c_str(), -1, SQLITE_TRANSIENT);
      else
        sqlite3_bind_double(insert, c + 1, orv3::ToDouble(row[c].m_strValue));
    }
    Check(sqlite3_step(insert) == SQLITE_DONE, "insert");
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
}

void MakeSqlite(benchmark::State& state) {
  const bool atOnce = state.range(0) != 0;
  orv3::SetAnsiCodePage(936);
  const std::vector<CDataTable> tables = AllTables();
  const std::string path = (Folder() / "catalogue.sqlite").string();
  for (auto _ : state) {
    std::filesystem::remove(path);
    sqlite3* base = nullptr;
    Check(sqlite3_open(path.c_str(), &base) == SQLITE_OK, "open");
    if (atOnce) Run(base, "BEGIN");
    for (const CDataTable& table : tables) {
      if (!atOnce) Run(base, "BEGIN");
      Fill(base, table);
      if (!atOnce) Run(base, "COMMIT");
    }
    if (atOnce) Run(base, "COMMIT");
    sqlite3_close(base);
  }
}
BENCHMARK(MakeSqlite)->ArgName("atOnce")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
