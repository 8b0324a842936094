// Where the answers to many cases go: out as they come, a thousand at a time, or worst first at the
// end.
#pragma once

#include <string>
#include <vector>

#include "framework/language.h"
#include "output/output.h"

namespace orv3::cli {

enum class CAnswerForm { Table, Csv, Json };

class CAnswers {
 public:
  // `head` stands before the lines of a CSV.
  CAnswers(CAnswerForm form, bool bSort, CLanguage language, std::string head)
      : m_nForm(form), m_bSort(bSort), m_nLanguage(language), m_strHead(std::move(head)) {}

  CAnswerForm Form() const noexcept { return m_nForm; }
  CLanguage Language() const noexcept { return m_nLanguage; }
  // `worst` is what the answers are sorted by: the utilisation, infinite for a refused case. A case
  // has a row or a line for each edition that it is checked by.
  void AddRows(double worst, std::vector<std::vector<std::string>> rows) {
    Add({worst, std::move(rows), ""});
  }
  // What the lines of a case are appended to, until the next one.
  std::string& NextLines(double worst);
  void AddJson(double worst, const CJson& json);
  void Finish();

 private:
  struct CAnswer {
    double m_dWorst;
    std::vector<std::vector<std::string>> m_arrRow;
    std::string m_strText;
  };
  void Add(CAnswer answer);
  void Flush();
  void PrintTable() const;

  const CAnswerForm m_nForm;
  const bool m_bSort;
  const CLanguage m_nLanguage;
  const std::string m_strHead;
  bool m_bBegun = false;
  std::string m_strLines;   // of a CSV as they come
  std::size_t m_nHeld = 0;  // cases in m_strLines
  std::vector<CAnswer> m_arrAnswer;
};

}  // namespace orv3::cli
