// Strengths and the resistances of one bolt: GB 50017-2003, 3.4.1, 7.2.1 to 7.2.4.
#include <numbers>

#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "connections/bolt_group.h"
#include "connections/bolt_thread.h"
#include "connections/check_math.h"
#include "framework/number_text.h"

// d and de, coarse threads.
constexpr const wchar_t* NormalBoltData::m_strBolt[28][2] = {
    {L"10", L"8.59"},  {L"12", L"10.36"}, {L"14", L"12.12"},  {L"16", L"14.12"}, {L"18", L"15.65"},
    {L"20", L"17.65"}, {L"22", L"19.65"}, {L"24", L"21.19"},  {L"27", L"24.19"}, {L"30", L"26.72"},
    {L"33", L"29.72"}, {L"36", L"32.25"}, {L"39", L"35.25"},  {L"42", L"37.78"}, {L"45", L"40.78"},
    {L"48", L"43.31"}, {L"52", L"47.31"}, {L"56", L"50.84"},  {L"60", L"54.84"}, {L"64", L"58.37"},
    {L"68", L"62.37"}, {L"72", L"66.37"}, {L"76", L"70.37"},  {L"80", L"74.37"}, {L"85", L"79.37"},
    {L"90", L"84.37"}, {L"95", L"89.37"}, {L"100", L"94.37"},
};

namespace {

constexpr double kPi = std::numbers::pi;

// A cell of the bolt strength table, N/mm2.
double Strength(int row, int column) { return orv3::ToInt(CTableSearch::g_sub3[row][column]); }

bool IsSteel(int steel) noexcept { return steel >= 0 && steel <= 3; }

}  // namespace

void NormalBoltData::CalBoltKongD() {
  const double clearance = m_nBoltType == 1 ? 2 : m_nBoltType == 0 && m_nD <= 16 ? 1 : 1.5;
  m_dD0 = m_nD + clearance;
}

void NormalBoltData::CalBoltYouXiaoD() {
  const double de = orv3::EffectiveDiameter(m_nD);
  if (de > 0) m_dDe = de;
}

void NormalBoltData::CalGangCaiQD() {
  if (IsSteel(m_nSteel)) {
    const int row = orv3::PlateRow(m_nSteel, m_dThick, orv3::kCheckTolerance);
    m_dF = CTableSearch::g_sub1[row][0];
  }
  m_dF /= 1000;
}

void NormalBoltData::CalCaiLiaoQD() {
  const bool bOrdinary = m_nBoltType == 0;
  const bool bBearing = m_nBoltType == 2;
  const auto setTensionAndShear = [this](int row, int column) {
    m_dFt = Strength(row, column);
    m_dFv = Strength(row, column + 1);
  };
  if (bOrdinary && m_nBoltClass == 0 && (m_nGrade == 0 || m_nGrade == 1)) setTensionAndShear(0, 0);
  if (bOrdinary && m_nBoltClass != 0 && m_nGrade == 2) setTensionAndShear(1, 3);
  if (bOrdinary && m_nBoltClass != 0 && m_nGrade == 3) setTensionAndShear(2, 3);
  if (bBearing && (m_nGrade == 0 || m_nGrade == 1)) setTensionAndShear(5 + m_nGrade, 7);

  if (IsSteel(m_nSteel)) {
    const int row = 7 + m_nSteel;
    if (bOrdinary && m_nBoltClass == 0) m_dFc = Strength(row, 2);
    if (bOrdinary && (m_nBoltClass == 1 || m_nBoltClass == 2)) m_dFc = Strength(row, 5);
    if (bBearing) m_dFc = Strength(row, 9);
  }
  // A strength that was not looked up is scaled again: callers know that behaviour.
  m_dFt /= 1000;
  m_dFv /= 1000;
  m_dFc /= 1000;
}

void NormalBoltData::CalMoCaU() {
  if (m_nBoltType != 1) return;
  if (m_nSurface == 4) m_nSurface = 3;
  if (m_nSurface < 0 || m_nSurface > 3 || !IsSteel(m_nSteel)) return;
  static constexpr int kColumn[4] = {0, 1, 1, 2};  // Q235; Q345 and Q390; Q420
  m_dMu = CTableSearch::g_sub8[m_nSurface][kColumn[m_nSteel]];
}

void NormalBoltData::CalMoCaP() {
  if (m_nBoltType != 1 && m_nBoltType != 2) return;
  if (m_nGrade != 0 && m_nGrade != 1) return;
  static constexpr int kNextDiameter[5] = {20, 22, 24, 27, 30};
  int column = 0;
  while (column < 5 && m_nD >= kNextDiameter[column]) ++column;
  m_nP = static_cast<int>(CTableSearch::g_sub9[m_nGrade][column]);
}

void NormalBoltData::CalSheJiZhi() {
  if (m_nBoltType == 0 || m_nBoltType == 2) {
    m_dNvb = m_nNv * kPi * m_nD * m_nD * m_dFv * 0.25;
    m_dNcb = m_dSumT * m_nD * m_dFc;
    m_dNtb = m_dDe * m_dDe * kPi * m_dFt * 0.25;
  } else if (m_nBoltType == 1) {
    CalMoCaU();
    CalMoCaP();
    m_dNvb = m_nNf * 0.9 * m_dMu * m_nP;
    m_dNtb = 0.8 * m_nP;
  } else {
    return;
  }
  m_dNvbCopy = m_dNvb;
}

void NormalBoltData::CalZheJianB() {
  if (orv3::AtMost(m_dL1, 15 * m_dD0)) {
    m_dBeta = 1.0;
  } else if (orv3::AtMost(m_dL1, 60 * m_dD0)) {
    m_dBeta = 1.1 - m_dL1 / (150 * m_dD0);
    if (m_dBeta > 1.0) m_dBeta = 1.0;
  } else {
    m_dBeta = 0.7;
  }
}
