// The report of a bolt group: GB 50017-2003, 7.2.1 to 7.2.4 and 5.1.1; GB 50017-2017, 11.4, 11.5
// and 7.1.1.
#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "codes/slip.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/bolt_drawing.h"
#include "connections/report/connection_report.h"
#include "connections/report/detail_verdicts.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

// Where an edition has what the report cites.
struct CBoltClauses {
  const char* m_szHole;
  const char* m_szSteel;
  const char* m_szBolt;
  const char* m_szSlip;
  const char* m_szPreload;
  const char* m_arrType[3];  // by bolt type
  const char* m_szLong;
  const char* m_szSection;
};
constexpr CBoltClauses kClauses2003 = {"8.3.2",     "T 3.4.1-1", "T 3.4.1-4",
                                       "T 7.2.2-1", "T 7.2.2-2", {"7.2.1", "7.2.2", "7.2.3"},
                                       "7.2.4",     "5.1.1"};
constexpr CBoltClauses kClauses2017 = {"11.5.1",     "T 4.4.1",    "T 4.4.6",
                                       "T 11.4.2-1", "T 11.4.2-2", {"11.4.1", "11.4.2", "11.4.3"},
                                       "11.4.5",     "7.1.1"};

class CBoltReport {
 public:
  CBoltReport(const CBoltView& view, CLanguage language)
      : m_view(view),
        m_input(view.m_input),
        m_shape(view.m_shape),
        m_r(view.m_results),
        m_judged(view.m_judged),
        m_clauses(view.Is2017() ? kClauses2017 : kClauses2003),
        m_bFriction(m_input.m_nType == kFrictionBolt),
        m_bTorque(!IsZero(m_input.m_dT) && !IsZero(m_shape.SumR2())),
        m_body(language) {}

  std::string Write();

 private:
  using CSteps = std::vector<CReportStep>;
  void Inputs();
  void Figure();
  CSteps Geometry() const;
  void Distances(CSteps& steps) const;
  CSteps Strengths() const;
  CSteps Resistances() const;
  CSteps Forces() const;
  CSteps LongJoint() const;
  CSteps Sections() const;
  void Tension(CSteps& steps) const;
  void Section(bool bX, CSteps& steps) const;
  static std::string Legs(const CPlateSection& section, double edges);
  std::vector<CReportVerdict> Verdicts() const;
  CReportVerdict SectionVerdict(bool bX) const;
  CTextLiteral SurfaceText() const;
  CHoleKind Hole() const;
  const char* SteelClause() const;
  std::string HoleOut(bool bX) const;

  const CBoltView& m_view;
  const CBoltCase& m_input;
  const CBoltShape& m_shape;
  const CBoltResults& m_r;
  const CBoltFigures& m_judged;
  const CBoltClauses& m_clauses;
  bool m_bFriction;
  bool m_bTorque;
  CReportBody m_body;
};

// The lines of the input table, with the keys that they belong to.
template <class CASE>
void AddInputs(const CASE& input, std::span<const CInputKey<CASE>> keys, CLanguage language,
               std::vector<std::pair<std::string, CReportBody::CInputLine>>& lines) {
  const auto all = InputLines(input, keys, language);
  for (std::size_t i = 0; i < keys.size(); ++i) lines.emplace_back(keys[i].m_szKey, all[i]);
}

