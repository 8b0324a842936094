// orv3cal check: bolt groups and welds by the editions of GB 50017, one or many at once.

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cases/case_schema.h"
#include "cases/case_source.h"
#include "cases/check_answers.h"
#include "cases/check_editions.h"
#include "cases/check_member.h"
#include "cases/given_cases.h"
#include "cases/schemas.h"
#include "commands.h"
#include "connections/connection_kinds.h"
#include "connections/report/connection_report.h"
#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "options/edition_option.h"
#include "options/option_errors.h"
#include "options/output_options.h"
#include "options/value_checks.h"
#include "output/progress.h"
#include "reports/report_document.h"

namespace orv3::cli {
namespace {

struct CCheckOptions {
  std::string kind;
  std::string file;
  bool json = false;
  bool csv = false;
  bool sort = false;
  bool cases = false;
  std::string report;
  std::string project;
  std::string code;  // of --code
  CStoreOptions store;

  // Of what is printed, and of the report.
  CLanguage Language() const noexcept { return MessageLanguage(); }
};

// Both editions of one check.
template <class CHECK2003, class CHECK2017>
class CChecker {
 public:
  CChecker(const CConnectionKind<CHECK2003, CHECK2017>& kind, const CCheckOptions& options)
      : m_kind(kind),
        m_options(options),
        m_arrAsked(EditionsAsked(options.code)),
        m_schema(SchemaOf(options.kind)),
        m_2003(m_schema, CCodeEdition::Gb2003, options.Language()),
        m_2017(m_schema, CCodeEdition::Gb2017, options.Language()),
        m_columns(ColumnsOf<CHECK2003, CHECK2017>()),
        m_answers(options.csv    ? CAnswerForm::Csv
                  : options.json ? CAnswerForm::Json
                                 : CAnswerForm::Table,
                  options.sort, options.Language(),
                  options.csv ? CsvHead(m_columns, kHasSurface<typename CHECK2003::CCase>) : ""),
        m_nCode(m_schema.Find(kCodeKey)) {
    for (const auto& rule : m_schema.Rules()) {
      if (rule.m_strKey != kCodeKey && SheetField(rule.m_strKey) == nullptr &&
          !HasKey<CHECK2003>(rule.m_strKey) && !HasKey<CHECK2017>(rule.m_strKey))
        throw std::logic_error("schema: no field for " + rule.m_strKey);
    }
  }

  CExit Run() {
    {
      CProgress progress;
      ReadCases(m_options.file, m_schema, Language(), [&](const CReadCase& read) {
        Check(read);
        progress.Step(read.m_dDone);
      });
    }
    if (m_nCases == 0 && !HasColumnsAlone(m_options.file))
      Refuse({"没有算例；请至少给一个", "holds no case; give one at least"});
    if (!m_bOne) m_answers.Finish();
    WriteReport();
    if (m_bOne && m_nRefused > 0) Refuse(m_firstFault);
    if (m_nRefused > 0) {
      const std::string refused = std::to_string(m_nRefused);
      const std::string cases = std::to_string(m_nCases);
      Refuse({cases + " 个算例中有 " + refused + " 个被拒绝，第一个：" + m_strFirstFault,
              refused + " of " + cases + " cases refused, the first: " + m_strFirstFault});
    }
    return m_nFailed > 0 ? CExit::CheckFailed : CExit::Done;
  }

 private:
  CLanguage Language() const noexcept { return m_options.Language(); }

  [[noreturn]] void Refuse(const CText& what) const {
    cli::Refuse(Visible(m_options.file) + ": " + what.In(Language()));
  }

  template <class CHECK>
  static bool HasKey(const std::string& name) {
    const auto keys = CHECK::InputKeys();
    return std::any_of(keys.begin(), keys.end(),
                       [&](const auto& key) { return name == key.m_szKey; });
  }

  // Calls `use` with what checks by the edition.
  template <class USE>
  auto With(CCodeEdition edition, USE use) {
    return edition == CCodeEdition::Gb2003 ? use(m_2003) : use(m_2017);
  }

  // The editions of a case: its own, else those that were asked for.
  std::span<const CCodeEdition> EditionsOf(const CReadCase& read) const {
    const auto& value = read.m_arrValue[static_cast<std::size_t>(m_nCode)];
    const auto* text = value ? std::get_if<std::string_view>(&*value) : nullptr;
    return text == nullptr ? std::span(m_arrAsked) : EditionsNamed(*text, m_arrAsked);
  }

