#include "dialogs/win32/sketch_view.h"

#include "dialogs/win32/dpi.h"
#include "sections/sketch/sketch.h"

namespace orv3 {

void CSketchView::Show(HWND control, int resource, int dpi) {
  const double scale = static_cast<double>(dpi) / kDesignDpi;
  CGdiBitmap bitmap = resource == 0 ? CGdiBitmap() : ToGdiBitmap(SketchBitmap(resource, scale));
  const auto before = reinterpret_cast<HGDIOBJ>(
      SendMessageW(control, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap.Get())));
  // The first one is the template's; and a control of version 6 may have made a copy of ours.
  if (before != nullptr && before != m_bitmap.Get()) DeleteObject(before);
  m_bitmap = std::move(bitmap);
}

}  // namespace orv3
