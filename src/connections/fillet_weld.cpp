#include "connections/fillet_weld.h"

#include <cmath>
#include <numbers>

#include "catalogue/code_tables/table_search.h"
#include "connections/check_math.h"
#include "connections/weld_load_case.h"
#include "framework/elementary.h"
#include "framework/kvb_math.h"

namespace {

double Radians(double degrees) noexcept { return degrees * std::numbers::pi / 180; }

}  // namespace

AngleHanFData::AngleHanFData(int weldKind, int loadCase, int material, double he, double lw,
                             double N, double M, double V, double betaF)
    : AngleHanFData(weldKind, loadCase, material, lw, N, M, V, betaF) {
  m_dHe = he;
}

AngleHanFData::AngleHanFData(int weldKind, int loadCase, int material, double lw, double N,
                             double M, double V, double betaF)
    : m_nWeldKind(weldKind),
      m_nLoadCase(loadCase),
      m_nMaterial(material),
      m_dLw(lw),
      m_dN(N),
      m_dM(M),
      m_dV(V),
      m_dBetaF(betaF) {}

void AngleHanFData::CalHFLw(double hf, double angle) {
  const double theta = Radians(angle);
  m_dHe = CKvbMath::EqualTo(theta, std::numbers::pi / 2) ? 0.7 * hf : orv3::Cos(theta / 2) * hf;
}

void AngleHanFData::CalHFLw(double s, double angle, int grooveKind) {
  switch (grooveKind) {
    case 0:
      m_dHe = CKvbMath::EqualMore(Radians(angle), std::numbers::pi / 3) ? s : 0.75 * s;
      break;
    case 1:
    case 2:
      m_dHe = s - 3;
      break;
    case 3:
    case 4:
      m_dHe = s;
      break;
    default:
      break;
  }
}

void AngleHanFData::CalWeldSectionW() { m_dW = m_dHe * m_dLw * m_dLw / 6; }

void AngleHanFData::CalWeldQD() {
  int strength = 0;  // the same in every thickness group
  if (CTableSearch::SearchSub2(m_nMaterial, SUB1_T16, SUB2_FFW, strength)) m_dFfw = strength;
  m_dFfw /= 1000;
  m_dFfw2 = m_dFfw;
}

void AngleHanFData::CalStress() {
  if (!orv3::HasWeldLoadCase(m_nLoadCase)) return;
  const double area = m_dLw * m_dHe;
  m_dSigma = orv3::WeldSigma(m_nLoadCase, m_dN, area, m_dM, m_dW);
  if (!orv3::HasWeldShear(m_nLoadCase)) return;
  m_dTau = m_dV / area;
  const double across = m_dSigma / m_dBetaF;
  m_dCombined = std::sqrt(across * across + m_dTau * m_dTau);
}

int AngleHanFData::JugeStress(int& okSigma, int& okTau, int& okCombined) {
  CalWeldQD();
  CalWeldSectionW();
  CalStress();
  const auto verdict = [](double stress, double strength) {
    return orv3::AtMost(std::fabs(stress), std::fabs(strength)) ? 1 : 0;
  };
  const bool bShear = m_nLoadCase < 0 || m_nLoadCase > 2;
  okSigma = verdict(m_dSigma, m_dBetaF * m_dFfw);
  okTau = bShear ? verdict(m_dTau, m_dFfw2) : 1;
  okCombined = bShear ? verdict(m_dCombined, m_dFfw2) : 1;
  return okSigma == 1 && okTau == 1 && okCombined == 1 ? 1 : 0;
}
