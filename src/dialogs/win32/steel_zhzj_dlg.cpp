#include "dialogs/win32/steel_zhzj_dlg.h"

#include "dialogs/model/spacing_model.h"
#include "dialogs/win32/resource.h"

CSteelZHZJDlg::CSteelZHZJDlg() : CKvbDlg(IDD_SPACING) {}

void CSteelZHZJDlg::OnInitDialog() {
  const orv3::CSpacingModel model(m_nKind, m_strSpacing);
  SetText(IDC_SPACING_LABEL, model.Label());
  for (const CString& choice : model.Choices()) {
    SendMessageW(Control(IDC_SPACING), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(choice.GetString()));
  }
  SendMessageW(Control(IDC_SPACING), CB_SETCURSEL, static_cast<WPARAM>(model.Selected()), 0);
  Focus(IDC_SPACING);
}

void CSteelZHZJDlg::OnOK() {
  orv3::CSpacingModel model(m_nKind, m_strSpacing);
  if (!model.Ok(TextOf(IDC_SPACING))) return;
  m_strSpacing = model.Spacing();
  CKvbDlg::OnOK();
}
