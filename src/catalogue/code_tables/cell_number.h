// The numbers of text cells, read while compiling, so that a look-up parses nothing.
#pragma once

#include <array>
#include <cstddef>

namespace orv3 {

// The number of a cell that holds decimal digits with at most one point. Both halves of the
// quotient are exact for the few digits of a printed figure, so the result is the nearest double.
consteval double CellNumber(const wchar_t* cell) {
  double digits = 0;
  double scale = 1;
  bool bFraction = false;
  for (; *cell != 0; ++cell) {
    if (*cell == L'.') {
      bFraction = true;
      continue;
    }
    if (*cell < L'0' || *cell > L'9') throw "the cell is not a plain decimal number";
    digits = 10 * digits + (*cell - L'0');
    if (bFraction) scale *= 10;
  }
  return digits / scale;
}

template <std::size_t COLUMNS>
consteval std::array<double, COLUMNS> CellNumbers(const wchar_t* const (&cells)[COLUMNS]) {
  std::array<double, COLUMNS> numbers{};
  for (std::size_t i = 0; i < COLUMNS; ++i) numbers[i] = CellNumber(cells[i]);
  return numbers;
}

template <std::size_t ROWS, std::size_t COLUMNS>
consteval auto CellNumbers(const wchar_t* const (&cells)[ROWS][COLUMNS]) {
  std::array<std::array<double, COLUMNS>, ROWS> numbers{};
  for (std::size_t i = 0; i < ROWS; ++i) numbers[i] = CellNumbers(cells[i]);
  return numbers;
}

}  // namespace orv3
