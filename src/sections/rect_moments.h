// Rectangles about an axis, inline for the calculation: a library's public functions are not, and
// the moments of one section take two dozen of them.
#pragma once

#include <cmath>

namespace orv3 {

// CSteelJMData::CalRectMomS
inline double RectFirstMoment(double b, double h, double y0, double yc, int upper) {
  const double height = std::fabs(h);
  const double top = height + y0;
  if (upper) {
    if (!(top > yc)) return 0;
    if (yc - y0 >= 0) return std::fabs(b * (top - yc) * (top - yc) / 2);
    return std::fabs((height / 2 + y0 - yc) * b * h);
  }
  if (!(yc > y0)) return 0;
  if (top >= yc) return std::fabs(b * (yc - y0) * (yc - y0) / 2);
  return std::fabs((yc - height / 2 - y0) * b * h);
}

// CSteelJMData::CalRectGxj
inline double RectInertia(double b, double h, double d) {
  return b * h * d * d + b * h * h * h / 12;
}

// CSteelJMData::CalRectBarycenterAdd
inline void AddCentroids(double A1, double x1, double y1, double A2, double x2, double y2,
                         double& x, double& y) {
  const double A = A1 + A2;
  x = A == 0 ? x1 : (A1 * x1 + A2 * x2) / A;
  y = A == 0 ? y1 : (A1 * y1 + A2 * y2) / A;
}

}  // namespace orv3
