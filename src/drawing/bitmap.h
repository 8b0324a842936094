// CBitmap: a picture in memory.
#pragma once

#include <cstdint>
#include <vector>

#include "framework/export.h"

// Rows from the top, pixels from the left, each 0x00RRGGBB.
class ORV3CAL_API CBitmap {
 public:
  CBitmap() = default;
  // A white picture; CInvalidArgException unless both sizes are 1..4096 pixels.
  CBitmap(int width, int height);

  int GetWidth() const noexcept { return m_nWidth; }
  int GetHeight() const noexcept { return m_nHeight; }
  // CInvalidArgException outside the picture.
  std::uint32_t GetPixel(int x, int y) const;
  void SetPixel(int x, int y, std::uint32_t color);

  // The picture as a Windows bitmap file: 24 bits a pixel, uncompressed, rows from the bottom.
  std::vector<std::uint8_t> ToBmp() const;

 private:
  int m_nWidth = 0;
  int m_nHeight = 0;
  std::vector<std::uint32_t> m_arrPixel;
};
