// orv3cal check: bolt groups, fillet welds and butt welds by GB 50017-2003, one or many at once.

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "case_output.h"
#include "case_schema.h"
#include "case_source.h"
#include "commands.h"
#include "connections/report/connection_report.h"
#include "error.h"
#include "progress.h"
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
  std::string language = "zh";
};

// Ties the schema's keys to the fields of a case.
template <class CHECK>
class CCaseReader {
 public:
  explicit CCaseReader(const CCaseSchema& schema) : m_schema(schema) {
    for (const auto& rule : schema.Rules()) {
      const auto keys = CHECK::InputKeys();
      const auto key = std::find_if(keys.begin(), keys.end(), [&](const auto& each) {
        return rule.m_strKey == each.m_szKey;
      });
      if (key == keys.end()) throw std::logic_error("schema: no field for " + rule.m_strKey);
      m_arrKey.push_back(&*key);
    }
  }

  std::optional<CCaseFault> Read(const CCaseValues& values, typename CHECK::CCase& input) const {
    input = {};
    SetName(values, input);  // known also of a case that is refused
    if (auto fault = m_schema.Check(values)) return fault;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (values[i] && !SetInput(input, *m_arrKey[i], *values[i])) {
        const auto& rule = m_schema.Rules()[i];
        return CCaseFault{rule.m_strKey, "is not possible", rule.Right()};
      }
    }
    return std::nullopt;
  }

 private:
  void SetName(const CCaseValues& values, typename CHECK::CCase& input) const {
    const int key = m_schema.Find("id");
    if (key < 0 || !values[static_cast<std::size_t>(key)]) return;
    SetInput(input, *m_arrKey[static_cast<std::size_t>(key)],
             *values[static_cast<std::size_t>(key)]);
  }

  const CCaseSchema& m_schema;
  std::vector<const CInputKey<typename CHECK::CCase>*> m_arrKey;
};

template <class ROWS>
void WorstFirst(ROWS& rows) {
  std::stable_sort(rows.begin(), rows.end(),
                   [](const auto& a, const auto& b) { return a.m_dWorst > b.m_dWorst; });
}

// Where the CSV lines of many cases go: as they come, or worst first at the end.
class CAnswers {
 public:
  explicit CAnswers(bool bSort) : m_bSort(bSort) {}

  std::string& Line() noexcept { return m_strLine; }
  // Ends the line at hand.
  void End(double worst) {
    if (m_bSort) {
      m_arrLine.push_back({worst, std::move(m_strLine)});
      m_strLine.clear();
    } else if (m_strLine.size() > (1U << 16)) {
      Flush();
    }
  }
  void Flush() {
    WorstFirst(m_arrLine);
    for (const CLine& line : m_arrLine) Print(line.m_strText);
    m_arrLine.clear();
    Print(m_strLine);
    m_strLine.clear();
  }

 private:
  struct CLine {
    double m_dWorst;
    std::string m_strText;
  };
  bool m_bSort;
  std::string m_strLine;
  std::vector<CLine> m_arrLine;
};

template <class CHECK>
class CChecker {
 public:
  CChecker(const COptions& options, std::string_view schema)
      : m_options(options), m_schema(schema), m_reader(m_schema) {}

  CExit Run() {
    const auto source = OpenCases(m_options.file, m_schema);
    if (source->IsSingle() && !m_options.csv) return RunOne(*source);
    return RunMany(*source);
  }

 private:
  using CCase = typename CHECK::CCase;

  // Reads and computes the next case; false at the end of the source.
  bool Next(CCaseSource& source) {
    m_values.assign(m_schema.Rules().size(), std::nullopt);
    m_fault.reset();
    if (!source.Next(m_values, m_fault)) return false;
    if (!m_fault) m_fault = m_reader.Read(m_values, m_input);
    if (!m_fault && !m_check.Run(m_input)) m_fault = m_check.Faults().front();
    return true;
  }

  CLanguage Language() const {
    return m_options.language == "en" ? CLanguage::English : CLanguage::Chinese;
  }

  void WriteReport(const std::vector<std::string>& bodies) {
    if (m_options.report.empty()) return;
    const std::string title = "Orv3Cal " + m_options.kind;
    WriteFile(m_options.report, ReportDocument(title, bodies, Language()));
  }

  CExit RunOne(CCaseSource& source) {
    Next(source);
    if (m_fault) throw CCommandError(CExit::BadInput, m_options.file + ": " + m_fault->Line());
    if (!m_options.report.empty()) WriteReport({CaseReport(m_input, m_check, Language())});
    if (m_options.json) {
      PrintJson(CaseJson(m_input, m_check));
    } else {
      Print(CaseText(m_input, m_check));
    }
    return m_check.Pass() ? CExit::Done : CExit::CheckFailed;
  }

  CExit RunMany(CCaseSource& source) {
    if (m_options.csv) Print(CsvHead<CHECK>());
    {
      CProgress progress;
      while (Next(source)) {
        ++m_nCases;
        Answer();
        progress.Step(source.Done());
      }
    }
    Finish();
    WriteReport(m_arrReport);
    if (m_nRefused > 0) {
      throw CCommandError(CExit::BadInput, m_options.file + ": " + std::to_string(m_nRefused) +
                                               " of " + std::to_string(m_nCases) +
                                               " cases refused, the first: " + m_strFirstFault);
    }
    return m_nFailed > 0 ? CExit::CheckFailed : CExit::Done;
  }

