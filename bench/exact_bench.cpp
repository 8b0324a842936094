// Exact properties of outlines. The counters tell the solver's own estimates: It, Iw and shear
// areas in percent, the shear center in percent of the depth; for all rows the worst of them.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_outline.h"
#include "framework/utf8.h"
#include "outlines/edge.h"
#include "outlines/exact_properties.h"
#include "platform/code_page.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"
#include "tables/data_table.h"

#ifdef ORV3CAL_BENCH_GMSH
#include <gmsh.h>

#include "gmsh_triangles.h"
#endif

namespace {

using CLoops = std::vector<orv3::CPath>;

CLoops RolledI() {
  const std::vector<orv3::CCorner> corners{{0, 0, 0},          {150, 0, 0},        {150, 10.7, 0},
                                           {78.55, 10.7, 15},  {78.55, 289.3, 15}, {150, 289.3, 0},
                                           {150, 300, 0},      {0, 300, 0},        {0, 289.3, 0},
                                           {71.45, 289.3, 15}, {71.45, 10.7, 15},  {0, 10.7, 0}};
  return {orv3::RoundedPath(corners)};
}

CLoops Style(int style, std::vector<double> sizes) {
  sizes.resize(orv3::kSectionSizes);
  return orv3::SectionOutline(style, std::span<const double, orv3::kSectionSizes>(sizes)).m_arrLoop;
}

struct CWorst {
  double It = 0, Iw = 0, As = 0, center = 0;
  int inaccurate = 0;

  void Add(const CLoops& loops, const orv3::CExactProperties& p) {
    const orv3::CBox box = orv3::PathBounds(loops);
    inaccurate += p.m_bAccurate ? 0 : 1;
    It = std::max(It, p.m_error.It * 100);
    if (!p.m_bJoined) return;
    Iw = std::max(Iw, p.m_error.Iw * 100);
    As = std::max(As, p.m_error.As * 100);
    center = std::max(center, p.m_error.center / std::max(box.Width(), box.Height()) * 100);
  }
  void Tell(benchmark::State& state) const {
    state.counters["It%"] = It;
    state.counters["Iw%"] = Iw;
    state.counters["As%"] = As;
    state.counters["center%"] = center;
    state.counters["beyond"] = inaccurate;
  }
};

void Solve(benchmark::State& state, const CLoops& loops) {
  orv3::CExactProperties p;
  for (auto _ : state) benchmark::DoNotOptimize(p = orv3::ExactProperties(loops));
  CWorst worst;
  worst.Add(loops, p);
  worst.Tell(state);
}

// The peer: Gmsh's mesh, two triangles to a wall, and quadratic elements. The counters tell how far
// its figures are from ours, in percent: the mesh is as coarse as takes It to 1 %.
#ifdef ORV3CAL_BENCH_GMSH
void Peer(benchmark::State& state, const CLoops& loops) {
  gmsh::initialize();
  gmsh::option::setNumber("General.Terminal", 0);
  const orv3::CExactProperties p = orv3::ExactProperties(loops);
  double length = 0;
  for (const orv3::CPath& loop : loops) {
    orv3::ForEachEdge(loop, [&](const orv3::CEdge& edge, std::size_t) { length += edge.Length(); });
  }
  orv3::test::CSectionTriangles mesh;
  orv3::test::CCoarseFigures coarse;
  for (auto _ : state) {
    mesh = orv3::GmshTriangles(loops, p.A / length);
    coarse = orv3::test::QuadraticFigures(mesh);
  }
  const auto percent = [](double peer, double own) { return 100 * std::fabs(peer / own - 1); };
  state.counters["triangles"] = static_cast<double>(mesh.m_arrTriangle.size());
  state.counters["It%"] = percent(coarse.It, p.It);
  state.counters["Iw%"] = percent(coarse.Iw, p.Iw);
  state.counters["As%"] = std::max(percent(coarse.Asx, p.Asx), percent(coarse.Asy, p.Asy));
  gmsh::finalize();
}
BENCHMARK_CAPTURE(Peer, rolled_I_with_radii, RolledI())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Peer, welded_H, Style(0, {300, 400, 20, 10}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Peer, flanged_cross, Style(2, {400, 400, 200, 200, 10, 16}))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Peer, box, Style(1, {300, 400, 12}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Peer, angle, Style(10, {10, 100, 10, 90}))->Unit(benchmark::kMillisecond);
#else
void Peer(benchmark::State& state) {
  state.SkipWithError("built without Gmsh: libgmsh-dev is not installed");
}
BENCHMARK(Peer);
#endif

BENCHMARK_CAPTURE(Solve, rolled_I_with_radii, RolledI())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, welded_H, Style(0, {300, 400, 20, 10}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, general_H, Style(9, {10, 400, 16, 20, 140, 140, 95, 95}))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, flanged_cross, Style(2, {400, 400, 200, 200, 10, 16}))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, box, Style(1, {300, 400, 12}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, general_box, Style(14, {300, 400, 20, 16, 10, 12}))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, angle, Style(10, {10, 100, 10, 90}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, channel, Style(12, {8, 200, 11, 11, 67, 67}))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, rectangle, Style(3, {200, 400}))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Solve, circular_tube, Style(7, {100, 92}))->Unit(benchmark::kMillisecond);

// A shipped row's figures, kept beside the store.
void LookUp(benchmark::State& state, const wchar_t* table, const wchar_t* no) {
  orv3::SetAnsiCodePage(936);
  CLoadDataTable::SetOrvoPrgPath(CString(orv3::FromUtf8(ORV3CAL_CATALOGUE)) + L"/");
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, no);
  if (!orv3::FindExact(row)) state.SkipWithError("not kept beside the store");
  for (auto _ : state) benchmark::DoNotOptimize(orv3::ExactProperties(row));
}
BENCHMARK_CAPTURE(LookUp, rolled_I, L"热轧普通工字钢", L"I20a")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(LookUp, pair_of_angles, L"热轧等边角钢组合", L"2L100X10")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(LookUp, lattice_column, L"双肢格构柱", L"G2[10X800")
    ->Unit(benchmark::kMicrosecond);

// Every row of the shipped store.
void AllRows(benchmark::State& state) {
  orv3::SetAnsiCodePage(936);
  CLoadDataTable::SetOrvoPrgPath(CString(orv3::FromUtf8(ORV3CAL_CATALOGUE)) + L"/");
  CStringArray names;
  CLoadDataTable::GetTableNameArray(orv3::kCatalogueTables, names);
  std::vector<CLoops> outlines;
  std::vector<std::string> which;
  for (const CString& name : names) {
    CDataTable table;
    table.SetTableName(name);
    table.GetSystemJmTable();
    for (const CDataItem& row : table.m_arrItem) {
      outlines.push_back(orv3::RowOutline(row).m_arrLoop);
      which.push_back(orv3::ToUtf8(name) + " " + orv3::ToUtf8(row[0].m_strValue));
    }
  }
  CWorst worst;
  for (auto _ : state) {
    for (std::size_t i = 0; i < outlines.size(); ++i) {
      const orv3::CExactProperties p = orv3::ExactProperties(outlines[i]);
      if (!p.m_bAccurate) std::fprintf(stderr, "beyond its limits: %s\n", which[i].c_str());
      worst.Add(outlines[i], p);
    }
  }
  worst.Tell(state);
  state.counters["rows"] = static_cast<double>(outlines.size());
}
BENCHMARK(AllRows)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
