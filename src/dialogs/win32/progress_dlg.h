// CProgressDlg: how far a long step is, shown while it lives. The step runs on the same thread, so
// the window takes no input; its owner is disabled meanwhile.
#pragma once

#include "dialogs/win32/gdi.h"
#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"

namespace orv3 {

class CProgressDlg {
 public:
  explicit CProgressDlg(HWND owner);
  CProgressDlg(const CProgressDlg&) = delete;
  CProgressDlg& operator=(const CProgressDlg&) = delete;
  ~CProgressDlg();

  void Show(const CString& what, int done, int total);

 private:
  HWND m_hOwner;
  HWND m_hWnd;
  CWaitCursor m_cursor;
};

}  // namespace orv3
