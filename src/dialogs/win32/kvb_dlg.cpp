#include "dialogs/win32/kvb_dlg.h"

#include <algorithm>
#include <exception>
#include <new>
#include <vector>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/win32/dialog_help.h"
#include "dialogs/win32/dpi.h"
#include "dialogs/win32/host_services.h"
#include "dialogs/win32/placement.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/resource_scope.h"
#include "framework/message.h"
#include "framework/utf8.h"

using namespace orv3;

namespace {

constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED
constexpr int kTemplatePoints = 9;    // font size of every template

LOGFONTW FontOf(HWND window) {
  LOGFONTW font{};
  const auto handle = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  GetObjectW(handle, sizeof(font), &font);
  return font;
}

// The window's size around a client area of the given one.
SIZE FrameSize(HWND window, SIZE client) {
  RECT outer{};
  RECT inner{};
  GetWindowRect(window, &outer);
  GetClientRect(window, &inner);
  return {client.cx + (outer.right - outer.left) - inner.right,
          client.cy + (outer.bottom - outer.top) - inner.bottom};
}

// Pictures stand on white, as the sketches are drawn.
bool IsPicture(HWND control) {
  return (GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK) == SS_BITMAP;
}

}  // namespace

INT_PTR CKvbDlg::DoModal(HWND owner) {
  const CResourceScope resources;
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
  return DialogBoxParamW(CResourceScope::Current(), MAKEINTRESOURCEW(m_nTemplate),
                         owner != nullptr ? owner : OwnerWindow(), DialogProc,
                         reinterpret_cast<LPARAM>(this));
}

void CKvbDlg::OnCommand(int id, int code, CHandler handler) {
  m_mapCommand[{id, code}] = std::move(handler);
}

void CKvbDlg::OnNotify(int id, int code, CNotifyHandler handler) {
  m_mapNotify[{id, code}] = std::move(handler);
}

void CKvbDlg::OnHelp() {
  const CDialogHelp& help = HelpOf(m_nTemplate);
  ShowHostHelp(help.m_szTopic, help.m_szText);
}

void CKvbDlg::Focus(int id) {
  SendMessageW(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
  m_bFocusSet = true;
}

CString CKvbDlg::TextOf(int id) const {
  const HWND control = Control(id);
  const int length = GetWindowTextLengthW(control);
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
  const int read = GetWindowTextW(control, text.data(), length + 1);
  return {text.data(), read};
}

void CKvbDlg::Enable(int id, bool enable) {
  const HWND control = Control(id);
  // The keyboard must not stay on a control that is no longer there for it.
  if (!enable && GetFocus() == control) SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(control, enable);
}

int CKvbDlg::Scaled(int pixels) const { return ScaleToDpi(pixels, m_nDpi); }

// Nothing is thrown through Windows: what goes wrong in a handler is told, and the dialog stays.
INT_PTR CALLBACK CKvbDlg::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<CKvbDlg*>(lParam)->m_hWnd = window;
  }
  auto* dialog = reinterpret_cast<CKvbDlg*>(GetWindowLongPtrW(window, DWLP_USER));
  if (dialog == nullptr) return FALSE;
  try {
    return dialog->Handle(message, wParam, lParam);
  } catch (const std::bad_alloc&) {
    ShowMessage(texts::kReminder, texts::kNoMemory);
  } catch (const std::exception& error) {
    ShowMessage(texts::kReminder, texts::kUnforeseen + FromUtf8(error.what()));
  }
  return TRUE;
}

INT_PTR CKvbDlg::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      Initialise();
      return m_bFocusSet ? FALSE : TRUE;
    case WM_COMMAND:
      return HandleCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY:
      return HandleNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_SIZE:
      if (m_bReady && wParam != SIZE_MINIMIZED) {
        m_layout.Arrange();
        OnSize();
      }
      return FALSE;
    case WM_GETMINMAXINFO:
      if (m_bReady) {
        const SIZE size = FrameSize(m_hWnd, m_layout.TemplateSize());
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {size.cx, size.cy};
      }
      return FALSE;
    case kDpiChanged:
      ChangeDpi(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
      return IsPicture(reinterpret_cast<HWND>(lParam))
                 ? reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH))
                 : FALSE;
    case WM_HELP:
      OnHelp();
      return TRUE;
    case WM_DESTROY:
      KeepPlacement();
      m_bReady = false;
      return FALSE;
    default:
      return FALSE;
  }
}

