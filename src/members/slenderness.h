// Slenderness of members in axial compression, with torsion: GB 50017-2017, 7.2.2; GB 50017-2003,
// 5.1.2. Lengths in mm.
#pragma once

#include "framework/export.h"

namespace orv3 {

// Torsion of a section: lambda-z = sqrt(I0 / (It/25.7 + Iw/l^2)).
ORV3CAL_API double TorsionalSlenderness(double I0, double It, double Iw, double lw) noexcept;

// Bending about the axis of symmetry together with torsion. e: shear centre to centroid; i0^2 = e^2
// + ix^2 + iy^2.
ORV3CAL_API double FlexuralTorsionalSlenderness(double lambda, double lambdaZ, double e,
                                                double i02) noexcept;

// lambda-great [1 + factor (lambda-small / lambda-great)^2]: angles in the 2017 edition.
ORV3CAL_API double AngleSlenderness2017(double lambda, double lambdaZ, double factor) noexcept;

// Angles in the 2003 edition: b the leg, t its thickness, l the effective length, lambda = l / i.
struct CAngleFactors2003 {
  double m_dLimit;    // of b/t over l/b
  double m_dSlender;  // 1 + this b^4 / (l^2 t^2) on lambda
  double m_dStocky;   // this b/t (1 + l^2 t^2 / (m_dDivisor b^4))
  double m_dDivisor;
};
inline constexpr CAngleFactors2003 kSingleAngle2003 = {0.54, 0.85, 4.78, 13.5};
inline constexpr CAngleFactors2003 kEqualPair2003 = {0.58, 0.475, 3.9, 18.6};
inline constexpr CAngleFactors2003 kLongLegPair2003 = {0.48, 1.09, 5.1, 17.4};
inline constexpr CAngleFactors2003 kShortLegPair2003 = {0.56, 0, 3.7, 52.7};
ORV3CAL_API double AngleSlenderness2003(const CAngleFactors2003& factors, double lambda, double b,
                                        double t, double l) noexcept;

// Lattice columns about the open axis (7.2.3; 2003: 5.1.3). A: all limbs, A1: the lacing bars cut
// across, of both planes.
ORV3CAL_API double LacedSlenderness(double lambda, double factor, double A, double A1) noexcept;
ORV3CAL_API double BattenedSlenderness(double lambda, double lambda1) noexcept;

}  // namespace orv3
