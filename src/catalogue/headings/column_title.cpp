#include "catalogue/headings/column_title.h"

#include <string>
#include <string_view>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/rolled/rolled_style.h"
#include "framework/utf8.h"
#include "outlines/exact_keys.h"
#include "sections/section_property.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

bool IsOf(const CDataTypeStruct& column, std::wstring_view sign, std::wstring_view title) {
  return column.m_strSign.View() == sign && column.m_strName.View() == title;
}

// The English title among described columns; null without one.
template <class COLUMNS>
const char* Among(const COLUMNS& columns, const CDataTypeStruct& column) {
  for (const auto& each : columns)
    if (IsOf(column, each.m_szSign, each.m_szTitle)) return each.m_szMeaning;
  return nullptr;
}

const char* OfRolled(const CRolledStyle& style, const CDataTypeStruct& column) {
  for (const CRolledColumn& each : style.m_arrColumn)
    if (IsOf(column, each.m_strSign, each.m_strName)) return each.m_szMeaning;
  return nullptr;
}

const char* Meaning(const CString& table, const CDataTypeStruct& column) {
  if (IsOf(column, L"No.", L"型号")) return "number";
  if (const CSectionStyle* style = FindSectionStyle(table.View())) {
    const char* size = Among(style->Sizes(), column);
    return size ? size : Among(SectionProperties(), column);
  }
  if (const int style = FindRolledStyle(table.View()); style >= 0)
    return OfRolled(RolledStyles()[static_cast<std::size_t>(style)], column);
  if (LatticeLimbCount(table.View()) == 0) return nullptr;
  const char* given = Among(LatticeGivenColumns(), column);
  return given ? given : Among(LatticePropertyColumns(), column);
}

}  // namespace

CText ColumnTitle(const CString& table, const CDataTypeStruct& column) {
  const std::string chinese = ToUtf8(column.m_strName);
  if (const CExactKey* key = FindExactKey(ToUtf8(column.m_strSign))) {
    const std::string unit = "(" + std::string(key->m_szUnit) + ")";
    if (chinese == key->m_szTitle + unit) return {chinese, key->m_szMeaning + (" " + unit)};
  }
  const char* meaning = Meaning(table, column);
  return {chinese, meaning ? meaning : chinese};
}

}  // namespace orv3
