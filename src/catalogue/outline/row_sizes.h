// The sizes of a row, read cell by cell.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "framework/number_text.h"
#include "tables/data_item.h"

namespace orv3 {

// Remembers whether every size asked for was there and could be one: beyond a kilometre no section
// is, and a size must be above 0 (a radius at least 0). Sizes that cannot be are answered with 1,
// so that shapes can be drawn before the question is put.
class CRowSizes {
 public:
  explicit CRowSizes(const CDataItem& row) : m_row(row) {}

  double Size(const wchar_t* sign) { return Kept(Number(sign), 1e-6); }
  double Radius(const wchar_t* sign) { return Kept(Number(sign), 0); }
  // What must be left between sizes for the parts not to overlap.
  void Needs(std::initializer_list<double> clearances) {
    m_bWhole = m_bWhole && std::min(clearances) >= 0;
  }
  bool IsWhole() const noexcept { return m_bWhole; }

 private:
  // A number in a text cell counts too: the height of a T section is kept as text.
  double Number(const wchar_t* sign) const {
    const int index = m_row.GetSignIndex(sign);
    if (index < 0) return -1;
    const CDataCell& cell = m_row[index];
    return IsNumber(cell.m_strValue) ? ToDouble(cell.m_strValue) : -1;
  }
  double Kept(double value, double least) {
    if (value >= least && value <= 1e6) return value;
    m_bWhole = false;
    return 1;
  }

  const CDataItem& m_row;
  bool m_bWhole = true;
};

// The spacing that was chosen with a pair's row: an integer cell of this sign right after "No.",
// mm; 0 without it.
inline double ChosenSpacing(const CDataItem& row, std::wstring_view sign) {
  if (row.GetCellSign(1) != sign) return 0;
  return ToInt(row[1].m_strValue);
}

}  // namespace orv3
