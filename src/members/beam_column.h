// Ratios of effect over resistance of beams and beam-columns: GB 50017-2017, 6.1, 6.2, 8.1 and 8.2;
// GB 50017-2003, 4.1, 4.2, 5.2. N, mm and N/mm2; N compresses and is at least 0, moments at least
// 0. A ratio is infinite where an axial force reaches the load at which its formula ends.
#pragma once

#include "framework/export.h"

namespace orv3 {

// N'E = pi^2 E A / (1.1 lambda^2).
ORV3CAL_API double EulerForce(double A, double lambda) noexcept;         // pi^2 E A / lambda^2
ORV3CAL_API double ReducedEulerForce(double A, double lambda) noexcept;  // that by 1.1
// N / (phi A f).
ORV3CAL_API double AxialTerm(double N, double phi, double A, double f) noexcept;
// beta M / (gamma W (1 - share N / N'E) f): share 0.8, lattice 1.0, tension side 1.25.
ORV3CAL_API double AmplifiedTerm(double betaM, double gammaW, double share, double N, double NE,
                                 double f) noexcept;
// eta beta M / (phi-b W f).
ORV3CAL_API double LateralTerm(double eta, double betaM, double phiB, double W, double f) noexcept;
// sqrt(sigma^2 + 3 tau^2): 6.1.5 without sigma-c.
ORV3CAL_API double CombinedStress(double sigma, double tau) noexcept;

}  // namespace orv3
