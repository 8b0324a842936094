// Sections of parts that touch each other without being joined: plates, angles or channels drawn
// back to back.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "drawing/path.h"
#include "framework/export.h"
#include "outlines/exact_properties.h"

namespace orv3 {

// The loops of an outline whose parts touch, each part with its holes moved away from the middle by
// 1e-7 of its distance, where that clears every part of all others (CheckLoops); nothing where
// loops cross, touch otherwise, or are more than 100.
ORV3CAL_API std::optional<std::vector<CPath>> PartsCleared(std::span<const CPath> loops);

// The figures of loops of which the parts, moved clear of each other, have those of `apart`: It is
// the sum of theirs, and what asks for a section in one piece has no answer.
ORV3CAL_API CExactProperties FiguresOfParts(std::span<const CPath> loops,
                                            const CExactProperties& apart);

}  // namespace orv3
