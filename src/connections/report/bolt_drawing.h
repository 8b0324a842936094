// The picture of a bolt group: to scale, with the most stressed bolts and the net sections.
#pragma once

#include <vector>

#include "connections/bolt_group.h"
#include "drawing/drawing.h"

namespace orv3 {

// Positions in m_PointArr of the bolts under the greatest interaction ratio. The torque acts in the
// sense that the greater ratio comes from, since the record adds its share to the shear.
struct CStressedBolts {
  std::vector<int> m_arrBolt;
  bool m_bClockwise = true;
};
CStressedBolts MostStressedBolts(const NormalBoltData& group);

// Groups of more bolts are not drawn.
inline constexpr int kMostDrawnBolts = 1500;

// Red: the most stressed bolts. Dashed: cut 1 straight and 2 zigzag against Vx, 3 and 4 against Vy.
CDrawing BoltGroupDrawing(const NormalBoltData& group);

}  // namespace orv3
