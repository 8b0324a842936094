#include "members/lattice_member.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "codes/slenderness_limits.h"
#include "framework/elementary.h"
#include "members/beam_column.h"
#include "members/lattice_check.h"
#include "members/slenderness.h"
#include "members/slenderness_steps.h"

namespace orv3 {

double CLatticeSection::PlaneAngle() const noexcept { return Atan2(m_dKy, m_dKx / 2); }

double CLatticeSection::WidestPlane() const noexcept {
  return std::max(m_dKx, Limbs() == 3 ? Hypot(m_dKx / 2, m_dKy) : m_dKy);
}

double CLatticeCheck::Phi(double lambda, CBucklingClass bucklingClass) const {
  return StabilityFactor(lambda, NominalYield(m.m_nGrade), bucklingClass);
}

void CLatticeCheck::Run() {
  RefuseWhatIsNotCovered();
  if (a.IsRefused()) return;
  Give();
  Slenderness();
  Whole();
  LimbStability();
  LimbStrength();
  SlendernessCheck();
  LimbPlates();
  LimbSlenderness();
  Bond();
}

void CLatticeCheck::RefuseWhatIsNotCovered() {
  if (m_dN == 0) {
    return a.Refuse("N",
                    {"格构柱只验算受压", "a lattice column is checked under compression alone"},
                    {"请给出压力（负值）", "give a compression, below 0"});
  }
  if (s.Limbs() == 3 && !IsLaced()) {
    return a.Refuse("section.lacing",
                    {"三肢柱没有缀板的公式", "the code has no battens for three limbs"},
                    {"请用缀条", "take lacing"});
  }
  if (m_dM == 0) return;
  if (s.Limbs() != 2) {
    return a.Refuse(
        "Mx",
        {"三肢和四肢柱只验算轴心受压", "three and four limbs are checked for axial force alone"},
        {"请给 0，或用双肢柱", "give 0, or take two limbs"});
  }
  if (!IsLaced()) {
    a.Refuse("Mx",
             {"压弯缀板柱分肢的局部弯矩不在验算范围内",
              "the local bending of limbs with battens under a moment is not covered"},
             {"请给 0，或用缀条", "give 0, or take lacing"});
  }
}

void CLatticeCheck::Give() {
  r.m_dF = m.m_dF;
  r.m_dFv = m.m_dFv;
  r.m_dFy = m.m_dFy;
  r.m_dEpsilonK = EpsilonK(m.m_nGrade);
  r.m_dA = s.m_dA;
  r.m_szClassX = r.m_szClassY = "b";
  a.Step("f", nullptr, m.m_dF, "N/mm²");
  a.Step("fv", nullptr, m.m_dFv, "N/mm²");
  a.Step("fyk", nullptr, NominalYield(m.m_nGrade), "N/mm²");
  a.Step("εk", "√(235/{fyk})", r.m_dEpsilonK);
  a.Step("A", nullptr, s.m_dA, "mm²");
  a.Step("N", nullptr, m_dN, "N");
  if (m_dM > 0) a.Step("Mx", nullptr, m_dM, "N·mm");
}

// 7.2.3; 2003: 5.1.3. l1 of battens runs between their clear edges.
void CLatticeCheck::Slenderness() {
  GiveSlendernesses(a, q.m_dLx, q.m_dLy, s.m_dRx, s.m_dRy);
  m_dLambda1 = s.m_dL1 / s.m_dLimbR1;
  a.Step("l01", nullptr, s.m_dL1, "mm");
  a.Step("i1", nullptr, s.m_dLimbR1, "mm");
  a.Step("λ1", "{l01}/{i1}", m_dLambda1);
  if (IsLaced()) {
    Laced();
  } else {
    Battened();
  }
  r.m_dPhiX = Phi(LambdaX(), m.m_nClassX);
  r.m_dPhiY = Phi(LambdaY(), m.m_nClassY);
}

void CLatticeCheck::Laced() {
  a.Step("Ad", nullptr, s.m_dBarA, "mm²");
  if (s.Limbs() == 3) {
    const double A1 = 3 * s.m_dBarA;
    const double cosine = Cos(s.PlaneAngle());
    a.Step("A1", "3·{Ad}", A1, "mm²");
    a.Step("θ", nullptr, s.PlaneAngle() * 180 / std::numbers::pi, "°");
    m_dLambda0x = LacedSlenderness(r.m_dLambdaX, 42 / (1.5 - cosine * cosine), s.m_dA, A1);
    m_dLambda0y = LacedSlenderness(r.m_dLambdaY, 42 / (cosine * cosine), s.m_dA, A1);
    a.Step("λ0x", "√({λx}² + 42·{A}/({A1}·(1.5 − cos({θ}°)²)))", m_dLambda0x);
    a.Step("λ0y", "√({λy}² + 42·{A}/({A1}·cos({θ}°)²))", m_dLambda0y);
    return;
  }
  const double A1 = 2 * s.m_dBarA, factor = s.Limbs() == 2 ? 27 : 40;
  a.Step("A1", "2·{Ad}", A1, "mm²");
  m_dLambda0x = LacedSlenderness(r.m_dLambdaX, factor, s.m_dA, A1);
  a.Step("λ0x", s.Limbs() == 2 ? "√({λx}² + 27·{A}/{A1})" : "√({λx}² + 40·{A}/{A1})", m_dLambda0x);
  if (!IsOpenY()) return;
  m_dLambda0y = LacedSlenderness(r.m_dLambdaY, factor, s.m_dA, A1);
  a.Step("λ0y", "√({λy}² + 40·{A}/{A1})", m_dLambda0y);
}

void CLatticeCheck::Battened() {
  m_dLambda0x = BattenedSlenderness(r.m_dLambdaX, m_dLambda1);
  a.Step("λ0x", "√({λx}² + {λ1}²)", m_dLambda0x);
  if (!IsOpenY()) return;
  m_dLambda0y = BattenedSlenderness(r.m_dLambdaY, m_dLambda1);
  a.Step("λ0y", "√({λy}² + {λ1}²)", m_dLambda0y);
}

// 7.2.1; with a moment 8.2.2 about the open axis, and out of its plane the limbs in place of the
// whole.
void CLatticeCheck::Whole() {
  const double f = m.m_dF;
  a.Open(CMemberCheckKind::Strength,
         m_dM > 0 ? Clause("8.1.1", "5.2.1") : Clause("7.1.2", "5.1.1"));
  if (m_dM > 0) {
    a.Step("Wx", nullptr, s.m_dWx, "mm³");
    a.Close("({N}/{A} + {Mx}/{Wx})/{f}", (m_dN / s.m_dA + m_dM / s.m_dWx) / f);
    return MomentInPlane();
  }
  a.Close("{N}/({A}·{f})", m_dN / (s.m_dA * f));
  a.Open(CMemberCheckKind::StabilityX, Clause("7.2.1", "5.1.2"));
  a.Step("φx", nullptr, r.m_dPhiX);
  a.Close("{N}/({φx}·{A}·{f})", AxialTerm(m_dN, r.m_dPhiX, s.m_dA, f));
  a.Open(CMemberCheckKind::StabilityY, Clause("7.2.1", "5.1.2"));
  a.Step("φy", nullptr, r.m_dPhiY);
  a.Close("{N}/({φy}·{A}·{f})", AxialTerm(m_dN, r.m_dPhiY, s.m_dA, f));
}

void CLatticeCheck::MomentInPlane() {
  const double f = m.m_dF, NE = ReducedEulerForce(s.m_dA, m_dLambda0x);
  const CEquivalentMoment M = InPlaneMoment(m.m_nEdition, q.m_x, m_dN, 1.1 * NE, q.m_bSway);
  r.m_dBetaMx = M.m_dBeta;
  if (Is2017() && q.m_bSway && q.m_x.HasLoad()) a.Note(CMemberNote::SwayWithLoad);
  a.Open(CMemberCheckKind::StabilityX, Clause("8.2.2", "5.2.3"));
  a.Step("φx", nullptr, r.m_dPhiX);
  a.Step("N′Ex", "π²·206000·{A}/(1.1·{λ0x}²)", NE, "N");
  a.Step("βmx", nullptr, M.m_dBeta);
  a.Step("M", nullptr, M.m_dM, "N·mm");
  a.Step("Wx", nullptr, s.m_dWx, "mm³");
  // 2003: phi multiplies N / N'E.
  const double ratio = AxialTerm(m_dN, r.m_dPhiX, s.m_dA, f) +
                       AmplifiedTerm(M.m_dMoment, s.m_dWx, Is2017() ? 1 : r.m_dPhiX, m_dN, NE, f);
  a.Close(Is2017() ? "{N}/({φx}·{A}·{f}) + {βmx}·{M}/({Wx}·(1 − {N}/{N′Ex})·{f})"
                   : "{N}/({φx}·{A}·{f}) + {βmx}·{M}/({Wx}·(1 − {φx}·{N}/{N′Ex})·{f})",
          ratio);
}

// 7.4.6: lacing bars have the column's limit.
void CLatticeCheck::SlendernessCheck() {
  const auto of = [&](CMemberRole role) { return *SlendernessLimit(m.m_nEdition, role); };
  const double limit =
      TakenLimit(a, q.m_dLimit, of(CMemberRole::Compression), of(CMemberRole::CompressionBracing));
  const double sine = Sin(s.m_dAngle * std::numbers::pi / 180);
  const double bar = IsLaced() ? s.WidestPlane() / sine / s.m_dBarR : 0;
  const double lambda = std::max({LambdaX(), LambdaY(), bar});
  a.Open(CMemberCheckKind::Slenderness, Clause("7.4.6", "5.3.8"));
  if (IsLaced()) a.Step("λd", nullptr, bar);
  a.Step("λmax",
         IsLaced()   ? (IsOpenY() ? "max({λ0x}, {λ0y}, {λd})" : "max({λ0x}, {λy}, {λd})")
         : IsOpenY() ? "max({λ0x}, {λ0y})"
                     : "max({λ0x}, {λy})",
         lambda);
  a.Step("[λ]", nullptr, limit);
  a.Close("{λmax}/{[λ]}", lambda / limit);
}

void CheckLatticeMember(const CLatticeSection& section, const CMemberSteel& steel,
                        const CLatticeLoads& loads, CMemberAnswer& answer) {
  answer.Clear();
  CLatticeCheck(section, steel, loads, answer).Run();
}

}  // namespace orv3
