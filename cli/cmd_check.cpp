// orv3cal check: bolt groups, fillet welds and butt welds by GB 50017-2003, one or many at once.

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "asked_language.h"
#include "case_output.h"
#include "case_schema.h"
#include "case_source.h"
#include "check_answers.h"
#include "check_member.h"
#include "commands.h"
#include "connections/report/connection_report.h"
#include "edition_option.h"
#include "error.h"
#include "framework/excerpt.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "progress.h"
#include "reports/report_document.h"
#include "schemas.h"

namespace orv3::cli {
namespace {

constexpr std::size_t kMostReports = 500;

struct COptions {
  std::string kind;
  std::string file;
  bool json = false;
  bool csv = false;
  bool sort = false;
  std::string report;
  std::string project;
  std::string code;  // "2017", "2003", or empty
  CStoreOptions store;

  // Of what is printed, and of the report.
  CLanguage Language() const noexcept { return MessageLanguage(); }
  CLanguage ReportLanguage() const { return AskedLanguage().value_or(CLanguage::Chinese); }
};

// Ties the schema's keys to the fields of a case and of its report's head.
template <class CHECK>
class CCaseReader {
 public:
  explicit CCaseReader(const CCaseSchema& schema) : m_schema(schema) {
    for (const auto& rule : schema.Rules()) {
      const auto keys = CHECK::InputKeys();
      const auto key = std::find_if(keys.begin(), keys.end(), [&](const auto& each) {
        return rule.m_strKey == each.m_szKey;
      });
      m_arrKey.push_back(key == keys.end() ? nullptr : &*key);
      if (key == keys.end() && SheetField(rule.m_strKey) == nullptr)
        throw std::logic_error("schema: no field for " + rule.m_strKey);
    }
  }

  // What the case tells for the head of its report.
  CReportSheet Sheet(const CCaseValues& values) const {
    CReportSheet sheet;
    for (std::size_t i = 0; i < m_arrKey.size(); ++i) {
      const auto* text = values[i] ? std::get_if<std::string_view>(&*values[i]) : nullptr;
      if (m_arrKey[i] == nullptr && text != nullptr)
        sheet.*SheetField(m_schema.Rules()[i].m_strKey) = *text;
    }
    return sheet;
  }

  // A refused case keeps its name.
  std::optional<CCaseFault> Read(const CReadCase& read, typename CHECK::CCase& input) const {
    const CCaseValues& values = read.m_arrValue;
    input = {};
    SetName(values, input);
    if (read.m_fault) return read.m_fault;
    if (auto fault = m_schema.Check(values)) return fault;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (values[i] && m_arrKey[i] != nullptr && !SetInput(input, *m_arrKey[i], *values[i])) {
        const auto& rule = m_schema.Rules()[i];
        return CCaseFault{rule.m_strKey, {"不可用", "is not possible"}, rule.Right()};
      }
    }
    return std::nullopt;
  }

 private:
  static std::string CReportSheet::*SheetField(std::string_view name) noexcept {
    for (const CSheetKey& key : kSheetKeys) {
      if (name == key.m_szKey) return key.m_pField;
    }
    return nullptr;
  }

  void SetName(const CCaseValues& values, typename CHECK::CCase& input) const {
    const int key = m_schema.Find("id");
    if (key < 0 || !values[static_cast<std::size_t>(key)]) return;
    SetInput(input, *m_arrKey[static_cast<std::size_t>(key)],
             *values[static_cast<std::size_t>(key)]);
  }

  const CCaseSchema& m_schema;
  std::vector<const CInputKey<typename CHECK::CCase>*> m_arrKey;  // null for the head's
};

template <class CHECK>
class CChecker {
 public:
  CChecker(const COptions& options, std::string_view schema)
      : m_options(options),
        m_schema(schema),
        m_reader(m_schema),
        m_answers(options.csv    ? CAnswerForm::Csv
                  : options.json ? CAnswerForm::Json
                                 : CAnswerForm::Table,
                  options.sort, options.Language(), options.csv ? CsvHead<CHECK>() : "") {}

