#include "sections/table_icons.h"

#include <string_view>
#include <utility>
#include <vector>

#include "sections/load_data_table.h"
#include "sections/section_kind.h"
#include "sections/sketch/sketch.h"

namespace orv3 {
namespace {

constexpr int kListIcon = 16;  // pixels

// Columns of three limbs have no sketch of their own; here they are three tubes.
CBitmap ThreeLimbs(int size) {
  std::vector<CPath> steel;
  for (const CPoint at : {CPoint{0, 0}, CPoint{10, 0}, CPoint{5, 9}}) {
    steel.push_back(CirclePath(at, 2.5));
    steel.push_back(Reversed(CirclePath(at, 1.2)));
  }
  return SteelIcon(std::move(steel), size);
}

}  // namespace

CArray<CBitmap, const CBitmap&> TableIcons(int size) {
  CArray<CBitmap, const CBitmap&> icons;
  icons.SetSize(static_cast<int>(kSectionKinds));
  for (const CSectionTable& table : SectionTables()) {
    const bool three = table.m_kind == CSectionKind::ThreeLimbs;
    icons[table.m_nImage] = three ? ThreeLimbs(size) : SketchIcon(table.m_nSketch, size);
  }
  return icons;
}

}  // namespace orv3

void CLoadDataTable::GetItemImageList(CArray<CBitmap, const CBitmap&>& images) {
  images.Copy(orv3::TableIcons(orv3::kListIcon));
}

int CLoadDataTable::GetItemIcon(const CString& tableName) {
  const orv3::CSectionTable* table = orv3::FindSectionTable(tableName);
  return table ? table->m_nImage : -1;
}
