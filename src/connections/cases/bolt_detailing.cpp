// What Table 8.3.4 of GB 50017-2003 asks beyond the forces: largest distances.
#include <algorithm>

#include "connections/bolt_group.h"
#include "connections/cases/bolt_case.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"

namespace orv3 {
namespace {

// A distance above the smaller of so many hole diameters and thicknesses.
void WarnIfFar(const char* key, double distance, int holes, int thicknesses,
               const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const double most = std::min(holes * record.m_dD0, thicknesses * record.m_dThick);
  if (distance <= most) return;
  const std::string is = std::string(key) + " = " + PlainNumber(distance) + " mm";
  const std::string limit = "min(" + std::to_string(holes) + "d0, " + std::to_string(thicknesses) +
                            "t) = " + PlainNumber(most) + " mm";
  warnings.push_back(
      {key,
       {is + "，大于构造最大值 " + limit + "（表 8.3.4；t 为外层较薄板件的厚度，此处按输入的 t）。",
        is + " is above the detailing maximum " + limit +
            " (Table 8.3.4; t is the thinner outer plate, here the t that was given)."}});
}

double Largest(const CArray<double, double>& spacings) {
  double largest = 0;
  for (const double space : spacings) largest = std::max(largest, space);
  return largest;
}

// The outer lines of a staggered group have the bolts of the first column and of every second one
// after it.
double LargestPair(const CArray<double, double>& spacings) {
  double largest = 0;
  for (int i = 0; i + 1 < spacings.GetSize(); i += 2)
    largest = std::max(largest, spacings[i] + spacings[i + 1]);
  return largest;
}

}  // namespace

// Every spacing occurs in an outer row or column, whose limit is the smallest of the table.
void WarnOfLargestDistances(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const bool bGrid = record.m_nLayout == 0;
  const double column = bGrid ? Largest(record.m_EcArr) : LargestPair(record.m_EcArr);
  WarnIfFar("colSpace", column, 8, 12, record, warnings);
  WarnIfFar("rowSpace", Largest(record.m_ErArr), 8, 12, record, warnings);
  WarnIfFar("ex", record.m_dEx, 4, 8, record, warnings);
  WarnIfFar("ey", record.m_dEy, 4, 8, record, warnings);
}

}  // namespace orv3
