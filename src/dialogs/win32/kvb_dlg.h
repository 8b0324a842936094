// CKvbDlg: the base of the library's dialogs. A modal dialog from a template of the library's own,
// with a map from messages to members, controls that follow the dialog's size, and a place and size
// that are remembered.
//
// A derived dialog fills the map in its constructor, sets up its controls in OnInitDialog, and
// gives its answer in members that the caller reads after DoModal has returned IDOK. Windows and
// messages belong to the thread that calls DoModal.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include "dialogs/win32/dialog_layout.h"
#include "dialogs/win32/gdi.h"
#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"
#include "framework/export.h"

class ORV3CAL_API CKvbDlg {
 public:
  explicit CKvbDlg(int templateId) : m_nTemplate(templateId) {}
  CKvbDlg(const CKvbDlg&) = delete;
  CKvbDlg& operator=(const CKvbDlg&) = delete;
  virtual ~CKvbDlg() = default;

  // Shows the dialog above `owner` (null: the active window or the host's) and waits for its end.
  // IDOK or IDCANCEL; -1 when the dialog cannot be made.
  INT_PTR DoModal(HWND owner = nullptr);

 protected:
  using CHandler = std::function<void()>;
  using CNotifyHandler = std::function<LRESULT(NMHDR&)>;

  // --- The message map: filled by the constructor -----------------------------------------------
  void OnClick(int id, CHandler handler) { OnCommand(id, BN_CLICKED, std::move(handler)); }
  void OnCommand(int id, int code, CHandler handler);
  void OnNotify(int id, int code, CNotifyHandler handler);

  // --- Steps of a dialog's life, for derived dialogs to replace ---------------------------------
  virtual void OnInitDialog() {}
  virtual void OnOK() { EndDialog(IDOK); }
  virtual void OnCancel() { EndDialog(IDCANCEL); }
  virtual void OnHelp();
  virtual void OnSize() {}        // controls have been placed for another size
  virtual void OnDpiChanged() {}  // controls have been scaled: images and columns follow here

  // --- For OnInitDialog -------------------------------------------------------------------------
  void Hold(int id, unsigned sides) { m_layout.Hold(id, sides); }
  // The dialog keeps its place and size under this name.
  void Remember(const wchar_t* name) { m_szPlacement = name; }
  void Focus(int id);

  // --- Controls ---------------------------------------------------------------------------------
  HWND Window() const noexcept { return m_hWnd; }
  HWND Control(int id) const { return GetDlgItem(m_hWnd, id); }
  CString TextOf(int id) const;
  void SetText(int id, const CString& text) { SetDlgItemTextW(m_hWnd, id, text.GetString()); }
  void Enable(int id, bool enable);
  void EndDialog(int result) { ::EndDialog(m_hWnd, result); }
  int Dpi() const noexcept { return m_nDpi; }
  int Scaled(int pixels) const;  // pixels at 96 dpi

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR HandleCommand(int id, int code);
  INT_PTR HandleNotify(NMHDR& header);
  void Initialise();
  void SetUpDpi();
  void SetIcons();
  void RestorePlacement();
  void KeepPlacement() const;
  void ChangeDpi(int dpi, const RECT& frame);
  void UseFont(int height);  // pixels
  void Answer(LRESULT result) { SetWindowLongPtrW(m_hWnd, DWLP_MSGRESULT, result); }

  using CEvent = std::pair<int, int>;  // control and notification code

  int m_nTemplate;
  HWND m_hWnd = nullptr;
  std::map<CEvent, CHandler> m_mapCommand;
  std::map<CEvent, CNotifyHandler> m_mapNotify;
  orv3::CDialogLayout m_layout;
  orv3::CGdiFont m_font;
  const wchar_t* m_szPlacement = nullptr;
  int m_nDpi = 96;
  bool m_bReady = false;
  bool m_bFocusSet = false;
};
