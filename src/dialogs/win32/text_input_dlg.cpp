#include "dialogs/win32/text_input_dlg.h"

#include "dialogs/win32/resource.h"

CTextInputDlg::CTextInputDlg(const CString& caption, const CString& label, const CString& text)
    : CKvbDlg(IDD_TEXT_INPUT), m_strText(text), m_strCaption(caption), m_strLabel(label) {}

void CTextInputDlg::OnInitDialog() {
  SetWindowTextW(Window(), m_strCaption.GetString());
  SetText(IDC_INPUT_LABEL, m_strLabel);
  SetText(IDC_INPUT, m_strText);
  Focus(IDC_INPUT);
}

void CTextInputDlg::OnOK() {
  m_strText = TextOf(IDC_INPUT).Trim();
  CKvbDlg::OnOK();
}
