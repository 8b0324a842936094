// Owners of drawing objects.
#pragma once

#include <utility>

#include "dialogs/win32/win32_api.h"
#include "drawing/bitmap.h"

namespace orv3 {

// A font or bitmap, deleted with its owner.
template <class Handle>
class CGdiObject {
 public:
  CGdiObject() = default;
  explicit CGdiObject(Handle handle) noexcept : m_handle(handle) {}
  CGdiObject(CGdiObject&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  CGdiObject& operator=(CGdiObject&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~CGdiObject() {
    if (m_handle != nullptr) DeleteObject(m_handle);
  }
  Handle Get() const noexcept { return m_handle; }

 private:
  Handle m_handle = nullptr;
};

using CGdiFont = CGdiObject<HFONT>;
using CGdiBitmap = CGdiObject<HBITMAP>;

// The drawing context of a window's client area (of the screen, for a null window).
class CWindowDc {
 public:
  explicit CWindowDc(HWND window) noexcept : m_window(window), m_dc(GetDC(window)) {}
  CWindowDc(const CWindowDc&) = delete;
  CWindowDc& operator=(const CWindowDc&) = delete;
  ~CWindowDc() { ReleaseDC(m_window, m_dc); }
  HDC Get() const noexcept { return m_dc; }

 private:
  HWND m_window;
  HDC m_dc;
};

class CImages {
 public:
  CImages() = default;
  explicit CImages(HIMAGELIST list) noexcept : m_list(list) {}
  CImages(CImages&& other) noexcept : m_list(std::exchange(other.m_list, nullptr)) {}
  CImages& operator=(CImages&& other) noexcept {
    std::swap(m_list, other.m_list);
    return *this;
  }
  ~CImages() {
    if (m_list != nullptr) ImageList_Destroy(m_list);
  }
  HIMAGELIST Get() const noexcept { return m_list; }

 private:
  HIMAGELIST m_list = nullptr;
};

// The hour-glass while a long step runs.
class CWaitCursor {
 public:
  CWaitCursor() noexcept : m_before(SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)))) {}
  CWaitCursor(const CWaitCursor&) = delete;
  CWaitCursor& operator=(const CWaitCursor&) = delete;
  ~CWaitCursor() { SetCursor(m_before); }

 private:
  HCURSOR m_before;
};

// The picture as a device-independent bitmap of 32 bits a pixel; none for an empty picture.
CGdiBitmap ToGdiBitmap(const CBitmap& picture);

}  // namespace orv3
