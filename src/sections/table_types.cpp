// Table names and the masks that select them.
#include "sections/table_types.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "sections/load_data_table.h"
#include "sections/table_names.h"

namespace orv3 {
namespace {

constexpr std::int32_t Rolled(CTableType family) { return TABLE_ROLLED | family; }
constexpr std::int32_t Custom(CTableType family) { return TABLE_CUSTOM | family; }

// Pictures 0 to 27 are those that the tree's family nodes count on: 0 I and H, 2 boxes, 3 T, 4
// channels, 6 Z, 8 round, 9 angles, 10 L, 12 pairs of angles, 16 pairs of channels, 18 crosses,
// 20 Z of plates, 22 polygons, 25 lattice columns. The other tables' own pictures come after them.
constexpr CTableName kNames[] = {
    {L"热轧普通工字钢", Rolled(TABLE_FAMILY_I), 0},
    {L"热轧轻型工字钢", Rolled(TABLE_FAMILY_I), 28},
    {L"热轧普通焊接H型钢", Rolled(TABLE_FAMILY_I), 1},
    {L"热轧轻型焊接H型钢", Rolled(TABLE_FAMILY_I), 29},
    {L"热轧宽翼缘H型钢", Rolled(TABLE_FAMILY_I), 30},
    {L"热轧窄翼缘H型钢", Rolled(TABLE_FAMILY_I), 31},
    {L"冷弯薄壁方钢管", Rolled(TABLE_FAMILY_BOX), 2},
    {L"剖分T型钢", Rolled(TABLE_FAMILY_T), 3},
    {L"热轧普通槽钢", Rolled(TABLE_FAMILY_CHANNEL), 4},
    {L"热轧轻型槽钢", Rolled(TABLE_FAMILY_CHANNEL), 32},
    {L"冷弯薄壁槽钢", Rolled(TABLE_FAMILY_CHANNEL), 5},
    {L"冷弯薄壁卷边槽钢", Rolled(TABLE_FAMILY_CHANNEL), 33},
    {L"冷弯薄壁卷边Z型钢", Rolled(TABLE_FAMILY_Z), 6},
    {L"冷弯薄壁斜卷边Z型钢", Rolled(TABLE_FAMILY_Z), 7},
    {L"冷弯焊接薄壁圆钢管", Rolled(TABLE_FAMILY_ROUND), 8},
    {L"热轧等边角钢", Rolled(TABLE_FAMILY_ANGLE), 9},
    {L"热轧不等边角钢", Rolled(TABLE_FAMILY_ANGLE), 11},
    {L"冷弯薄壁等边角钢", Rolled(TABLE_FAMILY_ANGLE), 34},
    {L"冷弯卷边等边角钢", Rolled(TABLE_FAMILY_ANGLE), 35},
    {L"热轧等边角钢组合", Rolled(TABLE_FAMILY_ANGLE_PAIR), 12},
    {L"热轧不等边角钢长边组合", Rolled(TABLE_FAMILY_ANGLE_PAIR), 13},
    {L"热轧不等边角钢短边组合", Rolled(TABLE_FAMILY_ANGLE_PAIR), 14},
    {L"热轧等边角钢十字组合", Rolled(TABLE_FAMILY_ANGLE_PAIR), 15},
    {L"热轧普通槽钢][组合", Rolled(TABLE_FAMILY_CHANNEL_PAIR), 16},
    {L"热轧普通槽钢[]组合", Rolled(TABLE_FAMILY_CHANNEL_PAIR), 17},
    {L"热轧轻型槽钢][组合", Rolled(TABLE_FAMILY_CHANNEL_PAIR), 36},
    {L"热轧轻型槽钢[]组合", Rolled(TABLE_FAMILY_CHANNEL_PAIR), 37},

    {L"自定义对称H型钢", Custom(TABLE_FAMILY_I), 38},
    {L"自定义非对称H型钢", Custom(TABLE_FAMILY_I), 39},
    {L"自定义对称箱形截面", Custom(TABLE_FAMILY_BOX), 40},
    {L"自定义非对称箱形截面", Custom(TABLE_FAMILY_BOX), 41},
    {L"自定义T形截面", Custom(TABLE_FAMILY_T), 42},
    {L"自定义槽钢", Custom(TABLE_FAMILY_CHANNEL), 21},
    {L"自定义Z形截面", Custom(TABLE_FAMILY_Z), 20},
    {L"自定义圆形截面", Custom(TABLE_FAMILY_ROUND), 43},
    {L"自定义圆管", Custom(TABLE_FAMILY_ROUND), 44},
    {L"自定义L形截面", Custom(TABLE_FAMILY_ANGLE), 10},
    {L"自定义十字形截面", Custom(TABLE_FAMILY_CROSS), 18},
    {L"自定义翼缘十字形截面", Custom(TABLE_FAMILY_CROSS), 19},
    {L"矩形截面", Custom(TABLE_FAMILY_SOLID), 22},
    {L"六边形截面", Custom(TABLE_FAMILY_SOLID), 23},
    {L"三角形截面", Custom(TABLE_FAMILY_SOLID), 24},
    {L"双肢格构柱", Custom(TABLE_FAMILY_LATTICE), 25},
    {L"四肢格构柱", Custom(TABLE_FAMILY_LATTICE), 26},
    {L"三肢格构柱", Custom(TABLE_FAMILY_LATTICE), 27},
};

constexpr bool EveryPictureOnce() {
  std::array<bool, std::size(kNames)> seen{};
  for (const CTableName& name : kNames) {
    const auto image = static_cast<std::size_t>(name.m_nImage);
    if (image >= seen.size() || seen[image]) return false;
    seen[image] = true;
  }
  return true;
}
static_assert(EveryPictureOnce());

constexpr std::int32_t kSources = TABLE_ROLLED | TABLE_CUSTOM;

// A mask has the 32 bits of a long on Windows; where longs are wider the others say nothing.
bool IsOf(const CTableName& name, long mask) {
  const auto common = static_cast<std::int32_t>(mask) & name.m_nType;
  return (common & kSources) != 0 && (common & ~kSources) != 0;
}

}  // namespace

std::span<const CTableName> TableNames() noexcept { return kNames; }

}  // namespace orv3

void CLoadDataTable::GetTableNameArray(long mask, CStringArray& names) {
  names.RemoveAll();
  for (const orv3::CTableName& name : orv3::kNames) {
    if (orv3::IsOf(name, mask)) names.Add(name.m_szName);
  }
}

void CLoadDataTable::SelectTableNameArray(long mask, const CStringArray& available,
                                          CStringArray& names) {
  CStringArray chosen;  // `names` may be `available`
  for (const orv3::CTableName& name : orv3::kNames) {
    const bool there =
        std::find(available.begin(), available.end(), CString(name.m_szName)) != available.end();
    if (there && orv3::IsOf(name, mask)) chosen.Add(name.m_szName);
  }
  names.Copy(chosen);
}

int CLoadDataTable::IsTableNameType(const CString& tableName, long mask) {
  return std::any_of(std::begin(orv3::kNames), std::end(orv3::kNames),
                     [&](const orv3::CTableName& name) {
                       return tableName == name.m_szName && orv3::IsOf(name, mask);
                     })
             ? 1
             : 0;
}
