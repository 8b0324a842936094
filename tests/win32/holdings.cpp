#include "win32/holdings.h"

#include <gtest/gtest.h>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <algorithm>
#include <array>

namespace {

int GdiObjects() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) {
    return static_cast<int>(told);
  }
  int count = 0;
  for (UINT_PTR handle = 1; handle < 0x10000; ++handle) {
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
  }
  return count;
}

int UserObjects() {
  if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) {
    return static_cast<int>(told);
  }
  int count = 0;
  for (UINT_PTR handle = 0x20; handle < 0x10000; handle += 2) {
    const HWND window = reinterpret_cast<HWND>(handle);
    DWORD process = 0;
    if (IsWindow(window)) GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() || IsMenu(reinterpret_cast<HMENU>(handle))) ++count;
  }
  return count;
}

int KernelHandles() {
  int count = 0;
  for (UINT_PTR handle = 4; handle < 0x8000; handle += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
  }
  return count;
}

std::size_t HeapBytes() {
  std::array<HANDLE, 64> heaps{};
  const DWORD count = std::min<DWORD>(GetProcessHeaps(heaps.size(), heaps.data()), heaps.size());
  std::size_t bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry)) {
      if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
  }
  return bytes;
}

}  // namespace

CHoldings Holdings() { return {UserObjects(), GdiObjects(), KernelHandles(), HeapBytes()}; }

void FillStockOfDrawingContexts() {
  std::array<HDC, 16> contexts{};
  for (HDC& context : contexts) context = GetDC(nullptr);
  for (const HDC context : contexts) ReleaseDC(nullptr, context);
}

void ExpectCountsSeeNewObjects() {
  const CHoldings before = Holdings();
  const HPEN pen = CreatePen(PS_SOLID, 1, 0);
  const HWND window =
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const CHoldings after = Holdings();
  EXPECT_GT(after.drawing, before.drawing);
  EXPECT_GT(after.windows, before.windows);
  EXPECT_GT(after.handles, before.handles);
  DeleteObject(pen);
  DestroyWindow(window);
  CloseHandle(event);
}

std::ostream& operator<<(std::ostream& out, const CHoldings& holdings) {
  return out << holdings.windows << " windows, " << holdings.drawing << " drawing objects, "
             << holdings.handles << " handles, " << holdings.heap << " bytes";
}
