// The lines of a CSV that a check has answered, as columns.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace orv3::python {

// Verdicts are 1 and 0, -1 where there is none; of numbers that is NaN, of texts the empty one.
struct CVerdicts {
  std::vector<signed char> m_arrValue;
};
using CAnswerValues = std::variant<std::vector<double>, CVerdicts, std::vector<std::string>>;

struct CAnswerColumn {
  std::string m_strKey;
  CAnswerValues m_values;
  std::size_t Size() const;
};

// The columns in the order of the first line. Which kind one is follows from its key alone, never
// from the answers at hand.
std::vector<CAnswerColumn> AnswerColumns(std::string csv);

}  // namespace orv3::python
