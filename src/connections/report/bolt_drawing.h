// The picture of a bolt group: to scale, with the most stressed bolts and the net sections.
#pragma once

#include <vector>

#include "connections/report/bolt_view.h"
#include "drawing/drawing.h"

namespace orv3 {

// Positions in the shape of the bolts under the greatest interaction ratio. The torque acts in the
// sense that the greater ratio comes from, since its share is added to the shear.
struct CStressedBolts {
  std::vector<int> m_arrBolt;
  bool m_bClockwise = true;
};
CStressedBolts MostStressedBolts(const CBoltView& view);

// Groups of more bolts are not drawn.
inline constexpr int kMostDrawnBolts = 1500;

// Red: the most stressed bolts. Dashed: cut 1 against Vx and 2 against Vy, through the holes of the
// sections that are judged.
CDrawing BoltGroupDrawing(const CBoltView& view);

}  // namespace orv3
