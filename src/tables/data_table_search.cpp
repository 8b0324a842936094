// Searching, viewing and ordering of a table.

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

#include "framework/number_text.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/expression.h"

using orv3::CCondition;
using orv3::CEqualTest;
using orv3::CSearchExpression;

namespace {

// The condition "sign op value", or none when the column or the operator is missing.
std::optional<CCondition> Compile(const CDataTable& table, const CString& sign, const CString& op,
                                  const CString& value, bool wildcard) {
  const int column = table.GetTableColIndex(CString(sign).Trim());
  const CString trimmed = CString(op).Trim();
  if (column < 0 || trimmed.IsEmpty()) return std::nullopt;
  return CCondition(table.m_Title, column, orv3::OperatorOf(trimmed), value, wildcard);
}

void KeepMatching(const CDataTable& table, const CCondition& condition,
                  std::vector<int>& positions) {
  std::erase_if(positions, [&](int position) { return !condition.Matches(table[position]); });
}

// Adds the live rows that match and are not there yet.
void AddMatching(const CDataTable& table, const CCondition& condition,
                 std::vector<int>& positions) {
  std::vector<bool> present(static_cast<std::size_t>(table.GetTableRowNum()));
  for (const int position : positions) {
    if (position >= 0 && position < table.GetTableRowNum()) {
      present[static_cast<std::size_t>(position)] = true;
    }
  }
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    table.m_arrItem.Prefetch(i, condition.Column());
    const CDataItem& row = table[i];
    if (orv3::IsDeleted(row.m_nModifyType) || present[static_cast<std::size_t>(i)]) continue;
    if (condition.Matches(row)) positions.push_back(i);
  }
}

// The order of the first `count` rows by a key, equal rows in the order they have; reversed as a
// whole when descending.
template <class KEY, class LESS>
std::vector<int> SortedPositions(const std::vector<KEY>& keys, bool ascending, LESS less) {
  std::vector<int> positions(keys.size());
  std::iota(positions.begin(), positions.end(), 0);
  std::stable_sort(positions.begin(), positions.end(), [&](int a, int b) {
    return less(keys[static_cast<std::size_t>(a)], keys[static_cast<std::size_t>(b)]);
  });
  if (!ascending) std::reverse(positions.begin(), positions.end());
  return positions;
}

std::vector<int> OrderByColumn(const CDataTable& table, int col, int count, bool ascending) {
  if (ValueClassOf(table.GetDataTableColType(col)) == CValueClass::Text) {
    std::vector<CString> texts;
    texts.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) texts.push_back(table[i][col].m_strValue);
    return SortedPositions(texts, ascending,
                           [](const CString& a, const CString& b) { return a.Compare(b) < 0; });
  }
  std::vector<double> numbers;
  numbers.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) numbers.push_back(orv3::ToDouble(table[i][col].m_strValue));
  return SortedPositions(numbers, ascending, std::less<>());
}

}  // namespace

int CDataTable::IsSelected(int position, int col, const CString& pattern, int bWildcard) const {
  const CString& cell = (*this)[position][col].m_strValue;
  const CValueClass valueClass = ValueClassOf(GetDataTableColType(col));
  return CEqualTest(valueClass, pattern, bWildcard != 0).Matches(cell) ? 1 : 0;
}

int CDataTable::IsComPile(int position, int col, const CString& value, const CString& op) const {
  const CString& cell = (*this)[position][col].m_strValue;
  const CValueClass valueClass = ValueClassOf(GetDataTableColType(col));
  return orv3::COrderTest(valueClass, orv3::OperatorOf(op), value).Matches(cell) ? 1 : 0;
}

int CDataTable::IsHaveValue(int col, const CString& value, int skipIndex) const {
  const CString sign = GetTableColSign(col);
  CArray<int, int> found;
  SearchTableIndex(found, sign.GetString(), value.GetString(), L"==", 0, 0);
  const int skip = skipIndex >= 0 ? GetTableIndex(skipIndex) : -1;
  for (const int position : found) {
    if (position != skip) return position;
  }
  return -1;
}

