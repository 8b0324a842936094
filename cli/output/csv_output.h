// CSV that programs read and a spreadsheet opens with its Chinese right.
#pragma once

#include <string>
#include <vector>

namespace orv3::cli {

// Stands at the start of the file, and tells a spreadsheet that it is UTF-8.
inline constexpr const char* kCsvMark = "\xEF\xBB\xBF";

// One line with its end; cells are quoted where they must be.
std::string CsvLine(const std::vector<std::string>& cells);

// Puts an apostrophe before each text that a spreadsheet would take for a formula: one that begins
// with = + - @ and is no number.
void GuardFormulas(std::vector<std::string>& cells);

}  // namespace orv3::cli