void CBoltReport::Inputs() {
  std::vector<std::pair<std::string, CReportBody::CInputLine>> lines;
  if (m_view.Is2017()) {
    AddInputs(*m_view.m_pInput2017, CBoltCheck2017::InputKeys(), m_body.Language(), lines);
  } else {
    AddInputs(m_input, CBoltCheck::InputKeys(), m_body.Language(), lines);
  }
  std::vector<CReportBody::CInputLine> used;
  const auto unused = [&](const std::string& key) {
    if (key == "id") return true;
    if (key == "colSpace") return m_input.m_nCols == 1;
    if (key == "rowSpace") return m_input.m_nRows == 1;
    if (key == "hole") return m_input.m_nType == kOrdinaryBolt;
    if (key == "threads") return m_bFriction;
    if (key == "edges") return m_input.m_nType != kOrdinaryBolt;
    if (m_bFriction) return key == "sumT" || key == "nv" || key == "class";
    return key == "nf" || key == "surface" || (key == "class" && m_input.m_nType != kOrdinaryBolt);
  };
  for (auto& [key, line] : lines) {
    if (unused(key)) continue;
    static constexpr CTextLiteral kHoles[] = {
        {"标准孔", "standard"},
        {"大圆孔", "oversize"},
        {"槽孔（内力与槽孔长向垂直）", "slots across the force"},
        {"槽孔（内力与槽孔长向平行）", "slots along the force"}};
    static constexpr CTextLiteral kThreads[] = {{"不在剪切面", "outside the shear plane"},
                                                {"在剪切面", "in the shear plane"}};
    static constexpr CTextLiteral kEdges[] = {
        {"剪切边或手工切割边", "sheared or cut by hand"},
        {"轧制边、自动气割或锯割边", "rolled, sawn or machine-cut"}};
    static constexpr CTextLiteral kLayoutNames[] = {{"并列", "grid"}, {"错列", "staggered"}};
    if (key == "layout") line.m_strValue = m_body.Text(kLayoutNames[m_input.m_nLayout]);
    if (key == "type") line.m_strValue = m_body.Text(kBoltTypeNames[m_input.m_nType]);
    if (key == "surface") line.m_strValue = m_body.Text(SurfaceText());
    if (key == "hole") line.m_strValue = m_body.Text(kHoles[static_cast<std::size_t>(Hole())]);
    if (key == "threads")
      line.m_strValue = m_body.Text(kThreads[m_view.m_p2017->Trace().m_bThreads]);
    if (key == "edges") line.m_strValue = m_body.Text(kEdges[m_view.m_pInput2017->m_nEdges == 1]);
    used.push_back(line);
  }
  m_body.Inputs(used);
}

CTextLiteral CBoltReport::SurfaceText() const {
  return m_view.Is2017() ? SurfaceName(CCodeEdition::Gb2017, m_input.m_nSurface)
                         : kSurfaceNames[m_input.m_nSurface];
}

CHoleKind CBoltReport::Hole() const {
  return static_cast<CHoleKind>(std::max(0, m_view.m_pInput2017->m_nHole));
}

const char* CBoltReport::SteelClause() const {
  if (!m_view.Is2017()) return m_clauses.m_szSteel;
  return static_cast<CSteelGrade>(m_input.m_nSteel) == CSteelGrade::Q345GJ ? "T 4.4.2"
                                                                           : m_clauses.m_szSteel;
}

void CBoltReport::Figure() {
  static constexpr CTextLiteral kCaption = {
      "螺栓群布置（按比例，mm）。红色：受力最大的螺栓；点划线：形心轴",
      "The bolt group to scale, mm. Red: the most stressed bolts; chain lines: centroidal axes"};
  static constexpr CTextLiteral kCuts[] = {
      {"；虚线 1：抵抗 Vx 的最不利净截面", "; dashed 1: the worst net section for Vx"},
      {"；虚线 1：抵抗 Vy 的最不利净截面", "; dashed 1: the worst net section for Vy"},
      {"；虚线 2：抵抗 Vy 的最不利净截面", "; dashed 2: the worst net section for Vy"}};
  static constexpr CTextLiteral kAcross = {"。N、M 垂直于图面。",
                                           ". N and M act out of the plane."};
  static constexpr CTextLiteral kEnd = {"。", "."};
  static constexpr CTextLiteral kTooMany = {"螺栓数过多，未绘图。",
                                            "Not drawn: the group has too many bolts."};
  if (m_r.m_nBolts > kMostDrawnBolts) return m_body.Note(kTooMany);
  std::string caption = m_body.Text(kCaption);
  if (m_judged.m_x.Holes() > 0) caption += m_body.Text(kCuts[0]);
  if (m_judged.m_y.Holes() > 0) caption += m_body.Text(kCuts[m_judged.m_x.Holes() > 0 ? 2 : 1]);
  const bool bAcross = !IsZero(m_input.m_dN) || !IsZero(m_input.m_dM);
  m_body.Figure(BoltGroupDrawing(m_view), caption + m_body.Text(bAcross ? kAcross : kEnd));
}

