// CViewColDlg: chooses the columns of a table that the view shows.
#pragma once

#include "dialogs/win32/check_list.h"
#include "dialogs/win32/kvb_dlg.h"
#include "framework/export.h"

namespace orv3 {
class CColumnModel;
}

class ORV3CAL_API CViewColDlg : public CKvbDlg {
 public:
  explicit CViewColDlg(orv3::CColumnModel& model);  // the answer is in the model after OK

 private:
  void OnInitDialog() override;
  void OnOK() override;
  void OnSize() override { m_list.FitColumn(); }
  void MarkAll(bool checked);
  void ShowCount();

  orv3::CColumnModel& m_model;
  orv3::CCheckList m_list;
};
