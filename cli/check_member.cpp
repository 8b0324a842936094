#include "check_member.h"

#include <cmath>

#include "case_output.h"
#include "check_answers.h"
#include "codes/edition.h"
#include "edition_option.h"
#include "framework/excerpt.h"
#include "framework/utf8.h"
#include "member_reader.h"
#include "progress.h"

namespace orv3::cli {
namespace {

std::string CsvHead() {
  std::string line = "case,id,code,pass,ratio,governs";
  for (std::size_t i = 0; i < kMemberCheckKinds; ++i)
    line += std::string(",") + MemberCheckName(static_cast<CMemberCheckKind>(i));
  for (const CMemberResult& key : MemberResultKeys()) line += std::string(",") + key.m_szKey;
  return line + ",warnings,refused\n";
}

class CMembers {
 public:
  explicit CMembers(const CMemberOptions& options)
      : m_options(options),
        m_answers(options.csv    ? CAnswerForm::Csv
                  : options.json ? CAnswerForm::Json
                                 : CAnswerForm::Table,
                  options.sort, options.language, options.csv ? CsvHead() : "") {
    if (YearAsked(options.code) == "both")
      Refuse(CText{"--code：both 不用于构件；请给出 2017 或 2003，一次一个版本",
                   "--code: both is not for members; give 2017 or 2003, one at a time"}
                 .In(options.language));
    m_check.SetEdition(EditionAsked(options.code));
  }

  CExit Run() {
    {
      CProgress progress;
      ReadCases(m_options.file, m_reader.Schema(), m_options.language, [&](const CReadCase& read) {
        Check(read);
        progress.Step(read.m_dDone);
      });
    }
    if (m_nCases == 0) RefuseFile({"没有算例；请至少给一个", "holds no case; give one at least"});
    if (!m_bOne) m_answers.Finish();
    if (m_bOne && m_fault) RefuseFile(m_fault->Text());
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
    m_fault = m_reader.Read(read, m_input);
    if (!m_fault && !m_check.Run(m_input)) m_fault = m_check.Fault();
    if (m_fault) {
      CountFault();
    } else if (!m_check.Pass()) {
      ++m_nFailed;
    }
    if (m_bOne) return AnswerOne();
    switch (m_answers.Form()) {
      case CAnswerForm::Csv:
        return m_answers.AddLine(Worst(), Csv());
      case CAnswerForm::Json:
        return m_answers.AddJson(Worst(), Json());
      case CAnswerForm::Table:
        return m_answers.AddRows(Worst(), {Row()});
    }
  }

  void CountFault() {
    if (m_nRefused++ > 0) return;
    const std::string number = std::to_string(m_nCases);
    const CText which = {"第 " + number + " 个，", "case " + number + ", "};
    m_strFirstFault = which.In(m_options.language) + m_fault->Line(m_options.language);
  }

  void AnswerOne() const {
    if (m_fault) return;
    if (m_options.json) {
      PrintJson(MemberJson(m_check, m_options.language));
    } else {
      Print(MemberText(m_check, m_options.language));
    }
  }

  double Worst() const {
    const double worst = m_fault ? HUGE_VAL : m_check.Answer().Worst().m_dRatio;
    return std::isnan(worst) ? HUGE_VAL : worst;
  }

  std::string Csv() const {
    std::string line = std::to_string(m_nCases) + ',';
    AppendCsv(line, m_input.m_strId);
    if (m_fault) {
      line.append(kMemberCheckKinds + MemberResultKeys().size() + 6, ',');
      AppendCsv(line, m_fault->Line(m_options.language));
      return line + '\n';
    }
    const CMemberAnswer& answer = m_check.Answer();
    line += std::string(",") + EditionFacts(m_check.Edition()).m_szYear + ',';
    AppendCsv(line, m_check.Pass());
    line += ',';
    AppendCsv(line, answer.Worst().m_dRatio);
    line += std::string(",") + MemberCheckName(answer.Worst().m_nKind);
    for (std::size_t i = 0; i < kMemberCheckKinds; ++i) {
      line += ',';
      AppendCsv(line, answer.Ratio(static_cast<CMemberCheckKind>(i)));
    }
    for (const CMemberResult& key : MemberResultKeys()) {
      line += ',';
      AppendCsv(line, answer.m_results.*key.m_pField);
    }
    line += ',';
    AppendCsv(line, NoteLine(answer, m_options.language));
    return line + ",\n";
  }

  CJson Json() const {
    CJson answer = {{"case", m_nCases}};
    if (!m_input.m_strId.empty()) answer["id"] = m_input.m_strId;
    if (m_fault) {
      answer["refused"] = m_fault->Line(m_options.language);
    } else {
      answer.update(MemberJson(m_check, m_options.language));
    }
    return answer;
  }

  std::vector<std::string> Row() const {
    static constexpr CTextLiteral kRefused = {"拒绝", "refused"};
    const std::string year = m_fault ? "" : EditionFacts(m_check.Edition()).m_szYear;
    std::vector<std::string> row = {std::to_string(m_nCases), Excerpt(m_input.m_strId), year};
    if (m_fault) {
      row.insert(row.end(),
                 {kRefused.In(m_options.language), "", m_fault->Line(m_options.language)});
      return row;
    }
    const CMemberCheckPart& worst = m_check.Answer().Worst();
    row.insert(row.end(),
               {VerdictText(m_check.Pass(), m_options.language), PercentText(worst.m_dRatio),
                MemberCheckTitle(worst.m_nKind).In(m_options.language),
                std::to_string(m_check.Answer().Notes().size())});
    return row;
  }

  const CMemberOptions& m_options;
  CMemberReader m_reader;
  CAnswers m_answers;
  CMemberCheck m_check;
  CMemberCase m_input;
  std::optional<CCaseFault> m_fault;
  bool m_bOne = false;
  int m_nCases = 0, m_nFailed = 0, m_nRefused = 0;
  std::string m_strFirstFault;
};

}  // namespace

CExit CheckMembers(const CMemberOptions& options) {
  StoreToRead(options.store);
  return CMembers(options).Run();
}

}  // namespace orv3::cli
