#include "output/figure_cells.h"

#include <cmath>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_figures.h"

namespace orv3::cli {
namespace {

constexpr wchar_t kInfinitySign[] = L"∞";
constexpr wchar_t kNotComputed[] = L"-";

bool IsNumberCell(const CDataCell& cell) {
  return ValueClassOf(cell.m_nType) != CValueClass::Text && IsNumber(cell.m_strValue);
}

}  // namespace

void ShowFigures(CDataItem& row) {
  for (int cell = 1; cell < row.GetItemLength(); ++cell) {
    const CDataCell& shown = std::as_const(row)[cell];
    if (IsNumberCell(shown) && std::fabs(ToDouble(shown.m_strValue)) >= 1e100)
      row.m_arrCell.Own(cell).m_strValue = kInfinitySign;
  }
  const auto record = SectionRecord(row);
  if (!record) return;
  for (const CSectionProperty& property : SectionProperties()) {
    const int cell = row.GetSignIndex(property.m_szSign);
    if (property.m_bFirstMoment && cell >= 0 && std::isnan(PropertyFigure(*record, property)))
      row.m_arrCell.Own(cell).m_strValue = kNotComputed;
  }
}

void ShowFigures(CDataTable& table) {
  for (CDataItem& row : table.m_arrItem) ShowFigures(row);
}

CJson CellJson(const CDataCell& cell) {
  const bool number = ValueClassOf(cell.m_nType) != CValueClass::Text;
  if (number && (cell.m_strValue == kInfinitySign || cell.m_strValue == kNotComputed))
    return nullptr;
  return ToUtf8(cell.m_strValue);
}

}  // namespace orv3::cli
