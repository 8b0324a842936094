#include "cases/check_answers.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "output/text_table.h"

namespace orv3::cli {
namespace {

constexpr std::size_t kHeld = 1000;

// A JSON text as an element of an array.
std::string Indented(const std::string& text) {
  std::string out = "  ";
  for (const char ch : text) {
    out += ch;
    if (ch == '\n') out += "  ";
  }
  return out;
}

}  // namespace

std::string& CAnswers::NextLines(double worst) {
  if (m_bSort) {
    m_arrAnswer.push_back({worst, {}, ""});
    return m_arrAnswer.back().m_strText;
  }
  if (m_nHeld == kHeld) Flush();
  if (m_nHeld++ == 0 && !m_bBegun) m_strLines = m_strHead;
  return m_strLines;
}

void CAnswers::AddJson(double worst, const CJson& json) {
  Add({worst, {}, Indented(json.dump(2))});
}

void CAnswers::Add(CAnswer answer) {
  m_arrAnswer.push_back(std::move(answer));
  if (!m_bSort && m_arrAnswer.size() == kHeld) Flush();
}

void CAnswers::Finish() {
  std::stable_sort(m_arrAnswer.begin(), m_arrAnswer.end(), [this](const auto& a, const auto& b) {
    return m_bSort && a.m_dWorst > b.m_dWorst;
  });
  if (!m_arrAnswer.empty() || m_nHeld > 0 || !m_bBegun) Flush();
  if (m_nForm == CAnswerForm::Json) Print(m_bBegun ? "\n]\n" : "[]\n");
}

void CAnswers::Flush() {
  if (m_nForm == CAnswerForm::Table) {
    PrintTable();
  } else if (m_nForm == CAnswerForm::Csv) {
    if (m_nHeld == 0 && !m_bBegun) m_strLines = m_strHead;
    for (const CAnswer& answer : m_arrAnswer) m_strLines += answer.m_strText;
    PrintCsv(m_strLines);
  } else {
    std::string text;
    for (const CAnswer& answer : m_arrAnswer) {
      text += std::exchange(m_bBegun, true) ? ",\n" : "[\n";
      text += answer.m_strText;
    }
    Print(text);
  }
  m_bBegun = m_bBegun || m_nForm != CAnswerForm::Json;
  m_arrAnswer.clear();
  m_strLines.clear();
  m_nHeld = 0;
}

void CAnswers::PrintTable() const {
  static constexpr CTextLiteral kHead[] = {{"序号", "case"},          {"编号", "id"},
                                           {"版本", "code"},          {"结论", "verdict"},
                                           {"利用率", "utilisation"}, {"控制项", "governs"},
                                           {"请注意", "warnings"},    {"摩擦面", "surface"}};
  constexpr std::size_t kSurface = std::size(kHead) - 1;
  CTextTable table({CAlign::Right, CAlign::Left, CAlign::Left, CAlign::Left, CAlign::Right,
                    CAlign::Left, CAlign::Right, CAlign::Left});
  bool bSurface = false;  // of any case at hand
  for (const CAnswer& answer : m_arrAnswer) {
    for (const auto& row : answer.m_arrRow)
      bSurface = bSurface || (row.size() > kSurface && !row[kSurface].empty());
  }
  const auto add = [&](std::vector<std::string> row) {
    if (!bSurface && row.size() > kSurface) row.resize(kSurface);
    table.AddRow(std::move(row));
  };
  std::vector<std::string> head;
  for (const CTextLiteral& text : kHead) head.emplace_back(text.In(m_nLanguage));
  add(std::move(head));
  for (const CAnswer& answer : m_arrAnswer) {
    for (const auto& row : answer.m_arrRow) add(row);
  }
  Print(table.Text());
}

}  // namespace orv3::cli
