// Screen resolution: sizes are given in pixels at 96 dpi and scaled to the monitor's.
#pragma once

#include "dialogs/win32/win32_api.h"

namespace orv3 {

inline constexpr int kDesignDpi = 96;

// Dots per inch at which the window is drawn.
int WindowDpi(HWND window);

inline int ScaleBy(int pixels, int to, int from) { return MulDiv(pixels, to, from); }
inline int ScaleToDpi(int pixels, int dpi) { return ScaleBy(pixels, dpi, kDesignDpi); }

// Keeps the system from scaling a dialog's controls by itself: CKvbDlg does.
void DisableOwnScaling(HWND dialog);

}  // namespace orv3
