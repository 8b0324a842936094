// CSteelDataBaseDlg: the section database browser, with a tree of families and tables, the rows of
// one table, a search, and the choice of one section.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/win32/gdi.h"
#include "dialogs/win32/kvb_dlg.h"
#include "dialogs/win32/sketch_view.h"
#include "dialogs/win32/windows_user.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {
class CBrowserModel;
enum class CListChange;
}  // namespace orv3

class ORV3CAL_API CSteelDataBaseDlg : public CKvbDlg {
 public:
  CSteelDataBaseDlg();
  ~CSteelDataBaseDlg() override;

  CString m_strPath;            // the data directory
  CStringArray m_arrTableName;  // the tables offered
  CDataItem m_item;             // the initial choice; the chosen row after OK

 private:
  using CChange = orv3::CListChange (orv3::CBrowserModel::*)();

  void OnInitDialog() override;
  void OnOK() override;
  void OnDpiChanged() override;

  void MapTree();
  void MapList();
  void MapSearch();
  void MapButtons();
  void HoldControls();

  void FillTree();
  void MakeImages();
  void SelectNode(HTREEITEM item);
  void FillOperators();

  void Do(CChange change);  // a command of the model, and its result shown
  void Show(orv3::CListChange change);
  void RebuildColumns();
  void ShowArrow();
  void ShowRows();
  void ShowTable();
  void ShowCommands();

  void SearchNow();
  void ShowSearch();
  bool OnListKey(int key);
  LRESULT FindItem(const NMHDR& header) const;
  void CopyRow();

  std::unique_ptr<orv3::CWindowsUser> m_pUser;
  std::unique_ptr<orv3::CBrowserModel> m_pModel;
  std::vector<HTREEITEM> m_arrTreeItem;  // one per node of the model
  orv3::CImages m_images;
  orv3::CSketchView m_sketch;
  bool m_bShowing = false;  // the dialog itself moves the selection
};
