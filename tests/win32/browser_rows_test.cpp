// What the browser changes: rows of the system store, and files.
#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "dialogs/win32/resource.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"
#include "win32/store_folder.h"

namespace {

constexpr wchar_t kCaption[] = L"钢结构截面特性数据库";
constexpr wchar_t kProperties[] = L"截面特性参数设置";
constexpr wchar_t kReminder[] = L"Orvo提醒您";
constexpr wchar_t kBeams[] = L"热轧普通工字钢";
constexpr wchar_t kUserH[] = L"自定义对称H型钢";
constexpr long kEverything = 0x03000FFF;
constexpr int kFileName = 0x47C;  // of the system's file dialogs

// Runs the browser on the folder's store, drives it with `script` and closes it.
void Browse(const CStoreFolder& folder, const std::function<void(const CDialogProbe&)>& script) {
  CDataItem row;
  Drive([&] { CLoadDataTable::VisitDataBase(folder.Path(), row, kEverything); },
        [&] {
          const auto probe = CDialogProbe::WaitFor(kCaption);
          script(probe);
          probe.Close();
        });
}

void AddSection(const CDialogProbe& probe, const wchar_t* no, const wchar_t* height) {
  probe.Click(IDC_ADD);
  const auto properties = CDialogProbe::WaitFor(kProperties);
  properties.EditCell(IDC_PROPERTY_GRID, 0, 1, no);
  properties.EditCell(IDC_PROPERTY_GRID, 2, 1, height);
  properties.Click(IDOK);
  properties.WaitUntilClosed();
}

TEST(BrowserRows, AddEditAndDeleteAreInTheStore) {
  const CStoreFolder folder;
  Browse(folder, [&](const CDialogProbe& probe) {
    probe.SelectNode(IDC_TREE, kUserH);
    AddSection(probe, L"H600X300", L"600");
    Expect(probe.Cell(IDC_LIST, probe.SelectedItem(IDC_LIST), 0), L"H600X300");

    probe.Press(IDC_LIST, VK_F2);
    const auto properties = CDialogProbe::WaitFor(kProperties);
    properties.EditCell(IDC_PROPERTY_GRID, 2, 1, L"620");
    properties.Click(IDOK);
    properties.WaitUntilClosed();
    // Two flanges 300 x 10 and a web 600 x 10.
    const CDataItem changed = folder.Row(kUserH, L"H600X300");
    Expect(CLoadDataTable::GetDataItemArea(changed) == 6000 + 6000, 1, "area in the store");

    probe.SelectItem(IDC_LIST, L"H600X300");
    const int rows = probe.Count(IDC_LIST);
    probe.Press(IDC_LIST, VK_DELETE);
    Eventually([&] { return probe.Count(IDC_LIST) == rows - 1; }, "one row less");
    probe.Click(IDC_TAKE_BACK);
    Eventually([&] { return probe.Count(IDC_LIST) == rows; }, "the row again");
    Expect(probe.Cell(IDC_LIST, probe.SelectedItem(IDC_LIST), 0), L"H600X300");
    probe.Press(IDC_LIST, VK_DELETE);
    Eventually([&] { return probe.Count(IDC_LIST) == rows - 1; }, "one row less again");
  });
  EXPECT_TRUE(folder.Row(kUserH, L"H600X300").IsEmpty());
}

TEST(BrowserRows, CombinedSectionsAskForTheirSpacing) {
  const CStoreFolder folder;
  CDataItem row;
  int result = 0;
  std::wstring chosen;
  Drive([&] { result = CLoadDataTable::VisitDataBase(folder.Path(), row, kEverything); },
        [&] {
          const auto probe = CDialogProbe::WaitFor(kCaption);
          probe.SelectNode(IDC_TREE, L"热轧等边角钢组合");
          probe.SelectItem(IDC_LIST, 2);
          probe.DoubleClick(IDC_LIST, 2);
          const auto shown = CDialogProbe::WaitFor(L"截面特性参数查询");
          const auto style = GetWindowLongW(shown.Control(IDC_PROPERTY_GRID), GWL_STYLE);
          Expect(style & WS_HSCROLL, 0, "horizontal bar of the grid");
          shown.Close();
          shown.WaitUntilClosed();
          chosen = probe.Cell(IDC_LIST, 2, 0);
          probe.Click(IDOK);
          const auto spacing = CDialogProbe::WaitFor(L"型钢组合肢距输入");
          Expect(spacing.Text(IDC_SPACING_LABEL), L"肢距a(mm)");
          SendMessageW(spacing.Control(IDC_SPACING), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
          SendMessageW(spacing.Control(IDOK), BM_CLICK, 0, 0);
          Expect(IsWindow(spacing.Window()), TRUE, "dialog open without a spacing");
          spacing.Choose(IDC_SPACING, L"8");
          spacing.Click(IDOK);
        });
  ASSERT_EQ(result, 1);
  EXPECT_TRUE(std::as_const(row)[0].m_strValue == CString(chosen));
  EXPECT_TRUE(std::as_const(row)[1].m_strValue == L"8");
}

// --- Files --------------------------------------------------------------------------------------

void ImportBeams(const CDialogProbe& probe) {
  probe.SelectNode(IDC_TREE, kBeams);
  probe.Click(IDC_IMPORT);
  const auto files = CDialogProbe::WaitFor(L"导入截面数据");
  const auto file = std::filesystem::canonical(ORV3CAL_CATALOGUE "/GZGData.kvb");
  files.SetText(kFileName, std::filesystem::path(file).make_preferred().wstring());
  files.Click(IDOK);
  const auto box = CDialogProbe::WaitFor(kReminder);
  Expect(box.Message(), L"选择确定将覆盖所有相同型号数据!\n是否覆盖已有型号数据？");
  box.Answer(IDYES);
  Eventually([&] { return IsWindowEnabled(probe.Window()) != FALSE; }, "end of the import");
}

// What an import makes of the rows is held by the tests of the model.
TEST(BrowserRows, ImportShowsTheNewRowAtOnce) {
  const CStoreFolder folder;
  CDataTable table = folder.Table(kBeams);
  for (int i = table.GetTableRowNum() - 1; i >= 0; --i) {
    if (table[i][L"No."].m_strValue == L"I20b") table.m_arrItem.RemoveAt(i);
  }
  folder.Save(table);
  Browse(folder, [](const CDialogProbe& probe) {
    ImportBeams(probe);
    probe.SelectItem(IDC_LIST, L"I20b");
  });
  EXPECT_FALSE(folder.Row(kBeams, L"I20b").IsEmpty());
}

TEST(BrowserRows, ExportsTheTablesThatAreMarked) {
  const CStoreFolder folder;
  const CString file = folder.Path() + L"导出.KDB";
  Browse(folder, [&](const CDialogProbe& probe) {
    probe.SelectNode(IDC_TREE, kBeams);
    probe.Click(IDC_EXPORT);
    const auto names = CDialogProbe::WaitFor(L"选择截面表");
    names.SetText(IDC_FILTER, L"槽钢");
    SendMessageW(names.Control(IDC_ALL), BM_CLICK, 0, 0);
    names.Click(IDOK);
    const auto files = CDialogProbe::WaitFor(L"导出截面数据");
    files.SetText(kFileName, std::wstring(file.View()));
    files.Click(IDOK);
    files.WaitUntilClosed();
    Eventually([&] { return IsWindowEnabled(probe.Window()) != FALSE; }, "end of the export");
  });
  CStringArray names;
  CDataTable::GetTableNameFromFile(file, names);
  EXPECT_GT(names.GetSize(), 1) << "the table shown was marked from the start";
  for (const CString& name : names) EXPECT_TRUE(name == kBeams || name.Find(L"槽钢") >= 0);
}

TEST(BrowserRows, TheSelectedRowGoesToTheClipboard) {
  const CStoreFolder folder;
  Browse(folder, [](const CDialogProbe& probe) {
    probe.SelectNode(IDC_TREE, kBeams);
    probe.SelectItem(IDC_LIST, L"I20a");
    const CKeyDown control(probe.Window(), VK_CONTROL);
    SendMessageW(probe.Control(IDC_LIST), WM_KEYDOWN, 'C', 1);
    ASSERT_TRUE(OpenClipboard(nullptr));
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    const std::wstring text = data ? static_cast<const wchar_t*>(GlobalLock(data)) : L"";
    CloseClipboard();
    Expect(text.substr(0, 16), L"I20a\t200\t100\t7\t1");
  });
}

}  // namespace
