// A check by one edition of the design code or by both, and its answers.
#pragma once

#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "cases/case_output.h"
#include "cases/case_reader.h"
#include "connections/report/connection_report.h"
#include "framework/excerpt.h"

namespace orv3::cli {

// The editions that a text asks for: "2017", "2003", or "both" with the one in force first; those
// of `otherwise` for any other text.
std::span<const CCodeEdition> EditionsNamed(std::string_view text,
                                            std::span<const CCodeEdition> otherwise);

// Those of --code, else of the variable ORV3CAL_CODE, else the one in force. Another text is
// refused by name.
std::vector<CCodeEdition> EditionsAsked(const std::string& option);

// What a case by both editions says once for both: `surface` in the order of the 2017 table, read
// by 2003 as its own treatment of the same name. Refused where it has none.
std::optional<CCaseFault> ReadByBoth(CBoltCase& input);
template <class CASE>
std::optional<CCaseFault> ReadByBoth(CASE&) {
  return std::nullopt;
}

// "surface 1: shot-blasted (sand-blasted)" of a friction-type group, whose numbers stand for other
// treatments by the other edition; empty otherwise.
std::string SurfaceText(const CBoltCase& input, CCodeEdition edition, CLanguage language);
template <class CASE>
std::string SurfaceText(const CASE& input, CCodeEdition edition, CLanguage language) {
  if constexpr (std::is_base_of_v<CBoltCase, CASE>)
    return SurfaceText(static_cast<const CBoltCase&>(input), edition, language);
  return "";
}

// The treatment alone, for a column of many cases; none of the other checks has one.
const char* SurfaceOf(const CBoltCase& input, CCodeEdition edition, CLanguage language);
template <class CASE>
inline constexpr bool kHasSurface = std::is_base_of_v<CBoltCase, CASE>;

// What is the same of a check by either edition.
class CAnyEditionRun {
 public:
  CAnyEditionRun(CCodeEdition edition, CLanguage language)
      : m_nEdition(edition), m_nLanguage(language) {}
  const CCaseFault* Fault() const noexcept { return m_fault ? &*m_fault : nullptr; }

 protected:
  const char* Year() const noexcept { return EditionFacts(m_nEdition).m_szYear; }
  std::vector<std::string> RefusedRow(const std::string& number, const std::string& id) const;

  const CCodeEdition m_nEdition;
  const CLanguage m_nLanguage;
  std::optional<CCaseFault> m_fault;
};

template <class CHECK>
class CEditionRun : public CAnyEditionRun {
 public:
  CEditionRun(const CCaseSchema& schema, CCodeEdition edition, CLanguage language)
      : CAnyEditionRun(edition, language), m_reader(schema, edition) {}

  // `bBoth`: the other edition computes the case too.
  void Run(const CReadCase& read, bool bBoth) {
    m_arrLeftOut.clear();
    m_fault = m_reader.Read(read, m_input, bBoth ? &m_arrLeftOut : nullptr);
    if (!m_fault && bBoth) m_fault = ReadByBoth(m_input);
    if (!m_fault && !m_check.Run(m_input)) m_fault = m_check.Faults().front();
    if (m_fault) return;
    for (CCaseWarning& warning : m_arrLeftOut) m_check.AddWarning(std::move(warning));
  }

  bool Pass() const { return !m_fault && m_check.Pass(); }
  const std::string& Id() const noexcept { return m_input.m_strId; }
  const CHECK& Check() const noexcept { return m_check; }

  double Worst() const {
    const double worst = m_fault ? HUGE_VAL : m_check.Worst().m_dUtilisation;
    return std::isnan(worst) ? HUGE_VAL : worst;
  }

  // A result as text; empty where the case does not have it.
  std::string ResultText(int key) const {
    if (key < 0 || m_fault) return "";
    const auto& result = CHECK::ResultKeys()[static_cast<std::size_t>(key)];
    if (!HasResult<CHECK>(result, m_input)) return "";
    return PlainNumber(std::visit(
        [&](auto field) { return static_cast<double>(m_check.Results().*field); }, result.m_field));
  }

  std::string Text() const {
    return CaseText(m_input, m_check, m_nEdition, m_nLanguage) + SurfaceLine();
  }
  std::string Verdict() const {
    if (!m_fault) return VerdictLines(m_nEdition, m_check, m_nLanguage) + SurfaceLine();
    return RefusedLine(m_nEdition, m_fault->Line(m_nLanguage), m_nLanguage);
  }

