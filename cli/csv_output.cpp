#include "csv_output.h"

#include "case_output.h"

namespace orv3::cli {

std::string CsvLine(const std::vector<std::string>& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) line += ',';
    AppendCsv(line, cells[i]);
  }
  return line + '\n';
}

}  // namespace orv3::cli
