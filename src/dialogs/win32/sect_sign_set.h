// CSectSignSet: asks for a new model number when a copied section would repeat one.
#pragma once

#include "dialogs/win32/kvb_dlg.h"
#include "framework/cstring.h"
#include "framework/export.h"

class ORV3CAL_API CSectSignSet : public CKvbDlg {
 public:
  CSectSignSet();

  CString m_strSign;  // the model number: offered when the dialog opens, the answer after OK

 private:
  void OnInitDialog() override;
  void OnOK() override;
};
