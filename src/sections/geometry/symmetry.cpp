// Whether a row's section is symmetric. Rolled sections are by family; of user-defined ones some
// are by style, the others when their sizes say so. A missing cell counts as 0.
#include <array>

#include "sections/geometry/families.h"
#include "sections/load_data_table.h"
#include "sections/styles/style_form.h"

namespace orv3 {

namespace {

// By the signs of the style's columns.
std::array<double, kSectionSizes> RowSizes(const CDataItem& row, const CSectionStyle& style) {
  std::array<double, kSectionSizes> sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i)
    row.GetCellValue(row.GetSignIndex(style.Sizes()[i].m_szSign), sizes[i]);
  return sizes;
}

int Symmetric(const CDataItem& row, bool CFamily::*byFamily, bool (*CStyleForm::*bySizes)(CSizes)) {
  const auto kind = FindSectionKind(row.m_strTableName);
  if (!kind) return 0;
  if (const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View()))
    return (style->m_pForm->*bySizes)(RowSizes(row, *style)) ? 1 : 0;
  return FamilyOf(*kind).*byFamily ? 1 : 0;
}

}  // namespace

}  // namespace orv3

int CLoadDataTable::IsDaTaItemSymmetryX(const CDataItem& item) {
  return orv3::Symmetric(item, &orv3::CFamily::m_bSymmetricX, &orv3::CStyleForm::m_pSymmetricX);
}

int CLoadDataTable::IsDaTaItemSymmetryY(const CDataItem& item) {
  return orv3::Symmetric(item, &orv3::CFamily::m_bSymmetricY, &orv3::CStyleForm::m_pSymmetricY);
}
