// The tree's pictures: one for each table, drawn from the table's sketch.
#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "sections/load_data_table.h"
#include "sections/table_names.h"
#include "tables/sketch.h"

namespace {

// Columns of three limbs have no sketch of their own; here they are three tubes.
CBitmap ThreeLimbs() {
  std::vector<orv3::CPath> steel;
  for (const orv3::CPoint at : {orv3::CPoint{0, 0}, orv3::CPoint{10, 0}, orv3::CPoint{5, 9}}) {
    steel.push_back(orv3::CirclePath(at, 2.5));
    steel.push_back(orv3::Reversed(orv3::CirclePath(at, 1.2)));
  }
  return orv3::SteelIcon(std::move(steel));
}

}  // namespace

void CLoadDataTable::GetItemImageList(CArray<CBitmap, const CBitmap&>& images) {
  const auto names = orv3::TableNames();
  images.RemoveAll();
  images.SetSize(static_cast<int>(names.size()));
  for (const orv3::CTableName& name : names) {
    const bool three = CString(name.m_szName) == L"三肢格构柱";
    images[name.m_nImage] =
        three ? ThreeLimbs() : orv3::SketchIcon(orv3::SketchResource(name.m_szName));
  }
}

int CLoadDataTable::GetItemIcon(const CString& tableName) {
  const auto names = orv3::TableNames();
  const auto found = std::find_if(names.begin(), names.end(), [&](const orv3::CTableName& name) {
    return tableName == name.m_szName;
  });
  return found == names.end() ? -1 : found->m_nImage;
}
