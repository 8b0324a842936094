#include "drawing/bitmap.h"

#include "framework/exception.h"

namespace {

constexpr int kMaxSide = 4096;
constexpr std::size_t kHeaderBytes = 54;  // BITMAPFILEHEADER and BITMAPINFOHEADER

std::size_t Pixels(int width, int height) {
  orv3::CheckIndex("CBitmap width", static_cast<long long>(width) - 1, kMaxSide);
  orv3::CheckIndex("CBitmap height", static_cast<long long>(height) - 1, kMaxSide);
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

void PutLittleEndian(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

}  // namespace

CBitmap::CBitmap(int width, int height)
    : m_nWidth(width), m_nHeight(height), m_arrPixel(Pixels(width, height), 0xFFFFFF) {}

std::uint32_t CBitmap::GetPixel(int x, int y) const {
  orv3::CheckIndex("CBitmap x", x, m_nWidth);
  orv3::CheckIndex("CBitmap y", y, m_nHeight);
  return m_arrPixel[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) +
                    static_cast<std::size_t>(x)];
}

void CBitmap::SetPixel(int x, int y, std::uint32_t color) {
  orv3::CheckIndex("CBitmap x", x, m_nWidth);
  orv3::CheckIndex("CBitmap y", y, m_nHeight);
  m_arrPixel[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) +
             static_cast<std::size_t>(x)] = color & 0xFFFFFF;
}

std::vector<std::uint8_t> CBitmap::ToBmp() const {
  const auto rowBytes = static_cast<std::uint32_t>((m_nWidth * 3 + 3) / 4 * 4);
  const std::uint32_t imageBytes = rowBytes * static_cast<std::uint32_t>(m_nHeight);
  std::vector<std::uint8_t> out;
  out.reserve(kHeaderBytes + imageBytes);
  out.push_back('B');
  out.push_back('M');
  PutLittleEndian(out, static_cast<std::uint32_t>(kHeaderBytes) + imageBytes, 4);
  PutLittleEndian(out, 0, 4);
  PutLittleEndian(out, kHeaderBytes, 4);
  PutLittleEndian(out, 40, 4);
  PutLittleEndian(out, static_cast<std::uint32_t>(m_nWidth), 4);
  PutLittleEndian(out, static_cast<std::uint32_t>(m_nHeight), 4);
  PutLittleEndian(out, 1, 2);
  PutLittleEndian(out, 24, 2);
  PutLittleEndian(out, 0, 4);
  PutLittleEndian(out, imageBytes, 4);
  for (int i = 0; i < 4; ++i) PutLittleEndian(out, 0, 4);
  for (int y = m_nHeight - 1; y >= 0; --y) {
    const std::size_t rowStart = out.size();
    for (int x = 0; x < m_nWidth; ++x) PutLittleEndian(out, GetPixel(x, y), 3);
    out.resize(rowStart + rowBytes);
  }
  return out;
}
