// The report of a group of fillet welds: GB 50017-2017, 11.2.2; GB 50017-2003, 7.1.3.
#include <algorithm>
#include <cmath>

#include "codes/weld_strength.h"
#include "connections/cases/case_rules.h"
#include "connections/check_math.h"
#include "connections/report/connection_report.h"
#include "connections/report/detail_verdicts.h"
#include "connections/report/torque_arrow.h"
#include "framework/plain_number.h"
#include "framework/utf8.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

constexpr double kGroupWidth = 640;
constexpr double kGroupHeight = 260;
constexpr double kGroupMargin = 56;
constexpr std::size_t kMostDrawn = 1000;  // welds
constexpr std::size_t kMostNumbered = 40;

// The welds to scale with the centroid, the point of the loads and the most stressed point.
class CGroupPainter {
 public:
  CGroupPainter(const CWeldGroupCase& input, const CWeldGroupCheck& check)
      : m_input(input), m_check(check) {
    Reach(input.m_dX, input.m_dY);
    for (const CWeldLine& weld : check.Welds()) {
      Reach(weld.m_dX1, weld.m_dY1);
      Reach(weld.m_dX2, weld.m_dY2);
    }
    const double width = std::max(m_dRight - m_dLeft, 1.0);
    const double height = std::max(m_dTop - m_dBottom, 1.0);
    m_dScale = std::min((kGroupWidth - 4 * kGroupMargin) / width, kGroupHeight / height);
    m_drawing = CDrawing(kGroupWidth, m_dScale * (m_dTop - m_dBottom) + 2 * kGroupMargin);
    m_dOffset = (kGroupWidth - m_dScale * (m_dRight - m_dLeft)) / 2;
  }

  CDrawing Draw() {
    for (const CWeldLine& weld : m_check.Welds())
      m_drawing.AddLine(CLayer::Outline, At(weld.m_dX1, weld.m_dY1), At(weld.m_dX2, weld.m_dY2));
    Numbers();
    Extents();
    const CWeldGroupResults& r = m_check.Results();
    const CPoint centroid = At(r.m_dXc, r.m_dYc);
    m_drawing.AddLine(CLayer::CentroidAxis, {m_dOffset - 20, centroid.y},
                      {kGroupWidth - m_dOffset + 20, centroid.y});
    m_drawing.AddLine(CLayer::CentroidAxis, {centroid.x, kGroupMargin - 20},
                      {centroid.x, m_drawing.Height() - kGroupMargin + 20});
    const CPoint worst = At(r.m_dX, r.m_dY);
    m_drawing.AddArea(CLayer::CentroidAxis, {CirclePath(worst, 4)});
    m_drawing.AddLabel({.m_nLayer = CLayer::CentroidAxis,
                        .m_at = {worst.x + 8, worst.y + 10},
                        .m_strText = FromUtf8("max"),
                        .m_nAnchor = CAnchor::Left});
    Loads();
    return std::move(m_drawing);
  }

 private:
  // At a third of each weld, since the axes pass its middle; as many as can be told apart.
  void Numbers() {
    const std::vector<CWeldLine>& welds = m_check.Welds();
    if (welds.size() > kMostNumbered) return;
    for (std::size_t i = 0; i < welds.size(); ++i) {
      const CWeldLine& weld = welds[i];
      const CPoint at = At((2 * weld.m_dX1 + weld.m_dX2) / 3, (2 * weld.m_dY1 + weld.m_dY2) / 3);
      // Beside the weld, above it where it lies flat.
      const double x = -(weld.m_dY2 - weld.m_dY1) / weld.Length();
      const double y = (weld.m_dX2 - weld.m_dX1) / weld.Length();
      const double sense = y < -1e-9 || (y <= 1e-9 && x < 0) ? -12 : 12;
      m_drawing.AddLabel({.m_at = {at.x + sense * x, at.y + sense * y},
                          .m_strText = FromUtf8(std::to_string(i + 1)),
                          .m_nAnchor = CAnchor::Middle});
    }
  }

