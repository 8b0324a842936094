// Icon files.
#pragma once

#include <cstdint>
#include <vector>

#include "drawing/bitmap.h"

namespace orv3 {

// The pictures, square and of at most 256 pixels a side, as one icon file (.ico): 32 bits a pixel,
// white taken as transparent.
//
//   offset  size  meaning (little-endian)
//        0     2  0
//        2     2  1: an icon
//        4     2  number of pictures, then 16 bytes for each:
//                   width, height (256 as 0), 0, 0, planes 1 (2), bits 32 (2), length (4), offset
//                   (4)
//   then for each picture a 40-byte bitmap header with twice the height, the pixels as B G R A from
//   the bottom row up, and a mask of one bit a pixel, its rows filled up to 4 bytes.
std::vector<std::uint8_t> ToIco(const std::vector<CBitmap>& pictures);

}  // namespace orv3
