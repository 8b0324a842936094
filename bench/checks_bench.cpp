// Connection checks and look-ups in the code tables. A 4 x 6 group is to take less than 2 us, a
// group time in proportion to its bolts, and a look-up less than 50 ns.
#include <benchmark/benchmark.h>

#include "catalogue/code_tables/table_search.h"
#include "connections/bolt_group.h"
#include "connections/butt_weld.h"
#include "connections/fillet_weld.h"

namespace {

NormalBoltData BoltGroup(int type, int layout, int cols, int rows) {
  NormalBoltData group;
  group.m_nBoltType = type;
  group.m_nLayout = layout;
  group.m_nCols = cols;
  group.m_nRows = rows;
  group.m_dColSpace = group.m_dRowSpace = 70;
  group.m_nD = 20;
  group.m_dSumT = 20;
  group.m_nNv = group.m_nNf = 1;
  group.m_dN = 10;
  group.m_dVx = 100;
  group.m_dVy = 50;
  group.m_dM = 1000;
  group.m_dT = 500;
  group.m_dEx = group.m_dEy = 50;
  group.m_dThick = 10;
  group.m_nGrade = 1;
  return group;
}

// Type and layout of a 4 x 6 group.
void BM_BoltGroup(benchmark::State& state) {
  NormalBoltData group =
      BoltGroup(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), 4, 6);
  for (auto _ : state) benchmark::DoNotOptimize(group.BoltYanSuan());
}
BENCHMARK(BM_BoltGroup)->ArgNames({"type", "staggered"})->ArgsProduct({{0, 1, 2}, {0, 1}});

// A record built, filled and checked once.
void BM_NewBoltGroup(benchmark::State& state) {
  for (auto _ : state) {
    NormalBoltData group = BoltGroup(0, 0, 4, 6);
    benchmark::DoNotOptimize(group.BoltYanSuan());
  }
}
BENCHMARK(BM_NewBoltGroup);

void BM_BoltsOfAGroup(benchmark::State& state) {
  NormalBoltData group = BoltGroup(1, 0, static_cast<int>(state.range(0)) / 10, 10);
  for (auto _ : state) benchmark::DoNotOptimize(group.BoltYanSuan());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_BoltsOfAGroup)->RangeMultiplier(10)->Range(10, 10000)->Complexity(benchmark::oN);

void BM_FilletWeld(benchmark::State& state) {
  AngleHanFData weld(0, 4, 1, 7, 200, 50, 2000, 90, 1.22);
  int okSigma = 0, okTau = 0, okCombined = 0;
  for (auto _ : state) benchmark::DoNotOptimize(weld.JugeStress(okSigma, okTau, okCombined));
}
BENCHMARK(BM_FilletWeld);

void BM_ButtWeld(benchmark::State& state) {
  WQWeldingData weld;
  weld.m_nLoadCase = 4;
  weld.m_dT = 20;
  weld.m_dLw = 300;
  weld.m_dN = 500;
  int okSigma = 0, okTau = 0, okReduced = 0;
  for (auto _ : state) benchmark::DoNotOptimize(weld.JugeStress(okSigma, okTau, okReduced));
}
BENCHMARK(BM_ButtWeld);

// The arguments are volatile, so that no look-up is taken out of its loop.
volatile double g_one = 0.63, g_two = 0.71, g_three = 0.17, g_four = 0.77, g_length = 54.3;

template <class VALUE, class LOOKUP>
void Repeat(benchmark::State& state, LOOKUP lookup) {
  VALUE value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(lookup(value));
    benchmark::DoNotOptimize(value);
  }
}

using T = CTableSearch;

void BM_SteelStrength(benchmark::State& state) {
  Repeat<int>(state, [](int& v) { return T::SearchSub1(1, double{g_length}, 0, v); });
}
void BM_BoltStrength(benchmark::State& state) {
  Repeat<int>(state, [](int& v) { return T::SearchSub3(2, 3, 8, v); });
}
void BM_BoltArea(benchmark::State& state) {
  Repeat<double>(state, [](double& v) { return T::SearchSub23(4, 1, v); });
}
void BM_StabilityFactor(benchmark::State& state) {
  Repeat<double>(state, [](double& v) { return T::SearchSub12(g_length, 345, 2, v); });
}
void BM_FrameColumn(benchmark::State& state) {
  Repeat<double>(state, [](double& v) { return T::SearchSub17(g_one, g_two, v); });
}
void BM_SingleSteppedColumn(benchmark::State& state) {
  Repeat<double>(state, [](double& v) { return T::SearchSub18(g_one, g_three, v); });
}
void BM_DoubleSteppedColumn(benchmark::State& state) {
  Repeat<double>(state, [](double& v) { return T::SearchSub20(g_one, g_two, g_three, g_four, v); });
}
BENCHMARK(BM_SteelStrength);
BENCHMARK(BM_BoltStrength);
BENCHMARK(BM_BoltArea);
BENCHMARK(BM_StabilityFactor);
BENCHMARK(BM_FrameColumn);
BENCHMARK(BM_SingleSteppedColumn);
BENCHMARK(BM_DoubleSteppedColumn);

}  // namespace

BENCHMARK_MAIN();
