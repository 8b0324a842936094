// The report of a bolt group: GB 50017-2003, 7.2.1 to 7.2.4 and 5.1.1; GB 50017-2017, 11.4, 11.5
// and 7.1.1.
#include <span>
#include <utility>

#include "codes/slip.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/bolt_drawing.h"
#include "connections/report/bolt_steps.h"
#include "connections/report/connection_report.h"
#include "connections/report/detail_verdicts.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

class CBoltReport : CBoltFacts {
 public:
  CBoltReport(const CBoltView& view, CLanguage language) : CBoltFacts(view), m_body(language) {}

  std::string Write();

 private:
  void Inputs();
  void Figure();
  std::vector<CReportVerdict> Verdicts() const;
  CTextLiteral SurfaceText() const;

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
    if (key == "threads") line.m_strValue = m_body.Text(kThreads[m_judged.m_bThreads]);
    if (key == "edges") line.m_strValue = m_body.Text(kEdges[m_view.m_pInput2017->m_nEdges == 1]);
    used.push_back(line);
  }
  m_body.Inputs(used);
}

CTextLiteral CBoltReport::SurfaceText() const {
  return SurfaceName(m_view.Is2017() ? CCodeEdition::Gb2017 : CCodeEdition::Gb2003,
                     m_input.m_nSurface);
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
  static constexpr CTextLiteral kTorque = {
      "T 按与剪力叠加更不利的转向绘出。", " T is drawn in the sense that is worse with the shear."};
  static constexpr CTextLiteral kTooMany = {"螺栓数过多，未绘图。",
                                            "Not drawn: the group has too many bolts."};
  if (m_r.m_nBolts > kMostDrawnBolts) return m_body.Note(kTooMany);
  std::string caption = m_body.Text(kCaption);
  if (m_judged.m_x.Holes() > 0) caption += m_body.Text(kCuts[0]);
  if (m_judged.m_y.Holes() > 0) caption += m_body.Text(kCuts[m_judged.m_x.Holes() > 0 ? 2 : 1]);
  const bool bAcross = !IsZero(m_input.m_dN) || !IsZero(m_input.m_dM);
  caption += m_body.Text(bAcross ? kAcross : kEnd);
  if (!IsZero(m_input.m_dT)) caption += m_body.Text(kTorque);
  m_body.Figure(BoltGroupDrawing(m_view), caption);
}

std::vector<CReportVerdict> CBoltReport::Verdicts() const {
  std::vector<CReportVerdict> verdicts;
  const std::span<const CCasePart> parts = m_view.m_answer.Parts();
  const std::string shear =
      Put(m_judged.m_dNv) + " / (" + Put(m_r.m_dBeta) + " × " + Put(m_judged.m_dShear) + ")";
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
  verdicts.push_back(BoltSectionVerdict(*this, true));
  verdicts.push_back(BoltSectionVerdict(*this, false));
  if (!m_view.Is2017()) return verdicts;
  AddDetailVerdicts(m_view.m_p2017->Details(), parts.subspan(verdicts.size()), verdicts);
  return verdicts;
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
  m_body.Steps(BoltGeometry(*this));
  m_body.Heading({"三、强度设计值", "3  Design strengths"});
  m_body.Steps(BoltStrengths(*this));
  m_body.Heading({"四、单个螺栓承载力", "4  Resistance of one bolt"});
  m_body.Steps(BoltResistances(*this));
  m_body.Heading({"五、受力最大螺栓的内力", "5  Forces on the most stressed bolt"});
  m_body.Steps(BoltForces(*this));
  m_body.Heading({"六、长连接折减", "6  Long joint"});
  m_body.Steps(BoltLongJoint(*this));
  const std::vector<CReportStep> sections = BoltSections(*this);
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
