// The section database browser on the shipped store: looking, searching, choosing.
#include <gtest/gtest.h>

#include <string>

#include "dialogs/win32/dialog_help.h"
#include "dialogs/win32/message_box.h"
#include "dialogs/win32/resource.h"
#include "framework/utf8.h"
#include "platform/file_system.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"

namespace {

constexpr wchar_t kCaption[] = L"钢结构截面特性数据库";
constexpr wchar_t kBeams[] = L"热轧普通工字钢";
constexpr long kEverything = 0x03000FFF;

CString Catalogue() { return orv3::FromUtf8(ORV3CAL_CATALOGUE "/"); }

void Search(const CDialogProbe& probe, const wchar_t* column, const wchar_t* op,
            const wchar_t* value) {
  probe.Choose(IDC_SEARCH_COLUMN, column);
  probe.Choose(IDC_SEARCH_OPERATOR, op);
  probe.SetText(IDC_SEARCH_VALUE, value);
  SendMessageW(probe.Control(IDC_SEARCH), BM_CLICK, 0, 0);
}

int Height(const CDialogProbe& probe, int item) { return std::stoi(probe.Cell(IDC_LIST, item, 1)); }

TEST(Browser, SearchSortShowAndChoose) {
  CDataItem row;
  int result = -1;
  Drive([&] { result = CLoadDataTable::VisitDataBase(Catalogue(), row, kEverything); },
        [] {
          const auto probe = CDialogProbe::WaitFor(kCaption);
          probe.SelectNode(IDC_TREE, kBeams);
          const int all = probe.Count(IDC_LIST);
          probe.SelectItem(IDC_LIST, all - 1);
          ListView_EnsureVisible(probe.Control(IDC_LIST), 0, FALSE);
          probe.ClickHeader(IDC_LIST, 1);
          Expect(ListView_GetTopIndex(probe.Control(IDC_LIST)), 0, "first row shown after sorting");
          Search(probe, L"No.", L"＝", L"I20");
          const auto found = probe.Column(IDC_LIST, 0);
          Expect(static_cast<int>(found.size()), 2, "rows found");
          Expect(found[0], L"I20a");
          Expect(found[1], L"I20b");
          Expect(probe.Text(IDC_STATUS).find(std::to_wstring(all)) != std::wstring::npos, 1,
                 "number of rows told");

          // Enter in the field searches as the button does.
          SendMessageW(probe.Window(), WM_NEXTDLGCTL,
                       reinterpret_cast<WPARAM>(probe.Control(IDC_SEARCH_VALUE)), TRUE);
          probe.SetText(IDC_SEARCH_VALUE, L"I2");
          probe.Press(IDC_SEARCH_VALUE, VK_RETURN);
          Eventually([&] { return probe.Count(IDC_LIST) > 2; }, "more rows");
          Expect(Height(probe, 0) < Height(probe, probe.Count(IDC_LIST) - 1), 1, "still ascending");
          probe.ClickHeader(IDC_LIST, 1);
          Expect(Height(probe, 0) > Height(probe, probe.Count(IDC_LIST) - 1), 1, "descending");

          probe.SelectItem(IDC_LIST, L"I20a");
          probe.DoubleClick(IDC_LIST, probe.SelectedItem(IDC_LIST));
          const auto properties = CDialogProbe::WaitFor(L"截面特性参数查询");
          Expect(properties.Cell(IDC_PROPERTY_GRID, 0, 1), L"I20a");
          properties.Close();
          properties.WaitUntilClosed();

          probe.SelectItem(IDC_LIST, L"I20a");
          probe.Click(IDOK);
        });
  EXPECT_EQ(result, 1);
  EXPECT_TRUE(row.m_strTableName == kBeams);
  EXPECT_TRUE(row[L"No."].m_strValue == L"I20a");
}

TEST(Browser, ChosenColumnsAlone) {
  CDataItem row;
  int result = 0;
  Drive([&] { result = CLoadDataTable::VisitDataBase(Catalogue(), row, kEverything); },
        [] {
          const auto probe = CDialogProbe::WaitFor(kCaption);
          probe.SelectNode(IDC_TREE, kBeams);
          const auto before = probe.Titles(IDC_LIST);
          probe.Click(IDC_VIEW_COLUMNS);
          const auto columns = CDialogProbe::WaitFor(L"选择显示项");
          Expect(columns.Count(IDC_COLUMN_LIST), static_cast<int>(before.size()),
                 "columns offered");
          columns.Click(IDC_HELP_BUTTON);
          const auto help = CDialogProbe::WaitFor(L"帮助");
          Expect(help.Message(), orv3::HelpOf(IDD_VIEW_COLUMNS).m_szText);
          help.Answer(IDOK);
          SendMessageW(columns.Control(IDC_NONE), BM_CLICK, 0, 0);
          columns.Click(IDOK);  // refused: nothing is left
          CDialogProbe::WaitFor(L"Orvo提醒您").Answer(IDOK);
          SendMessageW(columns.Control(IDC_ALL), BM_CLICK, 0, 0);
          columns.SetMark(IDC_COLUMN_LIST, 1, false);
          columns.Click(IDOK);
          columns.WaitUntilClosed();
          Eventually([&] { return probe.Titles(IDC_LIST).size() == before.size() - 1; },
                     "one column less");
          Expect(probe.Titles(IDC_LIST)[1], before[2]);
          probe.SelectItem(IDC_LIST, L"I20b");
          probe.Click(IDOK);
        });
  EXPECT_EQ(result, 1);
  EXPECT_GT(row.GetItemLength(), 3);  // the whole row comes back
  EXPECT_TRUE(row[L"No."].m_strValue == L"I20b");
}

}  // namespace
