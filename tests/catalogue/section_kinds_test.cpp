// Every section table in every registry: what is known of a table beside its rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/headings/column_title.h"
#include "catalogue/import/section_rows.h"
#include "catalogue/outline/outline_symmetry.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "outlines/outline_moments.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "sections/section_kind.h"
#include "sections/sketch/sketch.h"
#include "sections/table_types.h"

namespace {

using namespace orv3;

class SectionKinds : public CatalogueStore {
 protected:
  static std::vector<CDataItem> RowsOf(const CSectionTable& table) {
    const bool rolled = (table.m_nType & TABLE_ROLLED) != 0;
    return rolled ? Rows(table.m_szName) : std::vector{DefaultRow(table.m_szName)};
  }
};

// The column of the moment of inertia about the axis of a letter, "Ixo(cm^4)" of Xo, holds what the
// outline has about it. The tubes' columns name no axis.
void ExpectAxis(const CDataItem& row, std::wstring letter, double inertia) {
  letter[0] = letter[0] - L'A' + L'a';
  if (letter.back() == L'0') letter.back() = L'o';
  for (const auto& [unit, mm4] : {std::pair{L"(cm^4)", 1e4}, {L"(mm^4)", 1.0}}) {
    double cell = 0;
    if (!row.GetCellValue((L"I" + letter + unit).c_str(), cell)) continue;
    EXPECT_NEAR(cell * mm4, inertia, 0.02 * inertia) << ToUtf8(letter);
  }
}

// Every heading has its other half; one that a store has of its own is left as it is.
TEST_F(SectionKinds, HeadingsAreInBothLanguages) {
  for (const CSectionTable& table : SectionTables()) {
    CDataTableTitle heading;
    ASSERT_TRUE(KnownHeading(table.m_szName, heading)) << ToUtf8(table.m_szName);
    for (int i = 0; i < heading.GetTableTitleNum(); ++i) {
      const CText title = ColumnTitle(table.m_szName, heading[i]);
      EXPECT_EQ(title.m_strChinese, ToUtf8(heading[i].m_strName));
      EXPECT_NE(title.m_strEnglish, title.m_strChinese)
          << ToUtf8(table.m_szName) << " " << ToUtf8(heading[i].m_strSign);
    }
  }
  const CDataTypeStruct own(L"边宽", L"b(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
  EXPECT_EQ(ColumnTitle(L"热轧等边角钢", own).m_strEnglish, ToUtf8(L"边宽"));
}

TEST_F(SectionKinds, LettersAreThoseOfTheColumns) {
  for (const CSectionTable& table : SectionTables()) {
    if (table.m_nLimbs > 0) continue;  // whose default rows are not computed
    SCOPED_TRACE(ToUtf8(table.m_szName));
    const CDataItem row = RowsOf(table).back();  // the small ones are printed with two digits
    const COutlineMoments m = RowOutlineMoments(RowOutline(row).m_arrLoop);
    const double mean = (m.m_dIx + m.m_dIy) / 2;
    const double radius = std::hypot((m.m_dIx - m.m_dIy) / 2, m.m_dIxy);
    const CAxisLetters letters = AxisLetters(table.m_szName);
    ExpectAxis(row, letters.m_szX, m.m_dIx);
    ExpectAxis(row, letters.m_szY, m.m_dIy);
    const bool aslant = std::fabs(m.m_dIxy) > 1e-3 * mean;
    ASSERT_EQ(letters.m_szStrong != nullptr, aslant && table.m_forming != CForming::Plates);
    if (!letters.m_szStrong) continue;
    ExpectAxis(row, letters.m_szStrong, mean + radius);
    ExpectAxis(row, letters.m_szWeak, mean - radius);
  }
}

TEST_F(SectionKinds, PairsStandApartUnlessTheyCloseABox) {
  for (const CSectionTable& table : SectionTables()) {
    if (!table.m_pPair) continue;
    const bool cross = table.m_pPair->m_form == CPairForm::Cross;
    const bool box = table.m_pPair->m_form == CPairForm::ToeToToe;
    EXPECT_STREQ(table.m_pPair->m_szGap, box ? L"" : cross ? L"δ(mm)" : L"a(mm)");
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
    if (table.m_nLimbs > 0) continue;  // of which the facade says nothing
    ExpectSymmetryOfOutline(RowsOf(table)[0]);
  }
  const struct {
    const wchar_t* table;
    std::initializer_list<double> sizes;
  } plates[] = {{L"自定义非对称H型钢", {10, 400, 16, 16, 60, 80, 60, 80}},
                {L"自定义非对称H型钢", {10, 400, 16, 20, 80, 80, 60, 60}},
                {L"自定义非对称H型钢", {10, 400, 16, 16, 60, 80, 80, 60}},
                {L"自定义非对称H型钢", {10, 400, 16, 16, 80, 80, 60, 70}},
                {L"自定义T形截面", {12, 300, 18, 0, 90}},
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
    ASSERT_EQ(table.m_nSketch == kNoSketch, table.m_kind == CSectionKind::ThreeLimbs);
    if (table.m_nSketch == kNoSketch) continue;
    const auto rows = RowsOf(table);
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
