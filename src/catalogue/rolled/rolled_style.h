// The 27 rolled-section styles: one description each, from which tables are built out of data
// files, records are filled from rows, and data files are written.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "catalogue/rolled/rolled_records.h"
#include "framework/export.h"
#include "sections/section_kind.h"
#include "tables/data_type.h"

namespace orv3 {

inline constexpr int kRolledStyles = static_cast<int>(kRolledKinds);

struct CRolledColumn {
  std::wstring_view m_strSign;
  std::wstring_view m_strName;  // the title
  const char* m_szMeaning;      // the title in English
};

// Where a column's value stands in a record, and as what.
enum class CFieldKind {
  Text,      // as wide as the model number
  Whole,     // signed 16-bit integer
  Number,    // double
  Capacity,  // double, behind the member length that it belongs to
};

struct CRecordField {
  CFieldKind m_nKind;
  int m_nOffset;
};

struct CRolledStyle {
  CSectionKind m_kind;          // of its table, whose name is the style's
  std::wstring_view m_strFile;  // the catalogue's data file; the user's twin has an "O" before it
  int m_nSize;                  // bytes of a record
  int m_nName;                  // characters of the model number, its zero included
  int m_nText;                  // columns that are text, then
  int m_nWhole;                 // columns that are whole numbers, then numbers, then
  int m_nCapacity;              // columns that are capacities
  std::span<const CRolledColumn> m_arrColumn;  // without the key column

  std::wstring_view Name() const { return TableName(m_kind); }
  constexpr int Columns() const { return static_cast<int>(m_arrColumn.size()); }
  constexpr CRecordField Field(int column) const;

 private:
  constexpr int FirstNumber() const {
    return (2 * (m_nName * (1 + m_nText) + m_nWhole) + 7) / 8 * 8;
  }
};

ORV3CAL_API std::span<const CRolledStyle, kRolledStyles> RolledStyles();
ORV3CAL_API int FindRolledStyle(std::wstring_view name);  // -1 for an unknown name
// The style that a data file of this name, without a folder, belongs to; -1 for another name.
ORV3CAL_API int FindRolledFile(std::wstring_view file, bool& userTwin);
// The columns of the style's table.
ORV3CAL_API CDataTableTitle RolledTitle(const CRolledStyle& style);
// The record layout of a style, 0 to 26; CInvalidArgException for any other number.
ORV3CAL_API Ironcfg RolledLayout(int style);

constexpr CRecordField CRolledStyle::Field(int column) const {
  const int numbers = Columns() - m_nText - m_nWhole - m_nCapacity;
  if (column < m_nText) return {CFieldKind::Text, 2 * m_nName * (1 + column)};
  column -= m_nText;
  if (column < m_nWhole) return {CFieldKind::Whole, 2 * m_nName * (1 + m_nText) + 2 * column};
  column -= m_nWhole;
  if (column < numbers) return {CFieldKind::Number, FirstNumber() + 8 * column};
  column -= numbers;
  return {CFieldKind::Capacity, FirstNumber() + 8 * numbers + 16 * column + 8};
}

}  // namespace orv3
