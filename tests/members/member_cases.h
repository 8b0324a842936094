// Members for the tests, of rows of the shipped catalogue and of sizes. mm, kN, kN mm.
#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "members/cases/member_case.h"
#include "sections/load_data_table.h"

namespace orv3::test {

class CMembers : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    CLoadDataTable::SetOrvoPrgPath(CString(L"" ORV3CAL_CATALOGUE "/"));
  }
  static void TearDownTestSuite() { CLoadDataTable::SetOrvoPrgPath(L""); }
  CMemberCheck m_check;
};

inline CMemberCase Row(const char* table, const char* no, const char* steel, double x, double y) {
  CMemberCase c;
  c.m_strTable = table;
  c.m_strNo = no;
  c.m_strSteel = steel;
  c.m_dLx = x;
  c.m_dLy = y;
  return c;
}

inline CMemberCase Sizes(const char* style, std::vector<double> sizes, const char* steel, double x,
                         double y) {
  CMemberCase c = Row("", "", steel, x, y);
  c.m_strStyle = style;
  c.m_sizes.m_arrEach = std::move(sizes);
  return c;
}

// Two to four channels, of lacing bars or battens.
inline CMemberCase Lattice(const char* bond, int limbs) {
  CMemberCase c = Row("", "", "Q235", 6000, 6000);
  static constexpr const char* kTables[] = {"双肢格构柱", "三肢格构柱", "四肢格构柱"};
  c.m_strLattice = kTables[limbs - 2];
  c.m_dK = 300;
  c.m_dKx = c.m_dKy = 500;
  c.m_strLimb1 = c.m_strLimb2 = c.m_strLimb3 = c.m_strLimb4 = "热轧普通槽钢";
  c.m_strNo1 = c.m_strNo2 = c.m_strNo3 = c.m_strNo4 = "[20a";
  c.m_dTurn1 = c.m_dTurn4 = 90;
  c.m_dTurn2 = c.m_dTurn3 = 270;
  c.m_strBond = bond;
  c.m_strBar = "热轧等边角钢";
  c.m_strBarNo = "L45X5";
  c.m_dBattenWidth = 200;
  c.m_dBattenThick = 10;
  c.m_dBattenPitch = 900;
  if (c.m_strBond == "lacing") c.m_dBattenWidth = c.m_dBattenThick = c.m_dBattenPitch = NAN;
  if (c.m_strBond == "battens") c.m_strBar = c.m_strBarNo = "";
  return c;
}

}  // namespace orv3::test
