#include "reports/report_page.h"

#include <algorithm>
#include <cmath>

#include "framework/plain_number.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

bool IsLetter(char ch) noexcept { return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z'); }

std::size_t CharLength(char first) noexcept {
  const auto byte = static_cast<unsigned char>(first);
  return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// The script after `_` or `^`: a group in braces or one character. Moves `text` past it.
std::string Script(std::string_view& text) {
  std::string_view script;
  if (text.starts_with('{')) {
    const std::size_t end = std::min(text.find('}'), text.size());
    script = text.substr(1, end - 1);
    text.remove_prefix(std::min(end + 1, text.size()));
  } else {
    script = text.substr(0, text.empty() ? 0 : CharLength(text.front()));
    text.remove_prefix(script.size());
  }
  return Escaped(script);
}

std::string Scripts(std::string_view& text) {
  const bool bSub = text.front() == '_';
  text.remove_prefix(1);
  const std::string first = Script(text);
  if (text.starts_with(bSub ? '^' : '_')) {
    text.remove_prefix(1);
    const std::string second = Script(text);
    return "<span class=\"ss\"><span>" + (bSub ? second : first) + "</span><span>" +
           (bSub ? first : second) + "</span></span>";
  }
  return bSub ? "<sub>" + first + "</sub>" : "<sup>" + first + "</sup>";
}

std::string Bar(double utilisation) {
  const double size = std::isfinite(utilisation) ? std::fabs(utilisation) : 9;
  const std::string width = PlainNumber(std::min(100.0, 100 * size));
  return std::string("<div class=\"bar") + (size > 1 ? " over" : "") +
         "\"><i style=\"width:" + width + "%\"></i></div>";
}

// The symbol, the formula and the numbers, one line each with their equals signs aligned.
std::string Equation(const CReportStep& step) {
  std::string html =
      "<div class=\"eq m\"><span class=\"sym\">" + Formula(step.m_strSymbol) + "</span>";
  bool bFirst = true;
  for (const std::string* text : {&step.m_strFormula, &step.m_strNumbers}) {
    if (text->empty()) continue;
    if (!bFirst) html += "<span></span>";
    html += "<span class=\"rhs\">= " + Formula(*text) + "</span>";
    bFirst = false;
  }
  return html + "</div>";
}

}  // namespace

std::string Percent(double utilisation) {
  if (!std::isfinite(utilisation)) return "—";
  return PercentNumber(utilisation) + "%";
}

std::string Verdict(bool bPass, CLanguage language) {
  static constexpr CTextLiteral kPass = {"满足", "passes"};
  static constexpr CTextLiteral kFail = {"不满足", "fails"};
  return std::string("<span class=\"") + (bPass ? "pass" : "fail") + "\">" +
         (bPass ? kPass : kFail).In(language) + "</span>";
}

std::string Escaped(std::string_view text) {
  std::string out;
  for (const char ch : Visible(text, true)) {
    switch (ch) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += ch;
    }
  }
  return out;
}

std::string Formula(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const char ch = text.front();
    if (ch == '_' || ch == '^') {
      out += Scripts(text);
      continue;
    }
    const bool bUpright = ch == '\\';
    if (bUpright) text.remove_prefix(1);
    const auto end = std::find_if_not(text.begin(), text.end(), IsLetter);
    const std::string_view word(text.data(), static_cast<std::size_t>(end - text.begin()));
    if (!word.empty()) {
      out += bUpright ? std::string(word) : "<i>" + std::string(word) + "</i>";
      text.remove_prefix(word.size());
    } else if (!text.empty()) {
      const std::size_t length = std::min(CharLength(text.front()), text.size());
      out += Escaped(text.substr(0, length));
      text.remove_prefix(length);
    }
  }
  return out;
}

std::string Put(double value) {
  const std::string text = SubstitutedNumber(value);
  return value < 0 ? "(" + text + ")" : text;
}

std::string Relation(double effect, double limit, bool bPass, std::string_view passes) {
  // What passes by the last digits of a double alone is the limit itself.
  const CComparedText text = passes == "<"
                                 ? Apart(effect, limit)
                                 : Compared(bPass ? std::min(effect, limit) : effect, limit);
  const std::string sign(bPass ? passes : effect > limit ? ">" : "≮");
  return text.m_strEffect + " " + sign + " " + text.m_strLimit;
}

std::string InputText(int value, std::span<const char* const> choices) {
  const auto at = static_cast<std::size_t>(value);
  return at < choices.size() ? choices[at] : std::to_string(value);
}

std::string InputText(double value, std::span<const char* const>) { return PlainNumber(value); }

std::string InputText(const std::string& value, std::span<const char* const>) { return value; }

std::string InputText(const std::vector<double>& value, std::span<const char* const>) {
  std::string text;
  for (const double each : value) text += (text.empty() ? "" : ", ") + PlainNumber(each);
  return text;
}

std::string InputText(const CSpacing& value, std::span<const char* const> choices) {
  return value.m_arrEach.empty() ? PlainNumber(value.m_dUniform)
                                 : InputText(value.m_arrEach, choices);
}

std::string CReportBody::Clause(const std::string& clause) const {
  if (clause.empty()) return "";
  const bool bTable = clause.starts_with("T ");
  const std::string number = bTable ? clause.substr(2) : clause;
  if (m_nLanguage == CLanguage::English) return (bTable ? "Table " : "") + number;
  return bTable ? "表 " + number : number + " 条";
}

