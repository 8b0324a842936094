// Bolt groups, look-ups in the code tables, and many cases at once. No library to measure beside
// was found: checks by this design code come in closed programs only.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "catalogue/code_tables/table_search.h"
#include "codes/buckling.h"
#include "codes/fatigue.h"
#include "codes/holes.h"
#include "codes/section_class.h"
#include "codes/slip.h"
#include "codes/steel_strength.h"
#include "codes/weld_strength.h"
#include "codes/width_limits.h"
#include "connections/bolt_group.h"
#include "connections/cases/bolt_case.h"

namespace {

NormalBoltData Group(int type, int cols, int rows) {
  NormalBoltData group;
  group.m_nBoltType = type;
  group.m_nCols = cols;
  group.m_nRows = rows;
  group.m_dColSpace = 70;
  group.m_dRowSpace = 80;
  group.m_nD = 20;
  group.m_dSumT = group.m_dThick = 12;
  group.m_nNv = group.m_nNf = 2;
  group.m_dN = 50;
  group.m_dVx = 300;
  group.m_dVy = 120;
  group.m_dM = 8000;
  group.m_dT = 20000;
  group.m_dEx = group.m_dEy = 50;
  return group;
}

void BoltGroup4x6(benchmark::State& state) {
  NormalBoltData group = Group(static_cast<int>(state.range(0)), 4, 6);
  for (auto _ : state) benchmark::DoNotOptimize(group.BoltYanSuan());
}
BENCHMARK(BoltGroup4x6)->ArgName("type")->Arg(0)->Arg(1)->Arg(2);

void BoltGroupOfMany(benchmark::State& state) {
  const int rows = static_cast<int>(state.range(0)) / 10;
  NormalBoltData group = Group(0, 10, rows);
  for (auto _ : state) benchmark::DoNotOptimize(group.BoltYanSuan());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BoltGroupOfMany)->RangeMultiplier(10)->Range(10, 10000)->Complexity(benchmark::oN);

// Arguments that change from call to call, so that no look-up is done once for all.
void LookUpSteel(benchmark::State& state) {
  int strength = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub1(i & 3, 1.0 + (i & 63), i % 3, strength);
    benchmark::DoNotOptimize(strength);
    ++i;
  }
}
BENCHMARK(LookUpSteel);

// The look-ups by edition, each with the arguments of its i-th call.
constexpr orv3::CCodeEdition k2017 = orv3::CCodeEdition::Gb2017;
orv3::CSteelGrade GradeOf(int i) { return static_cast<orv3::CSteelGrade>(i % 6); }

template <class ASK>
void LookUp2017(benchmark::State& state, ASK ask) {
  int i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(ask(i++));
}
BENCHMARK_CAPTURE(LookUp2017, steel,
                  [](int i) { return orv3::SteelStrengths(k2017, GradeOf(i), 1.0 + (i & 63)); });
BENCHMARK_CAPTURE(LookUp2017, butt_weld, [](int i) {
  return orv3::ButtWeldStrengths(k2017, GradeOf(i), 20.0 + (i & 63));
});
BENCHMARK_CAPTURE(LookUp2017, slip,
                  [](int i) { return orv3::SlipFactor(k2017, i & 1, GradeOf(i)); });
BENCHMARK_CAPTURE(LookUp2017, hole, [](int i) {
  return orv3::HoleSize(k2017, static_cast<orv3::CHoleKind>(i & 3), 20 + 2 * (i % 3));
});
BENCHMARK_CAPTURE(LookUp2017, section_class_of_a_web, [](int i) {
  return orv3::ClassLimits(k2017, orv3::CClassElement::WebCompressed, GradeOf(i), 0.01 * (i % 200));
});
BENCHMARK_CAPTURE(LookUp2017, width_limit, [](int i) {
  return orv3::AxialWidthLimit(k2017, static_cast<orv3::CWidthElement>(i % 7), GradeOf(i), i & 127);
});
BENCHMARK_CAPTURE(LookUp2017, fatigue_category, [](int i) {
  static constexpr const char* kNames[] = {"Z1", "Z4", "Z9", "Z14", "J1", "J3"};
  return orv3::FatigueCategory(k2017, kNames[i % 6]);
});
BENCHMARK_CAPTURE(LookUp2017, stability_factor, [](int i) {
  return orv3::StabilityFactor(k2017, i & 255, 345, static_cast<orv3::CBucklingClass>(i & 3));
});

