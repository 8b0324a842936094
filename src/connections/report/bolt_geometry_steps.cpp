// The geometry of a bolt group in its report, and the strengths it is judged by.
#include <algorithm>
#include <cmath>

#include "connections/report/bolt_steps.h"

namespace orv3 {
namespace {

using CSteps = std::vector<CReportStep>;

// A figure that needs no numbers put in: a table gives it, or its formula sums over the bolts.
void Add(CSteps& steps, CTextLiteral name, const char* clause, const char* symbol,
         const char* formula, double value, const char* unit = "mm") {
  steps.push_back({name, clause, symbol, formula, "", PlainNumber(value), unit});
}

// The centroid, in mm from the first bolt, and the farthest bolts from it.
void Distances(const CBoltFacts& b, CSteps& steps) {
  if (b.m_r.m_nBolts < 2) return;
  const std::string n = std::to_string(b.m_r.m_nBolts);
  const auto mean = [&](CTextLiteral name, const char* symbol, const char* formula, double value) {
    steps.push_back({name, "", symbol, formula,
                     SubstitutedNumber(value * b.m_r.m_nBolts) + " / " + n, PlainNumber(value),
                     "mm"});
  };
  mean({"形心横坐标（自第一个螺栓）", "Centroid along x, from the first bolt"}, "x_c", "Σx / n",
       b.m_shape.m_dXc);
  mean({"形心纵坐标（自第一个螺栓）", "Centroid along y, from the first bolt"}, "y_c", "Σy / n",
       b.m_shape.m_dYc);
  Add(steps, {"最远螺栓的 x 向距离", "Farthest bolt along x"}, "", "x_{max}", "\\max |x − x_c|",
      std::fabs(b.m_shape.m_dXMax));
  Add(steps, {"最远螺栓的 y 向距离", "Farthest bolt along y"}, "", "y_{max}", "\\max |y − y_c|",
      std::fabs(b.m_shape.m_dYMax));
}

}  // namespace

std::vector<CReportStep> BoltGeometry(const CBoltFacts& b) {
  CSteps steps;
  const std::string c = std::to_string(b.m_input.m_nCols);
  const std::string r = std::to_string(b.m_input.m_nRows);
  const bool bGrid = b.m_input.m_nLayout == 0;
  steps.push_back({{"螺栓数", "Number of bolts"},
                   "",
                   "n",
                   bGrid ? "n_c · n_r" : "⌊(n_c + 1) n_r / 2⌋ + ⌊(n_c − 1)(n_r − 1) / 2⌋",
                   bGrid
                       ? c + " × " + r
                       : "⌊(" + c + " + 1) × " + r + " / 2⌋ + ⌊(" + c + " − 1)(" + r + " − 1) / 2⌋",
                   std::to_string(b.m_r.m_nBolts)});
  const std::string clearance = PlainNumber(b.m_r.m_dD0 - b.m_input.m_nD);
  const bool bTable = b.m_view.Is2017() && b.m_input.m_nType != kOrdinaryBolt;
  const bool bSlot =
      bTable && (b.Hole() == CHoleKind::SlotAcross || b.Hole() == CHoleKind::SlotAlong);
  static constexpr CTextLiteral kHole[] = {{"孔径", "Hole diameter"},
                                           {"槽孔短向尺寸", "Width of the slot"}};
  steps.push_back({kHole[bSlot], bTable ? "T 11.5.1" : b.m_clauses.m_szHole, "d_0",
                   bTable ? "" : "d + " + clearance,
                   bTable ? "" : std::to_string(b.m_input.m_nD) + " + " + clearance,
                   PlainNumber(b.m_r.m_dD0), "mm"});
  if (bSlot) {
    const CBoltTrace2017& trace = b.m_view.m_p2017->Trace();
    const double length = std::max(trace.HoleRoom(true), trace.HoleRoom(false));
    Add(steps, {"槽孔长向尺寸", "Length of the slot"}, "T 11.5.1", "l_0", "", length);
  }
  if (!b.m_bFriction) {
    Add(steps, {"螺纹处有效直径（粗牙，查表）", "Effective diameter (coarse thread, table)"}, "",
        "d_e", "", b.m_r.m_dDe);
  }
  Distances(b, steps);
  if (b.m_bTorque) {
    Add(steps, {"至形心距离的平方和", "Sum of squared distances from the centroid"}, "", "Σr^2",
        "Σ(x^2 + y^2)", b.m_shape.SumR2(), "mm²");
  }
  if (!IsZero(b.m_input.m_dM)) {
    static constexpr CTextLiteral kAbout[] = {
        {"弯矩力臂平方和（绕第一行螺栓）", "Sum of squared lever arms, about the first row"},
        {"弯矩力臂平方和（绕形心）", "Sum of squared lever arms, about the centroid"},
        {"弯矩力臂平方和（绕末行螺栓）", "Sum of squared lever arms, about the last row"}};
    const bool bCentroid = b.m_judged.m_nTurn == CTurn::Centroid;
    Add(steps,
        kAbout[bCentroid            ? 1
               : b.m_input.m_dM < 0 ? 2
                                    : 0],
        "", "Σl^2", "Σl_i^2", b.m_judged.m_dSumArm2, "mm²");
    Add(steps, {"受力最大螺栓的力臂", "Lever arm of the bolt pulled hardest"}, "", "l_{max}", "",
        b.m_judged.m_dArm);
  }
  return steps;
}

std::vector<CReportStep> BoltStrengths(const CBoltFacts& b) {
  CSteps steps;
  const auto value = [&](CTextLiteral name, const char* clause, const char* symbol, double number,
                         const char* unit) { Add(steps, name, clause, symbol, "", number, unit); };
  value({"板件钢材强度", "Plate steel"}, b.SteelClause(), "f", b.m_r.m_dF, "N/mm²");
  if (b.m_view.Is2017())
    value({"板件抗拉强度", "Plate steel, tensile"}, b.SteelClause(), "f_u",
          b.m_view.m_p2017->Results().m_dFu, "N/mm²");
  if (b.m_bFriction && b.m_view.Is2017())
    value({"孔型系数", "Hole factor"}, "11.4.2", "k", b.m_view.m_p2017->Results().m_dHoleFactor,
          "");
  if (b.m_bFriction) {
    value({"抗滑移系数", "Slip factor"}, b.m_clauses.m_szSlip, "μ", b.m_r.m_dMu, "");
  } else {
    value({"螺栓抗拉", "Bolt in tension"}, b.m_clauses.m_szBolt, "f_t^b", b.m_r.m_dFt, "N/mm²");
    value({"螺栓抗剪", "Bolt in shear"}, b.m_clauses.m_szBolt, "f_v^b", b.m_r.m_dFv, "N/mm²");
    value({"孔壁承压", "Bearing"}, b.m_clauses.m_szBolt, "f_c^b", b.m_r.m_dFc, "N/mm²");
  }
  if (b.m_input.m_nType != kOrdinaryBolt) {
    value({"每个螺栓的预拉力", "Preload of one bolt"}, b.m_clauses.m_szPreload, "P", b.m_r.m_nP,
          "kN");
  }
  return steps;
}

}  // namespace orv3
