// Members for the tests, of rows of the shipped catalogue and of sizes. mm, kN, kN mm.
#pragma once

#include <gtest/gtest.h>

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

}  // namespace orv3::test
