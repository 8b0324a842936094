#include "catalogue/outline/row_outline.h"

#include <array>
#include <utility>

#include "catalogue/outline/shapes.h"
#include "sections/geometry/row_values.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

COutline RolledOutline(const CDataItem& row) {
  const CRolledTable* table = FindRolledTable(row.GetTableName());
  if (table == nullptr) return {};
  CRowSizes sizes(row);
  const COutline outline = table->m_pShape(sizes);
  return sizes.IsWhole() ? outline : COutline{};
}

// The style's columns follow "No." in their order.
COutline CustomOutline(const CSectionStyle& style, const CDataItem& row) {
  std::array<double, kSectionSizes> sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i) {
    if (row.GetCellValue(style.Sizes()[i].m_szSign, sizes[i]) == 0) return {};
  }
  return SectionOutline(style.m_nStyle, sizes);
}

COutline UnturnedOutline(const CDataItem& row) {
  if (IsPairTable(row.GetTableName())) return PairOf(row).m_outline;
  if (IsLatticeTable(row.GetTableName())) return PlaceLimbs(row).m_outline;
  const CSectionStyle* style = FindSectionStyle(row.GetTableName().View());
  return style != nullptr ? CustomOutline(*style, row) : RolledOutline(row);
}

}  // namespace

COutline QuarterTurned(COutline outline, int quarters) {
  for (; quarters > 0; --quarters) {
    for (CPath& loop : outline.m_arrLoop) {
      for (CVertex& v : loop.m_arrVertex) v = {outline.m_dHeight - v.y, v.x, v.bulge};
    }
    std::swap(outline.m_dWidth, outline.m_dHeight);
  }
  return outline;
}

COutline RowOutline(const CDataItem& row, double angle) {
  return QuarterTurned(UnturnedOutline(row), QuarterTurns(angle));
}

}  // namespace orv3
