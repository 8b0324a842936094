#include "members/lattice_member.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "codes/slenderness_limits.h"
#include "codes/width_limits.h"
#include "framework/elementary.h"
#include "members/beam_column.h"
#include "members/one_leg_angle.h"
#include "members/slenderness.h"
#include "members/slenderness_steps.h"
#include "members/width_forms.h"

namespace orv3 {
namespace {

class CLatticeCheck {
 public:
  CLatticeCheck(const CLatticeSection& section, const CMemberSteel& steel,
                const CLatticeLoads& loads, CMemberAnswer& answer)
      : s(section), m(steel), q(loads), a(answer), r(answer.m_results) {
    m_dN = std::max(0.0, -q.m_dN);
    m_dM = std::fabs(q.m_x.Governing());
  }
  void Run();

 private:
  void Give();
  void RefuseWhatIsNotCovered();
  void Slenderness();
  void Laced();
  void Battened();
  void Whole();
  void MomentInPlane();
  void SlendernessCheck();
  void Limbs();
  void LimbSlenderness();
  void Bond();
  double PlaneShear(double V);
  void Lacing(double V);
  void LacingLeg(double lambda, double force, double capacity);
  void Battens(double V);
  bool Is2017() const noexcept { return m.m_nEdition == CCodeEdition::Gb2017; }
  bool IsLaced() const noexcept { return s.m_nBond == CLatticeBond::Lacing; }
  bool IsOpenY() const noexcept { return s.m_nLimbs > 2; }
  double LambdaX() const noexcept { return m_dLambda0x; }
  double LambdaY() const noexcept { return IsOpenY() ? m_dLambda0y : r.m_dLambdaY; }
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
  double m_dLambda0x = 0, m_dLambda0y = 0;  // with the bond's yielding
  double m_dLambda1 = 0;                    // of a limb
};

void CLatticeCheck::Run() {
  RefuseWhatIsNotCovered();
  if (a.IsRefused()) return;
  Give();
  Slenderness();
  Whole();
  Limbs();
  SlendernessCheck();
  LimbSlenderness();
  Bond();
}

void CLatticeCheck::RefuseWhatIsNotCovered() {
  if (m_dN == 0) {
    return a.Refuse("N",
                    {"格构柱只验算受压", "a lattice column is checked under compression alone"},
                    {"请给出压力（负值）", "give a compression, below 0"});
  }
  if (s.m_nLimbs == 3 && !IsLaced()) {
    return a.Refuse("section.lacing",
                    {"三肢柱没有缀板的公式", "the code has no battens for three limbs"},
                    {"请用缀条", "take lacing"});
  }
  if (m_dM == 0) return;
  if (s.m_nLimbs != 2) {
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
  a.Step("l1", nullptr, s.m_dL1, "mm");
  a.Step("i1", nullptr, s.m_dLimbR1, "mm");
  a.Step("λ1", "{l1}/{i1}", m_dLambda1);
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
  if (s.m_nLimbs == 3) {
    const double A1 = 3 * s.m_dBarA;
    const double cosine = Cos(s.m_dPlaneAngle * std::numbers::pi / 180);
    a.Step("A1", "3·{Ad}", A1, "mm²");
    a.Step("θ", nullptr, s.m_dPlaneAngle, "°");
    m_dLambda0x = LacedSlenderness(r.m_dLambdaX, 42 / (1.5 - cosine * cosine), s.m_dA, A1);
    m_dLambda0y = LacedSlenderness(r.m_dLambdaY, 42 / (cosine * cosine), s.m_dA, A1);
    a.Step("λ0x", "√({λx}² + 42·{A}/({A1}·(1.5 − cos({θ}°)²)))", m_dLambda0x);
    a.Step("λ0y", "√({λy}² + 42·{A}/({A1}·cos({θ}°)²))", m_dLambda0y);
    return;
  }
  const double A1 = 2 * s.m_dBarA, factor = s.m_nLimbs == 2 ? 27 : 40;
  a.Step("A1", "2·{Ad}", A1, "mm²");
  m_dLambda0x = LacedSlenderness(r.m_dLambdaX, factor, s.m_dA, A1);
  a.Step("λ0x", s.m_nLimbs == 2 ? "√({λx}² + 27·{A}/{A1})" : "√({λx}² + 40·{A}/{A1})", m_dLambda0x);
  if (!IsOpenY()) return;
  m_dLambda0y = LacedSlenderness(r.m_dLambdaY, factor, s.m_dA, A1);
  a.Step("λ0y", "√({λy}² + 40·{A}/{A1})", m_dLambda0y);
}

void CLatticeCheck::Battened() {
  a.Note(CMemberNote::BattenStiffness);
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
  const double bar = IsLaced() ? s.m_dBarLength / s.m_dBarR : 0;
  const double lambda = std::max({LambdaX(), LambdaY(), bar});
  a.Open(CMemberCheckKind::Slenderness, Clause("7.4.6", "5.3.8"));
  if (IsLaced()) a.Step("λd", nullptr, bar);
  a.Step("λmax", nullptr, lambda);
  a.Step("[λ]", nullptr, limit);
  a.Close("{λmax}/{[λ]}", lambda / limit);
}

// The pressed limb as a strut by its share, about its own axis and out of the plane of the moment.
void CLatticeCheck::Limbs() {
  if (m_dM == 0) return;
  const double share = m_dN / 2 + m_dM / s.m_dSpacing;
  const double lambda = std::max(m_dLambda1, r.m_dLambdaY);
  const double phi = Phi(lambda, m.m_nClassY);
  a.Note(CMemberNote::LimbMoment);
  a.Open(CMemberCheckKind::StabilityY, Clause("8.2.2", "5.2.3"));
  a.Step("a", nullptr, s.m_dSpacing, "mm");
  a.Step("N1", "{N}/2 + {Mx}/{a}", share, "N");
  a.Step("λ", "max({λ1}, {λy})", lambda);
  a.Step("φ", nullptr, phi);
  a.Close("{N1}/({φ}·{A}/2·{f})", AxialTerm(share, phi, s.m_dA / 2, m.m_dF));
}

// 7.2.4 and 7.2.5; 2003: 5.1.4.
void CLatticeCheck::LimbSlenderness() {
  const double greatest = std::max(LambdaX(), LambdaY());
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
  a.Open(CMemberCheckKind::Lacing, Clause("7.2.7", "5.1.6"));
  a.Step("V", "{A}·{f}/(85·{εk})", code, "N");
  if (q.m_dV > code) a.Step("V", nullptr, q.m_dV, "N");
  const double V = PlaneShear(std::max(code, q.m_dV));
  if (IsLaced()) {
    Lacing(V);
  } else {
    Battens(V);
  }
}

// Of one plane: half, but of three limbs the greater of an inclined plane under V along y and of
// the plane along x, which shares V along x with both others.
double CLatticeCheck::PlaneShear(double V) {
  if (s.m_nLimbs != 3) {
    a.Step("V1", "{V}/2", V / 2, "N");
    return V / 2;
  }
  const double angle = s.m_dPlaneAngle * std::numbers::pi / 180;
  const double sine = Sin(angle), cosine = Cos(angle);
  const double V1 = std::max(V / (2 * sine), V / (1 + 2 * cosine * cosine));
  a.Step("V1", "max({V}/(2·sin({θ}°)), {V}/(1 + 2·cos({θ}°)²))", V1, "N");
  return V1;
}

// A bar of one angle on one leg: 7.6.1 and 7.6.3; 2003: 3.4.2.
void CLatticeCheck::Lacing(double V) {
  const double force = V / Sin(s.m_dAngle * std::numbers::pi / 180);
  const double lambda = s.m_dBarLength / s.m_dBarR;
  const COneLegAngle bar = {CMemberJoint::Leg, s.m_dBarLeg, s.m_dBarThick, lambda};
  const COneLegFactors factors = OneLegFactors(m.m_nEdition, r.m_dEpsilonK, bar);
  const double phi = Phi(lambda, CBucklingClass::B);
  const double capacity = factors.Share() * phi * s.m_dBarA * m.m_dF;
  a.Step("θd", nullptr, s.m_dAngle, "°");
  a.Step("Nd", "{V1}/sin({θd}°)", force, "N");
  a.Step("λd", nullptr, lambda);
  a.Step("φd", nullptr, phi);
  GiveOneLegFactors(a, bar, factors);
  a.Close(factors.m_dRhoE < 1 ? "{Nd}/({ρe}·{η}·{φd}·{Ad}·{f})" : "{Nd}/({η}·{φd}·{Ad}·{f})",
          force / capacity);
  LacingLeg(lambda, force, capacity);
}

// 7.3.1 and 7.3.2; 2003: 5.4.1.
void CLatticeCheck::LacingLeg(double lambda, double force, double capacity) {
  const double value = LegRatio(m.m_nEdition, s.m_dBarLeg, s.m_dBarThick, s.m_dBarRoot);
  const double limit = *AxialWidthLimit(m.m_nEdition, CWidthElement::AngleLeg, m.m_nGrade, lambda);
  const double share = Is2017() ? std::sqrt(capacity / force) : 1;
  a.Open(CMemberCheckKind::Wall, Clause("7.3.1", "5.4.1"));
  a.Step("λmax", nullptr, lambda);
  a.Step("b/t", nullptr, value);
  a.Step("[b/t]", AxialWidthForm(m.m_nEdition, CWidthElement::AngleLeg, lambda, r.m_dEpsilonK),
         limit);
  if (share <= 1) return a.Close("{b/t}/{[b/t]}", value / limit);
  a.Step("Nd", nullptr, force, "N");
  a.Step("Nu", nullptr, capacity, "N");
  a.Step("α", "√({Nu}/{Nd})", share);
  a.Close("{b/t}/({α}·{[b/t]})", value / (share * limit));
}

// A batten is bent and sheared by the column's shear: T = V1 l/a at its middle, M = V1 l/2 at the
// limb, l between the battens' centres.
void CLatticeCheck::Battens(double V) {
  const double T = V * s.m_dBattenPitch / s.m_dBattenSpan;
  const double M = V * s.m_dBattenPitch / 2;
  const double W = s.m_dBattenT * s.m_dBattenWidth * s.m_dBattenWidth / 6;
  const double bending = M / (W * m.m_dF);
  const double shear = 1.5 * T / (s.m_dBattenWidth * s.m_dBattenT * m.m_dFv);
  a.Step("l", nullptr, s.m_dBattenPitch, "mm");
  a.Step("a", nullptr, s.m_dBattenSpan, "mm");
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
