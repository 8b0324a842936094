// One bolt group by GB 50017-2017, 11.4.1 to 11.4.5, as functions over plain numbers: mm, kN, kN
// mm, N/mm2.
#pragma once

#include "connections/bolt_shape.h"
#include "connections/verdict/bolt_verdict.h"

namespace orv3::gb2017 {

// Every load of either sign. N pulls; M > 0 pulls the last row and presses the first.
struct CBoltLoads {
  double m_dN = 0;
  double m_dVx = 0;
  double m_dVy = 0;
  double m_dM = 0;
  double m_dT = 0;
};

// What one bolt can carry, kN.
struct CBoltResistance {
  double m_dShear = 0;    // Nvb
  double m_dBearing = 0;  // Ncb; 0 with friction type
  double m_dTension = 0;  // Ntb
};

// 11.4.1 and 11.4.3. dShear: the diameter in the shear planes, d of the shank or de of the threads.
CBoltResistance ShankResistance(int planes, double dShear, double d, double de, double sumT,
                                double fv, double fc, double ft) noexcept;
// 11.4.2: 0.9 k nf mu P and 0.8 P.
CBoltResistance FrictionResistance(double k, int surfaces, double mu, double preload) noexcept;

// 11.4.5: 1.1 - l1 / (150 d0) beyond 15 d0, 0.7 beyond 60 d0.
double LongJointFactor(double l1, double d0) noexcept;
// The length of the joint along its forces: those of a torque along both axes.
double JointLength(const CBoltShape& shape, const CBoltLoads& loads) noexcept;

// Forces on the most stressed bolt, all at least 0. The torque adds to the shears at the farthest
// bolt. The tension: preloaded bolts turn about the centroid; ordinary ones about the centroid
// while every bolt stays in tension, otherwise about the row that M presses on, where a pulling N
// lifts that row as well.
CBoltFigures ForcesOnBolts(bool bPreloaded, const CBoltLoads& loads,
                           const CBoltShape& shape) noexcept;

// 11.4.1 to 11.4.3: sets the interaction ratio and the bearing resistance, which bearing-type bolts
// divide by 1.2 where they are in tension as well.
void Interaction(int type, const CBoltResistance& resistance, double beta,
                 CBoltFigures& figures) noexcept;

}  // namespace orv3::gb2017
