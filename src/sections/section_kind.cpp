#include "sections/section_kind.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "sections/kind_array.h"
#include "sections/table_types.h"

namespace orv3 {
namespace {

using K = CSectionKind;
using F = CForming;

constexpr std::int32_t Rolled(CTableType family) { return TABLE_ROLLED | family; }
constexpr std::int32_t Custom(CTableType family) { return TABLE_CUSTOM | family; }

// Channels toe to toe touch: their table has columns of no distance, and channels that stand apart
// are a lattice column.
constexpr wchar_t kGap[] = L"a(mm)";
constexpr CSectionPair kEqualAnglePair{K::EqualAngle, 1, CPairForm::BackToBack, kGap};
constexpr CSectionPair kLongLegPair{K::UnequalAngle, 1, CPairForm::BackToBack, kGap};
constexpr CSectionPair kShortLegPair{K::UnequalAngle, 1, CPairForm::LegsUp, kGap};
constexpr CSectionPair kAngleCross{K::EqualAngle, 1, CPairForm::Cross, L"δ(mm)"};
constexpr CSectionPair kOrdinaryBack{K::OrdinaryChannel, 3, CPairForm::BackToBack, kGap};
constexpr CSectionPair kOrdinaryToe{K::OrdinaryChannel, 3, CPairForm::ToeToToe, L""};
constexpr CSectionPair kLightBack{K::LightChannel, 3, CPairForm::BackToBack, kGap};
constexpr CSectionPair kLightToe{K::LightChannel, 3, CPairForm::ToeToToe, L""};

constexpr CAxisLetters kAlongSides{};
constexpr CAxisLetters kEqualLegs{L"X", L"Y", L"Xo", L"Yo"};
constexpr CAxisLetters kUnequalLegs{L"X", L"Y", L"V", L"U"};
constexpr CAxisLetters kCross{L"X", L"Y", L"X1", L"Y1"};
constexpr CAxisLetters kPlates{L"X0", L"Y0"};
constexpr CAxisLetters kColdAngle{L"Xo", L"Yo", L"X", L"Y"};
constexpr CAxisLetters kColdZ{L"X1", L"Y1", L"X", L"Y"};

// Pictures 0 to 27 are those that the tree's family nodes count on: 0 I and H, 2 boxes, 3 T, 4
// channels, 6 Z, 8 round, 9 angles, 10 L, 12 pairs of angles, 16 pairs of channels, 18 crosses,
// 20 Z of plates, 22 polygons, 25 lattice columns. The other tables' own pictures come after them.
// 8076 is the sketch of what has none of its own.
constexpr CSectionTable kTables[] = {
    {K::OrdinaryI, L"热轧普通工字钢", F::Hot, Rolled(TABLE_FAMILY_I), 0, 8013},
    {K::LightI, L"热轧轻型工字钢", F::Hot, Rolled(TABLE_FAMILY_I), 28, 8013},
    {K::WeldedH, L"热轧普通焊接H型钢", F::Plates, Rolled(TABLE_FAMILY_I), 1, 8014},
    {K::LightWeldedH, L"热轧轻型焊接H型钢", F::Plates, Rolled(TABLE_FAMILY_I), 29, 8014},
    {K::WideH, L"热轧宽翼缘H型钢", F::Hot, Rolled(TABLE_FAMILY_I), 30, 8010},
    {K::NarrowH, L"热轧窄翼缘H型钢", F::Hot, Rolled(TABLE_FAMILY_I), 31, 8011},
    {K::SquareTube, L"冷弯薄壁方钢管", F::Cold, Rolled(TABLE_FAMILY_BOX), 2, 8021},
    {K::SplitT, L"剖分T型钢", F::Hot, Rolled(TABLE_FAMILY_T), 3, 8029},
    {K::OrdinaryChannel, L"热轧普通槽钢", F::Hot, Rolled(TABLE_FAMILY_CHANNEL), 4, 8012},
    {K::LightChannel, L"热轧轻型槽钢", F::Hot, Rolled(TABLE_FAMILY_CHANNEL), 32, 8012},
    {K::ColdChannel, L"冷弯薄壁槽钢", F::Cold, Rolled(TABLE_FAMILY_CHANNEL), 5, 8017},
    {K::LippedChannel, L"冷弯薄壁卷边槽钢", F::Cold, Rolled(TABLE_FAMILY_CHANNEL), 33, 8018},
    {K::LippedZ, L"冷弯薄壁卷边Z型钢", F::Cold, Rolled(TABLE_FAMILY_Z), 6, 8019, kColdZ},
    {K::SlantLippedZ, L"冷弯薄壁斜卷边Z型钢", F::Cold, Rolled(TABLE_FAMILY_Z), 7, 8020, kColdZ},
    {K::RoundTube, L"冷弯焊接薄壁圆钢管", F::Cold, Rolled(TABLE_FAMILY_ROUND), 8, 8022},
    {K::EqualAngle, L"热轧等边角钢", F::Hot, Rolled(TABLE_FAMILY_ANGLE), 9, 8008, kEqualLegs},
    {K::UnequalAngle, L"热轧不等边角钢", F::Hot, Rolled(TABLE_FAMILY_ANGLE), 11, 8009,
     kUnequalLegs},
    {K::ColdAngle, L"冷弯薄壁等边角钢", F::Cold, Rolled(TABLE_FAMILY_ANGLE), 34, 8016, kColdAngle},
    {K::LippedAngle, L"冷弯卷边等边角钢", F::Cold, Rolled(TABLE_FAMILY_ANGLE), 35, 8015,
     kColdAngle},

    {K::EqualAnglePair, L"热轧等边角钢组合", F::Hot, Rolled(TABLE_FAMILY_ANGLE_PAIR), 12, 8023,
     kAlongSides, &kEqualAnglePair},
    {K::LongLegPair, L"热轧不等边角钢长边组合", F::Hot, Rolled(TABLE_FAMILY_ANGLE_PAIR), 13, 8024,
     kAlongSides, &kLongLegPair},
    {K::ShortLegPair, L"热轧不等边角钢短边组合", F::Hot, Rolled(TABLE_FAMILY_ANGLE_PAIR), 14, 8025,
     kAlongSides, &kShortLegPair},
    {K::AngleCross, L"热轧等边角钢十字组合", F::Hot, Rolled(TABLE_FAMILY_ANGLE_PAIR), 15, 8026,
     kCross, &kAngleCross},
    {K::OrdinaryBackToBack, L"热轧普通槽钢][组合", F::Hot, Rolled(TABLE_FAMILY_CHANNEL_PAIR), 16,
     8028, kAlongSides, &kOrdinaryBack},
    {K::OrdinaryToeToToe, L"热轧普通槽钢[]组合", F::Hot, Rolled(TABLE_FAMILY_CHANNEL_PAIR), 17,
     8027, kAlongSides, &kOrdinaryToe},
    {K::LightBackToBack, L"热轧轻型槽钢][组合", F::Hot, Rolled(TABLE_FAMILY_CHANNEL_PAIR), 36, 8028,
     kAlongSides, &kLightBack},
    {K::LightToeToToe, L"热轧轻型槽钢[]组合", F::Hot, Rolled(TABLE_FAMILY_CHANNEL_PAIR), 37, 8027,
     kAlongSides, &kLightToe},

    {K::PlateH, L"自定义对称H型钢", F::Plates, Custom(TABLE_FAMILY_I), 38, 8048, kPlates},
    {K::PlateGeneralH, L"自定义非对称H型钢", F::Plates, Custom(TABLE_FAMILY_I), 39, 8043, kPlates},
    {K::PlateBox, L"自定义对称箱形截面", F::Plates, Custom(TABLE_FAMILY_BOX), 40, 8035, kPlates},
    {K::PlateGeneralBox, L"自定义非对称箱形截面", F::Plates, Custom(TABLE_FAMILY_BOX), 41, 8038,
     kPlates},
    {K::PlateT, L"自定义T形截面", F::Plates, Custom(TABLE_FAMILY_T), 42, 8036, kPlates},
    {K::PlateChannel, L"自定义槽钢", F::Plates, Custom(TABLE_FAMILY_CHANNEL), 21, 8046, kPlates},
    {K::PlateZ, L"自定义Z形截面", F::Plates, Custom(TABLE_FAMILY_Z), 20, 8045, kPlates},
    {K::SolidCircle, L"自定义圆形截面", F::Plates, Custom(TABLE_FAMILY_ROUND), 43, 8042, kPlates},
    {K::PlateTube, L"自定义圆管", F::Plates, Custom(TABLE_FAMILY_ROUND), 44, 8041, kPlates},
    {K::PlateL, L"自定义L形截面", F::Plates, Custom(TABLE_FAMILY_ANGLE), 10, 8044, kPlates},
    {K::PlateCross, L"自定义十字形截面", F::Plates, Custom(TABLE_FAMILY_CROSS), 18, 8037, kPlates},
    {K::FlangedCross, L"自定义翼缘十字形截面", F::Plates, Custom(TABLE_FAMILY_CROSS), 19, 8047,
     kPlates},
    {K::SolidRectangle, L"矩形截面", F::Plates, Custom(TABLE_FAMILY_SOLID), 22, 8049, kPlates},
    {K::SolidHexagon, L"六边形截面", F::Plates, Custom(TABLE_FAMILY_SOLID), 23, 8039, kPlates},
    {K::SolidTriangle, L"三角形截面", F::Plates, Custom(TABLE_FAMILY_SOLID), 24, 8040, kPlates},

    {K::TwoLimbs, L"双肢格构柱", F::Limbs, Custom(TABLE_FAMILY_LATTICE), 25, 8078, kAlongSides,
     nullptr, 2},
    {K::FourLimbs, L"四肢格构柱", F::Limbs, Custom(TABLE_FAMILY_LATTICE), 26, 8077, kAlongSides,
     nullptr, 4},
    {K::ThreeLimbs, L"三肢格构柱", F::Limbs, Custom(TABLE_FAMILY_LATTICE), 27, kNoSketch,
     kAlongSides, nullptr, 3},
};

constexpr bool EveryPictureOnce() {
  std::array<bool, kSectionKinds> seen{};
  for (const CSectionTable& table : kTables) {
    const auto image = static_cast<std::size_t>(table.m_nImage);
    if (image >= seen.size() || seen[image]) return false;
    seen[image] = true;
  }
  return true;
}
static_assert(InKindOrder(kTables));
static_assert(EveryPictureOnce());

}  // namespace

std::span<const CSectionTable, kSectionKinds> SectionTables() noexcept { return kTables; }

const CSectionTable& TableOf(CSectionKind kind) noexcept { return kTables[IndexOf(kind)]; }

std::wstring_view TableName(CSectionKind kind) noexcept { return TableOf(kind).m_szName; }

CAxisLetters AxisLetters(std::wstring_view tableName) noexcept {
  const CSectionTable* table = FindSectionTable(tableName);
  return table ? table->m_letters : CAxisLetters{};
}

const CSectionTable* FindSectionTable(std::wstring_view name) noexcept {
  const auto* const found = std::find_if(std::begin(kTables), std::end(kTables),
                                         [&](const auto& each) { return each.Name() == name; });
  return found == std::end(kTables) ? nullptr : found;
}

std::optional<CSectionKind> FindSectionKind(std::wstring_view name) noexcept {
  const CSectionTable* table = FindSectionTable(name);
  return table ? std::optional(table->m_kind) : std::nullopt;
}

}  // namespace orv3
