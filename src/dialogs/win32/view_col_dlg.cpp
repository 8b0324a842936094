#include "dialogs/win32/view_col_dlg.h"

#include "dialogs/model/column_model.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/windows_user.h"

using namespace orv3;

CViewColDlg::CViewColDlg(CColumnModel& model) : CKvbDlg(IDD_VIEW_COLUMNS), m_model(model) {
  OnClick(IDC_ALL, [this] { MarkAll(true); });
  OnClick(IDC_NONE, [this] { MarkAll(false); });
  OnNotify(IDC_COLUMN_LIST, LVN_ITEMCHANGED, [this](NMHDR& header) {
    m_list.OnItemChanged(header);
    return 0;
  });
}

void CViewColDlg::OnInitDialog() {
  CCheckList::CSource source;
  source.m_fnCount = [this] { return m_model.Count(); };
  source.m_fnText = [this](int item) { return m_model.Text(item); };
  source.m_fnIsChecked = [this](int item) { return m_model.IsChecked(item); };
  source.m_fnCheck = [this](int item, bool checked) { m_model.Check(item, checked); };
  source.m_fnChanged = [this] { ShowCount(); };
  m_list.Attach(Control(IDC_COLUMN_LIST), std::move(source));

  Hold(IDC_COLUMN_LIST, HoldAll);
  Hold(IDC_COUNT, HoldLeft | HoldBottom | HoldRight);
  for (const int id : {IDC_ALL, IDC_NONE}) Hold(id, HoldTop | HoldRight);
  for (const int id : {IDOK, IDCANCEL, IDC_HELP_BUTTON}) Hold(id, HoldRight | HoldBottom);
  Remember(L"ViewColumns");
  Focus(IDC_COLUMN_LIST);
}

void CViewColDlg::OnOK() {
  CWindowsUser user;
  if (m_model.Ok(user)) CKvbDlg::OnOK();
}

void CViewColDlg::MarkAll(bool checked) {
  m_model.CheckAll(checked);
  m_list.ShowMarks();
}

void CViewColDlg::ShowCount() {
  SetText(IDC_COUNT, texts::kColumnsChecked + CString(std::to_wstring(m_model.CheckedCount())) +
                         texts::kColumns + texts::kComma + texts::kAll +
                         CString(std::to_wstring(m_model.Count())) + texts::kColumns);
}
