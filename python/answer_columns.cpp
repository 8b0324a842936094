#include "answer_columns.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <stdexcept>
#include <string_view>

#include "framework/csv.h"

namespace orv3::python {
namespace {

constexpr std::string_view kTexts[] = {"id",       "code",    "governs", "combinations",
                                       "warnings", "refused", "surface"};
// "pass", "passX", "okSigma" ...
constexpr std::string_view kVerdicts[] = {"pass", "ok"};

CAnswerValues ValuesOf(std::string_view key) {
  if (std::find(std::begin(kTexts), std::end(kTexts), key) != std::end(kTexts))
    return std::vector<std::string>();
  for (const std::string_view start : kVerdicts) {
    if (key.starts_with(start)) return CVerdicts();
  }
  return std::vector<double>();
}

double Number(std::string_view key, std::string_view cell) {
  if (cell.empty()) return std::numeric_limits<double>::quiet_NaN();
  double number = 0;
  const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number);
  if (error != std::errc() || end != cell.data() + cell.size())
    throw std::logic_error("the answer's column " + std::string(key) +
                           " holds a text: " + std::string(cell));
  return number;
}

void Add(CAnswerColumn& column, std::string_view cell) {
  if (auto* numbers = std::get_if<std::vector<double>>(&column.m_values)) {
    numbers->push_back(Number(column.m_strKey, cell));
  } else if (auto* verdicts = std::get_if<CVerdicts>(&column.m_values)) {
    const int value = cell == "true" ? 1 : cell == "false" ? 0 : -1;
    verdicts->m_arrValue.push_back(static_cast<signed char>(value));
  } else {
    std::get<std::vector<std::string>>(column.m_values).emplace_back(cell);
  }
}

}  // namespace

std::size_t CAnswerColumn::Size() const {
  if (const auto* verdicts = std::get_if<CVerdicts>(&m_values)) return verdicts->m_arrValue.size();
  if (const auto* numbers = std::get_if<std::vector<double>>(&m_values)) return numbers->size();
  return std::get<std::vector<std::string>>(m_values).size();
}

std::vector<CAnswerColumn> AnswerColumns(std::string csv) {
  std::vector<CAnswerColumn> columns;
  if (csv.empty()) return columns;
  CCsvReader reader(std::move(csv));
  std::vector<std::string_view> cells;
  if (reader.Next(cells)) {
    for (const std::string_view key : cells) columns.push_back({std::string(key), ValuesOf(key)});
  }
  while (reader.Next(cells)) {
    for (std::size_t i = 0; i < columns.size(); ++i)
      Add(columns[i], i < cells.size() ? cells[i] : std::string_view());
  }
  return columns;
}

}  // namespace orv3::python
