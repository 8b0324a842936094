// The arrow of a torque in the picture of a connection.
#pragma once

#include "drawing/drawing.h"

namespace orv3 {

// An arc of three quarters about the point, with the letter T beside its head.
void AddTorque(CDrawing& drawing, CPoint about, bool bClockwise);

}  // namespace orv3