CBoltReport::CSteps CBoltReport::Geometry() const {
  CSteps steps;
  const std::string c = std::to_string(m_input.m_nCols);
  const std::string r = std::to_string(m_input.m_nRows);
  const bool bGrid = m_input.m_nLayout == 0;
  steps.push_back({{"螺栓数", "Number of bolts"},
                   "",
                   "n",
                   bGrid ? "n_c · n_r" : "⌊(n_c + 1) n_r / 2⌋ + ⌊(n_c − 1)(n_r − 1) / 2⌋",
                   bGrid
                       ? c + " × " + r
                       : "⌊(" + c + " + 1) × " + r + " / 2⌋ + ⌊(" + c + " − 1)(" + r + " − 1) / 2⌋",
                   std::to_string(m_r.m_nBolts)});
  const std::string clearance = PlainNumber(m_r.m_dD0 - m_input.m_nD);
  const bool bTable = m_view.Is2017() && m_input.m_nType != kOrdinaryBolt;
  const bool bSlot = bTable && (Hole() == CHoleKind::SlotAcross || Hole() == CHoleKind::SlotAlong);
  static constexpr CTextLiteral kHole[] = {{"孔径", "Hole diameter"},
                                           {"槽孔短向尺寸", "Width of the slot"}};
  steps.push_back({kHole[bSlot], bTable ? "T 11.5.1" : m_clauses.m_szHole, "d_0",
                   bTable ? "" : "d + " + clearance,
                   bTable ? "" : std::to_string(m_input.m_nD) + " + " + clearance,
                   PlainNumber(m_r.m_dD0), "mm"});
  if (!m_bFriction) {
    steps.push_back({{"螺纹处有效直径（粗牙，查表）", "Effective diameter (coarse thread, table)"},
                     "",
                     "d_e",
                     "",
                     "",
                     PlainNumber(m_r.m_dDe),
                     "mm"});
  }
  Distances(steps);
  if (m_bTorque) {
    steps.push_back({{"至形心距离的平方和", "Sum of squared distances from the centroid"},
                     "",
                     "Σr^2",
                     "Σ(x^2 + y^2)",
                     "",
                     PlainNumber(m_shape.SumR2()),
                     "mm²"});
  }
  if (!IsZero(m_input.m_dM)) {
    static constexpr CTextLiteral kAbout[] = {
        {"弯矩力臂平方和（绕第一行螺栓）", "Sum of squared lever arms, about the first row"},
        {"弯矩力臂平方和（绕形心）", "Sum of squared lever arms, about the centroid"},
        {"弯矩力臂平方和（绕末行螺栓）", "Sum of squared lever arms, about the last row"}};
    const bool bCentroid = m_judged.m_nTurn == CTurn::Centroid;
    steps.push_back({kAbout[bCentroid          ? 1
                            : m_input.m_dM < 0 ? 2
                                               : 0],
                     "", "Σl^2", "Σl_i^2", "", PlainNumber(m_judged.m_dSumArm2), "mm²"});
    steps.push_back({{"受力最大螺栓的力臂", "Lever arm of the farthest bolt"},
                     "",
                     "l_{max}",
                     "",
                     "",
                     PlainNumber(m_judged.m_dArm),
                     "mm"});
  }
  return steps;
}

// The centroid, in mm from the first bolt, and the farthest bolts from it.
void CBoltReport::Distances(CSteps& steps) const {
  if (m_r.m_nBolts < 2) return;
  const std::string n = std::to_string(m_r.m_nBolts);
  const auto mean = [&](CTextLiteral name, const char* symbol, const char* formula, double value) {
    steps.push_back({name, "", symbol, formula, SubstitutedNumber(value * m_r.m_nBolts) + " / " + n,
                     PlainNumber(value), "mm"});
  };
  mean({"形心横坐标（自第一个螺栓）", "Centroid along x, from the first bolt"}, "x_c", "Σx / n",
       m_shape.m_dXc);
  mean({"形心纵坐标（自第一个螺栓）", "Centroid along y, from the first bolt"}, "y_c", "Σy / n",
       m_shape.m_dYc);
  const auto farthest = [&](CTextLiteral name, const char* symbol, const char* formula,
                            double value) {
    steps.push_back({name, "", symbol, formula, "", PlainNumber(std::fabs(value)), "mm"});
  };
  farthest({"最远螺栓的 x 向距离", "Farthest bolt along x"}, "x_{max}", "\\max |x − x_c|",
           m_shape.m_dXMax);
  farthest({"最远螺栓的 y 向距离", "Farthest bolt along y"}, "y_{max}", "\\max |y − y_c|",
           m_shape.m_dYMax);
}

