// Whether loops bound steel: what an outline from outside must be before anything is computed.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "drawing/path.h"
#include "framework/export.h"
#include "framework/language.h"

namespace orv3 {

inline constexpr std::size_t kMostOutlinePoints = 100'000;
inline constexpr double kFarthestOutlinePoint = 1e6;  // mm from the origin, and the greatest size

// What is wrong, and what would be right. Loops and their points are counted from 1.
using COutlineFault = CText;

// The first thing wrong with the loops, whose senses count for nothing: no loops, or more points
// than kMostOutlinePoints; a point that is not finite or too far out; a path that is not closed, an
// edge without length, a loop that encloses nothing; a loop that crosses or touches itself, two
// loops that cross or touch. Points within 1e-9 of the greatest size are the same. The time grows
// as n log n; an outline whose edges lie so close together that it would take seconds is refused
// too.
ORV3CAL_API std::optional<COutlineFault> CheckLoops(std::span<const CPath> loops);

// The same of loops whose senses count, as those of an outline: a hole outside of every part, and a
// part inside another one, are faults as well.
ORV3CAL_API std::optional<COutlineFault> CheckOutline(std::span<const CPath> loops);

// A point as the faults name it: "(10, 20.5)".
std::string PointText(CPoint p);

// What such an outline is refused with.
ORV3CAL_API COutlineFault TooCloseFault();

}  // namespace orv3
