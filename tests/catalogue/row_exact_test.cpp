// The exact properties of rows: kept beside the store, never those of other sizes, and accurate.
#include "catalogue/exact/row_exact.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "catalogue/quadratic_section.h"
#include "drawing/dxf.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/dxf_outline.h"
#include "outlines/edge.h"
#include "outlines/exact_keys.h"
#include "outlines/outline_check.h"
#include "outlines/touching_parts.h"
#include "platform/temp_folder.h"
#include "platform/whole_file.h"
#include "sections/catalogue_store.h"
#include "sections/load_data_table.h"
#include "sections/section_check.h"
#include "sections/section_style.h"
#include "tables/data_table.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

const CString kFolder = FromUtf8(ORV3CAL_CATALOGUE "/");

std::string NameOf(const CDataItem& row) {
  return ToUtf8(row.m_strTableName + L" " + row[0].m_strValue);
}

class RowExact : public CatalogueStore {
 protected:
  static std::vector<CDataItem> AllRows() {
    std::vector<CDataItem> all;
    CStringArray names;
    CDataTable::GetTableNameFromFile(kFolder + kSystemStore, names);
    for (const CString& name : names) {
      for (CDataItem& row : Rows(name)) all.push_back(std::move(row));
    }
    return all;
  }
};

// --- Kept figures --------------------------------------------------------------------------------

// Every row is found; its solver reached its limits; what is kept is what is computed.
TEST_F(RowExact, IsKeptOfEveryRow) {
  const std::vector<CDataItem> rows = AllRows();
  ASSERT_GT(rows.size(), 1000U);
  double area = 0, torsion = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto kept = FindExact(rows[i]);
    ASSERT_TRUE(kept) << NameOf(rows[i]);
    EXPECT_TRUE(kept->m_bAccurate) << NameOf(rows[i]);
    EXPECT_LE(kept->m_error.It, 1e-3) << NameOf(rows[i]);
    area += kept->A;
    torsion += kept->It;
    if (i % 50 != 0) continue;
    const CExactProperties computed = ComputedExact(rows[i]);
    for (const CExactKey& key : ExactKeys()) {
      const double a = *kept.*key.m_pField, b = computed.*key.m_pField;
      EXPECT_EQ(std::isnan(a), std::isnan(b)) << NameOf(rows[i]) << key.m_szKey;
      if (std::isnan(b)) continue;
      EXPECT_NEAR(a, b, 1e-9 * std::fabs(b) + 1e-6) << NameOf(rows[i]) << key.m_szKey;
    }
  }
  // Figures of cells that stand as they were: where these sums move, kExactVersion is raised, lest
  // a file of an earlier version be taken for one of this.
  EXPECT_EQ(kExactVersion, 6U);
  EXPECT_NEAR(area, 7889868.99854, 1e-7 * area);
  EXPECT_NEAR(torsion, 7490538638.227, 1e-7 * torsion);
}

// A size changed by a thousandth of a millimetre has figures of its own.
TEST_F(RowExact, IsComputedOfAChangedRow) {
  CDataItem row = CLoadDataTable::GetSysTemJMItem(L"热轧宽翼缘H型钢", L"HW200X200");
  const double before = ExactProperties(row).It;
  double tf = 0;
  ASSERT_TRUE(row.GetCellValue(L"tf(mm)", tf));
  row[L"tf(mm)"].m_strValue = FormatShortest(tf + 0.001);
  EXPECT_FALSE(FindExact(row));
  const double after = ExactProperties(row).It;
  EXPECT_GT(after, before * (1 + 1e-5));
  EXPECT_LT(after, before * (1 + 1e-3));
}

