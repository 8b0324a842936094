// What refuses a bolt group, and what to look at in a result that stands.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "catalogue/code_tables/thickness_group.h"
#include "connections/cases/bolt_case.h"
#include "connections/cases/bolt_group_rules.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "framework/elementary.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

double HoleDiameter(const CBoltCase& input) {
  NormalBoltData record;
  record.m_nBoltType = input.m_nType;
  record.m_nD = input.m_nD;
  record.CalBoltKongD();
  return record.m_dD0;
}

void BoltFieldFaults(const CBoltCase& input, CFaultList& faults) {
  faults.Within("layout", input.m_nLayout, 0, 1);
  faults.Within("type", input.m_nType, 0, 2);
  faults.Within("steel", input.m_nSteel, 0, 3);
  const CText preloaded = {"请给 16、20、22、24、27 或 30", "give 16, 20, 22, 24, 27 or 30"};
  if (input.m_nType != kFrictionBolt) {
    DiameterFault(input.m_nD, ThreadDiameters(), faults);
    faults.Within("nv", input.m_nNv, 1, 100);
    faults.Positive("sumT", input.m_dSumT, "mm");
  } else {
    if (input.m_nD < 16) {
      const std::string d = "M" + std::to_string(input.m_nD);
      faults.Add("d", {"表 7.2.2-2 无 " + d + " 的预拉力", "Table 7.2.2-2 has no preload for " + d},
                 preloaded);
    } else {
      DiameterFault(input.m_nD, preloaded, faults);
    }
    faults.Within("nf", input.m_nNf, 1, 100);
    faults.Within("surface", input.m_nSurface, 0, 4);
  }
  if (input.m_nType == kOrdinaryBolt) faults.Within("class", input.m_nClass, 0, 2);
  faults.Positive("t", input.m_dThick, "mm");
  if (input.m_dThick > kThickestPlate) TooThick("t", input.m_dThick, "3.4.1-1", faults);
}

void MomentFaults(const CBoltCase& input, CFaultList& faults) {
  if (input.m_nType != kFrictionBolt && input.m_dM < 0 && !IsZero(input.m_dM)) {
    faults.Add("M", {PlainNumber(input.m_dM) + " 小于 0", PlainNumber(input.m_dM) + " is below 0"},
               {"请给 0 或正值：转动螺栓群，使第一行为受压一侧",
                "give 0 or more: turn the group so that its first row is the one pressed on"});
  }
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
  const double nearest = std::min(2 * column, Hypot(column, row / 2));
  if (nearest < least) warnings.push_back(TooClose("colSpace", nearest, 3, record.m_dD0));
}

// Along the force 2 d0, a torque's along both axes; across it 1.5 d0, which is also what sheared
// edges and high-strength bolts need.
void EdgeWarnings(const NormalBoltData& record, std::vector<CCaseWarning>& warnings) {
  const bool bTorque = !IsZero(record.m_dT);
  const double factorX = bTorque || !IsZero(record.m_dVx) ? 2 : 1.5;
  const double factorY = bTorque || !IsZero(record.m_dVy) ? 2 : 1.5;
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
}

// --- Where the verdict is not by the record's figures -------------------------------------------

bool Differ(double a, double b) {
  return std::fabs(a - b) > 1e-9 * std::max(std::fabs(a), std::fabs(b));
}

std::string Ratios(const NormalBoltData& record, const CBoltFigures& figures) {
  const auto [was, is] = Apart(record.m_dRatio, figures.m_dRatio);
  return was + " → " + is;
}

void ThreadWarning(const NormalBoltData& record, const CBoltFigures& figures, int threads,
                   std::vector<CCaseWarning>& warnings) {
  if (!figures.m_bThreads || figures.m_dNv == 0) return;
  static constexpr CTextLiteral kOpen = {
      "算例未给 threads，取不利情形，给 threads 为 out 则按螺杆全截面。",
      " The case does not say threads: this is the worse; threads out takes the whole shank."};
  const CTextLiteral open = threads < 0 ? kOpen : CTextLiteral{"", ""};
  const std::string full = PlainNumber(record.m_dNvb) + " kN";
  const std::string less = PlainNumber(figures.m_dShear) + " kN";
  const std::string ratios = Ratios(record, figures);
  warnings.push_back(
      {"threads",
       {"受剪承载力 " + full + " 按螺杆全截面计算；剪切面在螺纹处，按有效面积的 " + less +
            " 验算（7.2.3 条；相关公式 " + ratios + "）。" + open.m_szChinese,
        "The record's shear resistance of " + full +
            " is that of the whole shank; judged by that of the threads in the shear plane, " +
            less + " (7.2.3; interaction " + ratios + ")." + open.m_szEnglish}});
}

void ShearWarnings(const NormalBoltData& record, const CBoltFigures& figures,
                   std::vector<CCaseWarning>& warnings) {
  if (!Differ(record.m_dNv, figures.m_dNv)) return;
  const auto [was, is] = Apart(record.m_dNv, figures.m_dNv);
  warnings.push_back({"T",
                      {"扭矩为负：初算 Nv = " + was + " kN 把其分力与直接剪力相抵；按相加的 Nv = " +
                           is + " kN 验算（相关公式 " + Ratios(record, figures) + "）。",
                       "The torque is negative: the record's Nv = " + was +
                           " kN takes its share off the direct shear; judged by Nv = " + is +
                           " kN, where it adds (interaction " + Ratios(record, figures) + ")."}});
}

