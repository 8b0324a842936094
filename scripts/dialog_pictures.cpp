// Opens one of the dialogs in a state worth a picture and keeps it open while the file named by the
// second argument is there: scripts/dialog-pictures takes the picture meanwhile. The file tells the
// window's place: "x y width height".
//
//   dialog_pictures NAME FILE [WIDTH HEIGHT]     the size in pixels, else the dialog's own
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>

#include "dialogs/model/column_model.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/model/table_name_model.h"
#include "dialogs/win32/progress_dlg.h"
#include "dialogs/win32/property_dlg.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/sect_sign_set.h"
#include "dialogs/win32/sel_table_name_dlg.h"
#include "dialogs/win32/steel_zhzj_dlg.h"
#include "dialogs/win32/text_input_dlg.h"
#include "dialogs/win32/view_col_dlg.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"
#include "win32/dialog_driver.h"

namespace {

constexpr long kEverything = 0x03000FFF;
constexpr wchar_t kBrowser[] = L"钢结构截面特性数据库";

struct CSize {
  int m_nWidth = 0;
  int m_nHeight = 0;
};

// What is shown: how the dialog is opened, its caption, and what is done in it first.
struct CScene {
  std::function<void()> m_fnOpen;
  const wchar_t* m_szCaption;
  std::function<void(const CDialogProbe&)> m_fnPrepare;
};

CString DataFolder() { return orv3::FromUtf8(ORV3CAL_CATALOGUE "/"); }

void Settle() { Sleep(700); }  // until everything is drawn

void Hold(const CDialogProbe& probe, const char* file, CSize size) {
  if (size.m_nWidth > 0) {
    SetWindowPos(probe.Window(), nullptr, 20, 20, size.m_nWidth, size.m_nHeight, SWP_NOZORDER);
  }
  Settle();
  RECT place{};
  GetWindowRect(probe.Window(), &place);
  std::ofstream(file) << place.left << ' ' << place.top << ' ' << place.right - place.left << ' '
                      << place.bottom - place.top << std::endl;
  Eventually([file] { return !std::ifstream(file).good(); }, "end of the picture");
}

void Show(const CScene& scene, const char* file, CSize size) {
  Drive(scene.m_fnOpen, [&] {
    const auto probe = CDialogProbe::WaitFor(scene.m_szCaption);
    if (scene.m_fnPrepare) scene.m_fnPrepare(probe);
    Hold(CDialogProbe::WaitFor(scene.m_szCaption), file, size);
    throw std::runtime_error("");  // closes what is open
  });
}

void OpenBrowser() {
  CDataItem row;
  CLoadDataTable::VisitDataBase(DataFolder(), row, kEverything);
}

void SearchBeams(const CDialogProbe& probe) {
  probe.SelectNode(IDC_TREE, L"热轧普通工字钢");
  probe.Choose(IDC_SEARCH_COLUMN, L"No.");
  probe.Choose(IDC_SEARCH_OPERATOR, L"＝");
  probe.SetText(IDC_SEARCH_VALUE, L"I2");
  SendMessageW(probe.Control(IDC_SEARCH), BM_CLICK, 0, 0);
  probe.ClickHeader(IDC_LIST, 2);
  probe.SelectItem(IDC_LIST, 1);
}

void OpenProperty(const wchar_t* table, int editMode) {
  CPropertyDlg dialog;
  dialog.m_item.m_strTableName = dialog.m_strTableName = table;
  CLoadDataTable::GetDefaultDataItem(dialog.m_item);
  dialog.m_nEditMode = editMode;
  dialog.DoModal();
}

void OpenRolledProperty() {
  CPropertyDlg dialog;
  dialog.m_strTableName = L"热轧不等边角钢长边组合";
  CStringArray numbers;
  CLoadDataTable::GetSysTemItemNo(dialog.m_strTableName, numbers);
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(dialog.m_strTableName, numbers[20]);
  dialog.m_item = CDataItem(orv3::WithSpacing(row, L"8"));
  dialog.DoModal();
}

// Starts changing the value of a line.
std::function<void(const CDialogProbe&)> Edit(int line) {
  return [line](const CDialogProbe& probe) {
    probe.SelectItem(IDC_PROPERTY_GRID, line);
    PostMessageW(probe.Control(IDC_PROPERTY_GRID), WM_KEYDOWN, VK_F2, 1);
  };
}

void OpenColumns() {
  CDataTable table;
  table.SetSaveTablePath(DataFolder());
  table.SetTableName(L"热轧普通工字钢");
  table.GetSystemJmTable();
  orv3::CColumnModel model(table.m_Title, L"");
  CViewColDlg(model).DoModal();
}

void OpenTableNames() {
  CStringArray names;
  CLoadDataTable::GetTableNameArray(kEverything, names);
  CStringArray checked;
  checked.Add(names[0]);
  checked.Add(names[8]);
  orv3::CTableNameModel model(names, checked);
  CSelTableNameDlg(model).DoModal();
}

void OpenUserTables() {
  CDataItem row;
  CLoadDataTable::VisitSelJMDlg(L"user-tables/", row, kEverything);
}

void MakeUserTable(const CDialogProbe& probe) {
  probe.Choose(IDC_TEMPLATE, L"自定义对称H型钢");
  probe.Click(IDC_TABLE_NEW);
  Eventually([&] { return probe.Count(IDC_TABLE_LIST) == 1; }, "a table");
  probe.Click(IDC_ROW_ADD);
  const auto property = CDialogProbe::WaitFor(L"截面特性参数设置");
  property.Click(IDOK);
  property.WaitUntilClosed();
}

void OpenProgress() {
  orv3::CProgressDlg progress(nullptr);
  progress.Show(L"正在导入截面数据", 3, 8);
  for (int i = 0; i < 400; ++i) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(5);
  }
}

std::map<std::string, CScene> Scenes() {
  return {
      {"browser", {OpenBrowser, kBrowser, SearchBeams}},
      {"property-edit",
       {[] { OpenProperty(L"自定义对称H型钢", 1); }, L"截面特性参数设置", Edit(2)}},
      {"property-lattice", {[] { OpenProperty(L"四肢格构柱", 1); }, L"截面特性参数设置", Edit(3)}},
      {"property-show", {OpenRolledProperty, L"截面特性参数查询", nullptr}},
      {"number", {[] { CSectSignSet().DoModal(); }, L"型钢型号输入", nullptr}},
      {"spacing", {[] { CSteelZHZJDlg().DoModal(); }, L"型钢组合肢距输入", nullptr}},
      {"columns", {OpenColumns, L"选择显示项", nullptr}},
      {"table-names", {OpenTableNames, L"选择截面表", nullptr}},
      {"user-tables", {OpenUserTables, L"用户截面库", MakeUserTable}},
      {"progress", {OpenProgress, L"Orvo提醒您", nullptr}},
  };
}

}  // namespace

int main(int argc, char** argv) {
  const auto scenes = Scenes();
  const auto found = argc < 3 ? scenes.end() : scenes.find(argv[1]);
  if (found == scenes.end()) {
    std::cerr << "usage: dialog_pictures NAME FILE [WIDTH HEIGHT], NAME one of:";
    for (const auto& scene : scenes) std::cerr << ' ' << scene.first;
    std::cerr << '\n';
    return 2;
  }
  CSize size;
  if (argc > 4) size = {std::atoi(argv[3]), std::atoi(argv[4])};
  CLoadDataTable::SetOrvoPrgPath(DataFolder());
  Show(found->second, argv[2], size);
  return 0;
}
