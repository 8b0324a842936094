#include "connections/cases/bolt_group_rules.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "connections/bolt_thread.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "framework/elementary.h"
#include "framework/plain_number.h"

namespace orv3 {
namespace {

constexpr int kMostBolts = 100000;

double Least(const CSpacing& spacing) {
  const auto& each = spacing.m_arrEach;
  return each.empty() ? spacing.m_dUniform : *std::min_element(each.begin(), each.end());
}

CText MoreThan(double least) {
  const std::string number = PlainNumber(least) + " mm";
  return {"请给大于 " + number, "give more than " + number};
}

// Smallest spacing of one direction that leaves the holes apart.
void SpacingFaults(const char* key, CTextLiteral lines, const CSpacing& spacing, int count,
                   double least, CFaultList& faults) {
  const auto& each = spacing.m_arrEach;
  if (!each.empty() && each.size() != static_cast<std::size_t>(count)) {
    const std::string given = std::to_string(each.size());
    const std::string needed = std::to_string(count);
    const std::string all = std::to_string(count + 1);
    faults.Add(key,
               {"给了 " + given + " 个间距，而有 " + all + " " + lines.m_szChinese,
                given + (given == "1" ? " spacing for " : " spacings for ") + all + " " +
                    std::string(lines.m_szEnglish, std::strlen(lines.m_szEnglish) - (count == 0))},
               count == 0 ? CText{"请不给此键", "leave the key out"}
                          : CText{"请给 " + needed + " 个，或一个通用值",
                                  "give " + needed + ", or one number for all"});
    return;
  }
  if (count == 0) return;
  const double smallest = Least(spacing);
  for (const double value : each) faults.Finite(key, value);
  faults.Finite(key, spacing.m_dUniform);
  if (each.empty() && smallest == 0) {
    faults.Add(key, {"没有间距", "no spacing is given"}, MoreThan(least));
  } else if (smallest <= least) {
    faults.Add(key,
               {PlainNumber(smallest) + " mm 使孔相连",
                PlainNumber(smallest) + " mm lets the holes run into one another"},
               MoreThan(least));
  }
}

// Neighbours of a staggered group stand half a row apart, those of one line two columns.
void StaggerFault(const CBoltCase& input, double d0, CFaultList& faults) {
  if (input.m_nLayout != 1) return;
  double nearest = Hypot(Least(input.m_colSpace), Least(input.m_rowSpace) / 2);
  const auto& each = input.m_colSpace.m_arrEach;
  if (each.empty() && input.m_nCols > 2)
    nearest = std::min(nearest, 2 * input.m_colSpace.m_dUniform);
  for (std::size_t i = 1; i < each.size(); ++i) nearest = std::min(nearest, each[i - 1] + each[i]);
  if (nearest > d0) return;
  const std::string is = PlainNumber(nearest) + " mm";
  const std::string least = PlainNumber(d0) + " mm";
  faults.Add("colSpace",
             {"错列孔相距 " + is + "，孔相连",
              "staggered holes stand " + is + " apart and run into one another"},
             {"请给使孔距大于 " + least + " 的间距",
              "give spacings that keep them more than " + least + " apart"});
}

void EdgeFault(const char* key, double distance, double d0, CFaultList& faults) {
  if (std::isfinite(distance) && distance > d0 / 2) return;
  faults.Add(key,
             {PlainNumber(distance) + " mm 使孔切到边缘",
              PlainNumber(distance) + " mm lets the holes cut the edge"},
             MoreThan(d0 / 2));
}

// Compression alone goes from plate to plate.
void NothingFault(const CBoltCase& input, CFaultList& faults) {
  const bool bNone =
      IsZero(input.m_dVx) && IsZero(input.m_dVy) && IsZero(input.m_dM) && IsZero(input.m_dT);
  if (!bNone || input.m_dN > kCheckTolerance || !std::isfinite(input.m_dN)) return;
  if (IsZero(input.m_dN)) return NoLoadFault("Vx", faults);
  const std::string N = PlainNumber(input.m_dN);
  faults.Add("N",
             {N + " 只把板件压紧，螺栓没有可验算的内力",
              N + " presses the plates together and leaves the bolts nothing to check"},
             {"请给拉力或剪力", "give a tension or a shear"});
}

}  // namespace

CText ThreadDiameters() {
  return {"请给 10、12、14、16、18、20、22、24、27、30 或表中更大的直径",
          "give 10, 12, 14, 16, 18, 20, 22, 24, 27, 30 or a larger one that it has"};
}

void DiameterFault(int diameter, const CText& right, CFaultList& faults) {
  if (EffectiveDiameter(diameter) > 0) return;
  const std::string d = std::to_string(diameter);
  faults.Add("d", {d + " 不是表中的直径", d + " is no diameter of the table"}, right);
}

void GroupFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Within("cols", input.m_nCols, 1, kMostBolts);
  faults.Within("rows", input.m_nRows, 1, kMostBolts);
  if (!faults.IsEmpty()) return;
  if (static_cast<long long>(input.m_nCols) * input.m_nRows > kMostBolts) {
    faults.Add("rows", {"螺栓多于 100000 个", "the group has more than 100000 bolts"},
               {"请减少行数或列数", "give fewer rows or columns"});
  }
  if (input.m_nLayout == 1 && (input.m_nCols < 2 || input.m_nRows < 2)) {
    faults.Add(input.m_nCols < 2 ? "cols" : "rows",
               {"错列螺栓群只有一线螺栓", "a staggered group with one line of bolts"},
               {"请至少给 2，或用 grid 排列", "give at least 2, or the layout grid"});
  }
}

void GradeFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Within("grade", input.m_nGrade, 0, 4);
  if (!faults.IsEmpty()) return;
  const std::string grade = kBoltGrades[input.m_nGrade];
  const bool bHighStrength = input.m_nGrade >= 3;
  if (input.m_nType != kOrdinaryBolt && !bHighStrength) {
    faults.Add("grade",
               {grade + " 不是高强度螺栓的等级", grade + " is no grade of high-strength bolts"},
               {"请给 8.8 或 10.9", "give 8.8 or 10.9"});
  } else if (input.m_nType == kOrdinaryBolt && input.m_nClass == 2 && input.m_nGrade > 1) {
    faults.Add("grade", {grade + " 不是 C 级螺栓的等级", grade + " is no grade of class C bolts"},
               {"请给 4.6 或 4.8", "give 4.6 or 4.8"});
  } else if (input.m_nType == kOrdinaryBolt && input.m_nClass != 2 &&
             (input.m_nGrade < 2 || input.m_nGrade > 3)) {
    faults.Add("grade",
               {grade + " 不是 A、B 级螺栓的等级", grade + " is no grade of class A and B bolts"},
               {"请给 5.6 或 8.8", "give 5.6 or 8.8"});
  }
}

void LoadFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Finite("N", input.m_dN);
  faults.Finite("Vx", input.m_dVx);
  faults.Finite("Vy", input.m_dVy);
  faults.Finite("M", input.m_dM);
  faults.Finite("T", input.m_dT);
  NothingFault(input, faults);
  if (input.m_nRows == 1 && !IsZero(input.m_dM)) {
    const std::string M = PlainNumber(input.m_dM) + " kN·mm";
    faults.Add("M", {"单行螺栓对 " + M + " 没有力臂", "one row of bolts has no lever arm for " + M},
               {"请给 0，或至少 2 行", "give 0, or 2 rows or more"});
  }
  if (input.m_nRows == 1 && input.m_nCols == 1 && !IsZero(input.m_dT)) {
    const std::string T = PlainNumber(input.m_dT) + " kN·mm";
    faults.Add("T", {"单个螺栓不能承受扭矩 " + T, "a single bolt carries no torque, here " + T},
               {"请给 0，或至少 2 个螺栓", "give 0, or 2 bolts or more"});
  }
}

// The neighbouring columns of a staggered group share no row, so only the lines need be apart.
void HoleFaults(const CBoltCase& input, double alongX, double alongY, CFaultList& faults) {
  const double leastColumn = input.m_nLayout == 1 ? 0 : alongX;
  SpacingFaults("colSpace", {"列", "columns"}, input.m_colSpace, input.m_nCols - 1, leastColumn,
                faults);
  SpacingFaults("rowSpace", {"行", "rows"}, input.m_rowSpace, input.m_nRows - 1, alongY, faults);
  if (faults.IsEmpty()) StaggerFault(input, std::max(alongX, alongY), faults);
  EdgeFault("ex", input.m_dEx, alongX, faults);
  EdgeFault("ey", input.m_dEy, alongY, faults);
}

}  // namespace orv3
