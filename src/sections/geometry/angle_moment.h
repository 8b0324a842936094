// The first moment of hot-rolled angles, alone and in pairs.
#pragma once

#include "sections/geometry/strip.h"
#include "sections/rect_moments.h"

namespace orv3 {

// Of the part below an axis `depth` under the top of an angle that is `height` high and has its
// other leg, `width` long, along the top. r: root fillet; the toes are rounded with t/3
// (GB/T 9787, GB/T 9788).
inline double AngleMoment(double width, double height, double t, double r, double depth) {
  const double toe = t / 3;
  return RectFirstMoment(t, height, 0, depth, 1) + RectFirstMoment(width - t, t, 0, depth, 1) +
         FilletMoment(r, depth - t) -
         kFilletArea * toe * toe * (height - kFilletDepth * toe - depth);
}

}  // namespace orv3
