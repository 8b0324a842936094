// Bolt holes and where they may lie: GB 50017-2017, 11.5.1 and 11.5.2; GB 50017-2003, 8.3.4.
#pragma once

#include <algorithm>

#include "codes/slip.h"

namespace orv3 {

// A hole of a high-strength bolt, mm: the diameter, or width and length of a slot.
struct CHoleSize {
  double m_dWidth;
  double m_dLength;
};

// Table 11.5.1; d 12, 16, 20, 22, 24, 27 or 30 mm. The 2003 edition has no such table.
ORV3CAL_API CCodeAnswer<CHoleSize> HoleSize(CCodeEdition edition, CHoleKind kind, double d);

// What a hole d0 of a bolt d takes out of a section, mm: 2017 the greater of d0 and d + 4 (11.5.2,
// note), 2003 d0.
constexpr double HoleDeduction(CCodeEdition edition, double d0, double d) noexcept {
  return edition == CCodeEdition::Gb2017 ? std::max(d0, d + 4) : d0;
}

// How the edge beside the bolts was cut; the edge beside high-strength bolts counts as Sheared.
enum class CEdgeCut { Sheared, Rolled };

// Centre distances of Tables 11.5.2 and 8.3.4, mm.
struct CBoltSpacing {
  double m_dLeastPitch;
  double m_dMostPitch;  // outer rows
  double m_dLeastEnd;   // to the edge along the force
  double m_dLeastSide;  // to the edge across the force
  double m_dMostEdge;   // to any edge
};

// d0: hole diameter; t: thinner outer plate; both above 0, mm. The table's values are those of
// outer rows; middle rows allow more.
ORV3CAL_API CCodeAnswer<CBoltSpacing> BoltSpacing(CCodeEdition edition, double d0, double t,
                                                  CEdgeCut cut = CEdgeCut::Sheared);

}  // namespace orv3
