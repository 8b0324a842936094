// Plates of a solid-web member: classes, plasticity and local stability. GB 50017-2017, 3.5.1,
// 6.1.1, 6.1.2, 7.3, 8.4; GB 50017-2003, 4.1.1, 4.3, 5.4.
#include <algorithm>
#include <cmath>
#include <utility>

#include "codes/plasticity.h"
#include "codes/width_limits.h"
#include "members/solid_check.h"

namespace orv3 {
namespace {

double Outstand(const CMemberFlange& flange) {
  return flange.m_dThick > 0 ? flange.m_dOutstand / flange.m_dThick : 0;
}

CPlasticShape PlasticShapeOf(CMemberShape shape) {
  switch (shape) {
    case CMemberShape::T:
      return CPlasticShape::T;
    case CMemberShape::Box:
      return CPlasticShape::Box;
    case CMemberShape::Tube:
      return CPlasticShape::Tube;
    case CMemberShape::SolidRound:
    case CMemberShape::SolidBar:
      return CPlasticShape::SolidBar;
    default:
      return CPlasticShape::I;
  }
}

bool HasFlanges(CMemberShape shape) {
  return shape == CMemberShape::I || shape == CMemberShape::Channel || shape == CMemberShape::T;
}

}  // namespace

// Stresses at the ends of the web, compression positive, Mx compressing the top when positive.
CSolidCheck::CWebStress CSolidCheck::WebStress(double Mx) const {
  const double axial = -q.m_dN / s.m_dA + WebStressOfMy();
  const double top = axial + Mx * s.m_dWebTop / s.m_dIx;
  const double bottom = axial - Mx * s.m_dWebBottom / s.m_dIx;
  const double greatest = std::max(top, bottom);
  const double alpha0 = greatest > 0 ? (greatest - std::min(top, bottom)) / greatest : 2;
  return {greatest, alpha0, top >= bottom ? CSide::Top : CSide::Bottom};
}

// A channel's web lies beside its axis y: My presses it evenly, with the sign that adds.
double CSolidCheck::WebStressOfMy() const {
  if (s.m_nShape != CMemberShape::Channel) return 0;
  return m_dMy * (s.m_dWidth - s.m_dIy / s.m_dWSide) / s.m_dIy;
}

CClassElement CSolidCheck::WebElement() const {
  return m_dNc > 0 || WebStressOfMy() > 0 ? CClassElement::WebCompressed
                                          : CClassElement::WebBending;
}

// --- Classes of 2017 -----------------------------------------------------------------------------

void CSolidCheck::Classify(CClassElement element, double ratio, double alpha0) {
  const auto found =
      ClassLimits(m.m_nEdition, element, m.m_nGrade, std::min(alpha0, 2.0))->ClassOf(ratio);
  if (!found) m_bBeyond = true;
  a.Plate({element, ratio, std::min(alpha0, 2.0), found});
  m_class = std::max(m_class.value_or(CSectionClass::S1), found.value_or(CSectionClass::S5));
}

double CSolidCheck::Class4(CClassElement element, double alpha0) const {
  return *ClassLimits(m.m_nEdition, element, m.m_nGrade, std::min(alpha0, 2.0))->m_arrLimit[3];
}

double CSolidCheck::Class5(CClassElement element) const {
  return *ClassLimits(m.m_nEdition, element, m.m_nGrade)->m_arrLimit[4];
}

// By the axial force and the moments along the member, My with the sign that adds.
bool CSolidCheck::IsFlangeCompressed(CSide side) const {
  const double most = side == CSide::Top ? q.m_x.Most() : -q.m_x.Least();
  const double W = side == CSide::Top ? s.m_dWTop : s.m_dWBottom;
  return -q.m_dN / s.m_dA + most / W + m_dMy / s.m_dWSide > 0;
}

double CSolidCheck::FlangeRatio() const {
  return std::max(IsFlangeCompressed(CSide::Top) ? Outstand(s.m_top) : 0.0,
                  IsFlangeCompressed(CSide::Bottom) ? Outstand(s.m_bottom) : 0.0);
}

// Before every formula that asks gamma or an effective section.
void CSolidCheck::Plasticity() {
  if (!HasMoment()) return;
  bool bSlender = false;
  if (Is2017()) {
    ClassifyPlates();
    bSlender = m_bBeyond || m_class.value_or(CSectionClass::S1) > CSectionClass::S3;
    if (m_class) r.m_szClass = SectionClassName(*m_class);
  } else {
    bSlender = HasFlanges(s.m_nShape) && FlangeRatio() > 13 * r.m_dEpsilonK;
  }
  const CPlasticUse use = q.m_bDynamic ? CPlasticUse::Elastic
                          : bSlender   ? CPlasticUse::SlenderFlange
                                       : CPlasticUse::Developed;
  m_bGammaReduced = use != CPlasticUse::Developed;
  const CPlasticFactors gamma = *PlasticFactors(m.m_nEdition, PlasticShapeOf(s.m_nShape), use);
  r.m_dGammaX = m_nSide == CSide::Top ? gamma.m_dX : gamma.m_dXTip;
  m_dGammaOther = m_nSide == CSide::Top ? gamma.m_dXTip : gamma.m_dX;
  r.m_dGammaY = gamma.m_dY;
}

void CSolidCheck::ClassifyPlates() {
  switch (s.m_nShape) {
    case CMemberShape::I:
    case CMemberShape::Channel:
    case CMemberShape::T:
      return ClassifyOpen();
    case CMemberShape::Box: {
      const CClassElement flange = m_dNc > 0         ? CClassElement::BoxWall
                                   : !q.m_x.IsZero() ? CClassElement::BoxFlange
                                                     : CClassElement::WebBending;
      const CClassElement web = m_dNc > 0         ? CClassElement::BoxWall
                                : !q.m_y.IsZero() ? CClassElement::BoxFlange
                                                  : CClassElement::WebBending;
      Classify(flange, BoxFlangeRatio(), 2);
      Classify(web, s.m_dH0 / s.m_dTw, 2);
      if (s.m_dH0 / s.m_dTw > Class4(web, 2) && !q.m_x.IsZero() && q.m_y.IsZero())
        Reduce(WebStress(m_dMx), {.m_bWeb = true});
      if (BoxFlangeRatio() > Class4(flange, 2) && q.m_x.IsZero()) ReduceBoxFlange();
      return;
    }
    case CMemberShape::Tube:
      return Classify(CClassElement::Tube, s.m_dDiameter / s.m_dWall, 2);
    default:
      return;
  }
}

void CSolidCheck::ClassifyOpen() {
  const double flange = FlangeRatio();
  const bool bFlange = flange > 0;
  if (bFlange) Classify(CClassElement::FlangeOutstand, flange, 2);
  if (s.m_nShape == CMemberShape::T) return;
  const CWebStress stress = WebStress(m_dMx);
  const bool bWeb = stress.m_dMax > 0;
  const CClassElement web = WebElement();
  const double h0tw = s.m_dH0 / s.m_dTw;
  if (bWeb) Classify(web, h0tw, stress.m_dAlpha0);
  // The effective section is of webs on the axis y.
  const bool bWebReduced = bWeb && WebStressOfMy() == 0 && h0tw > Class4(web, stress.m_dAlpha0);
  const bool bFlangeReduced = bFlange && m_dNc == 0 && s.m_nShape == CMemberShape::I &&
                              flange > Class4(CClassElement::FlangeOutstand, 2);
  const CSide other = m_nSide == CSide::Top ? CSide::Bottom : CSide::Top;
  if (bWebReduced || bFlangeReduced)
    Reduce(stress, {bWebReduced, bFlangeReduced, bFlangeReduced && IsFlangeCompressed(other)});
}

// A box bent about y has its flanges for webs: the box turned by a right angle.
void CSolidCheck::ReduceBoxFlange() {
  CMemberSection turned = s;
  std::swap(turned.m_dHeight, turned.m_dWidth);
  std::swap(turned.m_dIx, turned.m_dIy);
  turned.m_dWTop = turned.m_dWBottom = s.m_dWSide;
  turned.m_dWSide = std::min(s.m_dWTop, s.m_dWBottom);
  turned.m_top = turned.m_bottom = {s.m_dHeight, s.m_dTw, 0};
  turned.m_dH0 = s.m_dB0;
  turned.m_dB0 = s.m_dH0;
  turned.m_dTw = std::min(s.m_top.m_dThick, s.m_bottom.m_dThick);
  turned.m_dWebTop = turned.m_dWebBottom = s.m_dB0 / 2;
  const double axial = -q.m_dN / s.m_dA, bending = m_dMy * turned.m_dWebTop / s.m_dIy;
  const double greatest = axial + bending;
  if (greatest <= 0) return;
  const double alpha0 = 2 * bending / greatest;
  CEffectiveSection e =
      EffectiveSection(turned, CSide::Top, alpha0, r.m_dEpsilonK, {.m_bWeb = true});
  std::swap(e.m_dWCompressed, e.m_dWSide);
  e.m_dWOther = e.m_dWCompressed;
  m_effective = e;
  m_bTurned = true;
  GiveEffective(alpha0, true, turned.m_dH0, turned.m_dTw);
}

void CSolidCheck::Reduce(const CWebStress& stress, CReducedPlates reduced) {
  m_effective = EffectiveSection(s, m_nSide, stress.m_dAlpha0, r.m_dEpsilonK, reduced);
  GiveEffective(stress.m_dAlpha0, reduced.m_bWeb, s.m_dH0, s.m_dTw);
}

void CSolidCheck::GiveEffective(double alpha0, bool bWeb, double h0, double tw) {
  const CEffectiveSection& e = *m_effective;
  a.Note(CMemberNote::EffectiveSection);
  if (bWeb) {
    a.Step("α0", nullptr, alpha0);
    a.Step("kσ", "16/(2 − {α0} + √((2 − {α0})² + 0.112·{α0}²))", e.m_dKSigma);
    a.Step("h0", nullptr, h0, "mm");
    a.Step("tw", nullptr, tw, "mm");
    a.Step("λn,p", "{h0}/{tw}/(28.1·√({kσ}))/{εk}", e.m_dLambdaNp);
    a.Step("ρ", e.m_dRho < 1 ? "(1 − 0.19/{λn,p})/{λn,p}" : nullptr, e.m_dRho);
    a.Step("hc", nullptr, e.m_dHc, "mm");
  }
  a.Step("Ae", nullptr, e.m_dA, "mm²");
  a.Step("e", nullptr, e.m_dE, "mm");
  if (m_bTurned) return a.Step("We1y", nullptr, e.m_dWSide, "mm³");
  a.Step("We1x", nullptr, e.m_dWCompressed, "mm³");
}

// --- Local stability -----------------------------------------------------------------------------

void CSolidCheck::Limit(CMemberCheckKind kind, const char* clause, double value, double limit,
                        const CWidthForm& form) {
  a.Open(kind, clause);
  a.Step("b/t", nullptr, value);
  if (form.m_alpha0) a.Step("α0", nullptr, *form.m_alpha0);
  if (form.m_lambda) a.Step("λ", nullptr, *form.m_lambda);
  if (form.m_lambdaMax) a.Step("λmax", nullptr, *form.m_lambdaMax);
  a.Step("[b/t]", form.m_szForm, limit);
  a.Close("{b/t}/{[b/t]}", value / limit);
}

void CSolidCheck::Plates() {
  if (HasMoment()) {
    MomentPlates();
  } else if (m_dNc > 0) {
    AxialPlates();
  }
  if (s.m_nShape == CMemberShape::T) TWebOfBeam();
}

// 6.3.2; 2003: 4.3.2. The panels of 6.3.3 are held at both edges: a T's web that is bent or sheared
// stays where none is asked for. Its limits in compression are below that.
void CSolidCheck::TWebOfBeam() {
  if ((q.m_x.IsZero() && q.m_dVy == 0) || a.Find(CMemberCheckKind::Web) != nullptr) return;
  const double limit = *StiffenerLimit(m.m_nEdition, m.m_nGrade);
  if (s.m_dH0 / s.m_dTw > limit) a.Note(CMemberNote::TWebAsBeam);
  Limit(CMemberCheckKind::Web, Clause("6.3.2", "4.3.2"), s.m_dH0 / s.m_dTw, limit, {"80·{εk}"});
}

double CSolidCheck::BoxFlangeRatio() const {
  return s.m_dB0 / std::min(s.m_top.m_dThick, s.m_bottom.m_dThick);
}

// 7.3.1 and 7.3.2; 2003: 5.4.1 to 5.4.5.
void CSolidCheck::AxialPlates() {
  // By the capacity of the member, which one leg joined lessens.
  const double share =
      Is2017() ? std::sqrt(m_oneLeg.Share() * m_dPhiLeast * s.m_dA * F() / m_dNc) : 1;
  const auto hold = [&](CMemberCheckKind kind, CWidthElement element, double value,
                        const char* clause2003) {
    const double limit = *AxialWidthLimit(m.m_nEdition, element, m.m_nGrade, m_dLambdaMax);
    a.Open(kind, Clause("7.3.1", clause2003));
    a.Step("b/t", nullptr, value);
    a.Step("λmax", nullptr, m_dLambdaMax);
    a.Step("[b/t]", AxialWidthForm(m.m_nEdition, element, m_dLambdaMax, r.m_dEpsilonK), limit);
    if (share <= 1) return a.Close("{b/t}/{[b/t]}", value / limit);
    a.Step("φ", nullptr, m_dPhiLeast);
    if (IsOneLeg()) a.Step("η", nullptr, m_oneLeg.m_dEta);
    if (IsOneLeg()) a.Step("ρe", nullptr, m_oneLeg.m_dRhoE);
    a.Step("α", IsOneLeg() ? "√({ρe}·{η}·{φ}·{A}·{f}/{N})" : "√({φ}·{A}·{f}/{N})", share);
    a.Close("{b/t}/({α}·{[b/t]})", value / (share * limit));
  };
  const double flange = std::max(Outstand(s.m_top), Outstand(s.m_bottom));
  const CWidthElement stem = s.m_bRolled ? CWidthElement::WebTRolled : CWidthElement::WebTWelded;
  switch (s.m_nShape) {
    case CMemberShape::I:
    case CMemberShape::Channel:
      hold(CMemberCheckKind::Flange, CWidthElement::Flange, flange, "5.4.1");
      return hold(CMemberCheckKind::Web, CWidthElement::WebI, s.m_dH0 / s.m_dTw, "5.4.2");
    case CMemberShape::T:
      hold(CMemberCheckKind::Flange, CWidthElement::Flange, flange, "5.4.1");
      if (q.m_dVy != 0 && share * *AxialWidthLimit(m.m_nEdition, stem, m.m_nGrade, m_dLambdaMax) >
                              *StiffenerLimit(m.m_nEdition, m.m_nGrade))
        return;  // its shear holds it to less
      return hold(CMemberCheckKind::Web, stem, s.m_dH0 / s.m_dTw, "5.4.4");
    case CMemberShape::Box:
      return hold(CMemberCheckKind::Wall, CWidthElement::BoxWall,
                  std::max(BoxFlangeRatio(), s.m_dH0 / s.m_dTw), "5.4.3");
    case CMemberShape::Tube:
      return hold(CMemberCheckKind::Wall, CWidthElement::Tube, s.m_dDiameter / s.m_dWall, "5.4.5");
    case CMemberShape::SolidRound:
    case CMemberShape::SolidBar:
      return;
    default:
      return hold(CMemberCheckKind::Wall, CWidthElement::AngleLeg,
                  LegRatio(m.m_nEdition, s.m_dLeg, s.m_dLegThick, s.m_dLegRoot), "5.4.1");
  }
}

void CSolidCheck::MomentPlates() {
  if (!Is2017()) return MomentPlates2003();
  if (HasFlanges(s.m_nShape)) return OpenPlates2017();
  if (IsClosed(s.m_nShape)) return ClosedPlates2017();
}

void CSolidCheck::OpenPlates2017() {
  const bool bCompression = m_dNc > 0;
  const char* clause = bCompression ? "8.4.1" : "3.5.1";
  const double flange = FlangeRatio();
  if (flange > 0) {
    const double class4 = Class4(CClassElement::FlangeOutstand, 2);
    const bool bReduced = m_effective && m_effective->m_dFlangeLost > 0;
    Limit(CMemberCheckKind::Flange, bReduced ? "6.1.1" : clause, flange,
          bReduced ? Class5(CClassElement::FlangeOutstand) : class4,
          {bReduced ? nullptr : Class4Form(CClassElement::FlangeOutstand)});
  }
  const CWebStress stress = WebStress(m_dMx);
  if (stress.m_dMax <= 0) return;
  const double web = s.m_dH0 / s.m_dTw;
  if (s.m_nShape == CMemberShape::T) {
    if (!bCompression && stress.m_nSide == CSide::Top) return;
    a.Note(CMemberNote::TWebByAxial);
    const CWidthElement stem = s.m_bRolled ? CWidthElement::WebTRolled : CWidthElement::WebTWelded;
    return Limit(CMemberCheckKind::Web, "7.3.1", web,
                 *AxialWidthLimit(m.m_nEdition, stem, m.m_nGrade, m_dLambdaMax),
                 {.m_szForm = AxialWidthForm(m.m_nEdition, stem, m_dLambdaMax, r.m_dEpsilonK),
                  .m_lambdaMax = m_dLambdaMax});
  }
  const CClassElement element = WebElement();
  const double class4 = Class4(element, stress.m_dAlpha0);
  const bool bReduced = web > class4 && WebStressOfMy() == 0;
  if (bReduced) return Limit(CMemberCheckKind::Web, "8.4.2", web, Class5(element));
  CWidthForm form = {Class4Form(element)};
  if (element == CClassElement::WebCompressed) form.m_alpha0 = std::min(stress.m_dAlpha0, 2.0);
  Limit(CMemberCheckKind::Web, clause, web, class4, form);
}

void CSolidCheck::ClosedPlates2017() {
  const char* clause = m_dNc > 0 ? "8.4.1" : "3.5.1";
  if (s.m_nShape == CMemberShape::Tube) {
    return Limit(CMemberCheckKind::Wall, clause, s.m_dDiameter / s.m_dWall,
                 Class4(CClassElement::Tube, 2), {Class4Form(CClassElement::Tube)});
  }
  const auto element = [&](const CMomentCourse& asFlange) {
    return m_dNc > 0           ? CClassElement::BoxWall
           : asFlange.IsZero() ? CClassElement::WebBending
                               : CClassElement::BoxFlange;
  };
  const double web = s.m_dH0 / s.m_dTw;
  Limit(CMemberCheckKind::Flange, m_bTurned ? "8.4.2" : clause, BoxFlangeRatio(),
        m_bTurned ? 250 : Class4(element(q.m_x), 2),
        {m_bTurned ? nullptr : Class4Form(element(q.m_x))});
  const bool bReduced = m_effective && !m_bTurned;
  Limit(CMemberCheckKind::Web, bReduced ? "8.4.2" : clause, web,
        bReduced ? 250 : Class4(element(q.m_y), 2),
        {bReduced ? nullptr : Class4Form(element(q.m_y))});
}

// 4.3.2, 4.3.8, 5.4.1 to 5.4.5.
void CSolidCheck::MomentPlates2003() {
  const bool bColumn = m_dNc > 0;
  const double ek = r.m_dEpsilonK;
  if (s.m_nShape == CMemberShape::Tube) {
    return Limit(CMemberCheckKind::Wall, "5.4.5", s.m_dDiameter / s.m_dWall, 100 * ek * ek,
                 {"100·{εk}²"});
  }
  if (IsSolid(s.m_nShape)) return;
  const CWebStress stress = WebStress(m_dMx);
  const CBeamColumnWeb web = {std::min(stress.m_dAlpha0, 2.0),
                              !bColumn         ? 0
                              : q.m_x.IsZero() ? r.m_dLambdaY
                                               : r.m_dLambdaX,
                              m_bGammaReduced, stress.m_nSide == CSide::Bottom};
  const double h0tw = s.m_dH0 / s.m_dTw;
  const auto column = [&](CWidthElement element) {
    return *BeamColumnWidthLimit(m.m_nEdition, element, m.m_nGrade, web);
  };
  if (s.m_nShape == CMemberShape::Box) {
    // A wall that one moment presses as a flange, and otherwise is a web.
    const auto wall = [&](CMemberCheckKind kind, double ratio, bool bFlange) {
      if (bFlange) return Limit(kind, bColumn ? "5.4.3" : "4.3.8", ratio, 40 * ek, {"40·{εk}"});
      if (!bColumn) return Limit(kind, "4.3.2", ratio, 250);
      Limit(kind, "5.4.3", ratio, column(CWidthElement::BoxWall),
            {.m_szForm = BoxWallForm2003(web.m_dAlpha0),
             .m_alpha0 = web.m_dAlpha0,
             .m_lambda = web.m_dLambda});
    };
    wall(CMemberCheckKind::Flange, BoxFlangeRatio(), bColumn || !q.m_x.IsZero());
    return wall(CMemberCheckKind::Web, h0tw, !q.m_y.IsZero());
  }
  if (const double flange = FlangeRatio(); flange > 0) {
    Limit(CMemberCheckKind::Flange, bColumn ? "5.4.1" : "4.3.8", flange,
          bColumn ? column(CWidthElement::Flange)
                  : *BeamFlangeLimit(m.m_nEdition, m.m_nGrade, m_bGammaReduced),
          {m_bGammaReduced ? "15·{εk}" : "13·{εk}"});
  }
  if (stress.m_dMax <= 0) return;
  if (s.m_nShape == CMemberShape::T) {
    if (!bColumn && stress.m_nSide == CSide::Top) return;
    const CWidthElement stem = s.m_bRolled ? CWidthElement::WebTRolled : CWidthElement::WebTWelded;
    return Limit(CMemberCheckKind::Web, "5.4.4", h0tw, column(stem),
                 {.m_szForm = TWebForm2003(stem, web),
                  .m_alpha0 = web.m_dAlpha0,
                  .m_lambda = web.m_dLambda});
  }
  const bool bPressed = bColumn || WebStressOfMy() > 0;
  if (!bPressed) return Limit(CMemberCheckKind::Web, "4.3.2", h0tw, 250);
  Limit(CMemberCheckKind::Web, "5.4.2", h0tw, column(CWidthElement::WebI),
        {.m_szForm = WebForm2003(web.m_dAlpha0),
         .m_alpha0 = web.m_dAlpha0,
         .m_lambda = web.m_dLambda});
}

}  // namespace orv3
