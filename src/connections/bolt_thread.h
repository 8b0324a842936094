// Coarse threads of bolts.
#pragma once

namespace orv3 {

// Effective diameter at the threads in mm; 0 for a nominal diameter that the table lacks.
double EffectiveDiameter(int d) noexcept;

}  // namespace orv3
