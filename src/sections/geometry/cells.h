// A row's cells as numbers in millimetres.
#pragma once

#include <optional>
#include <string_view>

#include "tables/data_item.h"

namespace orv3 {

// A column by its sign, which ends in its unit: "(cm^4)" makes the factor to mm^4 10^4.
class CCell {
 public:
  constexpr CCell() = default;
  consteval CCell(const wchar_t* sign) : m_sign(sign) {
    const std::size_t unit = m_sign.rfind(L"(cm");
    if (unit == std::wstring_view::npos) return;
    const wchar_t power = m_sign[unit + 3] == L'^' ? m_sign[unit + 4] : L'1';
    for (wchar_t n = L'0'; n < power; ++n) m_toMm *= 10;
  }

  constexpr std::wstring_view Sign() const { return m_sign; }
  constexpr double ToMm() const { return m_toMm; }
  constexpr bool IsEmpty() const { return m_sign.empty(); }

 private:
  std::wstring_view m_sign;
  double m_toMm = 1;
};

// A column that a pair has once for each spacing: symbol L"iy" and unit L"(cm)" make "iy8(cm)".
struct CGapCell {
  std::wstring_view m_symbol;
  CCell m_unit;
};

// Nothing unless the row has the cell and it is KVBT_DOUBLE.
std::optional<double> Read(const CDataItem& row, const CCell& cell);
// The column of a spacing in mm; nothing for a spacing that is no whole number.
std::optional<double> Read(const CDataItem& row, const CGapCell& cell, double spacing);
// The spacing of a pair, mm: an integer cell, else a KVBT_DOUBLE one; 0 in a row without it and for
// an empty sign.
double ReadSpacing(const CDataItem& row, std::wstring_view sign);
// The text of a KVBT_STRING cell; empty when there is none.
CString ReadText(const CDataItem& row, std::wstring_view sign);

}  // namespace orv3
