#include "module/pictures/icon.h"

namespace orv3 {
namespace {

using CBytes = std::vector<std::uint8_t>;

constexpr std::uint32_t kDirectory = 6, kEntry = 16, kHeader = 40;
constexpr std::uint32_t kWhite = 0xFFFFFF;

void Put(CBytes& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

std::uint32_t SideOf(const CBitmap& picture) {
  return static_cast<std::uint32_t>(picture.GetWidth());
}

std::uint32_t MaskRow(std::uint32_t side) { return (side + 31) / 32 * 4; }

std::uint32_t LengthOf(std::uint32_t side) { return kHeader + side * (side * 4 + MaskRow(side)); }

void PutEntry(CBytes& out, std::uint32_t side, std::uint32_t offset) {
  Put(out, side & 0xFF, 1);
  Put(out, side & 0xFF, 1);
  Put(out, 0, 2);
  Put(out, 1, 2);
  Put(out, 32, 2);
  Put(out, LengthOf(side), 4);
  Put(out, offset, 4);
}

void PutHeader(CBytes& out, std::uint32_t side) {
  Put(out, kHeader, 4);
  Put(out, side, 4);
  Put(out, side * 2, 4);
  Put(out, 1, 2);
  Put(out, 32, 2);
  for (int i = 0; i < 6; ++i) Put(out, 0, 4);
}

void PutPixels(CBytes& out, const CBitmap& picture) {
  for (int y = picture.GetHeight() - 1; y >= 0; --y) {
    for (int x = 0; x < picture.GetWidth(); ++x) {
      const std::uint32_t color = picture.GetPixel(x, y);
      Put(out, color == kWhite ? 0 : color | 0xFF000000, 4);
    }
  }
}

void PutMask(CBytes& out, const CBitmap& picture) {
  const std::uint32_t row = MaskRow(SideOf(picture));
  for (int y = picture.GetHeight() - 1; y >= 0; --y) {
    CBytes bits(row, 0);
    for (int x = 0; x < picture.GetWidth(); ++x) {
      if (picture.GetPixel(x, y) != kWhite) continue;
      auto& byte = bits[static_cast<std::size_t>(x) / 8];
      byte = static_cast<std::uint8_t>(byte | (0x80U >> (x % 8)));
    }
    out.insert(out.end(), bits.begin(), bits.end());
  }
}

}  // namespace

std::vector<std::uint8_t> ToIco(const std::vector<CBitmap>& pictures) {
  CBytes out;
  const auto count = static_cast<std::uint32_t>(pictures.size());
  Put(out, 0, 2);
  Put(out, 1, 2);
  Put(out, count, 2);
  std::uint32_t offset = kDirectory + count * kEntry;
  for (const CBitmap& picture : pictures) {
    PutEntry(out, SideOf(picture), offset);
    offset += LengthOf(SideOf(picture));
  }
  for (const CBitmap& picture : pictures) {
    PutHeader(out, SideOf(picture));
    PutPixels(out, picture);
    PutMask(out, picture);
  }
  return out;
}

}  // namespace orv3
