// What refuses a bolt group, and what to look at in a result that stands.
#include <algorithm>
#include <cmath>

#include "connections/cases/bolt_case.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

constexpr int kMostBolts = 100000;

bool IsTableDiameter(int d) {
  return std::any_of(std::begin(NormalBoltData::m_strBolt), std::end(NormalBoltData::m_strBolt),
                     [d](const auto& row) { return ToInt(row[0]) == d; });
}

double HoleDiameter(const CBoltCase& input) {
  NormalBoltData record;
  record.m_nBoltType = input.m_nType;
  record.m_nD = input.m_nD;
  record.CalBoltKongD();
  return record.m_dD0;
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
    faults.Add(
        key,
        {"给了 " + given + " 个间距，而有 " + all + " " + lines.m_szChinese,
         given + " spacings for " + all + " " + lines.m_szEnglish},
        {"请给 " + needed + " 个，或一个通用值", "give " + needed + ", or one number for all"});
    return;
  }
  if (count == 0) return;
  const double smallest =
      each.empty() ? spacing.m_dUniform : *std::min_element(each.begin(), each.end());
  for (const double value : each) faults.Finite(key, value);
  faults.Finite(key, spacing.m_dUniform);
  if (smallest <= least) {
    faults.Add(key,
               {PlainNumber(smallest) + " mm 使孔相连",
                PlainNumber(smallest) + " mm lets the holes run into one another"},
               MoreThan(least));
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

void BoltFieldFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Within("layout", input.m_nLayout, 0, 1);
  faults.Within("type", input.m_nType, 0, 2);
  faults.Within("steel", input.m_nSteel, 0, 3);
  if (!IsTableDiameter(input.m_nD)) {
    const std::string d = std::to_string(input.m_nD);
    faults.Add("d", {d + " 不是表中的直径", d + " is no diameter of the table"},
               {"请给 10、12、14、16、18、20、22、24、27、30 或表中更大的直径",
                "give 10, 12, 14, 16, 18, 20, 22, 24, 27, 30 or a larger one that it has"});
  }
  if (input.m_nType == kFrictionBolt) {
    faults.Within("nf", input.m_nNf, 1, 100);
    faults.Within("surface", input.m_nSurface, 0, 4);
  } else {
    faults.Within("nv", input.m_nNv, 1, 100);
    faults.Positive("sumT", input.m_dSumT, "mm");
  }
  if (input.m_nType == kOrdinaryBolt) faults.Within("class", input.m_nClass, 0, 2);
  faults.Positive("t", input.m_dThick, "mm");
}

void LoadFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Finite("N", input.m_dN);
  faults.Finite("Vx", input.m_dVx);
  faults.Finite("Vy", input.m_dVy);
  faults.Finite("M", input.m_dM);
  faults.Finite("T", input.m_dT);
  if (input.m_nType != kFrictionBolt && input.m_dM < 0 && !IsZero(input.m_dM)) {
    faults.Add("M", {PlainNumber(input.m_dM) + " 小于 0", PlainNumber(input.m_dM) + " is below 0"},
               {"请给 0 或正值：转动螺栓群，使第一行为受压一侧",
                "give 0 or more: turn the group so that its first row is the one pressed on"});
  }
}

void EdgeFault(const char* key, double distance, double d0, CFaultList& faults) {
  if (std::isfinite(distance) && distance > d0 / 2) return;
  faults.Add(key,
             {PlainNumber(distance) + " mm 使孔切到边缘",
              PlainNumber(distance) + " mm lets the holes cut the edge"},
             MoreThan(d0 / 2));
}

// --- Warnings ----------------------------------------------------------------------------------

CCaseWarning TooClose(const char* key, double distance, double factor, double d0) {
  const std::string is = PlainNumber(distance);
  const std::string least = PlainNumber(factor) + "d0 = " + PlainNumber(factor * d0) + " mm";
  return {key,
          {std::string(key) + " = " + is + " mm，小于构造最小值 " + least + "（表 8.3.4）。",
           std::string(key) + " = " + is + " mm is below the detailing minimum " + least +
               " (Table 8.3.4)."}};
}

double Smallest(const CArray<double, double>& spacings) {
  double smallest = HUGE_VAL;
  for (const double space : spacings) smallest = std::min(smallest, space);
  return smallest;
}

void SpacingWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const double least = 3 * record.m_dD0;
  const double row = Smallest(record.m_ErArr);
  const double column = Smallest(record.m_EcArr);
  if (row < least) warnings.push_back(TooClose("rowSpace", row, 3, record.m_dD0));
  if (record.m_nLayout == 0) {
    if (column < least) warnings.push_back(TooClose("colSpace", column, 3, record.m_dD0));
    return;
  }
  // Neighbours of a staggered group stand half a row apart, those of one line two columns.
  const double nearest = std::min(2 * column, std::hypot(column, row / 2));
  if (nearest < least) warnings.push_back(TooClose("colSpace", nearest, 3, record.m_dD0));
}

// Along the force 2 d0; across it 1.5 d0, which is also what sheared edges and high-strength bolts
// need.
void EdgeWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const double factorX = IsZero(record.m_dVx) ? 1.5 : 2;
  const double factorY = IsZero(record.m_dVy) ? 1.5 : 2;
  const double d0 = record.m_dD0;
  if (record.m_dEx < factorX * d0) warnings.push_back(TooClose("ex", record.m_dEx, factorX, d0));
  if (record.m_dEy < factorY * d0) warnings.push_back(TooClose("ey", record.m_dEy, factorY, d0));
}

void TableWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  static constexpr int kPreloaded[] = {16, 20, 22, 24, 27, 30};
  if (record.m_nBoltType != kOrdinaryBolt && std::find(std::begin(kPreloaded), std::end(kPreloaded),
                                                       record.m_nD) == std::end(kPreloaded)) {
    const std::string d = "M" + std::to_string(record.m_nD);
    const std::string preload = std::to_string(record.m_nP) + " kN";
    warnings.push_back(
        {"d",
         {"表 7.2.2-2 无 " + d + " 的预拉力，按相邻规格取 P = " + preload + "；请核对。",
          "Table 7.2.2-2 has no preload for " + d + "; P = " + preload +
              " is that of a neighbouring size. Check it."}});
  }
  if (record.m_dThick > 100) {
    warnings.push_back({"t",
                        {"表 3.4.1-1 止于 100 mm；强度 f 按最厚一组取值，偏于不安全。",
                         "Table 3.4.1-1 ends at 100 mm; f is that of the thickest group, which is "
                         "on the unsafe side."}});
  }
}

void MomentWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  if (record.m_dNtM < 0) {
    warnings.push_back({record.m_dVx < 0 ? "Vx" : "M",
                        {"弯矩分配给螺栓的拉力为负（M 与 Vx 异号），偏于不安全；请把 Vx 与 M "
                         "取同号再算一次。",
                         "The moment's share of the bolt tension is negative (M and Vx have "
                         "opposite signs), which is on the unsafe side; run it again with Vx and M "
                         "of one sign."}});
  }
  if (!IsZero(record.m_dM) && IsZero(record.m_dSumLy2)) {
    warnings.push_back({"M",
                        {"单行螺栓对弯矩没有力臂，M 未计入验算。",
                         "One row of bolts has no lever arm for the moment: M is not part of the "
                         "check."}});
  }
  if (record.m_dT < 0) {
    warnings.push_back({"T",
                        {"扭矩为负，其分力与直接剪力相抵，偏于不安全；请以 |T| 再算一次。",
                         "The torque is negative and its share is taken off the direct shear, "
                         "which is on the unsafe side; run it again with |T|."}});
  }
  if (record.m_dT != 0 && record.m_nBoltNum == 1) {
    warnings.push_back({"T",
                        {"单个螺栓不能承受扭矩，T 未计入验算。",
                         "A single bolt carries no torque: T is not part of the check."}});
  }
}

void SectionWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const bool bTwoStresses = record.m_nBoltType == kFrictionBolt || record.m_nLayout == 1;
  const auto signs = [&](const char* key, double shear) {
    if (!bTwoStresses || shear >= 0) return;
    warnings.push_back(
        {key,
         {std::string(key) + " 为负：两个截面应力按代数值比较，取了绝对值较小者，偏于不安全；"
                             "请以正值再算一次。",
          std::string(key) + " is negative: the two section stresses are compared with their "
                             "signs and the smaller in size governs, which is on the unsafe side; "
                             "run it again with a positive value."}});
  };
  signs("Vx", record.m_dVx);
  signs("Vy", record.m_dVy);
  if (record.m_nLayout == 1 && record.m_nBoltType != kFrictionBolt && !IsZero(record.m_dVy)) {
    warnings.push_back(
        {"Vy",
         {"错列布置抵抗 Vy 的净截面：直线截面按行数之半扣孔，折线截面每段取整个行距，"
          "可能偏于不安全；请另行核对这两个截面。",
          "The net sections of a staggered group that resist Vy: the straight one "
          "deducts half as many holes as there are rows, and each leg of the zigzag "
          "one spans a whole row spacing, which can be on the unsafe side; check "
          "both by themselves."}});
  }
}

}  // namespace

std::vector<CCaseFault> BoltFaults(const CBoltCase& input) {
  CFaultList faults;
  BoltFieldFaults(input, faults);
  LoadFaults(input, faults);
  GroupFaults(input, faults);
  if (!faults.IsEmpty()) return faults.Take();
  GradeFaults(input, faults);
  const double d0 = HoleDiameter(input);
  // The neighbouring columns of a staggered group share no row, so only the lines need be apart.
  const double leastColumn = input.m_nLayout == 1 ? 0 : d0;
  SpacingFaults("colSpace", {"列", "columns"}, input.m_colSpace, input.m_nCols - 1, leastColumn,
                faults);
  SpacingFaults("rowSpace", {"行", "rows"}, input.m_rowSpace, input.m_nRows - 1, d0, faults);
  EdgeFault("ex", input.m_dEx, d0, faults);
  EdgeFault("ey", input.m_dEy, d0, faults);
  return faults.Take();
}

std::vector<CCaseWarning> BoltWarnings(const NormalBoltData& record) {
  std::vector<CCaseWarning> warnings;
  SpacingWarnings(record, warnings);
  EdgeWarnings(record, warnings);
  WarnOfLargestDistances(record, warnings);
  WarnOfThreads(record, warnings);
  TableWarnings(record, warnings);
  MomentWarnings(record, warnings);
  SectionWarnings(record, warnings);
  return warnings;
}

}  // namespace orv3
