// The C interface: checks of members, and the lightest sections that pass.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "members/cases/member_choice.h"
#include "members/cases/member_envelope.h"
#include "members/cases/member_results.h"
#include "members/cases/style_ranges.h"
#include "module/c_values.h"
#include "sections/load_data_table.h"

namespace orv3::c_interface {
namespace {

CMemberCase MemberOf(CValues values, CCodeEdition edition) {
  for (const char* key :
       {"sway", "dynamic", "restrained"}) {  // "true" and "false" in the command's files
    const auto given = values.find(key);
    if (given == values.end()) continue;
    if (given->second == "true") given->second = "1";
    if (given->second == "false") given->second = "0";
    if (given->second != "1" && given->second != "0")
      throw CFailure(std::string(key) + ": \"" + given->second + "\" is not possible; give 1 or 0");
  }
  CMemberCase input;
  SetValues(input, MemberInputKeys(), values);
  input.m_strCode = EditionFacts(edition).m_szYear;
  return input;
}

void NeedDataFor(bool bStore) {
  if (bStore && CLoadDataTable::GetOrvoPrgPath().IsEmpty())
    throw CFailure("no data folder is open; call orv3_open_data");
}

CString Line(const char* key, const std::string& value) { return FromUtf8(key + ("=" + value)); }
CString Line(const char* key, double value) { return FromUtf8(key) + L"=" + ValueText(value); }

// --- One member ----------------------------------------------------------------------------------

// A member, or with combinations behind it one of each, which takes what it does not give from it.
std::vector<CValues> CombinationsOf(std::vector<CValues> lists) {
  if (lists.size() == 1) return lists;
  const CValues member = std::move(lists.front());
  lists.erase(lists.begin());
  for (CValues& values : lists) {
    for (const auto& [key, text] : member) {
      if (key == "id") continue;
      const bool bGiven = !values.emplace(key, text).second;
      if (bGiven && key != "load" && key != "loadFlange")
        throw CFailure(key + ": stands beside combinations that give it; give it in one place");
    }
  }
  return lists;
}

// What is told of one answer, without its checks.
void AddResults(const CMemberResults& results, std::vector<CString>& lines) {
  for (const CMemberResult& key : MemberResultKeys()) {
    const double value = results.*key.m_pField;
    if (!std::isnan(value)) lines.push_back(Line(key.m_szKey, value));
  }
  for (const CMemberText& key : MemberTextKeys()) {
    const char* text = results.*key.m_pField;
    if (*text != 0) lines.push_back(Line(key.m_szKey, text));
  }
}

// `names`: of the combinations; empty for a member without any.
std::vector<CString> MemberLines(const CMemberEnvelope& envelope, CCodeEdition edition,
                                 const std::vector<std::string>& names) {
  const CMemberCheckPart& worst = envelope.Worst().Worst();
  std::vector<CString> lines = {
      Line("code", EditionFacts(edition).m_szYear), Line("pass", envelope.Pass() ? 1 : 0),
      Line("ratio", worst.m_dRatio), Line("governs", MemberCheckName(worst.m_nKind))};
  if (!names.empty()) lines.push_back(Line("case", names[envelope.WorstCase()]));
  for (const CMemberEnvelope::CPart& part : envelope.Parts()) {
    const std::string name = MemberCheckName(part.m_pPart->m_nKind);
    lines.push_back(Line(name.c_str(), part.m_pPart->m_dRatio));
    if (!names.empty()) lines.push_back(Line((name + ".case").c_str(), names[part.m_nCase]));
  }
  AddResults(envelope.Worst().m_results, lines);
  for (const CMemberEnvelope::CNoted& noted : envelope.Notes())
    lines.push_back(Line("warning", MemberNoteText(noted.m_nNote).In(CLanguage::English)));
  return lines;
}

// --- The lightest --------------------------------------------------------------------------------

std::vector<std::string> PartsOf(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

double SizeOf(const std::string& text) {
  const CString number = FromUtf8(text);
  return IsNumber(number) ? ToDouble(number) : NAN;
}

// "h b=200:400:10 h=400 tf=20 tw=10".
void AddStyle(const std::string& text, std::vector<CMemberCandidate>& candidates) {
  const std::vector<std::string> words = PartsOf(text, ' ');
  std::vector<CSizeRange> ranges;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const std::size_t equals = words[i].find('=');
    if (equals == std::string::npos) {
      throw CFailure("tables: \"" + words[i] + "\" is no size; give it as b=200 or b=200:400:10");
    }
    const std::vector<std::string> parts = PartsOf(words[i].substr(equals + 1), ':');
    CSizeRange range = {words[i].substr(0, equals), NAN, NAN, NAN};
    if (parts.size() == 1) range = {range.m_strName, SizeOf(parts[0]), SizeOf(parts[0]), 0};
    if (parts.size() == 3)
      range = {range.m_strName, SizeOf(parts[0]), SizeOf(parts[1]), SizeOf(parts[2])};
    ranges.push_back(std::move(range));
  }
  if (const auto fault = AddStyleRanges(words.empty() ? "" : words[0], ranges, candidates))
    throw CFailure("tables: " + fault->m_strEnglish);
}

std::vector<CMemberCandidate> CandidatesOf(const CString& names, double gap) {
  if (names == L"all") return AllMemberCandidates(gap);
  std::vector<CMemberCandidate> candidates;
  const std::vector<std::string> tables = PartsOf(ToUtf8(names), ',');
  for (auto table = tables.begin(); table != tables.end(); ++table) {
    if (table->find('=') != std::string::npos) {
      AddStyle(*table, candidates);
      continue;
    }
    if (std::find(tables.begin(), table, *table) != table)
      throw CFailure("tables: names \"" + *table + "\" twice; give each table once");
    std::vector<CMemberCandidate> rows = MemberCandidates(FromUtf8(*table), gap);
    if (rows.empty()) {
      throw CFailure("tables: the store has no rows of \"" + *table +
                     "\"; orv3_list_tables names its tables");
    }
    std::move(rows.begin(), rows.end(), std::back_inserter(candidates));
  }
  if (candidates.empty())
    throw CFailure("tables: there are no rows; name a table, or open another data folder");
  return candidates;
}

std::vector<CMemberCase> CasesOf(const orv3_char* input, const std::string& code) {
  std::vector<CMemberCase> cases;
  for (CValues& values : ReadValueLists(input)) {
    const CCodeEdition edition = EditionOf(code, values);
    for (const char* key : {"section.table", "section.style"}) {
      if (values.contains(key))
        throw CFailure(std::string(key) + ": is what is chosen; leave it out");
    }
    cases.push_back(MemberOf(std::move(values), edition));
  }
  return cases;
}

// What was assumed of the rows shown: each once, with the first row that it is of.
void AddWarnings(std::span<const CChosenMember> shown,
                 const std::vector<CMemberCandidate>& candidates, std::vector<CString>& lines) {
  std::vector<CMemberNote> told;
  for (const CChosenMember& chosen : shown) {
    const CMemberCandidate& row = candidates[chosen.m_nCandidate];
    for (const CMemberNote note : chosen.m_arrNote) {
      if (std::find(told.begin(), told.end(), note) != told.end()) continue;
      told.push_back(note);
      lines.push_back(Line("warning", row.m_strTable + ';' + row.m_strNo + ';' +
                                          MemberNoteKey(note) + ';' +
                                          MemberNoteText(note).In(CLanguage::English)));
    }
  }
}

std::vector<CString> ChoiceLines(const CMemberChoice& choice, CCodeEdition edition,
                                 const std::vector<CMemberCandidate>& candidates,
                                 const std::vector<CMemberCase>& cases, int top) {
  const auto count = [](const char* key, std::size_t n) {
    return Line(key, static_cast<double>(n));
  };
  std::vector<CString> lines = {
      Line("code", EditionFacts(edition).m_szYear), count("tried", choice.m_nTried),
      count("passing", choice.m_arrChosen.size()), count("refused", choice.m_nRefused)};
  std::size_t shown = choice.m_arrChosen.size();
  if (top > 0) shown = std::min(shown, static_cast<std::size_t>(top));
  for (std::size_t i = 0; i < shown; ++i) {
    const CChosenMember& chosen = choice.m_arrChosen[i];
    const CMemberCandidate& row = candidates[chosen.m_nCandidate];
    const std::string& id = cases[chosen.m_nCase].m_strId;
    lines.push_back(Line(
        "row", row.m_strTable + ';' + row.m_strNo + ';' + ToUtf8(ValueText(row.m_dMass)) + ';' +
                   ToUtf8(ValueText(chosen.m_dRatio)) + ';' + MemberCheckName(chosen.m_nGoverns) +
                   ';' + (id.empty() ? std::to_string(chosen.m_nCase + 1) : id)));
  }
  AddWarnings(std::span(choice.m_arrChosen).first(shown), candidates, lines);
  for (const CRefusedMember& refused : choice.m_arrRefused) {
    const CMemberCandidate& row = candidates[refused.m_nCandidate];
    lines.push_back(Line("refusal", row.m_strTable + ';' + std::to_string(refused.m_nRows) + ';' +
                                        row.m_strNo + ';' +
                                        refused.m_fault.Line(CLanguage::English)));
  }
  return lines;
}

std::string CodeOf(const orv3_char* code) { return code == nullptr ? "" : Utf8Of(code, "code"); }

}  // namespace
}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_check_member(const orv3_char* code, const orv3_char* input, orv3_char* text,
                                int size) {
  return Guarded([&] {
    std::vector<CValues> lists = ReadValueLists(input);
    const CCodeEdition edition = EditionOf(CodeOf(code), lists.front());
    NeedDataFor(lists.front().contains("section.table") ||
                lists.front().contains("section.lattice.table"));
    const bool bOne = lists.size() == 1;
    CMemberCheck check;
    CMemberEnvelope envelope;
    std::vector<std::string> names;
    for (CValues& values : CombinationsOf(std::move(lists))) {
      const CMemberCase member = MemberOf(std::move(values), edition);
      if (!bOne)
        names.push_back(member.m_strId.empty() ? std::to_string(names.size() + 1) : member.m_strId);
      if (!check.Run(member)) {
        throw CFailure((bOne ? "" : "case " + names.back() + ", ") +
                       check.Fault().Line(CLanguage::English));
      }
      envelope.Add(check.Answer());
    }
    return GiveText(JoinLines(MemberLines(envelope, edition, names)), text, size);
  });
}

