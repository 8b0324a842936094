// Values between the cells of a table with two numeric arguments.
#pragma once

#include <cmath>
#include <span>

#include "catalogue/code_tables/table_search.h"
#include "framework/kvb_math.h"

namespace orv3 {

inline bool InRange(int index, int count) noexcept { return index >= 0 && index < count; }

// Whether the grid spans `value`, within the tolerance.
inline bool Spans(std::span<const double> grid, double value) noexcept {
  return CKvbMath::EqualMore(value, grid.front()) && CKvbMath::EqualLess(value, grid.back());
}

// An argument on a grid: the first position whose value is not below it, and whether they are
// equal.
struct CGridPlace {
  std::size_t m_index = 0;
  double m_value = 0;  // the argument, at most the grid's last value
  bool m_onGrid = false;
};

inline CGridPlace PlaceOn(std::span<const double> grid, double value) noexcept {
  CGridPlace place{0, CKvbMath::EqualMore(value, grid.back()) ? grid.back() : value, false};
  while (!CKvbMath::EqualMore(grid[place.m_index], place.m_value)) ++place.m_index;
  place.m_onGrid = CKvbMath::EqualTo(grid[place.m_index], place.m_value);
  return place;
}

// The value at the places `x` on `rows` and `z` on `columns`, where cell(i, j) is the value at the
// grid positions i and j: the cell itself on the grid, along the border when an argument is at or
// below the first grid value, bilinear elsewhere.
template <class CELL>
double ValueAt(std::span<const double> rows, std::span<const double> columns, const CELL& cell,
               const CGridPlace& x, const CGridPlace& z) {
  const std::size_t i = x.m_index;
  const std::size_t j = z.m_index;
  if ((x.m_onGrid && z.m_onGrid) || (i == 0 && j == 0)) return cell(i, j);
  if (i == 0) {
    return CTableSearch::DispersionForOne(columns[j - 1], cell(0, j - 1), columns[j], cell(0, j),
                                          z.m_value);
  }
  if (j == 0) {
    return CTableSearch::DispersionForOne(rows[i - 1], cell(i - 1, 0), rows[i], cell(i, 0),
                                          x.m_value);
  }
  return CTableSearch::DispersionForTwo(rows[i - 1], cell(i - 1, j - 1), cell(i - 1, j), rows[i],
                                        cell(i, j - 1), cell(i, j), columns[j - 1], columns[j],
                                        x.m_value, z.m_value);
}

// The look-up of a whole table by two numbers; false for a NaN.
template <std::size_t ROWS, std::size_t COLUMNS>
bool SearchGrid(const double (&rows)[ROWS], const double (&columns)[COLUMNS],
                const double (&table)[ROWS][COLUMNS], double row, double column, double& value) {
  if (std::isnan(row) || std::isnan(column)) return false;
  const auto cell = [&table](std::size_t i, std::size_t j) { return table[i][j]; };
  value = ValueAt(rows, columns, cell, PlaceOn(rows, row), PlaceOn(columns, column));
  return true;
}

}  // namespace orv3
