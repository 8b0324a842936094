// CLoadDataTable's ways to the browser.
#include "dialogs/win32/choose_row.h"
#include "dialogs/win32/steel_data_base_dlg.h"

int CLoadDataTable::VisitDataBase(const CString& path, CDataItem& item, long mask) {
  SetOrvoPrgPath(path);
  return VisitDataBase(orv3::TableNamesOf(mask), path, item);
}

int CLoadDataTable::VisitDataBase(const CStringArray& names, const CString& path, CDataItem& item) {
  return orv3::ChooseRow<CSteelDataBaseDlg>(names, path, item);
}
