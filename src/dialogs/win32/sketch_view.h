// CSketchView: the sketch of a section style in a picture control.
#pragma once

#include "dialogs/win32/gdi.h"
#include "dialogs/win32/win32_api.h"

namespace orv3 {

class CSketchView {
 public:
  // Puts the sketch into the control (style SS_BITMAP), sharp at the resolution. 0 empties it.
  void Show(HWND control, int resource, int dpi);

 private:
  CGdiBitmap m_bitmap;
};

}  // namespace orv3
