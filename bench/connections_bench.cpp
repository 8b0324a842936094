// Bolt groups, look-ups in the code tables, and many cases at once. No library to measure beside
// was found: checks by this design code come in closed programs only.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "catalogue/code_tables/table_search.h"
#include "codes/slip.h"
#include "codes/steel_strength.h"
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

void LookUpSteelByEdition(benchmark::State& state) {
  int i = 0;
  for (auto _ : state) {
    const auto grade = static_cast<orv3::CSteelGrade>(i % 6);
    benchmark::DoNotOptimize(
        orv3::SteelStrengths(orv3::CCodeEdition::Gb2017, grade, 1.0 + (i & 63)));
    ++i;
  }
}
BENCHMARK(LookUpSteelByEdition);

void LookUpSlipByEdition(benchmark::State& state) {
  int i = 0;
  for (auto _ : state) {
    const auto grade = static_cast<orv3::CSteelGrade>(i % 6);
    benchmark::DoNotOptimize(orv3::SlipFactor(orv3::CCodeEdition::Gb2017, i & 1, grade));
    ++i;
  }
}
BENCHMARK(LookUpSlipByEdition);

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
// 100,000 cases of a CSV through the command, its start and its output file included.
void CheckCommandCsv(benchmark::State& state) {
  constexpr int kCases = 100000;
  static constexpr const char* kTypes[] = {"ordinary", "friction", "bearing"};
  {
    std::ofstream file("connections_bench.csv");
    file << "id,layout,type,cols,rows,colSpace,rowSpace,d,sumT,nv,nf,N,Vx,Vy,M,T,ex,ey,t,steel,"
            "surface,grade,class\n";
    for (int i = 0; i < kCases; ++i) {
      const orv3::CBoltCase input = Case(i);
      file << 'J' << i << ",grid," << kTypes[input.m_nType] << ',' << input.m_nCols << ','
           << input.m_nRows << ',' << input.m_colSpace.m_dUniform << ",80," << input.m_nD
           << ",12,2,2,10," << input.m_dVx << ',' << input.m_dVy << ",500,1000,60,60,12,Q345,0,"
           << (input.m_nType == 0 ? "4.6" : "8.8") << ",C\n";
    }
  }
  for (auto _ : state) {
    const int status = std::system(ORV3CAL_PROGRAM
                                   " check bolt connections_bench.csv --csv > connections_out.csv");
    if (status == -1) state.SkipWithError("the command did not start");
  }
  std::remove("connections_bench.csv");
  std::remove("connections_out.csv");
  state.SetItemsProcessed(state.iterations() * kCases);
}
BENCHMARK(CheckCommandCsv)->Unit(benchmark::kMillisecond)->UseRealTime();
#endif

}  // namespace

BENCHMARK_MAIN();
