// CCheckList: a list of names with a box before each, on a list view. What is marked is asked of
// the model each time, so that marks which follow one another are shown together.
#pragma once

#include <functional>

#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"

namespace orv3 {

class CCheckList {
 public:
  struct CSource {
    std::function<int()> m_fnCount;
    std::function<CString(int item)> m_fnText;
    std::function<bool(int item)> m_fnIsChecked;
    std::function<void(int item, bool checked)> m_fnCheck;
    std::function<void()> m_fnChanged;  // the marks are other ones
  };

  void Attach(HWND list, CSource source);
  void Fill();                        // names and marks anew
  void ShowMarks();                   // the marks anew
  void FitColumn();                   // to the list's width
  void OnItemChanged(NMHDR& header);  // for the dialog's LVN_ITEMCHANGED

 private:
  HWND m_hList = nullptr;
  CSource m_source;
  bool m_bFilling = false;
};

}  // namespace orv3
