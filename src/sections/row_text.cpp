// The sizes of a row as people write them.
#include "sections/load_data_table.h"
#include "sections/section_style.h"

namespace {

// The size cells of a row: those of its style, or the lengths that stand next to the number. Radii
// of fillets ("r(mm)", "r1(mm)") are no sizes by which people call a rolled section.
bool IsSize(const CDataItem& item, int cell, const orv3::CSectionStyle* style) {
  if (style) return cell <= style->m_nSizes;
  return item.GetCellSign(cell).Right(4) == L"(mm)";
}

}  // namespace

CString CLoadDataTable::GetItemSizeString(const CDataItem& item) {
  const orv3::CSectionStyle* style = orv3::FindSectionStyle(item.m_strTableName.View());
  CString text;
  for (int cell = 1; cell < item.GetItemLength() && IsSize(item, cell, style); ++cell) {
    if (!style && item.GetCellSign(cell).Left(1) == L"r") continue;
    if (!text.IsEmpty()) text += L'X';
    text += CString(item.m_arrCell.GetAt(cell).m_strValue).Trim();
  }
  return text;
}
