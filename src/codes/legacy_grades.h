// Grades as the tables of GB 50017-2003 number them.
#pragma once

#include "catalogue/code_tables/table_search.h"
#include "codes/steel_grade.h"

namespace orv3 {

// Sub1_Style1, or -1 for a grade that the 2003 edition lacks.
constexpr int LegacyGrade(CSteelGrade grade) noexcept {
  switch (grade) {
    case CSteelGrade::Q235:
      return SUB1_Q235;
    case CSteelGrade::Q345:
      return SUB1_Q345;
    case CSteelGrade::Q390:
      return SUB1_Q390;
    case CSteelGrade::Q420:
      return SUB1_Q420;
    default:
      return -1;
  }
}

}  // namespace orv3
