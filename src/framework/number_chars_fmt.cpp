// By fmt and fast_float, where the standard library converts whole numbers alone.
#include <fast_float/fast_float.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "framework/number_chars.h"

namespace orv3 {
namespace {

constexpr int kMostDigits = 17;  // of a shortest text

// A number in its shortest digits, d.ddd x 10^exponent.
struct CDigits {
  char m_szDigits[kMostDigits] = {};
  int m_nCount = 0;
  int m_nExponent = 0;

  std::string_view Text() const { return {m_szDigits, static_cast<std::size_t>(m_nCount)}; }
};

CDigits DigitsOf(double size) {
  const auto decimal = fmt::detail::dragonbox::to_decimal(size);
  const fmt::format_int digits(decimal.significand);
  CDigits made;
  made.m_nCount = static_cast<int>(digits.size());
  made.m_nExponent = decimal.exponent + made.m_nCount - 1;
  std::copy_n(digits.data(), digits.size(), made.m_szDigits);
  while (made.m_nCount > 1 && made.m_szDigits[made.m_nCount - 1] == '0') --made.m_nCount;
  return made;
}

int FixedLength(const CDigits& digits) {
  if (digits.m_nExponent < 0) return 1 - digits.m_nExponent + digits.m_nCount;
  const int whole = digits.m_nExponent + 1;
  return digits.m_nCount > whole ? digits.m_nCount + 1 : whole;
}

int ScientificLength(const CDigits& digits) {
  const int exponent = std::abs(digits.m_nExponent) >= 100 ? 5 : 4;  // "e+100", "e+10"
  return digits.m_nCount + (digits.m_nCount > 1 ? 1 : 0) + exponent;
}

char* ShortestScientific(char* to, const CDigits& digits) {
  const std::string_view text = digits.Text();
  to = fmt::format_to(to, "{}{}{}", text[0], text.size() > 1 ? "." : "", text.substr(1));
  return fmt::format_to(to, "e{}{:02}", digits.m_nExponent < 0 ? '-' : '+',
                        std::abs(digits.m_nExponent));
}

char* ShortestFixed(char* to, const CDigits& digits, double size) {
  const std::string_view text = digits.Text();
  if (digits.m_nExponent < 0) {
    return fmt::format_to(to, "0.{:0>{}}{}", "", -digits.m_nExponent - 1, text);
  }
  const auto whole = static_cast<std::size_t>(digits.m_nExponent) + 1;
  // A whole number has all its digits, beyond 2^53 too.
  if (text.size() <= whole) return fmt::format_to(to, "{:.0f}", size);
  return fmt::format_to(to, "{}.{}", text.substr(0, whole), text.substr(whole));
}

// fast_float makes infinity or 0 of a number that no double holds.
bool IsBeyondRange(const char* first, const char* last, double value) noexcept {
  const auto counts = [](char c) { return c >= '1' && c <= '9'; };
  const char* end = std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
  return (value == 0 || std::isinf(value)) && std::any_of(first, end, counts);
}

}  // namespace

char* WriteShortest(char* first, char*, double value) {
  if (!std::isfinite(value)) return fmt::format_to(first, "{}", value);
  if (std::signbit(value)) *first++ = '-';
  const double size = std::fabs(value);
  if (size == 0) return fmt::format_to(first, "0");
  const CDigits digits = DigitsOf(size);
  return FixedLength(digits) <= ScientificLength(digits) ? ShortestFixed(first, digits, size)
                                                         : ShortestScientific(first, digits);
}

char* WriteGeneral(char* first, char*, double value, int digits) {
  return fmt::format_to(first, "{:.{}g}", value, digits);
}

char* WriteScientific(char* first, char*, double value, int decimals) {
  return fmt::format_to(first, "{:.{}e}", value, decimals);
}

char* WriteFixed(char* first, char*, double value, int decimals) {
  return fmt::format_to(first, "{:.{}f}", value, decimals);
}

std::from_chars_result ReadDouble(const char* first, const char* last, double& value) noexcept {
  double read = 0;
  const auto result = fast_float::from_chars(first, last, read);
  if (result.ec == std::errc() && IsBeyondRange(first, result.ptr, read)) {
    return {result.ptr, std::errc::result_out_of_range};
  }
  if (result.ec == std::errc()) value = read;
  return {result.ptr, result.ec};
}

}  // namespace orv3
