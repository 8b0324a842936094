// Largest width-to-thickness ratios of plates in members: GB 50017-2017, 7.3.1 and 8.4.1;
// GB 50017-2003, 4.3.2, 5.4.1 to 5.4.5.
#pragma once

#include "codes/steel_grade.h"

namespace orv3 {

enum class CWidthElement {
  Flange,   // outstand b/t of I, T and channels
  WebI,     // h0/tw
  BoxWall,  // b0/t
  WebTRolled,
  WebTWelded,
  AngleLeg,  // w/t of an equal angle, w = b - 2 t in 2017; b' / t, the outstand, in 2003
  Tube,      // D/t
};

// Of members in axial compression; lambda the greater slenderness of both axes (equal angle and
// tube alike), taken within 30 to 100 where the code says so.
ORV3CAL_API CCodeAnswer<double> AxialWidthLimit(CCodeEdition edition, CWidthElement element,
                                                CSteelGrade grade, double lambda);

struct CBeamColumnWeb {
  double m_dAlpha0;                    // (sigma-max - sigma-min) / sigma-max, 0 to 2
  double m_dLambda;                    // in the plane of the moment; read by 2003
  bool m_bGammaReduced = false;        // gamma x = 1.0 was taken; read by 2003 for flanges
  bool m_bFreeEdgeCompressed = false;  // of a T's web; read by 2003
};

// Of beam-columns: 2017 the limits of class S4, 2003 those of 5.4.
ORV3CAL_API CCodeAnswer<double> BeamColumnWidthLimit(CCodeEdition edition, CWidthElement element,
                                                     CSteelGrade grade, const CBeamColumnWeb& web);

// Of the flange outstand in beams: 2003 13, with gamma x = 1.0 15, times epsilon-k (4.3.8); 2017
// the limit of S3, with gamma x = 1.0 that of S4 (6.1.2).
ORV3CAL_API CCodeAnswer<double> BeamFlangeLimit(CCodeEdition edition, CSteelGrade grade,
                                                bool bGammaReduced);

// h0/tw from which on a beam's web needs stiffeners: 80 epsilon-k (6.3.2; 2003: 4.3.2).
ORV3CAL_API CCodeAnswer<double> StiffenerLimit(CCodeEdition edition, CSteelGrade grade);

}  // namespace orv3
