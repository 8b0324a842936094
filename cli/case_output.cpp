#include "case_output.h"

#include <cmath>

namespace orv3::cli {

void AppendCsv(std::string& line, const std::string& text) {
  const bool padded = text.starts_with(' ') || text.ends_with(' ');  // which readers drop
  if (!padded && text.find_first_of(",;\t\"\r\n") == std::string::npos) {
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

std::string WarningLine(std::span<const CCaseWarning> warnings, CLanguage language) {
  std::string line;
  for (const CCaseWarning& warning : warnings)
    line += (line.empty() ? "" : " | ") + warning.m_text.In(language);
  return line;
}

const char* VerdictText(bool bPass, CLanguage language) {
  static constexpr CTextLiteral kPass = {"满足", "passes"};
  static constexpr CTextLiteral kFail = {"不满足", "fails"};
  return (bPass ? kPass : kFail).In(language);
}

std::string VerdictLines(bool bPass, const CCasePart& worst, std::span<const CCaseWarning> warnings,
                         CLanguage language) {
  const std::string verdict = VerdictText(bPass, language);
  const std::string share = PercentText(worst.m_dUtilisation);
  const CText line = {
      "\n结论：" + verdict + "，利用率 " + share + "（" + worst.m_name.m_szChinese + "）\n",
      "\nverdict: " + verdict + ", utilisation " + share + " (" + worst.m_name.m_szEnglish + ")\n"};
  static constexpr CTextLiteral kLook = {"请注意 ", "look at "};
  std::string text = line.In(language);
  for (const CCaseWarning& warning : warnings)
    text += kLook.In(language) + warning.m_strKey + ": " + warning.m_text.In(language) + '\n';
  return text;
}

}  // namespace orv3::cli
