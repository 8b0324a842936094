// The part of a section that counts when its web or its compression flange is of class S5:
// GB 50017-2017, 8.4.2 and 6.1.1.
#pragma once

#include "framework/export.h"
#include "members/member_section.h"

namespace orv3 {

enum class CSide { Top, Bottom };

struct CEffectiveSection {
  double m_dA = 0;
  double m_dE = 0;            // shift of the centroid away from the compressed edge, mm
  double m_dWCompressed = 0;  // of the compressed edge
  double m_dWOther = 0;       // of the edge opposite
  double m_dWSide = 0;        // about y
  double m_dKSigma = 0;       // 0 where the web counts whole without asking
  double m_dLambdaNp = 0;
  double m_dRho = 1;
  double m_dHc = 0;          // compressed height of the web
  double m_dLost = 0;        // height of the web that does not count
  double m_dFlangeLost = 0;  // of each outstand, the greater of both flanges
};

// Which plates are reduced.
struct CReducedPlates {
  bool m_bWeb = false;
  bool m_bFlange = false;       // the compressed one
  bool m_bOtherFlange = false;  // compressed too, by a moment about y or of the other sense
};

// compressed: the edge with the greater compression; alpha0 >= 0 as in 3.5.1, above 1 where part
// of the web is in tension.
ORV3CAL_API CEffectiveSection EffectiveSection(const CMemberSection& section, CSide compressed,
                                               double alpha0, double epsilonK,
                                               CReducedPlates reduced) noexcept;

}  // namespace orv3
