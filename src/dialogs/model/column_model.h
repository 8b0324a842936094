// CColumnModel: which columns of a table are shown (CViewColDlg), as a list in the table's order
// with a mark for each.
#pragma once

#include <vector>

#include "dialogs/model/dialog_user.h"
#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_type.h"

namespace orv3 {

class ORV3CAL_API CColumnModel {
 public:
  // `view`: the signs shown now, joined by "<<>>"; empty for all.
  CColumnModel(const CDataTableTitle& title, const CString& view);

  int Count() const noexcept { return static_cast<int>(m_arrItem.size()); }
  CString Text(int item) const;  // title and sign
  bool IsChecked(int item) const;
  // Columns with the same sign are shown and hidden together: check again what is marked.
  void Check(int item, bool checked);
  void CheckAll(bool checked);
  int CheckedCount() const noexcept;

  // False, after a message, when no column is left.
  bool Ok(CDialogUser& user) const;
  // The marked signs joined by "<<>>", each once; empty when all are marked.
  CString View() const;

 private:
  struct CItem {
    CString m_strText;
    CString m_strSign;
    bool m_bChecked;
  };
  std::vector<CItem> m_arrItem;
};

}  // namespace orv3
