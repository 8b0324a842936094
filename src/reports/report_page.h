// The body of one case's calculation report, in HTML.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/drawing.h"
#include "reports/case_keys.h"

namespace orv3 {

// Text as HTML, its control characters visible.
std::string Escaped(std::string_view text);
std::string Percent(double utilisation);
std::string Verdict(bool bPass, CLanguage language);

// A formula as HTML. `_x` or `_{text}` sets a subscript, `^` a superscript, both after one another
// stand above each other; letters are italic, `\name` is upright ("\max").
std::string Formula(std::string_view text);

// A number put into a formula, a negative one in brackets.
std::string Put(double value);

// An effect against its limit: "7.1 ≤ 8", with the digits that show one that fails. `passes`: "≤",
// or "<" where equality fails.
std::string Relation(double effect, double limit, bool bPass, std::string_view passes = "≤");

// One step: what is computed, the formula in symbols, the numbers put in and what comes out.
struct CReportStep {
  CTextLiteral m_name;
  std::string m_strClause;   // "7.2.1", "T 3.4.1-1" for a table; empty where the code has none
  std::string m_strSymbol;   // in Formula's notation, as the next two
  std::string m_strFormula;  // empty for a value that a table gives
  std::string m_strNumbers;  // empty when the formula has nothing to put in
  std::string m_strResult;
  const char* m_szUnit = "";
};

// A comparison that ends the steps.
struct CReportVerdict {
  CTextLiteral m_name;
  std::string m_strClause;
  std::string m_strCondition;  // in symbols
  std::string m_strNumbers;
  double m_dUtilisation = 0;
  bool m_bPass = false;
};

// The body of one case's report, written from top to bottom.
class CReportBody {
 public:
  explicit CReportBody(CLanguage language) : m_nLanguage(language) {}

  const char* Text(const CTextLiteral& text) const noexcept { return text.In(m_nLanguage); }
  void Title(const std::string& title, bool bPass, double utilisation);
  void Heading(const CTextLiteral& text);
  void Warnings(std::span<const CCaseWarning> warnings);
  struct CInputLine {
    std::string m_strName;
    std::string m_strValue;
    std::string m_strUnit;
  };
  void Inputs(std::span<const CInputLine> lines);
  // Heads as text, cells as HTML.
  void Table(std::span<const std::string> head, std::span<const std::vector<std::string>> rows);
  void Figure(const CDrawing& drawing, const std::string& caption);
  void Steps(std::span<const CReportStep> steps);
  void Verdicts(std::span<const CReportVerdict> verdicts);
  void Note(const CTextLiteral& text);
  CLanguage Language() const noexcept { return m_nLanguage; }
  std::string Take() { return std::move(m_strHtml); }

 private:
  std::string Clause(const std::string& clause) const;

  CLanguage m_nLanguage;
  std::string m_strHtml;
};

// The lines of the input table: every key that the case's file would give.
template <class CASE>
std::vector<CReportBody::CInputLine> InputLines(const CASE& input,
                                                std::span<const CInputKey<CASE>> keys,
                                                CLanguage language);

std::string InputText(int value, std::span<const char* const> choices);
std::string InputText(double value, std::span<const char* const>);
std::string InputText(const std::string& value, std::span<const char* const>);
std::string InputText(const CSpacing& value, std::span<const char* const>);
std::string InputText(const std::vector<double>& value, std::span<const char* const>);

template <class CASE>
std::vector<CReportBody::CInputLine> InputLines(const CASE& input,
                                                std::span<const CInputKey<CASE>> keys,
                                                CLanguage language) {
  std::vector<CReportBody::CInputLine> lines;
  for (const CInputKey<CASE>& key : keys) {
    const std::string value =
        std::visit([&](auto field) { return InputText(input.*field, key.m_choices); }, key.m_field);
    lines.push_back({key.m_name.In(language), value, key.m_szUnit});
  }
  return lines;
}

}  // namespace orv3
