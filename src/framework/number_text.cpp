#include "framework/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "framework/number_chars.h"

namespace orv3 {
namespace {

constexpr bool IsBlank(wchar_t ch) noexcept { return ch == L' ' || (ch >= L'\t' && ch <= L'\r'); }
constexpr bool IsDigit(wchar_t ch) noexcept { return ch >= L'0' && ch <= L'9'; }
constexpr bool IsSign(wchar_t ch) noexcept { return ch == L'+' || ch == L'-'; }

std::size_t SkipBlanks(std::wstring_view text, std::size_t at) noexcept {
  while (at < text.size() && IsBlank(text[at])) ++at;
  return at;
}

std::size_t SkipDigits(std::wstring_view text, std::size_t at) noexcept {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// Where the decimal number that starts at `begin` (after its sign) ends; `begin` when there is
// none.
std::size_t NumberEnd(std::wstring_view text, std::size_t begin) noexcept {
  std::size_t end = SkipDigits(text, begin);
  std::size_t digits = end - begin;
  if (end < text.size() && text[end] == L'.') {
    const std::size_t fraction = SkipDigits(text, end + 1);
    digits += fraction - end - 1;
    end = fraction;
  }
  if (digits == 0) return begin;
  if (end < text.size() && (text[end] == L'e' || text[end] == L'E')) {
    const std::size_t exponent = end + 1 + (end + 1 < text.size() && IsSign(text[end + 1]) ? 1 : 0);
    const std::size_t exponentEnd = SkipDigits(text, exponent);
    if (exponentEnd > exponent) end = exponentEnd;
  }
  return end;
}

// The unsigned number of plain ASCII text; infinity or 0 beyond the range of double.
double ParseUnsigned(const char* begin, const char* end) noexcept {
  double value = 0;
  const auto result = ReadDouble(begin, end, value);
  if (result.ec != std::errc::result_out_of_range) return value;
  // Out of range: it is too large when its first digit that counts stands above 10^0.
  const char* exponentAt = std::find_if(begin, end, [](char c) { return c == 'e' || c == 'E'; });
  long long exponent = 0;
  if (exponentAt != end) {
    const char* digits = exponentAt + 1 + (exponentAt[1] == '+' ? 1 : 0);
    if (std::from_chars(digits, end, exponent).ec == std::errc::result_out_of_range) {
      exponent =
          exponentAt[1] == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
  }
  const char* point = std::find(begin, exponentAt, '.');
  const char* lead = std::find_if(begin, exponentAt, [](char c) { return c >= '1' && c <= '9'; });
  exponent += lead < point ? point - lead : point - lead + 1;
  return exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

double ParseRange(std::wstring_view text, std::size_t begin, std::size_t end) {
  std::array<char, 64> buffer;
  const std::size_t length = end - begin;
  if (length <= buffer.size()) {
    std::transform(text.begin() + static_cast<std::ptrdiff_t>(begin),
                   text.begin() + static_cast<std::ptrdiff_t>(end), buffer.begin(),
                   [](wchar_t ch) { return static_cast<char>(ch); });
    return ParseUnsigned(buffer.data(), buffer.data() + length);
  }
  std::string longText(length, '0');
  for (std::size_t i = 0; i < length; ++i) longText[i] = static_cast<char>(text[begin + i]);
  return ParseUnsigned(longText.data(), longText.data() + length);
}

struct CNumberRange {
  std::size_t begin;  // after the sign
  std::size_t end;    // `begin` when the text starts with no number
  bool negative;
};

CNumberRange FindNumber(std::wstring_view text) noexcept {
  std::size_t begin = SkipBlanks(text, 0);
  const bool negative = begin < text.size() && text[begin] == L'-';
  if (begin < text.size() && IsSign(text[begin])) ++begin;
  return {begin, NumberEnd(text, begin), negative};
}

CString FromAscii(const char* begin, const char* end) {
  std::array<wchar_t, 512> wide;
  const auto last = std::transform(begin, end, wide.begin(), [](char c) {
    return static_cast<wchar_t>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  });
  return CString(wide.data(), static_cast<int>(last - wide.begin()));
}

}  // namespace

std::int32_t ToInt(std::wstring_view text) noexcept {
  std::size_t at = SkipBlanks(text, 0);
  const bool negative = at < text.size() && text[at] == L'-';
  if (at < text.size() && IsSign(text[at])) ++at;
  constexpr std::int64_t kLimit = std::int64_t{1} << 31;
  std::int64_t value = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    value = std::min(kLimit, value * 10 + (text[at] - L'0'));
  }
  return static_cast<std::int32_t>(negative ? -value : std::min(value, kLimit - 1));
}

double ToDouble(std::wstring_view text) noexcept {
  const CNumberRange range = FindNumber(text);
  if (range.end == range.begin) return 0;
  const double value = ParseRange(text, range.begin, range.end);
  return range.negative ? -value : value;
}

bool IsNumber(std::wstring_view text) noexcept {
  const CNumberRange range = FindNumber(text);
  return range.end > range.begin && SkipBlanks(text, range.end) == text.size() &&
         std::isfinite(ParseRange(text, range.begin, range.end));
}

CString FormatInt(long long value) {
  std::array<char, 32> text;
  return FromAscii(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

CString FormatG(double value) {
  if (std::isnan(value)) return L"NAN";
  std::array<char, 32> text;
  return FromAscii(text.data(), WriteGeneral(text.data(), text.data() + text.size(), value, 6));
}

CString FormatFixed(double value, int decimals) {
  if (std::isnan(value)) return L"NAN";
  std::array<char, 512> text;
  const int shown = std::clamp(decimals, 0, 100);
  return FromAscii(text.data(), WriteFixed(text.data(), text.data() + text.size(), value, shown));
}

CString FormatShortest(double value) {
  if (std::isnan(value)) return L"NAN";
  std::array<char, 64> text;
  return FromAscii(text.data(), WriteShortest(text.data(), text.data() + text.size(), value));
}

}  // namespace orv3
