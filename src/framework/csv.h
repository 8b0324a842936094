// Comma-separated values, record by record.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "framework/export.h"

namespace orv3 {

// Reads text in memory. A record ends with LF, CR or CR LF. A cell in quotation marks may hold
// commas, line ends and, doubled, quotation marks; blanks around any other cell are dropped.
class ORV3CAL_API CCsvReader {
 public:
  explicit CCsvReader(std::string bytes);  // passes over a UTF-8 byte order mark
  CCsvReader(const CCsvReader&) = delete;
  CCsvReader& operator=(const CCsvReader&) = delete;

  // Puts the next record into `cells`, which point into the reader and stay valid as long as it;
  // false at the end of the text. An empty line is a record of one empty cell.
  bool Next(std::vector<std::string_view>& cells);
  double Done() const noexcept;  // share of the text that has been read

 private:
  std::string_view PlainCell();
  std::string_view QuotedCell();

  std::string m_strBytes;
  std::size_t m_nAt = 0;
};

}  // namespace orv3