void CReportBody::Title(const std::string& title, bool bPass, double utilisation) {
  static constexpr CTextLiteral kResult = {"验算结论：", "Verdict: "};
  static constexpr CTextLiteral kWorst = {"最大利用率 ", "greatest utilisation "};
  m_strHtml += "<h1>" + Escaped(title) + "</h1>\n";
  m_strHtml += std::string("<div class=\"box verdict ") + (bPass ? "pass" : "fail") + "\"><span>" +
               Text(kResult) + Verdict(bPass, m_nLanguage) + "</span><span>" + Text(kWorst) +
               Percent(utilisation) + "</span></div>\n";
}

void CReportBody::Heading(const CTextLiteral& text) {
  m_strHtml += std::string("<h2>") + Text(text) + "</h2>\n";
}

void CReportBody::Warnings(std::span<const CCaseWarning> warnings) {
  if (warnings.empty()) return;
  static constexpr CTextLiteral kLook = {"请注意", "Look at this"};
  m_strHtml += std::string("<div class=\"box warn\"><b>") + Text(kLook) + "</b><ul>\n";
  for (const CCaseWarning& warning : warnings)
    m_strHtml += "<li>" + Escaped(warning.Line(m_nLanguage)) + "</li>\n";
  m_strHtml += "</ul></div>\n";
}

void CReportBody::Inputs(std::span<const CInputLine> lines) {
  m_strHtml += "<table class=\"inputs\">\n";
  for (std::size_t i = 0; i < lines.size(); i += 2) {
    m_strHtml += "<tr>";
    for (std::size_t k = i; k < i + 2; ++k) {
      const bool bLine = k < lines.size();
      m_strHtml += "<td class=\"name\">" + (bLine ? Escaped(lines[k].m_strName) : "") +
                   "</td><td class=\"num\">" + (bLine ? Escaped(lines[k].m_strValue) : "") +
                   "</td><td class=\"unit\">" + (bLine ? lines[k].m_strUnit : "") + "</td>";
    }
    m_strHtml += "</tr>\n";
  }
  m_strHtml += "</table>\n";
}

void CReportBody::Table(std::span<const std::string> head,
                        std::span<const std::vector<std::string>> rows) {
  m_strHtml += "<table class=\"list\"><thead><tr>";
  for (const std::string& name : head) m_strHtml += "<th>" + Escaped(name) + "</th>";
  m_strHtml += "</tr></thead>\n";
  for (const auto& row : rows) {
    m_strHtml += "<tr>";
    for (const std::string& cell : row) m_strHtml += "<td>" + cell + "</td>";
    m_strHtml += "</tr>\n";
  }
  m_strHtml += "</table>\n";
}

void CReportBody::Figure(const CDrawing& drawing, const std::string& caption) {
  std::string svg = DrawingSvg(drawing);
  svg.erase(0, std::min(svg.find("<svg"), svg.size()));
  const bool bWide = drawing.Width() > 3 * drawing.Height();
  m_strHtml += std::string(bWide ? "<figure class=\"wide\">\n" : "<figure>\n") + svg +
               "\n<figcaption>" + caption + "</figcaption></figure>\n";
}

void CReportBody::Steps(std::span<const CReportStep> steps) {
  static constexpr CTextLiteral kStep = {"计算内容", "Step"};
  static constexpr CTextLiteral kFormula = {"公式与代入", "Formula and numbers"};
  static constexpr CTextLiteral kResult = {"结果", "Result"};
  static constexpr CTextLiteral kClause = {"条文", "Clause"};
  m_strHtml += std::string("<table class=\"steps\"><thead><tr><th style=\"width:22%\">") +
               Text(kStep) + "</th><th>" + Text(kFormula) +
               "</th><th class=\"num\" style=\"width:14%\">" + Text(kResult) +
               "</th><th style=\"width:8%\"></th><th style=\"width:13%\">" + Text(kClause) +
               "</th></tr></thead>\n";
  for (const CReportStep& step : steps) {
    m_strHtml += std::string("<tr><td>") + Text(step.m_name) + "</td><td>" + Equation(step) +
                 "</td><td class=\"res\">" + Escaped(step.m_strResult) +
                 "</td><td class=\"unit\">" + step.m_szUnit + "</td><td class=\"clause\">" +
                 Clause(step.m_strClause) + "</td></tr>\n";
  }
  m_strHtml += "</table>\n";
}

void CReportBody::Verdicts(std::span<const CReportVerdict> verdicts) {
  static constexpr CTextLiteral kHead[] = {{"验算项目", "Check"},
                                           {"条件", "Condition"},
                                           {"条文", "Clause"},
                                           {"利用率", "Utilisation"},
                                           {"结论", "Verdict"}};
  m_strHtml += "<table class=\"verdicts\"><thead><tr>";
  for (std::size_t i = 0; i < std::size(kHead); ++i) {
    m_strHtml +=
        std::string("<th") + (i == 3 ? " colspan=\"2\"" : "") + ">" + Text(kHead[i]) + "</th>";
  }
  m_strHtml += "</tr></thead>\n";
  for (const CReportVerdict& verdict : verdicts) {
    m_strHtml += std::string("<tr><td>") + Text(verdict.m_name) + "</td><td><div class=\"m\">" +
                 Formula(verdict.m_strCondition) + "</div><div class=\"m\">" +
                 Formula(verdict.m_strNumbers) + "</div></td><td class=\"clause\">" +
                 Clause(verdict.m_strClause) + "</td><td class=\"num\">" +
                 Percent(verdict.m_dUtilisation) + "</td><td>" + Bar(verdict.m_dUtilisation) +
                 "</td><td class=\"tick\">" + Verdict(verdict.m_bPass, m_nLanguage) +
                 "</td></tr>\n";
  }
  m_strHtml += "</table>\n";
}

void CReportBody::Note(const CTextLiteral& text) {
  m_strHtml += std::string("<p class=\"note\">") + Text(text) + "</p>\n";
}

}  // namespace orv3
