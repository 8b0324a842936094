// Properties of lattice columns from the shipped catalogue: each limb looked up in the store, which
// stays as it is between the columns.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "catalogue/lattice/steel_ge_gou.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"

namespace {

// Limbs all of one section, as columns have them, or each of its own.
CSteelItemGeGou Column(int limbs, bool alike) {
  static constexpr const wchar_t* kNumbers[] = {L"L100X10", L"L90X8", L"L75X5", L"L63X6"};
  CSteelItemGeGou column(limbs);
  for (const wchar_t* sign : {L"k(mm)", L"kx(mm)", L"ky(mm)"}) {
    const int cell = column.GetSignIndex(sign);
    if (cell >= 0) column.m_arrCell.Own(cell).m_strValue = L"800";
  }
  for (int limb = 1; limb <= limbs; ++limb) {
    const CString sign = CString(L"P") + orv3::FormatInt(limb);
    column[(sign + L"Type").GetString()].m_strValue = L"热轧等边角钢";
    column[(sign + L"No.").GetString()].m_strValue = kNumbers[alike ? 0 : limb - 1];
    column[(sign + L"θ°").GetString()].m_strValue = orv3::FormatInt(90 * (limb - 1));
  }
  return column;
}

void Calculate(benchmark::State& state) {
  CLoadDataTable::SetOrvoPrgPath(orv3::FromUtf8(ORV3CAL_CATALOGUE "/"));
  CSteelItemGeGou column = Column(static_cast<int>(state.range(0)), state.range(1) != 0);
  for (auto _ : state) {
    if (column.CalSteelJMGeGou() == 0) {
      std::fprintf(stderr, "lattice_bench: the column was not computed\n");
      std::exit(1);
    }
    benchmark::DoNotOptimize(column);
  }
}
BENCHMARK(Calculate)->ArgNames({"limbs", "alike"})->ArgsProduct({{2, 3, 4}, {0, 1}});

}  // namespace

BENCHMARK_MAIN();
