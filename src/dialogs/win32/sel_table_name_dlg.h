// CSelTableNameDlg: chooses tables by name; a filter narrows the list.
#pragma once

#include "dialogs/win32/check_list.h"
#include "dialogs/win32/kvb_dlg.h"
#include "framework/export.h"

namespace orv3 {
class CTableNameModel;
}

class ORV3CAL_API CSelTableNameDlg : public CKvbDlg {
 public:
  explicit CSelTableNameDlg(orv3::CTableNameModel& model);  // the answer is in the model after OK

 private:
  void OnInitDialog() override;
  void OnOK() override;
  void OnSize() override { m_list.FitColumn(); }
  void Filter();
  void MarkAll(bool checked);

  orv3::CTableNameModel& m_model;
  orv3::CCheckList m_list;
};