int CDataTable::SearchTableIndex(CArray<int, int>& result, const wchar_t* sign,
                                 const wchar_t* value, const CString& op, int bAnd,
                                 int bWildcard) const {
  const auto condition = Compile(*this, sign, op, value, bWildcard != 0);
  if (!condition) return 0;
  std::vector<int> positions(result.begin(), result.end());
  if (bAnd) {
    KeepMatching(*this, *condition, positions);
  } else {
    AddMatching(*this, *condition, positions);
  }
  result.RemoveAll();
  for (const int position : positions) result.Add(position);
  return 1;
}

CString CDataTable::DerivedName() const { return (m_strTableName + L"_1").Left(kMaxTableName); }

std::vector<int> CDataTable::FindPositions(const CSearchExpression& search, bool wildcard) const {
  std::vector<int> positions;
  if (search.m_bEverything) {
    positions.resize(static_cast<std::size_t>(GetTableRowNum()));
    std::iota(positions.begin(), positions.end(), 0);
    return positions;
  }
  bool first = true;
  for (const CSearchExpression::CPart& part : search.m_arrPart) {
    const bool filter = search.m_bAnd && !first;
    first = false;
    const auto condition =
        Compile(*this, part.m_strSign, part.m_strOperator, part.m_strValue, wildcard);
    if (!condition) continue;
    if (filter) {
      KeepMatching(*this, *condition, positions);
    } else {
      AddMatching(*this, *condition, positions);
    }
  }
  return positions;
}

CDataTable CDataTable::SearchTable(const wchar_t* expression, int bWildcard) {
  const CSearchExpression search{CString(expression)};
  CDataTable result;
  result.m_Title = m_Title;
  result.m_strTableName = DerivedName();
  result.m_pParentTable = this;
  for (const int position : FindPositions(search, bWildcard != 0)) {
    result.m_arrItem.Add(m_arrItem.Own(position));
  }
  if (!search.m_bView) return result;
  CDataTable view = result.ViewTable(search.m_strView.GetString());
  view.m_strTableName = DerivedName();
  view.m_pParentTable = this;
  return view;
}

CDataTable CDataTable::ViewTable(const wchar_t* columns) {
  CDataTable view;
  view.m_strTableName = DerivedName();
  view.m_pParentTable = this;
  const CString list = CString(columns).Trim();
  if (list.IsEmpty()) {
    view.m_Title = m_Title;
    view.m_arrItem = m_arrItem;
    return view;
  }
  CStringArray signs;
  TransStrToArray(list, L"<<>>", signs);
  for (CString& sign : signs) sign.Trim();
  std::vector<int> kept;
  for (int i = 0; i < GetTableColNum(); ++i) {
    if (std::find(signs.begin(), signs.end(), m_Title[i].m_strSign) == signs.end()) continue;
    kept.push_back(i);
    view.AddTableCol(m_Title[i]);
  }
  for (const CDataItem& row : std::as_const(m_arrItem)) {
    CDataItem part;
    part.m_strFileInfo = row.m_strFileInfo;
    part.m_strTableName = row.m_strTableName;
    part.m_nIndex = row.m_nIndex;
    part.m_nModifyType = row.m_nModifyType;
    for (const int col : kept) part.m_arrCell.Add(row[col]);
    view.m_arrItem.Add(part);
  }
  return view;
}

int CDataTable::OrderTable(int col, int bAscending) {
  if (col < 0 || col >= GetTableColNum()) return 0;
  const CDataItemArray& rows = m_arrItem;
  // The rows before the first one that lacks the column can be compared.
  const auto lacking = std::find_if(
      rows.begin(), rows.end(), [&](const CDataItem& row) { return col >= row.GetItemLength(); });
  const auto count = static_cast<int>(std::distance(rows.begin(), lacking));
  if (bAscending == 0 || bAscending == 1) {
    std::vector<int> positions = OrderByColumn(*this, col, count, bAscending == 1);
    for (int i = count; i < GetTableRowNum(); ++i) positions.push_back(i);
    if (!std::is_sorted(positions.begin(), positions.end())) m_arrItem.Rearrange(positions);
  }
  if (count < GetTableRowNum() && GetTableRowNum() > 1) rows[count][col];
  return 1;
}

int CDataTable::OrderTable(const wchar_t* sign, int bAscending) {
  return OrderTable(GetTableColIndex(CString(sign)), bAscending);
}