CBoltReport::CSteps CBoltReport::Strengths() const {
  CSteps steps;
  const auto value = [&](CTextLiteral name, const char* clause, const char* symbol, double number,
                         const char* unit) {
    steps.push_back({name, clause, symbol, "", "", PlainNumber(number), unit});
  };
  value({"板件钢材强度", "Plate steel"}, SteelClause(), "f", m_r.m_dF, "N/mm²");
  if (m_view.Is2017())
    value({"板件抗拉强度", "Plate steel, tensile"}, SteelClause(), "f_u",
          m_view.m_p2017->Results().m_dFu, "N/mm²");
  if (m_bFriction && m_view.Is2017())
    value({"孔型系数", "Hole factor"}, "11.4.2", "k", m_view.m_p2017->Results().m_dHoleFactor, "");
  if (m_bFriction) {
    value({"抗滑移系数", "Slip factor"}, m_clauses.m_szSlip, "μ", m_r.m_dMu, "");
  } else {
    value({"螺栓抗拉", "Bolt in tension"}, m_clauses.m_szBolt, "f_t^b", m_r.m_dFt, "N/mm²");
    value({"螺栓抗剪", "Bolt in shear"}, m_clauses.m_szBolt, "f_v^b", m_r.m_dFv, "N/mm²");
    value({"孔壁承压", "Bearing"}, m_clauses.m_szBolt, "f_c^b", m_r.m_dFc, "N/mm²");
  }
  if (m_input.m_nType != kOrdinaryBolt) {
    value({"每个螺栓的预拉力", "Preload of one bolt"}, m_clauses.m_szPreload, "P", m_r.m_nP, "kN");
  }
  return steps;
}

CBoltReport::CSteps CBoltReport::Resistances() const {
  const std::string clause = m_clauses.m_arrType[m_input.m_nType];
  static constexpr CTextLiteral kShear = {"抗剪承载力", "Shear resistance"};
  static constexpr CTextLiteral kTension = {"抗拉承载力", "Tensile resistance"};
  if (m_bFriction) {
    const std::string k =
        m_view.Is2017() ? Put(m_view.m_p2017->Results().m_dHoleFactor) + " × " : "";
    return {{kShear, clause, "N_v^b", m_view.Is2017() ? "0.9 k n_f μ P" : "0.9 n_f μ P",
             "0.9 × " + k + std::to_string(m_input.m_nNf) + " × " + Put(m_r.m_dMu) + " × " +
                 Put(m_r.m_nP),
             PlainNumber(m_r.m_dNvb), "kN"},
            {kTension, clause, "N_t^b", "0.8 P", "0.8 × " + Put(m_r.m_nP), PlainNumber(m_r.m_dNtb),
             "kN"}};
  }
  const std::string d = std::to_string(m_input.m_nD);
  const bool bThreads = m_view.Is2017() && m_view.m_p2017->Trace().m_bThreads;
  return {{kShear, clause, "N_v^b", bThreads ? "n_v (π d_e^2 / 4) f_v^b" : "n_v (π d^2 / 4) f_v^b",
           std::to_string(m_input.m_nNv) + " × π × " + (bThreads ? Put(m_r.m_dDe) : d) +
               "^2 / 4 × " + Put(m_r.m_dFv) + " / 1000",
           PlainNumber(m_r.m_dNvb), "kN"},
          {{"承压承载力", "Bearing resistance"},
           clause,
           "N_c^b",
           "d Σt f_c^b",
           d + " × " + Put(m_input.m_dSumT) + " × " + Put(m_r.m_dFc) + " / 1000",
           PlainNumber(m_r.m_dNcb),
           "kN"},
          {kTension, clause, "N_t^b", "(π d_e^2 / 4) f_t^b",
           "π × " + Put(m_r.m_dDe) + "^2 / 4 × " + Put(m_r.m_dFt) + " / 1000",
           PlainNumber(m_r.m_dNtb), "kN"}};
}

