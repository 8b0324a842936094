#include "sections/plate_h.h"

#include "sections/section_style.h"

namespace orv3 {

CPlateH PlateHOf(int style, std::span<const double, 8> s) noexcept {
  const double overhang = (s[0] - s[3]) / 2;
  switch (style) {
    case kStyleH:
      return {s[3], s[1], s[2], s[2], overhang, overhang, overhang, overhang};
    case kStyleT:
      return {s[0], s[1], 0, s[2], s[3], s[4], 0, 0};
    case kStyleL:
      return {s[0], s[1], s[2], 0, 0, 0, 0, s[3]};
    case kStyleZ:
      return {s[0], s[1], s[2], s[3], s[4], 0, 0, s[5]};
    case kStyleChannel:
      return {s[0], s[1], s[2], s[3], 0, s[5], 0, s[4]};
    case kStyleCross:
      return {s[0] + s[4] + s[5], s[1], s[2], s[3], -s[4], -s[5], -s[4], -s[5]};
    default:
      return {s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]};
  }
}

}  // namespace orv3
