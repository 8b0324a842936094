// Strength of a solid-web member: GB 50017-2017, 6.1, 7.1, 8.1; GB 50017-2003, 4.1, 5.1, 5.2.1.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "framework/elementary.h"
#include "members/beam_column.h"
#include "members/solid_check.h"

namespace orv3 {

double CSolidCheck::JointShare() const noexcept {
  switch (q.m_nJoint) {
    case CMemberJoint::Whole:
      return 1;
    case CMemberJoint::Flanges:
      return 0.9;
    case CMemberJoint::Web:
      return 0.7;
    default:
      return 0.85;
  }
}

void CSolidCheck::Strength() {
  if (!HasMoment()) {
    if (q.m_dN == 0) return;
    const double share = JointShare();
    a.Open(CMemberCheckKind::Strength,
           JointClause(m_dNc > 0 ? Clause("7.1.2", "5.1.1") : Clause("7.1.1", "5.1.1")));
    if (share < 1) a.Step("η", nullptr, share);
    a.Close(share < 1 ? "{N}/({η}·{A}·{f})" : "{N}/({A}·{f})",
            std::fabs(q.m_dN) / (share * s.m_dA * F()));
    return;
  }
  a.Open(CMemberCheckKind::Strength,
         q.m_dN == 0 ? Clause("6.1.1", "4.1.1") : Clause("8.1.1", "5.2.1"));
  // The moment of the governing sense and the one of the other, along the same member.
  const double other = m_dMx >= 0 ? q.m_x.Least() : q.m_x.Most();
  const double first = StrengthRatio(m_dMx, false);
  const double second = other == 0 ? 0 : StrengthRatio(other, false);
  StrengthRatio(first >= second ? m_dMx : other, true);
}

// Of the worse edge. The moments about y are taken with the sign that adds.
double CSolidCheck::StrengthRatio(double Mx, bool bSteps) {
  const CSide side = Mx >= 0 ? CSide::Top : CSide::Bottom;
  // The effective section is that of the governing sense; a weaker one of the other sense has its
  // web compressed at the other end.
  const bool bEffective = m_effective.has_value() && side == m_nSide;
  double A = s.m_dA, W1 = side == CSide::Top ? s.m_dWTop : s.m_dWBottom;
  double W2 = side == CSide::Top ? s.m_dWBottom : s.m_dWTop;
  double Wy = s.m_dWSide, e = 0, eY = 0;
  if (bEffective) {
    A = m_effective->m_dA;
    W1 = m_effective->m_dWCompressed;
    W2 = m_effective->m_dWOther;
    Wy = m_effective->m_dWSide;
    (m_bTurned ? eY : e) = m_dNc > 0 ? m_effective->m_dE : 0;
  }
  A *= q.m_dNetA;
  W1 *= q.m_dNetW;
  W2 *= q.m_dNetW;
  Wy *= q.m_dNetW;
  const double g1 = side == m_nSide ? r.m_dGammaX : m_dGammaOther;
  const double g2 = side == m_nSide ? m_dGammaOther : r.m_dGammaX;
  const double N = m_dNc > 0 ? m_dNc : -q.m_dN;  // compression positive
  const double M = std::fabs(Mx) + m_dNc * e;
  const bool bRound =
      (s.m_nShape == CMemberShape::Tube && Is2017()) || s.m_nShape == CMemberShape::SolidRound;
  if (bRound) {
    const CEndMoments end = HasLoad() ? CEndMoments{std::fabs(Mx), m_dMy} : EndMoments();
    const double resultant = end.Resultant();
    const double ratio = (std::fabs(N) / A + resultant / (g1 * W1)) / F();
    if (!bSteps) return ratio;
    a.Step("An", nullptr, A, "mm²");
    a.Step("Wn", nullptr, W1, "mm³");
    a.Step("γm", nullptr, g1);
    a.Step("Mx", nullptr, end.m_dX, "N·mm");
    a.Step("My", nullptr, end.m_dY, "N·mm");
    a.Step("M", "√({Mx}² + {My}²)", resultant, "N·mm");
    a.Close("({N}/{An} + {M}/({γm}·{Wn}))/{f}", ratio);
    return ratio;
  }
  const double my = m_dMy == 0 ? 0 : (m_dMy + m_dNc * eY) / (r.m_dGammaY * Wy);
  const double compressed = std::fabs(N / A + M / (g1 * W1));
  const double stretched = std::fabs(N / A - M / (g2 * W2));
  const bool bFirst = compressed >= stretched;
  const double ratio = (std::max(compressed, stretched) + my) / F();
  if (!bSteps) return ratio;
  a.Step("An", nullptr, A, "mm²");
  const bool bAdds = bFirst == (N >= 0);
  if (Mx != 0) {
    if (bEffective) a.Step("e", nullptr, e, "mm");
    a.Step("Mx", nullptr, std::fabs(Mx), "N·mm");
    a.Step("γx", nullptr, bFirst ? g1 : g2);
    a.Step("Wnx", nullptr, bFirst ? W1 : W2, "mm³");
  }
  if (m_dMy != 0) {
    if (eY > 0) a.Step("e", nullptr, eY, "mm");
    a.Step("γy", nullptr, r.m_dGammaY);
    a.Step("Wny", nullptr, Wy, "mm³");
  }
  const char* formula = "({N}/{An} + {Mx}/({γx}·{Wnx}) + {My}/({γy}·{Wny}))/{f}";
  if (bEffective && Mx != 0) {
    formula =
        bAdds || N == 0
            ? (m_dMy == 0 ? "({N}/{An} + ({Mx} + {N}·{e})/({γx}·{Wnx}))/{f}"
                          : "({N}/{An} + ({Mx} + {N}·{e})/({γx}·{Wnx}) + {My}/({γy}·{Wny}))/{f}")
            : (m_dMy == 0 ? "|{N}/{An} − ({Mx} + {N}·{e})/({γx}·{Wnx})|/{f}"
                          : "(|{N}/{An} − ({Mx} + {N}·{e})/({γx}·{Wnx})| + {My}/({γy}·{Wny}))/{f}");
  } else if (Mx == 0) {
    formula = eY > 0 ? "({N}/{An} + ({My} + {N}·{e})/({γy}·{Wny}))/{f}"
                     : "({N}/{An} + {My}/({γy}·{Wny}))/{f}";
  } else if (m_dMy == 0) {
    formula = bAdds || N == 0 ? "({N}/{An} + {Mx}/({γx}·{Wnx}))/{f}"
                              : "|{N}/{An} − {Mx}/({γx}·{Wnx})|/{f}";
  } else if (!bAdds && N != 0) {
    formula = "(|{N}/{An} − {Mx}/({γx}·{Wnx})| + {My}/({γy}·{Wny}))/{f}";
  }
  a.Close(formula, ratio);
  return ratio;
}

// 6.1.3; 2003: 4.1.2.
void CSolidCheck::Shear() {
  if (s.m_nShape == CMemberShape::Channel &&
      (q.m_dVx != 0 || q.m_dVy != 0 || q.m_x.HasLoad() || !q.m_y.IsZero()))
    a.Note(CMemberNote::ShearCentre);
  if (q.m_dVx == 0 && q.m_dVy == 0) return;
  a.Open(CMemberCheckKind::Shear, Clause("6.1.3", "4.1.2"));
  const bool bRound = s.m_nShape == CMemberShape::Tube || s.m_nShape == CMemberShape::SolidRound;
  const double Vy = bRound ? Hypot(q.m_dVx, q.m_dVy) : std::fabs(q.m_dVy);
  const double Vx = bRound ? 0 : std::fabs(q.m_dVx);
  const double tauY = Vy == 0 ? 0 : Vy * s.m_cutY.m_dS / (s.m_dIx * s.m_cutY.m_dT);
  const double tauX = Vx == 0 ? 0 : Vx * s.m_cutX.m_dS / (s.m_dIy * s.m_cutX.m_dT);
  // In a solid bar both act on the same fibres; elsewhere on plates of their own.
  if (s.m_nShape == CMemberShape::SolidBar && Vx > 0 && Vy > 0) {
    a.Step("Vx", nullptr, Vx, "N");
    a.Step("Vy", nullptr, Vy, "N");
    a.Step("τx", "1.5·{Vx}/{A}", tauX, "N/mm²");
    a.Step("τy", "1.5·{Vy}/{A}", tauY, "N/mm²");
    return a.Close("√({τx}² + {τy}²)/{fv}", Hypot(tauX, tauY) / m.m_dFv);
  }
  const bool bY = tauY / m.m_dFv >= tauX / m.m_dFvX;
  const double ratio = bY ? tauY / m.m_dFv : tauX / m.m_dFvX;
  a.Step("V", nullptr, bY ? Vy : Vx, "N");
  if (!bY) a.Step("fv", nullptr, m.m_dFvX, "N/mm²");
  if (s.m_nShape == CMemberShape::SolidBar) return a.Close("1.5·{V}/({A}·{fv})", ratio);
  const CShearCut& cut = bY ? s.m_cutY : s.m_cutX;
  a.Step("S", nullptr, cut.m_dS, "mm³");
  a.Step("t", nullptr, cut.m_dT, "mm");
  a.Close(bY ? "{V}·{S}/({Ix}·{t}·{fv})" : "{V}·{S}/({Iy}·{t}·{fv})", ratio);
}

// Where a shear is greatest or meets the normal stress of a corner. N and Mx have their signs, My
// and the flows of both shears those that add.
std::vector<CSolidCheck::CPlace> CSolidCheck::ShearedPlaces() const {
  std::vector<CPlace> places;
  if (q.m_dVy != 0) AddWebPlaces(places);
  if (q.m_dVx != 0) AddFlangePlaces(places);
  if (q.m_dVx != 0 && q.m_dVy != 0 && s.m_nShape == CMemberShape::SolidBar)
    places.push_back({0, 0, s.m_cutY, s.m_cutX});
  return places;
}

// The ends of the web and the cut of the greatest Vy.
void CSolidCheck::AddWebPlaces(std::vector<CPlace>& places) const {
  const double side = s.m_dIy / s.m_dWSide, back = s.m_dWidth - side;
  const double web = s.m_dH0 * s.m_dTw;
  double x = 0;  // I and T have their web on the axis y
  CShearCut vx;  // through both ends of a web
  if (s.m_nShape == CMemberShape::Box) {
    x = side;
    vx = {web * (s.m_dWidth - s.m_dTw) / 2, 2 * s.m_dTw};
  } else if (s.m_nShape == CMemberShape::Channel) {
    x = back;
    vx = {web * (back - s.m_dTw / 2), 2 * s.m_dTw};
  } else if (s.m_nShape == CMemberShape::SolidBar) {
    x = side;
  }
  if (s.m_dTw > 0) {
    const double t = s.m_nWebs * s.m_dTw;
    places.push_back({s.m_dWebTop, x, {s.m_dSTop, t}, vx});
    places.push_back({-s.m_dWebBottom, x, {s.m_dSBottom, t}, vx});
  }
  places.push_back({0, x, s.m_cutY, {}});
}

// The cuts of the greatest Vx and, of a box, the ends of its flanges; with Vy, the flow of the
// flange's part beyond.
void CSolidCheck::AddFlangePlaces(std::vector<CPlace>& places) const {
  const double top = s.m_dIx / s.m_dWTop, bottom = -s.m_dIx / s.m_dWBottom;
  const auto add = [&](const CMemberFlange& f, double y, double beyond, double x, CShearCut vx) {
    const double S = beyond * f.m_dThick * (std::fabs(y) - f.m_dThick / 2);
    places.push_back({y, x, {S, f.m_dThick}, vx});
  };
  const std::array<std::pair<CMemberFlange, double>, 2> flanges = {
      {{s.m_top, top}, {s.m_bottom, bottom}}};
  switch (s.m_nShape) {
    case CMemberShape::Box: {
      const double wall = (s.m_dWidth - s.m_dB0) / 2;
      const double S = s.m_dHeight * wall * (s.m_dWidth - wall) / 2;
      const double thick = s.m_top.m_dThick + s.m_bottom.m_dThick;
      for (const auto& [f, y] : flanges) {
        add(f, y, s.m_dB0 / 2, s.m_dB0 / 2, {S, thick});
        add(f, y, 0, 0, s.m_cutX);
      }
      return;
    }
    case CMemberShape::I:
    case CMemberShape::T:
      for (const auto& [f, y] : flanges) {
        const double S = f.m_dThick * f.m_dWidth * f.m_dWidth / 8;
        if (S > 0) add(f, y, f.m_dWidth / 2, 0, {S, f.m_dThick});
      }
      return;
    case CMemberShape::Channel:
      for (const auto& [f, y] : flanges) add(f, y, s.m_dIy / s.m_dWSide, 0, s.m_cutX);
      return;
    default:
      places.push_back({top, 0, {}, s.m_cutX});
      places.push_back({bottom, 0, {}, s.m_cutX});
  }
}

CSolidCheck::CPlaceStress CSolidCheck::StressAt(const CPlace& p, double Mx) const {
  const auto flow = [](double V, const CShearCut& cut, double I) {
    return V == 0 || cut.m_dS == 0 ? 0 : std::fabs(V) * cut.m_dS / (I * cut.m_dT);
  };
  CPlaceStress stress;
  stress.m_dAxial = -q.m_dN / (q.m_dNetA * s.m_dA);
  stress.m_dBending = Mx * p.m_dY / (q.m_dNetW * s.m_dIx);
  stress.m_dSigma =
      std::fabs(stress.m_dAxial + stress.m_dBending) + m_dMy * p.m_dX / (q.m_dNetW * s.m_dIy);
  stress.m_dTauX = flow(q.m_dVx, p.m_vx, s.m_dIy);
  stress.m_dTauY = flow(q.m_dVy, p.m_vy, s.m_dIx);
  // Along a wall they add; in a solid bar they are at right angles.
  stress.m_dTau = s.m_nShape == CMemberShape::SolidBar ? Hypot(stress.m_dTauX, stress.m_dTauY)
                                                       : stress.m_dTauX + stress.m_dTauY;
  return stress;
}

// 6.1.5 without sigma-c at the worst place that carries a shear; 2003: 4.1.4.
void CSolidCheck::Combined() {
  if ((q.m_dVx == 0 && q.m_dVy == 0) || (q.m_dN == 0 && !HasMoment())) return;
  if (s.m_nShape == CMemberShape::Tube || s.m_nShape == CMemberShape::SolidRound)
    return CombinedRound();
  const std::vector<CPlace> places = ShearedPlaces();
  const CPlace* worst = nullptr;
  double most = 0, worstMx = 0;
  // The moment of the governing sense and the one of the other, along the same member.
  for (const double Mx : {m_dMx, m_dMx >= 0 ? q.m_x.Least() : q.m_x.Most()}) {
    for (const CPlace& place : places) {
      const CPlaceStress stress = StressAt(place, Mx);
      if (stress.m_dSigma == 0) continue;  // shear alone is 6.1.3
      const double both = CombinedStress(stress.m_dSigma, stress.m_dTau);
      if (worst != nullptr && both <= most) continue;
      worst = &place;
      most = both;
      worstMx = Mx;
    }
  }
  if (worst == nullptr) return;
  a.Open(CMemberCheckKind::Combined, Clause("6.1.5", "4.1.4"));
  GivePlace(*worst, worstMx);
  a.Close("√({σ}² + 3·{τ}²)/(1.1·{f})", most / (1.1 * F()));
}

void CSolidCheck::GivePlace(const CPlace& p, double Mx) {
  const CPlaceStress stress = StressAt(p, Mx);
  a.Step("An", nullptr, q.m_dNetA * s.m_dA, "mm²");
  const bool bMx = Mx * p.m_dY != 0, bMy = m_dMy * p.m_dX != 0;
  if (bMx) {
    a.Step("Mx", nullptr, std::fabs(Mx), "N·mm");
    a.Step("y1", nullptr, std::fabs(p.m_dY), "mm");
    a.Step("Inx", nullptr, q.m_dNetW * s.m_dIx, "mm⁴");
  }
  if (bMy) {
    a.Step("My", nullptr, m_dMy, "N·mm");
    a.Step("x1", nullptr, p.m_dX, "mm");
    a.Step("Iny", nullptr, q.m_dNetW * s.m_dIy, "mm⁴");
  }
  const bool bRelieved = stress.m_dAxial * stress.m_dBending < 0;
  a.Step("σ",
         bRelieved && bMy ? "|{N}/{An} − {Mx}·{y1}/{Inx}| + {My}·{x1}/{Iny}"
         : bRelieved      ? "|{N}/{An} − {Mx}·{y1}/{Inx}|"
         : bMx && bMy     ? "{N}/{An} + {Mx}·{y1}/{Inx} + {My}·{x1}/{Iny}"
         : bMx            ? "{N}/{An} + {Mx}·{y1}/{Inx}"
         : bMy            ? "{N}/{An} + {My}·{x1}/{Iny}"
                          : "{N}/{An}",
         stress.m_dSigma, "N/mm²");
  const bool bX = stress.m_dTauX > 0, bY = stress.m_dTauY > 0;
  const bool bBar = s.m_nShape == CMemberShape::SolidBar;
  if (bX) {
    a.Step("Vx", nullptr, std::fabs(q.m_dVx), "N");
    if (!bBar) a.Step("S1x", nullptr, p.m_vx.m_dS, "mm³");
    if (!bBar) a.Step("tx", nullptr, p.m_vx.m_dT, "mm");
    a.Step(bY ? "τx" : "τ", bBar ? "1.5·{Vx}/{A}" : "{Vx}·{S1x}/({Iy}·{tx})", stress.m_dTauX,
           "N/mm²");
  }
  if (bY) {
    a.Step("Vy", nullptr, std::fabs(q.m_dVy), "N");
    if (!bBar) a.Step("S1y", nullptr, p.m_vy.m_dS, "mm³");
    if (!bBar) a.Step("ty", nullptr, p.m_vy.m_dT, "mm");
    a.Step(bX ? "τy" : "τ", bBar ? "1.5·{Vy}/{A}" : "{Vy}·{S1y}/({Ix}·{ty})", stress.m_dTauY,
           "N/mm²");
  }
  if (!bX && !bY) a.Step("τ", nullptr, 0, "N/mm²");  // at a free edge
  if (bX && bY) a.Step("τ", bBar ? "√({τx}² + {τy}²)" : "{τx} + {τy}", stress.m_dTau, "N/mm²");
}

// A round section at every degree of its circumference, all signs adding.
void CSolidCheck::CombinedRound() {
  const double An = q.m_dNetA * s.m_dA, Wn = q.m_dNetW * s.m_dWTop;
  const double unit = s.m_cutY.m_dS / (s.m_dIx * s.m_cutY.m_dT);
  double worst = -1, angle = 0, sigma = 0, tau = 0;
  for (int degree = 0; degree <= 90; ++degree) {
    const double rad = degree * std::numbers::pi / 180;
    const double up = degree == 0 ? 0 : Sin(rad), along = degree == 90 ? 0 : Cos(rad);
    const double normal = std::fabs(q.m_dN) / An + (std::fabs(m_dMx) * up + m_dMy * along) / Wn;
    const double shear = unit * (std::fabs(q.m_dVy) * along + std::fabs(q.m_dVx) * up);
    const double both = CombinedStress(normal, shear);
    if (both <= worst) continue;
    worst = both;
    angle = degree;
    sigma = normal;
    tau = shear;
  }
  a.Open(CMemberCheckKind::Combined, Clause("6.1.5", "4.1.4"));
  a.Step("An", nullptr, An, "mm²");
  a.Step("Wn", nullptr, Wn, "mm³");
  a.Step("Mx", nullptr, std::fabs(m_dMx), "N·mm");
  a.Step("My", nullptr, m_dMy, "N·mm");
  a.Step("θ", nullptr, angle, "°");
  a.Step("σ", "{N}/{An} + ({Mx}·sin({θ}°) + {My}·cos({θ}°))/{Wn}", sigma, "N/mm²");
  a.Step("Vx", nullptr, std::fabs(q.m_dVx), "N");
  a.Step("Vy", nullptr, std::fabs(q.m_dVy), "N");
  a.Step("S", nullptr, s.m_cutY.m_dS, "mm³");
  a.Step("t", nullptr, s.m_cutY.m_dT, "mm");
  a.Step("τ", "({Vy}·cos({θ}°) + {Vx}·sin({θ}°))·{S}/({Ix}·{t})", tau, "N/mm²");
  a.Close("√({σ}² + 3·{τ}²)/(1.1·{f})", worst / (1.1 * F()));
}

}  // namespace orv3
