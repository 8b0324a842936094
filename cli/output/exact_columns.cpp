#include "output/exact_columns.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/exact/row_exact.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/exact_keys.h"
#include "output/exact_view.h"

namespace orv3::cli {
namespace {

using CKeys = std::vector<const CExactKey*>;

CDataTypeStruct ColumnOf(const CExactKey& key) {
  return {FromUtf8(std::string(key.m_szTitle) + "(" + key.m_szUnit + ")"), FromUtf8(key.m_szKey),
          CDataTypeStruct::KVBT_DOUBLE, 0};
}

std::map<int, CExactProperties> AddColumns(CDataTable& table, const CKeys& keys) {
  std::map<int, CExactProperties> exacts;
  if (keys.empty()) return exacts;
  for (const CExactKey* key : keys) table.AddTableCol(ColumnOf(*key));
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    CDataItem& row = table.m_arrItem.Own(i);
    const CExactProperties exact = ExactProperties(std::as_const(row));
    WarnInaccurate(ToUtf8(row.m_strTableName) + " " + ToUtf8(row[0].m_strValue), exact);
    for (const CExactKey* key : keys) {
      const double value = exact.*key->m_pField;
      row.m_arrCell.Add(
          CDataCell(ColumnOf(*key), std::isfinite(value) ? FormatShortest(value) : CString()));
    }
    exacts.emplace(row.GetItemIndex(), exact);
  }
  return exacts;
}

bool LacksFigure(const CDataItem& row, const CDataTypeStruct& column) {
  const int cell = row.GetSignIndex(column.m_strSign.View());
  return IsExactColumn(column) && cell >= 0 && row[cell].m_strValue.IsEmpty();
}

bool MatchesKnown(const CDataTable& table, const CDataItem& row, const CSearchExpression& search,
                  bool wildcard) {
  for (const CSearchExpression::CPart& part : search.m_arrPart) {
    const int column = table.GetTableColIndex(CString(part.m_strSign).Trim().View());
    if (column < 0) continue;
    const bool lacks = LacksFigure(row, table.m_Title[column]);
    if (search.m_bAnd && lacks) return false;
    if (search.m_bAnd || lacks) continue;
    const CCondition condition(table.m_Title, column, OperatorOf(part.m_strOperator.View()),
                               CString(part.m_strValue).Trim(), wildcard);
    if (condition.Matches(row)) return true;
  }
  return search.m_bAnd;
}

}  // namespace

bool IsExactColumn(const CDataTypeStruct& column) {
  return FindExactKey(ToUtf8(column.m_strSign)) != nullptr;
}

std::map<int, CExactProperties> AddExactColumns(CDataTable& table,
                                                const std::vector<std::string>& signs) {
  CKeys keys;
  for (const CExactKey& key : ExactKeys()) {
    const bool asked = std::find(signs.begin(), signs.end(), key.m_szKey) != signs.end();
    if (asked && table.GetTableColIndex(FromUtf8(key.m_szKey).View()) < 0) keys.push_back(&key);
  }
  return AddColumns(table, keys);
}

void AddAccuracies(CJson& table, const std::map<int, CExactProperties>& exacts) {
  for (CJson& row : table["rows"]) {
    const auto exact = exacts.find(row["index"].get<int>());
    if (exact != exacts.end()) AddAccuracyJson(row, exact->second);
  }
}

const std::vector<std::string>& ExactSigns() {
  static const std::vector<std::string> signs = [] {
    std::vector<std::string> all;
    for (const CExactKey& key : ExactKeys()) all.emplace_back(key.m_szKey);
    return all;
  }();
  return signs;
}

void RemoveUnknown(CDataTable& table, const CSearchExpression& search, bool wildcard) {
  for (int i = table.GetTableRowNum(); i-- > 0;) {
    if (!MatchesKnown(table, std::as_const(table)[i], search, wildcard))
      table.m_arrItem.RemoveAt(i);
  }
}

void SortUnknownLast(CDataTable& table, int column) {
  std::vector<int> order(static_cast<std::size_t>(table.GetTableRowNum()));
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  std::stable_partition(order.begin(), order.end(), [&](int row) {
    return !LacksFigure(std::as_const(table)[row], table.m_Title[column]);
  });
  table.m_arrItem.Rearrange(order);
}

}  // namespace orv3::cli
