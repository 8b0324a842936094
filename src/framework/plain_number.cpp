#include "framework/plain_number.h"

#include <algorithm>
#include <cmath>

#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {

std::string PlainNumber(double value) {
  const double size = std::fabs(value);
  if (std::isinf(value)) return value < 0 ? "−∞" : "∞";
  if (!std::isfinite(value) || size >= 1e9 || (size != 0 && size < 1e-4))
    return ToUtf8(FormatG(value));
  const int decimals = size >= 1000 ? 0 : size >= 100 ? 1 : size >= 10 ? 2 : size >= 1 ? 3 : 4;
  std::string text = ToUtf8(FormatFixed(value, decimals));
  if (text.find('.') != std::string::npos) {
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

std::string PercentNumber(double utilisation) {
  const double percent = 100 * std::fabs(utilisation);
  std::string text = PlainNumber(std::round(10 * percent) / 10);
  for (int digits = 2; percent > 100 && text == "100" && digits < 16; ++digits) {
    const std::string longer = ToUtf8(FormatFixed(percent, digits));
    if (longer.find_first_not_of("0", 4) != std::string::npos) text = longer;
  }
  return text;
}

std::string SubstitutedNumber(double value) {
  const double size = std::fabs(value);
  if (!std::isfinite(value) || size >= 1e9 || size < 1e-4) return PlainNumber(value);
  constexpr int kDigits = 8;
  const int whole = static_cast<int>(std::floor(std::log10(size))) + 1;
  std::string text = ToUtf8(FormatFixed(value, std::max(0, kDigits - whole)));
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

CComparedText Compared(double effect, double limit) {
  return effect > limit ? Apart(effect, limit)
                        : CComparedText{PlainNumber(effect), PlainNumber(limit)};
}

CComparedText Apart(double one, double other) {
  CComparedText text = {PlainNumber(one), PlainNumber(other)};
  for (int digits = 1; one != other && text.m_strEffect == text.m_strLimit && digits < 16;
       ++digits) {
    text = {ToUtf8(FormatFixed(one, digits)), ToUtf8(FormatFixed(other, digits))};
  }
  return text;
}

}  // namespace orv3
