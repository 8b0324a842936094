// The report of a bolt group: GB 50017-2003, 7.2.1 to 7.2.4 and 5.1.1.
#include <algorithm>
#include <cmath>
#include <utility>

#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/bolt_drawing.h"
#include "connections/report/connection_report.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

class CBoltReport {
 public:
  CBoltReport(const CBoltCase& input, const CBoltCheck& check, CLanguage language)
      : m_input(input),
        m_check(check),
        m_group(check.Record()),
        m_r(check.Results()),
        m_judged(check.Figures()),
        m_bFriction(input.m_nType == kFrictionBolt),
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

  const CBoltCase& m_input;
  const CBoltCheck& m_check;
  const NormalBoltData& m_group;
  const CBoltResults& m_r;
  const CBoltFigures& m_judged;
  bool m_bFriction;
  CReportBody m_body;
};

void CBoltReport::Inputs() {
  const auto keys = CBoltCheck::InputKeys();
  auto lines = InputLines(m_input, keys, m_body.Language());
  std::vector<CReportBody::CInputLine> used;
  const auto unused = [&](const std::string& key) {
    if (key == "id") return true;
    if (key == "colSpace") return m_input.m_nCols == 1;
    if (key == "rowSpace") return m_input.m_nRows == 1;
    if (m_bFriction) return key == "sumT" || key == "nv" || key == "class";
    return key == "nf" || key == "surface" || (key == "class" && m_input.m_nType != kOrdinaryBolt);
  };
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string key = keys[i].m_szKey;
    if (unused(key)) continue;
    static constexpr CTextLiteral kLayoutNames[] = {{"并列", "grid"}, {"错列", "staggered"}};
    if (key == "layout") lines[i].m_strValue = m_body.Text(kLayoutNames[m_input.m_nLayout]);
    if (key == "type") lines[i].m_strValue = m_body.Text(kBoltTypeNames[m_input.m_nType]);
    if (key == "surface") lines[i].m_strValue = m_body.Text(kSurfaceNames[m_input.m_nSurface]);
    used.push_back(lines[i]);
  }
  m_body.Inputs(used);
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
  m_body.Figure(BoltGroupDrawing(m_check), caption + m_body.Text(bAcross ? kAcross : kEnd));
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
  steps.push_back({{"孔径", "Hole diameter"},
                   "8.3.2",
                   "d_0",
                   "d + " + clearance,
                   std::to_string(m_input.m_nD) + " + " + clearance,
                   PlainNumber(m_r.m_dD0),
                   "mm"});
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
  if (m_group.m_dSumR2 > 0) {
    steps.push_back({{"至形心距离的平方和", "Sum of squared distances from the centroid"},
                     "",
                     "Σr^2",
                     "Σ(x^2 + y^2)",
                     "",
                     PlainNumber(m_group.m_dSumR2),
                     "mm²"});
  }
  if (!IsZero(m_group.m_dM)) {
    static constexpr CTextLiteral kAbout[] = {
        {"弯矩力臂平方和（绕第一行螺栓）", "Sum of squared lever arms, about the first row"},
        {"弯矩力臂平方和（绕形心）", "Sum of squared lever arms, about the centroid"}};
    const bool bCentroid = m_judged.m_nTurn == CTurn::Centroid;
    steps.push_back({kAbout[bCentroid ? 1 : 0], "", "Σl^2", "Σl_i^2", "",
                     PlainNumber(m_judged.m_dSumArm2), "mm²"});
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
       m_group.m_dXc);
  mean({"形心纵坐标（自第一个螺栓）", "Centroid along y, from the first bolt"}, "y_c", "Σy / n",
       m_group.m_dYc);
  const auto farthest = [&](CTextLiteral name, const char* symbol, const char* formula,
                            double value) {
    steps.push_back({name, "", symbol, formula, "", PlainNumber(std::fabs(value)), "mm"});
  };
  farthest({"最远螺栓的 x 向距离", "Farthest bolt along x"}, "x_{max}", "\\max |x − x_c|",
           m_group.m_dXMax);
  farthest({"最远螺栓的 y 向距离", "Farthest bolt along y"}, "y_{max}", "\\max |y − y_c|",
           m_group.m_dYMax);
}