  // Computes the case that was read, and answers it.
  void Check(const CReadCase& read) {
    ++m_nCases;
    m_bOne = read.m_bSingle && !m_options.csv;
    m_arrEdition = EditionsOf(read);
    const CCaseFault* fault = nullptr;
    bool bPass = true;
    for (const CCodeEdition edition : m_arrEdition) {
      With(edition, [&](auto& run) {
        run.Run(read, IsBoth());
        if (fault == nullptr) fault = run.Fault();
        bPass = bPass && run.Pass();
      });
    }
    if (fault != nullptr) {
      CountFault(*fault);
    } else if (!bPass) {
      ++m_nFailed;
    }
    AddToReport(read);
    if (m_bOne) {
      AnswerOne(fault != nullptr);
    } else {
      Answer();
    }
  }

  void CountFault(const CCaseFault& fault) {
    if (m_nRefused++ > 0) return;
    m_firstFault = fault.Text();
    const std::string number = std::to_string(m_nCases);
    const CText which = {"第 " + number + " 个，", "case " + number + ", "};
    m_strFirstFault = which.In(Language()) + fault.Line(Language());
  }

  bool IsBoth() const noexcept { return m_arrEdition.size() > 1; }

  // One case in full. Refused by the one edition it is not answered; by one of both, the other is.
  void AnswerOne(bool bRefused) {
    if (bRefused && !IsBoth()) return;
    if (m_options.json) return PrintJson(NamedJson());
    if (!IsBoth()) return With(m_arrEdition[0], [](auto& run) { Print(run.Text()); });
    Print(BothText(m_columns, m_2017, m_2003, Language()));
  }

  void Answer() {
    const double worst = Worst();
    switch (m_answers.Form()) {
      case CAnswerForm::Csv: {
        std::string& lines = m_answers.NextLines(worst);
        for (const CCodeEdition edition : m_arrEdition)
          With(edition, [&](auto& run) { run.AppendCsv(m_nCases, m_columns, lines); });
        return;
      }
      case CAnswerForm::Json:
        return m_answers.AddJson(worst, CaseJson());
      case CAnswerForm::Table: {
        std::vector<std::vector<std::string>> rows;
        for (const CCodeEdition edition : m_arrEdition)
          With(edition, [&](auto& run) { rows.push_back(run.Row(m_nCases)); });
        return m_answers.AddRows(worst, std::move(rows));
      }
    }
  }

  double Worst() {
    double worst = 0;
    for (const CCodeEdition edition : m_arrEdition)
      worst = std::max(worst, With(edition, [](auto& run) { return run.Worst(); }));
    return worst;
  }

  CJson Json() {
    if (IsBoth()) return BothJson(m_2017, m_2003);
    return With(m_arrEdition[0], [](auto& run) { return run.Json(); });
  }

  CJson NamedJson() { return NamedJson(CJson::object()); }
  CJson CaseJson() { return NamedJson({{"case", m_nCases}}); }

  // The answer behind what it begins with and its id.
  CJson NamedJson(CJson answer) {
    const std::string id = With(m_arrEdition[0], [](auto& run) { return run.Id(); });
    if (!id.empty()) answer["id"] = id;
    answer.update(Json());
    return answer;
  }

  void AddToReport(const CReadCase& read) {
    if (m_options.report.empty()) return;
    if (m_nReported++ == kMostReports) {
      Refuse(TooManyReports());
    }
    CReportSheet sheet = SheetOf(m_schema, read.m_arrValue);
    if (sheet.m_strProject.empty()) sheet.m_strProject = m_options.project;
    for (const CCodeEdition edition : m_arrEdition) {
      m_arrReport.push_back(
          With(edition, [&](auto& run) { return run.Report(m_nCases, sheet, Language()); }));
    }
  }

  void WriteReport() const {
    if (m_options.report.empty()) return;
    const std::string what = m_kind.m_title.In(Language());
    const CReportTitle title = {what + " — Orv3Cal", ORV3CAL_VERSION};
    WriteFile(m_options.report, ReportDocument(title, m_arrReport, Language()));
  }

