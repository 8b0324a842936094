// CTextInputDlg: asks for one line of text.
#pragma once

#include "dialogs/win32/kvb_dlg.h"
#include "framework/cstring.h"

class CTextInputDlg : public CKvbDlg {
 public:
  CTextInputDlg(const CString& caption, const CString& label, const CString& text);

  CString m_strText;  // offered when the dialog opens, the answer after OK

 private:
  void OnInitDialog() override;
  void OnOK() override;

  CString m_strCaption;
  CString m_strLabel;
};