INT_PTR CKvbDlg::HandleCommand(int id, int code) {
  const auto found = m_mapCommand.find({id, code});
  if (found != m_mapCommand.end()) {
    found->second();
  } else if (id == IDOK && code == BN_CLICKED) {
    OnOK();
  } else if (id == IDCANCEL && code == BN_CLICKED) {
    OnCancel();
  } else if (id == IDC_HELP_BUTTON && code == BN_CLICKED) {
    OnHelp();
  } else {
    return FALSE;
  }
  return TRUE;
}

INT_PTR CKvbDlg::HandleNotify(NMHDR& header) {
  const auto found =
      m_mapNotify.find({static_cast<int>(header.idFrom), static_cast<int>(header.code)});
  if (found == m_mapNotify.end()) return FALSE;
  Answer(found->second(header));
  return TRUE;
}

void CKvbDlg::Initialise() {
  m_bReady = m_bFocusSet = false;
  DisableOwnScaling(m_hWnd);
  m_layout.Attach(m_hWnd);
  SetIcons();
  SetUpDpi();
  OnInitDialog();
  m_bReady = true;
  RestorePlacement();
}

// The system made the dialog for the resolution of its choice, which the font's height tells.
void CKvbDlg::SetUpDpi() {
  const int made = -FontOf(m_hWnd).lfHeight;
  m_nDpi = WindowDpi(m_hWnd);
  const int wanted = MulDiv(kTemplatePoints, m_nDpi, 72);
  if (made <= 0 || made == wanted) return;
  UseFont(wanted);
  m_layout.Scale(wanted, made);
  const SIZE size = FrameSize(m_hWnd, m_layout.TemplateSize());
  SetWindowPos(m_hWnd, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  m_layout.Arrange();
}

void CKvbDlg::SetIcons() {
  struct CIcon {
    WPARAM m_nKind;
    int m_nWidth, m_nHeight;
  };
  for (const CIcon& icon :
       {CIcon{ICON_SMALL, SM_CXSMICON, SM_CYSMICON}, CIcon{ICON_BIG, SM_CXICON, SM_CYICON}}) {
    const HANDLE loaded =
        LoadImageW(CResourceScope::Current(), MAKEINTRESOURCEW(IDI_ORV3CAL), IMAGE_ICON,
                   GetSystemMetrics(icon.m_nWidth), GetSystemMetrics(icon.m_nHeight), LR_SHARED);
    SendMessageW(m_hWnd, WM_SETICON, icon.m_nKind, reinterpret_cast<LPARAM>(loaded));
  }
}

void CKvbDlg::RestorePlacement() {
  CPlacement kept;
  if (m_szPlacement == nullptr || !LoadPlacement(m_szPlacement, kept)) return;
  const SIZE least = FrameSize(m_hWnd, m_layout.TemplateSize());
  const LONG width = std::max<LONG>(Scaled(kept.m_nWidth), least.cx);
  const LONG height = std::max<LONG>(Scaled(kept.m_nHeight), least.cy);
  const RECT frame =
      WithinScreen({kept.m_nLeft, kept.m_nTop, kept.m_nLeft + width, kept.m_nTop + height});
  SetWindowPos(m_hWnd, nullptr, frame.left, frame.top, frame.right - frame.left,
               frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CKvbDlg::KeepPlacement() const {
  if (m_szPlacement == nullptr || !m_bReady) return;
  WINDOWPLACEMENT place{};
  place.length = sizeof(place);
  if (!GetWindowPlacement(m_hWnd, &place)) return;
  const RECT& r = place.rcNormalPosition;
  SavePlacement(m_szPlacement, {static_cast<int>(r.left), static_cast<int>(r.top),
                                ScaleBy(r.right - r.left, kDesignDpi, m_nDpi),
                                ScaleBy(r.bottom - r.top, kDesignDpi, m_nDpi)});
}

// The dialog has come to a monitor of another resolution.
void CKvbDlg::ChangeDpi(int dpi, const RECT& frame) {
  if (!m_bReady || dpi == m_nDpi) return;
  const int before = std::exchange(m_nDpi, dpi);
  UseFont(MulDiv(kTemplatePoints, dpi, 72));
  m_layout.Scale(dpi, before);
  SetWindowPos(m_hWnd, nullptr, frame.left, frame.top, frame.right - frame.left,
               frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
  m_layout.Arrange();
  OnDpiChanged();
  RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// The dialog's font at another height, which is given and not scaled from the last one: a dialog
// need not have taken the font that it was sent.
void CKvbDlg::UseFont(int height) {
  LOGFONTW font = FontOf(m_hWnd);
  font.lfHeight = -height;
  CGdiFont scaled(CreateFontIndirectW(&font));
  for (HWND child = GetWindow(m_hWnd, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(scaled.Get()), TRUE);
  }
  SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(scaled.Get()), FALSE);
  m_font = std::move(scaled);  // the one before, now unused, goes with `scaled`
}
