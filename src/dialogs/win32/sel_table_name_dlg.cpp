#include "dialogs/win32/sel_table_name_dlg.h"

#include "dialogs/model/table_name_model.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/windows_user.h"

using namespace orv3;

CSelTableNameDlg::CSelTableNameDlg(CTableNameModel& model)
    : CKvbDlg(IDD_TABLE_NAMES), m_model(model) {
  OnCommand(IDC_FILTER, EN_CHANGE, [this] { Filter(); });
  OnClick(IDC_ALL, [this] { MarkAll(true); });
  OnClick(IDC_NONE, [this] { MarkAll(false); });
  OnNotify(IDC_NAME_LIST, LVN_ITEMCHANGED, [this](NMHDR& header) {
    m_list.OnItemChanged(header);
    return 0;
  });
}

void CSelTableNameDlg::OnInitDialog() {
  CCheckList::CSource source;
  source.m_fnCount = [this] { return m_model.Count(); };
  source.m_fnText = [this](int item) { return m_model.Name(item); };
  source.m_fnIsChecked = [this](int item) { return m_model.IsChecked(item); };
  source.m_fnCheck = [this](int item, bool checked) { m_model.Check(item, checked); };
  source.m_fnChanged = [this] { SetText(IDC_COUNT, m_model.CountText()); };
  m_list.Attach(Control(IDC_NAME_LIST), std::move(source));

  Hold(IDC_FILTER, HoldLeft | HoldTop | HoldRight);
  Hold(IDC_NAME_LIST, HoldAll);
  Hold(IDC_COUNT, HoldLeft | HoldBottom | HoldRight);
  for (const int id : {IDC_ALL, IDC_NONE}) Hold(id, HoldTop | HoldRight);
  for (const int id : {IDOK, IDCANCEL, IDC_HELP_BUTTON}) Hold(id, HoldRight | HoldBottom);
  Remember(L"TableNames");
  Focus(IDC_FILTER);
}

void CSelTableNameDlg::OnOK() {
  CWindowsUser user;
  if (m_model.Ok(user)) CKvbDlg::OnOK();
}

void CSelTableNameDlg::Filter() {
  m_model.SetFilter(TextOf(IDC_FILTER));
  m_list.Fill();
}

void CSelTableNameDlg::MarkAll(bool checked) {
  m_model.CheckAll(checked);
  m_list.ShowMarks();
}