  CJson Json() const {
    if (!m_fault) {
      CJson json = CaseJson(m_input, m_check, m_nEdition, m_nLanguage);
      const std::string surface = SurfaceText(m_input, m_nEdition, m_nLanguage);
      if (!surface.empty()) json["surface"] = surface;
      return json;
    }
    return {{"code", Year()}, {"refused", m_fault->Line(m_nLanguage)}};
  }

  void AppendCsv(int number, std::span<const CResultColumn> columns, std::string& lines) const {
    lines += std::to_string(number) + ',';
    cli::AppendCsv(lines, m_input.m_strId);
    if (m_fault) {
      lines.append(4, ',').append(Year()).append(columns.size() + 2, ',');
      cli::AppendCsv(lines, m_fault->Line(m_nLanguage));
    } else {
      AppendCsvLine(lines, m_input, m_check, m_nEdition, columns, m_nLanguage);
    }
    if constexpr (kHasSurface<typename CHECK::CCase>) {
      lines += ',';
      if (!m_fault) cli::AppendCsv(lines, SurfaceOf(m_input, m_nEdition, m_nLanguage));
    }
    lines += '\n';
  }

  std::vector<std::string> Row(int number) const {
    const std::string first = std::to_string(number);
    if (m_fault) return RefusedRow(first, Id());
    const CCasePart& worst = m_check.Worst();
    std::vector<std::string> row = {first,
                                    Excerpt(Id()),
                                    Year(),
                                    VerdictText(m_check.Pass(), m_nLanguage),
                                    PercentText(worst.m_dUtilisation),
                                    worst.m_name.In(m_nLanguage),
                                    std::to_string(m_check.Warnings().size())};
    if constexpr (kHasSurface<typename CHECK::CCase>)
      row.emplace_back(SurfaceOf(m_input, m_nEdition, m_nLanguage));
    return row;
  }

  CReportCase Report(int number, const CReportSheet& sheet, CLanguage language) const {
    CReportCase each = {
        .m_nCase = number, .m_nEdition = m_nEdition, .m_strId = Id(), .m_sheet = sheet};
    if (m_fault) {
      each.m_strRefused = m_fault->Line(language);
      return each;
    }
    each.m_bPass = m_check.Pass();
    each.m_dUtilisation = m_check.Worst().m_dUtilisation;
    each.m_strGoverns = m_check.Worst().m_name.In(language);
    each.m_nWarnings = m_check.Warnings().size();
    each.m_strBody = CaseReport(m_input, m_check, language);
    return each;
  }

 private:
  std::string SurfaceLine() const {
    const std::string text = SurfaceText(m_input, m_nEdition, m_nLanguage);
    return text.empty() ? "" : text + '\n';
  }

  CCaseReader<CHECK> m_reader;
  CHECK m_check;
  typename CHECK::CCase m_input;
  std::vector<CCaseWarning> m_arrLeftOut;  // keys that the edition, asked beside the other, lacks
};

// One case by both editions: the results side by side, then both verdicts.
template <class RUN2017, class RUN2003>
std::string BothText(std::span<const CResultColumn> columns, const RUN2017& first,
                     const RUN2003& second, CLanguage language) {
  CTextTable results({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Right, CAlign::Left});
  results.AddRow({"", "", EditionFacts(CCodeEdition::Gb2017).m_szYear,
                  EditionFacts(CCodeEdition::Gb2003).m_szYear, ""});
  for (const CResultColumn& column : columns) {
    if (column.m_bVerdict) continue;
    std::string a = first.ResultText(column.At(CCodeEdition::Gb2017));
    std::string b = second.ResultText(column.At(CCodeEdition::Gb2003));
    if (a.empty() && b.empty()) continue;
    results.AddRow(
        {column.m_name.In(language), column.m_szKey, std::move(a), std::move(b), column.m_szUnit});
  }
  return results.Text() + first.Verdict() + second.Verdict();
}

// The verdict of both is that both pass; the utilisation is the greater.
template <class RUN2017, class RUN2003>
CJson BothJson(const RUN2017& first, const RUN2003& second) {
  CJson json = {{"code", "both"}, {"pass", first.Pass() && second.Pass()}};
  const bool bFirst =
      second.Fault() != nullptr || (first.Fault() == nullptr && first.Worst() >= second.Worst());
  const CJson worst = bFirst ? first.Json() : second.Json();
  for (const char* key : {"utilisation", "governs"})
    if (worst.contains(key)) json[key] = worst[key];
  json["editions"] = CJson::array({first.Json(), second.Json()});
  return json;
}

}  // namespace orv3::cli