CBoltReport::CSteps CBoltReport::Forces() const {
  CSteps steps;
  const std::string n = std::to_string(m_r.m_nBolts);
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
  share({"Vx 分配的剪力", "Share of Vx"}, "N_{vx}", "|V_x|", std::fabs(m_input.m_dVx),
        m_judged.m_dNvx);
  share({"Vy 分配的剪力", "Share of Vy"}, "N_{vy}", "|V_y|", std::fabs(m_input.m_dVy),
        m_judged.m_dNvy);
  const bool bTorque = m_bTorque;
  if (bTorque) {
    const double T = std::fabs(m_input.m_dT);
    lever({"扭矩在最远螺栓的 x 向分力", "Torque, farthest bolt, along x"}, "N_{Tx}",
          "|T| y_{max} / Σr^2", T, std::fabs(m_shape.m_dYMax), m_shape.SumR2(), m_judged.m_dNTx);
    lever({"扭矩在最远螺栓的 y 向分力", "Torque, farthest bolt, along y"}, "N_{Ty}",
          "|T| x_{max} / Σr^2", T, std::fabs(m_shape.m_dXMax), m_shape.SumR2(), m_judged.m_dNTy);
  }
  const std::string x = bTorque ? "(" + Put(m_judged.m_dNvx) + " + " + Put(m_judged.m_dNTx) + ")"
                                : Put(m_judged.m_dNvx);
  const std::string y = bTorque ? "(" + Put(m_judged.m_dNvy) + " + " + Put(m_judged.m_dNTy) + ")"
                                : Put(m_judged.m_dNvy);
  steps.push_back(
      {{"受力最大螺栓的剪力", "Shear on the most stressed bolt"},
       "",
       "N_v",
       bTorque ? "√((N_{vx} + N_{Tx})^2 + (N_{vy} + N_{Ty})^2)" : "√(N_{vx}^2 + N_{vy}^2)",
       "√(" + x + "^2 + " + y + "^2)",
       PlainNumber(m_judged.m_dNv),
       "kN"});
  Tension(steps);
  return steps;
}

// Of the axis that the group is judged to turn about.
void CBoltReport::Tension(CSteps& steps) const {
  static constexpr CTextLiteral kMost = {"受力最大螺栓的拉力", "Tension on the most stressed bolt"};
  static constexpr CTextLiteral kMoment[] = {
      {"弯矩在最远螺栓的拉力（绕第一行）", "Moment, farthest bolt, about the first row"},
      {"弯矩在最远螺栓的拉力（绕形心）", "Moment, farthest bolt, about the centroid"},
      {"弯矩在最远螺栓的拉力（绕末行）", "Moment, farthest bolt, about the last row"}};
  const std::string sum = SubstitutedNumber(m_judged.m_dSumArm2);
  const std::string arm = Put(m_judged.m_dArm);
  const double M = std::fabs(m_input.m_dM);
  const bool bMoment = !IsZero(M);
  if (m_judged.m_nTurn == CTurn::FirstRowWithN) {
    // y_c from the row that is pressed on.
    const double yc = m_input.m_dM < 0 ? m_shape.m_dHeight - m_shape.m_dYc : m_shape.m_dYc;
    steps.push_back({kMost, "", "N_t",
                     m_input.m_dM < 0 ? "\\max((|M| + N (h − y_c)) l_{max} / Σl^2, 0)"
                                      : "\\max((M + N y_c) l_{max} / Σl^2, 0)",
                     "\\max((" + Put(M) + " + " + Put(m_input.m_dN) + " × " + Put(yc) + ") × " +
                         arm + " / " + sum + ", 0)",
                     PlainNumber(m_judged.m_dNt), "kN"});
    return;
  }
  const double shareN = m_input.m_dN / m_r.m_nBolts;
  const double shareM = bMoment ? M * m_judged.m_dArm / m_judged.m_dSumArm2 : 0;
  steps.push_back({{"N 分配的拉力", "Share of N"},
                   "",
                   "N_{tN}",
                   "N / n",
                   Put(m_input.m_dN) + " / " + std::to_string(m_r.m_nBolts),
                   PlainNumber(shareN),
                   "kN"});
  if (bMoment) {
    steps.push_back({kMoment[m_judged.m_nTurn == CTurn::Centroid ? 1
                             : m_input.m_dM < 0                  ? 2
                                                                 : 0],
                     "", "N_{tM}", m_input.m_dM < 0 ? "|M| l_{max} / Σl^2" : "M l_{max} / Σl^2",
                     Put(M) + " × " + arm + " / " + sum, PlainNumber(shareM), "kN"});
  }
  steps.push_back({kMost, "", "N_t", "\\max(N_{tN} + N_{tM}, 0)",
                   "\\max(" + Put(shareN) + " + " + Put(shareM) + ", 0)",
                   PlainNumber(m_judged.m_dNt), "kN"});
}

