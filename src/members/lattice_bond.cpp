// The bond of a lattice column's limbs: GB 50017-2017, 7.2.5, 7.2.7, 7.3.1, 7.3.2, 7.6.1, 7.6.3;
// GB 50017-2003, 3.4.2, 5.1.6, 5.4.1, 8.4.1.
#include <numbers>
#include <string_view>

#include "framework/elementary.h"
#include "members/lattice_check.h"
#include "members/one_leg_angle.h"
#include "members/width_forms.h"

namespace orv3 {
namespace {

template <class FIGURES, class RATIO>
const FIGURES& WorstOf(const std::vector<FIGURES>& all, RATIO ratio) {
  return *std::max_element(all.begin(), all.end(),
                           [&](const FIGURES& x, const FIGURES& y) { return ratio(x) < ratio(y); });
}

}  // namespace

void CLatticeCheck::Bond() {
  const double V = s.m_dA * m.m_dF / (85 * r.m_dEpsilonK);
  const std::vector<CBondPlane> planes = Planes(V);
  if (IsLaced()) return Lacing(planes, V);
  Battens(planes, V);
  BattenStiffness(planes);
}

// One of each pair of planes, and each with the greater of its shares of V and of the given shears.
// Of three limbs two inclined planes share Vy; Vx goes to all three by the square of their cosines.
std::vector<CLatticeCheck::CBondPlane> CLatticeCheck::Planes(double V) const {
  const double Vx = std::fabs(q.m_dVx), Vy = std::fabs(q.m_dVy);
  const auto plane = [](double width, double CLatticeLimbSection::*inertia, double ofV,
                        const char* formOfV, double given, const char* formGiven) {
    const bool bGiven = given > ofV;
    return CBondPlane{width, bGiven ? given : ofV, bGiven ? formGiven : formOfV, inertia};
  };
  const auto Ix = &CLatticeLimbSection::m_dIx, Iy = &CLatticeLimbSection::m_dIy;
  if (s.Limbs() == 3) {
    const double sine = Sin(s.PlaneAngle()), cosine = Cos(s.PlaneAngle());
    const double all = 1 + 2 * cosine * cosine;
    return {
        plane(Hypot(s.m_dKx / 2, s.m_dKy), Ix, V / (2 * sine), "{V}/(2·sin({θ}°))",
              Vy / (2 * sine) + Vx * cosine / all,
              "{Vy}/(2·sin({θ}°)) + {Vx}·cos({θ}°)/(1 + 2·cos({θ}°)²)"),
        plane(s.m_dKx, Iy, V / all, "{V}/(1 + 2·cos({θ}°)²)", Vx / all, "{Vx}/(1 + 2·cos({θ}°)²)")};
  }
  std::vector<CBondPlane> planes = {plane(s.m_dKy, Ix, V / 2, "{V}/2", Vy / 2, "{Vy}/2")};
  if (s.Limbs() == 4) planes.push_back(plane(s.m_dKx, Iy, V / 2, "{V}/2", Vx / 2, "{Vx}/2"));
  return planes;
}

// 7.2.7; 2003: 5.1.6.
void CLatticeCheck::GivePlane(const CBondPlane& plane, double V) {
  a.Step("V", "{A}·{f}/(85·{εk})", V, "N");
  const std::string_view form = plane.m_szForm;
  if (form.find("{Vx}") != form.npos) a.Step("Vx", nullptr, std::fabs(q.m_dVx), "N");
  if (form.find("{Vy}") != form.npos) a.Step("Vy", nullptr, std::fabs(q.m_dVy), "N");
  a.Step("V1", plane.m_szForm, plane.m_dV1, "N");
}

// --- Lacing --------------------------------------------------------------------------------------

// A bar of one angle on one leg: 7.6.1 and 7.6.3; 2003: 3.4.2. The width of its leg: 7.3.1 and
// 7.3.2; 2003: 5.4.1.
CLatticeCheck::CBar CLatticeCheck::BarOf(const CBondPlane& plane) const {
  const double sine = Sin(s.m_dAngle * std::numbers::pi / 180);
  const double force = plane.m_dV1 / sine, lambda = plane.m_dWidth / sine / s.m_dBarR;
  const COneLegFactors factors = OneLegFactors(
      m.m_nEdition, r.m_dEpsilonK, {CMemberJoint::Leg, s.m_dBarLeg, s.m_dBarThick, lambda});
  const double phi = Phi(lambda, CBucklingClass::B);
  const double capacity = factors.Share() * phi * s.m_dBarA * m.m_dBondF;
  const double limit = *AxialWidthLimit(m.m_nEdition, CWidthElement::AngleLeg, m.m_nGrade, lambda);
  const double share = Is2017() ? std::max(1.0, std::sqrt(capacity / force)) : 1;
  const double leg = LegRatio(m.m_nEdition, s.m_dBarLeg, s.m_dBarThick, s.m_dBarRoot);
  return {force, lambda, phi, capacity, limit, share, leg / (share * limit)};
}

void CLatticeCheck::Lacing(const std::vector<CBondPlane>& planes, double V) {
  const CBondPlane& plane = WorstOf(planes, [&](const CBondPlane& each) {
    const CBar bar = BarOf(each);
    return bar.m_dForce / bar.m_dCapacity;
  });
  const CBar bar = BarOf(plane);
  const COneLegAngle angle = {CMemberJoint::Leg, s.m_dBarLeg, s.m_dBarThick, bar.m_dLambda};
  const COneLegFactors factors = OneLegFactors(m.m_nEdition, r.m_dEpsilonK, angle);
  a.Open(CMemberCheckKind::Lacing, Clause("7.2.7", "5.1.6"));
  GivePlane(plane, V);
  a.Step("θd", nullptr, s.m_dAngle, "°");
  a.Step("Nd", "{V1}/sin({θd}°)", bar.m_dForce, "N");
  a.Step("a", nullptr, plane.m_dWidth, "mm");
  a.Step("id", nullptr, s.m_dBarR, "mm");
  a.Step("λd", "{a}/(sin({θd}°)·{id})", bar.m_dLambda);
  a.Step("φd", nullptr, bar.m_dPhi);
  a.Step("fd", nullptr, m.m_dBondF, "N/mm²");
  GiveOneLegFactors(a, angle, factors);
  a.Close(factors.m_dRhoE < 1 ? "{Nd}/({ρe}·{η}·{φd}·{Ad}·{fd})" : "{Nd}/({η}·{φd}·{Ad}·{fd})",
          bar.m_dForce / bar.m_dCapacity);
  std::vector<CBar> bars;
  for (const CBondPlane& each : planes) bars.push_back(BarOf(each));
  LacingLeg(WorstOf(bars, [](const CBar& each) { return each.m_dLegRatio; }));
}

void CLatticeCheck::LacingLeg(const CBar& bar) {
  a.Open(CMemberCheckKind::LacingLeg, Clause("7.3.1", "5.4.1"));
  a.Step("λmax", nullptr, bar.m_dLambda);
  a.Step("b/t", nullptr, LegRatio(m.m_nEdition, s.m_dBarLeg, s.m_dBarThick, s.m_dBarRoot));
  a.Step("[b/t]",
         AxialWidthForm(m.m_nEdition, CWidthElement::AngleLeg, bar.m_dLambda, r.m_dEpsilonK),
         bar.m_dLegLimit);
  if (bar.m_dLegShare <= 1) return a.Close("{b/t}/{[b/t]}", bar.m_dLegRatio);
  a.Step("Nd", nullptr, bar.m_dForce, "N");
  a.Step("Nu", nullptr, bar.m_dCapacity, "N");
  a.Step("α", "√({Nu}/{Nd})", bar.m_dLegShare);
  a.Close("{b/t}/({α}·{[b/t]})", bar.m_dLegRatio);
}

// --- Battens -------------------------------------------------------------------------------------

// A batten is bent and sheared by the column's shear: T = V1 l/a at its middle, M = V1 l/2 at the
// limb, l between the battens' centres.
void CLatticeCheck::Battens(const std::vector<CBondPlane>& planes, double V) {
  const double area = s.m_dBattenWidth * s.m_dBattenT, W = area * s.m_dBattenWidth / 6;
  const double l = s.m_dBattenPitch;
  const auto bending = [&](const CBondPlane& p) { return p.m_dV1 * l / 2 / (W * m.m_dBondF); };
  const auto shear = [&](const CBondPlane& p) {
    return 1.5 * p.m_dV1 * l / p.m_dWidth / (area * m.m_dBondFv);
  };
  const CBondPlane& plane =
      WorstOf(planes, [&](const CBondPlane& each) { return std::max(bending(each), shear(each)); });
  const bool bBending = bending(plane) >= shear(plane);
  a.Open(CMemberCheckKind::Lacing, Clause("7.2.7", "5.1.6"));
  GivePlane(plane, V);
  a.Step("l", nullptr, l, "mm");
  a.Step("a", nullptr, plane.m_dWidth, "mm");
  a.Step("T", "{V1}·{l}/{a}", plane.m_dV1 * l / plane.m_dWidth, "N");
  a.Step("M", "{V1}·{l}/2", plane.m_dV1 * l / 2, "N·mm");
  a.Step("bb", nullptr, s.m_dBattenWidth, "mm");
  a.Step("tb", nullptr, s.m_dBattenT, "mm");
  a.Step("Wb", "{tb}·{bb}²/6", W, "mm³");
  a.Step("Ab", "{tb}·{bb}", area, "mm²");
  a.Step("fd", nullptr, m.m_dBondF, "N/mm²");
  a.Step("fvd", nullptr, m.m_dBondFv, "N/mm²");
  a.Close(bBending ? "{M}/({Wb}·{fd})" : "1.5·{T}/({Ab}·{fvd})",
          std::max(bending(plane), shear(plane)));
}

// 7.2.5; 2003: 8.4.1: the battens of one place are at least six times as stiff as the greater limb.
// Two battens join two limbs; of four limbs each has one in either plane.
void CLatticeCheck::BattenStiffness(const std::vector<CBondPlane>& planes) {
  const double Ib = s.m_dBattenT * s.m_dBattenWidth * s.m_dBattenWidth * s.m_dBattenWidth / 12;
  const double battens = s.Limbs() == 2 ? 2 : 1;
  const auto greatest = [&](const CBondPlane& plane) {
    double I = 0;
    for (const CLatticeLimbSection& limb : s.m_arrLimb) I = std::max(I, limb.*plane.m_pI);
    return I;
  };
  const auto ratio = [&](const CBondPlane& plane) {
    return 6 * greatest(plane) / s.m_dBattenPitch / (battens * Ib / plane.m_dWidth);
  };
  const CBondPlane& plane = WorstOf(planes, ratio);
  a.Open(CMemberCheckKind::BattenStiffness, Clause("7.2.5", "8.4.1"));
  a.Step("I01", nullptr, greatest(plane), "mm⁴");
  a.Step("l", nullptr, s.m_dBattenPitch, "mm");
  a.Step("a", nullptr, plane.m_dWidth, "mm");
  a.Step("bb", nullptr, s.m_dBattenWidth, "mm");
  a.Step("tb", nullptr, s.m_dBattenT, "mm");
  a.Step("Ib", "{tb}·{bb}³/12", Ib, "mm⁴");
  a.Close(s.Limbs() == 2 ? "(6·{I01}/{l})/(2·{Ib}/{a})" : "(6·{I01}/{l})/({Ib}/{a})", ratio(plane));
}

}  // namespace orv3
