// CUserTableDlg: the editor of the user's own section tables: makes, fills, renames and deletes
// them, and chooses one row. The store changes when the tables are saved; until then steps can be
// undone.
#pragma once

#include <memory>

#include "dialogs/win32/edit_cmb_list.h"
#include "dialogs/win32/kvb_dlg.h"
#include "dialogs/win32/sketch_view.h"
#include "dialogs/win32/windows_user.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {
class CUserTableModel;
}

class ORV3CAL_API CUserTableDlg : public CKvbDlg {
 public:
  CUserTableDlg();
  ~CUserTableDlg() override;

  CString m_strPath;            // the data directory
  CStringArray m_arrTableName;  // the tables offered
  CDataItem m_item;             // the initial choice; the chosen row after OK

 private:
  using CCommand = bool (orv3::CUserTableModel::*)();

  void OnInitDialog() override;
  void OnOK() override;
  void OnCancel() override;
  void OnSize() override;
  void OnDpiChanged() override;

  void MapTables();
  void MapRows();
  void MapColumns();
  void MapUndo();
  void HoldControls();

  void Do(CCommand command);
  void NewTable();
  void SetColumnCell(int line, int column, const CString& text);
  void DeleteColumn();
  bool OnRowKey(int key);
  void CopyRowText();

  void ShowAll();  // everything anew, as after a command
  void ShowTables();
  void ShowTable();
  void ShowRows();
  void ShowColumns();
  void ShowCommands();

  std::unique_ptr<orv3::CWindowsUser> m_pUser;
  std::unique_ptr<orv3::CUserTableModel> m_pModel;
  CEditCmbList m_columns;
  orv3::CSketchView m_sketch;
  bool m_bShowing = false;  // the dialog itself moves the selection
};