CBoltReport::CSteps CBoltReport::Strengths() const {
  CSteps steps;
  const auto value = [&](CTextLiteral name, const char* clause, const char* symbol, double number,
                         const char* unit) {
    steps.push_back({name, clause, symbol, "", "", PlainNumber(number), unit});
  };
  value({"板件钢材强度", "Plate steel"}, "T 3.4.1-1", "f", m_r.m_dF, "N/mm²");
  if (m_bFriction) {
    value({"抗滑移系数", "Slip factor"}, "T 7.2.2-1", "μ", m_r.m_dMu, "");
  } else {
    value({"螺栓抗拉", "Bolt in tension"}, "T 3.4.1-4", "f_t^b", m_r.m_dFt, "N/mm²");
    value({"螺栓抗剪", "Bolt in shear"}, "T 3.4.1-4", "f_v^b", m_r.m_dFv, "N/mm²");
    value({"孔壁承压", "Bearing"}, "T 3.4.1-4", "f_c^b", m_r.m_dFc, "N/mm²");
  }
  if (m_input.m_nType != kOrdinaryBolt) {
    value({"每个螺栓的预拉力", "Preload of one bolt"}, "T 7.2.2-2", "P", m_r.m_nP, "kN");
  }
  return steps;
}

CBoltReport::CSteps CBoltReport::Resistances() const {
  static constexpr CTextLiteral kShear = {"抗剪承载力", "Shear resistance"};
  static constexpr CTextLiteral kTension = {"抗拉承载力", "Tensile resistance"};
  if (m_bFriction) {
    return {
        {kShear, "7.2.2", "N_v^b", "0.9 n_f μ P",
         "0.9 × " + std::to_string(m_input.m_nNf) + " × " + Put(m_r.m_dMu) + " × " + Put(m_r.m_nP),
         PlainNumber(m_r.m_dNvb), "kN"},
        {kTension, "7.2.2", "N_t^b", "0.8 P", "0.8 × " + Put(m_r.m_nP), PlainNumber(m_r.m_dNtb),
         "kN"}};
  }
  const std::string clause = m_input.m_nType == kOrdinaryBolt ? "7.2.1" : "7.2.3";
  const std::string d = std::to_string(m_input.m_nD);
  return {{kShear, clause, "N_v^b", "n_v (π d^2 / 4) f_v^b",
           std::to_string(m_input.m_nNv) + " × π × " + d + "^2 / 4 × " + Put(m_r.m_dFv) + " / 1000",
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
  const bool bTorque = m_group.m_dSumR2 > 0;
  if (bTorque) {
    const double T = std::fabs(m_input.m_dT);
    lever({"扭矩在最远螺栓的 x 向分力", "Torque, farthest bolt, along x"}, "N_{Tx}",
          "|T| y_{max} / Σr^2", T, std::fabs(m_group.m_dYMax), m_group.m_dSumR2, m_judged.m_dNTx);
    lever({"扭矩在最远螺栓的 y 向分力", "Torque, farthest bolt, along y"}, "N_{Ty}",
          "|T| x_{max} / Σr^2", T, std::fabs(m_group.m_dXMax), m_group.m_dSumR2, m_judged.m_dNTy);
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
      {"弯矩在最远螺栓的拉力（绕形心）", "Moment, farthest bolt, about the centroid"}};
  const std::string sum = SubstitutedNumber(m_judged.m_dSumArm2);
  const std::string arm = Put(m_judged.m_dArm);
  const double M = std::fabs(m_input.m_dM);
  const bool bMoment = !IsZero(M);
  if (m_judged.m_nTurn == CTurn::FirstRowWithN) {
    steps.push_back({kMost, "", "N_t", "\\max((M + N y_c) l_{max} / Σl^2, 0)",
                     "\\max((" + Put(M) + " + " + Put(m_input.m_dN) + " × " + Put(m_group.m_dYc) +
                         ") × " + arm + " / " + sum + ", 0)",
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
    steps.push_back({kMoment[static_cast<int>(m_judged.m_nTurn)], "", "N_{tM}",
                     m_input.m_dM < 0 ? "|M| l_{max} / Σl^2" : "M l_{max} / Σl^2",
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
  CSteps steps = {
      {{"沿受力方向的连接长度", "Joint length along the force"}, "7.2.4", "l_1", "", "", l1, "mm"}};
  const std::string limit = PlainNumber(15 * d0);
  const std::string far = PlainNumber(60 * d0);
  steps.push_back({{"承载力折减系数", "Reduction factor"},
                   "7.2.4",
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
  if (m_bFriction) {
    const double sum = bX ? m_group.m_dHeight : m_group.m_dWidth;
    static constexpr CTextLiteral kGross[] = {{"抵抗 Vy 的毛截面", "Gross section for Vy"},
                                              {"抵抗 Vx 的毛截面", "Gross section for Vx"}};
    steps.push_back({kGross[bX], "5.1.1", sign("A_x", "A_y"),
                     sign("(2 e_y + Σs_r) t", "(2 e_x + Σs_c) t"),
                     "(2 × " + Put(edge) + " + " + SubstitutedNumber(sum) + ") × " + t,
                     PlainNumber(section.m_dGross), "mm²"});
    steps.push_back({kStress, "5.1.1", sign("σ_{x1}", "σ_{y1}"), sign("|V_x| / A_x", "|V_y| / A_y"),
                     V + " × 1000 / " + SubstitutedNumber(section.m_dGross),
                     PlainNumber(section.m_dSigmaGross), "N/mm²"});
  }
  static constexpr CTextLiteral kLength[] = {
      {"抵抗 Vy 的最不利截面（1）之长", "Length of the worst section for Vy (1)"},
      {"抵抗 Vy 的最不利截面（2）之长", "Length of the worst section for Vy (2)"},
      {"抵抗 Vx 的最不利截面（1）之长", "Length of the worst section for Vx (1)"}};
  static constexpr CTextLiteral kNet = {"其净面积", "Its net area"};
  const int name = bX ? 2 : m_judged.m_x.Holes() > 0 ? 1 : 0;
  steps.push_back({kLength[name], "5.1.1", sign("L_x", "L_y"), sign("2 e_y + Σs", "2 e_x + Σs"),
                   "2 × " + Put(edge) + Legs(section, 2 * edge), PlainNumber(section.m_dLength),
                   "mm"});
  steps.push_back({kNet, "5.1.1", sign("A_{nx}", "A_{ny}"),
                   sign("(L_x − n_1 d_0) t", "(L_y − n_1 d_0) t"),
                   "(" + SubstitutedNumber(section.m_dLength) + " − " + holes + " × " +
                       SubstitutedNumber(m_r.m_dD0) + ") × " + t,
                   PlainNumber(section.m_dNet), "mm²"});
  const std::string share = m_bFriction ? "(1 − 0.5 n_1 / n) " : "";
  const std::string shareNumbers =
      m_bFriction ? "(1 − 0.5 × " + holes + " / " + std::to_string(m_r.m_nBolts) + ") × " : "";
  const char* symbol = m_bFriction ? sign("σ_{x2}", "σ_{y2}") : sign("σ_x", "σ_y");
  steps.push_back({kStress, "5.1.1", symbol, share + sign("|V_x| / A_{nx}", "|V_y| / A_{ny}"),
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

CReportVerdict CBoltReport::SectionVerdict(bool bX) const {
  const CPlateSection& section = bX ? m_judged.m_x : m_judged.m_y;
  const CCasePart& part = m_check.Parts()[m_bFriction ? (bX ? 1 : 2) : (bX ? 2 : 3)];
  const std::string symbol = bX ? "σ_x" : "σ_y";
  const std::string both = bX ? " = \\max(σ_{x1}, σ_{x2})" : " = \\max(σ_{y1}, σ_{y2})";
  const bool bBoth = m_bFriction && section.Holes() > 0;
  return {part.m_name,
          "5.1.1",
          symbol + " ≤ f" + (bBoth ? ",  " + symbol + both : ""),
          Relation(section.Worst(), m_r.m_dF, part.m_bPass) + " \\N/\\mm²",
          part.m_dUtilisation,
          part.m_bPass};
}

std::vector<CReportVerdict> CBoltReport::Verdicts() const {
  std::vector<CReportVerdict> verdicts;
  const std::span<const CCasePart> parts = m_check.Parts();
  const std::string shear =
      Put(m_judged.m_dNv) + " / (" + Put(m_r.m_dBeta) + " × " + Put(m_r.m_dNvb) + ")";
  const std::string tension = Put(m_judged.m_dNt) + " / " + Put(m_r.m_dNtb);
  const char* clauses[] = {"7.2.1, 7.2.4", "7.2.2, 7.2.4", "7.2.3, 7.2.4"};
  const char* clause = clauses[m_input.m_nType];
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
  m_body.Title(m_body.Text(kTitle) + id, m_check.Pass(), m_check.Worst().m_dUtilisation);
  m_body.Warnings(m_check.Warnings());
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
  return CBoltReport(input, check, language).Write();
}

}  // namespace orv3
