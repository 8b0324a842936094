#include "module/c_support.h"

#include <algorithm>
#include <climits>

#include "framework/utf8.h"
#include "platform/per_thread.h"

namespace orv3::c_interface {
namespace {

constexpr char32_t kPastTheFirstPlane = 0x10000;

// The calling thread's own. Not thread_local, which would keep the library loaded: per_thread.h.
std::u16string& LastError() {
  static CPerThread<std::u16string> texts;
  return texts.Here();
}

std::u16string Utf16Of(const CString& text) {
  std::u16string out;
  out.reserve(static_cast<std::size_t>(text.GetLength()));
  for (const wchar_t unit : text.View()) {
    const auto code = static_cast<char32_t>(unit);
    if (code < kPastTheFirstPlane) {
      out += static_cast<char16_t>(code);
    } else {
      out += static_cast<char16_t>(0xD800 + ((code - kPastTheFirstPlane) >> 10));
      out += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
    }
  }
  return out;
}

bool IsHigh(char16_t unit) noexcept { return (unit & 0xFC00) == 0xD800; }
bool IsLow(char16_t unit) noexcept { return (unit & 0xFC00) == 0xDC00; }

CString WideOf(const char16_t* text) {
  std::wstring out;
  for (; *text != 0; ++text) {
    if (sizeof(wchar_t) > 2 && IsHigh(text[0]) && IsLow(text[1])) {
      const auto high = static_cast<unsigned>(text[0] & 0x3FF);
      const auto low = static_cast<unsigned>(text[1] & 0x3FF);
      out += static_cast<wchar_t>(kPastTheFirstPlane + (high << 10) + low);
      ++text;
    } else {
      out += static_cast<wchar_t>(*text);
    }
  }
  return out;
}

int GiveUnits(const std::u16string& text, orv3_char* out, int size) {
  if (text.size() > INT_MAX) throw CFailure("the text is longer than 2147483647 characters");
  if (out != nullptr && size > 0) {
    std::size_t count = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    if (count < text.size() && count > 0 && IsHigh(text[count - 1])) --count;
    std::copy_n(text.data(), count, out);
    out[count] = 0;
  }
  return static_cast<int>(text.size());
}

}  // namespace

int KeepFailure() noexcept {
  std::u16string* kept = nullptr;
  try {
    kept = &LastError();
    kept->clear();
    try {
      throw;
    } catch (const std::exception& error) {
      *kept = Utf16Of(FromUtf8(error.what()));
    } catch (...) {
      *kept = u"an error of an unknown kind";
    }
  } catch (...) {  // no memory for the text either
    if (kept != nullptr) kept->clear();
  }
  return -1;
}

CString TextOf(const orv3_char* text, const char* argument) {
  if (text == nullptr) throw CFailure(std::string(argument) + ": is null; give a text");
  return WideOf(text);
}

std::string Utf8Of(const orv3_char* text, const char* argument) {
  return ToUtf8(TextOf(text, argument));
}

int GiveText(const CString& text, orv3_char* out, int size) {
  return GiveUnits(Utf16Of(text), out, size);
}

int GiveValues(const std::vector<double>& values, double* out, int room) {
  if (out == nullptr) throw CFailure("the place for the results is null; give an array");
  if (room < 0) throw CFailure("room: is below 0; give the length of the array");
  const std::size_t count = std::min(values.size(), static_cast<std::size_t>(room));
  std::copy_n(values.data(), count, out);
  return static_cast<int>(count);
}

int GiveValue(double value, double* out) {
  GiveValues({value}, out, 1);
  return 0;
}

CString JoinLines(const std::vector<CString>& lines) {
  std::wstring text;
  for (const CString& line : lines) {
    if (!text.empty()) text += L'\n';
    text += line.View();
  }
  return text;
}

int WordAmong(const orv3_char* text, const char* argument, const char* const* words,
              std::size_t count) {
  const std::string given = Utf8Of(text, argument);
  std::string right;
  for (std::size_t i = 0; i < count; ++i) {
    if (given == words[i]) return static_cast<int>(i);
    right += std::string(i == 0 ? " " : ", ") + words[i];
  }
  throw CFailure(std::string(argument) + ": \"" + given + "\" is not possible; give one of" +
                 right);
}

}  // namespace orv3::c_interface

int ORV3_CALL orv3_version(void) { return ORV3_INTERFACE_VERSION; }

int ORV3_CALL orv3_last_error(orv3_char* text, int size) {
  using namespace orv3::c_interface;
  return Guarded([&] { return GiveUnits(LastError(), text, size); });
}
