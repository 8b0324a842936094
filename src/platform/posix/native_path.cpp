#include "platform/posix/native_path.h"

#include <algorithm>

#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr wchar_t kFirstByte = 0xDC80;  // stands for the byte 0x80
constexpr wchar_t kLastByte = 0xDCFF;

constexpr bool IsByte(wchar_t ch) noexcept { return ch >= kFirstByte && ch <= kLastByte; }

// How many of the first bytes are whole characters.
std::size_t WholeLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size()) {
    std::size_t step = 1;
    while (step <= 4 && !IsUtf8(text.substr(length, step))) ++step;
    if (step > 4) break;
    length += std::min(step, text.size() - length);
  }
  return length;
}

}  // namespace

std::string Native(std::wstring_view path) {
  std::string native;
  while (!path.empty()) {
    const auto byte = std::find_if(path.begin(), path.end(), IsByte);
    const auto length = static_cast<std::size_t>(byte - path.begin());
    native += ToUtf8(path.substr(0, length));
    path.remove_prefix(length);
    if (path.empty()) break;
    native += static_cast<char>(path.front() - kFirstByte + 0x80);
    path.remove_prefix(1);
  }
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

CString FromNative(std::string_view path) {
  if (IsUtf8(path)) return FromUtf8(path);
  CString wide;
  while (!path.empty()) {
    const std::size_t whole = WholeLength(path);
    wide += FromUtf8(path.substr(0, whole));
    path.remove_prefix(whole);
    if (path.empty()) break;
    wide += static_cast<wchar_t>(kFirstByte + (static_cast<unsigned char>(path.front()) - 0x80));
    path.remove_prefix(1);
  }
  return wide;
}

}  // namespace orv3
