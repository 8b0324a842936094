#include "catalogue/code_tables/table_search.h"

// Both start from the upper point, so that the value there is exact.

double CTableSearch::DispersionForOne(double x1, double y1, double x2, double y2, double x) {
  return y2 - (y2 - y1) / (x2 - x1) * (x2 - x);
}

double CTableSearch::DispersionForTwo(double x1, double p1, double q1, double x2, double p2,
                                      double q2, double z1, double z2, double x, double z) {
  const double b = DispersionForOne(x1, p1, x2, p2, x);
  const double a = DispersionForOne(x1, q1, x2, q2, x);
  return DispersionForOne(z1, b, z2, a, z);
}