  // Width and height of the welds, mm.
  void Extents() {
    double left = HUGE_VAL, right = -HUGE_VAL, bottom = HUGE_VAL, top = -HUGE_VAL;
    for (const CWeldLine& weld : m_check.Welds()) {
      left = std::min({left, weld.m_dX1, weld.m_dX2});
      right = std::max({right, weld.m_dX1, weld.m_dX2});
      bottom = std::min({bottom, weld.m_dY1, weld.m_dY2});
      top = std::max({top, weld.m_dY1, weld.m_dY2});
    }
    const auto dimension = [&](CPoint from, CPoint to, bool bVertical, double line, double size) {
      if (IsZero(size)) return;
      CDimension each;
      each.m_bVertical = bVertical;
      each.m_from = from;
      each.m_to = to;
      each.m_dLine = line;
      each.m_strText = FromUtf8(PlainNumber(size));
      each.m_dTextAt = bVertical ? (from.y + to.y) / 2 : (from.x + to.x) / 2;
      m_drawing.AddDimension(each);
    };
    dimension(At(left, bottom), At(right, bottom), false, 18, right - left);
    dimension(At(left, bottom), At(left, top), true, m_dOffset - 38, top - bottom);
  }

  void Reach(double x, double y) {
    m_dLeft = std::min(m_dLeft, x);
    m_dRight = std::max(m_dRight, x);
    m_dBottom = std::min(m_dBottom, y);
    m_dTop = std::max(m_dTop, y);
  }

  CPoint At(double x, double y) const {
    return {m_dOffset + m_dScale * (x - m_dLeft), kGroupMargin + m_dScale * (y - m_dBottom)};
  }

  void Loads() {
    const CPoint at = At(m_input.m_dX, m_input.m_dY);
    m_drawing.AddCircle(CLayer::Text, at, 3);
    const auto force = [&](double load, CPoint way, const char* name) {
      if (IsZero(load)) return;
      const double sense = load > 0 ? 1 : -1;
      const CPoint tip = {at.x + sense * 38 * way.x, at.y + sense * 38 * way.y};
      m_drawing.AddArrow(CLayer::Text, at, tip);
      m_drawing.AddLabel({.m_at = {tip.x + 6, tip.y + 4},
                          .m_strText = FromUtf8(name),
                          .m_nAnchor = CAnchor::Left});
    };
    force(m_input.m_dVx, {1, 0}, "Vx");
    force(m_input.m_dVy, {0, 1}, "Vy");
    if (!IsZero(m_input.m_dT)) AddTorque(m_drawing, at, m_input.m_dT < 0);
  }

  const CWeldGroupCase& m_input;
  const CWeldGroupCheck& m_check;
  double m_dLeft = HUGE_VAL;
  double m_dRight = -HUGE_VAL;
  double m_dBottom = HUGE_VAL;
  double m_dTop = -HUGE_VAL;
  double m_dScale = 1;
  double m_dOffset = 0;
  CDrawing m_drawing{kGroupWidth, 2 * kGroupMargin};
};

class CGroupReport {
 public:
  CGroupReport(const CWeldGroupCase& input, const CWeldGroupCheck& check, CLanguage language)
      : m_input(input),
        m_check(check),
        m_r(check.Results()),
        m_point(check.WorstPoint()),
        m_b2017(check.Edition() == CCodeEdition::Gb2017),
        m_body(language) {}

  std::string Write();

 private:
  void Inputs();
  void Step(CTextLiteral name, const std::string& symbol, const std::string& formula,
            const std::string& numbers, double result, const char* unit,
            const std::string& clause = "");
  void Group();
  void LoadsAtCentroid();
  void Stresses();
  std::vector<CReportVerdict> Verdicts() const;
  const char* Clause() const { return m_b2017 ? "11.2.2" : "7.1.3"; }

