// Whether an outline is its own mirror image.
#pragma once

#include "sections/outline.h"

namespace orv3 {

// In a line through the middle of the enclosing rectangle.
enum class CMirrorLine { Horizontal, Vertical, Rising, Falling };  // the last two at 45 degrees

// Points within 1e-6 mm are the same.
bool IsMirrored(const COutline& outline, CMirrorLine line);

}  // namespace orv3
