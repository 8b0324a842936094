// The limbs of a lattice column: GB 50017-2017, 7.2.4, 7.2.5, 7.3.1, 7.3.2, 8.1.1, 8.2.2;
// GB 50017-2003, 4.1.2, 5.1.4, 5.2.1, 5.2.3, 5.4.
#include <array>
#include <optional>

#include "members/beam_column.h"
#include "members/lattice_check.h"
#include "members/width_forms.h"

namespace orv3 {

// The pressed limb as a strut by its share, about its own axis and out of the plane of the moment.
void CLatticeCheck::LimbStability() {
  if (m_dM == 0) return;
  const double share = m_dN / 2 + m_dM / s.m_dKy;
  const double lambda = std::max(m_dLambda1, r.m_dLambdaY);
  const double phi = Phi(lambda, m.m_nClassY);
  a.Note(CMemberNote::LimbMoment);
  a.Open(CMemberCheckKind::StabilityY, Clause("8.2.2", "5.2.3"));
  a.Step("a", nullptr, s.m_dKy, "mm");
  a.Step("N1", "{N}/2 + {Mx}/{a}", share, "N");
  a.Step("λ", "max({λ1}, {λy})", lambda);
  a.Step("φ", nullptr, phi);
  a.Close("{N1}/({φ}·{A}/2·{f})", AxialTerm(share, phi, s.m_dA / 2, m.m_dF));
}

// 7.2.4 and 7.2.5; 2003: 5.1.4.
void CLatticeCheck::LimbSlenderness() {
  const double greatest = std::max(LambdaX(), LambdaY());
  a.Open(CMemberCheckKind::Limbs, IsLaced() ? Clause("7.2.4", "5.1.4") : Clause("7.2.5", "5.1.4"));
  a.Step("λmax", IsOpenY() ? "max({λ0x}, {λ0y})" : "max({λ0x}, {λy})", greatest);
  double limit = 0.7 * greatest;
  if (IsLaced()) {
    a.Step("[λ1]", "0.7·{λmax}", limit);
  } else {
    limit = std::min(Is2017() ? 40 * r.m_dEpsilonK : 40, 0.5 * std::max(50.0, greatest));
    a.Step("[λ1]", Is2017() ? "min(40·{εk}, 0.5·max(50, {λmax}))" : "min(40, 0.5·max(50, {λmax}))",
           limit);
  }
  a.Close("{λ1}/{[λ1]}", m_dLambda1 / limit);
}

// --- Plates --------------------------------------------------------------------------------------

// 7.3.1 and 7.3.2; 2003: 5.4. Of each kind of plate the worst of all limbs. The limits of limbs
// that the shear bends are those of the least slenderness without 7.3.2, which lie within those of
// plates under compression with a moment (8.4.1; 2003: 4.3.8, 5.4.1, 5.4.2).
void CLatticeCheck::LimbPlates() {
  constexpr double kLeastLambda = 30;
  const double lambda =
      AreLimbsBent() ? kLeastLambda : std::max({m_dLambda1, LambdaX(), LambdaY()});
  const auto limitOf = [&](const CAxialPlate& plate) {
    return *AxialWidthLimit(m.m_nEdition, plate.m_nElement, m.m_nGrade, lambda);
  };
  for (const auto kind :
       {CMemberCheckKind::Flange, CMemberCheckKind::Web, CMemberCheckKind::Wall}) {
    std::optional<CAxialPlate> worst;
    for (const CLatticeLimbSection& limb : s.m_arrLimb) {
      for (CAxialPlate plate : AxialPlatesOf(limb.m_section, m.m_nEdition)) {
        // The free edge of a T's web under a moment is held as an outstand.
        const bool bStem = plate.m_nElement == CWidthElement::WebTRolled ||
                           plate.m_nElement == CWidthElement::WebTWelded;
        if (bStem && AreLimbsBent()) plate.m_nElement = CWidthElement::Flange;
        if (plate.m_nKind != kind) continue;
        if (!worst || plate.m_dRatio / limitOf(plate) > worst->m_dRatio / limitOf(*worst))
          worst = plate;
      }
    }
    if (worst) GiveLimbPlate(*worst, lambda, limitOf(*worst));
  }
}

// alpha of 7.3.2: of limbs under N alone that of the whole, of the pressed one its own.
double CLatticeCheck::PlateShare(double phi) const {
  if (!Is2017() || AreLimbsBent()) return 1;
  const double N = m_dM > 0 ? m_dN / 2 + m_dM / s.m_dKy : m_dN;
  return std::sqrt(phi * (m_dM > 0 ? s.m_dA / 2 : s.m_dA) * m.m_dF / N);
}

void CLatticeCheck::GiveLimbPlate(const CAxialPlate& plate, double lambda, double limit) {
  const double phi = Phi(lambda, m.m_nClassY), share = PlateShare(phi);
  a.Open(plate.m_nKind, AreLimbsBent() ? Clause("8.4.1", plate.m_szClause2003)
                                       : Clause("7.3.1", plate.m_szClause2003));
  a.Step("b/t", nullptr, plate.m_dRatio);
  a.Step("λmax",
         AreLimbsBent() ? nullptr
         : IsOpenY()    ? "max({λ1}, {λ0x}, {λ0y})"
                        : "max({λ1}, {λ0x}, {λy})",
         lambda);
  a.Step("[b/t]", AxialWidthForm(m.m_nEdition, plate.m_nElement, lambda, r.m_dEpsilonK), limit);
  if (share <= 1) return a.Close("{b/t}/{[b/t]}", plate.m_dRatio / limit);
  a.Step("φ", nullptr, phi);
  if (m_dM > 0) {
    a.Step("a", nullptr, s.m_dKy, "mm");
    a.Step("N1", "{N}/2 + {Mx}/{a}", m_dN / 2 + m_dM / s.m_dKy, "N");
    a.Step("α", "√({φ}·{A}/2·{f}/{N1})", share);
  } else {
    a.Step("α", "√({φ}·{A}·{f}/{N})", share);
  }
  a.Close("{b/t}/({α}·{[b/t]})", plate.m_dRatio / (share * limit));
}

// --- Bending by the shear ------------------------------------------------------------------------

double CLatticeCheck::SumOf(double CLatticeLimbSection::*figure) const {
  double sum = 0;
  for (const CLatticeLimbSection& limb : s.m_arrLimb) sum += limb.*figure;
  return sum;
}

// Limbs share N by their areas and the shear by their stiffness; between battens, whose edges turn
// with them alike, the shear bends them in both senses.
CLatticeCheck::CLimbForces CLatticeCheck::ForcesOf(const CLatticeLimbSection& limb) const {
  const double ln = s.m_dBattenPitch - s.m_dBattenWidth;
  const double Vx = std::fabs(q.m_dVx) * limb.m_dIy / SumOf(&CLatticeLimbSection::m_dIy);
  const double Vy = std::fabs(q.m_dVy) * limb.m_dIx / SumOf(&CLatticeLimbSection::m_dIx);
  return {m_dN * limb.m_section.m_dA / s.m_dA, Vy * ln / 2, Vx * ln / 2, Vx, Vy};
}

// 8.1.1 with γ = 1, 6.1.3; 2003: 5.2.1, 4.1.2. The shear of 7.2.7 is no force of the loads: what it
// asks of limbs are their λ1 of 7.2.5.
void CLatticeCheck::LimbStrength() {
  if (!AreLimbsBent()) return;
  const CLatticeLimbSection *bent = nullptr, *sheared = nullptr;
  double bending = -1, shear = -1;
  for (const CLatticeLimbSection& limb : s.m_arrLimb) {
    const CLimbForces f = ForcesOf(limb);
    const double sigma = f.m_dN / limb.m_section.m_dA + f.m_dMx / limb.m_dWx + f.m_dMy / limb.m_dWy;
    const double tau = f.m_dVx / limb.m_dShearX + f.m_dVy / limb.m_dShearY;
    if (sigma > bending) bent = &limb;
    if (tau > shear) sheared = &limb;
    bending = std::max(bending, sigma);
    shear = std::max(shear, tau);
  }
  a.Open(CMemberCheckKind::LimbStrength, Clause("8.1.1", "5.2.1"));
  GiveLimbForces(*bent, ForcesOf(*bent), true);
  const bool bX = q.m_dVx != 0, bY = q.m_dVy != 0;
  a.Close(bX && bY ? "({N1}/{A01} + {M01x}/{W01x} + {M01y}/{W01y})/{f}"
          : bY     ? "({N1}/{A01} + {M01x}/{W01x})/{f}"
                   : "({N1}/{A01} + {M01y}/{W01y})/{f}",
          bending / m.m_dF);
  a.Open(CMemberCheckKind::Shear, Clause("6.1.3", "4.1.2"));
  GiveLimbForces(*sheared, ForcesOf(*sheared), false);
  a.Close(bX && bY ? "({V01x}/{A01x} + {V01y}/{A01y})/{fv}"
          : bY     ? "{V01y}/({A01y}·{fv})"
                   : "{V01x}/({A01x}·{fv})",
          shear / m.m_dFv);
}

void CLatticeCheck::GiveLimbForces(const CLatticeLimbSection& limb, const CLimbForces& forces,
                                   bool bBending) {
  if (bBending) {
    a.Step("A01", nullptr, limb.m_section.m_dA, "mm²");
    a.Step("N1", "{N}·{A01}/{A}", forces.m_dN, "N");
    a.Step("l", nullptr, s.m_dBattenPitch, "mm");
    a.Step("bb", nullptr, s.m_dBattenWidth, "mm");
    a.Step("ln", "{l} − {bb}", s.m_dBattenPitch - s.m_dBattenWidth, "mm");
  }
  if (q.m_dVy != 0) {
    a.Step("Vy", nullptr, std::fabs(q.m_dVy), "N");
    a.Step("I01x", nullptr, limb.m_dIx, "mm⁴");
    a.Step("ΣI01x", nullptr, SumOf(&CLatticeLimbSection::m_dIx), "mm⁴");
    a.Step("V01y", "{Vy}·{I01x}/{ΣI01x}", forces.m_dVy, "N");
    if (bBending) a.Step("M01x", "{V01y}·{ln}/2", forces.m_dMx, "N·mm");
    a.Step(bBending ? "W01x" : "A01y", nullptr, bBending ? limb.m_dWx : limb.m_dShearY,
           bBending ? "mm³" : "mm²");
  }
  if (q.m_dVx != 0) {
    a.Step("Vx", nullptr, std::fabs(q.m_dVx), "N");
    a.Step("I01y", nullptr, limb.m_dIy, "mm⁴");
    a.Step("ΣI01y", nullptr, SumOf(&CLatticeLimbSection::m_dIy), "mm⁴");
    a.Step("V01x", "{Vx}·{I01y}/{ΣI01y}", forces.m_dVx, "N");
    if (bBending) a.Step("M01y", "{V01x}·{ln}/2", forces.m_dMy, "N·mm");
    a.Step(bBending ? "W01y" : "A01x", nullptr, bBending ? limb.m_dWy : limb.m_dShearX,
           bBending ? "mm³" : "mm²");
  }
}

}  // namespace orv3
