#include "sections/geometry/cells.h"

#include <charconv>
#include <cmath>

namespace orv3 {

namespace {

std::optional<double> ReadSign(const CDataItem& row, std::wstring_view sign, double toMm) {
  double value = 0;
  if (sign.empty() || !row.GetCellValue(row.GetSignIndex(sign), value)) return std::nullopt;
  return value * toMm;
}

}  // namespace

std::optional<double> Read(const CDataItem& row, const CCell& cell) {
  return ReadSign(row, cell.Sign(), cell.ToMm());
}

std::optional<double> Read(const CDataItem& row, const CGapCell& cell, double spacing) {
  constexpr double kMost = 9999;
  if (!(spacing >= 0 && spacing <= kMost) || spacing != std::floor(spacing)) return std::nullopt;
  char digits[8];
  const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<int>(spacing)).ptr;
  wchar_t sign[32];
  wchar_t* to = std::copy(cell.m_symbol.begin(), cell.m_symbol.end(), sign);
  to = std::copy(digits, end, to);
  to = std::copy(cell.m_unit.Sign().begin(), cell.m_unit.Sign().end(), to);
  return ReadSign(row, {sign, static_cast<std::size_t>(to - sign)}, cell.m_unit.ToMm());
}

double ReadSpacing(const CDataItem& row, std::wstring_view sign) {
  int whole = 0;
  if (sign.empty()) return 0;
  if (row.GetCellValue(row.GetSignIndex(sign), whole)) return whole;
  return ReadSign(row, sign, 1).value_or(0);
}

CString ReadText(const CDataItem& row, std::wstring_view sign) {
  CString text;
  row.GetCellValue(row.GetSignIndex(sign), text);
  return text;
}

}  // namespace orv3
