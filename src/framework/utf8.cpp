#include "framework/utf8.h"

#include <cstdint>

namespace orv3 {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct CDecoded {
  char32_t code;
  std::size_t length;  // 0: no whole character stands here
};

constexpr bool IsSurrogate(char32_t code) noexcept { return code >= 0xD800 && code <= 0xDFFF; }

CDecoded DecodeUtf8(std::string_view text) noexcept {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const std::uint8_t lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 && lead < 0xF8   ? 4
                             : lead >= 0xE0 && lead < 0xF0 ? 3
                             : lead >= 0xC2 && lead < 0xE0 ? 2
                                                           : 0;
  if (length == 0 || text.size() < length) return {kReplacement, 0};
  char32_t code = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {kReplacement, 0};
    code = (code << 6) | (byte(i) & 0x3FU);
  }
  const char32_t least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
  if (code < least || code > 0x10FFFF || IsSurrogate(code)) return {kReplacement, 0};
  return {code, length};
}

void AppendUtf8(std::string& out, char32_t code) {
  const auto put = [&](char32_t value) { out.push_back(static_cast<char>(value)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | (code >> 6));
    put(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    put(0xE0 | (code >> 12));
    put(0x80 | ((code >> 6) & 0x3F));
    put(0x80 | (code & 0x3F));
  } else {
    put(0xF0 | (code >> 18));
    put(0x80 | ((code >> 12) & 0x3F));
    put(0x80 | ((code >> 6) & 0x3F));
    put(0x80 | (code & 0x3F));
  }
}

void AppendWide(std::wstring& out, char32_t code) {
  if (sizeof(wchar_t) == 2 && code > 0xFFFF) {
    out.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
    out.push_back(static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
  } else {
    out.push_back(static_cast<wchar_t>(code));
  }
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string out;
  out.reserve(text.size() * 2);
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto code = static_cast<char32_t>(text[i]);
    const char32_t low = i + 1 < text.size() ? static_cast<char32_t>(text[i + 1]) : 0;
    if (code >= 0xD800 && code <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF) {
      code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
      ++i;
    }
    AppendUtf8(out, IsSurrogate(code) || code > 0x10FFFF ? kReplacement : code);
  }
  return out;
}

CString FromUtf8(std::string_view text) {
  std::wstring out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const CDecoded decoded = DecodeUtf8(text.substr(i));
    AppendWide(out, decoded.code);
    i += decoded.length ? decoded.length : 1;
  }
  return CString(out);
}

std::string Visible(std::string_view text, bool lines) {
  constexpr char32_t kPictures = 0x2400;  // of U+0000 to U+001F, and behind them of U+007F
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
    if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {  // U+0080 to U+009F
      AppendUtf8(out, kReplacement);
      ++i;
    } else if (byte == 0x7F) {
      AppendUtf8(out, kPictures + 0x21);
    } else if (byte < 0x20 && !(lines && (byte == '\n' || byte == '\t'))) {
      AppendUtf8(out, kPictures + byte);
    } else if (byte < 0x80) {
      out += text[i];
    } else {
      const std::size_t length = DecodeUtf8(text.substr(i)).length;
      if (length == 0) {
        AppendUtf8(out, kReplacement);
      } else {
        out.append(text, i, length);
        i += length - 1;
      }
    }
  }
  return out;
}

bool IsUtf8(std::string_view text) noexcept {
  while (!text.empty()) {
    const std::size_t length = DecodeUtf8(text).length;
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace orv3
