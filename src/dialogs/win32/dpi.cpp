#include "dialogs/win32/dpi.h"

#include "dialogs/win32/gdi.h"

namespace orv3 {
namespace {

// Functions that came with Windows 10; null on an older one.
template <class Function>
Function* User32(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

}  // namespace

int WindowDpi(HWND window) {
  static auto* const dpiOf = User32<UINT WINAPI(HWND)>("GetDpiForWindow");
  if (dpiOf != nullptr) {
    if (const UINT dpi = dpiOf(window)) return static_cast<int>(dpi);
  }
  const CWindowDc dc(window);
  return GetDeviceCaps(dc.Get(), LOGPIXELSX);
}

void DisableOwnScaling(HWND dialog) {
  static auto* const set = User32<BOOL WINAPI(HWND, int, int)>("SetDialogDpiChangeBehavior");
  constexpr int kDisableAll = 1;
  if (set != nullptr) set(dialog, kDisableAll, kDisableAll);
}

}  // namespace orv3
