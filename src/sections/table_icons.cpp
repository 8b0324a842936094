#include "sections/table_icons.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "sections/load_data_table.h"
#include "sections/sketch/sketch.h"
#include "sections/table_names.h"

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
  const auto names = TableNames();
  CArray<CBitmap, const CBitmap&> icons;
  icons.SetSize(static_cast<int>(names.size()));
  for (const CTableName& name : names) {
    const bool three = CString(name.m_szName) == L"三肢格构柱";
    icons[name.m_nImage] =
        three ? ThreeLimbs(size) : SketchIcon(SketchResource(name.m_szName), size);
  }
  return icons;
}

}  // namespace orv3

void CLoadDataTable::GetItemImageList(CArray<CBitmap, const CBitmap&>& images) {
  images.Copy(orv3::TableIcons(orv3::kListIcon));
}

int CLoadDataTable::GetItemIcon(const CString& tableName) {
  const auto names = orv3::TableNames();
  const auto found = std::find_if(names.begin(), names.end(), [&](const orv3::CTableName& name) {
    return tableName == name.m_szName;
  });
  return found == names.end() ? -1 : found->m_nImage;
}
