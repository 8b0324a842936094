// Every section table in every registry: what is known of a table beside its rows.
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "catalogue/outline/outline_symmetry.h"
#include "catalogue/outline/row_axes.h"
#include "catalogue/outline/row_outline.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "sections/section_kind.h"
#include "sections/table_types.h"

namespace {

using namespace orv3;

// As the catalogue's users know them; a pair without a part is none. Letters: of the axes along the
// sides, then of the principal ones where the table has columns for them.
struct CKnown {
  const wchar_t* table;
  long mask;
  int sketch;
  std::wstring_view letters;
  const wchar_t* part = nullptr;
  std::wstring_view marker = L"";
  const wchar_t* gap = nullptr;
};

constexpr CKnown kKnown[] = {
    {L"热轧普通工字钢", 0x01000001, 8013, L"X Y"},
    {L"热轧轻型工字钢", 0x01000001, 8013, L"X Y"},
    {L"热轧普通焊接H型钢", 0x01000001, 8014, L"X Y"},
    {L"热轧轻型焊接H型钢", 0x01000001, 8014, L"X Y"},
    {L"热轧宽翼缘H型钢", 0x01000001, 8010, L"X Y"},
    {L"热轧窄翼缘H型钢", 0x01000001, 8011, L"X Y"},
    {L"冷弯薄壁方钢管", 0x01000002, 8021, L"X Y"},
    {L"剖分T型钢", 0x01000004, 8029, L"X Y"},
    {L"热轧普通槽钢", 0x01000008, 8012, L"X Y"},
    {L"热轧轻型槽钢", 0x01000008, 8012, L"X Y"},
    {L"冷弯薄壁槽钢", 0x01000008, 8017, L"X Y"},
    {L"冷弯薄壁卷边槽钢", 0x01000008, 8018, L"X Y"},
    {L"冷弯薄壁卷边Z型钢", 0x01000010, 8019, L"X1 Y1 X Y"},
    {L"冷弯薄壁斜卷边Z型钢", 0x01000010, 8020, L"X1 Y1 X Y"},
    {L"冷弯焊接薄壁圆钢管", 0x01000020, 8022, L"X Y"},
    {L"热轧等边角钢", 0x01000040, 8008, L"X Y Xo Yo"},
    {L"热轧不等边角钢", 0x01000040, 8009, L"X Y V U"},
    {L"冷弯薄壁等边角钢", 0x01000040, 8016, L"Xo Yo X Y"},
    {L"冷弯卷边等边角钢", 0x01000040, 8015, L"Xo Yo X Y"},
    {L"热轧等边角钢组合", 0x01000080, 8023, L"X Y", L"热轧等边角钢", L"2", L"a(mm)"},
    {L"热轧不等边角钢长边组合", 0x01000080, 8024, L"X Y", L"热轧不等边角钢", L"2", L"a(mm)"},
    {L"热轧不等边角钢短边组合", 0x01000080, 8025, L"X Y", L"热轧不等边角钢", L"2", L"a(mm)"},
    {L"热轧等边角钢十字组合", 0x01000080, 8026, L"X Y X1 Y1", L"热轧等边角钢", L"2", L"δ(mm)"},
    {L"热轧普通槽钢][组合", 0x01000100, 8028, L"X Y", L"热轧普通槽钢", L"2][", L"a(mm)"},
    {L"热轧普通槽钢[]组合", 0x01000100, 8027, L"X Y", L"热轧普通槽钢", L"2[]", L""},
    {L"热轧轻型槽钢][组合", 0x01000100, 8028, L"X Y", L"热轧轻型槽钢", L"2][", L"a(mm)"},
    {L"热轧轻型槽钢[]组合", 0x01000100, 8027, L"X Y", L"热轧轻型槽钢", L"2[]", L""},
    {L"自定义对称H型钢", 0x02000001, 8048, L"X0 Y0"},
    {L"自定义非对称H型钢", 0x02000001, 8043, L"X0 Y0"},
    {L"自定义对称箱形截面", 0x02000002, 8035, L"X0 Y0"},
    {L"自定义非对称箱形截面", 0x02000002, 8038, L"X0 Y0"},
    {L"自定义T形截面", 0x02000004, 8036, L"X0 Y0"},
    {L"自定义槽钢", 0x02000008, 8046, L"X0 Y0"},
    {L"自定义Z形截面", 0x02000010, 8045, L"X0 Y0"},
    {L"自定义圆形截面", 0x02000020, 8042, L"X0 Y0"},
    {L"自定义圆管", 0x02000020, 8041, L"X0 Y0"},
    {L"自定义L形截面", 0x02000040, 8044, L"X0 Y0"},
    {L"自定义十字形截面", 0x02000200, 8037, L"X0 Y0"},
    {L"自定义翼缘十字形截面", 0x02000200, 8047, L"X0 Y0"},
    {L"矩形截面", 0x02000400, 8049, L"X0 Y0"},
    {L"六边形截面", 0x02000400, 8039, L"X0 Y0"},
    {L"三角形截面", 0x02000400, 8040, L"X0 Y0"},
    {L"双肢格构柱", 0x02000800, 8078, L"X Y"},
    {L"四肢格构柱", 0x02000800, 8077, L"X Y"},
    {L"三肢格构柱", 0x02000800, 8076, L"X Y"},
};
static_assert(std::size(kKnown) == kSectionKinds);

std::wstring Letters(const wchar_t* table) {
  const CAxisLetters letters = RowAxisLetters(table);
  std::wstring all = std::wstring(letters.m_szX) + L" " + letters.m_szY;
  if (letters.m_szStrong) all += std::wstring(L" ") + letters.m_szStrong + L" " + letters.m_szWeak;
  return all;
}

class SectionKinds : public CatalogueStore {};

TEST_F(SectionKinds, EveryTableIsAsItIsKnown) {
  for (std::size_t i = 0; i < kSectionKinds; ++i) {
    const CKnown& known = kKnown[i];
    const CSectionTable& table = SectionTables()[i];
    const std::string name = ToUtf8(known.table);
    EXPECT_EQ(table.Name(), known.table);
    EXPECT_EQ(table.m_nType, known.mask) << name;
    EXPECT_EQ(table.m_nSketch, known.sketch) << name;
    EXPECT_EQ(Letters(known.table), known.letters) << name;
    ASSERT_EQ(table.m_pPair != nullptr, known.part != nullptr) << name;
    if (!known.part) continue;
    EXPECT_EQ(TableName(table.m_pPair->m_part), known.part) << name;
    EXPECT_STREQ(table.m_pPair->m_szGap, known.gap) << name;
    const auto marker = static_cast<std::size_t>(table.m_pPair->m_nMarker);
    for (const CDataItem& row : Rows(known.table)) {
      EXPECT_EQ(row[0].m_strValue.View().substr(0, marker), known.marker) << name;
    }
  }
}

// What the facade says of a row against what its outline is.
TEST_F(SectionKinds, SymmetryIsThatOfTheOutline) {
  for (const CSectionTable& table : SectionTables()) {
    const bool rolled = (table.m_nType & TABLE_ROLLED) != 0;
    if (table.m_nLimbs > 0) continue;  // of which the facade says nothing
    const CDataItem row = rolled ? Rows(table.m_szName)[0] : DefaultRow(table.m_szName);
    const COutline outline = RowOutline(row);
    const std::string name = ToUtf8(table.m_szName);
    ASSERT_FALSE(outline.m_arrLoop.empty()) << name;
    EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryX(row) != 0,
              IsMirrored(outline, CMirrorLine::Horizontal))
        << name;
    EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryY(row) != 0,
              IsMirrored(outline, CMirrorLine::Vertical))
        << name;
  }
}

}  // namespace
