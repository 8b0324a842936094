// The base point of a section beside its edges.
#pragma once

#include <cmath>

namespace orv3 {

// A coordinate of the base point, or the edge (0 or `extent`) that it lies on. A width is a sum of
// sizes in decimals, so that a point given on its edge misses it by rounding: within 1e-12 of the
// extent it lies there, for fibre distances and for the parts on either side of the axis alike.
inline double OntoEdge(double at, double extent) {
  constexpr double kTolerance = 1e-12;
  const double within = kTolerance * std::fabs(extent);
  if (std::fabs(at) <= within) return 0;
  return std::fabs(at - extent) <= within ? extent : at;
}

}  // namespace orv3