void TensionWarnings(const NormalBoltData& record, const CBoltFigures& figures,
                     std::vector<CCaseWarning>& warnings) {
  if (record.m_dN < 0 && !IsZero(record.m_dN)) {
    warnings.push_back({"N",
                        {"N < 0 为压力，由板件接触传递，未验算接触面；螺栓只验算其余内力。",
                         "N below 0 presses the plates together: contact carries it, which is not "
                         "checked; the bolts are checked for what remains."}});
  }
  if (!Differ(record.m_dNt, figures.m_dNt)) return;
  const auto [before, judged] = Apart(record.m_dNt, figures.m_dNt);
  const std::string was = "Nt = " + before + " kN";
  const std::string is = "Nt = " + judged + " kN";
  static constexpr CTextLiteral kHow[] = {
      {"", ""},
      {"绕形心转动", "turning about the centroid"},
      {"绕第一行转动并计入 N 对该行之矩", "turning about the first row, which N lifts off as well"},
  };
  const CTextLiteral& how = kHow[static_cast<int>(figures.m_nTurn)];
  warnings.push_back({"M",
                      {"初算 " + was + " 偏于不安全；按" + how.m_szChinese + "的 " + is +
                           " 验算（相关公式 " + Ratios(record, figures) + "）。",
                       "The record's " + was + " is on the unsafe side; judged by " + is + ", " +
                           how.m_szEnglish + " (interaction " + Ratios(record, figures) + ")."}});
}

void BearingWarnings(const NormalBoltData& record, const CBoltFigures& figures,
                     std::vector<CCaseWarning>& warnings) {
  if (record.m_nBoltType != kBearingBolt || figures.m_dNv == 0) return;
  const double reduced = record.m_dBeta * record.m_dNcb / 1.2;
  if (figures.m_dNt == 0 && figures.m_dNv > reduced) {
    const std::string was = PercentNumber(figures.m_dNv / reduced) + " %";
    const std::string is = PercentNumber(figures.m_dNv / figures.m_dBearing) + " %";
    warnings.push_back(
        {"Vx",
         {"按 Nv ≤ Ncb / 1.2 初算的孔壁承压为 " + was +
              "；7.2.3 条仅在同时受拉时要求除以 1.2，无拉力按 Ncb 验算（" + is + "）。",
          "The record holds Nv against Ncb / 1.2 (" + was +
              "), which 7.2.3 asks only together with tension; judged against Ncb (" + is + ")."}});
  }
}

void SectionWarning(const char* key, double recorded, const CPlateSection& section, double f,
                    bool bFriction, std::vector<CCaseWarning>& warnings) {
  if (!Differ(std::fabs(recorded), section.Worst())) return;
  const auto stress = [f](const std::string& text, double sigma) {
    return text + " N/mm² (" + PercentNumber(sigma / f) + " %)";
  };
  const CComparedText text = Apart(recorded, section.Worst());
  const std::string was = stress(text.m_strEffect, recorded);
  const std::string is = stress(text.m_strLimit, section.Worst());
  const std::string number = std::to_string(section.Holes());
  const std::string area = PlainNumber(section.m_dNet) + " mm²";
  const std::string share =
      bFriction ? "1 − 0.5 n1/n = " + PlainNumber(section.m_dShare) : std::string();
  warnings.push_back(
      {key,
       {std::string(key) + " 的板件截面应力初算为 " + was + "；按 5.1.1 条最不利截面（" + number +
            " 孔，净面积 " + area + (bFriction ? "，" : "") + share + "）验算：" + is + "。",
        std::string("The record's section stress from ") + key + " is " + was +
            "; judged by the worst section of 5.1.1 (" + number +
            (section.Holes() == 1 ? " hole, net " : " holes, net ") + area +
            (bFriction ? ", " : "") + share + "): " + is + "."}});
}

}  // namespace

std::vector<CCaseFault> BoltFaults(const CBoltCase& input) {
  CFaultList faults;
  BoltFieldFaults(input, faults);
  MomentFaults(input, faults);
  LoadFaults(input, faults);
  GroupFaults(input, faults);
  if (!faults.IsEmpty()) return faults.Take();
  GradeFaults(input, faults);
  const double d0 = HoleDiameter(input);
  HoleFaults(input, d0, d0, faults);
  return faults.Take();
}

std::vector<CCaseWarning> BoltWarnings(const NormalBoltData& record, const CBoltFigures& figures) {
  return BoltWarnings(record, figures, CBoltCase().m_nThreads);
}

std::vector<CCaseWarning> BoltWarnings(const NormalBoltData& record, const CBoltFigures& figures,
                                       int threads) {
  std::vector<CCaseWarning> warnings;
  SpacingWarnings(record, warnings);
  EdgeWarnings(record, warnings);
  WarnOfLargestDistances(record, warnings);
  TableWarnings(record, warnings);
  ThreadWarning(record, figures, threads, warnings);
  ShearWarnings(record, figures, warnings);
  TensionWarnings(record, figures, warnings);
  BearingWarnings(record, figures, warnings);
  const double f = 1000 * record.m_dF;
  const bool bFriction = record.m_nBoltType == kFrictionBolt;
  SectionWarning("Vx", record.m_dSigmaX[0], figures.m_x, f, bFriction, warnings);
  SectionWarning("Vy", record.m_dSigmaY[0], figures.m_y, f, bFriction, warnings);
  return warnings;
}

}  // namespace orv3
