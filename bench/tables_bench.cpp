// The table engine beside SQLite: in memory, prepared statements, one transaction, the same rows.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "tables/data_table.h"

namespace {

using T = CDataTypeStruct;

constexpr int kColumns = 20;  // No., a text, then 18 numbers
constexpr int kRows = 100000;

// The same values for both: texts are wide for one and UTF-8 for the other, numbers are texts for
// one and doubles for the other.
struct CSourceRow {
  CStringArray m_wide;
  std::string m_no;
  std::string m_family;
  std::vector<double> m_numbers;
};

unsigned Scrambled(unsigned i) { return (i * 2654435761U) % 1000003U; }

const std::vector<CSourceRow>& Source() {
  static const std::vector<CSourceRow> rows = [] {
    std::vector<CSourceRow> made;
    for (unsigned i = 0; i < kRows; ++i) {
      CSourceRow row;
      const unsigned key = Scrambled(i);
      row.m_no = "H" + std::to_string(key) + "X" + std::to_string(i % 97);
      row.m_family = "F" + std::to_string(key % 1000);
      row.m_wide.Add(orv3::FromUtf8(row.m_no));
      row.m_wide.Add(orv3::FromUtf8(row.m_family));
      for (unsigned c = 2; c < kColumns; ++c) {
        const double value = static_cast<double>(Scrambled(i * 31 + c) % 10000) / 8.0;
        row.m_wide.Add(orv3::FormatShortest(value));
        row.m_numbers.push_back(value);
      }
      made.push_back(std::move(row));
    }
    return made;
  }();
  return rows;
}

std::string Sign(int column) { return "c" + std::to_string(column); }

CDataTable EmptyTable() {
  CDataTable table;
  table.SetTableName(L"bench");
  for (int c = 0; c < kColumns; ++c) {
    const CString sign = orv3::FromUtf8(Sign(c));
    table.AddTableCol(sign, sign, c < 2 ? T::KVBT_STRING : T::KVBT_DOUBLE, c == 0);
  }
  return table;
}

// Rows beyond the source repeat it under keys of their own.
void Fill(CDataTable& table, int rows) {
  CStringArray values;
  for (int i = 0; i < rows; ++i) {
    const CStringArray& source = Source()[static_cast<std::size_t>(i % kRows)].m_wide;
    if (i < kRows) {
      table.AddTableItem(source, 1);
      continue;
    }
    values.Copy(source);
    values[0] += L"-" + orv3::FormatInt(i / kRows);
    table.AddTableItem(values, 1);
  }
}

CDataTable& FullTable() {
  static CDataTable table = [] {
    CDataTable made = EmptyTable();
    Fill(made, kRows);
    return made;
  }();
  return table;
}

class CSqlite {
 public:
  CSqlite() {
    sqlite3_open(":memory:", &m_db);
    std::string sql = "CREATE TABLE t(";
    for (int c = 0; c < kColumns; ++c) {
      sql += (c ? "," : "") + Sign(c) + (c < 2 ? " TEXT" : " REAL") + (c ? "" : " UNIQUE");
    }
    Run(sql + ")");
  }
  ~CSqlite() { sqlite3_close(m_db); }
  CSqlite(const CSqlite&) = delete;
  CSqlite& operator=(const CSqlite&) = delete;

