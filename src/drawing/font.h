// A stroke alphabet for texts in pixels: the letters, digits and signs that dimensions need.
#pragma once

#include <vector>

#include "drawing/drawing.h"

namespace orv3 {

// The strokes of a label in page units. A character outside the alphabet is drawn as an empty box.
std::vector<CPath> LabelStrokes(const CLabel& label);

}  // namespace orv3
