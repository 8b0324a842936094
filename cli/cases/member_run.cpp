#include "cases/member_run.h"

#include <cmath>
#include <span>

#include "cases/case_output.h"
#include "codes/edition.h"
#include "framework/excerpt.h"
#include "members/cases/member_results.h"
#include "members/report/member_report.h"

namespace orv3::cli {
namespace {

CJson StepsJson(const CMemberAnswer& answer, std::size_t first, std::size_t end) {
  CJson steps = CJson::array();
  for (std::size_t i = first; i < end; ++i) steps.push_back(answer.StepText(i));
  return steps;
}

CJson ResultsJson(const CMemberResults& r) {
  CJson results = CJson::object();
  for (const CMemberResult& key : MemberResultKeys()) {
    const double value = r.*key.m_pField;
    if (!std::isnan(value)) results[key.m_szKey] = JsonNumber(value);
  }
  for (const CMemberText& key : MemberTextKeys()) {
    const char* text = r.*key.m_pField;
    if (*text != 0) results[key.m_szKey] = text;
  }
  return results;
}

}  // namespace

// --- The check -----------------------------------------------------------------------------------

void CMemberRun::Run(const CReadMember& member, const std::optional<CCaseFault>& read) {
  m_pMember = &member;
  m_fault = read;
  m_envelope.Clear();
  for (const CMemberCase& each : member.m_arrCase) {
    if (m_fault) return;
    if (m_check.Run(each)) {
      m_envelope.Add(m_check.Answer());
    } else {
      m_fault = member.m_bEnvelope ? OfCombination(each.m_strId, m_check.Fault()) : m_check.Fault();
    }
  }
}

double CMemberRun::Worst() const {
  const double worst = m_fault ? HUGE_VAL : Answer().Worst().m_dRatio;
  return std::isnan(worst) ? HUGE_VAL : worst;
}

const char* CMemberRun::Year() const { return EditionFacts(m_check.Edition()).m_szYear; }

// --- The combinations ----------------------------------------------------------------------------

std::string CMemberRun::CaseNames(const std::vector<std::size_t>& indices) const {
  std::string names;
  const char* comma = m_nLanguage == CLanguage::Chinese ? "、" : ", ";
  for (const std::size_t index : indices) names += (names.empty() ? "" : comma) + CaseName(index);
  return names;
}

// With the combinations that it is of, where it is not of all.
std::string CMemberRun::NoteText(const CMemberEnvelope::CNoted& noted) const {
  std::string text = MemberNoteText(noted.m_nNote).In(m_nLanguage);
  if (noted.m_arrCase.size() < m_pMember->m_arrCase.size())
    text += " (" + CaseNames(noted.m_arrCase) + ")";
  return text;
}

std::string CMemberRun::NoteLine() const {
  std::string line;
  for (const auto& noted : m_envelope.Notes())
    line += std::string(line.empty() ? "" : " | ") + MemberNoteKey(noted.m_nNote) + ": " +
            NoteText(noted);
  return line;
}

// "strength: LC2 | lateral: LC1"
std::string CMemberRun::Combinations() const {
  std::string line;
  if (!m_pMember->m_bEnvelope) return line;
  for (const auto& part : m_envelope.Parts()) {
    line += (line.empty() ? "" : " | ") + std::string(MemberCheckName(part.m_pPart->m_nKind)) +
            ": " + CaseName(part.m_nCase);
  }
  return line;
}

// "stability about x (LC2)"
std::string CMemberRun::Governs(const char* name) const {
  if (!m_pMember->m_bEnvelope) return name;
  return std::string(name) + " (" + Excerpt(CaseName(m_envelope.WorstCase())) + ")";
}

// --- The answers ---------------------------------------------------------------------------------

std::string CMemberRun::CsvHead() {
  std::string line = "case,id,code,pass,ratio,governs";
  for (std::size_t i = 0; i < kMemberCheckKinds; ++i)
    line += std::string(",") + MemberCheckName(static_cast<CMemberCheckKind>(i));
  for (const CMemberResult& key : MemberResultKeys()) line += std::string(",") + key.m_szKey;
  return line + ",combinations,warnings,refused\n";
}

void CMemberRun::AppendCsv(int number, std::string& line) const {
  line += std::to_string(number) + ',';
  cli::AppendCsv(line, m_pMember->m_strId);
  if (m_fault) {
    line.append(kMemberCheckKinds + MemberResultKeys().size() + 7, ',');
    cli::AppendCsv(line, m_fault->Line(m_nLanguage));
    line += '\n';
    return;
  }
  const CMemberAnswer& answer = Answer();
  line += std::string(",") + Year() + ',';
  cli::AppendCsv(line, Pass());
  line += ',';
  cli::AppendCsv(line, answer.Worst().m_dRatio);
  line += std::string(",") + MemberCheckName(answer.Worst().m_nKind);
  double ratios[kMemberCheckKinds];
  std::fill_n(ratios, kMemberCheckKinds, NAN);
  for (const auto& part : m_envelope.Parts())
    ratios[static_cast<std::size_t>(part.m_pPart->m_nKind)] = part.m_pPart->m_dRatio;
  for (const double ratio : ratios) {
    line += ',';
    cli::AppendCsv(line, ratio);
  }
  for (const CMemberResult& key : MemberResultKeys()) {
    line += ',';
    cli::AppendCsv(line, answer.m_results.*key.m_pField);
  }
  line += ',';
  cli::AppendCsv(line, Combinations());
  line += ',';
  cli::AppendCsv(line, NoteLine());
  line += ",\n";
}

CJson CMemberRun::CasesJson() const {
  CJson cases = CJson::array();
  for (std::size_t i = 0; i < m_envelope.Answers().size(); ++i) {
    const CMemberAnswer& answer = m_envelope.Answers()[i];
    cases.push_back({{"id", CaseName(i)},
                     {"pass", answer.Pass()},
                     {"ratio", JsonNumber(answer.Worst().m_dRatio)},
                     {"governs", MemberCheckName(answer.Worst().m_nKind)}});
  }
  return cases;
}

CJson CMemberRun::Json() const {
  if (m_fault) return {{"code", Year()}, {"refused", m_fault->Line(m_nLanguage)}};
  const bool bEnvelope = m_pMember->m_bEnvelope;
  const CMemberAnswer& worst = Answer();
  CJson checks = CJson::array();
  for (const auto& [index, part] : m_envelope.Parts()) {
    CJson check = {
        {"name", MemberCheckName(part->m_nKind)},
        {"clause", std::string(EditionFacts(m_check.Edition()).m_szName) + " " + part->m_szClause},
        {"ratio", JsonNumber(part->m_dRatio)},
        {"pass", part->m_bPass}};
    if (bEnvelope) check["case"] = CaseName(index);
    check["steps"] = StepsJson(m_envelope.Answers()[index], part->m_nFirst, part->m_nEnd);
    checks.push_back(std::move(check));
  }
  CJson warnings = CJson::array();
  for (const auto& noted : m_envelope.Notes()) {
    warnings.push_back({{"key", MemberNoteKey(noted.m_nNote)},
                        {"text", MemberNoteText(noted.m_nNote).In(m_nLanguage)}});
    if (!bEnvelope) continue;
    for (const std::size_t index : noted.m_arrCase)
      warnings.back()["cases"].push_back(CaseName(index));
  }
  CJson json = {{"code", Year()},
                {"pass", Pass()},
                {"ratio", JsonNumber(worst.Worst().m_dRatio)},
                {"governs", MemberCheckName(worst.Worst().m_nKind)}};
  if (bEnvelope) json["combination"] = CaseName(m_envelope.WorstCase());
  json["results"] = ResultsJson(worst.m_results);
  json["given"] = StepsJson(worst, 0, worst.Given().size());
  json["checks"] = std::move(checks);
  if (bEnvelope) json["cases"] = CasesJson();
  json["warnings"] = std::move(warnings);
  return json;
}

std::string CMemberRun::Text() const {
  const CCodeEdition edition = m_check.Edition();
  if (m_fault) return RefusedLine(edition, m_fault->Line(m_nLanguage), m_nLanguage);
  const CMemberAnswer& worst = Answer();
  const bool bEnvelope = m_pMember->m_bEnvelope;
  std::string text = std::string(EditionFacts(edition).m_szName) + " (" +
                     EditionFacts(edition).m_status.In(m_nLanguage) + ")\n\n";
  const auto steps = [&text](const CMemberAnswer& answer, const char* indent, std::size_t first,
                             std::size_t end) {
    for (std::size_t i = first; i < end; ++i) text += indent + answer.StepText(i) + '\n';
  };
  steps(worst, "", 0, worst.Given().size());
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Left});
  for (const auto& [index, part] : m_envelope.Parts()) {
    const char* title = MemberCheckTitle(part->m_nKind).In(m_nLanguage);
    const std::string name = bEnvelope ? Excerpt(CaseName(index)) : "";
    text += '\n' + std::string(title) + " (" + MemberCheckName(part->m_nKind) + "), " +
            part->m_szClause + (bEnvelope ? ", " + name : "") + '\n';
    steps(m_envelope.Answers()[index], "  ", part->m_nFirst, part->m_nEnd);
    std::vector<std::string> row = {title, part->m_szClause, PercentText(part->m_dRatio),
                                    VerdictText(part->m_bPass, m_nLanguage)};
    if (bEnvelope) row.push_back(name);
    table.AddRow(std::move(row));
  }
  text += '\n' + table.Text();
  std::vector<CCaseWarning> warnings;
  for (const auto& noted : m_envelope.Notes()) {
    const std::string words = NoteText(noted);
    warnings.push_back({MemberNoteKey(noted.m_nNote), {words, words}});
  }
  const CMemberCheckPart& part = worst.Worst();
  const CTextLiteral title = MemberCheckTitle(part.m_nKind);
  const std::string governs = Governs(title.In(m_nLanguage));
  return text + VerdictLines(edition, Pass(),
                             {{governs.c_str(), governs.c_str()},
                              MemberCheckName(part.m_nKind),
                              part.m_dRatio,
                              part.m_bPass},
                             warnings, m_nLanguage);
}

