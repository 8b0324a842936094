// A single angle in compression that is joined by one leg: GB 50017-2017, 7.6.1 and 7.6.3;
// GB 50017-2003, 3.4.2.
#pragma once

#include "members/solid_member.h"

namespace orv3 {

// mm; lambda by the least radius.
struct COneLegAngle {
  CMemberJoint m_nJoint = CMemberJoint::Leg;
  double m_dLeg = 0, m_dThick = 0;  // the longer leg
  double m_dLambda = 0;
};

struct COneLegFactors {
  double m_dEta = 1;   // of the strength
  double m_dRhoE = 1;  // of a leg wider than 14 epsilon-k; 2017 alone
  double Share() const noexcept { return m_dEta * m_dRhoE; }
};
COneLegFactors OneLegFactors(CCodeEdition edition, double epsilonK,
                             const COneLegAngle& angle) noexcept;

// Its steps within a check.
void GiveOneLegFactors(CMemberAnswer& answer, const COneLegAngle& angle,
                       const COneLegFactors& factors);

// The clause that the check of such an angle stands by.
const char* OneLegClause(CCodeEdition edition, const COneLegFactors& factors) noexcept;

// The width of a leg to its thickness, as its limit takes it: w = b - 2 t of 7.3.1; 2003: the
// outstand of 5.4.1.
double LegRatio(CCodeEdition edition, double leg, double thick, double root) noexcept;

}  // namespace orv3
