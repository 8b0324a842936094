// The property and number dialogs, and the progress of what takes its time.
#include <gtest/gtest.h>

#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/windows_user.h"
#include "outlines/exact_keys.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"

namespace {

constexpr wchar_t kEditCaption[] = L"截面特性参数设置";

CDataItem DefaultRow(const wchar_t* table) {
  CDataItem row;
  row.m_strTableName = table;
  CLoadDataTable::GetDefaultDataItem(row);
  return row;
}

TEST(SmallDialogs, NewNumberWithoutTheBlanksAroundIt) {
  CSectSignSet dialog;
  dialog.m_strSign = L"A1";
  INT_PTR result = 0;
  Drive([&] { result = dialog.DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"型钢型号输入");
          Expect(probe.Text(IDC_SECT_SIGN), L"A1");
          probe.SetText(IDC_SECT_SIGN, L"  H400X300 b \t");
          probe.Click(IDOK);
        });
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(dialog.m_strSign == L"H400X300 b");
}

TEST(SmallDialogs, EditedSizesAreInTheRowAndRecomputed) {
  CPropertyDlg dialog;
  dialog.m_item = DefaultRow(L"自定义对称H型钢");
  dialog.m_strTableName = L"自定义对称H型钢";
  dialog.m_nEditMode = 1;
  const int height = 2;  // number, width, height, ...
  INT_PTR result = 0;
  Drive([&] { result = dialog.DoModal(); },
        [&] {
          const auto probe = CDialogProbe::WaitFor(kEditCaption);
          const int exact = 1 + static_cast<int>(orv3::kExactKeys);  // their heading and they
          Expect(probe.Count(IDC_PROPERTY_GRID), dialog.m_item.GetItemLength() + exact, "lines");
          Expect(probe.Titles(IDC_PROPERTY_GRID)[1], L"参数值");
          Expect(probe.Cell(IDC_PROPERTY_GRID, height, 1), L"400");
          probe.EditCell(IDC_PROPERTY_GRID, 0, 1, L"H500X300");
          probe.EditCell(IDC_PROPERTY_GRID, height, 1, L"high");
          probe.Click(IDOK);
          CDialogProbe::WaitFor(L"Orvo提醒您").Answer(IDOK);
          const HWND grid = probe.Control(IDC_PROPERTY_GRID);
          const auto editor = [grid] { return FindWindowExW(grid, nullptr, WC_EDITW, nullptr); };
          Eventually([&] { return editor() != nullptr; }, "the line at fault open for typing");
          SendMessageW(editor(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"500"));
          PostMessageW(editor(), WM_KEYDOWN, VK_RETURN, 1);
          Eventually([&] { return editor() == nullptr; }, "end of the cell editor");
          Expect(probe.Cell(IDC_PROPERTY_GRID, height, 1), L"500");
          probe.Click(IDOK);
        });
  ASSERT_EQ(result, IDOK);
  EXPECT_TRUE(dialog.m_item[L"No."].m_strValue == L"H500X300");
}

// The window that owns it waits meanwhile.
TEST(SmallDialogs, ProgressIsShownUntilAllIsDone) {
  const HWND owner = CreateWindowExW(0, WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 50,
                                     nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(owner);
  orv3::CWindowsUser user;
  for (const int done : {0, 2}) {
    user.Progress(L"热轧普通槽钢", done, 3);
    const auto probe = CDialogProbe::WaitFor(L"Orvo提醒您");
    EXPECT_EQ(probe.Text(IDC_PROGRESS_TEXT), L"热轧普通槽钢");
    const HWND bar = probe.Control(IDC_PROGRESS_BAR);
    EXPECT_EQ(SendMessageW(bar, PBM_GETPOS, 0, 0), done);
    EXPECT_EQ(SendMessageW(bar, PBM_GETRANGE, FALSE, 0), 3);
    EXPECT_FALSE(IsWindowEnabled(owner));
  }
  user.Progress(L"", 3, 3);
  EXPECT_FALSE(CDialogProbe::IsOpen(L"Orvo提醒您"));
  EXPECT_TRUE(IsWindowEnabled(owner));
  DestroyWindow(owner);
}

}  // namespace
