// Tolerance compares of two numbers.
#pragma once

#include <cmath>

#include "framework/export.h"

class ORV3CAL_API CKvbMath {
 public:
  static constexpr double kTolerance = 1e-6;

  // |a - b| < tolerance. Nothing equals a NaN; an infinity equals itself only.
  static bool EqualTo(double a, double b, double tolerance = kTolerance) {
    return a == b || std::fabs(a - b) < tolerance;
  }
  // a >= b, or equal within the tolerance.
  static bool EqualMore(double a, double b, double tolerance = kTolerance) {
    return a > b || EqualTo(a, b, tolerance);
  }
  // a <= b, or equal within the tolerance.
  static bool EqualLess(double a, double b, double tolerance = kTolerance) {
    return a < b || EqualTo(a, b, tolerance);
  }
};
