#include "cases/case_output.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orv3::cli {
namespace {

// The characters that put a cell in quotation marks.
constexpr auto kQuoted = [] {
  std::array<bool, 256> quoted{};
  for (const char ch : {',', ';', '\t', '"', '\r', '\n'})
    quoted[static_cast<std::size_t>(ch)] = true;
  return quoted;
}();

// "by GB 50017-2017, in force since 2018-07-01"
std::string EditionLine(CCodeEdition edition, CLanguage language) {
  static constexpr CTextLiteral kBy = {"依据 ", "by "};
  static constexpr CTextLiteral kComma = {"，", ", "};
  const CEditionFacts& facts = EditionFacts(edition);
  return std::string(kBy.In(language)) + facts.m_szName + kComma.In(language) +
         facts.m_status.In(language);
}

}  // namespace

void AppendCsv(std::string& line, std::string_view text) {
  const bool padded = text.starts_with(' ') || text.ends_with(' ');  // which readers drop
  const bool plain = std::none_of(text.begin(), text.end(),
                                  [](char ch) { return kQuoted[static_cast<unsigned char>(ch)]; });
  if (!padded && plain) {
    line += text;
    return;
  }
  line += '"';
  for (const char ch : text) line.append(ch == '"' ? 2 : 1, ch);
  line += '"';
}

CText TooManyReports() {
  const std::string most = std::to_string(kMostReports);
  return {"--report 至多写 " + most + " 个算例；请把文件分开",
          "--report takes at most " + most + " cases; give a file with fewer"};
}

std::string PercentText(double utilisation) {
  if (!std::isfinite(utilisation)) return "∞";
  return PercentNumber(utilisation) + " %";
}

std::string WarningLine(std::span<const CCaseWarning> warnings, CLanguage language) {
  std::string line;
  for (const CCaseWarning& warning : warnings)
    line += (line.empty() ? "" : " | ") + warning.Line(language);
  return line;
}

const char* VerdictText(bool bPass, CLanguage language) {
  static constexpr CTextLiteral kPass = {"满足", "passes"};
  static constexpr CTextLiteral kFail = {"不满足", "fails"};
  return (bPass ? kPass : kFail).In(language);
}

std::string VerdictLines(CCodeEdition edition, const CCaseAnswer& answer, CLanguage language) {
  return VerdictLines(edition, answer.Pass(), answer.Worst(), answer.Warnings(), language);
}

std::string VerdictLines(CCodeEdition edition, bool bPass, const CCasePart& worst,
                         std::span<const CCaseWarning> warnings, CLanguage language) {
  const std::string verdict = VerdictText(bPass, language);
  const std::string share = PercentText(worst.m_dUtilisation);
  const CText line = {
      "\n结论：" + verdict + "，利用率 " + share + "（" + worst.m_name.m_szChinese + "）\n",
      "\nverdict: " + verdict + ", utilisation " + share + " (" + worst.m_name.m_szEnglish + ")\n"};
  static constexpr CTextLiteral kLook = {"请注意 ", "look at "};
  std::string text = line.In(language) + EditionLine(edition, language) + '\n';
  for (const CCaseWarning& warning : warnings)
    text += kLook.In(language) + warning.Line(language) + '\n';
  return text;
}

std::string RefusedLine(CCodeEdition edition, const std::string& fault, CLanguage language) {
  static constexpr CTextLiteral kRefused = {"拒绝：", "refused: "};
  return '\n' + (kRefused.In(language) + fault) + '\n' + EditionLine(edition, language) + '\n';
}

std::string CsvHead(std::span<const CResultColumn> columns, bool bSurface) {
  std::string line = "case,id,pass,utilisation,governs,code";
  for (const CResultColumn& column : columns) line += std::string(",") + column.m_szKey;
  return line + ",warnings,refused" + (bSurface ? ",surface\n" : "\n");
}

}  // namespace orv3::cli
