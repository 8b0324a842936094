// Opens, uses and closes the browser many times: what the process holds at the end is what it held
// after the first time. ORV3CAL_SOAK: how many times.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "dialogs/win32/resource.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"
#include "win32/holdings.h"

namespace {

constexpr long kRolled = 0x01000FFF;

void UseOnce() {
  CDataItem row;
  const CString path = orv3::FromUtf8(ORV3CAL_CATALOGUE "/");
  CStringArray names;
  CLoadDataTable::GetTableNameArray(kRolled, names);
  Drive([&] { CLoadDataTable::VisitDataBase(path, row, kRolled); },
        [&] {
          const auto probe = CDialogProbe::WaitFor(L"钢结构截面特性数据库");
          for (const CString& name : names) {
            probe.SelectNode(IDC_TREE, std::wstring(name.View()));
            probe.Choose(IDC_SEARCH_COLUMN, L"No.");
            probe.SetText(IDC_SEARCH_VALUE, L"2");
            SendMessageW(probe.Control(IDC_SEARCH), BM_CLICK, 0, 0);
          }
          probe.DoubleClick(IDC_LIST, 0);
          const auto properties = CDialogProbe::WaitFor(L"截面特性参数查询");
          properties.Close();
          properties.WaitUntilClosed();
          probe.Close();
        });
}

TEST(Soak, NothingIsLeftBehind) {
  const char* const wanted = std::getenv("ORV3CAL_SOAK");
  const int times = wanted != nullptr ? std::atoi(wanted) : 5;
  FillStockOfDrawingContexts();
  UseOnce();
  ExpectCountsSeeNewObjects();
  const CHoldings before = Holdings();
  for (int i = 1; i <= times; ++i) {
    UseOnce();
    ASSERT_FALSE(HasFailure()) << "in round " << i;
    if (wanted != nullptr) std::cout << i << " of " << times << ": " << Holdings() << std::endl;
  }
  const CHoldings after = Holdings();
  EXPECT_EQ(after.windows, before.windows);
  EXPECT_EQ(after.drawing, before.drawing);
  EXPECT_EQ(after.handles, before.handles);
}

}  // namespace
