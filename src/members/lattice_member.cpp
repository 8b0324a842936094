#include "members/lattice_member.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "members/beam_column.h"
#include "members/slenderness.h"

namespace orv3 {
namespace {

class CLatticeCheck {
 public:
  CLatticeCheck(const CLatticeSection& section, const CMemberSteel& steel,
                const CLatticeLoads& loads, CMemberAnswer& answer)
      : s(section), m(steel), q(loads), a(answer), r(answer.m_results) {
    m_dN = std::max(0.0, -q.m_dN);
    m_dM = std::fabs(q.m_y.Governing());
  }
  void Run();

 private:
  void Give();
  void Slenderness();
  void Whole();
  void Limbs();
  void LimbSlenderness();
  void Bond();
  void Lacing(double V);
  void Battens(double V);
  bool Is2017() const noexcept { return m.m_nEdition == CCodeEdition::Gb2017; }
  bool IsLaced() const noexcept { return s.m_nBond == CLatticeBond::Lacing; }
  const char* Clause(const char* in2017, const char* in2003) const noexcept {
    return Is2017() ? in2017 : in2003;
  }
  double Phi(double lambda, CBucklingClass bucklingClass) const {
    return StabilityFactor(lambda, NominalYield(m.m_nGrade), bucklingClass);
  }

