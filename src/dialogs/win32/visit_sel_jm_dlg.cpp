// CLoadDataTable's ways to the user table editor.
#include "dialogs/win32/choose_row.h"
#include "dialogs/win32/user_table_dlg.h"

int CLoadDataTable::VisitSelJMDlg(const CString& path, CDataItem& item, long mask) {
  SetOrvoPrgPath(path);
  return VisitSelJMDlg(orv3::TableNamesOf(mask), path, item);
}

int CLoadDataTable::VisitSelJMDlg(const CStringArray& names, const CString& path, CDataItem& item) {
  return orv3::ChooseRow<CUserTableDlg>(names, path, item);
}
