// The user table editor.
#include <gtest/gtest.h>

#include <utility>

#include "dialogs/win32/resource.h"
#include "sections/load_data_table.h"
#include "win32/dialog_driver.h"
#include "win32/store_folder.h"

namespace {

constexpr wchar_t kCaption[] = L"用户截面库";
constexpr wchar_t kUserH[] = L"自定义对称H型钢";
constexpr long kEverything = 0x03000FFF;

void NewTable(const CDialogProbe& probe, const wchar_t* style) {
  const int before = probe.Count(IDC_TABLE_LIST);
  probe.Choose(IDC_TEMPLATE, style);
  SendMessageW(probe.Control(IDC_TABLE_NEW), BM_CLICK, 0, 0);
  Expect(probe.Count(IDC_TABLE_LIST), before + 1, "tables");
}

void AddRow(const CDialogProbe& probe, const wchar_t* no) {
  probe.Click(IDC_ROW_ADD);
  const auto properties = CDialogProbe::WaitFor(L"截面特性参数设置");
  properties.EditCell(IDC_PROPERTY_GRID, 0, 1, no);
  properties.Click(IDOK);
  properties.WaitUntilClosed();
}

CStringArray FilesOf(const CStoreFolder& folder) {
  CDataTable table;
  table.SetSaveTablePath(folder.Path());
  CStringArray files;
  table.GetUserTableFileName(files);
  return files;
}

TEST(UserTables, MakeFillUndoSaveAndChoose) {
  const CStoreFolder folder;
  CDataItem row;
  int result = 0;
  Drive([&] { result = CLoadDataTable::VisitSelJMDlg(folder.Path(), row, kEverything); },
        [&] {
          const auto probe = CDialogProbe::WaitFor(kCaption);
          Expect(probe.Count(IDC_TABLE_LIST), 0, "tables");
          Expect(probe.IsEnabled(IDC_ROW_ADD), 0, "adding without a table");
          NewTable(probe, kUserH);
          AddRow(probe, L"A");
          AddRow(probe, L"B");
          Expect(probe.Count(IDC_ROW_LIST), 2, "rows");
          SendMessageW(probe.Control(IDC_UNDO), BM_CLICK, 0, 0);
          Expect(probe.Count(IDC_ROW_LIST), 1, "rows after undo");
          SendMessageW(probe.Control(IDC_REDO), BM_CLICK, 0, 0);
          Expect(probe.Count(IDC_ROW_LIST), 2, "rows after redo");
          Expect(FilesOf(folder).GetSize(), 0, "files before saving");
          SendMessageW(probe.Control(IDC_SAVE), BM_CLICK, 0, 0);
          Expect(FilesOf(folder).GetSize(), 1, "files");
          probe.SelectItem(IDC_ROW_LIST, L"A");
          probe.Click(IDOK);
        });
  ASSERT_EQ(result, 1);
  EXPECT_TRUE(std::as_const(row)[0].m_strValue == L"A");
  EXPECT_TRUE(row.m_strTableName == kUserH);
}

}  // namespace