  const CWeldGroupCase& m_input;
  const CWeldGroupCheck& m_check;
  const CWeldGroupResults& m_r;
  const CWeldPoint& m_point;
  const bool m_b2017;
  CReportBody m_body;
  std::vector<CReportStep> m_arrStep;
};

void CGroupReport::Step(CTextLiteral name, const std::string& symbol, const std::string& formula,
                        const std::string& numbers, double result, const char* unit,
                        const std::string& clause) {
  m_arrStep.push_back({name, clause, symbol, formula, numbers, PlainNumber(result), unit});
}

void CGroupReport::Inputs() {
  const auto keys = CWeldGroupCheck::InputKeys();
  auto lines = InputLines(m_input, keys, m_body.Language());
  std::vector<CReportBody::CInputLine> used;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string key = keys[i].m_szKey;
    if (key == "id" || (key == "electrode" && m_input.m_nElectrode < 0)) continue;
    if (key == "joint" && m_input.m_nJoint < 0) continue;
    if (key == "joint") lines[i].m_strValue = m_body.Text({"搭接", "lap"});
    if (key == "welds") {
      lines[i].m_strValue = std::to_string(m_check.Welds().size());
      lines[i].m_strUnit = "";
    }
    used.push_back(lines[i]);
  }
  for (std::size_t i = 0; i < std::min(m_check.Welds().size(), kMostDrawn); ++i) {
    const CWeldLine& weld = m_check.Welds()[i];
    const std::string number = std::to_string(i + 1);
    const CText name = {"焊缝 " + number + "：两端，hf", "weld " + number + ": ends, hf"};
    used.push_back({name.In(m_body.Language()),
                    "(" + PlainNumber(weld.m_dX1) + ", " + PlainNumber(weld.m_dY1) + ")–(" +
                        PlainNumber(weld.m_dX2) + ", " + PlainNumber(weld.m_dY2) + "), " +
                        PlainNumber(weld.m_dHf),
                    "mm"});
  }
  m_body.Inputs(used);
}

void CGroupReport::Group() {
  Step({"焊缝计算面积", "Throat area"}, "A", "Σ(0.7 h_f l)", "", m_r.m_dA, "mm²", Clause());
  Step({"形心横坐标", "Centroid along x"}, "x_c", "Σ(0.7 h_f l x) / A", "", m_r.m_dXc, "mm");
  Step({"形心纵坐标", "Centroid along y"}, "y_c", "Σ(0.7 h_f l y) / A", "", m_r.m_dYc, "mm");
  Step({"惯性矩", "Moment of inertia"}, "I_x", "Σ 0.7 h_f l (y^2 + Δy^2 / 12)", "", m_r.m_dIx,
       "mm⁴");
  Step({"惯性矩", "Moment of inertia"}, "I_y", "Σ 0.7 h_f l (x^2 + Δx^2 / 12)", "", m_r.m_dIy,
       "mm⁴");
  Step({"惯性积", "Product of inertia"}, "I_{xy}", "Σ 0.7 h_f l (x y + Δx Δy / 12)", "", m_r.m_dIxy,
       "mm⁴");
  Step({"极惯性矩", "Polar moment"}, "J", "I_x + I_y", Put(m_r.m_dIx) + " + " + Put(m_r.m_dIy),
       m_r.m_dJ, "mm⁴");
}

void CGroupReport::LoadsAtCentroid() {
  const std::string x = "(" + Put(m_input.m_dX) + " − " + Put(m_r.m_dXc) + ")";
  const std::string y = "(" + Put(m_input.m_dY) + " − " + Put(m_r.m_dYc) + ")";
  Step({"形心处扭矩", "Torque at the centroid"}, "T_c", "T + V_y (x − x_c) − V_x (y − y_c)",
       Put(m_input.m_dT) + " + " + Put(m_input.m_dVy) + " × " + x + " − " + Put(m_input.m_dVx) +
           " × " + y,
       m_r.m_dTorque, "kN·mm");
  if (IsZero(m_input.m_dN) && IsZero(m_input.m_dM)) return;
  Step({"形心处弯矩（随 y）", "Moment at the centroid, by y"}, "M_x", "M + N (y − y_c)",
       Put(m_input.m_dM) + " + " + Put(m_input.m_dN) + " × " + y, m_r.m_dMx, "kN·mm");
  Step({"形心处弯矩（随 x）", "Moment at the centroid, by x"}, "M_y", "N (x − x_c)",
       Put(m_input.m_dN) + " × " + x, m_r.m_dMy, "kN·mm");
}

