// Strengths of steel, welds and bolts, N/mm2: GB 50017-2003, 3.4.1.
#include "catalogue/code_tables/interpolation.h"
#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "framework/number_text.h"

// Table 3.4.1-1, the columns f and fv.
constexpr int CTableSearch::g_sub1[16][2] = {
    // Q235: <= 16, > 16 to 40, > 40 to 60, > 60 to 100 mm
    {215, 125},
    {205, 120},
    {200, 115},
    {190, 110},
    // Q345: <= 16, > 16 to 35, > 35 to 50, > 50 to 100 mm
    {310, 180},
    {295, 170},
    {265, 155},
    {250, 145},
    // Q390, the groups of Q345
    {350, 205},
    {335, 190},
    {315, 180},
    {295, 170},
    // Q420, the groups of Q345
    {380, 220},
    {360, 210},
    {340, 195},
    {325, 185},
};

constexpr const wchar_t* CTableSearch::g_sub1_1[16] = {
    L"≤16", L">16~40", L">40~60", L">60~100",  // Q235
    L"≤16", L">16~35", L">35~50", L">50~100",  // Q345
    L"≤16", L">16~35", L">35~50", L">50~100",  // Q390
    L"≤16", L">16~35", L">35~50", L">50~100",  // Q420
};

// Table 3.4.1-3: fcw, ftw of quality grades one and two, ftw of grade three, fvw.
constexpr double CTableSearch::g_sub2[16][4] = {
    // Q235
    {215, 215, 185, 125},
    {205, 205, 175, 120},
    {200, 200, 170, 115},
    {190, 190, 160, 110},
    // Q345
    {310, 310, 265, 180},
    {295, 295, 250, 170},
    {265, 265, 225, 155},
    {250, 250, 210, 145},
    // Q390
    {350, 350, 300, 205},
    {335, 335, 285, 190},
    {315, 315, 270, 180},
    {295, 295, 250, 170},
    // Q420
    {380, 380, 320, 220},
    {360, 360, 305, 210},
    {340, 340, 290, 195},
    {325, 325, 275, 185},
};

// Table 3.4.1-4.
constexpr const wchar_t* CTableSearch::g_sub3[11][10] = {
    // class C: ft, fv, fc | A and B: ft, fv, fc | anchor: ft | bearing type: ft, fv, fc
    {L"170", L"140", L"", L"", L"", L"", L"", L"", L"", L""},     // 4.6, 4.8
    {L"", L"", L"", L"210", L"190", L"", L"", L"", L"", L""},     // 5.6
    {L"", L"", L"", L"400", L"320", L"", L"", L"", L"", L""},     // 8.8
    {L"", L"", L"", L"", L"", L"", L"140", L"", L"", L""},        // anchor, Q235
    {L"", L"", L"", L"", L"", L"", L"180", L"", L"", L""},        // anchor, Q345
    {L"", L"", L"", L"", L"", L"", L"", L"400", L"250", L""},     // bearing type, 8.8
    {L"", L"", L"", L"", L"", L"", L"", L"500", L"310", L""},     // bearing type, 10.9
    {L"", L"", L"305", L"", L"", L"405", L"", L"", L"", L"470"},  // member, Q235
    {L"", L"", L"385", L"", L"", L"510", L"", L"", L"", L"590"},  // member, Q345
    {L"", L"", L"400", L"", L"", L"530", L"", L"", L"", L"615"},  // member, Q390
    {L"", L"", L"425", L"", L"", L"560", L"", L"", L"", L"655"},  // member, Q420
};

constexpr const wchar_t* CTableSearch::g_sub3_1[11] = {
    L"4.6级/4.8级", L"5.6级",   L"8.8级",   L"Q235 钢", L"Q345 钢", L"8.8级",
    L"10.9级",      L"Q235 钢", L"Q345 钢", L"Q390 钢", L"Q420 钢",
};

namespace {

// The row of g_sub1 and g_sub2, -1 for a pair that the code does not have.
int StrengthRow(int grade, int group) noexcept {
  if (grade == SUB1_Q235) return orv3::InRange(group, 4) ? group : -1;
  if (!orv3::InRange(grade, 4)) return -1;
  if (group == SUB1_T16) return 4 * grade;
  return group >= SUB1_T16_35 && group <= SUB1_T50_100 ? 4 * grade + 1 + group - SUB1_T16_35 : -1;
}

// A cell of g_sub2, or the fillet weld's strength, which is the same for a grade's four rows.
bool WeldStrength(int row, int kind, const int (&fillet)[4], int& strength) noexcept {
  if (row < 0 || !orv3::InRange(kind, 5)) return false;
  strength = kind == SUB2_FFW ? fillet[row / 4] : static_cast<int>(CTableSearch::g_sub2[row][kind]);
  return true;
}

// The row of g_sub3, -1 for a grade that the family does not have.
int BoltRow(int family, int grade) noexcept {
  switch (family) {
    case SUB3_ORDINARY:
      return grade >= SUB3_46_48 && grade <= SUB3_88 ? grade : -1;
    case SUB3_ANCHOR:
      return grade == SUB3_Q235 || grade == SUB3_Q345 ? grade - SUB3_Q235 + 3 : -1;
    case SUB3_BEARING:
      return grade == SUB3_88 || grade == SUB3_109 ? grade - SUB3_88 + 5 : -1;
    case SUB3_MEMBER:
      return grade >= SUB3_Q235 && grade <= SUB3_Q420 ? grade - SUB3_Q235 + 7 : -1;
    default:
      return -1;
  }
}

}  // namespace

bool CTableSearch::SearchSub1(int grade, int group, int kind, int& strength) {
  static constexpr int kEndBearing[4] = {325, 400, 415, 440};  // fce, by grade
  const int row = StrengthRow(grade, group);
  if (row < 0 || !orv3::InRange(kind, 3)) return false;
  strength = kind == SUB1_FCE ? kEndBearing[row / 4] : g_sub1[row][kind];
  return true;
}

bool CTableSearch::SearchSub1(int grade, double thickness, int kind, int& strength) {
  return SearchSub1(grade, orv3::ThicknessGroup(grade, thickness), kind, strength);
}

bool CTableSearch::SearchSub2(int grade, int group, int kind, int& strength) {
  return WeldStrength(StrengthRow(grade, group), kind, {160, 200, 220, 220}, strength);
}

bool CTableSearch::SearchSub2(int electrode, int /*grade*/, int group, int kind, int& strength) {
  if (electrode != SUB2_E43 && electrode != SUB2_E50) return false;
  const int grade = electrode == SUB2_E43 ? SUB1_Q235 : SUB1_Q345;
  return WeldStrength(StrengthRow(grade, group), kind, {160, 200, 200, 200}, strength);
}

bool CTableSearch::SearchSub3(int family, int grade, int column, int& strength) {
  const int row = BoltRow(family, grade);
  if (row < 0 || !orv3::InRange(column, 10)) return false;
  strength = orv3::ToInt(g_sub3[row][column]);
  return true;
}
