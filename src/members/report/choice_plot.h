// The picture of a choice: mass against ratio of every section that was tried.
#pragma once

#include <span>

#include "drawing/drawing.h"
#include "framework/language.h"
#include "members/cases/member_choice.h"

namespace orv3 {

// Sections that pass stand below the line of ratio 1; the lightest of them is named. Ratios above 2
// stand at 2.
ORV3CAL_API CDrawing ChoicePlot(const CMemberChoice& choice,
                                std::span<const CMemberCandidate> candidates, CLanguage language);

}  // namespace orv3
