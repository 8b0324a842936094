// The check of a lattice column of two to four limbs: GB 50017-2017, 7.2.3 to 7.2.7, 8.2.2; GB
// 50017-2003, 5.1.3 to 5.1.6, 5.2.3.
#pragma once

#include <vector>

#include "members/solid_member.h"

namespace orv3 {

enum class CLatticeBond { Lacing, Battens };

// mm. Axes are those of the column, however the limb is turned.
struct CLatticeLimbSection {
  CMemberSection m_section;             // upright
  double m_dIx = 0, m_dIy = 0;          // about its own centroid
  double m_dWx = 0, m_dWy = 0;          // the lesser of both edges
  double m_dShearX = 0, m_dShearY = 0;  // areas that carry Vx and Vy: I t/S
};

// mm. Two limbs stand one above the other: x is the open axis, y cuts them. Of three and four limbs
// both axes are open.
struct CLatticeSection {
  std::vector<CLatticeLimbSection> m_arrLimb;  // two to four
  double m_dA = 0;                             // of all limbs
  double m_dRx = 0, m_dRy = 0;                 // radii of gyration of the whole
  double m_dWx = 0;                            // of the whole, the lesser of both edges
  double m_dKx = 0, m_dKy = 0;                 // between the centroids of limbs; kx of two is 0
  double m_dLimbR1 = 0;                        // least radius of gyration of all limbs
  double m_dL1 = 0;                            // free length of a limb between two nodes
  CLatticeBond m_nBond = CLatticeBond::Lacing;
  double m_dBarA = 0;    // lacing: of one bar, one in each plane at a cut
  double m_dAngle = 45;  // lacing: between a bar and the column's axis, degrees
  double m_dBarR = 0;    // lacing: its least radius of gyration
  double m_dBarLeg = 0, m_dBarThick = 0, m_dBarRoot = 0;  // lacing: its leg
  double m_dBattenWidth = 0;                              // battens: depth along the column
  double m_dBattenT = 0;                                  // thickness
  double m_dBattenPitch = 0;                              // distance of their centres

  int Limbs() const noexcept { return static_cast<int>(m_arrLimb.size()); }
  // Three limbs: between an inclined plane and x, radians.
  double PlaneAngle() const noexcept;
  // Of the plane whose limbs are farthest apart, between their centroids.
  double WidestPlane() const noexcept;
};

// N, N mm; the moment is about the open axis of two limbs.
struct CLatticeLoads {
  double m_dN = 0;  // compression negative
  CMomentCourse m_x;
  double m_dVx = 0, m_dVy = 0;
  double m_dLx = 0, m_dLy = 0;
  bool m_bSway = false;
  double m_dLimit = 0;
};

// Leaves its checks in `answer`, or the fault of what is not covered. Classes of both axes and of
// the limbs are b, as the steel's says; the bars are single equal angles connected by one leg.
ORV3CAL_API void CheckLatticeMember(const CLatticeSection& section, const CMemberSteel& steel,
                                    const CLatticeLoads& loads, CMemberAnswer& answer);

}  // namespace orv3
