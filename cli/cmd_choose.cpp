// orv3cal choose: the lightest sections of tables that pass a member's cases.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "case_output.h"
#include "codes/edition.h"
#include "commands.h"
#include "edition_option.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "member_reader.h"
#include "members/cases/member_choice.h"
#include "nearest.h"
#include "store_place.h"

namespace orv3::cli {
namespace {

struct COptions {
  std::string file;
  std::string tables;
  std::string code;
  int top = 0;  // 0: all that pass
  bool json = false;
  bool csv = false;
  CStoreOptions store;
};

bool HasSection(const CMemberCase& input) {
  return !input.m_strTable.empty() || !input.m_strStyle.empty() || !input.m_strLattice.empty();
}

// Every case of the file, a member's combinations one after another.
std::vector<CMemberCase> ReadMembers(const COptions& options) {
  const CMemberReader reader;
  std::vector<CMemberCase> cases;
  std::size_t count = 0;
  ReadCases(options.file, reader.Schema(), MessageLanguage(), [&](const CReadCase& read) {
    CReadMember member;
    auto fault = reader.Read(read, member);
    ++count;
    if (!fault && std::any_of(member.m_arrCase.begin(), member.m_arrCase.end(), HasSection))
      fault =
          CCaseFault{"section", {"由本命令选取", "is what is chosen"}, {"请删去", "leave it out"}};
    if (fault) {
      const std::string number = std::to_string(count);
      Refuse(Visible(options.file) + Say("：第 {1} 个，", ": case {1}, ", {number}) +
             fault->Line(MessageLanguage()));
    }
    for (CMemberCase& each : member.m_arrCase) {
      if (member.m_bEnvelope)
        each.m_strId =
            (member.m_strId.empty() ? std::to_string(count) : member.m_strId) + '/' + each.m_strId;
      cases.push_back(std::move(each));
    }
  });
  if (cases.empty())
    Refuse(Visible(options.file) + ": " +
           Say("没有算例；请至少给一个", "holds no case; give one at least"));
  return cases;
}

std::vector<CMemberCandidate> Candidates(const COptions& options) {
  std::vector<CString> tables;
  if (options.tables == "all") {
    tables = MemberTables();
  } else {
    std::istringstream names(options.tables);
    for (std::string name; std::getline(names, name, ',');) {
      const CString table = FromUtf8(name);
      if (std::find(tables.begin(), tables.end(), table) != tables.end())
        Refuse("--table: names \"" + name + "\" twice; give each table once");
      tables.push_back(table);
    }
  }
  std::vector<CMemberCandidate> candidates;
  for (const CString& table : tables) {
    std::vector<CMemberCandidate> rows = MemberCandidates(table);
    if (rows.empty() && options.tables != "all") {
      Refuse("--table: the store has no rows of \"" + ToUtf8(table) +
             "\"; the nearest are: " + Nearest(ToUtf8(table), MemberTables()));
    }
    std::move(rows.begin(), rows.end(), std::back_inserter(candidates));
  }
  if (candidates.empty()) Refuse("--table: names no table; give names joined by commas, or all");
  return candidates;
}

std::string CaseName(const std::vector<CMemberCase>& cases, std::size_t index) {
  return cases[index].m_strId.empty() ? std::to_string(index + 1) : cases[index].m_strId;
}

CExit RunChoose(const COptions& options) {
  StoreToRead(options.store);
  const CCodeEdition edition = EditionAsked(options.code);
  const std::vector<CMemberCase> cases = ReadMembers(options);
  std::vector<CMemberCandidate> candidates = Candidates(options);
  const CMemberChoice choice = ChooseMember(cases, candidates, edition);
  if (choice.m_nTried == 0)
    Refuse(Visible(options.file) +
           ": every section refused, the first: " + candidates.front().m_strNo + ", " +
           choice.m_arrRefused.front().m_fault.Line(MessageLanguage()));
  std::size_t shown = choice.m_arrChosen.size();
  if (options.top > 0) shown = std::min(shown, static_cast<std::size_t>(options.top));
  CJson rows = CJson::array();
  CTextTable table(
      {CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Right, CAlign::Left, CAlign::Left});
  table.AddRow({"table", "no", "kg/m", "utilisation", "governs", "case"});
  std::string csv = "table,no,mass,ratio,governs,case\n";
  for (std::size_t i = 0; i < shown; ++i) {
    const CChosenMember& chosen = choice.m_arrChosen[i];
    const CMemberCandidate& row = candidates[chosen.m_nCandidate];
    const char* governs = MemberCheckName(chosen.m_nGoverns);
    const std::string name = CaseName(cases, chosen.m_nCase);
    if (options.json) {
      rows.push_back({{"table", row.m_strTable},
                      {"no", row.m_strNo},
                      {"mass", JsonNumber(row.m_dMass)},
                      {"ratio", JsonNumber(chosen.m_dRatio)},
                      {"governs", governs},
                      {"case", name}});
      continue;
    }
    AppendCsv(csv, row.m_strTable);
    csv += ',';
    AppendCsv(csv, row.m_strNo);
    csv += ',';
    AppendCsv(csv, row.m_dMass);
    csv += ',';
    AppendCsv(csv, chosen.m_dRatio);
    csv += std::string(",") + governs + ',';
    AppendCsv(csv, name);
    csv += '\n';
    table.AddRow({row.m_strTable, row.m_strNo, PlainNumber(row.m_dMass),
                  PercentText(chosen.m_dRatio), governs, name});
  }
  if (options.json) {
    CJson refusals = CJson::array();
    for (const CRefusedMember& refused : choice.m_arrRefused) {
      const CMemberCandidate& row = candidates[refused.m_nCandidate];
      refusals.push_back({{"table", row.m_strTable},
                          {"no", row.m_strNo},
                          {"rows", refused.m_nRows},
                          {"reason", refused.m_fault.Line(MessageLanguage())}});
    }
    PrintJson({{"code", EditionFacts(edition).m_szYear},
               {"tried", choice.m_nTried},
               {"refused", choice.m_nRefused},
               {"refusals", std::move(refusals)},
               {"passing", choice.m_arrChosen.size()},
               {"rows", std::move(rows)}});
  } else if (options.csv) {
    PrintCsv(csv);
  } else {
    Print((shown > 0 ? table.Text() + '\n' : "") + std::to_string(choice.m_arrChosen.size()) +
          " of " + std::to_string(choice.m_nTried) + " sections pass" +
          (choice.m_nRefused > 0
               ? ", " + std::to_string(choice.m_nRefused) + " more are not covered, the first: " +
                     choice.m_arrRefused.front().m_fault.Line(MessageLanguage())
               : "") +
          '\n');
  }
  return choice.m_arrChosen.empty() ? CExit::CheckFailed : CExit::Done;
}

}  // namespace

void AddChooseCommand(CLI::App& program) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand(
      "choose",
      Say("选取通过构件全部算例的最轻截面；没有时退出状态为 1",
          "Find the lightest sections that pass a member's cases; exit status 1 for none"));
  command
      ->add_option("FILE", options->file,
                   "Cases of check member without a section; - is standard input")
      ->required();
  command->add_option("--table", options->tables, "Tables to choose from, joined by commas, or all")
      ->required()
      ->type_name("TABLE[,TABLE...]");
  command->add_option("--top", options->top, "Show this many at most")->check(CLI::PositiveNumber);
  AddEditionOption(*command, options->code);
  auto* json = command->add_flag("--json", options->json, "As JSON, numbers with all their digits");
  command->add_flag("--csv", options->csv, "As CSV, one line a section")->excludes(json);
  AddStoreOptions(*command, options->store);
  command->callback([options] {
    const CExit exit = RunChoose(*options);
    if (exit != CExit::Done) throw exit;
  });
}

}  // namespace orv3::cli
