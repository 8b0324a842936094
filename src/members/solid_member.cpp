#include "members/solid_member.h"

#include <algorithm>
#include <cmath>

#include "codes/slenderness_limits.h"
#include "members/slenderness.h"
#include "members/slenderness_steps.h"
#include "members/solid_check.h"

namespace orv3 {

CSolidCheck::CSolidCheck(const CMemberSection& section, const CMemberSteel& steel,
                         const CMemberLoads& loads, CMemberAnswer& answer)
    : s(section), m(steel), q(loads), a(answer), r(answer.m_results) {
  m_dNc = std::max(0.0, -q.m_dN);
  m_dMx = q.m_x.Governing();
  m_dMy = std::fabs(q.m_y.Governing());
  m_nSide = m_dMx >= 0 ? CSide::Top : CSide::Bottom;
}

namespace {

// A section whose edges differ, which Mx bends in one sense and in the other: the lesser moment may
// compress the weaker edge.
bool IsBentBothWays(const CMemberSection& s, const CMomentCourse& course) {
  const bool bUnequal =
      s.m_nShape == CMemberShape::T || (s.m_nShape == CMemberShape::I && !s.IsEqualFlanged());
  return bUnequal && course.IsReversed();
}

}  // namespace

void CheckSolidMember(const CMemberSection& section, const CMemberSteel& steel,
                      const CMemberLoads& loads, CMemberAnswer& answer) {
  answer.Clear();
  CSolidCheck(section, steel, loads, answer).Run();
  if (answer.IsRefused() || !IsBentBothWays(section, loads.m_x)) return;
  CMemberLoads turned = loads;
  turned.m_x.m_bOther = true;
  CMemberAnswer other;
  CSolidCheck(section, steel, turned, other).Run();
  answer.TakeWorse(other);
  answer.Note(CMemberNote::OppositeMoment);
}

void CSolidCheck::Run() {
  Give();
  RefuseWhatIsNotCovered();
  if (a.IsRefused()) return;
  Slenderness();
  Plasticity();
  Strength();
  if (q.m_bNet) Net();
  Shear();
  Combined();
  Stability();
  if (a.IsRefused()) return;
  if (q.m_dN != 0) SlendernessCheck();
  Plates();
  Panels();
}

// The figures that every formula draws on.
void CSolidCheck::Give() {
  r.m_dF = m.m_dF;
  r.m_dFv = m.m_dFv;
  r.m_dFy = m.m_dFy;
  r.m_dEpsilonK = EpsilonK(m.m_nGrade);
  r.m_dA = s.m_dA;
  a.Step("f", nullptr, m.m_dF, "N/mm²");
  a.Step("fv", nullptr, m.m_dFv, "N/mm²");
  a.Step("fyk", nullptr, NominalYield(m.m_nGrade), "N/mm²");
  if (m.m_dFu > 0) a.Step("fu", nullptr, m.m_dFu, "N/mm²");
  a.Step("εk", "√(235/{fyk})", r.m_dEpsilonK);
  a.Step("A", nullptr, s.m_dA, "mm²");
  a.Step("Ix", nullptr, s.m_dIx, "mm⁴");
  a.Step("Iy", nullptr, s.m_dIy, "mm⁴");
  a.Step("N", nullptr, std::fabs(q.m_dN), "N");
  if (!q.m_x.IsZero()) a.Step("Mx", nullptr, std::fabs(m_dMx), "N·mm");
  if (!q.m_y.IsZero()) a.Step("My", nullptr, m_dMy, "N·mm");
}

void CSolidCheck::RefuseWhatIsNotCovered() {
  const auto refuse = [&](const char* key, CTextLiteral what, CTextLiteral right) {
    a.Refuse(key, {what.m_szChinese, what.m_szEnglish}, {right.m_szChinese, right.m_szEnglish});
  };
  const char* moment = !q.m_x.IsZero() ? "Mx" : "My";
  if (IsAngleShape(s.m_nShape) && (HasMoment() || q.m_dVx != 0 || q.m_dVy != 0)) {
    return refuse(
        HasMoment()    ? moment
        : q.m_dVy != 0 ? "Vy"
                       : "Vx",
        {"单角钢和双角钢只验算轴心受力", "angles and pairs are checked for axial force alone"},
        {"请给 0，或选用其他截面", "give 0, or another section"});
  }
  if (m_dNc > 0 && HasMoment() && s.m_nShape == CMemberShape::Channel) {
    return refuse(
        moment,
        {"压弯槽钢不在验算范围内", "a channel under compression with moments is not covered"},
        {"请给 0，或选用工字形、箱形截面", "give 0, or an I or box section"});
  }
  if (m_dNc > 0 && HasMoment() && IsSolid(s.m_nShape)) {
    return refuse(
        moment,
        {"压弯实心截面的稳定不在验算范围内",
         "the stability of a solid section under compression with moments is not covered"},
        {"请给 0，或选用其他截面", "give 0, or another section"});
  }
  if (m_dNc > 0 && !q.m_y.IsZero() && !s.IsDoublySymmetric()) {
    return refuse(
        "My",
        {"压力与绕 y 轴的弯矩：规范的公式只用于双轴对称截面",
         "compression with a moment about y: the code's formulas are for doubly symmetric "
         "sections"},
        {"请给 0，或选用双轴对称截面", "give 0, or a doubly symmetric section"});
  }
  const bool bStrongX = s.m_dIx > s.m_dIy * (1 + 1e-9), bStrongY = s.m_dIy > s.m_dIx * (1 + 1e-9);
  if (s.m_nShape == CMemberShape::SolidBar &&
      ((bStrongX && !q.m_x.IsZero()) || (bStrongY && !q.m_y.IsZero()))) {
    return refuse(
        bStrongX ? "Mx" : "My",
        {"绕强轴受弯的实心截面，规范没有整体稳定公式",
         "the code has no lateral buckling of a solid section bent about its strong axis"},
        {"请绕弱轴受弯，或选用其他截面", "bend it about its weak axis, or take another section"});
  }
  const bool bOpen = s.m_nShape == CMemberShape::I || s.m_nShape == CMemberShape::Channel ||
                     s.m_nShape == CMemberShape::T;
  if (bOpen && bStrongY && !q.m_y.IsZero()) {
    return refuse("My",
                  {"截面绕 y 轴更强（Iy > Ix）：绕强轴 y 受弯的开口截面，规范没有整体稳定公式",
                   "the section is stronger about y (Iy > Ix): the code has no lateral buckling of "
                   "an open section bent about y"},
                  {"请给 0，或选用其他截面", "give 0, or take another section"});
  }
}

// --- Slenderness ---------------------------------------------------------------------------------

void CSolidCheck::Slenderness() {
  if (q.m_dN == 0) return;
  if (s.m_nShape == CMemberShape::Angle) {
    const double l = std::max(q.m_dLx, q.m_dLy);
    if (q.m_dLx != q.m_dLy) a.Note(CMemberNote::AngleLengths);
    r.m_dLambdaY = m_dLambdaMax = l / s.m_dRmin;
    a.Step("l0", nullptr, l, "mm");
    a.Step("imin", nullptr, s.m_dRmin, "mm");
    a.Step("λ", "{l0}/{imin}", m_dLambdaMax);
  } else {
    GiveSlendernesses(a, q.m_dLx, q.m_dLy, s.m_dRx, s.m_dRy);
    m_dLambdaFx = r.m_dLambdaX;
    m_dLambdaMax = std::max(r.m_dLambdaX, r.m_dLambdaY);
  }
  if (m_dNc > 0) TorsionalSlendernesses();
}

// With torsion, where the shape asks for it.
void CSolidCheck::TorsionalSlendernesses() {
  const bool bFlexuralTorsional = s.m_nShape == CMemberShape::T ||
                                  s.m_nShape == CMemberShape::Channel ||
                                  (s.m_nShape == CMemberShape::I && !s.IsEqualFlanged());
  const bool bTorsional = s.m_nShape == CMemberShape::I && Is2017() && !HasMoment();
  if (bFlexuralTorsional || bTorsional) {
    const double e = !bFlexuralTorsional                   ? 0
                     : s.m_nShape == CMemberShape::Channel ? s.m_dXs
                                                           : s.m_dYs;
    const double I0 = s.m_dIx + s.m_dIy + s.m_dA * e * e;
    r.m_dLambdaZ = TorsionalSlenderness(I0, s.m_dIt, s.m_dIw, q.m_dLz);
    a.Step("It", nullptr, s.m_dIt, "mm⁴");
    a.Step("Iω", nullptr, s.m_dIw, "mm⁶");
    a.Step("lω", nullptr, q.m_dLz, "mm");
    a.Step("e", nullptr, std::fabs(e), "mm");
    a.Step("I0", "{Ix} + {Iy} + {A}·{e}²", I0, "mm⁴");
    a.Step("λz", "√({I0}/({It}/25.7 + {Iω}/{lω}²))", r.m_dLambdaZ);
    if (!bFlexuralTorsional) return;
    const double i02 = I0 / s.m_dA;
    a.Step("i0²", "{I0}/{A}", i02, "mm²");
    if (s.m_nShape == CMemberShape::Channel) {
      m_dLambdaFx = FlexuralTorsionalSlenderness(r.m_dLambdaX, r.m_dLambdaZ, e, i02);
      r.m_dLambdaYz = m_dLambdaFx;
      a.Step("λxz", "√(({λx}² + {λz}² + √(({λx}² + {λz}²)² − 4·(1 − {e}²/{i0²})·{λx}²·{λz}²))/2)",
             m_dLambdaFx);
    } else {
      r.m_dLambdaYz = FlexuralTorsionalSlenderness(r.m_dLambdaY, r.m_dLambdaZ, e, i02);
      a.Step("λyz", "√(({λy}² + {λz}² + √(({λy}² + {λz}²)² − 4·(1 − {e}²/{i0²})·{λy}²·{λz}²))/2)",
             r.m_dLambdaYz);
    }
    return;
  }
  if (!IsAngleShape(s.m_nShape)) return;
  const bool bUnequal = s.m_dLeg != s.m_dLegShort;
  const double t = s.m_dLegThick;
  // The outstanding leg of a pair; of a single angle the longer one.
  const double b = s.m_nShape == CMemberShape::LongLegPair ? s.m_dLegShort : s.m_dLeg;
  a.Step("b", nullptr, b, "mm");
  a.Step("t", nullptr, t, "mm");
  if (Is2017()) {
    if (s.m_nShape == CMemberShape::Angle && !bUnequal) return;
    struct CFactors {
      double m_dZ, m_dShare;
      const char* m_szZ;
      const char* m_szForm;
    };
    static constexpr CFactors kFactors[] = {
        {4.21, 0.25, "4.21·{b}/{t}", "{λ>}·(1 + 0.25·({λ<}/{λ>})²)"},
        {3.9, 0.16, "3.9·{b}/{t}", "{λ>}·(1 + 0.16·({λ<}/{λ>})²)"},
        {5.1, 0.25, "5.1·{b}/{t}", "{λ>}·(1 + 0.25·({λ<}/{λ>})²)"},
        {3.7, 0.06, "3.7·{b}/{t}", "{λ>}·(1 + 0.06·({λ<}/{λ>})²)"},
    };
    const CFactors& f =
        kFactors[static_cast<int>(s.m_nShape) - static_cast<int>(CMemberShape::Angle)];
    r.m_dLambdaZ = f.m_dZ * b / t;
    r.m_dLambdaYz = AngleSlenderness2017(r.m_dLambdaY, r.m_dLambdaZ, f.m_dShare);
    a.Step("λz", f.m_szZ, r.m_dLambdaZ);
    // A single angle's is λ, about its least axis.
    const bool bSingle = s.m_nShape == CMemberShape::Angle;
    a.Step("λ>", bSingle ? "max({λ}, {λz})" : "max({λy}, {λz})",
           std::max(r.m_dLambdaY, r.m_dLambdaZ));
    a.Step("λ<", bSingle ? "min({λ}, {λz})" : "min({λy}, {λz})",
           std::min(r.m_dLambdaY, r.m_dLambdaZ));
    a.Step("λyz", f.m_szForm, r.m_dLambdaYz);
    return;
  }
  if (s.m_nShape == CMemberShape::Angle) {
    if (bUnequal || IsOneLeg()) return;  // 3.4.2 stands for torsion too
    // About the axis of symmetry, whose radius follows from the others: iu^2 + iv^2 = ix^2 + iy^2.
    const double iu = std::sqrt(s.m_dRx * s.m_dRx + s.m_dRy * s.m_dRy - s.m_dRmin * s.m_dRmin);
    const double l = std::max(q.m_dLx, q.m_dLy);
    r.m_dLambdaYz = AngleSlenderness2003(kSingleAngle2003, l / iu, b, t, l);
    a.Step("iu", nullptr, iu, "mm");
    a.Step("λu", "{l0}/{iu}", l / iu);
    const bool bSlender = b / t <= kSingleAngle2003.m_dLimit * l / b;
    a.Step("λuz",
           bSlender ? "{λu}·(1 + 0.85·{b}⁴/({l0}²·{t}²))"
                    : "4.78·{b}/{t}·(1 + {l0}²·{t}²/(13.5·{b}⁴))",
           r.m_dLambdaYz);
    return;
  }
  const CAngleFactors2003& f = s.m_nShape == CMemberShape::EqualPair     ? kEqualPair2003
                               : s.m_nShape == CMemberShape::LongLegPair ? kLongLegPair2003
                                                                         : kShortLegPair2003;
  r.m_dLambdaYz = AngleSlenderness2003(f, r.m_dLambdaY, b, t, q.m_dLy);
  const bool bSlender = b / t <= f.m_dLimit * q.m_dLy / b;
  const char* form = "{λy}";
  if (s.m_nShape == CMemberShape::EqualPair) {
    form = bSlender ? "{λy}·(1 + 0.475·{b}⁴/({l0y}²·{t}²))"
                    : "3.9·{b}/{t}·(1 + {l0y}²·{t}²/(18.6·{b}⁴))";
  } else if (s.m_nShape == CMemberShape::LongLegPair) {
    form = bSlender ? "{λy}·(1 + 1.09·{b}⁴/({l0y}²·{t}²))"
                    : "5.1·{b}/{t}·(1 + {l0y}²·{t}²/(17.4·{b}⁴))";
  } else if (!bSlender) {
    form = "3.7·{b}/{t}·(1 + {l0y}²·{t}²/(52.7·{b}⁴))";
  }
  a.Step("λyz", form, r.m_dLambdaYz);
}

// 7.4.6 and 7.4.7; without torsion.
void CSolidCheck::SlendernessCheck() {
  const auto of = [&](CMemberRole role) { return *SlendernessLimit(m.m_nEdition, role); };
  const bool bPressed = m_dNc > 0;
  double limit = of(bPressed       ? CMemberRole::Compression
                    : q.m_bDynamic ? CMemberRole::TensionDynamic
                                   : CMemberRole::TensionStatic);
  if (bPressed && IsAngleShape(s.m_nShape)) limit = 200;
  const double greatest = of(bPressed       ? CMemberRole::CompressionBracing
                             : q.m_bDynamic ? CMemberRole::TensionDynamic
                                            : CMemberRole::TensionBracing);
  limit = TakenLimit(a, q.m_dLimit, limit, greatest);
  a.Open(CMemberCheckKind::Slenderness,
         bPressed ? Clause("7.4.6", "5.3.8") : Clause("7.4.7", "5.3.9"));
  a.Step("λmax", nullptr, m_dLambdaMax);
  a.Step("[λ]", nullptr, limit);
  a.Close("{λmax}/{[λ]}", m_dLambdaMax / limit);
}

// Holes in the section: 7.1.1-2 (in compression those without a bolt, 7.1.2); 2003: 5.1.1.
void CSolidCheck::Net() {
  if (q.m_dN == 0) return;
  const double An = q.m_dNetA * s.m_dA;
  const double N = std::fabs(q.m_dN);
  const double share = JointShare();
  a.Open(CMemberCheckKind::Net,
         JointClause(m_dNc > 0 ? Clause("7.1.2", "5.1.1") : Clause("7.1.1", "5.1.1")));
  a.Step("An", nullptr, An, "mm²");
  if (share < 1) a.Step("η", nullptr, share);
  if (m_dNc > 0) a.Note(CMemberNote::HolesWithoutBolts);
  const double strength = Is2017() ? 0.7 * m.m_dFu : F();
  const char* formula = Is2017() ? "{N}/({An}·0.7·{fu})" : "{N}/({An}·{f})";
  if (share < 1) formula = Is2017() ? "{N}/({η}·{An}·0.7·{fu})" : "{N}/({η}·{An}·{f})";
  a.Close(formula, N / (share * An * strength));
}

}  // namespace orv3
