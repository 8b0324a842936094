// orv3cal choose: the lightest sections of tables that pass a member's cases.

#include <algorithm>
#include <memory>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "cases/case_output.h"
#include "cases/member_reader.h"
#include "codes/edition.h"
#include "commands.h"
#include "commands/style_ranges.h"
#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "members/cases/member_choice.h"
#include "members/report/choice_plot.h"
#include "options/edition_option.h"
#include "options/nearest.h"
#include "options/option_errors.h"
#include "options/output_options.h"
#include "options/value_checks.h"
#include "output/streams.h"
#include "sections/load_data_table.h"
#include "store/store_place.h"
#include "store/store_table.h"

namespace orv3::cli {
namespace {

struct CChooseOptions {
  std::string file;
  std::string tables;
  std::vector<std::string> styles;  // each the object of a range
  std::string plot;
  std::string code;
  int top = 0;  // 0: all that pass
  bool json = false;
  bool csv = false;
  CStoreOptions store;
};

// The gap of pairs is no section.
bool HasSection(const CMemberCase& input) {
  const auto isGiven = [](const std::string* text) { return !text->empty(); };
  const auto texts = {&input.m_strTable,   &input.m_strNo,   &input.m_strStyle,
                      &input.m_strLattice, &input.m_strBond, &input.m_strBar};
  return std::any_of(texts.begin(), texts.end(), isGiven) || !input.m_sizes.m_arrEach.empty() ||
         input.m_sizes.m_dUniform != 0;
}

// Every case of the file, a member's combinations one after another.
std::vector<CMemberCase> ReadMembers(const CChooseOptions& options) {
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

std::vector<CString> TablesAsked(const std::string& names) {
  std::vector<CString> tables;
  std::istringstream each(names);
  for (std::string name; std::getline(each, name, ',');) {
    const CString table = FromUtf8(name);
    if (std::find(tables.begin(), tables.end(), table) != tables.end())
      Refuse("--table: " + Say("“{1}”出现两次；请每个表只给一次",
                               "names \"{1}\" twice; give each table once", {name}));
    tables.push_back(table);
  }
  return tables;
}

std::vector<CMemberCandidate> TableCandidates(const CChooseOptions& options, double gap) {
  if (options.tables == "all") {
    for (const CString& table : MemberTables()) {
      CStringArray numbers;
      if (CLoadDataTable::GetSysTemItemNo(table, numbers) == 0) FailUnread();
    }
    return AllMemberCandidates(gap);
  }
  std::vector<CMemberCandidate> candidates;
  for (const CString& table : TablesAsked(options.tables)) {
    std::vector<CMemberCandidate> rows = MemberCandidates(table, gap);
    if (rows.empty()) {
      FailUnread();
      Refuse("--table: " + Say("库中没有“{1}”的行；最接近的是：{2}",
                               "the store has no rows of \"{1}\"; the nearest are: {2}",
                               {ToUtf8(table), Nearest(ToUtf8(table), MemberTables())}));
    }
    std::move(rows.begin(), rows.end(), std::back_inserter(candidates));
  }
  return candidates;
}

std::vector<CMemberCandidate> Candidates(const CChooseOptions& options, double gap) {
  std::vector<CMemberCandidate> candidates = TableCandidates(options, gap);
  for (const std::string& style : options.styles) AddStyles(style, candidates);
  if (candidates.empty())
    Refuse(Say("没有可选的截面；请给出 --table 表名[,表名...]、--table all 或 --style",
               "nothing to choose from; give --table with names or all, or --style"));
  return candidates;
}

// --- The answer ----------------------------------------------------------------------------------

std::string NoteText(CMemberNote note) { return MemberNoteText(note).In(MessageLanguage()); }

class CChoiceAnswer {
 public:
  CChoiceAnswer(const std::vector<CMemberCase>& cases,
                const std::vector<CMemberCandidate>& candidates, const CMemberChoice& choice,
                CCodeEdition edition, int top)
      : m_arrCase(cases), m_arrCandidate(candidates), m_choice(choice), m_nEdition(edition) {
    m_arrShown = choice.m_arrChosen;
    if (top > 0) m_arrShown = m_arrShown.first(std::min(m_arrShown.size(), std::size_t(top)));
  }

  CJson Json() const {
    CJson rows = CJson::array(), refusals = CJson::array();
    for (const CChosenMember& chosen : m_arrShown) rows.push_back(RowJson(chosen));
    for (const CRefusedMember& refused : m_choice.m_arrRefused) {
      const CMemberCandidate& row = m_arrCandidate[refused.m_nCandidate];
      refusals.push_back(
          {{"table", row.m_strTable}, {"no", row.m_strNo}, {"rows", refused.m_nRows}});
      if (refused.m_case) refusals.back()["case"] = CaseName(*refused.m_case);
      refusals.back()["reason"] = refused.m_fault.Line(MessageLanguage());
    }
    return {{"code", EditionFacts(m_nEdition).m_szYear},
            {"tried", m_choice.m_nTried},
            {"refused", m_choice.m_nRefused},
            {"refusals", std::move(refusals)},
            {"passing", m_choice.m_arrChosen.size()},
            {"rows", std::move(rows)}};
  }

  std::string Csv() const {
    std::string csv = "table,no,mass,ratio,governs,case,warnings\n";
    for (const CChosenMember& chosen : m_arrShown) {
      const CMemberCandidate& row = m_arrCandidate[chosen.m_nCandidate];
      AppendCsv(csv, row.m_strTable);
      csv += ',';
      AppendCsv(csv, row.m_strNo);
      csv += ',';
      AppendCsv(csv, row.m_dMass);
      csv += ',';
      AppendCsv(csv, chosen.m_dRatio);
      csv += std::string(",") + MemberCheckName(chosen.m_nGoverns) + ',';
      AppendCsv(csv, CaseName(chosen.m_nCase));
      csv += ',';
      std::string notes;
      for (const CMemberNote note : chosen.m_arrNote) {
        if (!notes.empty()) notes += " | ";
        notes += std::string(MemberNoteKey(note)) + ": " + NoteText(note);
      }
      AppendCsv(csv, notes);
      csv += '\n';
    }
    return csv;
  }

  std::string Text() const {
    std::string text;
    if (!m_arrShown.empty()) text = Table() + '\n';
    text += Say("{1} 个截面中 {2} 个满足（{3}）", "{2} of {1} sections pass ({3})",
                {std::to_string(m_choice.m_nTried), std::to_string(m_choice.m_arrChosen.size()),
                 EditionFacts(m_nEdition).m_szName}) +
            '\n';
    if (const std::string refused = Refused(); !refused.empty()) text += refused + '\n';
    return text + Notes();
  }

  // How many sections were left out, with the first; empty for none.
  std::string Refused() const {
    if (m_choice.m_nRefused == 0) return {};
    return Say("另有 {1} 个不能验算，第一个：{2}", "{1} more are not covered, the first: {2}",
               {std::to_string(m_choice.m_nRefused), FirstRefusal()});
  }

  // "热轧等边角钢 L20X3, case wind, steel: ..."
  std::string FirstRefusal() const {
    const CRefusedMember& refused = m_choice.m_arrRefused.front();
    const CMemberCandidate& row = m_arrCandidate[refused.m_nCandidate];
    std::string text = row.m_strTable + ' ' + row.m_strNo;
    if (refused.m_case)
      text += Say("，算例 {1}", ", case {1}", {Excerpt(CaseName(*refused.m_case))});
    return text + Say("，", ", ") + refused.m_fault.Line(MessageLanguage());
  }

 private:
  std::string CaseName(std::size_t index) const {
    return m_arrCase[index].m_strId.empty() ? std::to_string(index + 1) : m_arrCase[index].m_strId;
  }

  CJson RowJson(const CChosenMember& chosen) const {
    const CMemberCandidate& row = m_arrCandidate[chosen.m_nCandidate];
    CJson json = {{"table", row.m_strTable}, {"no", row.m_strNo}};
    if (!row.m_arrSize.empty()) {
      json["style"] = row.m_strTable;
      json["sizes"] = row.m_arrSize;
    }
    CJson warnings = CJson::array();
    for (const CMemberNote note : chosen.m_arrNote)
      warnings.push_back({{"key", MemberNoteKey(note)}, {"text", NoteText(note)}});
    json.update({{"mass", JsonNumber(row.m_dMass)},
                 {"ratio", JsonNumber(chosen.m_dRatio)},
                 {"governs", MemberCheckName(chosen.m_nGoverns)},
                 {"case", CaseName(chosen.m_nCase)},
                 {"warnings", std::move(warnings)}});
    return json;
  }

  std::string Table() const {
    CTextTable table(
        {CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Right, CAlign::Left, CAlign::Left});
    table.AddRow({Say("截面表", "table"), Say("型号", "no"), "kg/m", Say("利用率", "utilisation"),
                  Say("控制项", "governs"), Say("算例", "case")});
    for (const CChosenMember& chosen : m_arrShown) {
      const CMemberCandidate& row = m_arrCandidate[chosen.m_nCandidate];
      table.AddRow({row.m_strTable, row.m_strNo, PlainNumber(row.m_dMass),
                    PercentText(chosen.m_dRatio),
                    MemberCheckTitle(chosen.m_nGoverns).In(MessageLanguage()),
                    Excerpt(CaseName(chosen.m_nCase))});
    }
    return table.Text();
  }

  // What was assumed of the sections shown, a line each with the first that it is of.
  std::string Notes() const {
    std::string text;
    std::vector<CMemberNote> told;
    for (const CChosenMember& chosen : m_arrShown) {
      for (const CMemberNote note : chosen.m_arrNote) {
        if (std::find(told.begin(), told.end(), note) != told.end()) continue;
        told.push_back(note);
        const auto has = [note](const CChosenMember& each) {
          return std::find(each.m_arrNote.begin(), each.m_arrNote.end(), note) !=
                 each.m_arrNote.end();
        };
        const auto count = std::count_if(m_arrShown.begin(), m_arrShown.end(), has);
        text += Say("请注意 {1}：{2}（{3} 个，第一个 {4}）",
                    "look at {1}: {2} ({3} of these, the first {4})",
                    {MemberNoteKey(note), NoteText(note), std::to_string(count),
                     m_arrCandidate[chosen.m_nCandidate].m_strNo}) +
                '\n';
      }
    }
    return text;
  }

  const std::vector<CMemberCase>& m_arrCase;
  const std::vector<CMemberCandidate>& m_arrCandidate;
  const CMemberChoice& m_choice;
  const CCodeEdition m_nEdition;
  std::span<const CChosenMember> m_arrShown;
};

CExit RunChoose(const CChooseOptions& options) {
  StoreToRead(options.store);
  const std::vector<CMemberCase> cases = ReadMembers(options);
  CCodeEdition edition = EditionAsked(options.code);
  double gap = CMemberCase::kNone;
  auto fault = ReadChoiceEdition(cases, edition, edition);
  if (!fault) fault = ReadChoiceGap(cases, gap);
  if (fault) Refuse(Visible(options.file) + ": " + fault->Line(MessageLanguage()));
  std::vector<CMemberCandidate> candidates = Candidates(options, gap);
  const CMemberChoice choice =
      ChooseMember(cases, candidates, edition,
                   options.plot.empty() ? CFailingRatio::AnyAboveOne : CFailingRatio::Whole);
  const CChoiceAnswer answer(cases, candidates, choice, edition, options.top);
  if (choice.m_nTried == 0)
    Refuse(Visible(options.file) + ": " +
           Say("所有截面都被拒绝，第一个：{1}", "every section refused, the first: {1}",
               {answer.FirstRefusal()}));
  if (!options.plot.empty())
    WriteFile(options.plot, DrawingSvg(ChoicePlot(choice, candidates, MessageLanguage())));
  if (options.json) {
    PrintJson(answer.Json());
  } else if (options.csv) {
    PrintCsv(answer.Csv());
    if (const std::string refused = answer.Refused(); !refused.empty())
      WriteError("orv3cal: " + Visible(options.file) + ": " + Visible(refused) + "\n");
  } else {
    Print(answer.Text());
  }
  return choice.m_arrChosen.empty() ? CExit::CheckFailed : CExit::Done;
}

}  // namespace

void AddChooseCommand(CLI::App& program) {
  auto options = std::make_shared<CChooseOptions>();
  CLI::App* command = program.add_subcommand(
      "choose",
      Say("选取通过构件全部算例的最轻截面；没有时退出状态为 1",
          "Find the lightest sections that pass a member's cases; exit status 1 for none"));
  command
      ->add_option("FILE", options->file,
                   Say("check member 的算例，不含截面；- 表示标准输入",
                       "Cases of check member without a section; - is standard input"))
      ->required();
  command
      ->add_option("--table", options->tables,
                   Say("从中选取的截面表，以逗号分隔，或 all",
                       "Tables to choose from, joined by commas, or all"))
      ->type_name("TABLE[,TABLE...]");
  command
      ->add_option("--style", options->styles,
                   Say("一种自定义截面，尺寸为数或 [从, 到, 步长]，mm；可给多次",
                       "Sections of a style, each size a number or [from, to, step], mm; may be "
                       "given again: {\"style\": \"box\", \"b\": [200, 400, 50], \"h\": 400, "
                       "\"t\": 16}"))
      ->type_name("JSON")
      ->expected(1)
      ->take_all();
  command
      ->add_option("--plot", options->plot,
                   Say("以 SVG 写入单位质量与利用率的图", "Write mass against ratio as SVG"))
      ->check(FileName)
      ->type_name("FILE.svg");
  command->add_option("--top", options->top, Say("至多显示这么多个", "Show this many at most"))
      ->check(Within(1, 100000));
  AddEditionOption(*command, options->code);
  auto* json = AddJsonOption(*command, options->json);
  command
      ->add_flag("--csv", options->csv,
                 Say("以 CSV 输出，每个截面一行", "As CSV, one line a section"))
      ->excludes(json);
  AddStoreOptions(*command, options->store);
  command->callback([options] {
    const CExit exit = RunChoose(*options);
    if (exit != CExit::Done) throw exit;
  });
}

}  // namespace orv3::cli
