// The properties of a section that follow from its outline alone: torsion, warping, shear, plastic
// and principal axes, root radii included.
//
// Frame: x to the right, y upwards, origin at the lower left corner of the outline's bounding box.
// Lengths in mm.
#pragma once

#include <limits>
#include <span>

#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// How far the figures of the solver may be from the true ones: their own estimate, found by solving
// twice. NaN where the figure has no answer.
struct CExactErrors {
  double It = std::numeric_limits<double>::quiet_NaN();      // relative
  double Iw = std::numeric_limits<double>::quiet_NaN();      // relative
  double center = std::numeric_limits<double>::quiet_NaN();  // mm, of xs and ys; betas: twice it
  double As = std::numeric_limits<double>::quiet_NaN();      // relative, of Asx and Asy
};

struct CExactProperties {
  static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

  // Exact for straight edges and arcs, but for rounding.
  double A = kUnknown;                                  // mm^2
  double xo = kUnknown, yo = kUnknown;                  // mm, centroid
  double Ix = kUnknown, Iy = kUnknown, Ixy = kUnknown;  // mm^4, about the centroid's axes
  double I1 = kUnknown, I2 = kUnknown;                  // mm^4, principal, I1 >= I2
  double theta = kUnknown;                              // degrees from x to axis 1, in (-90, 90]
  double ix = kUnknown, iy = kUnknown;                  // mm, radii of gyration
  double i1 = kUnknown, i2 = kUnknown;                  // mm
  double Wx1 = kUnknown, Wx2 = kUnknown;                // mm^3, to the top and the bottom
  double WyL = kUnknown, WyR = kUnknown;                // mm^3, to the left and the right
  double Wpx = kUnknown, Wpy = kUnknown;                // mm^3, plastic moduli
  double xp = kUnknown, yp = kUnknown;  // mm, the lines that halve the area; the middle of a gap
  double mass = kUnknown;               // kg/m at 7850 kg/m^3
  double surface = kUnknown;            // m^2/m of the outer outline

  // By the solver. Sections of parts that are not joined have It of the parts added, and no answer
  // (NaN) to the others.
  double It = kUnknown;                       // mm^4
  double Iw = kUnknown;                       // mm^6, about the shear center
  double xs = kUnknown, ys = kUnknown;        // mm, shear center
  double Asx = kUnknown, Asy = kUnknown;      // mm^2, for forces along x and y
  double betax = kUnknown, betay = kUnknown;  // mm, constants of monosymmetry

  CExactErrors m_error;
  bool m_bJoined = false;  // one part
  // Every estimate is below its limit: It 0.1 %, Iw 0.3 %, the shear center 0.05 mm or 0.05 % of
  // the depth, shear areas 0.3 %. False when the outline asks for more than the solver's bounded
  // work; the figures are then what was reached.
  bool m_bAccurate = false;
};

// Loops that run counter-clockwise bound material, clockwise ones holes; several outer loops are
// parts. The loops are closed, do not cross themselves or each other (see
// outlines/outline_check.h), and a hole lies inside its outer loop; of others the figures are NaN.
ORV3CAL_API CExactProperties ExactProperties(std::span<const CPath> loops);

}  // namespace orv3
