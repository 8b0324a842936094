// Conditions on cells and search expressions, compiled once and tested on many rows.
#pragma once

#include <string_view>
#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"
#include "tables/data_item.h"
#include "tables/data_type.h"

namespace orv3 {

enum class COperator { None, Equal, NotEqual, Greater, Less, GreaterEqual, LessEqual };

// The operator written as `text` ("==", "!=", ">>", "<<", ">=", "<="); None for any other text.
ORV3CAL_API COperator OperatorOf(std::wstring_view text) noexcept;

// Whether a cell equals a pattern. With wildcards, a pattern that starts (ends) with "*" asks for
// the end (the start) of the cell, one that does both for a part of it. Otherwise numbers are
// compared as numbers, floating ones as equal within 1e-6.
class CEqualTest {
 public:
  CEqualTest(CValueClass valueClass, const CString& pattern, bool wildcard);
  bool Matches(std::wstring_view cell) const noexcept;

 private:
  enum class CKind { Whole, Starts, Ends, Contains };

  CKind m_nKind = CKind::Whole;
  CValueClass m_nClass;
  CString m_strText;  // the pattern without its stars
  double m_dValue = 0;
  int m_nValue = 0;
};

// Whether a cell stands before or after a value: texts in code unit order, everything else as
// numbers. Equal, NotEqual and None match nothing here.
class COrderTest {
 public:
  COrderTest(CValueClass valueClass, COperator op, const CString& value);
  bool Matches(std::wstring_view cell) const noexcept;

 private:
  CValueClass m_nClass;
  COperator m_nOperator;
  CString m_strValue;
  double m_dValue;
};

// "column operator value" on a row; the column is one of the heading's.
class ORV3CAL_API CCondition {
 public:
  CCondition(const CDataTableTitle& title, int column, COperator op, const CString& value,
             bool wildcard);
  // CInvalidArgException when the row lacks the column.
  bool Matches(const CDataItem& row) const;
  int Column() const noexcept { return m_nColumn; }

 private:
  int m_nColumn;
  COperator m_nOperator;
  CEqualTest m_equal;
  COrderTest m_order;
};

// A search expression taken apart: "sign op value" joined by "&&" or by "||", then "VIEW" and the
// columns to keep.
struct ORV3CAL_API CSearchExpression {
  struct CPart {
    CString m_strSign;
    CString m_strOperator;  // empty: the part holds no operator
    CString m_strValue;
  };

  explicit CSearchExpression(const CString& text);

  bool m_bEverything = false;  // no condition at all
  bool m_bAnd = false;         // joined by "&&", else by "||"
  std::vector<CPart> m_arrPart;
  bool m_bView = false;
  CString m_strView;  // signs joined by "<<>>"
};

}  // namespace orv3
