// The sections of the plate in the report of a bolt group.
#include <algorithm>
#include <cmath>
#include <utility>

#include "connections/report/bolt_steps.h"
#include "framework/elementary.h"

namespace orv3 {
namespace {

using CSteps = std::vector<CReportStep>;

// What a hole takes out of the section against Vx or Vy.
std::string HoleOut(const CBoltFacts& b, bool bX) {
  if (!b.m_view.Is2017()) return SubstitutedNumber(b.m_r.m_dD0);
  const CBoltTrace2017& trace = b.m_view.m_p2017->Trace();
  return SubstitutedNumber(bX ? trace.m_dHoleX : trace.m_dHoleY);
}

// The legs of a section's cut after its edges, as " + 3 × 80 + 52.2": equal ones together, and what
// runs straight on to an edge past a line that is not cut.
std::string Legs(const CPlateSection& section, double edges) {
  std::vector<std::pair<double, int>> legs;
  double rest = section.m_dLength - edges;
  for (std::size_t i = 1; i < section.m_arrHole.size(); ++i) {
    const CHole& from = section.m_arrHole[i - 1];
    const CHole& to = section.m_arrHole[i];
    const double leg = Hypot(to.m_x - from.m_x, to.m_y - from.m_y);
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

// What the verdict holds against f, the gross section first where it is looked at.
void Section(const CBoltFacts& b, bool bX, CSteps& steps) {
  const CPlateSection& section = bX ? b.m_judged.m_x : b.m_judged.m_y;
  if (section.Holes() == 0) return;
  const auto sign = [bX](const char* szX, const char* szY) { return bX ? szX : szY; };
  const double edge = bX ? b.m_input.m_dEy : b.m_input.m_dEx;
  const std::string t = Put(b.m_input.m_dThick);
  const std::string V = Put(std::fabs(bX ? b.m_input.m_dVx : b.m_input.m_dVy));
  const std::string holes = std::to_string(section.Holes());
  static constexpr CTextLiteral kStress = {"其应力", "Its stress"};
  if (b.m_bFriction || b.m_view.Is2017()) {
    const double sum = bX ? b.m_shape.m_dHeight : b.m_shape.m_dWidth;
    static constexpr CTextLiteral kGross[] = {{"抵抗 Vy 的毛截面", "Gross section for Vy"},
                                              {"抵抗 Vx 的毛截面", "Gross section for Vx"}};
    steps.push_back({kGross[bX], b.m_clauses.m_szSection, sign("A_x", "A_y"),
                     sign("(2 e_y + Σs_r) t", "(2 e_x + Σs_c) t"),
                     "(2 × " + Put(edge) + " + " + SubstitutedNumber(sum) + ") × " + t,
                     PlainNumber(section.m_dGross), "mm²"});
    steps.push_back({kStress, b.m_clauses.m_szSection, sign("σ_{x1}", "σ_{y1}"),
                     sign("|V_x| / A_x", "|V_y| / A_y"),
                     V + " × 1000 / " + SubstitutedNumber(section.m_dGross),
                     PlainNumber(section.m_dSigmaGross), "N/mm²"});
  }
  static constexpr CTextLiteral kLength[] = {
      {"抵抗 Vy 的最不利截面（1）之长", "Length of the worst section for Vy (1)"},
      {"抵抗 Vy 的最不利截面（2）之长", "Length of the worst section for Vy (2)"},
      {"抵抗 Vx 的最不利截面（1）之长", "Length of the worst section for Vx (1)"}};
  static constexpr CTextLiteral kNet = {"其净面积", "Its net area"};
  if (b.m_view.Is2017()) {
    const CBoltTrace2017& trace = b.m_view.m_p2017->Trace();
    const bool bSlot = trace.HoleRoom(bX) > b.m_r.m_dD0;  // the slot's length lies in the section
    steps.push_back({{"孔的削弱宽度", "What a hole takes out"},
                     "11.5.2",
                     "d_c",
                     bSlot ? "\\max(l_0, d + 4)" : "\\max(d_0, d + 4)",
                     "\\max(" + SubstitutedNumber(trace.HoleRoom(bX)) + ", " +
                         std::to_string(b.m_input.m_nD) + " + 4)",
                     HoleOut(b, bX),
                     "mm"});
  }
  const int name = bX ? 2 : b.m_judged.m_x.Holes() > 0 ? 1 : 0;
  steps.push_back({kLength[name], b.m_clauses.m_szSection, sign("L_x", "L_y"),
                   sign("2 e_y + Σs", "2 e_x + Σs"), "2 × " + Put(edge) + Legs(section, 2 * edge),
                   PlainNumber(section.m_dLength), "mm"});
  steps.push_back({kNet, b.m_clauses.m_szSection, sign("A_{nx}", "A_{ny}"),
                   b.m_view.Is2017() ? sign("(L_x − n_1 d_c) t", "(L_y − n_1 d_c) t")
                                     : sign("(L_x − n_1 d_0) t", "(L_y − n_1 d_0) t"),
                   "(" + SubstitutedNumber(section.m_dLength) + " − " + holes + " × " +
                       HoleOut(b, bX) + ") × " + t,
                   PlainNumber(section.m_dNet), "mm²"});
  const std::string share = b.m_bFriction ? "(1 − 0.5 n_1 / n) " : "";
  const std::string shareNumbers =
      b.m_bFriction ? "(1 − 0.5 × " + holes + " / " + std::to_string(b.m_r.m_nBolts) + ") × " : "";
  const char* symbol =
      b.m_bFriction || b.m_view.Is2017() ? sign("σ_{x2}", "σ_{y2}") : sign("σ_x", "σ_y");
  steps.push_back({kStress, b.m_clauses.m_szSection, symbol,
                   share + sign("|V_x| / A_{nx}", "|V_y| / A_{ny}"),
                   shareNumbers + V + " × 1000 / " + SubstitutedNumber(section.m_dNet),
                   PlainNumber(section.m_dSigma), "N/mm²"});
}

}  // namespace

std::vector<CReportStep> BoltSections(const CBoltFacts& b) {
  CSteps steps;
  Section(b, true, steps);
  Section(b, false, steps);
  return steps;
}

CReportVerdict BoltSectionVerdict(const CBoltFacts& b, bool bX) {
  const CPlateSection& section = bX ? b.m_judged.m_x : b.m_judged.m_y;
  const CCasePart& part = b.m_view.m_answer.Parts()[b.m_bFriction ? (bX ? 1 : 2) : (bX ? 2 : 3)];
  if (b.m_view.Is2017() && section.Holes() > 0) {
    const double limit = 0.7 * b.m_view.m_p2017->Results().m_dFu;
    const bool bNet = section.m_dSigma / limit >= section.m_dSigmaGross / b.m_r.m_dF;
    return {part.m_name,
            b.m_clauses.m_szSection,
            bX ? "σ_{x1} ≤ f,  σ_{x2} ≤ 0.7 f_u" : "σ_{y1} ≤ f,  σ_{y2} ≤ 0.7 f_u",
            Relation(bNet ? section.m_dSigma : section.m_dSigmaGross, bNet ? limit : b.m_r.m_dF,
                     part.m_bPass) +
                " \\N/\\mm²",
            part.m_dUtilisation,
            part.m_bPass};
  }
  const std::string symbol = bX ? "σ_x" : "σ_y";
  const std::string both = bX ? " = \\max(σ_{x1}, σ_{x2})" : " = \\max(σ_{y1}, σ_{y2})";
  const bool bBoth = b.m_bFriction && section.Holes() > 0;
  return {part.m_name,
          b.m_clauses.m_szSection,
          symbol + " ≤ f" + (bBoth ? ",  " + symbol + both : ""),
          Relation(section.Worst(), b.m_r.m_dF, part.m_bPass) + " \\N/\\mm²",
          part.m_dUtilisation,
          part.m_bPass};
}

}  // namespace orv3