  void Answer() {
    if (m_fault) {
      if (m_nRefused++ == 0) {
        m_strFirstFault = "case " + std::to_string(m_nCases) + ", " + m_fault->Line();
      }
    } else if (!m_check.Pass()) {
      ++m_nFailed;
    }
    if (m_options.csv) {
      CsvAnswer();
    } else if (m_options.json) {
      JsonAnswer();
    } else {
      TableAnswer();
    }
    if (m_options.report.empty() || m_fault) return;
    if (m_arrReport.size() == kMostReports) {
      throw CCommandError(CExit::BadInput, "--report: takes at most " +
                                               std::to_string(kMostReports) +
                                               " cases; give a file with fewer");
    }
    m_arrReport.push_back(CaseReport(m_input, m_check, Language()));
  }

  double Worst() const {
    const double worst = m_fault ? HUGE_VAL : m_check.Worst().m_dUtilisation;
    return std::isnan(worst) ? HUGE_VAL : worst;
  }

  void CsvAnswer() {
    std::string& line = m_answers.Line();
    AppendCsv(line, m_nCases);
    line += ',';
    if (!m_input.m_strId.empty()) AppendCsv(line, m_input.m_strId);
    if (m_fault) {
      line.append(CHECK::ResultKeys().size() + 5, ',');
      AppendCsv(line, m_fault->Line());
      line += '\n';
    } else {
      AppendCsvLine(line, m_input, m_check);
    }
    m_answers.End(Worst());
  }

  void JsonAnswer() {
    CJson answer = {{"case", m_nCases}};
    if (!m_input.m_strId.empty()) answer["id"] = m_input.m_strId;
    if (m_fault) {
      answer["refused"] = m_fault->Line();
    } else {
      answer.update(CaseJson(m_input, m_check));
    }
    m_arrJson.push_back({Worst(), std::move(answer)});
  }

  void TableAnswer() {
    std::vector<std::string> row = {std::to_string(m_nCases), m_input.m_strId};
    if (m_fault) {
      row.insert(row.end(), {"refused", "", m_fault->Line()});
    } else {
      row.insert(row.end(),
                 {m_check.Pass() ? "passes" : "fails", PercentText(m_check.Worst().m_dUtilisation),
                  m_check.Worst().m_name.m_szEnglish, std::to_string(m_check.Warnings().size())});
    }
    m_arrRow.push_back({Worst(), std::move(row)});
  }

  void Finish() {
    if (m_options.csv) return m_answers.Flush();
    if (m_options.json) {
      if (m_options.sort) WorstFirst(m_arrJson);
      CJson all = CJson::array();
      for (CJsonRow& row : m_arrJson) all.push_back(std::move(row.m_json));
      return PrintJson(all);
    }
    if (m_options.sort) WorstFirst(m_arrRow);
    CTextTable table(
        {CAlign::Right, CAlign::Left, CAlign::Left, CAlign::Right, CAlign::Left, CAlign::Right});
    table.AddRow({"case", "id", "verdict", "utilisation", "governs", "warnings"});
    for (CRow& row : m_arrRow) table.AddRow(std::move(row.m_arrCell));
    Print(table.Text());
  }

  struct CRow {
    double m_dWorst;
    std::vector<std::string> m_arrCell;
  };
  struct CJsonRow {
    double m_dWorst;
    CJson m_json;
  };

  const COptions& m_options;
  CCaseSchema m_schema;
  CCaseReader<CHECK> m_reader;
  CHECK m_check;
  CCase m_input;
  CCaseValues m_values;
  std::optional<CCaseFault> m_fault;
  CAnswers m_answers{m_options.sort};
  std::vector<CRow> m_arrRow;
  std::vector<CJsonRow> m_arrJson;
  std::vector<std::string> m_arrReport;
  int m_nCases = 0;
  int m_nFailed = 0;
  int m_nRefused = 0;
  std::string m_strFirstFault;
};

CExit RunCheck(const COptions& options) {
  if (options.kind == "bolt") return CChecker<CBoltCheck>(options, kBoltSchema).Run();
  if (options.kind == "fillet") return CChecker<CFilletCheck>(options, kFilletSchema).Run();
  return CChecker<CButtCheck>(options, kButtSchema).Run();
}

}  // namespace

void AddCheckCommand(CLI::App& program) {
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand(
      "check", "Check bolt groups, fillet welds or butt welds; exit status 1 when one fails");
  command->add_option("KIND", options->kind, "What to check")
      ->required()
      ->check(CLI::IsMember({"bolt", "fillet", "butt"}));
  command->add_option("FILE", options->file, "A case or an array of cases in JSON, or a .csv")
      ->required();
  auto* json = command->add_flag("--json", options->json, "As JSON, numbers with all their digits");
  command->add_flag("--csv", options->csv, "As CSV, one line a case")->excludes(json);
  command->add_flag("--sort", options->sort, "Of many cases, the greatest utilisation first");
  command->add_option("--report", options->report, "Write a calculation report to print on A4")
      ->type_name("FILE.html");
  command->add_option("--lang", options->language, "Language of the report: zh or en")
      ->check(CLI::IsMember({"zh", "en"}));
  command->callback([options] {
    const CExit exit = RunCheck(*options);
    if (exit != CExit::Done) throw exit;
  });
}

}  // namespace orv3::cli
