#include "cases/case_cell.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "framework/number_chars.h"

namespace orv3::cli {
namespace {

bool ReadNumber(std::string_view text, double& number) noexcept {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto [end, error] = ReadDouble(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

// A spreadsheet writes TRUE and FALSE.
bool IsWord(std::string_view cell, std::string_view word) noexcept {
  return std::equal(cell.begin(), cell.end(), word.begin(), word.end(), [](char a, char b) {
    return (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a) == b;
  });
}

}  // namespace

CKeyValue CellValue(std::string_view cell, const CCaseSchema::CRule& rule,
                    std::vector<double>& list) {
  double number = 0;
  if (rule.m_bText) return cell;
  if (rule.m_bBoolean) {
    if (IsWord(cell, "true")) return 1.0;
    if (IsWord(cell, "false")) return 0.0;
  }
  if (!rule.m_bArray || cell.find(';') == std::string_view::npos) {
    if (ReadNumber(cell, number)) return number;
    return cell;
  }
  list.clear();
  for (std::size_t at = 0; at <= cell.size();) {
    const std::size_t end = std::min(cell.find(';', at), cell.size());
    if (!ReadNumber(cell.substr(at, end - at), number)) return cell;
    list.push_back(number);
    at = end + 1;
  }
  return std::span<const double>(list);
}

CKeyValue CellValue(double cell, const CCaseSchema::CRule& rule, std::string& text) {
  if (!rule.m_bText) return cell;
  constexpr double kWhole = 0x1p63;  // whole numbers below it are written with all their digits
  char digits[32];
  const bool whole = std::fabs(cell) < kWhole && cell == std::floor(cell);
  const char* end =
      whole ? std::to_chars(digits, digits + sizeof digits, static_cast<long long>(cell)).ptr
            : WriteShortest(digits, digits + sizeof digits, cell);
  text.assign(static_cast<const char*>(digits), end);
  return std::string_view(text);
}

}  // namespace orv3::cli
