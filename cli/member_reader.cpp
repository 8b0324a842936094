#include "member_reader.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "case_output.h"
#include "codes/edition.h"
#include "error.h"
#include "schemas.h"

namespace orv3::cli {

CMemberReader::CMemberReader() : m_schema(kMemberSchema) {
  for (const auto& rule : m_schema.Rules()) {
    const auto keys = MemberInputKeys();
    const auto key = std::find_if(keys.begin(), keys.end(),
                                  [&](const auto& each) { return rule.m_strKey == each.m_szKey; });
    if (key == keys.end()) throw std::logic_error("schema: no field for " + rule.m_strKey);
    m_arrKey.push_back(&*key);
  }
}

std::optional<CCaseFault> CMemberReader::Read(const CReadCase& read, CMemberCase& input) const {
  input = {};
  const CCaseValues& values = read.m_arrValue;
  const auto id = static_cast<std::size_t>(m_schema.Find("id"));
  if (values[id]) SetInput(input, *m_arrKey[id], *values[id]);
  if (read.m_fault) return read.m_fault;
  if (auto fault = m_schema.Check(values)) return fault;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (values[i] && !SetInput(input, *m_arrKey[i], *values[i])) {
      const auto& rule = m_schema.Rules()[i];
      return CCaseFault{rule.m_strKey, {"不可用", "is not possible"}, rule.Right()};
    }
  }
  return std::nullopt;
}

std::string ClauseText(CCodeEdition edition, const char* clause) {
  return std::string(EditionFacts(edition).m_szName) + " " + clause;
}

namespace {

CJson StepsJson(const CMemberAnswer& answer, std::size_t first, std::size_t end) {
  CJson steps = CJson::array();
  for (std::size_t i = first; i < end; ++i) steps.push_back(answer.StepText(i));
  return steps;
}

}  // namespace

CJson MemberJson(const CMemberCheck& check, CLanguage language) {
  const CMemberAnswer& answer = check.Answer();
  CJson results = CJson::object();
  for (const CMemberResult& key : MemberResultKeys()) {
    const double value = answer.m_results.*key.m_pField;
    if (!std::isnan(value)) results[key.m_szKey] = JsonNumber(value);
  }
  for (const CMemberText& key : MemberTextKeys()) {
    const char* text = answer.m_results.*key.m_pField;
    if (*text != 0) results[key.m_szKey] = text;
  }
  CJson checks = CJson::array();
  for (const CMemberCheckPart& part : answer.Parts()) {
    checks.push_back({{"name", MemberCheckName(part.m_nKind)},
                      {"clause", ClauseText(check.Edition(), part.m_szClause)},
                      {"ratio", JsonNumber(part.m_dRatio)},
                      {"pass", part.m_bPass},
                      {"steps", StepsJson(answer, part.m_nFirst, part.m_nEnd)}});
  }
  CJson warnings = CJson::array();
  for (const CMemberNote note : answer.Notes())
    warnings.push_back({{"key", MemberNoteKey(note)}, {"text", MemberNoteText(note).In(language)}});
  return {{"code", EditionFacts(check.Edition()).m_szYear},
          {"pass", check.Pass()},
          {"ratio", JsonNumber(answer.Worst().m_dRatio)},
          {"governs", MemberCheckName(answer.Worst().m_nKind)},
          {"results", std::move(results)},
          {"given", StepsJson(answer, 0, answer.Given().size())},
          {"checks", std::move(checks)},
          {"warnings", std::move(warnings)}};
}

std::string NoteLine(const CMemberAnswer& answer, CLanguage language) {
  std::string line;
  for (const CMemberNote note : answer.Notes())
    line += (line.empty() ? "" : " | ") + std::string(MemberNoteText(note).In(language));
  return line;
}

std::string MemberText(const CMemberCheck& check, CLanguage language) {
  const CMemberAnswer& answer = check.Answer();
  std::string text = std::string(EditionFacts(check.Edition()).m_szName) + " (" +
                     EditionFacts(check.Edition()).m_status.In(language) + ")\n\n";
  for (std::size_t i = 0; i < answer.Given().size(); ++i) text += answer.StepText(i) + '\n';
  for (const CMemberCheckPart& part : answer.Parts()) {
    text += '\n' + std::string(MemberCheckTitle(part.m_nKind).In(language)) + " (" +
            MemberCheckName(part.m_nKind) + "), " + part.m_szClause + '\n';
    for (std::size_t i = part.m_nFirst; i < part.m_nEnd; ++i)
      text += "  " + answer.StepText(i) + '\n';
  }
  CTextTable parts({CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left});
  for (const CMemberCheckPart& part : answer.Parts()) {
    parts.AddRow({MemberCheckTitle(part.m_nKind).In(language), part.m_szClause,
                  PercentText(part.m_dRatio), VerdictText(part.m_bPass, language)});
  }
  text += '\n' + parts.Text();
  std::vector<CCaseWarning> warnings;
  for (const CMemberNote note : answer.Notes()) {
    const CTextLiteral words = MemberNoteText(note);
    warnings.push_back({MemberNoteKey(note), {words.m_szChinese, words.m_szEnglish}});
  }
  const CMemberCheckPart& worst = answer.Worst();
  return text + VerdictLines(check.Edition(), check.Pass(),
                             {MemberCheckTitle(worst.m_nKind), MemberCheckName(worst.m_nKind),
                              worst.m_dRatio, worst.m_bPass},
                             warnings, language);
}

}  // namespace orv3::cli
