#include "connections/butt_weld.h"

#include <algorithm>
#include <cmath>

#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "connections/weld_load_case.h"

WQWeldingData::WQWeldingData(int, double, double, double, double, double, int, int) {}

void WQWeldingData::CalWeldQD() {
  if (m_nSteel >= 0 && m_nSteel <= 3) {
    const auto& row = CTableSearch::g_sub2[orv3::PlateRow(m_nSteel, m_dT)];
    const bool bUpperGrades = m_nQuality == 0 || m_nQuality == 1;
    m_dFtw = std::trunc(row[bUpperGrades ? 1 : 2]);
    m_dFcw = std::trunc(row[0]);
    m_dFvw = std::trunc(row[3]);
  }
  m_dFtw /= 1000;
  m_dFcw /= 1000;
  m_dFvw /= 1000;
}

void WQWeldingData::CalWeldSectionW() {
  if (m_nLoadCase != 0) m_dW = m_dT * m_dLw * m_dLw / 6;
}

void WQWeldingData::CalStress() {
  CalWeldQD();
  CalWeldSectionW();
  if (!orv3::HasWeldLoadCase(m_nLoadCase)) return;
  const double area = m_dT * m_dLw;
  m_dSigma = orv3::WeldSigma(m_nLoadCase, m_dN, area, m_dM, m_dW);
  if (!orv3::HasWeldShear(m_nLoadCase)) return;
  m_dTau = 1.5 * m_dV / area;
  m_dReduced = std::sqrt(m_dSigma * m_dSigma + 3 * m_dTau * m_dTau);
}

int WQWeldingData::JugeStress(int& okSigma, int& okTau, int& okReduced) {
  CalStress();
  const bool bShear = m_nLoadCase < 0 || m_nLoadCase > 2;
  okSigma = std::max(m_dFcw, m_dFtw) >= std::fabs(m_dSigma) ? 1 : 0;
  okTau = !bShear || m_dFvw >= std::fabs(m_dTau) ? 1 : 0;
  okReduced = !bShear || 1.1 * m_dFtw > m_dReduced ? 1 : 0;
  return okSigma == 1 && okTau == 1 && okReduced == 1 ? 1 : 0;
}
