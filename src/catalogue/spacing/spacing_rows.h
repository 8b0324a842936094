// The spacing tables as rows of texts, by number.
#pragma once

#include <span>

namespace orv3 {

class CSpacingTable {
 public:
  CSpacingTable() = default;
  template <std::size_t ROWS, std::size_t COLUMNS>
  explicit CSpacingTable(const wchar_t* const (&cells)[ROWS][COLUMNS])
      : m_pCell(&cells[0][0]), m_nRows(ROWS), m_nColumns(COLUMNS) {}

  std::size_t Rows() const noexcept { return m_nRows; }
  std::span<const wchar_t* const> operator[](std::size_t row) const noexcept {
    return {m_pCell + row * m_nColumns, m_nColumns};
  }

 private:
  const wchar_t* const* m_pCell = nullptr;
  std::size_t m_nRows = 0;
  std::size_t m_nColumns = 0;
};

// Counted from 0; a table without rows for any number but 0 to 18.
CSpacingTable SpacingTable(int table);

}  // namespace orv3
