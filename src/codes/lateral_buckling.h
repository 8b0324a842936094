// Overall stability of beams, phi-b: GB 50017-2017, Appendix C; GB 50017-2003, Appendix B. The same
// formulas in both, 2003 with 235/fy for epsilon-k squared. Units mm but where said.
#pragma once

#include "codes/steel_grade.h"

namespace orv3 {

struct CPhiB {
  double m_dElastic;  // by the formula or the table
  double m_dPhiB;     // to be used: above 0.6 reduced to 1.07 - 0.282 / elastic, at most 1
};

constexpr CPhiB ReducedPhiB(double elastic) noexcept {
  const double reduced = 1.07 - 0.282 / elastic;
  return {elastic, elastic <= 0.6 ? elastic : reduced < 1 ? reduced : 1};
}

// The load of a simply supported beam: uniform or concentrated near midspan, on which flange.
enum class CBeamLoad { PointUpper, PointLower, UniformUpper, UniformLower };

// beta-b of Table C.0.1 (2003: B.1). supports: lateral supports of the compression flange within
// the span: 0, 1 at midspan, 2 for two and more evenly spaced. xi = l1 t1 / (b1 h), > 0.
// alphaB = I1 / (I1 + I2), > 0 and < 1; 0.5 for equal flanges.
ORV3CAL_API CCodeAnswer<double> BetaB(CCodeEdition edition, CBeamLoad load, int supports, double xi,
                                      double alphaB = 0.5);
// Under end moments alone, |M1| >= |M2|, of equal sign when the curvature is single.
ORV3CAL_API CCodeAnswer<double> BetaBEndMoments(CCodeEdition edition, double m1, double m2);
// Of a cantilever of doubly symmetric I: Table C.0.4 (2003: B.4); xi 0.6 to 3.1. A uniform load on
// the lower flange is not in the table.
ORV3CAL_API CCodeAnswer<double> BetaBCantilever(CCodeEdition edition, CBeamLoad load, double xi);

// A welded I or rolled H.
struct CBeamSection {
  double m_dA;             // mm2
  double m_dH;             // whole depth
  double m_dWx;            // of the outermost compressed fibre, mm3
  double m_dT1;            // thickness of the compression flange
  double m_dAlphaB = 0.5;  // I1 / (I1 + I2), I1 of the compression flange
};

// C.0.1 (2003: B.1). lambdaY = l1 / iy.
ORV3CAL_API CCodeAnswer<CPhiB> WeldedIPhiB(CCodeEdition edition, CSteelGrade grade,
                                           const CBeamSection& section, double lambdaY,
                                           double betaB);

enum class CRolledILoad { PointUpper, PointLower, UniformUpper, UniformLower, Supported };
// C.0.2 (2003: B.2), ordinary rolled I by its number (depth in cm) and free length of 2 to 10 m.
ORV3CAL_API CCodeAnswer<CPhiB> RolledIPhiB(CCodeEdition edition, CSteelGrade grade,
                                           CRolledILoad load, double number, double lengthM);

// C.0.3 (2003: B.3), rolled channel: depth h, flange b by t, free length l1.
ORV3CAL_API CCodeAnswer<CPhiB> ChannelPhiB(CCodeEdition edition, CSteelGrade grade, double h,
                                           double b, double t, double l1);

// What C.0.5 (2003: B.5) tells apart in uniform bending.
enum class CUniformBendingShape {
  I,               // doubly symmetric
  ISingly,         // singly symmetric about y
  TAngles,         // flange compressed: two angles
  TPlates,         // rolled, or two plates
  TFlangeTension,  // flange in tension, web not over 18 epsilon-k
};

// phi-b, at most 1; refused for lambdaY above 120 epsilon-k. `section` is read for ISingly alone.
ORV3CAL_API CCodeAnswer<double> UniformBendingPhiB(CCodeEdition edition, CSteelGrade grade,
                                                   CUniformBendingShape shape, double lambdaY,
                                                   const CBeamSection& section = {});

// Whether a box needs no check of overall stability: h/b0 <= 6 and l1/b0 <= 95 epsilon-k squared
// (6.2.4; 2003: 4.2.4).
ORV3CAL_API bool IsStableBox(CSteelGrade grade, double h, double b0, double l1) noexcept;

}  // namespace orv3
