// Pictures of welded joints: the section across the weld, not to scale, and the weld's own area
// with the loads that the load case takes, to scale along its length.
#pragma once

#include "connections/cases/weld_case.h"
#include "drawing/drawing.h"

namespace orv3 {

CDrawing FilletDrawing(const CFilletCase& input, double throat, bool bLap);
CDrawing ButtDrawing(const CButtCase& input);

}  // namespace orv3