  const CLatticeSection& s;
  const CMemberSteel& m;
  const CLatticeLoads& q;
  CMemberAnswer& a;
  CMemberResults& r;
  double m_dN = 0, m_dM = 0;
  double m_dLambda0 = 0;  // about the open axis, with the bond's yielding
  double m_dLambda1 = 0;  // of a limb
};

void CLatticeCheck::Run() {
  if (m_dN == 0) {
    return a.Refuse("N",
                    {"格构柱只验算受压", "a lattice column is checked under compression alone"},
                    {"请给出压力（负值）", "give a compression, below 0"});
  }
  Give();
  Slenderness();
  Whole();
  Limbs();
  LimbSlenderness();
  Bond();
}

void CLatticeCheck::Give() {
  r.m_dF = m.m_dF;
  r.m_dFv = m.m_dFv;
  r.m_dFy = m.m_dFy;
  r.m_dEpsilonK = EpsilonK(m.m_nGrade);
  r.m_dA = s.m_dA;
  a.Step("f", nullptr, m.m_dF, "N/mm²");
  a.Step("fv", nullptr, m.m_dFv, "N/mm²");
  a.Step("εk", nullptr, r.m_dEpsilonK);
  a.Step("A", nullptr, s.m_dA, "mm²");
  a.Step("N", nullptr, m_dN, "N");
  if (m_dM > 0) a.Step("My", nullptr, m_dM, "N·mm");
}

// 7.2.3; 2003: 5.1.3. lambda-1 of battens runs between their clear edges, as l1 is given.
void CLatticeCheck::Slenderness() {
  r.m_dLambdaX = q.m_dLx / s.m_dRx;
  r.m_dLambdaY = q.m_dLy / s.m_dRy;
  m_dLambda1 = s.m_dL1 / s.m_dLimbR1;
  a.Step("λx", nullptr, r.m_dLambdaX);
  a.Step("λy", nullptr, r.m_dLambdaY);
  a.Step("λ1", nullptr, m_dLambda1);
  if (IsLaced()) {
    m_dLambda0 = LacedSlenderness(r.m_dLambdaY, 27, s.m_dA, s.m_dA1);
    a.Step("A1", nullptr, s.m_dA1, "mm²");
    a.Step("λ0y", "√({λy}² + 27·{A}/{A1})", m_dLambda0);
  } else {
    m_dLambda0 = BattenedSlenderness(r.m_dLambdaY, m_dLambda1);
    a.Note(CMemberNote::BattenStiffness);
    a.Step("λ0y", "√({λy}² + {λ1}²)", m_dLambda0);
  }
  r.m_dPhiX = Phi(r.m_dLambdaX, m.m_nClassX);
  r.m_dPhiY = Phi(m_dLambda0, m.m_nClassY);
}

// 7.2.1 about the solid axis; about the open one 7.2.1, or 8.2.2 with a moment: out of its plane
// the limbs are checked in place of the whole.
void CLatticeCheck::Whole() {
  const double f = m.m_dF;
  const double W = s.m_dWy;
  a.Open(CMemberCheckKind::Strength,
         m_dM > 0 ? Clause("8.1.1", "5.2.1") : Clause("7.1.2", "5.1.1"));
  if (m_dM > 0) {
    a.Step("Wy", nullptr, W, "mm³");
    a.Close("({N}/{A} + {My}/(1.0·{Wy}))/{f}", (m_dN / s.m_dA + m_dM / W) / f);
  } else {
    a.Close("{N}/({A}·{f})", m_dN / (s.m_dA * f));
  }
  if (m_dM == 0) {
    a.Open(CMemberCheckKind::StabilityX, Clause("7.2.1", "5.1.2"));
    a.Step("φx", nullptr, r.m_dPhiX);
    a.Close("{N}/({φx}·{A}·{f})", AxialTerm(m_dN, r.m_dPhiX, s.m_dA, f));
    a.Open(CMemberCheckKind::StabilityY, Clause("7.2.1", "5.1.2"));
    a.Step("φy", nullptr, r.m_dPhiY);
    a.Close("{N}/({φy}·{A}·{f})", AxialTerm(m_dN, r.m_dPhiY, s.m_dA, f));
  } else {
    const double NE = ReducedEulerForce(s.m_dA, m_dLambda0);
    const CEquivalentMoment M = InPlaneMoment(m.m_nEdition, q.m_y, m_dN, 1.1 * NE, q.m_bSway);
    r.m_dBetaMy = M.m_dBeta;
    a.Open(CMemberCheckKind::StabilityY, Clause("8.2.2", "5.2.3"));
    a.Step("φy", nullptr, r.m_dPhiY);
    a.Step("N′Ey", "π²·206000·{A}/(1.1·{λ0y}²)", NE, "N");
    a.Step("βmy", nullptr, M.m_dBeta);
    a.Step("M", nullptr, M.m_dM, "N·mm");
    a.Step("Wy", nullptr, W, "mm³");
    // 2003: phi multiplies N / N'E.
    const double share = Is2017() ? 1 : r.m_dPhiY;
    a.Step("k", nullptr, share);
    a.Close(
        "{N}/({φy}·{A}·{f}) + {βmy}·{M}/({Wy}·(1 − {k}·{N}/{N′Ey})·{f})",
        AxialTerm(m_dN, r.m_dPhiY, s.m_dA, f) + AmplifiedTerm(M.m_dMoment, W, share, m_dN, NE, f));
  }
  const double limit = q.m_dLimit > 0 ? q.m_dLimit : 150;
  const double lambda = std::max(r.m_dLambdaX, m_dLambda0);
  a.Open(CMemberCheckKind::Slenderness, Clause("7.4.6", "5.3.8"));
  a.Step("λmax", nullptr, lambda);
  a.Step("[λ]", nullptr, limit);
  a.Close("{λmax}/{[λ]}", lambda / limit);
}

// The pressed limb as a strut by its share, about its own axis and out of the plane of the moment.
void CLatticeCheck::Limbs() {
  if (m_dM == 0) return;
  const double share = m_dN / 2 + m_dM / s.m_dSpacing;
  const double lambda = std::max(m_dLambda1, r.m_dLambdaX);
  const double phi = Phi(lambda, m.m_nClassX);
  a.Note(CMemberNote::LimbMoment);
  a.Open(CMemberCheckKind::StabilityX, Clause("8.2.2", "5.2.3"));
  a.Step("a", nullptr, s.m_dSpacing, "mm");
  a.Step("N1", "{N}/2 + {My}/{a}", share, "N");
  a.Step("λ", "max({λ1}, {λx})", lambda);
  a.Step("φ", nullptr, phi);
  a.Close("{N1}/({φ}·{A}/2·{f})", AxialTerm(share, phi, s.m_dA / 2, m.m_dF));
}

// 7.2.4 and 7.2.5; 2003: 5.1.4.
void CLatticeCheck::LimbSlenderness() {
  const double greatest = std::max(r.m_dLambdaX, m_dLambda0);
  double limit = 0.7 * greatest;
  if (!IsLaced()) {
    const double most = Is2017() ? 40 * r.m_dEpsilonK : 40;
    limit = std::min(most, 0.5 * std::max(50.0, greatest));
  }
  a.Open(CMemberCheckKind::Limbs, IsLaced() ? Clause("7.2.4", "5.1.4") : Clause("7.2.5", "5.1.4"));
  a.Step("[λ1]", nullptr, limit);
  a.Close("{λ1}/{[λ1]}", m_dLambda1 / limit);
}

// 7.2.7; 2003: 5.1.6.
void CLatticeCheck::Bond() {
  const double code = s.m_dA * m.m_dF / (85 * r.m_dEpsilonK);
  const double V = std::max(code, std::fabs(q.m_dVx)) / s.m_nPlanes;
  a.Open(CMemberCheckKind::Lacing, Clause("7.2.7", "5.1.6"));
  a.Step("V", "{A}·{f}/(85·{εk})", code, "N");
  a.Step("V1", nullptr, V, "N");
  if (IsLaced()) {
    Lacing(V);
  } else {
    Battens(V);
  }
}

// A bar of one angle on one leg: f times 0.6 + 0.0015 lambda (7.6.1; 2003: 3.4.2), at most 1.
void CLatticeCheck::Lacing(double V) {
  const double force = V / std::sin(s.m_dAngle * std::numbers::pi / 180);
  const double lambda = s.m_dBarLength / s.m_dBarR;
  const double reduction = std::min(1.0, 0.6 + 0.0015 * std::max(20.0, lambda));
  const double phi = Phi(lambda, CBucklingClass::B);
  const double area = s.m_dA1 / s.m_nPlanes;
  a.Step("θ", nullptr, s.m_dAngle, "°");
  a.Step("Nd", "{V1}/sin({θ}°)", force, "N");
  a.Step("λd", nullptr, lambda);
  a.Step("φd", nullptr, phi);
  a.Step("η", nullptr, reduction);
  a.Step("Ad", nullptr, area, "mm²");
  a.Close("{Nd}/({η}·{φd}·{Ad}·{f})", force / (reduction * phi * area * m.m_dF));
}

// A batten is bent and sheared by the column's shear: T = V1 l/a at its middle, M = V1 l/2 at the
// limb, l between the battens' centres.
void CLatticeCheck::Battens(double V) {
  const double T = V * s.m_dBattenPitch / s.m_dSpacing;
  const double M = V * s.m_dBattenPitch / 2;
  const double W = s.m_dBattenT * s.m_dBattenWidth * s.m_dBattenWidth / 6;
  const double bending = M / (W * m.m_dF);
  const double shear = 1.5 * T / (s.m_dBattenWidth * s.m_dBattenT * m.m_dFv);
  a.Step("l", nullptr, s.m_dBattenPitch, "mm");
  a.Step("a", nullptr, s.m_dSpacing, "mm");
  a.Step("T", "{V1}·{l}/{a}", T, "N");
  a.Step("M", "{V1}·{l}/2", M, "N·mm");
  a.Step("Wb", nullptr, W, "mm³");
  a.Step("Ab", nullptr, s.m_dBattenWidth * s.m_dBattenT, "mm²");
  a.Close(bending >= shear ? "{M}/({Wb}·{f})" : "1.5·{T}/({Ab}·{fv})", std::max(bending, shear));
}

}  // namespace

void CheckLatticeMember(const CLatticeSection& section, const CMemberSteel& steel,
                        const CLatticeLoads& loads, CMemberAnswer& answer) {
  answer.Clear();
  CLatticeCheck(section, steel, loads, answer).Run();
}

}  // namespace orv3
