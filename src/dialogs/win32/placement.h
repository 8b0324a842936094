// Where a dialog stood and how large it was when it was last closed, kept per user in the registry
// under HKEY_CURRENT_USER\Software\Orv3Cal\<name>.
#pragma once

#include "dialogs/win32/win32_api.h"

namespace orv3 {

// The window's frame: place in screen pixels, size in pixels at 96 dpi.
struct CPlacement {
  int m_nLeft = 0;
  int m_nTop = 0;
  int m_nWidth = 0;
  int m_nHeight = 0;
};

// False when nothing usable is kept.
bool LoadPlacement(const wchar_t* name, CPlacement& placement);
void SavePlacement(const wchar_t* name, const CPlacement& placement);

// The rectangle moved and cut so that it lies within the work area of the nearest monitor.
RECT WithinScreen(RECT frame);

}  // namespace orv3
