// CTableNameModel: which of the tables are meant (CSelTableNameDlg): names that a filter narrows, a
// mark for each. A name that the filter hides keeps its mark.
#pragma once

#include <vector>

#include "dialogs/model/dialog_user.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

class ORV3CAL_API CTableNameModel {
 public:
  // `checked`: the names marked to start with.
  CTableNameModel(const CStringArray& names, const CStringArray& checked);

  // The names that contain the text (blanks at its ends aside; letters of both cases are equal).
  void SetFilter(const CString& text);
  CString Filter() const { return m_strFilter; }
  int Count() const noexcept { return static_cast<int>(m_arrShown.size()); }  // names shown
  CString Name(int item) const;
  bool IsChecked(int item) const;
  void Check(int item, bool checked);
  void CheckAll(bool checked);  // those shown

  int CheckedCount() const noexcept;  // those hidden included
  CString CountText() const;
  // False, after a message, when no name is marked.
  bool Ok(CDialogUser& user) const;
  CStringArray Chosen() const;  // in the order given

 private:
  struct CItem {
    CString m_strName;
    bool m_bChecked;
  };

  CItem& Shown(int item);
  const CItem& Shown(int item) const;

  std::vector<CItem> m_arrItem;
  std::vector<int> m_arrShown;
  CString m_strFilter;
};

}  // namespace orv3
