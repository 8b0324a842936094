// What one bolt resists and what the most stressed one bears, in the report of a bolt group.
#include <cmath>

#include "connections/report/bolt_steps.h"

namespace orv3 {
namespace {

using CSteps = std::vector<CReportStep>;

// Of the axis that the group is judged to turn about.
void Tension(const CBoltFacts& b, CSteps& steps) {
  static constexpr CTextLiteral kMost = {"受力最大螺栓的拉力", "Tension on the most stressed bolt"};
  static constexpr CTextLiteral kMoment[] = {
      {"弯矩在受力最大螺栓的拉力（绕第一行）", "Moment, bolt pulled hardest, about the first row"},
      {"弯矩在受力最大螺栓的拉力（绕形心）", "Moment, bolt pulled hardest, about the centroid"},
      {"弯矩在受力最大螺栓的拉力（绕末行）", "Moment, bolt pulled hardest, about the last row"}};
  const std::string sum = SubstitutedNumber(b.m_judged.m_dSumArm2);
  const std::string arm = Put(b.m_judged.m_dArm);
  const double M = std::fabs(b.m_input.m_dM);
  const bool bMoment = !IsZero(M);
  if (b.m_judged.m_nTurn == CTurn::FirstRowWithN) {
    // y_c from the row that is pressed on.
    const double yc = b.m_input.m_dM < 0 ? b.m_shape.m_dHeight - b.m_shape.m_dYc : b.m_shape.m_dYc;
    steps.push_back({kMost, "", "N_t",
                     b.m_input.m_dM < 0 ? "\\max((|M| + N (h − y_c)) l_{max} / Σl^2, 0)"
                                        : "\\max((M + N y_c) l_{max} / Σl^2, 0)",
                     "\\max((" + Put(M) + " + " + Put(b.m_input.m_dN) + " × " + Put(yc) + ") × " +
                         arm + " / " + sum + ", 0)",
                     PlainNumber(b.m_judged.m_dNt), "kN"});
    return;
  }
  const double shareN = b.m_input.m_dN / b.m_r.m_nBolts;
  const double shareM = bMoment ? M * b.m_judged.m_dArm / b.m_judged.m_dSumArm2 : 0;
  steps.push_back({{"N 分配的拉力", "Share of N"},
                   "",
                   "N_{tN}",
                   "N / n",
                   Put(b.m_input.m_dN) + " / " + std::to_string(b.m_r.m_nBolts),
                   PlainNumber(shareN),
                   "kN"});
  if (bMoment) {
    steps.push_back({kMoment[b.m_judged.m_nTurn == CTurn::Centroid ? 1
                             : b.m_input.m_dM < 0                  ? 2
                                                                   : 0],
                     "", "N_{tM}", b.m_input.m_dM < 0 ? "|M| l_{max} / Σl^2" : "M l_{max} / Σl^2",
                     Put(M) + " × " + arm + " / " + sum, PlainNumber(shareM), "kN"});
  }
  steps.push_back({kMost, "", "N_t", "\\max(N_{tN} + N_{tM}, 0)",
                   "\\max(" + Put(shareN) + " + " + Put(shareM) + ", 0)",
                   PlainNumber(b.m_judged.m_dNt), "kN"});
}

}  // namespace

std::vector<CReportStep> BoltResistances(const CBoltFacts& b) {
  const std::string clause = b.m_clauses.m_arrType[b.m_input.m_nType];
  static constexpr CTextLiteral kShear = {"受剪承载力", "Shear resistance"};
  static constexpr CTextLiteral kTension = {"受拉承载力", "Tensile resistance"};
  if (b.m_bFriction) {
    const std::string k =
        b.m_view.Is2017() ? Put(b.m_view.m_p2017->Results().m_dHoleFactor) + " × " : "";
    return {{kShear, clause, "N_v^b", b.m_view.Is2017() ? "0.9 k n_f μ P" : "0.9 n_f μ P",
             "0.9 × " + k + std::to_string(b.m_input.m_nNf) + " × " + Put(b.m_r.m_dMu) + " × " +
                 Put(b.m_r.m_nP),
             PlainNumber(b.m_r.m_dNvb), "kN"},
            {kTension, clause, "N_t^b", "0.8 P", "0.8 × " + Put(b.m_r.m_nP),
             PlainNumber(b.m_r.m_dNtb), "kN"}};
  }
  const std::string d = std::to_string(b.m_input.m_nD);
  const bool bThreads = b.m_judged.m_bThreads;
  return {{kShear, clause, "N_v^b", bThreads ? "n_v (π d_e^2 / 4) f_v^b" : "n_v (π d^2 / 4) f_v^b",
           std::to_string(b.m_input.m_nNv) + " × π × " + (bThreads ? Put(b.m_r.m_dDe) : d) +
               "^2 / 4 × " + Put(b.m_r.m_dFv) + " / 1000",
           PlainNumber(b.m_judged.m_dShear), "kN"},
          {{"承压承载力", "Bearing resistance"},
           clause,
           "N_c^b",
           "d Σt f_c^b",
           d + " × " + Put(b.m_input.m_dSumT) + " × " + Put(b.m_r.m_dFc) + " / 1000",
           PlainNumber(b.m_r.m_dNcb),
           "kN"},
          {kTension, clause, "N_t^b", "(π d_e^2 / 4) f_t^b",
           "π × " + Put(b.m_r.m_dDe) + "^2 / 4 × " + Put(b.m_r.m_dFt) + " / 1000",
           PlainNumber(b.m_r.m_dNtb), "kN"}};
}

std::vector<CReportStep> BoltForces(const CBoltFacts& b) {
  CSteps steps;
  const std::string n = std::to_string(b.m_r.m_nBolts);
  const auto share = [&](CTextLiteral name, const char* symbol, const char* load, double value,
                         double result) {
    steps.push_back({name, "", symbol, std::string(load) + " / n", Put(value) + " / " + n,
                     PlainNumber(result), "kN"});
  };
  const auto lever = [&](CTextLiteral name, const char* symbol, const char* formula, double load,
                         double arm, double sum, double result) {
    steps.push_back({name, "", symbol, formula,
                     Put(load) + " × " + Put(arm) + " / " + SubstitutedNumber(sum),
                     PlainNumber(result), "kN"});
  };
  share({"Vx 分配的剪力", "Share of Vx"}, "N_{vx}", "|V_x|", std::fabs(b.m_input.m_dVx),
        b.m_judged.m_dNvx);
  share({"Vy 分配的剪力", "Share of Vy"}, "N_{vy}", "|V_y|", std::fabs(b.m_input.m_dVy),
        b.m_judged.m_dNvy);
  const bool bTorque = b.m_bTorque;
  if (bTorque) {
    const double T = std::fabs(b.m_input.m_dT);
    lever({"扭矩在最远螺栓的 x 向分力", "Torque, farthest bolt, along x"}, "N_{Tx}",
          "|T| y_{max} / Σr^2", T, std::fabs(b.m_shape.m_dYMax), b.m_shape.SumR2(),
          b.m_judged.m_dNTx);
    lever({"扭矩在最远螺栓的 y 向分力", "Torque, farthest bolt, along y"}, "N_{Ty}",
          "|T| x_{max} / Σr^2", T, std::fabs(b.m_shape.m_dXMax), b.m_shape.SumR2(),
          b.m_judged.m_dNTy);
  }
  const std::string x = bTorque
                            ? "(" + Put(b.m_judged.m_dNvx) + " + " + Put(b.m_judged.m_dNTx) + ")"
                            : Put(b.m_judged.m_dNvx);
  const std::string y = bTorque
                            ? "(" + Put(b.m_judged.m_dNvy) + " + " + Put(b.m_judged.m_dNTy) + ")"
                            : Put(b.m_judged.m_dNvy);
  steps.push_back(
      {{"受力最大螺栓的剪力", "Shear on the most stressed bolt"},
       "",
       "N_v",
       bTorque ? "√((N_{vx} + N_{Tx})^2 + (N_{vy} + N_{Ty})^2)" : "√(N_{vx}^2 + N_{vy}^2)",
       "√(" + x + "^2 + " + y + "^2)",
       PlainNumber(b.m_judged.m_dNv),
       "kN"});
  Tension(b, steps);
  return steps;
}

std::vector<CReportStep> BoltLongJoint(const CBoltFacts& b) {
  const double d0 = b.m_r.m_dD0;
  const bool bShort = AtMost(b.m_r.m_dL1, 15 * d0);
  const bool bLong = !AtMost(b.m_r.m_dL1, 60 * d0);
  const std::string l1 = PlainNumber(b.m_r.m_dL1);
  CSteps steps = {{{"沿受力方向的连接长度", "Joint length along the force"},
                   b.m_clauses.m_szLong,
                   "l_1",
                   "",
                   "",
                   l1,
                   "mm"}};
  const std::string limit = PlainNumber(15 * d0);
  const std::string far = PlainNumber(60 * d0);
  steps.push_back(
      {{"承载力折减系数", "Reduction factor"},
       b.m_clauses.m_szLong,
       "β",
       bShort  ? "1.0  (l_1 ≤ 15 d_0 = " + limit + ")"
       : bLong ? "0.7  (l_1 > 60 d_0 = " + far + ")"
               : "1.1 − l_1 / (150 d_0)",
       bShort || bLong ? "" : "1.1 − " + Put(b.m_r.m_dL1) + " / (150 × " + Put(d0) + ")",
       PlainNumber(b.m_r.m_dBeta)});
  return steps;
}

}  // namespace orv3