void LookUpBolt(benchmark::State& state) {
  int strength = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub3(SUB3_MEMBER, SUB3_Q235 + (i & 3), i % 10, strength);
    benchmark::DoNotOptimize(strength);
    ++i;
  }
}
BENCHMARK(LookUpBolt);

void LookUpFrameColumn(benchmark::State& state) {
  double mu = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub17(0.01 * (i & 1023), 0.007 * (i & 511), mu);
    benchmark::DoNotOptimize(mu);
    ++i;
  }
}
BENCHMARK(LookUpFrameColumn);

void LookUpSteppedColumn(benchmark::State& state) {
  double mu = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub18(0.2 + 0.002 * (i & 1023), 0.06 + 0.001 * (i & 511), mu);
    benchmark::DoNotOptimize(mu);
    ++i;
  }
}
BENCHMARK(LookUpSteppedColumn);

void LookUpDoubleSteppedColumn(benchmark::State& state) {
  double mu = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub20(0.2 + 0.001 * (i & 1023), 0.2 + 0.001 * (i & 511), 0.07, 0.3, mu);
    benchmark::DoNotOptimize(mu);
    ++i;
  }
}
BENCHMARK(LookUpDoubleSteppedColumn);

void LookUpPhi(benchmark::State& state) {
  double phi = 0;
  int i = 0;
  for (auto _ : state) {
    CTableSearch::SearchSub12(i & 255, 345, i & 3, phi);
    benchmark::DoNotOptimize(phi);
    ++i;
  }
}
BENCHMARK(LookUpPhi);

orv3::CBoltCase Case(int i) {
  orv3::CBoltCase input;
  input.m_nType = i % 3;
  input.m_nCols = 1 + i % 4;
  input.m_nRows = 1 + i % 6;
  input.m_colSpace.m_dUniform = 75 + i % 25;
  input.m_rowSpace.m_dUniform = 80;
  input.m_nD = i % 2 == 0 ? 20 : 22;
  input.m_dSumT = input.m_dThick = 12;
  input.m_nNv = input.m_nNf = 2;
  input.m_dVx = i % 400;
  input.m_dVy = 1 + i % 200;
  input.m_dEx = input.m_dEy = 60;
  input.m_nSteel = 1;
  input.m_nGrade = i % 3 == 0 ? 0 : 3;
  input.m_nClass = 2;
  return input;
}

void ManyCases(benchmark::State& state) {
  std::vector<orv3::CBoltCase> cases;
  for (int i = 0; i < 1000; ++i) cases.push_back(Case(i));
  orv3::CBoltCheck check;
  for (auto _ : state) {
    for (const auto& input : cases) benchmark::DoNotOptimize(check.Run(input));
  }
  state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(ManyCases);

#ifdef ORV3CAL_PROGRAM
// 100,000 cases of a CSV through the command, its start and its output file included: the lines of
// examples/bolts.csv over and over.
void CheckCommandCsv(benchmark::State& state) {
  constexpr int kCases = 100000;
  {
    std::ifstream example(ORV3CAL_EXAMPLES "/bolts.csv");
    std::vector<std::string> lines;
    for (std::string line; std::getline(example, line);) lines.push_back(line);
    if (lines.size() < 2) return state.SkipWithError("examples/bolts.csv cannot be read");
    std::ofstream file("connections_bench.csv");
    file << lines[0] << '\n';
    for (std::size_t i = 0; i < kCases; ++i) file << lines[1 + i % (lines.size() - 1)] << '\n';
  }
  const std::string command = ORV3CAL_PROGRAM " check bolt connections_bench.csv --csv --code " +
                              std::to_string(state.range(0)) + " > connections_out.csv";
  for (auto _ : state) {
    const int status = std::system(command.c_str());
    if (status == -1) state.SkipWithError("the command did not start");
  }
  std::remove("connections_bench.csv");
  std::remove("connections_out.csv");
  state.SetItemsProcessed(state.iterations() * kCases);
}
BENCHMARK(CheckCommandCsv)
    ->ArgName("code")
    ->Arg(2003)
    ->Arg(2017)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
#endif

}  // namespace

BENCHMARK_MAIN();
