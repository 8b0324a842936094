// The thickness groups of plates: GB 50017-2003, Tables 3.4.1-1 and 3.4.1-3.
#pragma once

#include "catalogue/code_tables/table_search.h"

namespace orv3 {

inline constexpr double kThickestPlate = 100;  // that the tables have, mm

// Where a plate stands among the four groups of its grade (Sub1_Style1), 0 to 3: Q235 parts at 16,
// 40 and 60 mm, the other grades at 16, 35 and 50 mm. A limit belongs to the thinner group, and so
// does what exceeds it by no more than `tolerance` mm. Above kThickestPlate and for a NaN the last.
constexpr int ThicknessStep(int grade, double thickness, double tolerance = 0) noexcept {
  const bool bQ235 = grade == SUB1_Q235;
  const double limits[] = {16, bQ235 ? 40.0 : 35.0, bQ235 ? 60.0 : 50.0};
  int step = 0;
  while (step < 3 && !(thickness - limits[step] <= tolerance)) ++step;
  return step;
}

// The plate's row of CTableSearch::g_sub1 and g_sub2. For a grade that they have.
constexpr int PlateRow(int grade, double thickness, double tolerance = 0) noexcept {
  return 4 * grade + ThicknessStep(grade, thickness, tolerance);
}

// The plate's group by number (Sub1_Style2), -1 above kThickestPlate and for a NaN.
constexpr int ThicknessGroup(int grade, double thickness) noexcept {
  if (!(thickness <= kThickestPlate)) return -1;
  const int step = ThicknessStep(grade, thickness);
  return step == 0 || grade == SUB1_Q235 ? step : SUB1_T16_35 + step - 1;
}

}  // namespace orv3