CBoltReport::CSteps CBoltReport::LongJoint() const {
  const double d0 = m_r.m_dD0;
  const bool bShort = AtMost(m_r.m_dL1, 15 * d0);
  const bool bLong = !AtMost(m_r.m_dL1, 60 * d0);
  const std::string l1 = PlainNumber(m_r.m_dL1);
  CSteps steps = {{{"沿受力方向的连接长度", "Joint length along the force"},
                   m_clauses.m_szLong,
                   "l_1",
                   "",
                   "",
                   l1,
                   "mm"}};
  const std::string limit = PlainNumber(15 * d0);
  const std::string far = PlainNumber(60 * d0);
  steps.push_back({{"承载力折减系数", "Reduction factor"},
                   m_clauses.m_szLong,
                   "β",
                   bShort  ? "1.0  (l_1 ≤ 15 d_0 = " + limit + ")"
                   : bLong ? "0.7  (l_1 > 60 d_0 = " + far + ")"
                           : "1.1 − l_1 / (150 d_0)",
                   bShort || bLong ? "" : "1.1 − " + Put(m_r.m_dL1) + " / (150 × " + Put(d0) + ")",
                   PlainNumber(m_r.m_dBeta)});
  return steps;
}

// What the verdict holds against f, the gross section first where it is looked at.
void CBoltReport::Section(bool bX, CSteps& steps) const {
  const CPlateSection& section = bX ? m_judged.m_x : m_judged.m_y;
  if (section.Holes() == 0) return;
  const auto sign = [bX](const char* szX, const char* szY) { return bX ? szX : szY; };
  const double edge = bX ? m_input.m_dEy : m_input.m_dEx;
  const std::string t = Put(m_input.m_dThick);
  const std::string V = Put(std::fabs(bX ? m_input.m_dVx : m_input.m_dVy));
  const std::string holes = std::to_string(section.Holes());
  static constexpr CTextLiteral kStress = {"其应力", "Its stress"};
  if (m_bFriction || m_view.Is2017()) {
    const double sum = bX ? m_shape.m_dHeight : m_shape.m_dWidth;
    static constexpr CTextLiteral kGross[] = {{"抵抗 Vy 的毛截面", "Gross section for Vy"},
                                              {"抵抗 Vx 的毛截面", "Gross section for Vx"}};
    steps.push_back({kGross[bX], m_clauses.m_szSection, sign("A_x", "A_y"),
                     sign("(2 e_y + Σs_r) t", "(2 e_x + Σs_c) t"),
                     "(2 × " + Put(edge) + " + " + SubstitutedNumber(sum) + ") × " + t,
                     PlainNumber(section.m_dGross), "mm²"});
    steps.push_back({kStress, m_clauses.m_szSection, sign("σ_{x1}", "σ_{y1}"),
                     sign("|V_x| / A_x", "|V_y| / A_y"),
                     V + " × 1000 / " + SubstitutedNumber(section.m_dGross),
                     PlainNumber(section.m_dSigmaGross), "N/mm²"});
  }
  static constexpr CTextLiteral kLength[] = {
      {"抵抗 Vy 的最不利截面（1）之长", "Length of the worst section for Vy (1)"},
      {"抵抗 Vy 的最不利截面（2）之长", "Length of the worst section for Vy (2)"},
      {"抵抗 Vx 的最不利截面（1）之长", "Length of the worst section for Vx (1)"}};
  static constexpr CTextLiteral kNet = {"其净面积", "Its net area"};
  if (m_view.Is2017()) {
    const CBoltTrace2017& trace = m_view.m_p2017->Trace();
    const bool bSlot = trace.HoleRoom(bX) > m_r.m_dD0;  // the slot's length lies in the section
    steps.push_back({{"孔的削弱宽度", "What a hole takes out"},
                     "11.5.2",
                     "d_c",
                     bSlot ? "\\max(l_0, d + 4)" : "\\max(d_0, d + 4)",
                     "\\max(" + SubstitutedNumber(trace.HoleRoom(bX)) + ", " +
                         std::to_string(m_input.m_nD) + " + 4)",
                     HoleOut(bX),
                     "mm"});
  }
  const int name = bX ? 2 : m_judged.m_x.Holes() > 0 ? 1 : 0;
  steps.push_back({kLength[name], m_clauses.m_szSection, sign("L_x", "L_y"),
                   sign("2 e_y + Σs", "2 e_x + Σs"), "2 × " + Put(edge) + Legs(section, 2 * edge),
                   PlainNumber(section.m_dLength), "mm"});
  steps.push_back({kNet, m_clauses.m_szSection, sign("A_{nx}", "A_{ny}"),
                   m_view.Is2017() ? sign("(L_x − n_1 d_c) t", "(L_y − n_1 d_c) t")
                                   : sign("(L_x − n_1 d_0) t", "(L_y − n_1 d_0) t"),
                   "(" + SubstitutedNumber(section.m_dLength) + " − " + holes + " × " +
                       HoleOut(bX) + ") × " + t,
                   PlainNumber(section.m_dNet), "mm²"});
  const std::string share = m_bFriction ? "(1 − 0.5 n_1 / n) " : "";
  const std::string shareNumbers =
      m_bFriction ? "(1 − 0.5 × " + holes + " / " + std::to_string(m_r.m_nBolts) + ") × " : "";
  const char* symbol =
      m_bFriction || m_view.Is2017() ? sign("σ_{x2}", "σ_{y2}") : sign("σ_x", "σ_y");
  steps.push_back({kStress, m_clauses.m_szSection, symbol,
                   share + sign("|V_x| / A_{nx}", "|V_y| / A_{ny}"),
                   shareNumbers + V + " × 1000 / " + SubstitutedNumber(section.m_dNet),
                   PlainNumber(section.m_dSigma), "N/mm²"});
}

