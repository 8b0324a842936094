#include "framework/utf16.h"

#include <cstdint>
#include <type_traits>

namespace orv3 {

std::u16string ToUtf16(std::wstring_view text) {
  std::u16string units;
  for (const wchar_t ch : text) {
    const auto code = std::uint32_t{static_cast<std::make_unsigned_t<wchar_t>>(ch)};
    if (code >= 0x10000) {
      units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10 & 0x3FF));
      units += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    } else {
      units += static_cast<char16_t>(code);
    }
  }
  return units;
}

std::wstring FromUtf16(std::u16string_view units) {
  std::wstring text;
  for (const char16_t unit : units) {
    const bool follows = !text.empty() && unit >= 0xDC00 && unit < 0xE000 &&
                         text.back() >= 0xD800 && text.back() < 0xDC00;
    if (sizeof(wchar_t) > 2 && follows) {
      const auto high = static_cast<std::uint32_t>(text.back()) - 0xD800;
      text.back() = static_cast<wchar_t>(0x10000 + (high << 10) + (unit - 0xDC00U));
    } else {
      text += static_cast<wchar_t>(unit);
    }
  }
  return text;
}

}  // namespace orv3
