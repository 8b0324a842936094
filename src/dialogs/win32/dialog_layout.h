// CDialogLayout: where a dialog's controls stand when it is larger than its template.
#pragma once

#include <vector>

#include "dialogs/win32/win32_api.h"

namespace orv3 {

// The sides of the dialog that a control's own sides follow. A control held at both opposite sides
// grows with the dialog; one held at none keeps to the left and the top.
enum CHold : unsigned {
  HoldLeft = 1,
  HoldTop = 2,
  HoldRight = 4,
  HoldBottom = 8,
  HoldAll = HoldLeft | HoldTop | HoldRight | HoldBottom,
};

class CDialogLayout {
 public:
  // Takes the dialog's present size and the places of its controls for those of the template.
  void Attach(HWND dialog);
  void Hold(int id, unsigned sides);
  // Places the controls for the dialog's present size.
  void Arrange() const;
  // Multiplies all sizes of the template by `to` / `from`.
  void Scale(int to, int from);
  // The client area of the template.
  SIZE TemplateSize() const noexcept { return m_size; }

 private:
  struct CControl {
    HWND m_hWnd;
    RECT m_rect;  // a combo box's with its list dropped
    unsigned m_nSides;
  };

  HWND m_hDialog = nullptr;
  SIZE m_size{};
  std::vector<CControl> m_arrControl;
};

}  // namespace orv3
