// The C interface: outlines of any shape, and what exact properties are given as.
#include <cmath>
#include <vector>

#include "framework/language.h"
#include "module/c_support.h"
#include "outlines/exact_keys.h"
#include "outlines/loop_nesting.h"
#include "outlines/outline_check.h"

namespace orv3::c_interface {
namespace {

static_assert(ORV3_EXACT_ERROR_IT == kExactKeys && ORV3_EXACT == kExactKeys + 5);

[[noreturn]] void Refuse(const COutlineFault& fault) {
  throw CFailure("points: " + fault.In(CLanguage::English));
}

std::vector<CPath> LoopsOf(const double* points, const int* counts, int loops) {
  if (points == nullptr) throw CFailure("points: is null; give an array");
  if (counts == nullptr) throw CFailure("counts: is null; give an array");
  constexpr int kMost = static_cast<int>(kMostOutlinePoints);
  if (loops < 1 || loops > kMost) throw CFailure("loops: must be a number from 1 to 100000");
  std::vector<CPath> paths(static_cast<std::size_t>(loops));
  int left = kMost;
  for (int i = 0; i < loops; ++i) {
    if (counts[i] < 2 || counts[i] > left)
      throw CFailure("counts: each must be at least 2, and their sum at most 100000");
    left -= counts[i];
    for (int k = 0; k < counts[i]; ++k, points += 3)
      paths[static_cast<std::size_t>(i)].m_arrVertex.push_back({points[0], points[1], points[2]});
  }
  return paths;
}

}  // namespace

int GiveExact(const CExactProperties& exact, double* out, int room) {
  if (std::isnan(exact.A))
    throw CFailure("the section has no outline, or one that bounds no steel");
  std::vector<double> values;
  for (const CExactKey& key : ExactKeys()) values.push_back(exact.*key.m_pField);
  const CExactErrors& error = exact.m_error;
  values.insert(values.end(),
                {error.It, error.Iw, error.As, error.center, exact.m_bAccurate ? 1.0 : 0.0});
  return GiveValues(values, out, room);
}

}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_outline_exact(const double* points, const int* counts, int loops, double* values,
                                 int room) {
  return Guarded([&] {
    std::vector<CPath> paths = LoopsOf(points, counts, loops);
    if (const auto fault = CheckLoops(paths)) Refuse(*fault);
    const std::vector<CLoopPlace> places = NestLoops(paths);
    if (places.empty()) Refuse(TooCloseFault());
    return GiveExact(ExactProperties(Sensed(std::move(paths), places)), values, room);
  });
}
