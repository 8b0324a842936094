// Where the bolts of a group stand, and the sums that share moments out among them.
#pragma once

#include <span>
#include <vector>

#include "connections/verdict/plate_section.h"

namespace orv3 {

// mm and mm2; x and y from the first bolt.
struct CBoltShape {
  std::vector<CHole> m_arrBolt;
  double m_dXc = 0;  // centroid
  double m_dYc = 0;
  double m_dXMax = 0;  // of the farthest bolt from the centroid, along x and along y
  double m_dYMax = 0;
  double m_dSumX2 = 0;  // about the centroid
  double m_dSumY2 = 0;
  double m_dWidth = 0;  // from the first column to the last, from the first row to the last
  double m_dHeight = 0;
  int Bolts() const noexcept { return static_cast<int>(m_arrBolt.size()); }
  double SumR2() const noexcept { return m_dSumX2 + m_dSumY2; }
};

// A grid, or staggered: every other column holds one bolt less, midway between the rows. The
// spacings are one less than columns and rows. Keeps the storage of `shape`.
void PlaceBolts(bool bStaggered, std::span<const double> colSpaces,
                std::span<const double> rowSpaces, CBoltShape& shape);

}  // namespace orv3