CReportCase CMemberRun::Report(int number, CLanguage language) const {
  CReportCase each = {.m_nCase = number,
                      .m_nEdition = m_check.Edition(),
                      .m_strId = m_pMember->m_strId,
                      .m_sheet = m_pMember->m_sheet};
  if (m_fault) {
    each.m_strRefused = m_fault->Line(language);
    return each;
  }
  const CMemberCheckPart& worst = Answer().Worst();
  each.m_bPass = Pass();
  each.m_dUtilisation = worst.m_dRatio;
  each.m_strGoverns = Governs(MemberCheckTitle(worst.m_nKind).In(language));
  each.m_nWarnings = m_envelope.Notes().size();
  each.m_strBody = CaseReport(
      {m_pMember->m_strId, m_pMember->m_arrCase, m_pMember->m_bEnvelope, m_check, m_envelope},
      language);
  return each;
}

std::vector<std::string> CMemberRun::Row(int number) const {
  static constexpr CTextLiteral kRefused = {"拒绝", "refused"};
  std::vector<std::string> row = {std::to_string(number), Excerpt(m_pMember->m_strId), Year()};
  if (m_fault) {
    row.insert(row.end(), {kRefused.In(m_nLanguage), "", m_fault->Line(m_nLanguage)});
    return row;
  }
  const CMemberCheckPart& worst = Answer().Worst();
  row.insert(row.end(), {VerdictText(Pass(), m_nLanguage), PercentText(worst.m_dRatio),
                         Governs(MemberCheckTitle(worst.m_nKind).In(m_nLanguage)),
                         std::to_string(m_envelope.Notes().size())});
  return row;
}

}  // namespace orv3::cli
