// Comparisons and sums of the connection checks.
#pragma once

#include <cmath>

#include "framework/array.h"

namespace orv3 {

inline constexpr double kCheckTolerance = 1e-6;

inline bool IsZero(double value) noexcept { return std::fabs(value) <= kCheckTolerance; }
inline bool AtMost(double value, double limit) noexcept { return value - limit <= kCheckTolerance; }

inline double Sum(const CArray<double, double>& values) noexcept {
  double sum = 0;
  for (const double value : values) sum += value;
  return sum;
}

}  // namespace orv3