// At the most stressed point.
void CGroupReport::Stresses() {
  const std::string A = Put(m_r.m_dA);
  const std::string J = Put(m_r.m_dJ);
  const std::string dx = "(" + Put(m_r.m_dX) + " − " + Put(m_r.m_dXc) + ")";
  const std::string dy = "(" + Put(m_r.m_dY) + " − " + Put(m_r.m_dYc) + ")";
  const std::string T = Put(m_r.m_dTorque);
  Step({"受力最大点（max）", "Most stressed point (max)"}, "x", "", "", m_r.m_dX, "mm");
  Step({"受力最大点（max）", "Most stressed point (max)"}, "y", "", "", m_r.m_dY, "mm");
  Step({"x 向应力", "Stress along x"}, "τ_x", "V_x / A − T_c (y − y_c) / J",
       Put(m_input.m_dVx) + " × 1000 / " + A + " − " + T + " × 1000 × " + dy + " / " + J,
       m_point.m_dTauX, "N/mm²");
  Step({"y 向应力", "Stress along y"}, "τ_y", "V_y / A + T_c (x − x_c) / J",
       Put(m_input.m_dVy) + " × 1000 / " + A + " + " + T + " × 1000 × " + dx + " / " + J,
       m_point.m_dTauY, "N/mm²");
  if (!IsZero(m_input.m_dN) || !IsZero(m_input.m_dM)) {
    const CTensionPlane& plane = m_check.Tension();
    Step({"平面外应力", "Stress out of the plane"}, "σ_N", "N / A + a (x − x_c) + b (y − y_c)",
         Put(plane.m_dAt) + " + " + Put(plane.m_dX) + " × " + dx + " + " + Put(plane.m_dY) + " × " +
             dy,
         m_point.m_dOut, "N/mm²");
  }
  const CWeldLine& weld = m_check.Welds()[static_cast<std::size_t>(m_point.m_nWeld)];
  const std::string ux = Put((weld.m_dX2 - weld.m_dX1) / weld.Length());
  const std::string uy = Put((weld.m_dY2 - weld.m_dY1) / weld.Length());
  const std::string tx = Put(m_point.m_dTauX);
  const std::string ty = Put(m_point.m_dTauY);
  Step({"沿焊缝的剪应力", "Stress along the weld"}, "τ_f", "τ_x u_x + τ_y u_y",
       tx + " × " + ux + " + " + ty + " × " + uy, m_r.m_dTau, "N/mm²");
  Step({"平面内垂直于焊缝的应力", "Stress across the weld, in the plane"}, "σ_V",
       "τ_y u_x − τ_x u_y", ty + " × " + ux + " − " + tx + " × " + uy, m_r.m_dAcross, "N/mm²");
  const std::string v = Put(m_r.m_dAcross);
  const std::string n = Put(m_r.m_dOut);
  const std::string across =
      "√(" + v + "^2 + " + n + "^2" + (m_input.m_dBetaF == 1 ? ")" : " + |" + v + " × " + n + "|)");
  Step({"垂直于焊缝的应力", "Stress across the weld"}, "σ_f",
       m_input.m_dBetaF == 1 ? "√(σ_V^2 + σ_N^2)" : "√(σ_V^2 + σ_N^2 + |σ_V σ_N|)", across,
       m_point.m_dSigma, "N/mm²", Clause());
  Step({"综合应力", "Combined stress"}, "σ_{fs}", "√((σ_f / β_f)^2 + τ_f^2)",
       "√((" + PlainNumber(m_point.m_dSigma) + " / " + PlainNumber(m_input.m_dBetaF) + ")^2 + " +
           Put(m_r.m_dTau) + "^2)",
       m_r.m_dCombined, "N/mm²", Clause());
}

