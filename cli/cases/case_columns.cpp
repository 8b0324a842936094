#include "cases/case_columns.h"

#include <algorithm>
#include <cmath>

#include "cases/case_cell.h"
#include "cases/case_readers.h"
#include "error.h"
#include "framework/language.h"

namespace orv3::cli {
namespace {

// A column with the key that it is of, and what the value of the case at hand points into.
struct CKeyColumn {
  const CCaseColumn* m_pColumn;
  int m_nKey;
  std::vector<double> m_arrList = {};
  std::string m_strText = {};
};

std::vector<CKeyColumn> KeyColumns(const CCaseColumns& cases, const CCaseSchema& schema) {
  std::vector<CKeyColumn> columns;
  for (const CCaseColumn& column : cases.m_arrColumn) {
    const int key = schema.Find(column.m_strKey);
    if (key < 0) Refuse(Say(schema.Unknown(column.m_strKey).Text()));
    const auto before = std::find_if(columns.begin(), columns.end(),
                                     [&](const CKeyColumn& each) { return each.m_nKey == key; });
    if (before != columns.end())
      Refuse(Say("{1}: 有两列；请只给一列", "{1}: stands over two columns; give it once",
                 {column.m_strKey}));
    columns.push_back({&column, key});
  }
  return columns;
}

std::optional<CKeyValue> ValueAt(CKeyColumn& column, std::size_t row,
                                 const CCaseSchema::CRule& rule) {
  const auto number = [&](double value) -> std::optional<CKeyValue> {
    if (std::isnan(value)) return std::nullopt;
    return CellValue(value, rule, column.m_strText);
  };
  if (!column.m_pColumn->m_arrNumber.empty()) return number(column.m_pColumn->m_arrNumber[row]);
  const CCaseCell& cell = column.m_pColumn->m_arrCell[row];
  if (const auto* value = std::get_if<double>(&cell)) return number(*value);
  if (const auto* list = std::get_if<std::vector<double>>(&cell))
    return std::span<const double>(*list);
  const auto* text = std::get_if<std::string>(&cell);
  if (text == nullptr || text->empty()) return std::nullopt;
  return CellValue(*text, rule, column.m_arrList);
}

}  // namespace

void ReadColumnCases(const CCaseColumns& cases, const CCaseSchema& schema, const CTakeCase& take) {
  std::vector<CKeyColumn> columns = KeyColumns(cases, schema);
  CReadCase read;
  for (std::size_t row = 0; row < cases.m_nCases; ++row) {
    read.m_arrValue.assign(schema.Rules().size(), std::nullopt);
    for (CKeyColumn& column : columns) {
      const auto key = static_cast<std::size_t>(column.m_nKey);
      read.m_arrValue[key] = ValueAt(column, row, schema.Rules()[key]);
    }
    take(read);
  }
}

}  // namespace orv3::cli