  CExit Run() {
    {
      CProgress progress;
      ReadCases(m_options.file, m_schema, Language(), [&](const CReadCase& read) {
        Check(read);
        progress.Step(read.m_dDone);
      });
    }
    if (m_nCases == 0) Refuse({"没有算例；请至少给一个", "holds no case; give one at least"});
    if (!m_bOne) m_answers.Finish();
    WriteReport();
    if (m_bOne && m_fault) Refuse(m_fault->Text());
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

  // Computes the case that was read, and answers it.
  void Check(const CReadCase& read) {
    ++m_nCases;
    m_bOne = read.m_bSingle && !m_options.csv;
    m_fault = m_reader.Read(read, m_input);
    if (!m_fault && !m_check.Run(m_input)) m_fault = m_check.Faults().front();
    if (m_fault) {
      CountFault();
    } else if (!m_check.Pass()) {
      ++m_nFailed;
    }
    AddToReport(read);
    if (m_bOne) {
      AnswerOne();
    } else {
      Answer();
    }
  }

  void CountFault() {
    if (m_nRefused++ > 0) return;
    const std::string number = std::to_string(m_nCases);
    const CText which = {"第 " + number + " 个，", "case " + number + ", "};
    m_strFirstFault = which.In(Language()) + m_fault->Line(Language());
  }

  void AnswerOne() {
    if (m_fault) return;
    if (m_options.json) {
      PrintJson(CaseJson(m_input, m_check, Language()));
    } else {
      Print(CaseText(m_input, m_check, Language()));
    }
  }

  void Answer() {
    switch (m_answers.Form()) {
      case CAnswerForm::Csv:
        return m_answers.AddLine(Worst(), CsvAnswer());
      case CAnswerForm::Json:
        return m_answers.AddJson(Worst(), JsonAnswer());
      case CAnswerForm::Table:
        return m_answers.AddRow(Worst(), TableAnswer());
    }
  }

  double Worst() const {
    const double worst = m_fault ? HUGE_VAL : m_check.Worst().m_dUtilisation;
    return std::isnan(worst) ? HUGE_VAL : worst;
  }

  std::string CsvAnswer() const {
    std::string line = std::to_string(m_nCases) + ',';
    AppendCsv(line, m_input.m_strId);
    if (!m_fault) {
      AppendCsvLine(line, m_input, m_check, Language());
      return line;
    }
    line.append(CHECK::ResultKeys().size() + 5, ',');
    AppendCsv(line, m_fault->Line(Language()));
    return line + '\n';
  }

  CJson JsonAnswer() const {
    CJson answer = {{"case", m_nCases}};
    if (!m_input.m_strId.empty()) answer["id"] = m_input.m_strId;
    if (m_fault) {
      answer["refused"] = m_fault->Line(Language());
    } else {
      answer.update(CaseJson(m_input, m_check, Language()));
    }
    return answer;
  }

  std::vector<std::string> TableAnswer() const {
    static constexpr CTextLiteral kRefused = {"拒绝", "refused"};
    std::vector<std::string> row = {std::to_string(m_nCases), Excerpt(m_input.m_strId)};
    if (m_fault) {
      row.insert(row.end(), {kRefused.In(Language()), "", m_fault->Line(Language())});
    } else {
      const CCasePart& worst = m_check.Worst();
      row.insert(row.end(),
                 {VerdictText(m_check.Pass(), Language()), PercentText(worst.m_dUtilisation),
                  worst.m_name.In(Language()), std::to_string(m_check.Warnings().size())});
    }
    return row;
  }

  void AddToReport(const CReadCase& read) {
    if (m_options.report.empty()) return;
    if (m_arrReport.size() == kMostReports) {
      const std::string most = std::to_string(kMostReports);
      Refuse({"--report 至多写 " + most + " 个算例；请把文件分开",
              "--report takes at most " + most + " cases; give a file with fewer"});
    }
    const CLanguage language = m_options.ReportLanguage();
    CReportCase each = {.m_nCase = m_nCases,
                        .m_strId = m_input.m_strId,
                        .m_sheet = m_reader.Sheet(read.m_arrValue)};
    if (each.m_sheet.m_strProject.empty()) each.m_sheet.m_strProject = m_options.project;
    if (m_fault) {
      each.m_strRefused = m_fault->Line(language);
    } else {
      each.m_bPass = m_check.Pass();
      each.m_dUtilisation = m_check.Worst().m_dUtilisation;
      each.m_strGoverns = m_check.Worst().m_name.In(language);
      each.m_nWarnings = m_check.Warnings().size();
      each.m_strBody = CaseReport(m_input, m_check, language);
    }
    m_arrReport.push_back(std::move(each));
  }

  // What the browser calls the report.
  std::string Title() const {
    static const std::map<std::string, CText> kTitles = {
        {"bolt", {"螺栓连接验算", "Bolted connections"}},
        {"fillet", {"角焊缝验算", "Fillet welds"}},
        {"butt", {"对接焊缝验算", "Butt welds"}}};
    return kTitles.at(m_options.kind).In(m_options.ReportLanguage());
  }

  void WriteReport() const {
    if (m_options.report.empty()) return;
    const CReportTitle title = {Title() + " — Orv3Cal", ORV3CAL_VERSION};
    WriteFile(m_options.report, ReportDocument(title, m_arrReport, m_options.ReportLanguage()));
  }

  const COptions& m_options;
  CCaseSchema m_schema;
  CCaseReader<CHECK> m_reader;
  CAnswers m_answers;
  CHECK m_check;
  typename CHECK::CCase m_input;
  std::optional<CCaseFault> m_fault;
  bool m_bOne = false;  // the file is one case, which is answered in full
  std::vector<CReportCase> m_arrReport;
  int m_nCases = 0;
  int m_nFailed = 0;
  int m_nRefused = 0;
  std::string m_strFirstFault;
};

CExit RunMembers(const COptions& options) {
  if (!options.report.empty() || !options.project.empty())
    Refuse("--report: members have no report yet; right would be --json or --csv");
  return CheckMembers({options.file, options.code, options.json, options.csv, options.sort,
                       options.Language(), options.store});
}

CExit RunCheck(const COptions& options) {
  if (options.kind == "member") return RunMembers(options);
  if (!options.code.empty()) Refuse("--code: is for members; leave it out");
  if (options.kind == "bolt") return CChecker<CBoltCheck>(options, kBoltSchema).Run();
  if (options.kind == "fillet") return CChecker<CFilletCheck>(options, kFilletSchema).Run();
  return CChecker<CButtCheck>(options, kButtSchema).Run();
}

// What is wrong with the name of a file.
std::string FileName(const std::string& name) {
  return name.empty() ? Say("为空；请给出文件名", "is empty; give the name of a file") : "";
}

}  // namespace

void AddCheckCommand(CLI::App& program) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand(
      "check",
      Say("验算螺栓群、角焊缝、对接焊缝或构件；有一个不满足时退出状态为 1",
          "Check bolt groups, fillet welds, butt welds or members; exit status 1 when one fails"));
  command->add_option("KIND", options->kind, Say("验算的种类", "What to check"))
      ->required()
      ->check(CLI::IsMember({"bolt", "fillet", "butt", "member"}));
  command
      ->add_option(
          "FILE", options->file,
          Say("JSON 的一个算例或算例数组，或 .csv；- 表示从标准输入读 JSON",
              "A case or an array of cases in JSON, or a .csv; - reads JSON from standard input"))
      ->required()
      ->check(FileName);
  auto* json = command->add_flag(
      "--json", options->json,
      Say("以 JSON 输出，数值带全部位数", "As JSON, numbers with all their digits"));
  command
      ->add_flag("--csv", options->csv, Say("以 CSV 输出，每个算例一行", "As CSV, one line a case"))
      ->excludes(json);
  command->add_flag(
      "--sort", options->sort,
      Say("多个算例时，利用率大者在前", "Of many cases, the greatest utilisation first"));
  command
      ->add_option(
          "--report", options->report,
          Say("写入可按 A4 打印的计算书（不给 --lang 时为中文）",
              "Write a calculation report to print on A4, in Chinese unless --lang is given"))
      ->check(FileName)
      ->type_name("FILE.html");
  command->add_option("--project", options->project,
                      Say("计算书表头的工程名称，用于没有给出工程的算例",
                          "The project in the head of the report, of cases that name none"));
  AddEditionOption(*command, options->code);
  AddStoreOptions(*command, options->store);
  command->callback([options] {
    const CExit exit = RunCheck(*options);
    if (exit != CExit::Done) throw exit;
  });
}

}  // namespace orv3::cli
