// The dialogs that CLoadDataTable opens: the browser and the user table editor.
#include "dialogs/win32/steel_data_base_dlg.h"
#include "dialogs/win32/user_table_dlg.h"
#include "sections/load_data_table.h"

namespace {

constexpr int kLeastCells = 3;  // a number and two sizes: fewer are no section

// Runs a dialog on the tables and hands its row on.
template <class Dialog>
int ChooseRow(const CStringArray& names, const CString& path, CDataItem& item) {
  Dialog dialog;
  dialog.m_strPath = path;
  dialog.m_arrTableName.Append(names);
  dialog.m_item = CDataItem(item);
  if (dialog.DoModal() != IDOK || dialog.m_item.GetItemLength() < kLeastCells) return 0;
  item = dialog.m_item;
  return 1;
}

CStringArray NamesOf(long mask) {
  CStringArray names;
  CLoadDataTable::GetTableNameArray(mask, names);
  return names;
}

}  // namespace

int CLoadDataTable::VisitDataBase(const CString& path, CDataItem& item, long mask) {
  SetOrvoPrgPath(path);
  return VisitDataBase(NamesOf(mask), path, item);
}

int CLoadDataTable::VisitDataBase(const CStringArray& names, const CString& path, CDataItem& item) {
  return ChooseRow<CSteelDataBaseDlg>(names, path, item);
}

int CLoadDataTable::VisitSelJMDlg(const CString& path, CDataItem& item, long mask) {
  SetOrvoPrgPath(path);
  return VisitSelJMDlg(NamesOf(mask), path, item);
}

int CLoadDataTable::VisitSelJMDlg(const CStringArray& names, const CString& path, CDataItem& item) {
  return ChooseRow<CUserTableDlg>(names, path, item);
}