int ORV3_CALL orv3_choose(const orv3_char* tables, const orv3_char* code, const orv3_char* input,
                          int top, orv3_char* text, int size) {
  return Guarded([&] {
    const CString names = TextOf(tables, "tables");
    const std::vector<CMemberCase> cases = CasesOf(input, CodeOf(code));
    if (top < 0) throw CFailure("top: must be a number of rows, or 0 for all");
    NeedDataFor(true);
    CCodeEdition edition = kDefaultEdition;
    double gap = CMemberCase::kNone;
    auto fault = ReadChoiceEdition(cases, edition, edition);
    if (!fault) fault = ReadChoiceGap(cases, gap);
    if (fault) throw CFailure(fault->Line(CLanguage::English));
    std::vector<CMemberCandidate> candidates = CandidatesOf(names, gap);
    const CMemberChoice choice =
        ChooseMember(cases, candidates, edition, CFailingRatio::AnyAboveOne);
    if (choice.m_nTried == 0) {
      const CRefusedMember& first = choice.m_arrRefused.front();
      throw CFailure("every section refused, the first: " + candidates[first.m_nCandidate].m_strNo +
                     ", " + first.m_fault.Line(CLanguage::English));
    }
    return GiveText(JoinLines(ChoiceLines(choice, edition, candidates, cases, top)), text, size);
  });
}
