#include "dialogs/win32/sect_sign_set.h"

#include "dialogs/model/sign_model.h"
#include "dialogs/win32/resource.h"

CSectSignSet::CSectSignSet() : CKvbDlg(IDD_SECT_SIGN) {}

void CSectSignSet::OnInitDialog() {
  SetText(IDC_SECT_SIGN, m_strSign);
  Focus(IDC_SECT_SIGN);
}

void CSectSignSet::OnOK() {
  orv3::CSignModel model(m_strSign);
  model.Ok(TextOf(IDC_SECT_SIGN));
  m_strSign = model.Number();
  CKvbDlg::OnOK();
}
