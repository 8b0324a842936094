// Forces on the most stressed bolt and their verdict: GB 50017-2003, 7.2.1 to 7.2.4.
#include <cmath>

#include "connections/bolt_group.h"
#include "connections/check_math.h"

void NormalBoltData::CalBoltJianLi() {
  m_dNvx = m_dVx / m_nBoltNum;
  m_dNvy = m_dVy / m_nBoltNum;
  double sumX2 = 0;
  double sumY2 = 0;
  for (const BoltPoint& point : m_PointArr) {
    sumX2 += point.dx * point.dx;
    sumY2 += point.dy * point.dy;
  }
  const double sumR2 = sumX2 + sumY2;
  m_dNTx = m_dNTy = m_dNT = m_dSumR2 = 0;
  if (!orv3::IsZero(m_dT) && !orv3::IsZero(sumR2)) {
    m_dNTx = m_dYMax * m_dT / sumR2;
    m_dNTy = m_dXMax * m_dT / sumR2;
    m_dNT = std::sqrt(m_dXMax * m_dXMax + m_dYMax * m_dYMax) * m_dT / sumR2;
    m_dSumR2 = sumR2;
  }
  const double x = m_dNTx + m_dNvx;
  const double y = m_dNTy + m_dNvy;
  m_dNv = std::sqrt(x * x + y * y);
}

void NormalBoltData::CalBoltLaLi() {
  m_dSumLy2 = 0;
  for (const BoltPoint& point : m_PointArr) m_dSumLy2 += point.ly * point.ly;
  const bool bMoment = !orv3::IsZero(m_dM) && !orv3::IsZero(m_dSumLy2);
  m_dNtM = bMoment ? m_dLyMax * m_dM / m_dSumLy2 : 0;
  m_dNtN = m_dN / m_nBoltNum;
  m_dNt = m_dNtM + m_dNtN;
  if (m_dNt < orv3::kCheckTolerance) m_dNt = 0;
}

void NormalBoltData::CalLianJieL() {
  m_dWidth = orv3::Sum(m_EcArr);
  m_dHeight = orv3::Sum(m_ErArr);
  if (m_dVx != 0 && m_dVy != 0) {
    m_dL1 = m_dWidth > m_dHeight ? m_dWidth : m_dHeight;
  } else if (m_dVx != 0) {
    m_dL1 = m_dWidth;
  } else {
    m_dL1 = m_dVy != 0 ? m_dHeight : 0;
  }
}

int NormalBoltData::JugeYingLi() {
  if (m_nBoltType == 1) {
    m_dRatio = m_dNv / (m_dBeta * m_dNvb) + m_dNt / m_dNtb;
    return orv3::AtMost(std::fabs(m_dRatio), 1) ? 1 : 0;
  }
  const double shear = m_dNv / (m_dNvb * m_dBeta);
  const double tension = m_dNt / m_dNtb;
  const double bearing = m_nBoltType == 0 ? m_dNcb * m_dBeta : m_dNcb * m_dBeta / 1.2;
  m_dRatio = std::sqrt(shear * shear + tension * tension);
  m_dNvExcess = m_dNv - bearing;
  const bool bPass =
      orv3::AtMost(m_dRatio, 1) && orv3::AtMost(std::fabs(m_dNv), std::fabs(bearing));
  return bPass ? 1 : 0;
}
