// Short names for lists of dimensions, as the tables of drawings are written with them.
#pragma once

#include <vector>

#include "sections/section_dimensions.h"

namespace orv3 {

using CDimensions = std::vector<CSizeDimension>;
inline constexpr auto kTop = CDimensionSide::Top;
inline constexpr auto kBottom = CDimensionSide::Bottom;
inline constexpr auto kLeft = CDimensionSide::Left;
inline constexpr auto kRight = CDimensionSide::Right;
inline constexpr auto kInside = CDimensionSide::Inside;
inline constexpr auto kLeader = CDimensionSide::Leader;

}  // namespace orv3
