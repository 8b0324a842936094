// Every section table in every registry: what is known of a table beside its rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/outline/outline_symmetry.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "sections/section_kind.h"
#include "sections/sketch/sketch.h"
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
  const CAxisLetters letters = AxisLetters(table);
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
void ExpectSymmetryOfOutline(const CDataItem& row) {
  const COutline outline = RowOutline(row);
  const std::string name = ToUtf8(row.m_strTableName + L" " + row[0].m_strValue);
  ASSERT_FALSE(outline.m_arrLoop.empty()) << name;
  EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryX(row) != 0,
            IsMirrored(outline, CMirrorLine::Horizontal))
      << name;
  EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryY(row) != 0,
            IsMirrored(outline, CMirrorLine::Vertical))
      << name;
}

TEST_F(SectionKinds, SymmetryIsThatOfTheOutline) {
  for (const CSectionTable& table : SectionTables()) {
    const bool rolled = (table.m_nType & TABLE_ROLLED) != 0;
    if (table.m_nLimbs > 0) continue;  // of which the facade says nothing
    ExpectSymmetryOfOutline(rolled ? Rows(table.m_szName)[0] : DefaultRow(table.m_szName));
  }
  const struct {
    const wchar_t* table;
    std::initializer_list<double> sizes;
  } plates[] = {{L"自定义非对称H型钢", {10, 400, 16, 16, 60, 80, 60, 80}},
                {L"自定义非对称H型钢", {10, 400, 16, 20, 80, 80, 60, 60}},
                {L"自定义非对称H型钢", {10, 400, 16, 16, 60, 80, 80, 60}},
                {L"自定义非对称箱形截面", {300, 400, 12, 12, 8, 9}},
                {L"自定义非对称箱形截面", {300, 400, 12, 14, 8, 8}},
                {L"自定义十字形截面", {30, 400, 150, 210, 120, 120}},
                {L"自定义十字形截面", {30, 400, 180, 180, 90, 120}},
                {L"自定义T形截面", {12, 300, 18, 60, 90}},
                {L"自定义槽钢", {10, 300, 14, 16, 90, 90}},
                {L"自定义槽钢", {10, 300, 14, 14, 90, 80}},
                {L"自定义Z形截面", {10, 250, 14, 18, 70, 90}}};
  for (const auto& [table, sizes] : plates) ExpectSymmetryOfOutline(RowOfPlates(table, sizes));
}

// --- Sketches ------------------------------------------------------------------------------------

// What tells the forms of sections apart, in a sketch as in an outline.
struct CForm {
  explicit CForm(const std::vector<CPath>& loops) : m_nLoops(loops.size()) {
    const CBox box = PathBounds(loops);
    COutline outline;
    outline.m_dWidth = box.Width();
    outline.m_dHeight = box.Height();
    double back = 0;
    for (const CPath& loop : loops) {
      outline.m_arrLoop.push_back(Moved(loop, -box.left, -box.bottom));
      const auto& v = loop.m_arrVertex;
      for (std::size_t i = 0; i < v.size(); ++i) {
        const CVertex& next = v[(i + 1) % v.size()];
        if (v[i].bulge != 0) continue;
        const bool bUpright = std::fabs(next.x - v[i].x) < 1e-9;
        ++m_nLines;
        m_nSlanted += !bUpright && std::fabs(next.y - v[i].y) > 1e-9;
        if (bUpright && std::fabs(v[i].x - box.left) < 1e-9) back += std::fabs(next.y - v[i].y);
      }
    }
    m_bBack = back > 0.75 * box.Height();
    m_bLevel = IsMirrored(outline, CMirrorLine::Horizontal);
    m_bUpright = IsMirrored(outline, CMirrorLine::Vertical);
    m_dAspect = box.Width() / box.Height();
  }
  // Of a rolled section whose sizes are those of a row; of plates, which a sketch draws unequal
  // and an outline with a corner where two of them meet.
  bool IsRolled(const CForm& row) const {
    return m_nLoops == row.m_nLoops && m_nLines == row.m_nLines && m_nSlanted == row.m_nSlanted &&
           m_bLevel == row.m_bLevel && m_bUpright == row.m_bUpright;
  }
  bool IsOfPlates(const CForm& row) const {
    return m_nLoops == row.m_nLoops && std::abs(m_nLines - row.m_nLines) <= 2 &&
           m_nSlanted == row.m_nSlanted && m_bBack == row.m_bBack;
  }

