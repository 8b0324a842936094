// One computed case as JSON, as a line of a CSV and as tables for people.
#pragma once

#include <charconv>
#include <string>
#include <variant>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "framework/plain_number.h"
#include "output.h"
#include "text_table.h"

namespace orv3::cli {

inline CJson ResultJson(double value) { return JsonNumber(value); }
inline CJson ResultJson(int value) { return value; }
inline CJson ResultJson(bool value) { return value; }

inline void AppendCsv(std::string& line, double value) {
  char text[32];
  if (std::isfinite(value)) line.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}
inline void AppendCsv(std::string& line, int value) { line += std::to_string(value); }
inline void AppendCsv(std::string& line, bool value) { line += value ? "true" : "false"; }
// A text, quoted where it must be.
void AppendCsv(std::string& line, const std::string& text);

std::string PercentText(double utilisation);
std::string WarningLine(std::span<const CCaseWarning> warnings, CLanguage language);
const char* VerdictText(bool bPass, CLanguage language);
// The verdict with what governs it, and what to look at, a line each.
std::string VerdictLines(bool bPass, const CCasePart& worst, std::span<const CCaseWarning> warnings,
                         CLanguage language);

template <class CHECK>
bool HasResult(const CResultKey<typename CHECK::CResults>& key,
               const typename CHECK::CCase& input) {
  return (key.m_nKinds >> CHECK::Kind(input) & 1U) != 0;
}

template <class CHECK>
CJson CaseJson(const typename CHECK::CCase& input, const CHECK& check, CLanguage language) {
  CJson results = CJson::object();
  for (const auto& key : CHECK::ResultKeys()) {
    if (!HasResult<CHECK>(key, input)) continue;
    results[key.m_szKey] =
        std::visit([&](auto field) { return ResultJson(check.Results().*field); }, key.m_field);
  }
  CJson warnings = CJson::array();
  for (const CCaseWarning& warning : check.Warnings())
    warnings.push_back({{"key", warning.m_strKey}, {"text", warning.m_text.In(language)}});
  return {{"pass", check.Pass()},
          {"results", std::move(results)},
          {"utilisation", JsonNumber(check.Worst().m_dUtilisation)},
          {"governs", check.Worst().m_name.In(language)},
          {"warnings", std::move(warnings)}};
}

template <class CHECK>
std::string CsvHead() {
  std::string line = "case,id,pass,utilisation,governs";
  for (const auto& key : CHECK::ResultKeys()) line += std::string(",") + key.m_szKey;
  return line + ",warnings,refused\n";
}

template <class CHECK>
void AppendCsvLine(std::string& line, const typename CHECK::CCase& input, const CHECK& check,
                   CLanguage language) {
  const auto cell = [&](auto value) {
    line += ',';
    AppendCsv(line, value);
  };
  cell(check.Pass());
  cell(check.Worst().m_dUtilisation);
  line += ',';
  line += check.Worst().m_name.In(language);
  for (const auto& key : CHECK::ResultKeys()) {
    if (HasResult<CHECK>(key, input)) {
      std::visit([&](auto field) { cell(check.Results().*field); }, key.m_field);
    } else {
      line += ',';
    }
  }
  line += ',';
  if (!check.Warnings().empty()) AppendCsv(line, WarningLine(check.Warnings(), language));
  line += ",\n";
}

// The results of one case with their units, the parts of the verdict, the verdict and what to look
// at.
template <class CHECK>
std::string CaseText(const typename CHECK::CCase& input, const CHECK& check, CLanguage language) {
  CTextTable results({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left});
  for (const auto& key : CHECK::ResultKeys()) {
    if (!HasResult<CHECK>(key, input) ||
        std::holds_alternative<bool CHECK::CResults::*>(key.m_field))
      continue;
    const double value = std::visit(
        [&](auto field) { return static_cast<double>(check.Results().*field); }, key.m_field);
    results.AddRow({key.m_name.In(language), key.m_szKey, PlainNumber(value), key.m_szUnit});
  }
  CTextTable parts({CAlign::Left, CAlign::Right, CAlign::Left});
  for (const CCasePart& part : check.Parts()) {
    parts.AddRow({part.m_name.In(language), PercentText(part.m_dUtilisation),
                  VerdictText(part.m_bPass, language)});
  }
  return results.Text() + '\n' + parts.Text() +
         VerdictLines(check.Pass(), check.Worst(), check.Warnings(), language);
}

}  // namespace orv3::cli