// The legs of a section's cut after its edges, as " + 3 × 80 + 52.2": equal ones together, and what
// runs straight on to an edge past a line that is not cut.
std::string CBoltReport::Legs(const CPlateSection& section, double edges) {
  std::vector<std::pair<double, int>> legs;
  double rest = section.m_dLength - edges;
  for (std::size_t i = 1; i < section.m_arrHole.size(); ++i) {
    const CHole& from = section.m_arrHole[i - 1];
    const CHole& to = section.m_arrHole[i];
    const double leg = std::hypot(to.m_x - from.m_x, to.m_y - from.m_y);
    rest -= leg;
    const auto same = std::find_if(legs.begin(), legs.end(), [leg](const auto& each) {
      return std::fabs(each.first - leg) < 1e-9 * leg;
    });
    if (same == legs.end()) {
      legs.push_back({leg, 1});
    } else {
      ++same->second;
    }
  }
  std::string text;
  for (const auto& [leg, count] : legs)
    text += " + " + (count > 1 ? std::to_string(count) + " × " : "") + SubstitutedNumber(leg);
  if (rest > 1e-6) text += " + " + SubstitutedNumber(rest);
  return text;
}

// What a hole takes out of the section against Vx or Vy.
std::string CBoltReport::HoleOut(bool bX) const {
  if (!m_view.Is2017()) return SubstitutedNumber(m_r.m_dD0);
  const CBoltTrace2017& trace = m_view.m_p2017->Trace();
  return SubstitutedNumber(bX ? trace.m_dHoleX : trace.m_dHoleY);
}

CReportVerdict CBoltReport::SectionVerdict(bool bX) const {
  const CPlateSection& section = bX ? m_judged.m_x : m_judged.m_y;
  const CCasePart& part = m_view.m_answer.Parts()[m_bFriction ? (bX ? 1 : 2) : (bX ? 2 : 3)];
  if (m_view.Is2017() && section.Holes() > 0) {
    const double limit = 0.7 * m_view.m_p2017->Results().m_dFu;
    const bool bNet = section.m_dSigma / limit >= section.m_dSigmaGross / m_r.m_dF;
    return {part.m_name,
            m_clauses.m_szSection,
            bX ? "σ_{x1} ≤ f,  σ_{x2} ≤ 0.7 f_u" : "σ_{y1} ≤ f,  σ_{y2} ≤ 0.7 f_u",
            Relation(bNet ? section.m_dSigma : section.m_dSigmaGross, bNet ? limit : m_r.m_dF,
                     part.m_bPass) +
                " \\N/\\mm²",
            part.m_dUtilisation,
            part.m_bPass};
  }
  const std::string symbol = bX ? "σ_x" : "σ_y";
  const std::string both = bX ? " = \\max(σ_{x1}, σ_{x2})" : " = \\max(σ_{y1}, σ_{y2})";
  const bool bBoth = m_bFriction && section.Holes() > 0;
  return {part.m_name,
          m_clauses.m_szSection,
          symbol + " ≤ f" + (bBoth ? ",  " + symbol + both : ""),
          Relation(section.Worst(), m_r.m_dF, part.m_bPass) + " \\N/\\mm²",
          part.m_dUtilisation,
          part.m_bPass};
}

