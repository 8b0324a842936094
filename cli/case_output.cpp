#include "case_output.h"

#include <cmath>

namespace orv3::cli {

void AppendCsv(std::string& line, const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    line += text;
    return;
  }
  line += '"';
  for (const char ch : text) line.append(ch == '"' ? 2 : 1, ch);
  line += '"';
}

std::string PercentText(double utilisation) {
  if (!std::isfinite(utilisation)) return "∞";
  return PercentNumber(utilisation) + " %";
}

std::string WarningLine(std::span<const CCaseWarning> warnings) {
  std::string line;
  for (const CCaseWarning& warning : warnings)
    line += (line.empty() ? "" : " | ") + warning.m_text.m_strEnglish;
  return line;
}

}  // namespace orv3::cli
