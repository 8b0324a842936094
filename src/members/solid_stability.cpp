// Overall stability of a solid-web member: GB 50017-2017, 6.2, 7.2.1, 8.2; GB 50017-2003, 4.2,
// 5.1.2, 5.2.2 to 5.2.5.
#include <algorithm>
#include <cmath>
#include <string_view>

#include "codes/lateral_buckling.h"
#include "framework/plain_number.h"
#include "members/beam_column.h"
#include "members/solid_check.h"

namespace orv3 {

double CSolidCheck::Phi(double lambda, CBucklingClass bucklingClass) const {
  return StabilityFactor(lambda, NominalYield(m.m_nGrade), bucklingClass);
}

void CSolidCheck::Stability() {
  if (m_dNc == 0) return Lateral();
  static constexpr const char* kClasses[] = {"a", "b", "c", "d"};
  r.m_szClassX = kClasses[static_cast<int>(m.m_nClassX)];
  r.m_szClassY = kClasses[static_cast<int>(m.m_nClassY)];
  if (s.m_nShape == CMemberShape::Angle) {
    const double lambda =
        std::isnan(r.m_dLambdaYz) ? r.m_dLambdaY : std::max(r.m_dLambdaY, r.m_dLambdaYz);
    r.m_szClassX = "";
    r.m_dPhiY = m_dPhiLeast = Phi(lambda, m.m_nClassY);
    if (IsOneLeg()) return OneLegStability(lambda, r.m_dPhiY);
    return AxialStability(CMemberCheckKind::StabilityY, lambda, r.m_dPhiY);
  }
  const double lambdaX = m_dLambdaFx;
  const bool bChannel = s.m_nShape == CMemberShape::Channel;
  const double lambdaY = bChannel || std::isnan(r.m_dLambdaYz) ? r.m_dLambdaY : r.m_dLambdaYz;
  r.m_dPhiX = Phi(lambdaX, bChannel ? m.m_nClassY : m.m_nClassX);
  r.m_dPhiY = Phi(lambdaY, m.m_nClassY);
  m_dPhiLeast = std::min(r.m_dPhiX, r.m_dPhiY);
  if (HasMoment()) {
    BeamColumns();
    // The moment by itself: compression is no help against lateral buckling.
    if (!a.IsRefused()) Lateral();
    return;
  }
  AxialStability(CMemberCheckKind::StabilityX, lambdaX, r.m_dPhiX);
  AxialStability(CMemberCheckKind::StabilityY, lambdaY, r.m_dPhiY);
  if (Is2017() && s.m_nShape == CMemberShape::I && s.IsEqualFlanged()) {
    r.m_dPhiZ = Phi(r.m_dLambdaZ, m.m_nClassY);
    m_dPhiLeast = std::min(m_dPhiLeast, r.m_dPhiZ);
    AxialStability(CMemberCheckKind::StabilityZ, r.m_dLambdaZ, r.m_dPhiZ);
  }
}

// 7.2.1; 2003: 5.1.2.
void CSolidCheck::AxialStability(CMemberCheckKind kind, double lambda, double phi) {
  a.Open(kind, Clause("7.2.1", "5.1.2"));
  a.Step("λ", nullptr, lambda);
  a.Step("φ", nullptr, phi);
  a.Close("{N}/({φ}·{A}·{f})", AxialTerm(m_dNc, phi, s.m_dA, F()));
}

// 7.6.1, 7.6.3; 2003: 3.4.2.
void CSolidCheck::OneLegStability(double lambda, double phi) {
  const COneLegAngle angle = {q.m_nJoint, s.m_dLeg, s.m_dLegThick, m_dLambdaMax};
  m_oneLeg = OneLegFactors(m.m_nEdition, r.m_dEpsilonK, angle);
  a.Open(CMemberCheckKind::StabilityY, OneLegClause(m.m_nEdition, m_oneLeg));
  a.Step("λ", nullptr, lambda);
  a.Step("φ", nullptr, phi);
  GiveOneLegFactors(a, angle, m_oneLeg);
  a.Close(m_oneLeg.m_dRhoE < 1 ? "{N}/({ρe}·{η}·{φ}·{A}·{f})" : "{N}/({η}·{φ}·{A}·{f})",
          m_dNc / (m_oneLeg.Share() * phi * s.m_dA * F()));
}

// --- Beam-columns --------------------------------------------------------------------------------

void CSolidCheck::BeamColumns() {
  if (Is2017() && s.m_nShape == CMemberShape::Tube && IsBiaxial()) return TubeTwoMoments();
  // What the formulas take of the section: with a plate of class S5 its effective part.
  m_dAe = m_effective ? m_effective->m_dA : s.m_dA;
  (m_bTurned ? m_dShiftY : m_dShiftX) = m_effective ? m_effective->m_dE : 0;
  m_dW1 = m_effective ? m_effective->m_dWCompressed : WCompressed();
  m_dWy = m_effective ? m_effective->m_dWSide : s.m_dWSide;
  const bool bClosed = IsClosed(s.m_nShape);
  m_dEta = bClosed ? 0.7 : 1;
  const double NcrX = EulerForce(s.m_dA, r.m_dLambdaX), NcrY = EulerForce(s.m_dA, r.m_dLambdaY);
  m_inX = InPlaneMoment(m.m_nEdition, q.m_x, m_dNc, NcrX, q.m_bSway);
  m_inY = InPlaneMoment(m.m_nEdition, q.m_y, m_dNc, NcrY, q.m_bSway);
  m_outX = OutOfPlaneMoment(q.m_x, q.m_dPartX);
  m_outY = OutOfPlaneMoment(q.m_y, q.m_dPartY);
  if (!q.m_x.IsZero()) {
    r.m_dBetaMx = m_inX.m_dBeta;
    r.m_dBetaTx = m_outX.m_dBeta;
  }
  if (!q.m_y.IsZero()) {
    r.m_dBetaMy = m_inY.m_dBeta;
    r.m_dBetaTy = m_outY.m_dBeta;
  }
  if (Is2017() && q.m_bSway && (q.m_x.HasLoad() || q.m_y.HasLoad()))
    a.Note(CMemberNote::SwayWithLoad);
  BeamColumnX();
  BeamColumnY();
}

// beta-m or beta-t with the end moments or the force that they follow from.
void CSolidCheck::GiveBetaM(const char* symbol, const CMomentCourse& c, double beta, double Ncr) {
  if (Is2017() && q.m_bSway && !c.HasLoad()) {
    a.Step("Ncr", nullptr, Ncr, "N");
    return a.Step(symbol, "1 − 0.36·{N}/{Ncr}", beta);
  }
  if (!q.m_bSway && c.HasEnds() && !c.HasLoad()) {
    a.Step("k", nullptr, c.EndRatio());
    return a.Step(symbol, Is2017() ? "0.6 + 0.4·{k}" : "0.65 + 0.35·{k}", beta);
  }
  if (!Is2017() || !c.HasLoad() || c.m_bOther || q.m_bSway) return a.Step(symbol, nullptr, beta);
  const bool bPoint = c.m_nLoad == CSpanLoad::Midspan;
  a.Step("Ncr", nullptr, Ncr, "N");
  if (!c.HasEnds())
    return a.Step(symbol, bPoint ? "1 − 0.36·{N}/{Ncr}" : "1 − 0.18·{N}/{Ncr}", beta);
  const double share = m_dNc / Ncr;
  a.Step("βmq", bPoint ? "1 − 0.36·{N}/{Ncr}" : "1 − 0.18·{N}/{Ncr}",
         1 - (bPoint ? 0.36 : 0.18) * share);
  a.Step("k", nullptr, c.EndRatio());
  a.Step("βm1", "0.6 + 0.4·{k}", 0.6 + 0.4 * c.EndRatio());
  a.Step("Mq", nullptr, c.m_dMq, "N·mm");
  a.Step("M1", nullptr, c.JudgedEnd(), "N·mm");
  a.Step("M", nullptr, std::fabs(c.Governing()), "N·mm");
  a.Step(symbol, c.Governing() == 0 ? nullptr : "|{βmq}·{Mq} + {βm1}·{M1}|/{M}", beta);
}

void CSolidCheck::GiveBetaT(const char* symbol, const CMomentCourse& c, double part, double beta) {
  if (c.HasLoad() || !c.HasEnds()) return a.Step(symbol, nullptr, beta);
  GivePartRatio(c, part);
  a.Step(symbol, part < 1 ? "0.65 + 0.35·{kl}" : "0.65 + 0.35·{k}", beta);
}

// M2/M1 of the member, and of its part between lateral supports.
void CSolidCheck::GivePartRatio(const CMomentCourse& c, double part) {
  a.Step("k", nullptr, c.EndRatio());
  if (part == 1) return;
  a.Step("s", nullptr, part);
  a.Step("kl", "1 − (1 − {k})·{s}", c.PartRatio(part));
  if (c.m_dM1 != c.m_dM2) a.Note(CMemberNote::PartOfMember);
}

// About x in the plane of Mx, with what My adds.
void CSolidCheck::BeamColumnX() {
  const bool bTwo = IsBiaxial() || q.m_x.IsZero();
  a.Open(CMemberCheckKind::StabilityX, bTwo          ? Clause("8.2.5", "5.2.5")
                                       : m_effective ? "8.4.2"
                                                     : Clause("8.2.1", "5.2.2"));
  const double NE = ReducedEulerForce(s.m_dA, r.m_dLambdaX);
  const double axial = AxialTerm(m_dNc, r.m_dPhiX, m_dAe, F());
  const double M = m_inX.m_dMoment + m_dNc * m_dShiftX;
  const double inPlane =
      q.m_x.IsZero() ? 0 : AmplifiedTerm(M, r.m_dGammaX * m_dW1, 0.8, m_dNc, NE, F());
  const double across = LateralTerm(m_dEta, m_outY.m_dMoment + m_dNc * m_dShiftY, 1, m_dWy, F());
  a.Step("φx", nullptr, r.m_dPhiX);
  if (m_effective) a.Step("e", nullptr, m_dShiftX + m_dShiftY, "mm");
  if (m_effective) a.Step("Ae", nullptr, m_dAe, "mm²");
  a.Step("axial", m_effective ? "{N}/({φx}·{Ae}·{f})" : "{N}/({φx}·{A}·{f})", axial);
  double ratio = axial + inPlane + across;
  if (!q.m_x.IsZero()) {
    a.Step("N′Ex", "π²·206000·{A}/(1.1·{λx}²)", NE, "N");
    GiveBetaM("βmx", q.m_x, m_inX.m_dBeta, 1.1 * NE);
    a.Step("Mx", nullptr, m_inX.m_dM, "N·mm");
    a.Step("γx", nullptr, r.m_dGammaX);
    a.Step("W1x", nullptr, m_dW1, "mm³");
    a.Step("bending",
           m_effective ? "({βmx}·{Mx} + {N}·{e})/({γx}·{W1x}·(1 − 0.8·{N}/{N′Ex})·{f})"
                       : "{βmx}·{Mx}/({γx}·{W1x}·(1 − 0.8·{N}/{N′Ex})·{f})",
           inPlane);
  }
  if (!q.m_y.IsZero()) {
    a.Step("η", nullptr, m_dEta);
    GiveBetaT("βty", q.m_y, q.m_dPartY, m_outY.m_dBeta);
    a.Step("My", nullptr, m_outY.m_dM, "N·mm");
    a.Step("Wy", nullptr, m_dWy, "mm³");
    a.Step("across",
           m_dShiftY > 0 ? "{η}·({βty}·{My} + {N}·{e})/({Wy}·{f})" : "{η}·{βty}·{My}/({Wy}·{f})",
           across);
  }
  const char* formula = q.m_y.IsZero()   ? "{axial} + {bending}"
                        : q.m_x.IsZero() ? "{axial} + {across}"
                                         : "{axial} + {bending} + {across}";
  // 8.2.1, singly symmetric: the far edge may yield first in tension.
  const double W2 = m_effective ? m_effective->m_dWOther : WOther();
  const bool bSingly = s.m_nShape == CMemberShape::T || s.m_nShape == CMemberShape::I;
  if (bSingly && !s.IsDoublySymmetric() && !q.m_x.IsZero() && WOther() < WCompressed()) {
    const double second = AmplifiedTerm(m_inX.m_dMoment, m_dGammaOther * W2, 1.25, m_dNc, NE, F());
    const double tension = std::fabs(m_dNc / (m_dAe * F()) - second);
    a.Step("W2x", nullptr, W2, "mm³");
    a.Step("γx2", nullptr, m_dGammaOther);
    a.Step("tension side",
           m_effective ? "|{N}/({Ae}·{f}) − {βmx}·{Mx}/({γx2}·{W2x}·(1 − 1.25·{N}/{N′Ex})·{f})|"
                       : "|{N}/({A}·{f}) − {βmx}·{Mx}/({γx2}·{W2x}·(1 − 1.25·{N}/{N′Ex})·{f})|",
           tension);
    if (tension > ratio) {
      ratio = tension;
      formula = "{tension side}";
    }
  }
  a.Close(formula, ratio);
}

// Out of the plane of Mx, or in the plane of My with what Mx adds.
void CSolidCheck::BeamColumnY() {
  const bool bMy = !q.m_y.IsZero();
  a.Open(CMemberCheckKind::StabilityY, bMy && !q.m_x.IsZero() ? Clause("8.2.5", "5.2.5")
                                       : m_effective          ? "8.4.2"
                                                              : Clause("8.2.1", "5.2.2"));
  r.m_dPhiB = IsClosed(s.m_nShape) || q.m_x.IsZero() ? 1 : BeamColumnPhiB();
  if (a.IsRefused()) return;
  const double NE = ReducedEulerForce(s.m_dA, r.m_dLambdaY);
  const double axial = AxialTerm(m_dNc, r.m_dPhiY, m_dAe, F());
  const double M = m_outX.m_dMoment + m_dNc * m_dShiftX;
  const double across = q.m_x.IsZero() ? 0 : LateralTerm(m_dEta, M, r.m_dPhiB, m_dW1, F());
  const double inPlane =
      AmplifiedTerm(m_inY.m_dMoment + m_dNc * m_dShiftY, r.m_dGammaY * m_dWy, 0.8, m_dNc, NE, F());
  a.Step("φy", nullptr, r.m_dPhiY);
  if (m_effective) a.Step("e", nullptr, m_dShiftX + m_dShiftY, "mm");
  if (m_effective) a.Step("Ae", nullptr, m_dAe, "mm²");
  a.Step("axial", m_effective ? "{N}/({φy}·{Ae}·{f})" : "{N}/({φy}·{A}·{f})", axial);
  if (!q.m_x.IsZero()) {
    a.Step("η", nullptr, m_dEta);
    GiveBetaT("βtx", q.m_x, q.m_dPartX, m_outX.m_dBeta);
    a.Step("Mx", nullptr, m_outX.m_dM, "N·mm");
    if (IsClosed(s.m_nShape)) a.Step("φb", nullptr, r.m_dPhiB);
    a.Step("W1x", nullptr, m_dW1, "mm³");
    a.Step("across",
           m_effective ? "{η}·({βtx}·{Mx} + {N}·{e})/({φb}·{W1x}·{f})"
                       : "{η}·{βtx}·{Mx}/({φb}·{W1x}·{f})",
           across);
  }
  if (bMy) {
    a.Step("N′Ey", "π²·206000·{A}/(1.1·{λy}²)", NE, "N");
    GiveBetaM("βmy", q.m_y, m_inY.m_dBeta, 1.1 * NE);
    a.Step("My", nullptr, m_inY.m_dM, "N·mm");
    a.Step("γy", nullptr, r.m_dGammaY);
    a.Step("Wy", nullptr, m_dWy, "mm³");
    a.Step("bending",
           m_dShiftY > 0 ? "({βmy}·{My} + {N}·{e})/({γy}·{Wy}·(1 − 0.8·{N}/{N′Ey})·{f})"
                         : "{βmy}·{My}/({γy}·{Wy}·(1 − 0.8·{N}/{N′Ey})·{f})",
           inPlane);
  }
  a.Close(!bMy             ? "{axial} + {across}"
          : q.m_x.IsZero() ? "{axial} + {bending}"
                           : "{axial} + {bending} + {across}",
          axial + across + inPlane);
}

// 8.2.4, by the greater resultant of both ends. With a load in the span the greatest resultant and
// beta 1; with sway beta 1.
void CSolidCheck::TubeTwoMoments() {
  const bool bLoad = q.m_x.HasLoad() || q.m_y.HasLoad();
  const double lambda = m_dLambdaMax;
  const double NE = EulerForce(s.m_dA, lambda);
  const double root = std::sqrt(m_dNc / NE);
  const auto beta = [&](const CMomentCourse& c) {
    return 1 - 0.35 * root + 0.35 * root * c.EndRatio();
  };
  const CEndMoments end = bLoad ? CEndMoments{std::fabs(m_dMx), m_dMy} : EndMoments();
  const double M = end.Resultant();
  // The product is of members whose ends do not sway.
  const bool bGreatest = bLoad || q.m_bSway;
  const double equivalent = bGreatest ? 1 : beta(q.m_x) * beta(q.m_y);
  if (bLoad) a.Note(CMemberNote::TubeLoads);
  if (q.m_bSway) a.Note(CMemberNote::TubeSway);
  const double NEr = ReducedEulerForce(s.m_dA, lambda);
  const double axial = AxialTerm(m_dNc, m_dPhiLeast, s.m_dA, F());
  const double bending =
      AmplifiedTerm(equivalent * M, r.m_dGammaX * s.m_dWTop, 0.8, m_dNc, NEr, F());
  a.Open(CMemberCheckKind::StabilityX, "8.2.4");
  a.Step("φ", nullptr, m_dPhiLeast);
  a.Step("λ", nullptr, lambda);
  a.Step("NE", "π²·206000·{A}/{λ}²", NE, "N");
  a.Step("N′E", "{NE}/1.1", NEr, "N");
  if (bGreatest) {
    a.Step("β", nullptr, equivalent);
  } else {
    a.Step("kx", nullptr, q.m_x.EndRatio());
    a.Step("ky", nullptr, q.m_y.EndRatio());
    a.Step("βx", "1 − 0.35·√({N}/{NE}) + 0.35·√({N}/{NE})·{kx}", beta(q.m_x));
    a.Step("βy", "1 − 0.35·√({N}/{NE}) + 0.35·√({N}/{NE})·{ky}", beta(q.m_y));
    a.Step("β", "{βx}·{βy}", equivalent);
  }
  a.Step("Mx", nullptr, end.m_dX, "N·mm");
  a.Step("My", nullptr, end.m_dY, "N·mm");
  a.Step("M", "√({Mx}² + {My}²)", M, "N·mm");
  a.Step("γm", nullptr, r.m_dGammaX);
  a.Step("W", nullptr, s.m_dWTop, "mm³");
  a.Close("{N}/({φ}·{A}·{f}) + {β}·{M}/({γm}·{W}·(1 − 0.8·{N}/{N′E})·{f})", axial + bending);
}

// --- phi-b ---------------------------------------------------------------------------------------

CBeamSection CSolidCheck::BeamSection() const {
  const auto inertia = [](const CMemberFlange& f) {
    return f.m_dThick * f.m_dWidth * f.m_dWidth * f.m_dWidth;
  };
  const double compressed = inertia(CompressedFlange());
  const double both = inertia(s.m_top) + inertia(s.m_bottom);
  return {s.m_dA, s.m_dHeight, WCompressed(), CompressedFlange().m_dThick,
          s.IsEqualFlanged() ? 0.5 : compressed / both};
}

// What an argument of the code's look-ups is called in a sentence.
constexpr struct {
  std::string_view m_szArgument;
  CTextLiteral m_name;
} kArguments[] = {
    {"alphab", {"αb", "αb"}},
    {"i-number", {"工字钢型号", "I number"}},
    {"length", {"以 m 计的受压翼缘自由长度", "free span of the flange in m"}},
};

// An answer of the code, or its refusal as the answer of the check.
template <class VALUE>
const VALUE* CSolidCheck::Take(const char* key, const CCodeAnswer<VALUE>& answer) {
  if (answer) return &*answer;
  const CCodeRefusal& refusal = answer.Refusal();
  CTextLiteral name = {refusal.m_szArgument, refusal.m_szArgument};
  for (const auto& each : kArguments) {
    if (each.m_szArgument == refusal.m_szArgument) name = each.m_name;
  }
  a.Refuse(key,
           {std::string("整体稳定系数 φb：") + name.m_szChinese + " " + refusal.m_what.m_strChinese,
            std::string("no φb, ") + name.m_szEnglish + " " + refusal.m_what.m_strEnglish},
           refusal.m_right);
  return nullptr;
}

// C.0.5 (2003: B.5) ends at 120 εk, and the code has no other φb of a T.
void CSolidCheck::RefuseSlenderT(double lambdaY) {
  const double most = 120 * r.m_dEpsilonK;
  const CComparedText text = Compared(lambdaY, most);
  const std::string l1 = PlainNumber(std::floor(most * s.m_dRy)) + " mm";
  a.Refuse("lengths",
           {"T 形截面受压翼缘自由长度的 λy = " + text.m_strEffect +
                " 大于 120εk = " + text.m_strLimit + "，规范没有 φb（C.0.5；2003：B.5）",
            "λy = " + text.m_strEffect + " of the T's free span is over 120 εk = " +
                text.m_strLimit + ", where the code has no φb (C.0.5; 2003: B.5)"},
           {"请使 lengths.span 不大于 " + l1 + "，或选用 iy 更大的截面",
            "give lengths.span of at most " + l1 + ", or a section with a greater iy"});
}

double CSolidCheck::UniformPhiB(double lambdaY) {
  CUniformBendingShape shape =
      s.IsEqualFlanged() ? CUniformBendingShape::I : CUniformBendingShape::ISingly;
  if (s.m_nShape == CMemberShape::T) {
    const double limit = 18 * r.m_dEpsilonK;
    shape = CUniformBendingShape::TPlates;
    if (m_nSide == CSide::Bottom) {
      shape = CUniformBendingShape::TFlangeTension;
      if (s.m_dH0 / s.m_dTw > limit) {
        a.Refuse("section",
                 {"T 形截面腹板受压且宽厚比大于 18εk，规范没有 φb",
                  "the compressed web of the T is wider than 18 εk, for which the code has no φb"},
                 {"请选用腹板较厚的截面", "take a section with a thicker web"});
        return 1;
      }
    }
  }
  if (lambdaY > 120 * r.m_dEpsilonK) {
    RefuseSlenderT(lambdaY);
    return 1;
  }
  const CBeamSection section = BeamSection();
  const auto answer = UniformBendingPhiB(m.m_nEdition, m.m_nGrade, shape, lambdaY, section);
  const double* phiB = Take("lengths", answer);
  if (phiB == nullptr) return 1;
  const char* form = "min(1, 1.07 − {λ1y}²/(44000·{εk}²))";
  if (shape == CUniformBendingShape::ISingly) {
    a.Step("αb", nullptr, section.m_dAlphaB);
    a.Step("h", nullptr, section.m_dH, "mm");
    a.Step("W1x", nullptr, section.m_dWx, "mm³");
    form = "min(1, 1.07 − {W1x}/((2·{αb} + 0.1)·{A}·{h})·{λ1y}²/(14000·{εk}²))";
  } else if (shape == CUniformBendingShape::TPlates) {
    form = "1 − 0.0022·{λ1y}/{εk}";
  } else if (shape == CUniformBendingShape::TFlangeTension) {
    form = "1 − 0.0005·{λ1y}/{εk}";
  }
  a.Step("φb", form, *phiB);
  return *phiB;
}

// C.0.1, its steps; those of beta-b stand before.
double CSolidCheck::GiveWeldedIPhiB(const CBeamSection& section, double lambdaY, double beta) {
  const auto answer = WeldedIPhiB(m.m_nEdition, m.m_nGrade, section, lambdaY, beta);
  const CPhiB* phiB = Take("lengths", answer);
  if (phiB == nullptr) return 1;
  const double alpha = section.m_dAlphaB;
  a.Step("βb", nullptr, beta);
  a.Step("h", nullptr, section.m_dH, "mm");
  a.Step("t1", nullptr, section.m_dT1, "mm");
  a.Step("W1x", nullptr, section.m_dWx, "mm³");
  a.Step("αb", nullptr, alpha);
  a.Step("ηb", alpha > 0.5 ? "0.8·(2·{αb} − 1)" : "2·{αb} − 1",
         (alpha > 0.5 ? 0.8 : 1.0) * (2 * alpha - 1));
  return GivePhiB(*phiB,
                  "{βb}·4320/{λ1y}²·{A}·{h}/{W1x}·(√(1 + ({λ1y}·{t1}/(4.4·{h}))²) + {ηb})·{εk}²");
}

// The elastic phi-b, and what is used of it.
double CSolidCheck::GivePhiB(const CPhiB& phiB, const char* elastic) {
  const bool bReduced = phiB.m_dPhiB != phiB.m_dElastic;
  a.Step(bReduced ? "φb0" : "φb", elastic, phiB.m_dElastic);
  if (bReduced) a.Step("φb", "min(1, 1.07 − 0.282/{φb0})", phiB.m_dPhiB);
  return phiB.m_dPhiB;
}

// C.0.5 where it applies, else C.0.1 with beta-b 1.
double CSolidCheck::BeamColumnPhiB() {
  const double lambdaY = q.m_dSpan / s.m_dRy;
  a.Step("l1", nullptr, q.m_dSpan, "mm");
  a.Step("λ1y", "{l1}/{iy}", lambdaY);
  if (s.m_nShape == CMemberShape::T || lambdaY <= 120 * r.m_dEpsilonK) return UniformPhiB(lambdaY);
  return GiveWeldedIPhiB(BeamSection(), lambdaY, 1);
}

// beta-b: by the load, by the end moments, or the lesser of both.
double CSolidCheck::BeamBetaB(const CBeamSection& section) {
  const CMomentCourse& c = q.m_x;
  double ends = HUGE_VAL, load = HUGE_VAL;
  if (c.HasEnds() || !c.HasLoad()) {
    const bool bUniform = c.m_bOther && c.HasLoad();
    if (!bUniform && c.HasEnds()) GivePartRatio(c, q.m_dPartX);
    ends = *BetaBEndMoments(m.m_nEdition, 1, bUniform ? 1 : c.PartRatio(q.m_dPartX));
  }
  if (c.HasLoad()) {
    if (q.m_nSupports == 0 && section.m_dAlphaB < 0.5) {
      a.Refuse(
          "load",
          {"规范没有受拉翼缘加强的工字形截面跨中无侧向支承时的 βb（表 C.0.1；2003：表 B.1）",
           "the code has no βb of a load without lateral supports on an I whose tension flange is "
           "the heavier (Table C.0.1; 2003: Table B.1)"},
          {"请给出 supports，或改用加强受压翼缘的截面",
           "give supports, or take a section whose compression flange is the heavier"});
      return 1;
    }
    const CMemberFlange& flange = CompressedFlange();
    const double xi = q.m_dSpan * flange.m_dThick / (flange.m_dWidth * section.m_dH);
    const bool bPoint = c.m_nLoad == CSpanLoad::Midspan;
    const CBeamLoad kind =
        bPoint ? (IsLoadTowardsCentroid() ? CBeamLoad::PointUpper : CBeamLoad::PointLower)
               : (IsLoadTowardsCentroid() ? CBeamLoad::UniformUpper : CBeamLoad::UniformLower);
    a.Step("b1", nullptr, flange.m_dWidth, "mm");
    a.Step("t1", nullptr, flange.m_dThick, "mm");
    a.Step("h", nullptr, section.m_dH, "mm");
    a.Step("ξ", "{l1}·{t1}/({b1}·{h})", xi);
    const auto answer = BetaB(m.m_nEdition, kind, q.m_nSupports, xi, section.m_dAlphaB);
    const double* beta = Take("load", answer);
    if (beta == nullptr) return 1;
    load = *beta;
    // How many supports make a part of the member is not said: the least that any number has.
    if (q.m_nSupports == 0 && q.m_dPartX < 1) load = std::min(load, bPoint ? 1.2 : 1.15);
    if (c.HasEnds()) a.Note(CMemberNote::BetweenLoadAndEnds);
  }
  return std::min(ends, load);
}

double CSolidCheck::BeamPhiB() {
  const CMomentCourse& c = q.m_x;
  if (s.m_nShape == CMemberShape::Channel) {
    const auto answer = ChannelPhiB(m.m_nEdition, m.m_nGrade, s.m_dHeight, s.m_top.m_dWidth,
                                    s.m_top.m_dThick, q.m_dSpan);
    const CPhiB* phiB = Take("lengths", answer);
    if (phiB == nullptr) return 1;
    a.Step("h", nullptr, s.m_dHeight, "mm");
    a.Step("b", nullptr, s.m_top.m_dWidth, "mm");
    a.Step("t", nullptr, s.m_top.m_dThick, "mm");
    return GivePhiB(*phiB, "570·{b}·{t}/({l1}·{h})·{εk}²");
  }
  const double lambdaY = q.m_dSpan / s.m_dRy;
  a.Step("λ1y", "{l1}/{iy}", lambdaY);
  if (s.m_nShape == CMemberShape::T) return UniformPhiB(lambdaY);
  if (q.m_dRolledNumber > 0 && c.HasLoad() && !c.HasEnds()) {
    const CRolledILoad load =
        q.m_nSupports > 0 ? CRolledILoad::Supported
        : c.m_nLoad == CSpanLoad::Midspan
            ? (IsLoadTowardsCentroid() ? CRolledILoad::PointUpper : CRolledILoad::PointLower)
            : (IsLoadTowardsCentroid() ? CRolledILoad::UniformUpper : CRolledILoad::UniformLower);
    constexpr double kShortest = 2;  // m; shorter spans have a greater phi-b
    const double span = std::max(kShortest, q.m_dSpan / 1000);
    if (q.m_dSpan < 1000 * kShortest) a.Note(CMemberNote::RolledIShort);
    const auto of = [&](CRolledILoad kind) {
      return RolledIPhiB(m.m_nEdition, m.m_nGrade, kind, q.m_dRolledNumber, span);
    };
    const auto answer = of(load);
    const CPhiB* phiB = Take("lengths", answer);
    if (phiB == nullptr) return 1;
    // Whether supports make a part of the member is not said: the lesser of both.
    const auto supported = of(q.m_dPartX < 1 ? CRolledILoad::Supported : load);
    const bool bLess = supported && supported->m_dPhiB < phiB->m_dPhiB;
    return GivePhiB(bLess ? *supported : *phiB, nullptr);
  }
  if (q.m_bTapered) a.Note(CMemberNote::RolledITable);
  const CBeamSection section = BeamSection();
  const double beta = BeamBetaB(section);
  if (a.IsRefused()) return 1;
  return GiveWeldedIPhiB(section, lambdaY, beta);
}

// 6.2.2, 6.2.3; 2003: 4.2.2, 4.2.3. Of the moments alone.
void CSolidCheck::Lateral() {
  if (s.m_nShape == CMemberShape::Box) return LateralBox();
  if (q.m_x.IsZero()) return;
  switch (s.m_nShape) {
    case CMemberShape::I:
    case CMemberShape::Channel:
    case CMemberShape::T:
      break;
    default:
      return;
  }
  a.Open(CMemberCheckKind::Lateral,
         q.m_y.IsZero() ? Clause("6.2.2", "4.2.2") : Clause("6.2.3", "4.2.3"));
  a.Step("l1", nullptr, q.m_dSpan, "mm");
  a.Step("iy", nullptr, s.m_dRy, "mm");
  const double phiB = BeamPhiB();
  if (a.IsRefused()) return;
  if (m_dNc == 0) r.m_dPhiB = phiB;  // else that of the beam-column
  const CPlasticPart part = WithoutTension();
  const double W = part.m_effective ? part.m_effective->m_dWCompressed : WCompressed();
  const double Wy = part.m_effective ? part.m_effective->m_dWSide : s.m_dWSide;
  a.Step("Mx", nullptr, std::fabs(m_dMx), "N·mm");
  a.Step("Wx", nullptr, W, "mm³");
  const double first = LateralTerm(1, std::fabs(m_dMx), phiB, W, F());
  if (q.m_y.IsZero()) return a.Close("{Mx}/({φb}·{Wx}·{f})", first);
  a.Step("γy", nullptr, part.m_dGammaY);
  a.Step("Wy", nullptr, Wy, "mm³");
  a.Close("{Mx}/({φb}·{Wx}·{f}) + {My}/({γy}·{Wy}·{f})",
          first + m_dMy / (part.m_dGammaY * Wy * F()));
}

// What tension takes off the plates is no help to the moments alone. Its steps stand in the check.
CSolidCheck::CPlasticPart CSolidCheck::WithoutTension() {
  if (q.m_dN <= 0) return {r.m_dGammaY, m_effective};
  CMemberLoads alone = q;
  alone.m_dN = 0;
  CMemberAnswer answer;
  CSolidCheck of(s, m, alone, answer);
  of.Give();
  const std::size_t given = answer.Given().size();
  of.Plasticity();
  for (const CMemberStep& step : answer.Given().subspan(given))
    a.Step(step.m_szSymbol, step.m_szFormula, step.m_dValue, step.m_szUnit);
  for (const CMemberNote note : answer.Notes()) a.Note(note);
  return {answer.m_results.m_dGammaY, of.m_effective};
}

// 6.2.4; 2003: 4.2.4, about the strong axis. The code has no phi-b of a box beyond both limits, so
// they are what it is judged by.
void CSolidCheck::LateralBox() {
  const double ek2 = r.m_dEpsilonK * r.m_dEpsilonK;
  const bool bX = !q.m_x.IsZero() && s.IsStrong(CMemberAxis::X);
  const bool bY = !q.m_y.IsZero() && s.IsStrong(CMemberAxis::Y);
  if (!bX && !bY) return;
  const auto worse = [ek2](double h, double b0, double l1) {
    return std::max(h / b0 / 6, l1 / b0 / (95 * ek2));
  };
  const double x = bX ? worse(s.m_dHeight, s.m_dB0, q.m_dSpan) : 0;
  const double y = bY ? worse(s.m_dWidth, s.m_dH0, q.m_dSpanY) : 0;
  const double h = x >= y ? s.m_dHeight : s.m_dWidth, b0 = x >= y ? s.m_dB0 : s.m_dH0;
  const double l1 = x >= y ? q.m_dSpan : q.m_dSpanY, worst = std::max(x, y);
  a.Open(CMemberCheckKind::Lateral, Clause("6.2.4", "4.2.4"));
  a.Step("h", nullptr, h, "mm");
  a.Step("b0", nullptr, b0, "mm");
  a.Step("l1", nullptr, l1, "mm");
  if (worst > 1) a.Note(CMemberNote::BoxBeyond);
  a.Close(h / b0 / 6 >= l1 / b0 / (95 * ek2) ? "{h}/{b0}/6" : "{l1}/{b0}/(95·{εk}²)", worst);
}

}  // namespace orv3
