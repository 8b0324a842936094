#include "dialogs/win32/gdi.h"

#include <cstdint>

namespace orv3 {

CGdiBitmap ToGdiBitmap(const CBitmap& picture) {
  if (picture.GetWidth() == 0) return {};
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = picture.GetWidth();
  info.bmiHeader.biHeight = -picture.GetHeight();  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  CGdiBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap.Get() == nullptr) return {};
  auto* pixel = static_cast<std::uint32_t*>(bits);
  for (int y = 0; y < picture.GetHeight(); ++y) {
    for (int x = 0; x < picture.GetWidth(); ++x) *pixel++ = picture.GetPixel(x, y);
  }
  return bitmap;
}

}  // namespace orv3
