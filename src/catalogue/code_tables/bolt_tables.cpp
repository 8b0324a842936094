// High-strength bolts and bolt areas.
#include "catalogue/code_tables/cell_number.h"
#include "catalogue/code_tables/interpolation.h"
#include "catalogue/code_tables/table_search.h"

// Slip factor: GB 50017-2003, Table 7.2.2-1.
constexpr double CTableSearch::g_sub8[4][3] = {
    // Q235, Q345 and Q390, Q420
    {0.45, 0.50, 0.50},  // sand-blasted (shot-blasted)
    {0.35, 0.40, 0.40},  // sand-blasted and painted with inorganic zinc-rich paint
    {0.45, 0.50, 0.50},  // sand-blasted and rusted red
    {0.30, 0.35, 0.40},  // loose rust wire-brushed off, or untreated clean rolled surface
};

// Preload, kN: GB 50017-2003, Table 7.2.2-2.
constexpr double CTableSearch::g_sub9[2][6] = {
    // M16, M20, M22, M24, M27, M30
    {80, 125, 150, 175, 230, 280},   // 8.8
    {100, 155, 190, 225, 290, 355},  // 10.9
};

// Gross area and effective (stress) area of a bolt, cm2.
constexpr const wchar_t* CTableSearch::g_sub23[9][2] = {
    {L"1.131", L"0.84"},  // 12
    {L"1.539", L"1.15"},  // 14
    {L"2.011", L"1.57"},  // 16
    {L"2.545", L"1.93"},  // 18: as printed; the thread's pitch gives 1.92
    {L"3.142", L"2.45"},  // 20
    {L"3.801", L"3.03"},  // 22
    {L"4.524", L"3.53"},  // 24
    {L"5.726", L"4.59"},  // 27
    {L"7.069", L"5.61"},  // 30
};

constexpr int CTableSearch::g_sub23_1[9] = {12, 14, 16, 18, 20, 22, 24, 27, 30};

bool CTableSearch::SearchSub8(int treatment, int steelColumn, double& slipFactor) {
  if (!orv3::InRange(treatment, 4) || !orv3::InRange(steelColumn, 3)) return false;
  slipFactor = g_sub8[treatment][steelColumn];
  return true;
}

bool CTableSearch::SearchSub9(int grade, int diameter, double& preload) {
  if (!orv3::InRange(grade, 2) || !orv3::InRange(diameter, 6)) return false;
  preload = g_sub9[grade][diameter];
  return true;
}

bool CTableSearch::SearchSub9(int grade, int diameter, int& preload) {
  double value = 0;
  if (!SearchSub9(grade, diameter, value)) return false;
  preload = static_cast<int>(value);
  return true;
}

bool CTableSearch::SearchSub23(int row, int column, double& area) {
  if (!orv3::InRange(row, 9) || !orv3::InRange(column, 2)) return false;
  static constexpr auto kArea = orv3::CellNumbers(g_sub23);
  area = kArea[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  return true;
}
