// Stresses in the plate at the bolt group: GB 50017-2003, 5.1.1.
#include <cmath>

#include "connections/bolt_group.h"
#include "connections/check_math.h"

namespace {

// The section of the plate that resists one of the shears.
struct CCut {
  double m_shear;     // kN
  double m_edges;     // both edge distances, mm
  double m_spacings;  // sum of the spacings along the cut, mm
  int m_holes;        // holes in the straight cut
  int m_legs;         // inclined legs of the zigzag cut
  int m_zigzagHoles;  // holes in the zigzag cut
};

// The candidate that governs. Negative shears give negative stresses, so the smaller of the two
// governs then; hosts know that behaviour.
double Governing(const double (&sigma)[3]) noexcept {
  return sigma[1] > sigma[2] ? sigma[1] : sigma[2];
}

// Ordinary and bearing-type bolts: the net sections only.
void NetStress(const NormalBoltData& group, const CCut& cut, double legLength, double (&area)[4],
               double (&sigma)[3]) {
  if (orv3::IsZero(cut.m_shear)) {
    sigma[0] = 0;
    return;
  }
  const double straight =
      (cut.m_edges + cut.m_spacings - cut.m_holes * group.m_dD0) * group.m_dThick;
  if (group.m_nLayout == 0) {
    area[1] = straight;
    sigma[0] = cut.m_shear / straight;
  } else if (group.m_nLayout == 1) {
    area[2] = straight;
    area[3] =
        (legLength * cut.m_legs + cut.m_edges - cut.m_zigzagHoles * group.m_dD0) * group.m_dThick;
    sigma[1] = cut.m_shear / area[2];
    sigma[2] = cut.m_shear / area[3];
    sigma[0] = Governing(sigma);
  }
}

// Friction-type bolts, formulas (5.1.1-2) and (5.1.1-3): the gross section, and the net section
// under what is left of the shear when the bolts in the cut, `boltShare` of all, have passed half
// of theirs on by friction in front of the holes.
void FrictionStress(const NormalBoltData& group, const CCut& cut, double boltShare,
                    double (&area)[4], double (&sigma)[3]) {
  if (orv3::IsZero(cut.m_shear)) {
    sigma[0] = 0;
    return;
  }
  area[0] = (cut.m_edges + cut.m_spacings) * group.m_dThick;
  area[1] = area[0] - cut.m_holes * group.m_dD0 * group.m_dThick;
  sigma[1] = cut.m_shear / area[0];
  sigma[2] = (1 - 0.5 * boltShare) * cut.m_shear / area[1];
  sigma[0] = Governing(sigma);
}

// The share of bolts in the cut for Vx: a quotient of integers, so 0 whenever there are more bolts
// than rows. The net section then carries the whole shear, which is safe.
int BoltShareX(const NormalBoltData& group) {
  if (orv3::IsZero(group.m_dVx)) return 0;
  if (group.m_nBoltNum == 0) throw CInvalidArgException("bolt group: no bolts to carry Vx");
  return group.m_nRows / group.m_nBoltNum;
}

int HalfRoundedUp(int count) noexcept { return (count + 1) / 2; }

}  // namespace

void NormalBoltData::CalJieMianQD() {
  const double sumRow = orv3::Sum(m_ErArr);
  const double sumCol = orv3::Sum(m_EcArr);
  const bool bStaggered = m_nLayout == 1;
  CCut cutX = {m_dVx, 2 * m_dEy, sumRow, m_nRows, m_nRows - 1, 2 * m_nRows - 1};
  CCut cutY = {m_dVy, 2 * m_dEx, sumCol, m_nCols, m_nCols - 1, m_nCols};
  if (m_nBoltType == 0 || m_nBoltType == 2) {
    // Half the rows, not half the columns: hosts know that behaviour.
    if (bStaggered) cutY.m_holes = HalfRoundedUp(m_nRows);
    const double legX = sumCol / (m_nCols - 1);
    const double legY = sumRow / (m_nRows - 1);
    const double legLength = std::sqrt(legY * legY + legX * legX);
    NetStress(*this, cutX, legLength, m_dAreaX, m_dSigmaX);
    NetStress(*this, cutY, legLength, m_dAreaY, m_dSigmaY);
  } else if (m_nBoltType == 1) {
    if (bStaggered) cutY.m_holes = HalfRoundedUp(m_nCols);
    FrictionStress(*this, cutX, BoltShareX(*this), m_dAreaX, m_dSigmaX);
    FrictionStress(*this, cutY, cutY.m_holes / static_cast<double>(m_nBoltNum), m_dAreaY,
                   m_dSigmaY);
  }
  for (double& sigma : m_dSigmaX) sigma *= 1000;
  for (double& sigma : m_dSigmaY) sigma *= 1000;
}

int NormalBoltData::JugeJieMian(int& okX, int& okY) {
  CalJieMianQD();
  const double limit = std::fabs(1000 * m_dF);
  okX = orv3::AtMost(std::fabs(m_dSigmaX[0]), limit) ? 1 : 0;
  okY = orv3::AtMost(std::fabs(m_dSigmaY[0]), limit) ? 1 : 0;
  return okX == 1 && okY == 1 ? 1 : 0;
}
