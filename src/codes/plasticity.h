// Plastic development factors gamma: GB 50017-2017, 6.1.2 and Table 8.1.1; GB 50017-2003, Table
// 5.2.1.
#pragma once

#include "codes/section_class.h"

namespace orv3 {

// The eight items of both tables.
enum class CPlasticShape {
  I,
  Box,
  T,     // and what has a flange on one side of x; symmetric about y
  TBox,  // the same, gamma y of a box
  SolidBar,
  Tube,
  LatticeX,   // x cuts no limb
  LatticeXY,  // neither axis cuts a limb
};

struct CPlasticFactors {
  double m_dX;     // at the flange of a T
  double m_dXTip;  // at the tip of its web; elsewhere as m_dX
  double m_dY;
};

// How far plasticity may develop.
enum class CPlasticUse {
  Developed,      // section class S1 to S3; 2003: flange outstand up to 13 sqrt(235/fy)
  SlenderFlange,  // S4 and S5: every factor 1.0; 2003, 4.1.1: gamma x 1.0 alone
  Elastic,        // a member that is checked for fatigue: every factor 1.0
};

ORV3CAL_API CCodeAnswer<CPlasticFactors> PlasticFactors(CCodeEdition edition, CPlasticShape shape,
                                                        CPlasticUse use = CPlasticUse::Developed);

}  // namespace orv3
