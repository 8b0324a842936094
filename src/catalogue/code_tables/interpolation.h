// Values between the cells of a table with two numeric arguments.
#pragma once

#include <cmath>
#include <cstddef>
#include <span>

#include "framework/kvb_math.h"

namespace orv3 {

inline bool InRange(int index, int count) noexcept { return index >= 0 && index < count; }

// Whether the grid spans `value`, within the tolerance.
inline bool Spans(std::span<const double> grid, double value) noexcept {
  return CKvbMath::EqualMore(value, grid.front()) && CKvbMath::EqualLess(value, grid.back());
}

// An argument on an ascending grid: the positions around it and how far it lies below the upper
// one, as a part of their distance. On a grid value, within the tolerance, that part is 0; an
// argument beyond the grid is taken at the grid's border.
struct CGridPlace {
  std::size_t m_lower = 0;
  std::size_t m_upper = 0;
  double m_part = 0;
};

inline CGridPlace PlaceOn(std::span<const double> grid, double value) noexcept {
  const double below = value - CKvbMath::kTolerance;
  std::size_t upper = 0;
  while (upper + 1 < grid.size() && grid[upper] <= below) ++upper;
  const double distance = grid[upper] - value;
  if (upper == 0 || distance < CKvbMath::kTolerance) return {upper, upper, 0};
  return {upper - 1, upper, distance / (grid[upper] - grid[upper - 1])};
}

// The straight line from the upper value downwards, so that the upper value is exact.
inline double Between(const CGridPlace& place, double lower, double upper) noexcept {
  return upper - (upper - lower) * place.m_part;
}

// Bilinear between the four cells around the row place `x` and the column place `z`, where cell(i,
// j) is the value at the grid positions i and j: along x on both columns, then along z.
template <class CELL>
double ValueAt(const CELL& cell, const CGridPlace& x, const CGridPlace& z) {
  const double onLower = Between(x, cell(x.m_lower, z.m_lower), cell(x.m_upper, z.m_lower));
  const double onUpper = Between(x, cell(x.m_lower, z.m_upper), cell(x.m_upper, z.m_upper));
  return Between(z, onLower, onUpper);
}

// The look-up of a whole table by two numbers; false for a NaN.
template <std::size_t ROWS, std::size_t COLUMNS>
bool SearchGrid(const double (&rows)[ROWS], const double (&columns)[COLUMNS],
                const double (&table)[ROWS][COLUMNS], double row, double column, double& value) {
  if (std::isnan(row) || std::isnan(column)) return false;
  const auto cell = [&table](std::size_t i, std::size_t j) { return table[i][j]; };
  value = ValueAt(cell, PlaceOn(rows, row), PlaceOn(columns, column));
  return true;
}

}  // namespace orv3
