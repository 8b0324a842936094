#include "members/axial_plates.h"

#include <algorithm>

#include "members/one_leg_angle.h"

namespace orv3 {

double OutstandRatio(const CMemberFlange& flange) noexcept {
  return flange.m_dThick > 0 ? flange.m_dOutstand / flange.m_dThick : 0;
}

double BoxFlangeRatio(const CMemberSection& section) noexcept {
  return section.m_dB0 / std::min(section.m_top.m_dThick, section.m_bottom.m_dThick);
}

CAxialPlates AxialPlatesOf(const CMemberSection& s, CCodeEdition edition) noexcept {
  using K = CMemberCheckKind;
  using E = CWidthElement;
  const double web = s.m_dTw > 0 ? s.m_dH0 / s.m_dTw : 0;
  const CAxialPlate flange = {K::Flange, E::Flange,
                              std::max(OutstandRatio(s.m_top), OutstandRatio(s.m_bottom)), "5.4.1"};
  switch (s.m_nShape) {
    case CMemberShape::I:
    case CMemberShape::Channel:
      return {{{flange, {K::Web, E::WebI, web, "5.4.2"}}}, 2};
    case CMemberShape::T:
      return {{{flange, {K::Web, s.m_bRolled ? E::WebTRolled : E::WebTWelded, web, "5.4.4"}}}, 2};
    case CMemberShape::Box:
      return {{{{K::Wall, E::BoxWall, std::max(BoxFlangeRatio(s), web), "5.4.3"}, {}}}, 1};
    case CMemberShape::Tube:
      return {{{{K::Wall, E::Tube, s.m_dDiameter / s.m_dWall, "5.4.5"}, {}}}, 1};
    case CMemberShape::SolidRound:
    case CMemberShape::SolidBar:
      return {};
    default:
      return {{{{K::Wall, E::AngleLeg, LegRatio(edition, s.m_dLeg, s.m_dLegThick, s.m_dLegRoot),
                 "5.4.1"},
                {}}},
              1};
  }
}

}  // namespace orv3
