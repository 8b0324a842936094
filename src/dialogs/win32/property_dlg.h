// CPropertyDlg: shows or edits the parameters of one section row.
#pragma once

#include <memory>

#include "dialogs/win32/edit_cmb_list.h"
#include "dialogs/win32/kvb_dlg.h"
#include "dialogs/win32/sketch_view.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {
class CPropertyModel;
}

class ORV3CAL_API CPropertyDlg : public CKvbDlg {
 public:
  CPropertyDlg();
  // The dialog of a model that somebody else holds; the fields below are not used then.
  explicit CPropertyDlg(orv3::CPropertyModel& model);
  ~CPropertyDlg() override;

  CDataItem m_item;        // the row: as it is when the dialog opens, as it was edited after OK
  CString m_strTableName;  // of its table
  int m_nEditMode = 0;     // 0: the row is shown; else it can be edited

 private:
  void OnInitDialog() override;
  void OnOK() override;
  void OnCancel() override;
  void OnDpiChanged() override;

  std::unique_ptr<orv3::CPropertyModel> m_pOwnModel;
  orv3::CPropertyModel* m_pModel = nullptr;
  CEditCmbList m_grid;
  orv3::CSketchView m_sketch;
};
