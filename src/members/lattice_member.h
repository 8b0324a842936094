// The check of a lattice column of two equal limbs: GB 50017-2017, 7.2.3 to 7.2.7, 8.2.2, 8.2.3;
// GB 50017-2003, 5.1.3 to 5.1.6, 5.2.3.
#pragma once

#include "members/solid_member.h"

namespace orv3 {

enum class CLatticeBond { Lacing, Battens };

// mm. The limbs stand side by side along x: y is the open axis, x cuts the limbs.
struct CLatticeSection {
  double m_dA = 0;              // of both limbs
  double m_dRx = 0, m_dRy = 0;  // radii of gyration of the whole
  double m_dWy = 0;  // of the whole about the open axis, to the axis or web of the pressed limb
  double m_dSpacing = 0;  // between the centroids of the limbs
  double m_dLimbR1 = 0;   // radius of gyration of a limb about its own axis along y
  double m_dL1 = 0;       // free length of a limb between two nodes
  CLatticeBond m_nBond = CLatticeBond::Lacing;
  double m_dA1 = 0;         // lacing: the bars cut across, of all planes
  double m_dAngle = 45;     // lacing: between a bar and the column's axis, degrees
  double m_dBarLength = 0;  // lacing: of a bar, its radius imin
  double m_dBarR = 0;
  double m_dBattenWidth =
      0;  // battens: depth along the column, thickness, distance of their centres
  double m_dBattenT = 0;
  double m_dBattenPitch = 0;
  int m_nPlanes = 2;  // of lacing or battens
};

// N, N mm; the moment is about the open axis.
struct CLatticeLoads {
  double m_dN = 0;  // compression negative
  CMomentCourse m_y;
  double m_dVx = 0;
  double m_dLx = 0, m_dLy = 0;
  bool m_bSway = false;
  double m_dLimit = 0;
};

// Leaves its checks in `answer`, or the fault of what is not covered. Classes of both axes and of
// the limbs are b, as the steel's says; the bars are single angles connected by one leg.
ORV3CAL_API void CheckLatticeMember(const CLatticeSection& section, const CMemberSteel& steel,
                                    const CLatticeLoads& loads, CMemberAnswer& answer);

}  // namespace orv3
