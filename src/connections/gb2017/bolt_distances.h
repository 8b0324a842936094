// Spacings and edge distances of a bolt group: GB 50017-2017, Table 11.5.2.
#pragma once

#include <span>
#include <vector>

#include "codes/holes.h"
#include "connections/detail.h"

namespace orv3::gb2017 {

// mm. A torque pushes bolts along both axes.
struct CDistances {
  bool m_bStaggered = false;
  std::span<const double> m_arrCol = {};
  std::span<const double> m_arrRow = {};
  double m_dEx = 0;
  double m_dEy = 0;
  bool m_bForceX = false;  // the bolts push along x, along y
  bool m_bForceY = false;
};

void BoltDistances(const CDistances& distances, const CBoltSpacing& limits, bool bRolled,
                   std::vector<CDetail>& details);

}  // namespace orv3::gb2017
