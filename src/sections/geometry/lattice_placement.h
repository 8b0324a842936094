// Where the limbs of a lattice column stand, and how far they reach.
//
// Frame: x to the right, y upwards, mm. Spacings are between centroids.
//   two limbs    1 at (0, 0), 2 at (0, k): kx = 0 and ky = k here
//   three limbs  1 and 2 a pair at (-kx/2, 0) and (kx/2, 0), 3 at (0, ky)
//   four limbs   the corners of a kx by ky rectangle about (0, 0): 1 lower left, 2 lower right,
//                3 upper right, 4 upper left
// "xo(mm)" and "yo(mm)" of a lattice row are coordinates in this frame.
#pragma once

#include <algorithm>
#include <array>
#include <span>

namespace orv3 {

struct CLimbPlace {
  double m_x = 0, m_y = 0;  // centroid
};

// The places of limbs 1 to n; all (0, 0) for a count other than 2, 3 and 4.
constexpr std::array<CLimbPlace, 4> LatticePlacement(int limbs, double kx, double ky) {
  switch (limbs) {
    case 2:
      return {{{0, 0}, {0, ky}}};
    case 3:
      return {{{-kx / 2, 0}, {kx / 2, 0}, {0, ky}}};
    case 4:
      return {{{-kx / 2, -ky / 2}, {kx / 2, -ky / 2}, {kx / 2, ky / 2}, {-kx / 2, ky / 2}}};
    default:
      return {};
  }
}

// A limb as it is turned: its enclosing rectangle, and its centroid from the left and bottom edges.
struct CLimbBox {
  double m_dWidth = 0, m_dHeight = 0;
  double m_dCx = 0, m_dCy = 0;
};

// How far the limbs reach from the frame's origin; each is positive outwards.
struct CLatticeReach {
  double m_left = 0, m_right = 0, m_below = 0, m_above = 0;
};

// `limbs` in their order, 2 to 4 of them; limb 1's top counts as `lowered` lower than it stands.
constexpr CLatticeReach LatticeReach(std::span<const CLimbBox> limbs, double kx, double ky,
                                     double lowered = 0) {
  const auto places = LatticePlacement(static_cast<int>(limbs.size()), kx, ky);
  CLatticeReach reach;
  for (std::size_t i = 0; i < limbs.size() && i < places.size(); ++i) {
    const CLimbBox& limb = limbs[i];
    const CLimbPlace& at = places[i];
    const CLatticeReach own = {limb.m_dCx - at.m_x, limb.m_dWidth - limb.m_dCx + at.m_x,
                               limb.m_dCy - at.m_y,
                               limb.m_dHeight - limb.m_dCy + at.m_y - (i == 0 ? lowered : 0)};
    if (i == 0) reach = own;
    reach = {std::max(reach.m_left, own.m_left), std::max(reach.m_right, own.m_right),
             std::max(reach.m_below, own.m_below), std::max(reach.m_above, own.m_above)};
  }
  return reach;
}

// The reach that rows are computed with: with two limbs limb 1's top counts as k lower, as in all
// columns computed so far. It matters only where limb 1 reaches above limb 2.
constexpr CLatticeReach RowLatticeReach(std::span<const CLimbBox> limbs, double kx, double ky) {
  return LatticeReach(limbs, kx, ky, limbs.size() == 2 ? ky : 0);
}

}  // namespace orv3