  std::size_t m_nLoops;
  int m_nLines = 0;
  int m_nSlanted = 0;
  bool m_bBack = false;  // a straight left side
  bool m_bLevel, m_bUpright;
  double m_dAspect;
};

using CLetters = std::set<std::string>;

CLetters LettersOf(int sketch) {
  static const std::regex kText(">([^<>]+)</text>");
  const std::string svg = SketchSvg(sketch);
  CLetters letters;
  for (std::sregex_iterator text(svg.begin(), svg.end(), kText), end; text != end; ++text)
    letters.insert((*text)[1]);
  return letters;
}

// The sizes that a row begins with, "h" of "h(mm)": up to its figures or its base point.
CLetters SizesOf(const CDataItem& row) {
  CLetters sizes;
  for (int i = 1; i < row.GetItemLength(); ++i) {
    const std::string sign = ToUtf8(row.GetCellSign(i));
    const std::string symbol = sign.substr(0, sign.find('('));
    if (symbol == "A" || symbol == "x" || symbol == "P1Type") break;
    sizes.insert(symbol);
  }
  return sizes;
}

// All sizes of the table are lettered and nothing else but axes and their distances; of a pair, the
// gap and sizes of its part.
bool HasLettersOf(const CSectionTable& table, const CDataItem& row, int sketch) {
  CLetters may = {"x", "y", "x1", "y1", "xo", "yo", "zo", "Xo", "Yo", "Cx", "1", "2"};
  CLetters must = SizesOf(row);
  if (table.m_pPair) {
    must.clear();
    const std::string gap = ToUtf8(table.m_pPair->m_szGap);
    if (!gap.empty()) must.insert(gap.substr(0, gap.find('(')));
    may.merge(
        SizesOf(CLoadDataTable::GetSysTemJMItem(CString(TableName(table.m_pPair->m_part)),
                                                row[0].m_strValue.Mid(table.m_pPair->m_nMarker))));
  }
  const CLetters letters = LettersOf(sketch);
  may.insert(must.begin(), must.end());
  return std::includes(letters.begin(), letters.end(), must.begin(), must.end()) &&
         std::includes(may.begin(), may.end(), letters.begin(), letters.end());
}

struct CDrawnTable {
  const CSectionTable* table;
  CDataItem row;
  CForm form;
  double narrowest, widest;  // of all rows, width over height
};

bool Fits(const CDrawnTable& drawn, int sketch) {
  if (!HasLettersOf(*drawn.table, drawn.row, sketch)) return false;
  const CForm form(SketchSteel(sketch));
  if ((drawn.table->m_nType & TABLE_ROLLED) == 0)
    return drawn.table->m_nLimbs > 0 || form.IsOfPlates(drawn.form);
  constexpr double kDrawnFreely = 1.35;
  return form.IsRolled(drawn.form) && form.m_dAspect > drawn.narrowest / kDrawnFreely &&
         form.m_dAspect < drawn.widest * kDrawnFreely;
}

// Every sketch fits its tables, and of two sketches at most one fits in the other's place: a swap
// is seen. The column of three limbs has the general sketch.
TEST_F(SectionKinds, SketchesShowTheirSections) {
  std::vector<CDrawnTable> tables;
  for (const CSectionTable& table : SectionTables()) {
    if (table.m_nSketch == kNoSketch) continue;
    const bool rolled = (table.m_nType & TABLE_ROLLED) != 0;
    const auto rows = rolled ? Rows(table.m_szName) : std::vector{DefaultRow(table.m_szName)};
    double narrowest = 1e9, widest = 0;
    for (const CDataItem& row : rows) {
      const CForm form(RowOutline(WithPairSpacing(row, 8)).m_arrLoop);
      narrowest = std::min(narrowest, form.m_dAspect);
      widest = std::max(widest, form.m_dAspect);
    }
    const CForm form(RowOutline(WithPairSpacing(rows[0], 8)).m_arrLoop);
    tables.push_back({&table, rows[0], form, narrowest, widest});
  }
  for (const CDrawnTable& one : tables) {
    EXPECT_TRUE(Fits(one, one.table->m_nSketch)) << ToUtf8(one.table->m_szName);
    for (const CDrawnTable& other : tables) {
      if (one.table->m_nSketch >= other.table->m_nSketch) continue;
      EXPECT_FALSE(Fits(one, other.table->m_nSketch) && Fits(other, one.table->m_nSketch))
          << ToUtf8(one.table->m_szName) << " and " << ToUtf8(other.table->m_szName);
    }
  }
}

}  // namespace
