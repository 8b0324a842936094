#include "output/csv_output.h"

#include <string_view>

#include "cases/case_output.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3::cli {

std::string CsvLine(const std::vector<std::string>& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) line += ',';
    AppendCsv(line, cells[i]);
  }
  return line + '\n';
}

void GuardFormulas(std::vector<std::string>& cells) {
  for (std::string& cell : cells) {
    const std::size_t first = cell.find_first_not_of(" \t\r\n");
    if (first == cell.npos ||
        std::string_view("=+-@").find(cell[first]) == std::string_view::npos) {
      continue;
    }
    if (!IsNumber(FromUtf8(cell))) cell.insert(0, "'");
  }
}

}  // namespace orv3::cli
