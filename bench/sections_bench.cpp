// The properties of a section, style by style; the peer, where it is installed, is OpenCASCADE's
// surface properties of the same outline.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <new>
#include <vector>

#include "sections/outline.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

#ifdef ORV3CAL_BENCH_OCCT
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepGProp.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <GProp_GProps.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Pnt.hxx>
#endif

namespace {
std::atomic<long> g_allocations{0};
}

// Not inlined: GCC would see malloc and free meet new and delete.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++g_allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

// A usual section of each style, by style number.
constexpr double kSizes[orv3::kSectionStyles][orv3::kSectionSizes] = {
    {300, 400, 20, 10},
    {300, 400, 20},
    {300, 400, 100, 100, 20, 20},
    {300, 400},
    {200},
    {300, 400},
    {100},
    {100, 90},
    {20, 400, 20, 150, 150},
    {20, 400, 25, 20, 150, 150, 140, 140},
    {20, 200, 20, 180},
    {20, 400, 20, 20, 50, 50},
    {20, 400, 20, 20, 80, 80},
    {20, 400, 190, 190, 150, 150},
    {300, 400, 20, 20, 16, 16},
};

CSteelJMData Record(int style) {
  CSteelJMData record;
  record.m_nStyle = style;
  record.m_dX = 10;
  record.m_dY = 20;
  for (int i = 0; i < orv3::kSectionSizes; ++i) record.m_dSize[i] = kSizes[style][i];
  return record;
}

void Properties(benchmark::State& state) {
  const auto style = static_cast<int>(state.range(0));
  CSteelJMData record = Record(style);
  const long before = g_allocations;
  for (auto _ : state) {
    CSteelJMData::CalSectCharacterStyle(record);
    benchmark::DoNotOptimize(record);
  }
  state.counters["allocations"] = static_cast<double>(g_allocations - before);
  state.counters["sections/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.SetLabel(orv3::FindSectionStyle(style)->m_szAlias);
}
BENCHMARK(Properties)->DenseRange(0, orv3::kSectionStyles - 1);

#ifdef ORV3CAL_BENCH_OCCT
gp_Pnt Point(const orv3::CVertex& v) { return {v.x, v.y, 0}; }

// The middle of the arc that leaves `a` for `b`.
gp_Pnt ArcMiddle(const orv3::CVertex& a, const orv3::CVertex& b) {
  return {(a.x + b.x) / 2 + a.bulge * (b.y - a.y) / 2, (a.y + b.y) / 2 - a.bulge * (b.x - a.x) / 2,
          0};
}

TopoDS_Wire Wire(const orv3::CPath& path) {
  BRepBuilderAPI_MakeWire wire;
  for (std::size_t i = 0; i < path.m_arrVertex.size(); ++i) {
    const orv3::CVertex& a = path.m_arrVertex[i];
    const orv3::CVertex& b = path.m_arrVertex[(i + 1) % path.m_arrVertex.size()];
    if (a.bulge == 0) {
      wire.Add(BRepBuilderAPI_MakeEdge(Point(a), Point(b)));
    } else {
      wire.Add(
          BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(Point(a), ArcMiddle(a, b), Point(b)).Value()));
    }
  }
  return wire.Wire();
}

// Area and centroidal inertia, as a modeller computes them from a face.
void SurfaceProperties(benchmark::State& state) {
  const auto style = static_cast<int>(state.range(0));
  const orv3::COutline outline = orv3::SectionOutline(style, kSizes[style]);
  double area = 0;
  double inertia = 0;
  for (auto _ : state) {
    BRepBuilderAPI_MakeFace face(Wire(outline.m_arrLoop[0]));
    for (std::size_t i = 1; i < outline.m_arrLoop.size(); ++i) face.Add(Wire(outline.m_arrLoop[i]));
    GProp_GProps properties;
    BRepGProp::SurfaceProperties(face.Face(), properties);
    area = properties.Mass();
    inertia = properties.MatrixOfInertia()(1, 1);
  }
  CSteelJMData record = Record(style);
  CSteelJMData::CalSectCharacterStyle(record);
  state.counters["A/ours"] = area / record.m_dA;
  state.counters["Ixo/ours"] = inertia / record.m_dIxo;
  state.SetLabel(orv3::FindSectionStyle(style)->m_szAlias);
}
BENCHMARK(SurfaceProperties)
    ->Arg(0)
    ->Arg(3)
    ->Arg(7)
    ->Arg(9)
    ->Arg(14)
    ->Unit(benchmark::kMicrosecond);
#endif

}  // namespace

BENCHMARK_MAIN();
