// The first moment of hot-rolled angles, alone and in pairs.
#pragma once

#include "sections/geometry/strip.h"
#include "sections/rect_moments.h"

namespace orv3 {

// Of the part above an axis at `yc` of an angle `height` high whose other leg, `width` long, lies
// at the bottom. r: root fillet; the toes are rounded with t/3 (GB/T 9787, GB/T 9788).
inline double AngleMoment(double width, double height, double t, double r, double yc) {
  const double toe = t / 3;
  return RectFirstMoment(t, height, 0, yc, 1) + RectFirstMoment(width - t, t, 0, yc, 1) +
         FilletMoment(r, yc - t) - kFilletArea * toe * toe * (height - kFilletDepth * toe - yc);
}

}  // namespace orv3
