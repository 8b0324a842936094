#include "cases/check_member.h"

#include <algorithm>

#include "cases/check_answers.h"
#include "cases/check_editions.h"
#include "cases/member_run.h"
#include "framework/utf8.h"
#include "output/progress.h"

namespace orv3::cli {
namespace {

class CMembers {
 public:
  explicit CMembers(const CMemberOptions& options)
      : m_options(options),
        m_arrAsked(EditionsAsked(options.code)),
        m_2017(CCodeEdition::Gb2017, options.language),
        m_2003(CCodeEdition::Gb2003, options.language),
        m_answers(options.csv    ? CAnswerForm::Csv
                  : options.json ? CAnswerForm::Json
                                 : CAnswerForm::Table,
                  options.sort, options.language, options.csv ? CMemberRun::CsvHead() : "") {}

  CExit Run() {
    {
      CProgress progress;
      ReadCases(m_options.file, m_reader.Schema(), m_options.language, [&](const CReadCase& read) {
        Check(read);
        progress.Step(read.m_dDone);
      });
    }
    if (m_nCases == 0 && !HasColumnsAlone(m_options.file))
      RefuseFile({"没有算例；请至少给一个", "holds no case; give one at least"});
    if (!m_bOne) m_answers.Finish();
    WriteReport();
    if (m_bOne && m_nRefused > 0) RefuseFile(m_firstFault.Text());
    if (m_nRefused > 0) {
      const std::string refused = std::to_string(m_nRefused), cases = std::to_string(m_nCases);
      RefuseFile({cases + " 个算例中有 " + refused + " 个被拒绝，第一个：" + m_strFirstFault,
                  refused + " of " + cases + " cases refused, the first: " + m_strFirstFault});
    }
    return m_nFailed > 0 ? CExit::CheckFailed : CExit::Done;
  }

 private:
  [[noreturn]] void RefuseFile(const CText& what) const {
    Refuse(Visible(m_options.file) + ": " + what.In(m_options.language));
  }

  void Check(const CReadCase& read) {
    ++m_nCases;
    m_bOne = read.m_bSingle && !m_options.csv;
    const auto fault = m_reader.Read(read, m_member);
    const auto editions = EditionsNamed(m_member.m_strCode, m_arrAsked);
    m_arrRun.clear();
    for (const CCodeEdition edition : editions)
      m_arrRun.push_back(edition == CCodeEdition::Gb2017 ? &m_2017 : &m_2003);
    if (m_member.m_strCode == "both") {
      for (CMemberCase& each : m_member.m_arrCase) each.m_strCode.clear();
    }
    for (CMemberRun* run : m_arrRun) run->Run(m_member, fault);
    Count();
    AddToReport();
    Answer();
  }

  void Count() {
    const auto refused =
        std::find_if(m_arrRun.begin(), m_arrRun.end(), [](auto* run) { return run->Fault(); });
    if (refused != m_arrRun.end()) {
      if (m_nRefused++ > 0) return;
      m_firstFault = *(*refused)->Fault();
      const std::string number = std::to_string(m_nCases);
      const CText which = {"第 " + number + " 个，", "case " + number + ", "};
      m_strFirstFault = which.In(m_options.language) + m_firstFault.Line(m_options.language);
    } else if (!AllPass()) {
      ++m_nFailed;
    }
  }

  bool AllPass() const {
    return std::all_of(m_arrRun.begin(), m_arrRun.end(), [](auto* run) { return run->Pass(); });
  }
  // The one of the greater ratio.
  const CMemberRun& WorstRun() const {
    return **std::max_element(m_arrRun.begin(), m_arrRun.end(), [](auto* left, auto* right) {
      return left->Worst() < right->Worst();
    });
  }

  void AddToReport() {
    if (m_options.report.empty()) return;
    if (m_nReported++ == kMostReports) RefuseFile(TooManyReports());
    if (m_member.m_sheet.m_strProject.empty()) m_member.m_sheet.m_strProject = m_options.project;
    for (const CMemberRun* run : m_arrRun)
      m_arrReport.push_back(run->Report(m_nCases, m_options.language));
  }

  void WriteReport() const {
    if (m_options.report.empty()) return;
    static constexpr CTextLiteral kTitle = {"构件验算", "Members"};
    const CReportTitle title = {std::string(kTitle.In(m_options.language)) + " — Orv3Cal",
                                ORV3CAL_VERSION};
    WriteFile(m_options.report, ReportDocument(title, m_arrReport, m_options.language));
  }

  void Answer() {
    if (m_bOne) {
      // Refused by the one edition it is not answered; by one of both, the other is.
      if (m_arrRun.size() == 1 && m_arrRun[0]->Fault() != nullptr) return;
      if (m_options.json) return PrintJson(NamedJson(CJson::object()));
      for (const CMemberRun* run : m_arrRun) Print((run == m_arrRun[0] ? "" : "\n") + run->Text());
      return;
    }
    const double worst = WorstRun().Worst();
    switch (m_answers.Form()) {
      case CAnswerForm::Csv: {
        std::string& lines = m_answers.NextLines(worst);
        for (const CMemberRun* run : m_arrRun) run->AppendCsv(m_nCases, lines);
        return;
      }
      case CAnswerForm::Json: {
        return m_answers.AddJson(worst, NamedJson({{"case", m_nCases}}));
      }
      case CAnswerForm::Table: {
        std::vector<std::vector<std::string>> rows;
        for (const CMemberRun* run : m_arrRun) rows.push_back(run->Row(m_nCases));
        return m_answers.AddRows(worst, std::move(rows));
      }
    }
  }

  // The answer behind what it begins with and its id.
  CJson NamedJson(CJson answer) const {
    if (!m_member.m_strId.empty()) answer["id"] = m_member.m_strId;
    answer.update(Json());
    return answer;
  }

  // Of both editions: both pass, and the greater ratio.
  CJson Json() const {
    if (m_arrRun.size() == 1) return m_arrRun[0]->Json();
    CJson json = {{"code", "both"}, {"pass", AllPass()}};
    const CJson worst = WorstRun().Json();
    for (const char* key : {"ratio", "governs"})
      if (worst.contains(key)) json[key] = worst[key];
    for (const CMemberRun* run : m_arrRun) json["editions"].push_back(run->Json());
    return json;
  }

  const CMemberOptions& m_options;
  const std::vector<CCodeEdition> m_arrAsked;
  CMemberReader m_reader;
  CMemberRun m_2017, m_2003;
  std::vector<CMemberRun*> m_arrRun;  // of the member at hand
  CAnswers m_answers;
  CReadMember m_member;
  std::vector<CReportCase> m_arrReport;
  std::size_t m_nReported = 0;
  bool m_bOne = false;  // the file is one member, which is answered in full
  int m_nCases = 0, m_nFailed = 0, m_nRefused = 0;
  CCaseFault m_firstFault;
  std::string m_strFirstFault;
};

}  // namespace

CExit CheckMembers(const CMemberOptions& options) {
  StoreToRead(options.store);
  return CMembers(options).Run();
}

}  // namespace orv3::cli
