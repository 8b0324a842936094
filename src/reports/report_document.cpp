// The pages of a report: the summary, and a sheet for every case.
#include "reports/report_document.h"

#include <algorithm>

#include "framework/excerpt.h"
#include "reports/report_page.h"

namespace orv3 {
namespace {

constexpr const char* kStyle = R"(
@page { size: A4; margin: 14mm 15mm 13mm 18mm;
       font: 8pt "Noto Sans CJK SC", "Source Han Sans SC", "Microsoft YaHei",
       "WenQuanYi Micro Hei", Arial, sans-serif; color: #44535f; }
* { box-sizing: border-box; }
body { font: 9.5pt/1.3 "Noto Sans CJK SC", "Source Han Sans SC", "Microsoft YaHei",
       "WenQuanYi Micro Hei", Arial, sans-serif; color: #16202b; margin: 0 auto; max-width: 178mm; }
article + article { break-before: page; }
.sheet { table-layout: fixed; font-size: 8.5pt; } .sheet td { overflow-wrap: anywhere; }
.sheet th { width: 17mm; } .sheet .sign td { height: 8mm; }
h1 { font-size: 14pt; margin: 2mm 0 1mm; }
h2 { font-size: 11pt; margin: 2.5mm 0 0.8mm; color: #234a78; break-after: avoid; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: 0.4mm 1.6mm; border: 0.5pt solid #c3ccd4; text-align: left; vertical-align: top; }
th { background: #eef2f6; font-weight: 600; }
tr, figure, .box { break-inside: avoid; }
thead { display: table-header-group; }
td.num, th.num { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
td.clause { white-space: nowrap; font-size: 9pt; color: #44535f; }
.inputs { table-layout: fixed; } .inputs td { width: 13%; overflow-wrap: anywhere; }
.inputs td.name { width: 26%; } .inputs td.unit { width: 11%; }
.inputs td.num { white-space: normal; }
td.res { text-align: right; font-weight: 600; font-variant-numeric: tabular-nums;
      white-space: nowrap; border-right: none; vertical-align: bottom; }
td.unit { white-space: nowrap; } td.res + td.unit { border-left: none; padding-left: 0;
      vertical-align: bottom; }
table.steps { table-layout: fixed; }
table.verdicts { break-inside: avoid; }
table.summary { table-layout: fixed; break-inside: auto; }
.summary td { white-space: normal; overflow-wrap: anywhere; }
td.tick { white-space: nowrap; }
.eq { display: grid; grid-template-columns: 4.2em 1fr; column-gap: 0.4em; }
.eq > .sym { text-align: right; } .eq > .rhs { overflow-wrap: anywhere; }
.m { font-family: "Cambria Math", "STIX Two Text", "Liberation Serif", "Times New Roman", serif; }
.ss { display: inline-flex; flex-direction: column; vertical-align: middle; font-size: 0.68em;
      line-height: 1.05; }
sub, sup { font-size: 0.7em; line-height: 0; }
.box { border: 0.8pt solid; border-radius: 2pt; padding: 1.3mm 3mm; margin: 1.5mm 0; }
.verdict { display: flex; justify-content: space-between; font-weight: 600; }
.pass { color: #14633a; } .fail { color: #a4161a; }
.box.pass { background: #eef8f1; } .box.fail { background: #fdf0ef; }
.warn { border-color: #b26a00; background: #fff7e8; }
.warn ul { margin: 0; padding-left: 5mm; }
.bar { position: relative; height: 3.2mm; width: 22mm; margin-top: 1mm; background: #e7ecf0; }
.bar > i { position: absolute; inset: 0 auto 0 0; background: #3c8d5a; }
.bar.over > i { background: #c0392b; }
figure { margin: 1.5mm 0; text-align: center; }
figure svg { max-width: 100%; max-height: 100mm; height: auto; }
figure.wide svg { height: 42mm; width: auto; }
figcaption { font-size: 9pt; color: #44535f; }
.note { font-size: 8pt; color: #44535f; margin: 1mm 0; }
@media print { * { print-color-adjust: exact; -webkit-print-color-adjust: exact; } }
)";

// A text in a style sheet: what is no letter, digit or part of a longer character is spelt out.
std::string CssText(std::string_view text) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string out = "\"";
  for (const char ch : text) {
    const auto byte = static_cast<unsigned char>(ch);
    const bool bPlain = byte >= 0x80 || (ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'z') ||
                        (ch >= 'A' && ch <= 'Z');
    out += bPlain ? std::string(1, ch)
                  : std::string{'\\', kDigits[byte >> 4], kDigits[byte & 15], ' '};
  }
  return out + "\"";
}

std::string CaseName(const CReportCase& each, CLanguage language) {
  static constexpr CTextLiteral kCase = {"算例 ", "Case "};
  if (!each.m_strId.empty()) return Excerpt(each.m_strId);
  return kCase.In(language) + std::to_string(each.m_nCase);
}

// A report of one case that was computed is its sheet; any other begins with a summary.
bool HasSummary(std::span<const CReportCase> cases) {
  return cases.size() != 1 || !cases[0].m_strRefused.empty();
}

class CReportWriter {
 public:
  CReportWriter(const CReportTitle& title, std::span<const CReportCase> cases, CLanguage language)
      : m_title(title), m_arrCase(cases), m_nLanguage(language) {}

  std::string Write() {
    m_strHtml = std::string("<!DOCTYPE html>\n<html lang=\"") +
                (m_nLanguage == CLanguage::Chinese ? "zh-CN" : "en") +
                "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + Escaped(m_title.m_strTitle) +
                "</title>\n<style>" + kStyle;
    Margins();
    m_strHtml += "</style>\n</head>\n<body>\n";
    if (HasSummary(m_arrCase)) Summary();
    for (const CReportCase& each : m_arrCase) {
      if (each.m_strRefused.empty()) Sheet(each);
    }
    return m_strHtml + "</body>\n</html>\n";
  }

 private:
  const char* Text(const CTextLiteral& text) const noexcept { return text.In(m_nLanguage); }

  // The margins of every page: the code and the version, the page's number; above, the case.
  void Margins() {
    static constexpr CTextLiteral kPage[] = {
        {"\"第 \" counter(page) \" 页　共 \" counter(pages) \" 页\"",
         "\"page \" counter(page) \" of \" counter(pages)"}};
    m_strHtml += "@page { @bottom-left { content: " + CssText(CodeNames() + " · " + Version()) +
                 "; } @bottom-right { content: " + Text(kPage[0]) + "; } }\n";
    for (const CReportCase& each : m_arrCase) {
      const std::string number = PageName(each);
      m_strHtml += "@page " + number +
                   " { @top-left { content: " + CssText(Excerpt(each.m_sheet.m_strProject)) +
                   "; } @top-right { content: " + CssText(CaseName(each, m_nLanguage)) +
                   "; } @bottom-left { content: " +
                   CssText(EditionFacts(each.m_nEdition).m_szName + (" · " + Version())) +
                   "; } }\n." + number + " { page: " + number + "; }\n";
    }
  }

  // "case3-2017"
  static std::string PageName(const CReportCase& each) {
    return "case" + std::to_string(each.m_nCase) + "-" + EditionFacts(each.m_nEdition).m_szYear;
  }

  // "GB 50017-2017, GB 50017-2003"
  std::string CodeNames() const {
    std::string names;
    for (const CCodeEdition edition : Editions())
      names += (names.empty() ? "" : ", ") + std::string(EditionFacts(edition).m_szName);
    return names;
  }

  std::string Version() const { return "Orv3Cal " + m_title.m_strVersion; }

  void Cell(const CTextLiteral& name, const std::string& value, int columns = 1) {
    const std::string span = columns == 1 ? "" : " colspan=\"" + std::to_string(columns) + "\"";
    m_strHtml +=
        std::string("<th>") + Text(name) + "</th><td" + span + ">" + Escaped(value) + "</td>";
  }

  // Project, case, date, version and the boxes to sign, then the code with its standing.
  void Head(const CReportSheet& sheet, const std::string& name,
            std::span<const CCodeEdition> editions) {
    m_strHtml += "<table class=\"sheet\"><tr>";
    Cell({"工程", "Project"}, sheet.m_strProject, 3);
    Cell({"日期", "Date"}, sheet.m_strDate);
    m_strHtml += "</tr>\n<tr>";
    Cell({"内容", "Subject"}, name, 3);
    Cell({"版本", "Version"}, Version());
    m_strHtml += "</tr>\n<tr class=\"sign\">";
    Cell({"计算", "Calculated"}, sheet.m_strCalculated);
    Cell({"校核", "Checked"}, sheet.m_strChecked);
    Cell({"审定", "Approved"}, sheet.m_strApproved);
    m_strHtml += "</tr></table>\n<p class=\"note\">" + Basis(editions) + "</p>\n";
  }

  // The editions with their standing, each once.
  std::string Basis(std::span<const CCodeEdition> editions) const {
    static constexpr CTextLiteral kNames[] = {
        {"《钢结构设计规范》GB 50017-2003", "GB 50017-2003, Code for design of steel structures"},
        {"《钢结构设计标准》GB 50017-2017",
         "GB 50017-2017, Standard for design of steel structures"}};
    std::string basis;
    for (const CCodeEdition edition : editions) {
      const std::string name = Text(kNames[static_cast<int>(edition)]);
      const std::string status = Text(EditionFacts(edition).m_status);
      const CText line = {"依据" + name + "（" + status + "）。",
                          "By " + name + " (" + status + ")."};
      basis += (basis.empty() ? "" : " ") + line.In(m_nLanguage);
    }
    return basis;
  }

  // Those of the cases, the one in force first.
  std::vector<CCodeEdition> Editions() const {
    std::vector<CCodeEdition> editions;
    for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
      if (std::any_of(m_arrCase.begin(), m_arrCase.end(),
                      [edition](const auto& each) { return each.m_nEdition == edition; }))
        editions.push_back(edition);
    }
    return editions;
  }

  void Sheet(const CReportCase& each) {
    m_strHtml += "<article class=\"" + PageName(each) + "\">\n";
    Head(each.m_sheet, CaseName(each, m_nLanguage), {&each.m_nEdition, 1});
    m_strHtml += each.m_strBody + "</article>\n";
  }

  // What all cases agree in; a project may be given by some of them alone, a signature may not.
  CReportSheet CommonSheet() const {
    CReportSheet common;
    for (const CSheetKey& key : kSheetKeys) {
      const auto value = [&](const CReportCase& each) -> const std::string& {
        return each.m_sheet.*key.m_pField;
      };
      const auto given = std::find_if(m_arrCase.begin(), m_arrCase.end(),
                                      [&](const auto& each) { return !value(each).empty(); });
      if (given == m_arrCase.end()) continue;
      const bool bProject = key.m_pField == &CReportSheet::m_strProject;
      const bool bAgree = std::all_of(m_arrCase.begin(), m_arrCase.end(), [&](const auto& each) {
        return value(each) == value(*given) || (bProject && value(each).empty());
      });
      if (bAgree) common.*key.m_pField = value(*given);
    }
    return common;
  }

  void Summary() {
    static constexpr CTextLiteral kTitle = {"验算汇总", "Summary"};
    m_strHtml += "<article>\n";
    Head(CommonSheet(), Text(kTitle), Editions());
    m_strHtml += std::string("<h1>") + Text(kTitle) + "</h1>\n" + Count() +
                 "<table class=\"verdicts summary\"><thead><tr>";
    static constexpr struct {
      CTextLiteral m_name;
      const char* m_szWidth;
    } kColumns[] = {{{"序号", "Case"}, "8%"},           {{"编号", "Id"}, "23%"},
                    {{"版本", "Code"}, "8%"},           {{"结论", "Verdict"}, "12%"},
                    {{"利用率", "Utilisation"}, "13%"}, {{"控制项", "Governs"}, "25%"},
                    {{"请注意", "Warnings"}, "11%"}};
    for (const auto& column : kColumns) {
      m_strHtml += std::string("<th style=\"width:") + column.m_szWidth + "\">" +
                   Text(column.m_name) + "</th>";
    }
    m_strHtml += "</tr></thead>\n";
    for (const CReportCase& each : m_arrCase) Line(each);
    m_strHtml += "</table>\n</article>\n";
  }

  std::string Count() const {
    const auto count = [&](auto holds) {
      return std::to_string(std::count_if(m_arrCase.begin(), m_arrCase.end(), holds));
    };
    const std::string all = std::to_string(m_arrCase.size());
    // A case by both editions has two lines, one after the other.
    int nCases = 0;
    for (std::size_t i = 0; i < m_arrCase.size(); ++i)
      nCases += i == 0 || m_arrCase[i].m_nCase != m_arrCase[i - 1].m_nCase;
    const std::string cases = std::to_string(nCases);
    const CText what =
        cases == all ? CText{all + " 个算例", all + " cases"}
                     : CText{cases + " 个算例、" + all + " 项验算",
                             cases + (nCases == 1 ? " case, " : " cases, ") + all + " checks"};
    const std::string refused = count([](auto& each) { return !each.m_strRefused.empty(); });
    const std::string passes = count([](auto& each) { return each.m_bPass; });
    const std::string fails =
        count([](auto& each) { return each.m_strRefused.empty() && !each.m_bPass; });
    const CText text = {
        "共 " + what.m_strChinese + "：满足 " + passes + "，不满足 " + fails + "，拒绝 " + refused +
            "。",
        what.m_strEnglish + ": " + passes + " pass, " + fails + " fail, " + refused + " refused."};
    const bool bAll = all == passes;
    return std::string("<div class=\"box ") + (bAll ? "pass" : "fail") + "\">" +
           text.In(m_nLanguage) + "</div>\n";
  }

  void Line(const CReportCase& each) {
    static constexpr CTextLiteral kRefused = {"拒绝", "refused"};
    m_strHtml += "<tr><td class=\"num\">" + std::to_string(each.m_nCase) + "</td><td>" +
                 Escaped(Excerpt(each.m_strId)) + "</td><td>" +
                 EditionFacts(each.m_nEdition).m_szYear + "</td><td class=\"tick\">";
    if (!each.m_strRefused.empty()) {
      m_strHtml += std::string("<span class=\"fail\">") + Text(kRefused) +
                   "</span></td><td colspan=\"3\">" + Escaped(each.m_strRefused) + "</td></tr>\n";
      return;
    }
    m_strHtml += Verdict(each.m_bPass, m_nLanguage) + "</td><td class=\"num\">" +
                 Percent(each.m_dUtilisation) + "</td><td>" + Escaped(each.m_strGoverns) +
                 "</td><td class=\"num\">" + std::to_string(each.m_nWarnings) + "</td></tr>\n";
  }

  const CReportTitle& m_title;
  const std::span<const CReportCase> m_arrCase;
  const CLanguage m_nLanguage;
  std::string m_strHtml;
};

}  // namespace

std::string ReportDocument(const CReportTitle& title, std::span<const CReportCase> cases,
                           CLanguage language) {
  return CReportWriter(title, cases, language).Write();
}

}  // namespace orv3
