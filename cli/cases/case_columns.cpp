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

// The value of a cell, none where the key is left out; where the key takes none such, the fault.
class CCellReader {
 public:
  CCellReader(CKeyColumn& column, const CCaseSchema::CRule& rule, CReadCase& read)
      : m_column(column), m_rule(rule), m_read(read) {}

  std::optional<CKeyValue> At(std::size_t row) {
    const CCaseColumn& column = *m_column.m_pColumn;
    if (!column.m_arrNumber.empty()) return (*this)(column.m_arrNumber[row]);
    return std::visit(*this, column.m_arrCell[row]);
  }

  std::optional<CKeyValue> operator()(std::monostate) { return std::nullopt; }
  std::optional<CKeyValue> operator()(bool value) {
    if (m_rule.m_bBoolean) return value ? 1.0 : 0.0;
    return Fault(value ? CText{"true 不可用", "true is not possible"}
                       : CText{"false 不可用", "false is not possible"});
  }
  std::optional<CKeyValue> operator()(double value) {
    if (std::isnan(value)) return std::nullopt;
    return CellValue(value, m_rule, m_column.m_strText);
  }
  std::optional<CKeyValue> operator()(const std::string& text) {
    if (text.empty()) return std::nullopt;
    return CellValue(text, m_rule, m_column.m_arrList);
  }
  std::optional<CKeyValue> operator()(const std::vector<double>& list) {
    return std::span<const double>(list);
  }
  std::optional<CKeyValue> operator()(const CCellFault& fault) { return Fault(fault.m_what); }

 private:
  std::nullopt_t Fault(const CText& what) {
    if (!m_read.m_fault) m_read.m_fault = {m_rule.m_strKey, what, m_rule.Right()};
    return std::nullopt;
  }

  CKeyColumn& m_column;
  const CCaseSchema::CRule& m_rule;
  CReadCase& m_read;
};

}  // namespace

void ReadColumnCases(const CCaseColumns& cases, const CCaseSchema& schema, const CTakeCase& take) {
  std::vector<CKeyColumn> columns = KeyColumns(cases, schema);
  CReadCase read;
  for (std::size_t row = 0; row < cases.m_nCases; ++row) {
    read.m_arrValue.assign(schema.Rules().size(), std::nullopt);
    read.m_fault.reset();
    for (CKeyColumn& column : columns) {
      const auto key = static_cast<std::size_t>(column.m_nKey);
      read.m_arrValue[key] = CCellReader(column, schema.Rules()[key], read).At(row);
    }
    take(read);
  }
}

}  // namespace orv3::cli
