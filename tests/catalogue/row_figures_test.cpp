// What the commands tell of a row, against its outline: every row of the catalogue in every turn,
// user-defined rows and lattice columns; and rows that somebody typed wrong.
#include "catalogue/outline/row_figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/outline/row_outline.h"
#include "outlines/outline_moments.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "sections/section_figures.h"

namespace {

using orv3::CRowFigures, orv3::RowFigures;

// Half a unit of the last printed digit of the smallest sections is 1.6 %, of a centroid's distance
// 0.2 % of the width (docs/geometry.md).
struct CTolerance {
  double share, centroid;
  bool single = true;
};
constexpr CTolerance kPrinted{0.017, 0.002}, kExact{1e-9, 1e-9};

struct CReach {
  double left, right, bottom, top;  // from the centroid
};

CReach ReachOf(const std::vector<orv3::CPath>& loops, orv3::CPoint c) {
  const orv3::CBox box = PathBounds(loops);
  return {c.x - box.left, box.right - c.x, c.y - box.bottom, box.top - c.y};
}

void ExpectShare(double told, double drawn, double share, const char* what) {
  EXPECT_NEAR(told, drawn, share * drawn) << what;
}

// Moments, radii and moduli about the upright axes of the loops.
void ExpectMoments(const CRowFigures& f, const std::vector<orv3::CPath>& loops, double share,
                   bool single) {
  const orv3::COutlineMoments m = orv3::RowOutlineMoments(loops);
  const CReach reach = ReachOf(loops, m.m_centroid);
  ExpectShare(f.m_dIx, m.m_dIx, share, "Ix");
  ExpectShare(f.m_dIy, m.m_dIy, share, "Iy");
  ExpectShare(f.m_dRx, std::sqrt(m.m_dIx / m.m_dArea), share, "ix");
  ExpectShare(f.m_dRy, std::sqrt(m.m_dIy / m.m_dArea), share, "iy");
  ExpectShare(f.m_dWTop, m.m_dIx / reach.top, share, "Wxo1");
  ExpectShare(f.m_dWBottom, m.m_dIx / reach.bottom, share, "Wxo2");
  ExpectShare(f.m_dWLeft, m.m_dIy / reach.left, share, "WyoL");
  ExpectShare(f.m_dWRight, m.m_dIy / reach.right, share, "WyoR");
  const double least = (m.m_dIx + m.m_dIy) / 2 - std::hypot((m.m_dIx - m.m_dIy) / 2, m.m_dIxy);
  if (!std::isnan(f.m_dRleast))
    ExpectShare(f.m_dRleast, std::sqrt(least / m.m_dArea), share, "imin");
  // What is symmetric has its centroid in the middle and no product of inertia; a single section of
  // which that is so is symmetric.
  const bool straight = std::fabs(m.m_dIxy) < 1e-9 * (m.m_dIx + m.m_dIy);
  const double same = 1e-6;
  const bool x = straight && std::fabs(reach.top - reach.bottom) < same;
  const bool y = straight && std::fabs(reach.left - reach.right) < same;
  ASSERT_TRUE(f.m_symX && f.m_symY);
  EXPECT_TRUE(single ? *f.m_symX == x : x || !*f.m_symX);
  EXPECT_TRUE(single ? *f.m_symY == y : y || !*f.m_symY);
}

void ExpectOutline(const CDataItem& row, CTolerance tolerance) {
  for (const int angle : {0, 90, 180, 270}) {
    SCOPED_TRACE(orv3::ToUtf8(row.m_strTableName + L" " + row[0].m_strValue) + " turned by " +
                 std::to_string(angle));
    const CRowFigures f = RowFigures(row, angle);
    const orv3::COutline outline = orv3::RowOutline(row, angle);
    const orv3::COutlineMoments m = orv3::RowOutlineMoments(outline.m_arrLoop);
    EXPECT_NEAR(f.m_dWidth, outline.m_dWidth, tolerance.centroid * outline.m_dWidth);
    EXPECT_NEAR(f.m_dHeight, outline.m_dHeight, tolerance.centroid * outline.m_dHeight);
    EXPECT_NEAR(f.m_dXc, m.m_centroid.x, tolerance.centroid * outline.m_dWidth);
    EXPECT_NEAR(f.m_dYc, m.m_centroid.y, tolerance.centroid * outline.m_dHeight);
    ExpectShare(f.m_dArea, m.m_dArea, tolerance.share, "area");
    std::vector<orv3::CPath> loops = outline.m_arrLoop;
    // A cross keeps its axes X1 and Y1: back to where it was, and Y1 upright.
    if (f.m_bAslant) {
      for (orv3::CPath& loop : loops) loop = Turned(std::move(loop), 45 - angle);
    }
    ExpectMoments(f, loops, tolerance.share, tolerance.single);
  }
}

class Figures : public CatalogueStore {};

TEST_F(Figures, OfEveryRowAreThoseOfItsOutlineInEveryTurn) {
  for (const CString& table : Tables()) {
    for (const CDataItem& row : Rows(table)) ExpectOutline(row, kPrinted);
  }
}

// Their cells keep six digits, the figures all of them.
TEST_F(Figures, OfUserDefinedRowsFollowFromTheirSizes) {
  const struct {
    const wchar_t* table;
    std::initializer_list<double> sizes;
  } cases[] = {{L"自定义非对称H型钢", {12.3, 401.7, 18.9, 21.1, 77.7, 99.9, 111.1, 44.4}},
               {L"自定义T形截面", {9.1, 207.3, 13.7, 55.5, 66.6}},
               {L"自定义L形截面", {11.1, 133.3, 12.7, 90.9}},
               {L"自定义Z形截面", {8.7, 211.3, 11.9, 13.3, 65.5, 71.7}},
               {L"自定义槽钢", {8.7, 211.3, 11.9, 13.3, 65.5, 71.7}},
               {L"自定义非对称箱形截面", {301.1, 407.3, 11.3, 17.9, 9.7, 13.1}},
               {L"三角形截面", {133.3, 177.7}}};
  for (const auto& c : cases) {
    CDataItem row = DefaultRow(c.table);
    int cell = 0;
    for (const double size : c.sizes) row[++cell].m_strValue = orv3::FormatShortest(size);
    ASSERT_EQ(CLoadDataTable::CalSectCharacterStyle(row), 1);
    ExpectOutline(row, kExact);
    EXPECT_EQ(orv3::StaleColumn(row, *orv3::SectionRecord(row)), -1);
    row[L"Iyo(mm^4)"].m_strValue = L"1";
    EXPECT_EQ(orv3::StaleColumn(row, *orv3::SectionRecord(row)), row.GetSignIndex(L"Iyo(mm^4)"));
    ExpectOutline(row, kExact);
  }
}

// A limb of every table, flanges of Ts inwards and outwards, and two of different heights.
TEST_F(Figures, OfLatticeColumnsAreThoseOfTheirLimbs) {
  const auto column = [](int limbs, const CString& table, const CString& no, const int* angles) {
    CSteelItemGeGou row(limbs);
    row[L"No."].m_strValue = L"G";
    if (limbs > 2) row[L"kx(mm)"].m_strValue = L"900";
    row[limbs == 2 ? L"k(mm)" : L"ky(mm)"].m_strValue = L"1200";
    for (int i = 0; i < limbs; ++i) {
      const CString p = CString(L"P") + orv3::FormatInt(i + 1);
      row[(p + L"Type").GetString()].m_strValue = table;
      row[(p + L"No.").GetString()].m_strValue = no;
      row[(p + L"θ°").GetString()].m_strValue = orv3::FormatInt(angles[i]);
    }
    return row;
  };
  constexpr CTolerance kLimbs{0.017, 0.002, false};
  constexpr int kTurns[][4] = {{0, 90, 180, 270}, {180, 0, 0, 90}, {270, 270, 180, 0}};
  for (const CString& table : Tables()) {
    const std::vector<CDataItem> rows = Rows(table);
    for (const CString& no : {rows.front()[0].m_strValue, rows.back()[0].m_strValue}) {
      for (const auto& angles : kTurns) {
        for (const int limbs : {2, 3, 4}) ExpectOutline(column(limbs, table, no, angles), kLimbs);
      }
    }
  }
  const CRowFigures angles = RowFigures(column(4, L"热轧等边角钢", L"L100X10", kTurns[0]));
  EXPECT_TRUE(*angles.m_symX && *angles.m_symY);
  const int upright[] = {0, 0};
  CSteelItemGeGou overlapping = column(2, L"热轧普通工字钢", L"I20a", upright);
  overlapping[L"k(mm)"].m_strValue = L"60";
  overlapping[L"P2Type"].m_strValue = L"热轧普通槽钢";
  overlapping[L"P2No."].m_strValue = L"[5";
  EXPECT_NEAR(RowFigures(overlapping).m_dHeight, 200, 1e-9) << "limb 1 is the higher";
}

// --- Rows that were typed in ---------------------------------------------------------------------

TEST_F(Figures, NeedWhatTheyAreComputedFrom) {
  for (const CString& table : Tables()) {
    for (const CDataItem& row : Rows(table)) {
      const std::string what = orv3::ToUtf8(table + L" " + row[0].m_strValue);
      EXPECT_FALSE(orv3::CheckRolledRow(row)) << what;
      EXPECT_TRUE(orv3::RowDoubts(row).empty()) << what;
    }
  }
  const auto with = [](const wchar_t* sign, const wchar_t* value) {
    CDataItem row = CLoadDataTable::GetSysTemJMItem(L"热轧普通工字钢", L"I20a");
    row[sign].m_strValue = value;
    return row;
  };
  for (const wchar_t* sign : {L"h(mm)", L"tw(mm)", L"r(mm)", L"A(cm^2)", L"Sx(cm^3)", L"iy(cm)"}) {
    for (const wchar_t* value : {L"", L"-5", L"x"}) {
      const CDataItem row = with(sign, value);
      const auto fault = orv3::CheckRolledRow(row);
      ASSERT_TRUE(fault) << orv3::ToUtf8(CString(sign));
      EXPECT_EQ(fault->m_nCell, row.GetSignIndex(sign));
    }
  }
  EXPECT_FALSE(orv3::CheckRolledRow(with(L"G(kg/m)", L"")));
  EXPECT_TRUE(orv3::CheckRolledRow(with(L"tw(mm)", L"150"))) << "a web wider than the flange";
  EXPECT_TRUE(std::isnan(RowFigures(with(L"A(cm^2)", L"")).m_dArea)) << "no area is not 0";
  const struct {
    const wchar_t *sign, *value, *doubts;
  } wrong[] = {{L"h(mm)", L"400", L"A Ix ix iy imin Wx1 Wx2 Sx "},  // Iy depends little on it
               {L"A(cm^2)", L"355.78", L"A "},
               {L"Wx(cm^3)", L"2370", L"Wx1 Wx2 "},
               {L"Sx(cm^3)", L"13.6", L"Sx "},
               {L"iy(cm)", L"21.2", L"iy imin "}};
  for (const auto& c : wrong) {
    CString keys;
    for (const auto& doubt : orv3::RowDoubts(with(c.sign, c.value)))
      keys += orv3::FromUtf8(doubt.m_szKey) + L" ";
    EXPECT_EQ(keys, c.doubts) << orv3::ToUtf8(CString(c.sign));
  }
  CDataItem pair = Rows(L"热轧等边角钢组合").front();
  pair[L"A(cm^2)"].m_strValue = L"385.2";
  EXPECT_TRUE(orv3::Contradiction(pair));
}

}  // namespace