std::vector<CReportVerdict> CBoltReport::Verdicts() const {
  std::vector<CReportVerdict> verdicts;
  const std::span<const CCasePart> parts = m_view.m_answer.Parts();
  const std::string shear =
      Put(m_judged.m_dNv) + " / (" + Put(m_r.m_dBeta) + " × " + Put(m_r.m_dNvb) + ")";
  const std::string tension = Put(m_judged.m_dNt) + " / " + Put(m_r.m_dNtb);
  const std::string clause =
      std::string(m_clauses.m_arrType[m_input.m_nType]) + ", " + m_clauses.m_szLong;
  verdicts.push_back(
      {parts[0].m_name, clause,
       m_bFriction ? "N_v / (β N_v^b) + N_t / N_t^b ≤ 1"
                   : "√((N_v / β N_v^b)^2 + (N_t / N_t^b)^2) ≤ 1",
       (m_bFriction ? shear + " + " + tension : "√((" + shear + ")^2 + (" + tension + ")^2)") +
           " = " + Relation(m_judged.m_dRatio, 1, parts[0].m_bPass),
       parts[0].m_dUtilisation, parts[0].m_bPass});
  if (!m_bFriction) {
    // 7.2.3 divides by 1.2 only together with tension.
    const bool bReduced = m_input.m_nType == kBearingBolt && m_judged.m_dNt > 0;
    verdicts.push_back({parts[1].m_name, clause, bReduced ? "N_v ≤ β N_c^b / 1.2" : "N_v ≤ β N_c^b",
                        Relation(m_judged.m_dNv, m_judged.m_dBearing, parts[1].m_bPass) + " \\kN",
                        parts[1].m_dUtilisation, parts[1].m_bPass});
  }
  verdicts.push_back(SectionVerdict(true));
  verdicts.push_back(SectionVerdict(false));
  if (!m_view.Is2017()) return verdicts;
  AddDetailVerdicts(m_view.m_p2017->Details(), parts.subspan(verdicts.size()), verdicts);
  return verdicts;
}

CBoltReport::CSteps CBoltReport::Sections() const {
  CSteps steps;
  Section(true, steps);
  Section(false, steps);
  return steps;
}

std::string CBoltReport::Write() {
  static constexpr CTextLiteral kTitle = {"螺栓连接验算", "Bolted connection"};
  const std::string id = m_input.m_strId.empty() ? "" : "　" + m_input.m_strId;
  m_body.Title(m_body.Text(kTitle) + id, m_view.m_answer.Pass(),
               m_view.m_answer.Worst().m_dUtilisation);
  m_body.Warnings(m_view.m_answer.Warnings());
  m_body.Heading({"一、输入", "1  Input"});
  Inputs();
  Figure();
  m_body.Heading({"二、几何", "2  Geometry"});
  m_body.Steps(Geometry());
  m_body.Heading({"三、强度设计值", "3  Design strengths"});
  m_body.Steps(Strengths());
  m_body.Heading({"四、单个螺栓承载力", "4  Resistance of one bolt"});
  m_body.Steps(Resistances());
  m_body.Heading({"五、受力最大螺栓的内力", "5  Forces on the most stressed bolt"});
  m_body.Steps(Forces());
  m_body.Heading({"六、长连接折减", "6  Long joint"});
  m_body.Steps(LongJoint());
  const CSteps sections = Sections();
  if (!sections.empty()) {
    m_body.Heading({"七、板件截面", "7  Sections of the plate"});
    m_body.Steps(sections);
  }
  m_body.Heading(sections.empty() ? CTextLiteral{"七、验算结论", "7  Verdicts"}
                                  : CTextLiteral{"八、验算结论", "8  Verdicts"});
  m_body.Verdicts(Verdicts());
  m_body.Note({"单位：长度 mm，力 kN，力矩 kN·mm，应力 N/mm²。",
               "Units: lengths mm, forces kN, moments kN·mm, stresses N/mm²."});
  return m_body.Take();
}

}  // namespace

std::string CaseReport(const CBoltCase& input, const CBoltCheck& check, CLanguage language) {
  return CBoltReport(CBoltView(input, check), language).Write();
}

std::string CaseReport(const CBoltCase2017& input, const CBoltCheck2017& check,
                       CLanguage language) {
  return CBoltReport(CBoltView(input, check), language).Write();
}

}  // namespace orv3