// A pair is kept by its part's cells too, which stand in another table.
TEST_F(RowExact, IsComputedOfAPairWhosePartHasChanged) {
  const CDataItem pair = CLoadDataTable::GetSysTemJMItem(L"热轧等边角钢组合", L"2L100X10");
  EXPECT_TRUE(FindExact(pair));
  EXPECT_FALSE(FindExact(WithPairSpacing(pair, 10)));
  CDataTable angles;
  angles.SetTableName(L"热轧等边角钢");
  ASSERT_TRUE(angles.GetSystemJmTable());
  const CTempFolder folder;
  SetExactFile(kFolder + kExactFile);
  for (const bool same : {true, false}) {
    SetProgramPath(folder.Path());
    angles.SetSaveTablePath(folder.Path());
    const int at = angles.IsHaveValue(0, L"L100X10", -1);
    ASSERT_GE(at, 0);
    if (!same) angles[at][L"t(mm)"].m_strValue = L"11";
    ASSERT_TRUE(angles.WriteTable(folder.Path() + kSystemStore, 0, 1));
    EXPECT_EQ(FindExact(pair).has_value(), same);
  }
  SetExactFile({});
}

// Every byte of the file is tried; none gives another figure.
TEST_F(RowExact, PassesOverADamagedFile) {
  const CExactProperties exact =
      ExactProperties(std::span<const CPath>(std::vector<CPath>{RectPath(0, 0, 20, 10)}));
  std::vector<CExactRecord> records{{{1, 2}, exact}, {{1, 1}, exact}, {{1, 2}, exact}};
  const std::string whole = ExactFileBytes(records);
  const auto read = ReadExactFile(whole);
  ASSERT_TRUE(read);
  ASSERT_EQ(read->size(), 2U);
  EXPECT_EQ((*read)[0].m_key, (CExactRecordKey{1, 1}));
  EXPECT_EQ((*read)[1].m_exact.It, exact.It);
  EXPECT_EQ((*read)[1].m_exact.m_bAccurate, exact.m_bAccurate);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    EXPECT_FALSE(ReadExactFile(damaged)) << at;
    EXPECT_FALSE(ReadExactFile(whole.substr(0, at))) << at;
  }
  EXPECT_FALSE(ReadExactFile(whole + "x"));
}

TEST_F(RowExact, AddsUpWhatIsNotJoined) {
  const CDataItem single = CLoadDataTable::GetSysTemJMItem(L"热轧等边角钢", L"L100X10");
  const CDataItem pair = CLoadDataTable::GetSysTemJMItem(L"热轧等边角钢组合", L"2L100X10");
  const CExactProperties one = ExactProperties(single);
  const CExactProperties two = ExactProperties(pair);
  EXPECT_NEAR(two.It, 2 * one.It, 1e-9 * two.It);
  EXPECT_NEAR(two.A, 2 * one.A, 1e-9 * two.A);
  EXPECT_NEAR(two.Ix, 2 * one.Ix, 1e-9 * two.Ix);
  EXPECT_NEAR(two.Iy, 2 * (one.Iy + one.A * one.xo * one.xo), 1e-9 * two.Iy);
  EXPECT_NEAR(two.Wpy, 2 * one.A * one.xo, 1e-9 * two.Wpy);
  for (const auto none : {&CExactProperties::Iw, &CExactProperties::xs, &CExactProperties::Asy})
    EXPECT_TRUE(std::isnan(two.*none));
}

// Parts that touch are read back from a drawing with the row's own figures.
TEST_F(RowExact, IsThatOfTheDrawingOfTouchingParts) {
  for (const wchar_t* table :
       {L"热轧等边角钢组合", L"热轧不等边角钢长边组合", L"热轧普通槽钢[]组合"}) {
    CStringArray numbers;
    CLoadDataTable::GetSysTemItemNo(table, numbers);
    const CDataItem row =
        WithPairSpacing(CLoadDataTable::GetSysTemJMItem(table, numbers[numbers.GetSize() / 2]), 0);
    std::vector<CPath> loops;
    ASSERT_FALSE(ReadDxfOutline(PathsDxf(RowOutline(row).m_arrLoop), "", loops));
    EXPECT_TRUE(CheckLoops(loops)) << NameOf(row);
    const auto cleared = PartsCleared(loops);
    ASSERT_TRUE(cleared) << NameOf(row);
    const CExactProperties drawn = FiguresOfParts(loops, ExactProperties(std::span(*cleared)));
    const CExactProperties own = ExactProperties(row);
    for (const CExactKey& key : ExactKeys()) {
      const double a = drawn.*key.m_pField, b = own.*key.m_pField;
      EXPECT_EQ(std::isnan(a), std::isnan(b)) << NameOf(row) << key.m_szKey;
      if (!std::isnan(b)) {
        EXPECT_NEAR(a, b, 1e-9 * std::fabs(b) + 1e-6) << NameOf(row) << key.m_szKey;
      }
    }
  }
  // Plates that cross are not read as touching.
  EXPECT_FALSE(PartsCleared(std::vector<CPath>{RectPath(0, 0, 20, 10), RectPath(5, -5, 10, 20)}));
}

