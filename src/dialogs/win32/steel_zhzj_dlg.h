// CSteelZHZJDlg: asks for the spacing of the limbs of a combined section.
#pragma once

#include "dialogs/win32/kvb_dlg.h"
#include "framework/cstring.h"
#include "framework/export.h"

class ORV3CAL_API CSteelZHZJDlg : public CKvbDlg {
 public:
  CSteelZHZJDlg();

  int m_nKind = 0;       // not 0: the spacing of a cross, δ; else a
  CString m_strSpacing;  // mm: offered when the dialog opens, the answer after OK

 private:
  void OnInitDialog() override;
  void OnOK() override;
};
