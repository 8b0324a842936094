#include "dialogs/win32/progress_dlg.h"

#include "dialogs/win32/resource.h"
#include "dialogs/win32/resource_scope.h"

namespace orv3 {
namespace {

INT_PTR CALLBACK NoAnswer(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

}  // namespace

CProgressDlg::CProgressDlg(HWND owner)
    : m_hOwner(owner),
      m_hWnd(CreateDialogParamW(CResourceScope::Current(), MAKEINTRESOURCEW(IDD_PROGRESS), owner,
                                NoAnswer, 0)) {
  if (m_hOwner != nullptr) EnableWindow(m_hOwner, FALSE);
  ShowWindow(m_hWnd, SW_SHOWNOACTIVATE);
}

CProgressDlg::~CProgressDlg() {
  if (m_hOwner != nullptr) EnableWindow(m_hOwner, TRUE);
  DestroyWindow(m_hWnd);
}

void CProgressDlg::Show(const CString& what, int done, int total) {
  SetDlgItemTextW(m_hWnd, IDC_PROGRESS_TEXT, what.GetString());
  const HWND bar = GetDlgItem(m_hWnd, IDC_PROGRESS_BAR);
  SendMessageW(bar, PBM_SETRANGE32, 0, total);
  SendMessageW(bar, PBM_SETPOS, static_cast<WPARAM>(done), 0);
  RedrawWindow(m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

}  // namespace orv3