std::vector<CReportVerdict> CGroupReport::Verdicts() const {
  const CCasePart& part = m_check.Parts().front();
  const bool bReduced = m_r.m_dAlphaF < 1;
  std::vector<CReportVerdict> verdicts = {
      {part.m_name,
       !bReduced ? Clause()
       : m_b2017 ? "11.2.2, 11.2.6"
                 : "7.1.3, 8.2.7",
       std::string("√((σ_f / β_f)^2 + τ_f^2) ≤ ") + (bReduced ? "α_f f_f^w" : "f_f^w"),
       Relation(m_r.m_dCombined, m_r.m_dAlphaF * m_r.m_dFfw, part.m_bPass) + " \\N/\\mm²",
       part.m_dUtilisation, part.m_bPass}};
  AddDetailVerdicts(m_check.Details(), std::span(m_check.Parts()).subspan(1), verdicts);
  return verdicts;
}

std::string CGroupReport::Write() {
  static constexpr CTextLiteral kTitle = {"角焊缝群验算", "Group of fillet welds"};
  static constexpr CTextLiteral kCaption = {
      "焊缝群（按比例，mm）及焊缝编号。点划线：形心轴；红点 max：受力最大点；圆圈：荷载作用点。"
      "N、M 垂直于图面。",
      "The welds to scale and by number, mm. Chain lines: centroidal axes; red point max: the most "
      "stressed; circle: where the loads act. N and M act out of the plane."};
  const std::string id = m_input.m_strId.empty() ? "" : "　" + m_input.m_strId;
  m_body.Title(m_body.Text(kTitle) + id, m_check.Pass(), m_check.Worst().m_dUtilisation);
  m_body.Warnings(m_check.Warnings());
  m_body.Heading({"一、输入", "1  Input"});
  Inputs();
  if (m_check.Welds().size() <= kMostDrawn)
    m_body.Figure(CGroupPainter(m_input, m_check).Draw(), m_body.Text(kCaption));
  m_body.Heading({"二、计算", "2  Calculation"});
  Step({"角焊缝强度设计值", "Design strength of the fillet weld"}, "f_f^w", "", "", m_r.m_dFfw,
       "N/mm²", m_b2017 ? "T 4.4.5" : "T 3.4.1-3");
  Group();
  LoadsAtCentroid();
  Stresses();
  if (m_r.m_dAlphaF < 1) {
    const double hf = m_check.Welds()[static_cast<std::size_t>(m_point.m_nWeld)].m_dHf;
    const std::string run = Put(m_check.WorstRun());
    const std::string leg = Put(hf);
    if (m_b2017) {
      Step({"搭接长焊缝折减", "Long lap weld"}, "α_f", "\\max(1.5 − l_w / (120 h_f), 0.5)",
           "\\max(1.5 − " + run + " / (120 × " + leg + "), 0.5)", m_r.m_dAlphaF, "", "11.2.6");
    } else {
      Step({"计 60 hf 的长度", "60 hf of the length count"}, "α_f", "60 h_f / l_w",
           "60 × " + leg + " / " + run, m_r.m_dAlphaF, "", "8.2.7");
    }
  }
  m_body.Steps(m_arrStep);
  m_body.Heading({"三、验算结论", "3  Verdicts"});
  m_body.Verdicts(Verdicts());
  m_body.Note({"单位：长度 mm，力 kN，力矩 kN·mm，应力 N/mm²。",
               "Units: lengths mm, forces kN, moments kN·mm, stresses N/mm²."});
  return m_body.Take();
}

}  // namespace

std::string CaseReport(const CWeldGroupCase& input, const CWeldGroupCheck& check,
                       CLanguage language) {
  return CGroupReport(input, check, language).Write();
}

}  // namespace orv3