// --- Printed figures -----------------------------------------------------------------------------

// How far the printed It, Iw and eo of the cold-formed tables are from the exact ones, in percent,
// as docs/catalogue.md tells.
TEST_F(RowExact, ToldDeviationsOfPrintedFigures) {
  const struct {
    const wchar_t* table;
    const wchar_t* sign;
    double least, greatest;
  } cases[] = {
      {L"冷弯薄壁等边角钢", L"It(cm^4)", 1.18, 2.31},
      {L"冷弯薄壁等边角钢", L"eo(cm)", 1.09, 4.38},
      {L"冷弯卷边等边角钢", L"It(cm^4)", 0.57, 1.18},
      {L"冷弯卷边等边角钢", L"Iw(cm^6)", 4.06, 10.74},
      {L"冷弯卷边等边角钢", L"eo(cm)", 0.44, 1.91},
      {L"冷弯薄壁槽钢", L"It(cm^4)", 0.69, 1.41},
      {L"冷弯薄壁槽钢", L"Iw(cm^6)", -0.87, -0.19},
      {L"冷弯薄壁槽钢", L"eo(cm)", -0.22, 0.22},
      {L"冷弯薄壁卷边槽钢", L"It(cm^4)", 0.27, 0.71},
      {L"冷弯薄壁卷边槽钢", L"Iw(cm^6)", -5.35, -0.03},
      {L"冷弯薄壁卷边槽钢", L"eo(cm)", -0.30, 0.10},
      {L"冷弯薄壁卷边Z型钢", L"It(cm^4)", 0.43, 0.76},
      {L"冷弯薄壁卷边Z型钢", L"Iw(cm^6)", 2.34, 7.76},
      {L"冷弯薄壁斜卷边Z型钢", L"It(cm^4)", 0.30, 0.58},
      {L"冷弯薄壁斜卷边Z型钢", L"Iw(cm^6)", -0.88, -0.23},
  };
  const std::vector<CDataItem> rows = AllRows();
  for (const auto& c : cases) {
    double least = 1e9, greatest = -1e9;
    for (const CDataItem& row : rows) {
      if (row.m_strTableName != c.table) continue;
      const CExactProperties e = ExactProperties(row);
      double printed = 0;
      ASSERT_TRUE(row.GetCellValue(c.sign, printed)) << NameOf(row);
      const double exact = c.sign[0] == L'e'   ? std::hypot(e.xs - e.xo, e.ys - e.yo) / 10
                           : c.sign[1] == L't' ? e.It / 1e4
                                               : e.Iw / 1e6;
      least = std::min(least, 100 * (printed / exact - 1));
      greatest = std::max(greatest, 100 * (printed / exact - 1));
    }
    EXPECT_NEAR(least, c.least, 0.02) << ToUtf8(CString(c.table)) << ToUtf8(CString(c.sign));
    EXPECT_NEAR(greatest, c.greatest, 0.02) << ToUtf8(CString(c.table)) << ToUtf8(CString(c.sign));
  }
}

// --- An independent solution ---------------------------------------------------------------------

