#include "sections/plate_h.h"

namespace orv3 {

CPlateH PlateHOf(int style, std::span<const double, 8> s) noexcept {
  const double overhang = (s[0] - s[3]) / 2;
  switch (style) {
    case 0:
      return {s[3], s[1], s[2], s[2], overhang, overhang, overhang, overhang};
    case 8:
      return {s[0], s[1], 0, s[2], s[3], s[4], 0, 0};
    case 10:
      return {s[0], s[1], s[2], 0, 0, 0, 0, s[3]};
    case 11:
      return {s[0], s[1], s[2], s[3], s[4], 0, 0, s[5]};
    case 12:
      return {s[0], s[1], s[2], s[3], 0, s[5], 0, s[4]};
    case 13:
      return {s[0] + s[4] + s[5], s[1], s[2], s[3], -s[4], -s[5], -s[4], -s[5]};
    default:
      return {s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]};
  }
}

}  // namespace orv3
