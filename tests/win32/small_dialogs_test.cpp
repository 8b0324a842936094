// The property, number, spacing, column and table name dialogs.
#include <gtest/gtest.h>

#include "dialogs/model/column_model.h"
#include "dialogs/model/table_name_model.h"
#include "dialogs/win32/dialog_help.h"
#include "dialogs/win32/message_box.h"
#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/sel_table_name_dlg.h"
#include "dialogs/win32/steel_zhzj_dlg.h"
#include "dialogs/win32/view_col_dlg.h"
#include "dialogs/win32/windows_user.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"
#include "win32/dialog_driver.h"

namespace {

constexpr wchar_t kSpacingCaption[] = L"型钢组合肢距输入";
constexpr wchar_t kEditCaption[] = L"截面特性参数设置";
constexpr wchar_t kShowCaption[] = L"截面特性参数查询";

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
  const auto type = [](const wchar_t* text, int button) {
    return [=] {
      const auto probe = CDialogProbe::WaitFor(L"型钢型号输入");
      Expect(probe.Text(IDC_SECT_SIGN), L"A1");
      probe.SetText(IDC_SECT_SIGN, text);
      probe.Click(button);
    };
  };
  Drive([&] { result = dialog.DoModal(); }, type(L"B", IDCANCEL));
  EXPECT_EQ(result, IDCANCEL);
  EXPECT_TRUE(dialog.m_strSign == L"A1");
  Drive([&] { result = dialog.DoModal(); }, type(L"  H400X300 b \t", IDOK));
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(dialog.m_strSign == L"H400X300 b");
}

TEST(SmallDialogs, ASpacingFromTheList) {
  CSteelZHZJDlg dialog;
  dialog.m_nKind = 1;
  INT_PTR result = 0;
  Drive([&] { result = dialog.DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(kSpacingCaption);
          Expect(probe.Text(IDC_SPACING_LABEL), L"肢距δ(mm)");
          Expect(static_cast<int>(probe.Choices(IDC_SPACING).size()), 5, "choices");
          Expect(probe.Text(IDC_SPACING), L"0");
          SendMessageW(probe.Control(IDC_SPACING), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
          SendMessageW(probe.Control(IDOK), BM_CLICK, 0, 0);
          Expect(IsWindow(probe.Window()), TRUE, "dialog open without a spacing");
          probe.Choose(IDC_SPACING, L"10");
          probe.Click(IDOK);
        });
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(dialog.m_strSpacing == L"10");
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
          Expect(probe.Text(IDCANCEL), L"取消");
          Expect(probe.Count(IDC_PROPERTY_GRID), dialog.m_item.GetItemLength(), "lines");
          Expect(probe.Titles(IDC_PROPERTY_GRID)[0], L"参数名称");
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
  // Two flanges 300 x 10 and a web (500 - 20) x 10.
  EXPECT_NEAR(CLoadDataTable::GetDataItemArea(dialog.m_item), 2 * 300 * 10 + 480 * 10, 1e-6);
}

TEST(SmallDialogs, ShownRowsCannotBeChanged) {
  CPropertyDlg dialog;
  dialog.m_item = DefaultRow(L"自定义圆管");
  dialog.m_strTableName = L"自定义圆管";
  Drive([&] { dialog.DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(kShowCaption);
          Expect(probe.Text(IDCANCEL), L"退出");
          Expect(IsWindowVisible(probe.Control(IDOK)), FALSE, "OK button shown");
          probe.SelectItem(IDC_PROPERTY_GRID, 1);
          SendMessageW(probe.Control(IDC_PROPERTY_GRID), WM_KEYDOWN, VK_F2, 1);
          const HWND editor =
              FindWindowExW(probe.Control(IDC_PROPERTY_GRID), nullptr, WC_EDITW, nullptr);
          Expect(editor != nullptr, 0, "cell editor");
          probe.Click(IDCANCEL);
        });
}

CDataTableTitle ThreeColumns() {
  CDataTable table;
  table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_Value_Type(0), 1);
  table.AddTableCol(L"高度", L"h(mm)", CDataTypeStruct::KVBT_Value_Type(4), 0);
  table.AddTableCol(L"面积", L"A(cm^2)", CDataTypeStruct::KVBT_Value_Type(4), 0);
  return table.m_Title;
}

TEST(SmallDialogs, ColumnsToShow) {
  orv3::CColumnModel model(ThreeColumns(), L"");
  const auto before = orv3::SetMessageHandler(orv3::ShowMessageBox);  // as the library's entry does
  INT_PTR result = 0;
  Drive([&] { result = CViewColDlg(model).DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"选择显示项");
          Expect(probe.Count(IDC_COLUMN_LIST), 3, "columns");
          probe.Click(IDC_HELP_BUTTON);
          const auto help = CDialogProbe::WaitFor(L"帮助");
          Expect(help.Message(), orv3::HelpOf(IDD_VIEW_COLUMNS).m_szText);
          help.Answer(IDOK);
          SendMessageW(probe.Control(IDC_NONE), BM_CLICK, 0, 0);
          probe.Click(IDOK);  // refused: nothing is left
          CDialogProbe::WaitFor(L"Orvo提醒您").Answer(IDOK);
          probe.SetMark(IDC_COLUMN_LIST, 2, true);
          probe.SetMark(IDC_COLUMN_LIST, 0, true);
          probe.Click(IDOK);
        });
  orv3::SetMessageHandler(before);
  EXPECT_EQ(result, IDOK);
  EXPECT_TRUE(model.View() == L"No.<<>>A(cm^2)");
}

TEST(SmallDialogs, AFilterKeepsTheMarksOfHiddenNames) {
  CStringArray names;
  for (const wchar_t* name : {L"热轧普通槽钢", L"热轧等边角钢", L"冷弯薄壁槽钢"}) names.Add(name);
  orv3::CTableNameModel model(names, CStringArray());
  INT_PTR result = 0;
  Drive([&] { result = CSelTableNameDlg(model).DoModal(); },
        [] {
          const auto probe = CDialogProbe::WaitFor(L"选择截面表");
          probe.SetMark(IDC_NAME_LIST, 1, true);
          probe.SetText(IDC_FILTER, L"槽");
          Expect(probe.Count(IDC_NAME_LIST), 2, "names with the filter");
          Expect(probe.Cell(IDC_NAME_LIST, 1, 0), L"冷弯薄壁槽钢");
          probe.SetMark(IDC_NAME_LIST, 1, true);
          probe.Click(IDOK);
        });
  EXPECT_EQ(result, IDOK);
  ASSERT_EQ(model.Chosen().GetSize(), 2);
  EXPECT_TRUE(model.Chosen()[0] == L"热轧等边角钢");
  EXPECT_TRUE(model.Chosen()[1] == L"冷弯薄壁槽钢");
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
