#include "dialogs/win32/dialog_layout.h"

#include <algorithm>
#include <iterator>

#include "dialogs/win32/dpi.h"

namespace orv3 {
namespace {

bool IsComboBox(HWND window) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return lstrcmpiW(name, WC_COMBOBOXW) == 0;
}

// A combo box is told its height with the list dropped.
RECT RectOf(HWND control, HWND dialog) {
  RECT rect{};
  if (!IsComboBox(control) ||
      !SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect))) {
    GetWindowRect(control, &rect);
  }
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

// Moves one pair of opposite sides by what the dialog has grown.
void Follow(LONG& low, LONG& high, LONG grown, bool holdLow, bool holdHigh) {
  if (!holdHigh) return;
  high += grown;
  if (!holdLow) low += grown;
}

}  // namespace

void CDialogLayout::Attach(HWND dialog) {
  m_hDialog = dialog;
  RECT client{};
  GetClientRect(dialog, &client);
  m_size = {client.right, client.bottom};
  m_arrControl.clear();
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    m_arrControl.push_back({child, RectOf(child, dialog), HoldLeft | HoldTop});
  }
}

void CDialogLayout::Hold(int id, unsigned sides) {
  const HWND window = GetDlgItem(m_hDialog, id);
  const auto found = std::find_if(m_arrControl.begin(), m_arrControl.end(),
                                  [=](const CControl& c) { return c.m_hWnd == window; });
  if (found != m_arrControl.end()) found->m_nSides = sides;
}

void CDialogLayout::Arrange() const {
  RECT client{};
  GetClientRect(m_hDialog, &client);
  HDWP places = BeginDeferWindowPos(static_cast<int>(m_arrControl.size()));
  for (const CControl& control : m_arrControl) {
    RECT r = control.m_rect;
    const unsigned sides = control.m_nSides;
    Follow(r.left, r.right, client.right - m_size.cx, sides & HoldLeft, sides & HoldRight);
    Follow(r.top, r.bottom, client.bottom - m_size.cy, sides & HoldTop, sides & HoldBottom);
    if (places == nullptr) return;
    places = DeferWindowPos(places, control.m_hWnd, nullptr, r.left, r.top, r.right - r.left,
                            r.bottom - r.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  }
  if (places != nullptr) EndDeferWindowPos(places);
  // Drawn anew as a whole: copied pixels of a control that has moved are not always valid.
  RedrawWindow(m_hDialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CDialogLayout::Scale(int to, int from) {
  m_size = {ScaleBy(m_size.cx, to, from), ScaleBy(m_size.cy, to, from)};
  for (CControl& control : m_arrControl) {
    RECT& r = control.m_rect;
    r = {ScaleBy(r.left, to, from), ScaleBy(r.top, to, from), ScaleBy(r.right, to, from),
         ScaleBy(r.bottom, to, from)};
  }
}

}  // namespace orv3
