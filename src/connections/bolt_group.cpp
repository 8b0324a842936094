// The bolts of a group and where they stand; the whole check.
#include "connections/bolt_group.h"

#include <cmath>
#include <utility>

#include "connections/check_math.h"

NormalBoltData::NormalBoltData(int, int, int, int, double, double, int, double, int, double, double,
                               double, double, double, double, double, double, int, int, int) {}
NormalBoltData::NormalBoltData(int, int, int, int, double, double, int, int, double, double, double,
                               double, double, double, double, double, int, int, int) {}
NormalBoltData::NormalBoltData(int, int, int, int, double, double, int, double, int, double, double,
                               double, double, double, double, double, double, int, int) {}

void NormalBoltData::GetEcArr(CArray<double, double> arrSpace) { m_EcArr = std::move(arrSpace); }
void NormalBoltData::GetErArr(CArray<double, double> arrSpace) { m_ErArr = std::move(arrSpace); }

void NormalBoltData::CalBoltNum() {
  if (m_nLayout != 0 && m_nLayout != 1) return;
  m_nBoltNum = m_nCols * m_nRows;
  if (m_nLayout == 1 && m_nCols / 2 != 0 && m_nBoltNum != 0) {
    m_nBoltNum = (m_nCols + 1) * m_nRows / 2 + (m_nCols - 1) * (m_nRows - 1) / 2;
  }
}

void NormalBoltData::CalBoltPoint() {
  if (m_nSpaceMode == 0) UniformSpacings();
  m_PointArr.SetSize(0);
  if (m_nLayout == 0) GridPoints();
  if (m_nLayout == 1) StaggeredPoints();
  CentrePoints();
  LeverArms();
}

void NormalBoltData::UniformSpacings() {
  m_EcArr.SetSize(m_nCols > 1 ? m_nCols - 1 : 0);
  m_ErArr.SetSize(m_nRows > 1 ? m_nRows - 1 : 0);
  for (double& space : m_EcArr) space = m_dColSpace;
  for (double& space : m_ErArr) space = m_dRowSpace;
}

void NormalBoltData::GridPoints() {
  if (m_nCols < 1) return;
  double y = 0;
  for (int r = 0; r < m_nRows; ++r) {
    if (r > 0) y += m_ErArr[r - 1];
    double x = 0;
    for (int i = 0; i < m_nCols; ++i) {
      if (i > 0) x += m_EcArr[i - 1];
      m_PointArr.Add({.x = x, .y = y});
    }
  }
}

// The bolts of an odd column stand midway between those of the even ones and are one less.
void NormalBoltData::StaggeredPoints() {
  for (int r = 0; r < m_nRows; ++r) {
    const int step = r == 0 ? 2 : 1;
    double x = 0;
    for (int i = 0; i < m_nCols; i += step) {
      const bool bOdd = i % 2 != 0;
      if (i > 0) x += step == 2 ? m_EcArr[i - 1] + m_EcArr[i - 2] : m_EcArr[i - 1];
      double y = 0;
      if (r == 1) y = bOdd ? 0.5 * m_ErArr[0] : m_ErArr[0];
      if (r >= 2) {
        const double below = m_PointArr[m_PointArr.GetSize() - m_nCols].y;
        y = bOdd ? below + 0.5 * m_ErArr[r - 2] + 0.5 * m_ErArr[r - 1] : below + m_ErArr[r - 1];
      }
      m_PointArr.Add({.x = x, .y = y});
    }
  }
}

void NormalBoltData::CentrePoints() {
  const double count = m_PointArr.GetSize();
  m_dXc = m_dYc = m_dXMax = m_dYMax = 0;
  for (const BoltPoint& point : m_PointArr) {
    m_dXc += point.x / count;
    m_dYc += point.y / count;
  }
  for (BoltPoint& point : m_PointArr) {
    point.dx = point.x - m_dXc;
    point.dy = point.y - m_dYc;
    m_dXMax = std::fmax(m_dXMax, std::fabs(point.dx));
    m_dYMax = std::fmax(m_dYMax, std::fabs(point.dy));
  }
  // With these signs the torque's force adds to the direct shear.
  if (!orv3::AtMost(0, m_dVy)) m_dXMax = -m_dXMax;
  if (!orv3::AtMost(0, m_dVx)) m_dYMax = -m_dYMax;
}

// The group turns about its centroid when the preload keeps the plates in contact, otherwise about
// the first row.
void NormalBoltData::LeverArms() {
  m_dLyMax = 0;
  if (m_nBoltType == 1) {
    for (BoltPoint& point : m_PointArr) point.ly = point.dy;
    m_dLyMax = m_dYMax;
    return;
  }
  if (orv3::AtMost(m_dM, 0)) {
    throw CInvalidArgException(
        "bolt group: an ordinary or bearing-type check needs a moment above 0");
  }
  for (BoltPoint& point : m_PointArr) {
    point.ly = point.y;
    if (std::fabs(point.ly) > std::fabs(m_dLyMax)) m_dLyMax = point.ly;
  }
}

int NormalBoltData::BoltYanSuan() {
  CalBoltNum();
  CalBoltKongD();
  CalBoltYouXiaoD();
  CalGangCaiQD();
  CalCaiLiaoQD();
  CalSheJiZhi();
  CalBoltPoint();
  CalMoCaU();
  CalMoCaP();
  CalBoltJianLi();
  CalBoltLaLi();
  CalLianJieL();
  CalZheJianB();
  return BoltYanSuan2();
}

int NormalBoltData::BoltYanSuan2() {
  const int bForces = JugeYingLi();
  CalJieMianQD();
  JugeJieMian(m_bJieMianX, m_bJieMianY);
  return bForces == 1 && m_bJieMianX == 1 && m_bJieMianY == 1 ? 1 : 0;
}
