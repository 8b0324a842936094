// The cases of a program that has them in columns, one for each key.
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "framework/language.h"

namespace orv3::cli {

// Why a cell is of no kind that any key takes: "X is not possible".
struct CCellFault {
  CText m_what;
};

// Nothing where the key is left out of the case, as is NaN.
using CCaseCell =
    std::variant<std::monostate, bool, double, std::string, std::vector<double>, CCellFault>;

struct CCaseColumn {
  std::string m_strKey;
  std::span<const double> m_arrNumber;  // of all cases, or empty:
  std::vector<CCaseCell> m_arrCell;     // then these
};

struct CCaseColumns {
  std::size_t m_nCases = 0;
  std::vector<CCaseColumn> m_arrColumn;
};

}  // namespace orv3::cli