  const CConnectionKind<CHECK2003, CHECK2017>& m_kind;
  const CCheckOptions& m_options;
  const std::vector<CCodeEdition> m_arrAsked;
  CCaseSchema m_schema;
  CEditionRun<CHECK2003> m_2003;
  CEditionRun<CHECK2017> m_2017;
  const std::vector<CResultColumn> m_columns;
  CAnswers m_answers;
  const int m_nCode;                           // the position of the key "code"
  std::span<const CCodeEdition> m_arrEdition;  // of the case at hand
  bool m_bOne = false;                         // the file is one case, which is answered in full
  std::vector<CReportCase> m_arrReport;
  std::size_t m_nReported = 0;
  int m_nCases = 0;
  int m_nFailed = 0;
  int m_nRefused = 0;
  CText m_firstFault;
  std::string m_strFirstFault;
};

CExit RunMembers(const CCheckOptions& options) {
  return CheckMembers({options.file, options.code, options.json, options.csv, options.sort,
                       options.report, options.project, options.Language(), options.store});
}

CExit RunCheck(const CCheckOptions& options) {
  if (options.cases) return PrintGivenCases(options.kind, options.file, options.Language());
  if (options.kind == "member") return RunMembers(options);
  CExit exit = CExit::Done;
  WithConnectionKind(options.kind, [&](const auto& kind) { exit = CChecker(kind, options).Run(); });
  return exit;
}

std::vector<std::string> Kinds() {
  std::vector<std::string> kinds = ConnectionKindNames();
  kinds.push_back("member");
  return kinds;
}

}  // namespace

void AddCheckCommand(CLI::App& program) {
  auto options = std::make_shared<CCheckOptions>();
  CLI::App* command = program.add_subcommand(
      "check", Say("验算螺栓群、角焊缝、对接焊缝、角焊缝群或构件；有一个不满足时退出状态为 1",
                   "Check bolt groups, fillet welds, butt welds, groups of fillet welds or "
                   "members; exit status 1 when one fails"));
  command->add_option("KIND", options->kind, Say("验算的种类", "What to check"))
      ->required()
      ->check(OneOf(Kinds()));
  command
      ->add_option(
          "FILE", options->file,
          Say("JSON 的一个算例或算例数组，或 .csv；- 表示从标准输入读 JSON",
              "A case or an array of cases in JSON, or a .csv; - reads JSON from standard input"))
      ->required()
      ->check(FileName);
  auto* json = AddJsonOption(*command, options->json);
  auto* csv = command
                  ->add_flag("--csv", options->csv,
                             Say("以 CSV 输出，每个算例一行", "As CSV, one line a case"))
                  ->excludes(json);
  auto* sort = command->add_flag(
      "--sort", options->sort,
      Say("多个算例时，利用率大者在前", "Of many cases, the greatest utilisation first"));
  auto* report =
      command
          ->add_option(
              "--report", options->report,
              Say("写入可按 A4 打印的计算书，语言同回答",
                  "Write a calculation report to print on A4, in the language of the answer"))
          ->check(FileName)
          ->type_name("FILE.html");
  command
      ->add_flag("--cases", options->cases,
                 Say("不验算，以 JSON 输出读到的各算例；不能读出的为 null",
                     "Check nothing: the cases as they are read, as JSON; null is one that cannot "
                     "be read"))
      ->excludes(csv)
      ->excludes(sort)
      ->excludes(report);
  command->add_option("--project", options->project,
                      Say("计算书表头的工程名称，用于没有给出工程的算例",
                          "The project in the head of the report, of cases that name none"));
  command
      ->add_option("--code", options->code,
                   Say("算例没有 code 键时的 GB 50017 版本：2017（现行）、2003（已废止，用于既有"
                       "结构）或 both（两版）；未给出时用变量 ORV3CAL_CODE，再则 2017",
                       "The edition of GB 50017 for cases without the key code: 2017 (in force), "
                       "2003 (withdrawn, for existing structures) or both; the variable "
                       "ORV3CAL_CODE if it is not given, else 2017"))
      ->type_name("YEAR")
      ->check(NamesEdition);
  AddStoreOptions(*command, options->store);
  command->callback([options] {
    const CExit exit = RunCheck(*options);
    if (exit != CExit::Done) throw exit;
  });
}

}  // namespace orv3::cli
