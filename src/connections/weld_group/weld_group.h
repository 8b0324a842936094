// Straight fillet welds in a plane under loads of any direction, elastic: GB 50017-2017, 11.2.2;
// GB 50017-2003, 7.1.3.
//
// x to the right, y up, in the plane of the welds. A weld is a line with the area of its throat.
// The group turns in its plane about its centroid, and out of it about its principal axes.
#pragma once

#include <span>
#include <vector>

namespace orv3 {

// mm.
struct CWeldLine {
  double m_dX1;
  double m_dY1;
  double m_dX2;
  double m_dY2;
  double m_dHf;
  double Length() const noexcept;
  double Throat() const noexcept { return 0.7 * m_dHf; }
};

// kN and kN mm, of either sign, acting at (x, y). N pulls out of the plane; M > 0 pulls what lies
// high in y; T turns from x towards y.
struct CWeldGroupLoads {
  double m_dN = 0;
  double m_dVx = 0;
  double m_dVy = 0;
  double m_dM = 0;
  double m_dT = 0;
  double m_dX = 0;
  double m_dY = 0;
};

// About the centroid, mm.
struct CWeldGroupSums {
  double m_dA = 0;
  double m_dXc = 0;
  double m_dYc = 0;
  double m_dIx = 0;  // sum of y^2
  double m_dIy = 0;
  double m_dIxy = 0;
  double J() const noexcept { return m_dIx + m_dIy; }
};
CWeldGroupSums SumsOf(std::span<const CWeldLine> welds) noexcept;

// The loads moved to the centroid, N and N mm.
struct CCentroidLoads {
  double m_dN;
  double m_dVx;
  double m_dVy;
  double m_dMx;  // grows with y
  double m_dMy;  // grows with x
  double m_dT;
};
CCentroidLoads AtCentroid(const CWeldGroupLoads& loads, const CWeldGroupSums& sums) noexcept;

// How the tension out of the plane grows: sigma = at + x (x - xc) + y (y - yc), N/mm2 and N/mm3.
// False where the welds lie on one line, which has no lever arm for the moment across it.
struct CTensionPlane {
  double m_dAt = 0;
  double m_dX = 0;
  double m_dY = 0;
};
bool FindTension(const CCentroidLoads& loads, const CWeldGroupSums& sums,
                 CTensionPlane& tension) noexcept;

// One end of one weld; N/mm2.
struct CWeldPoint {
  int m_nWeld = 0;  // from 0
  double m_dX = 0;
  double m_dY = 0;
  double m_dTauX = 0;  // in the plane, along x and y
  double m_dTauY = 0;
  double m_dAlong = 0;   // along the weld
  double m_dAcross = 0;  // in the plane across it
  double m_dOut = 0;     // out of the plane
  double m_dSigma = 0;   // the stress across that beta-f divides
  double m_dCombined = 0;
};

// The stress across a weld from its parts in the plane and out of it, over beta-f, squared. By the
// strength of the throat it is a^2 - a b + b^2 or a^2 + a b + b^2, over 1.22^2, by the side of the
// weld that the plate is on: the greater holds. With beta-f 1 it is their resultant, which is never
// less.
double AcrossSquared(double a, double b, double betaF) noexcept;

// Both ends of every weld, where the stress of a weld is greatest.
std::vector<CWeldPoint> WeldPoints(std::span<const CWeldLine> welds, const CCentroidLoads& loads,
                                   const CWeldGroupSums& sums, const CTensionPlane& tension,
                                   double betaF);

}  // namespace orv3