// All figures by quadratic triangles, two to a wall. The torsion constant by the stress function is
// below the true one, the library's above.
void MeetCoarseFigures(const std::vector<CPath>& loops, const CExactProperties& exact,
                       const std::string& name) {
  SCOPED_TRACE(name);
  const CBox box = PathBounds(loops);
  double length = 0;
  for (const CPath& loop : loops)
    ForEachEdge(loop, [&](const CEdge& edge, std::size_t) { length += edge.Length(); });
  const auto mesh =
      test::RasterTriangles(loops, std::min(0.55 * exact.A / length, 0.28 * exact.i2));
  const test::CCoarseFigures coarse = test::QuadraticFigures(mesh);
  const double depth = std::max(box.Width(), box.Height());
  EXPECT_NEAR(exact.It, coarse.It, 0.01 * exact.It);
  EXPECT_NEAR(exact.Iw, coarse.Iw, 0.01 * std::max(exact.Iw, 0.01 * exact.It * depth * depth));
  EXPECT_NEAR(exact.xs, coarse.xs, 0.005 * depth);
  EXPECT_NEAR(exact.ys, coarse.ys, 0.005 * depth);
  EXPECT_NEAR(exact.Asx, coarse.Asx, 0.01 * exact.Asx);
  EXPECT_NEAR(exact.Asy, coarse.Asy, 0.01 * exact.Asy);
}

// Of so many sections one is compared; each where the whole is asked for, some minutes' work.
std::size_t OneOf(std::size_t many) { return std::getenv("ORV3CAL_WHOLE") == nullptr ? many : 1; }

// Rows that are one part.
TEST_F(RowExact, MeetsAnotherMethod) {
  const std::size_t step = OneOf(41);
  const std::vector<CDataItem> rows = AllRows();
  std::size_t met = 0;
  for (std::size_t i = 0; i < rows.size(); i += step) {
    const CExactProperties exact = ExactProperties(rows[i]);
    if (!exact.m_bJoined) continue;
    MeetCoarseFigures(RowOutline(rows[i]).m_arrLoop, exact, NameOf(rows[i]));
    ++met;
  }
  EXPECT_GT(met * step, 500U);
}

// What no row and no style has: cells that share a wall, a hole to one side, a slit.
TEST_F(RowExact, MeetsAnotherMethodInCells) {
  const auto box = [](double left, double bottom, double right, double top) {
    return Reversed(RectPath(left, bottom, right - left, top - bottom));
  };
  const std::vector<CPath> sections[] = {
      {RectPath(0, 0, 80, 50), box(6, 6, 36, 44), box(40, 6, 74, 44)},
      {RectPath(0, 0, 60, 40), box(30, 12, 50, 28)},
      {CPath{{{0, 0, 0},
              {60, 0, 0},
              {60, 24, 0},
              {54, 24, 0},
              {54, 6, 0},
              {6, 6, 0},
              {6, 54, 0},
              {54, 54, 0},
              {54, 26, 0},
              {60, 26, 0},
              {60, 60, 0},
              {0, 60, 0}},
             true}},
  };
  for (const auto& loops : sections)
    MeetCoarseFigures(loops, ExactProperties(loops), std::to_string(loops.size()));
}

// A hundred sections of each style, their sizes around those of its sample; some by the other
// method too.
TEST_F(RowExact, HoldsForUserSections) {
  const std::size_t step = OneOf(25);
  std::uint64_t seed = 20'241'001;
  const auto random = [&] {
    seed = seed * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(seed >> 40) / (1 << 24);
  };
  for (const CSectionStyle& style : SectionStyles()) {
    for (std::size_t made = 0; made < 100;) {
      std::array<double, kSectionSizes> sizes{};
      for (std::size_t i = 0; i < style.Sizes().size(); ++i)
        sizes[i] = std::round(10 * style.m_sample.m_arrSize[i] * (0.6 + 0.8 * random())) / 10;
      const auto given = std::span(sizes).first(style.Sizes().size());
      const COutline outline = SectionOutline(style.m_nStyle, sizes);
      if (CheckSectionSizes(style, given) || CheckOutline(outline.m_arrLoop)) continue;
      ++made;
      const CExactProperties exact = ExactProperties(outline);
      std::string name = style.m_szAlias;
      for (const double size : given) name += " " + std::to_string(size);
      EXPECT_TRUE(exact.m_bAccurate) << name;
      if (made % step == 0) MeetCoarseFigures(outline.m_arrLoop, exact, name);
    }
  }
}

}  // namespace
}  // namespace orv3