  void Run(const std::string& sql) {
    if (sqlite3_exec(m_db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK) return;
    std::fprintf(stderr, "%s: %s\n", sql.c_str(), sqlite3_errmsg(m_db));
    std::abort();
  }
  void Fill(int rows) {
    std::string sql = "INSERT INTO t VALUES(?";
    for (int c = 1; c < kColumns; ++c) sql += ",?";
    sqlite3_stmt* insert = nullptr;
    Run("BEGIN");
    sqlite3_prepare_v2(m_db, (sql + ")").c_str(), -1, &insert, nullptr);
    for (int i = 0; i < rows; ++i) {
      const CSourceRow& row = Source()[static_cast<std::size_t>(i)];
      sqlite3_bind_text(insert, 1, row.m_no.c_str(), -1, SQLITE_STATIC);
      sqlite3_bind_text(insert, 2, row.m_family.c_str(), -1, SQLITE_STATIC);
      for (std::size_t c = 0; c < row.m_numbers.size(); ++c) {
        sqlite3_bind_double(insert, static_cast<int>(c) + 3, row.m_numbers[c]);
      }
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    Run("COMMIT");
  }

 private:
  sqlite3* m_db = nullptr;
};

CSqlite& FullSqlite() {
  static CSqlite db;
  static const bool filled = (db.Fill(kRows), true);
  (void)filled;
  return db;
}

void AddOurs(benchmark::State& state) {
  Source();
  for (auto _ : state) {
    CDataTable table = EmptyTable();
    Fill(table, static_cast<int>(state.range(0)));
    benchmark::DoNotOptimize(table.GetTableRowNum());
  }
}

void AddSqlite(benchmark::State& state) {
  Source();
  for (auto _ : state) {
    CSqlite db;
    db.Fill(static_cast<int>(state.range(0)));
  }
}

struct CQuery {
  const wchar_t* m_expression;
  int m_wildcard;
  const char* m_sql;
};

constexpr CQuery kQueries[] = {
    {L"c5>>900", 0, "c5 > 900"},
    {L"c5>>300&&c6<<1000&&c7!=5", 0, "c5 > 300 AND c6 < 1000 AND c7 <> 5"},
    {L"c0==*77*", 1, "c0 LIKE '%77%'"},
};

void SearchOurs(benchmark::State& state) {
  CDataTable& table = FullTable();
  const CQuery& query = kQueries[state.range(0)];
  int rows = 0;
  for (auto _ : state) {
    CDataTable found = table.SearchTable(query.m_expression, query.m_wildcard);
    rows = found.GetTableRowNum();
  }
  state.counters["rows"] = rows;
}

void SearchSqlite(benchmark::State& state) {
  CSqlite& db = FullSqlite();
  for (auto _ : state) {
    db.Run(std::string("CREATE TABLE r AS SELECT * FROM t WHERE ") +
           kQueries[state.range(0)].m_sql);
    db.Run("DROP TABLE r");
  }
}

// Arguments: the column (1 a text, 5 a double), ascending.
void OrderOurs(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto table = std::make_unique<CDataTable>(FullTable());
    state.ResumeTiming();
    table->OrderTable(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    state.PauseTiming();
    table.reset();
    state.ResumeTiming();
  }
}

void OrderSqlite(benchmark::State& state) {
  CSqlite& db = FullSqlite();
  const std::string order =
      Sign(static_cast<int>(state.range(0))) + (state.range(1) ? " ASC" : " DESC");
  for (auto _ : state) {
    db.Run("CREATE TABLE r AS SELECT * FROM t ORDER BY " + order);
    state.PauseTiming();
    db.Run("DROP TABLE r");
    state.ResumeTiming();
  }
}

void BytesPerCell(benchmark::State& state) {
  Source();
  double bytes = 0;
  for (auto _ : state) {
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    CDataTable table = EmptyTable();
    for (int i = 0; i < kRows; ++i) {
      CStringArray own;  // texts of its own, as a file would give them
      for (const CString& text : Source()[static_cast<std::size_t>(i)].m_wide) {
        own.Add(CString(text.View()));
      }
      table.AddTableItem(own, 1);
    }
    bytes = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - before);
  }
  state.counters["bytes_per_cell"] = bytes / kRows / kColumns;
}

// An addition when every row has been handed out by reference, and when none has.
void AddOneOurs(benchmark::State& state) {
  CDataTable table = FullTable();
  for (int i = 0; state.range(0) != 0 && i < kRows; ++i) benchmark::DoNotOptimize(table[i]);
  CStringArray values;
  values.Copy(Source()[0].m_wide);
  int added = 0;
  for (auto _ : state) {
    values[0] = L"new" + orv3::FormatInt(added++);
    table.AddTableItem(values, 1);
  }
}

BENCHMARK(AddOurs)
    ->Arg(kRows / 10)
    ->Arg(kRows)
    ->Arg(10 * kRows)
    ->MinWarmUpTime(0.5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AddSqlite)->Arg(kRows)->Unit(benchmark::kMillisecond);
BENCHMARK(AddOneOurs)->ArgName("handedOut")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(SearchOurs)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchSqlite)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(OrderOurs)->ArgsProduct({{1, 5}, {1, 0}})->Unit(benchmark::kMillisecond);
BENCHMARK(OrderSqlite)->ArgsProduct({{1, 5}, {1, 0}})->Unit(benchmark::kMillisecond);
BENCHMARK(BytesPerCell)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
