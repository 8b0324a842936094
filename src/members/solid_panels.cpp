// Webs in bending and shear that may buckle between their stiffeners: GB 50017-2017, 6.3; GB
// 50017-2003, 4.3. Of the moments and shears alone, as the lateral buckling is: the normal force of
// a beam-column has its limits in 8.4 (2003: 5.4).
#include <algorithm>
#include <cmath>
#include <vector>

#include "codes/width_limits.h"
#include "members/solid_check.h"
#include "members/web_panel.h"

namespace orv3 {
namespace {

constexpr const char* kStressTerm = "({σ}/{σcr})² + ({τ}/{τcr})²";

// Of 2 hc/tw by epsilon-k, 6.3.2; 2003: 4.3.2.
constexpr double LongitudinalLimit(bool bRestrained) { return bRestrained ? 170 : 150; }

}  // namespace

// The webs of Vy, and of a box the flanges that are the webs of Vx.
std::vector<CSolidCheck::CPanel> CSolidCheck::SlenderPanels() const {
  std::vector<CPanel> panels;
  const double limit = *StiffenerLimit(m.m_nEdition, m.m_nGrade);
  const auto add = [&](const CPanel& panel) {
    if ((panel.m_dM != 0 || panel.m_dV != 0) && panel.m_dH0 > limit * panel.m_dTw)
      panels.push_back(panel);
  };
  if (s.m_dTw <= 0 || s.m_nShape == CMemberShape::T) return panels;
  const double depth = s.m_dHeight - s.m_top.m_dThick - s.m_bottom.m_dThick;
  // Without Mx either sense may come: the deeper compressed part.
  const double hc = q.m_x.IsZero()          ? std::max(s.m_dWebTop, s.m_dWebBottom)
                    : m_nSide == CSide::Top ? s.m_dWebTop
                                            : s.m_dWebBottom;
  add({s.m_dH0, s.m_dTw, hc, depth * s.m_nWebs * s.m_dTw, std::fabs(m_dMx), std::fabs(q.m_dVy),
       s.m_dIx, m.m_dFv, q.m_x.HasLoad() && !q.m_x.HasEnds()});
  if (s.m_nShape != CMemberShape::Box) return panels;
  const double both = s.m_top.m_dThick + s.m_bottom.m_dThick;
  add({s.m_dB0, std::min(s.m_top.m_dThick, s.m_bottom.m_dThick), s.m_dB0 / 2, s.m_dB0 * both, m_dMy,
       std::fabs(q.m_dVx), s.m_dIy, m.m_dFvX, q.m_y.HasLoad() && !q.m_y.HasEnds()});
  return panels;
}

CSolidCheck::CPanelFigures CSolidCheck::PanelFigures(const CPanel& p) const {
  const double ek = r.m_dEpsilonK, slender = p.m_dH0 / p.m_dTw, twice = 2 * p.m_dHc / p.m_dTw;
  const double a1 = q.m_dStiffeners;
  CPanelFigures x;
  x.m_dLambdaB = PanelBendingSlenderness(m.m_nEdition, q.m_bRestrained, twice, ek);
  x.m_dLambdaS = PanelShearSlenderness(m.m_nEdition, p.m_bSimpleSpan, p.m_dH0, p.m_dTw, a1, ek);
  x.m_dSigma = p.m_dM * p.m_dHc / p.m_dI;
  x.m_dTau = p.m_dV / p.m_dA;
  x.m_dSigmaCr = PanelCriticalStress(x.m_dLambdaB, F());
  x.m_dTauCr = PanelCriticalShear(x.m_dLambdaS, p.m_dFv);
  const auto worse = [&x](double ratio, const char* clause, const char* formula) {
    if (!(ratio > x.m_dRatio)) return;
    x.m_dRatio = ratio;
    x.m_szClause = clause;
    x.m_szFormula = formula;
  };
  const double bending = x.m_dSigma / x.m_dSigmaCr, shear = x.m_dTau / x.m_dTauCr;
  x.m_dStressTerm = bending * bending + shear * shear;
  worse(x.m_dStressTerm, Clause("6.3.3", "4.3.3"), kStressTerm);
  // 6.3.2: under direct dynamic load both stiffeners are a must; in 2003 the longitudinal ones are.
  if (q.m_bDynamic && a1 == 0)
    worse(slender / (80 * ek), Clause("6.3.2", "4.3.2"), "{h0}/{tw}/(80·{εk})");
  if (q.m_bDynamic || !Is2017()) {
    worse(twice / (LongitudinalLimit(q.m_bRestrained) * ek), Clause("6.3.2", "4.3.2"),
          q.m_bRestrained ? "2·{hc}/{tw}/(170·{εk})" : "2·{hc}/{tw}/(150·{εk})");
  }
  // 6.3.6; 2003: 4.3.6.
  if (a1 > 0) {
    const bool bStocky = slender <= 100;
    worse(0.5 * p.m_dH0 / a1, Clause("6.3.6", "4.3.6"), "0.5·{h0}/{a}");
    worse(a1 / ((bStocky ? 2.5 : 2) * p.m_dH0), Clause("6.3.6", "4.3.6"),
          bStocky ? "{a}/(2.5·{h0})" : "{a}/(2·{h0})");
  }
  return x;
}

void CSolidCheck::Panels() {
  const CPanel* worst = nullptr;
  const std::vector<CPanel> panels = SlenderPanels();
  for (const CPanel& each : panels) {
    if (worst == nullptr || PanelFigures(each).m_dRatio > PanelFigures(*worst).m_dRatio)
      worst = &each;
  }
  if (worst == nullptr) return;
  const bool bMust = q.m_bDynamic || !Is2017();
  if (q.m_dStiffeners > 0) {
    a.Note(CMemberNote::StiffenerPlates);
  } else {
    a.Note(bMust ? CMemberNote::NeedsStiffeners : CMemberNote::Stiffeners);
  }
  GivePanel(*worst, PanelFigures(*worst));
}

void CSolidCheck::GivePanel(const CPanel& p, const CPanelFigures& x) {
  const double a1 = q.m_dStiffeners;
  a.Open(CMemberCheckKind::Panel, x.m_szClause);
  a.Step("h0", nullptr, p.m_dH0, "mm");
  a.Step("tw", nullptr, p.m_dTw, "mm");
  a.Step("hc", nullptr, p.m_dHc, "mm");
  if (a1 > 0) a.Step("a", nullptr, a1, "mm");
  a.Step("M", nullptr, p.m_dM, "N·mm");
  a.Step("I", nullptr, p.m_dI, "mm⁴");
  a.Step("σ", "{M}·{hc}/{I}", x.m_dSigma, "N/mm²");
  a.Step("λn,b",
         q.m_bRestrained ? "2·{hc}/{tw}/177/{εk}"
         : Is2017()      ? "2·{hc}/{tw}/138/{εk}"
                         : "2·{hc}/{tw}/153/{εk}",
         x.m_dLambdaB);
  a.Step("σcr",
         x.m_dLambdaB <= 0.85   ? "{f}"
         : x.m_dLambdaB <= 1.25 ? "(1 − 0.75·({λn,b} − 0.85))·{f}"
                                : "1.1·{f}/{λn,b}²",
         x.m_dSigmaCr, "N/mm²");
  a.Step("V", nullptr, p.m_dV, "N");
  a.Step("Aw", nullptr, p.m_dA, "mm²");
  a.Step("τ", "{V}/{Aw}", x.m_dTau, "N/mm²");
  a.Step("kτ",
         a1 == 0         ? nullptr
         : a1 <= p.m_dH0 ? "4 + 5.34·({h0}/{a})²"
                         : "5.34 + 4·({h0}/{a})²",
         PanelShearFactor(p.m_dH0, a1));
  if (Is2017()) a.Step("ηs", nullptr, p.m_bSimpleSpan ? kPanelSimpleSpan : 1);
  a.Step("λn,s", Is2017() ? "{h0}/{tw}/(37·{ηs}·√({kτ}))/{εk}" : "{h0}/{tw}/(41·√({kτ}))/{εk}",
         x.m_dLambdaS);
  if (p.m_dFv != m.m_dFv) a.Step("fv", nullptr, p.m_dFv, "N/mm²");
  a.Step("τcr",
         x.m_dLambdaS <= 0.8   ? "{fv}"
         : x.m_dLambdaS <= 1.2 ? "(1 − 0.59·({λn,s} − 0.8))·{fv}"
                               : "1.1·{fv}/{λn,s}²",
         x.m_dTauCr, "N/mm²");
  if (x.m_szFormula != kStressTerm) a.Step("panel", kStressTerm, x.m_dStressTerm);
  a.Close(x.m_szFormula, x.m_dRatio);
}

}  // namespace orv3
