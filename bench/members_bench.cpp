// Members checked one after another: the formulas alone, cases with their sections by name, and a
// CSV through the command. No library to measure beside was found.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "framework/utf8.h"
#include "members/cases/member_case.h"
#include "members/cases/member_choice.h"
#include "members/cases/style_ranges.h"
#include "sections/load_data_table.h"

namespace {

// Beam-columns of rolled and welded H, each with forces of its own.
std::vector<orv3::CMemberCase> Columns(std::size_t count) {
  static constexpr const char* kRolled[] = {"HW300X300", "HW350X350", "HW400X400", "HW250X250"};
  std::vector<orv3::CMemberCase> cases(count);
  for (std::size_t i = 0; i < count; ++i) {
    orv3::CMemberCase& c = cases[i];
    if (i % 2 == 0) {
      c.m_strTable = "热轧宽翼缘H型钢";
      c.m_strNo = kRolled[i / 2 % 4];
    } else {
      c.m_strStyle = "h";
      c.m_sizes.m_arrEach = {300, 400 + 10.0 * static_cast<double>(i / 2 % 8), 20, 10};
      c.m_strEdges = "flame-cut";
    }
    c.m_strSteel = i % 3 == 0 ? "Q235" : "Q345";
    c.m_dN = -400 - static_cast<double>(i % 400);
    c.m_Mx.m_dUniform = 50000 + 100 * static_cast<double>(i % 500);
    c.m_dVy = 60;
    c.m_strLoad = "uniform";
    c.m_dLx = 6000;
    c.m_dLy = 3000 + static_cast<double>(i % 1000);
  }
  return cases;
}

void CheckCases(benchmark::State& state) {
  CLoadDataTable::SetOrvoPrgPath(orv3::FromUtf8(ORV3CAL_CATALOGUE "/"));
  const auto cases = Columns(static_cast<std::size_t>(state.range(0)));
  orv3::CMemberCheck check;
  for (auto _ : state) {
    for (const auto& each : cases) {
      if (!check.Run(each)) {
        std::fprintf(stderr, "members_bench: a case was refused\n");
        std::exit(1);
      }
      benchmark::DoNotOptimize(check.Pass());
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(CheckCases)->RangeMultiplier(10)->Range(100, 100000)->Complexity(benchmark::oN);

// The whole shipped store tried against 20 load cases of one member, its rows read from the tables
// each time: beam-columns, and columns in axial compression with their torsion.
void Choose(benchmark::State& state) {
  CLoadDataTable::SetOrvoPrgPath(orv3::FromUtf8(ORV3CAL_CATALOGUE "/"));
  auto cases = Columns(20);
  for (orv3::CMemberCase& each : cases) {
    each.m_strTable = each.m_strNo = each.m_strStyle = each.m_strEdges = "";
    each.m_sizes = {};
    each.m_strSteel = "Q345";
    if (state.range(0) == 0) continue;
    each.m_Mx.m_dUniform = each.m_dVy = 0;
    each.m_strLoad = "";
  }
  for (auto _ : state) {
    auto candidates = orv3::AllMemberCandidates(orv3::CMemberCase::kNone);
    benchmark::DoNotOptimize(
        orv3::ChooseMember(cases, candidates, orv3::CCodeEdition::Gb2017).m_nTried);
  }
}
BENCHMARK(Choose)->ArgName("axial")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// H sections of a style, each with its torsion unless it fails without.
void ChooseStyles(benchmark::State& state) {
  auto cases = Columns(20);
  for (orv3::CMemberCase& each : cases) {
    each.m_strTable = each.m_strNo = each.m_strEdges = "";
    each.m_strSteel = "Q345";
    each.m_dN *= 3;  // which half of the sections fail
    each.m_Mx.m_dUniform = each.m_dVy = 0;
    each.m_strLoad = "";
  }
  for (auto _ : state) {
    std::vector<orv3::CMemberCandidate> candidates;
    orv3::AddStyleRanges(
        "h", {{"b", 150, 300, 50}, {"h", 200, 400, 50}, {"tf", 8, 12, 2}, {"tw", 6, 6, 0}},
        candidates);
    benchmark::DoNotOptimize(orv3::ChooseMember(cases, candidates, orv3::CCodeEdition::Gb2017,
                                                static_cast<orv3::CFailingRatio>(state.range(0)))
                                 .m_nTried);
  }
}
BENCHMARK(ChooseStyles)->ArgName("any")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

#ifdef ORV3CAL_PROGRAM
// 100,000 cases of a CSV through the command, its start and its output file included: the lines of
// examples/members.csv over and over.
void CheckCommandCsv(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(1));
  {
    std::ifstream example(ORV3CAL_EXAMPLES "/members.csv");
    std::vector<std::string> lines;
    for (std::string line; std::getline(example, line);) lines.push_back(line);
    if (lines.size() < 2) return state.SkipWithError("examples/members.csv cannot be read");
    std::ofstream file("members_bench.csv");
    file << lines[0] << '\n';
    for (std::size_t i = 0; i < count; ++i) file << lines[1 + i % (lines.size() - 1)] << '\n';
  }
  const std::string command = ORV3CAL_PROGRAM " check member members_bench.csv --csv --code " +
                              std::to_string(state.range(0)) + " > members_out.csv";
  for (auto _ : state) {
    const int status = std::system(command.c_str());
    if (status == -1) state.SkipWithError("the command did not start");
  }
  std::remove("members_bench.csv");
  std::remove("members_out.csv");
  state.SetItemsProcessed(state.iterations() * state.range(1));
}
BENCHMARK(CheckCommandCsv)
    ->ArgNames({"code", "cases"})
    ->ArgsProduct({{2003, 2017}, {10000, 100000}})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
#endif

}  // namespace

BENCHMARK_MAIN();
