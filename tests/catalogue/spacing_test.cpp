// The spacing tables: the look-ups' own ways, and what is found for a section.
#include <gtest/gtest.h>

#include <string>

#include "orv3cal.h"

namespace {

using T = CGetSteelDis;

TEST(Spacing, JoinedRows) {
  const struct {
    int table;
    const wchar_t* no;
    const wchar_t* row;
  } cases[] = {
      {0, L"45", L"45,25,11.0"},
      {0, L"125", L"125,70,25.5"},
      {1, L"160", L"160,60,65,25.5"},
      {2, L"140", L"140,55,60,19.0"},
      {3, L"10", L"10,36,7.6,11,35,63,9"},
      {3, L"22a", L"22a,54,12.7,17,50,17l,17"},  // the later of two; a letter in it
      {3, L"20a", L""},                          // its row carries 22a
      {5, L"5", L"5,20,7.1,11,-,26,-"},
      {7, L"I10", L"I10,88,80,30,9,4"},
      {9, L"I10", L"I10,66,35,4,17"},
      {12, L"I10", L"I10,66,29,4,17"},
      {13, L"[5", L"[5,37,33,30,9,6"},
      {18, L"[5", L"[5,18,31,6,16"},
      {7, L"i10", L""},
      {7, L"10", L""},
      {0, L"46", L""},
      {19, L"[5", L""},
      {-1, L"45", L""},
  };
  for (const auto& c : cases) {
    CString row = L"before";
    T::GetSubData(c.table, c.no, row);
    EXPECT_EQ(row, c.row) << c.table << " " << orv3::ToUtf8(c.no);
  }
  CString same = L"45";
  T::GetSubData(0, same, same);
  EXPECT_EQ(same, L"45,25,11.0");
}

TEST(Spacing, Numbers) {
  const struct {
    int table;
    const wchar_t* no;
    double value;
  } cases[] = {
      // Rows that do not match overwrite one that does, but the last.
      {0, L"L45X5", 5},
      {0, L"L110X8", 5},
      {0, L"L125X10", 70},
      {0, L"L160X12", 70},
      {0, L"L46X5", 5},
      // The web's gauge; the number where there is no row or too few characters reach one.
      {5, L"[10", 35},
      {5, L"[14a", 45},
      {5, L"[5", 0},  // "-"
      {5, L"[12.6", 12},
      {6, L"[12", 40},  // not 75, the row of 40
      {6, L"[24a", 60},
      {6, L"[99", 99},
      // Others give the number.
      {1, L"L125X80X7", 125},
      {3, L"16", 16},
      {7, L"I10", 0},
      {18, L"LL[[50X", 50},
      {99, L"[20a", 20},
      {0, L"", 5},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(T::GetSubData(c.table, c.no), c.value) << c.table << " " << orv3::ToUtf8(c.no);
  }
  EXPECT_EQ(T::GetSubData(L"热轧轻型槽钢", L"[12"), 40);
  EXPECT_EQ(T::GetSubData(L"热轧普通槽钢", L"[14a"), 45);
}

double Cell(const orv3::CSectionSpacing& spacing, const char* key) {
  for (std::size_t i = 0; i < spacing.m_arrColumn.size(); ++i) {
    if (spacing.m_arrColumn[i].m_szKey == std::string(key))
      return orv3::ToDouble(spacing.m_arrCell[i]);
  }
  ADD_FAILURE() << "no " << key;
  return -1;
}

TEST(Spacing, OfASection) {
  const auto beam = orv3::SectionSpacings(L"热轧普通工字钢", L"I20a");
  ASSERT_EQ(beam.size(), 4U);
  EXPECT_EQ(Cell(beam[0], "a"), 54) << "the row in its place, though its key is 22a";
  EXPECT_EQ(Cell(beam[2], "least"), 6);
  EXPECT_EQ(Cell(beam[3], "k"), 25);
  const auto angle = orv3::SectionSpacings(L"热轧不等边角钢", L"L140X90X8");
  ASSERT_EQ(angle.size(), 3U);
  EXPECT_EQ(Cell(angle[0], "b"), 45);
  EXPECT_EQ(angle[1].m_nTable, 3);
  EXPECT_EQ(Cell(angle[2], "hole"), 23.5);
  EXPECT_EQ(orv3::SectionSpacings(L"热轧等边角钢", L"L125X8").size(), 2U) << "each width once";
  for (const auto& [table, no] : {std::pair{L"热轧等边角钢", L"L20X3"},
                                  {L"热轧普通槽钢", L"[12"},
                                  {L"热轧宽翼缘H型钢", L"HW100X100"}})
    EXPECT_TRUE(orv3::SectionSpacings(table, no).empty()) << orv3::ToUtf8(no);
}

TEST(Spacing, LegsOfAnAngle) {
  const struct {
    const wchar_t* no;
    int longer, shorter;
  } cases[] = {{L"L50X5", 50, 50}, {L"L100X80X7", 100, 80}, {L"50X5", 0, 0},
               {L"L50", 0, 0},     {L"L50XX5", 0, 0},       {L"L5X5X5X5", 0, 0},
               {L"L-50X5", 0, 0},  {L"L50X5X", 0, 0},       {L"", 0, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(orv3::LegsOf(c.no).m_nLong, c.longer) << orv3::ToUtf8(c.no);
    EXPECT_EQ(orv3::LegsOf(c.no).m_nShort, c.shorter) << orv3::ToUtf8(c.no);
  }
}

// The four tables of a series run through the same sections: what two of them tell of a section
// agrees, the straight web is shorter than the clear web, and a flush stiffener is the wider one.
TEST(Spacing, TablesOfASeriesAgree) {
  const struct {
    const wchar_t* table;
    std::size_t sections;
  } cases[] = {{L"热轧普通工字钢", 34},
               {L"热轧轻型工字钢", 27},
               {L"热轧普通槽钢", 30},
               {L"热轧轻型槽钢", 22}};
  // These hold a letter where a digit is meant, so their numbers say nothing.
  const auto isNumber = [](const orv3::CSectionSpacing& row, std::size_t i) {
    return orv3::IsNumber(row.m_arrCell[i]);
  };
  for (const auto& c : cases) {
    EXPECT_EQ(orv3::SpacedNumbers(c.table).size(), c.sections);
    for (const CString& no : orv3::SpacedNumbers(c.table)) {
      SCOPED_TRACE(orv3::ToUtf8(no));
      const auto rows = orv3::SectionSpacings(c.table, no);
      ASSERT_EQ(rows.size(), 4U);
      EXPECT_EQ(Cell(rows[1], "web"), Cell(rows[2], "web"));
      EXPECT_EQ(Cell(rows[1], "web"), Cell(rows[3], "web"));
      EXPECT_EQ(Cell(rows[1], "inner"), Cell(rows[2], "inner"));
      if (isNumber(rows[0], 4)) {
        EXPECT_LT(Cell(rows[0], "h1"), Cell(rows[1], "inner"));
      }
      if (isNumber(rows[2], 2)) {
        EXPECT_GT(Cell(rows[2], "width"), Cell(rows[1], "width"));
      }
    }
  }
}

}  // namespace
