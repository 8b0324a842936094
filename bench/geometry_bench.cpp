// The geometry of a row of the catalogue, operation by operation. Pairs look their component up in
// the system store at every call.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "catalogue/exact/row_exact.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"

namespace {

using COperation = double (*)(const CDataItem& row);

double Height(const CDataItem& row) {
  double width = 0, height = 0;
  CLoadDataTable::GetDataItemRect(row, width, height, 0);
  return height;
}

double CentroidTurned(const CDataItem& row) {
  double x = 0, y = 0;
  CLoadDataTable::GetDataItemCenter(row, x, y, 90);
  return x;
}

double Inertia(const CDataItem& row) {
  double ix = 0, iy = 0;
  CLoadDataTable::GetDataItemIo(row, ix, iy, 0);
  return iy;
}

// Looked up in the catalogue's file, and computed.
double ExactKept(const CDataItem& row) { return orv3::ExactProperties(row).It; }
double ExactComputed(const CDataItem& row) { return orv3::ComputedExact(row).It; }

void Run(benchmark::State& state, const wchar_t* table, const wchar_t* no, COperation operation) {
  CLoadDataTable::SetOrvoPrgPath(CString(orv3::FromUtf8(ORV3CAL_CATALOGUE)) + L"/");
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, no);
  if (!(operation(row) > 0)) {
    std::fprintf(stderr, "geometry_bench: the row has no such value\n");
    std::exit(1);
  }
  for (auto _ : state) benchmark::DoNotOptimize(operation(row));
}

constexpr const wchar_t* kBeams = L"热轧普通工字钢";
constexpr const wchar_t* kChannels = L"热轧普通槽钢";
constexpr const wchar_t* kPairs = L"热轧等边角钢组合";

BENCHMARK_CAPTURE(Run, beam_area, kBeams, L"I20a", CLoadDataTable::GetDataItemArea);
BENCHMARK_CAPTURE(Run, beam_rect, kBeams, L"I20a", Height);
BENCHMARK_CAPTURE(Run, beam_center_turned, kBeams, L"I20a", CentroidTurned);
BENCHMARK_CAPTURE(Run, beam_io, kBeams, L"I20a", Inertia);
BENCHMARK_CAPTURE(Run, beam_modulus, kBeams, L"I20a", CLoadDataTable::GetDataItemWyoR);
BENCHMARK_CAPTURE(Run, channel_e0, kChannels, L"[20a", CLoadDataTable::GetDatIteme0);
BENCHMARK_CAPTURE(Run, channel_Iw, kChannels, L"[20a", CLoadDataTable::GetDataItemIw);
BENCHMARK_CAPTURE(Run, pair_io, kPairs, L"2L50X5", Inertia);
BENCHMARK_CAPTURE(Run, pair_radius, kPairs, L"2L50X5", CLoadDataTable::GetDataItemRadiyo);
BENCHMARK_CAPTURE(Run, beam_exact_kept, kBeams, L"I20a", ExactKept);
BENCHMARK_CAPTURE(Run, beam_exact_computed, kBeams, L"I20a", ExactComputed);
BENCHMARK_CAPTURE(Run, pair_exact_kept, kPairs, L"2L50X5", ExactKept);

}  // namespace

BENCHMARK_MAIN();
