// One computed case as JSON, as a line of a CSV and as tables for people.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "codes/edition.h"
#include "framework/number_chars.h"
#include "framework/plain_number.h"
#include "output/output.h"
#include "output/text_table.h"
#include "reports/case_answer.h"

namespace orv3::cli {

inline CJson ResultJson(double value) { return JsonNumber(value); }
inline CJson ResultJson(int value) { return value; }
inline CJson ResultJson(bool value) { return value; }

inline void AppendCsv(std::string& line, double value) {
  if (!std::isfinite(value)) return;
  char text[32];
  // Small whole numbers, many as they are, have the same text as an int, in a tenth of the time.
  const bool bSmall = std::fabs(value) < 1e5 && !(value == 0 && std::signbit(value));
  const int whole = bSmall ? static_cast<int>(value) : 0;
  const bool bWhole = bSmall && whole == value;
  const char* end = bWhole ? std::to_chars(text, text + sizeof text, whole).ptr
                           : WriteShortest(text, text + sizeof text, value);
  line.append(text, static_cast<std::size_t>(end - text));
}
inline void AppendCsv(std::string& line, int value) { line += std::to_string(value); }
// Of a bool alone: a plain text would rather turn into a bool than into a string_view.
template <std::same_as<bool> BOOL>
void AppendCsv(std::string& line, BOOL value) {
  line += value ? "true" : "false";
}
// A text, quoted where it must be.
void AppendCsv(std::string& line, std::string_view text);

inline constexpr std::size_t kMostReports = 500;  // cases of one report
CText TooManyReports();

std::string PercentText(double utilisation);
std::string WarningLine(std::span<const CCaseWarning> warnings, CLanguage language);
const char* VerdictText(bool bPass, CLanguage language);
// The verdict with what governs it, the edition, and what to look at, a line each.
std::string VerdictLines(CCodeEdition edition, const CCaseAnswer& answer, CLanguage language);
std::string VerdictLines(CCodeEdition edition, bool bPass, const CCasePart& worst,
                         std::span<const CCaseWarning> warnings, CLanguage language);
// Why an edition refuses the case.
std::string RefusedLine(CCodeEdition edition, const std::string& fault, CLanguage language);

// The type of a result.
template <class RESULTS, class VALUE>
VALUE FieldOf(VALUE RESULTS::*);

template <class CHECK>
bool HasResult(const CResultKey<typename CHECK::CResults>& key,
               const typename CHECK::CCase& input) {
  return (key.m_nKinds >> CHECK::Kind(input) & 1U) != 0;
}

// A result of a check by both editions.
struct CResultColumn {
  const char* m_szKey;
  CTextLiteral m_name;
  const char* m_szUnit;
  bool m_bVerdict;
  int m_arrAt[2];  // its position among the results of 2003 and of 2017, -1 for none
  int At(CCodeEdition edition) const noexcept { return m_arrAt[static_cast<int>(edition)]; }
};

// The results of both editions, those of 2003 first.
template <class CHECK2003, class CHECK2017>
std::vector<CResultColumn> ColumnsOf() {
  std::vector<CResultColumn> columns;
  const auto add = [&](auto keys, CCodeEdition edition) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const auto& key = keys[i];
      auto at = std::find_if(columns.begin(), columns.end(), [&](const CResultColumn& column) {
        return std::string_view(column.m_szKey) == key.m_szKey;
      });
      const bool bVerdict = std::visit(
          [](auto field) { return std::is_same_v<decltype(FieldOf(field)), bool>; }, key.m_field);
      if (at == columns.end())
        at = columns.insert(at, {key.m_szKey, key.m_name, key.m_szUnit, bVerdict, {-1, -1}});
      at->m_arrAt[static_cast<int>(edition)] = static_cast<int>(i);
    }
  };
  add(CHECK2003::ResultKeys(), CCodeEdition::Gb2003);
  add(CHECK2017::ResultKeys(), CCodeEdition::Gb2017);
  return columns;
}

template <class CHECK>
CJson CaseJson(const typename CHECK::CCase& input, const CHECK& check, CCodeEdition edition,
               CLanguage language) {
  CJson results = CJson::object();
  for (const auto& key : CHECK::ResultKeys()) {
    if (!HasResult<CHECK>(key, input)) continue;
    results[key.m_szKey] =
        std::visit([&](auto field) { return ResultJson(check.Results().*field); }, key.m_field);
  }
  CJson warnings = CJson::array();
  for (const CCaseWarning& warning : check.Warnings())
    warnings.push_back({{"key", warning.m_strKey}, {"text", warning.m_text.In(language)}});
  return {{"code", EditionFacts(edition).m_szYear},
          {"pass", check.Pass()},
          {"results", std::move(results)},
          {"utilisation", JsonNumber(check.Worst().m_dUtilisation)},
          {"governs", check.Worst().m_szKey},
          {"warnings", std::move(warnings)}};
}

// `bSurface`: the lines end with the treatment of the friction surfaces.
std::string CsvHead(std::span<const CResultColumn> columns, bool bSurface);

// All of a line behind its id but that.

template <class CHECK>
void AppendCsvLine(std::string& line, const typename CHECK::CCase& input, const CHECK& check,
                   CCodeEdition edition, std::span<const CResultColumn> columns,
                   CLanguage language) {
  const auto cell = [&](auto value) {
    line += ',';
    AppendCsv(line, value);
  };
  const CCasePart& worst = check.Worst();
  cell(check.Pass());
  cell(worst.m_dUtilisation);
  line += ',';
  line += worst.m_szKey;
  line += ',';
  line += EditionFacts(edition).m_szYear;
  const auto keys = CHECK::ResultKeys();
  for (const CResultColumn& column : columns) {
    const int at = column.At(edition);
    if (at >= 0 && HasResult<CHECK>(keys[static_cast<std::size_t>(at)], input)) {
      std::visit([&](auto field) { cell(check.Results().*field); },
                 keys[static_cast<std::size_t>(at)].m_field);
    } else {
      line += ',';
    }
  }
  line += ',';
  if (!check.Warnings().empty()) AppendCsv(line, WarningLine(check.Warnings(), language));
  line += ',';
}

// The results of one case with their units, the parts of the verdict, the verdict and what to look
// at.
template <class CHECK>
std::string CaseText(const typename CHECK::CCase& input, const CHECK& check, CCodeEdition edition,
                     CLanguage language) {
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
  return results.Text() + '\n' + parts.Text() + VerdictLines(edition, check, language);
}

}  // namespace orv3::cli
