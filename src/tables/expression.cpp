#include "tables/expression.h"

#include <array>
#include <cmath>

#include "framework/number_text.h"
#include "tables/data_table.h"

namespace orv3 {
namespace {

struct COperatorText {
  std::wstring_view m_strText;
  COperator m_nOperator;
};

// In the order in which an expression is searched for them.
constexpr std::array<COperatorText, 6> kOperators = {{{L"==", COperator::Equal},
                                                      {L"!=", COperator::NotEqual},
                                                      {L">>", COperator::Greater},
                                                      {L"<<", COperator::Less},
                                                      {L">=", COperator::GreaterEqual},
                                                      {L"<=", COperator::LessEqual}}};

constexpr double kEqualWithin = 1e-06;

template <class VALUE>
bool Ordered(COperator op, const VALUE& a, const VALUE& b) noexcept {
  switch (op) {
    case COperator::Greater:
      return a > b;
    case COperator::Less:
      return a < b;
    case COperator::GreaterEqual:
      return a >= b;
    case COperator::LessEqual:
      return a <= b;
    case COperator::None:
    case COperator::Equal:
    case COperator::NotEqual:
      break;
  }
  return false;
}

CSearchExpression::CPart ParsePart(const CString& text) {
  for (const COperatorText& op : kOperators) {
    const int at = text.Find(op.m_strText);
    if (at > 0) return {text.Left(at), op.m_strText, text.Mid(at + 2)};
  }
  return {};
}

}  // namespace

COperator OperatorOf(std::wstring_view text) noexcept {
  for (const COperatorText& op : kOperators) {
    if (op.m_strText == text) return op.m_nOperator;
  }
  return COperator::None;
}

CEqualTest::CEqualTest(CValueClass valueClass, const CString& pattern, bool wildcard)
    : m_nClass(valueClass), m_strText(pattern) {
  const int length = pattern.GetLength();
  const bool starStart = wildcard && length > 0 && pattern[0] == L'*';
  const bool starEnd = wildcard && length > 0 && pattern[length - 1] == L'*';
  if (starStart && starEnd) {
    m_nKind = CKind::Contains;
    m_strText = pattern.Mid(1, length - 2);
  } else if (starStart) {
    m_nKind = CKind::Ends;
    m_strText = pattern.Right(length - 1);
  } else if (starEnd) {
    m_nKind = CKind::Starts;
    m_strText = pattern.Left(length - 1);
  } else if (valueClass == CValueClass::Floating) {
    m_dValue = ToDouble(pattern);
  } else if (valueClass == CValueClass::Integer) {
    m_nValue = ToInt(pattern);
  }
}

bool CEqualTest::Matches(std::wstring_view cell) const noexcept {
  switch (m_nKind) {
    case CKind::Starts:
      return cell.starts_with(m_strText.View());
    case CKind::Ends:
      return cell.ends_with(m_strText.View());
    case CKind::Contains:
      return cell.find(m_strText.View()) != std::wstring_view::npos;
    case CKind::Whole:
      break;
  }
  switch (m_nClass) {
    case CValueClass::Floating:
      return std::fabs(ToDouble(cell) - m_dValue) < kEqualWithin;
    case CValueClass::Integer:
      return ToInt(cell) == m_nValue;
    case CValueClass::Text:
      break;
  }
  return cell == m_strText.View();
}

COrderTest::COrderTest(CValueClass valueClass, COperator op, const CString& value)
    : m_nClass(valueClass), m_nOperator(op), m_strValue(value), m_dValue(ToDouble(value)) {}

bool COrderTest::Matches(std::wstring_view cell) const noexcept {
  if (m_nClass == CValueClass::Text) return Ordered(m_nOperator, -m_strValue.Compare(cell), 0);
  return Ordered(m_nOperator, ToDouble(cell), m_dValue);
}

CCondition::CCondition(const CDataTableTitle& title, int column, COperator op, const CString& value,
                       bool wildcard)
    : m_nColumn(column),
      m_nOperator(op),
      m_equal(ValueClassOf(title[column].m_nType), value, wildcard),
      m_order(ValueClassOf(title[column].m_nType), op, value) {}

bool CCondition::Matches(const CDataItem& row) const {
  const CString& cell = row[m_nColumn].m_strValue;
  if (m_nOperator == COperator::Equal) return m_equal.Matches(cell);
  if (m_nOperator == COperator::NotEqual) return !m_equal.Matches(cell);
  return m_order.Matches(cell);
}

CSearchExpression::CSearchExpression(const CString& text) {
  CStringArray halves;
  CDataTable::TransStrToArray(text, L"VIEW", halves);
  m_bView = halves.GetSize() == 2;
  if (m_bView) m_strView = halves[1];

  const CString condition = CString(halves[0]).Trim();
  m_bEverything = condition.IsEmpty();
  if (m_bEverything) return;
  CStringArray parts;
  CDataTable::TransStrToArray(condition, L"&&", parts);
  m_bAnd = parts.GetSize() > 1;
  if (!m_bAnd) CDataTable::TransStrToArray(condition, L"||", parts);
  for (const CString& part : parts) m_arrPart.push_back(ParsePart(part));
}

}  // namespace orv3
