// Lattice columns: tables, limbs, and properties by the parallel-axis theorem.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "orv3cal.h"
#include "sections/catalogue_store.h"

namespace {

// The table that each number is of (GB/T 706, 707 and 9787 of 1988).
const std::map<std::string, const wchar_t*> kTables = {{"I20a", L"热轧普通工字钢"},
                                                       {"[10", L"热轧普通槽钢"},
                                                       {"[5", L"热轧普通槽钢"},
                                                       {"L75X5", L"热轧等边角钢"}};

struct CLimb {
  const char* no;
  int angle;
};

struct CColumn {
  int limbs;
  double kx, ky;  // ky = k with two limbs
  std::vector<CLimb> limb;
};

CSteelItemGeGou RowOf(const CColumn& column) {
  CSteelItemGeGou row(column.limbs);
  row[L"No."].m_strValue = L"G";
  if (column.limbs > 2) row[L"kx(mm)"].m_strValue = orv3::FormatShortest(column.kx);
  row[column.limbs == 2 ? L"k(mm)" : L"ky(mm)"].m_strValue = orv3::FormatShortest(column.ky);
  for (int i = 0; i < column.limbs; ++i) {
    const CLimb& limb = column.limb[static_cast<std::size_t>(i)];
    const CString p = CString(L"P") + orv3::FormatInt(i + 1);
    row[(p + L"Type").GetString()].m_strValue = kTables.at(limb.no);
    row[(p + L"No.").GetString()].m_strValue = orv3::FromUtf8(limb.no);
    row[(p + L"θ°").GetString()].m_strValue = orv3::FormatInt(limb.angle);
  }
  return row;
}

class Lattice : public CatalogueStore {};

double Cell(const CDataItem& row, const wchar_t* sign) {
  return orv3::ToDouble(row[sign].m_strValue);
}

// --- Tables --------------------------------------------------------------------------------------

TEST(LatticeTable, HasTheColumnsOfItsLimbsAndResults) {
  const wchar_t* const names[] = {L"双肢格构柱", L"三肢格构柱", L"四肢格构柱"};
  const int columns[] = {1 + 1 + 6 + 11, 1 + 2 + 9 + 11, 1 + 2 + 12 + 11};
  for (int limbs = 2; limbs <= 4; ++limbs) {
    const CSteelJMGeGou table(limbs);
    EXPECT_EQ(table.m_strTableName, names[limbs - 2]);
    EXPECT_EQ(table.GetTableColNum(), columns[limbs - 2]);
    EXPECT_EQ(table.m_Title[0].m_bKey, 1);
    EXPECT_EQ(table.m_Title[L"P2No."].m_strName, L"第二肢型号");
    EXPECT_EQ(table.m_Title[L"P1Type"].m_nType, CDataTypeStruct::KVBT_STRING);
    EXPECT_EQ(table.m_Title[L"P2θ°"].m_nType, CDataTypeStruct::KVBT_DOUBLE);
    const CSteelItemGeGou row(limbs);
    EXPECT_EQ(row.m_strTableName, names[limbs - 2]);
    EXPECT_EQ(row.GetItemLength(), columns[limbs - 2]);
    EXPECT_EQ(row[L"ixo(mm)"].m_strName, L"X轴回转半径");
  }
  EXPECT_EQ(CSteelJMGeGou(4).GetTableColSign(2), L"ky(mm)");
  EXPECT_EQ(CSteelJMGeGou(4).GetTableColSign(14), L"P4θ°");
  EXPECT_EQ(CSteelJMGeGou(5).GetTableColNum(), 1 + 11);
  EXPECT_EQ(CSteelJMGeGou(5).m_strTableName, L"");
}

// --- Limbs ---------------------------------------------------------------------------------------

TEST_F(Lattice, LimbRows) {
  const CSteelItemGeGou row = RowOf({3, 600, 800, {{"[10", 0}, {"[5", 90}, {"I20a", 0}}});
  EXPECT_EQ(row.GetPartItem(1)[0].m_strValue, L"[10");
  EXPECT_EQ(row.GetPartItem(3)[0].m_strValue, L"I20a");
  EXPECT_EQ(row.GetPartItem(3).m_strTableName, L"热轧普通工字钢");
  for (const int limb : {-1, 0, 4, 5}) EXPECT_TRUE(row.GetPartItem(limb).IsEmpty()) << limb;

  CDataItem plain = row;
  plain[L"P1No."].m_strValue = L"[11";
  plain.m_arrCell.RemoveAt(plain.GetSignIndex(L"P2Type"));
  const CSteelItemGeGou copy(plain);
  EXPECT_EQ(copy.m_strTableName, L"三肢格构柱");
  EXPECT_TRUE(copy.GetPartItem(1).IsEmpty());
  EXPECT_TRUE(copy.GetPartItem(2).IsEmpty());
}

// --- Properties ----------------------------------------------------------------------------------

// Four unlike limbs at (-300, -400), (300, -400), (300, 400) and (-300, 400); cells keep six
// digits. That equal limbs of every table stand as they are drawn is held in row_figures_test.cpp.
TEST_F(Lattice, ParallelAxesOfUnlikeLimbs) {
  CSteelItemGeGou row =
      RowOf({4, 600, 800, {{"I20a", 0}, {"[5", 90}, {"L75X5", 180}, {"[10", 270}}});
  ASSERT_EQ(row.CalSteelJMGeGou(), 1);
  const double a1 = 3557.8, a2 = 692.8, a3 = 741.2, a4 = 1274.8, A = a1 + a2 + a3 + a4;
  const double xo = 300 * (a2 + a3 - a1 - a4) / A, yo = 400 * (a3 + a4 - a1 - a2) / A;
  const double Ix = (2368.6 + 8.3 + 39.96 + 25.6) * 1e4 + A * (400 * 400 - yo * yo);
  const double Iy = (157.9 + 26.0 + 39.96 + 198.3) * 1e4 + A * (300 * 300 - xo * xo);
  const std::pair<const wchar_t*, double> cells[] = {
      {L"A(mm^2)", A},
      {L"xo(mm)", xo},
      {L"yo(mm)", yo},
      {L"Ix(mm^4)", Ix},
      {L"Iy(mm^4)", Iy},
      {L"Wx1(mm^3)", Ix / (400 + 20.3 - yo)},  // the back of the angle
      {L"Wx2(mm^3)", Ix / (400 + 100 + yo)},
      {L"WyL(mm^3)", Iy / (300 + 50 + xo)},
      {L"WyR(mm^3)", Iy / (300 + 25 - xo)},  // half of the [5
      {L"ixo(mm)", std::sqrt(Ix / A)},
      {L"iyo(mm)", std::sqrt(Iy / A)}};
  for (const auto& [sign, value] : cells)
    EXPECT_NEAR(Cell(row, sign), value, 6e-6 * std::fabs(value)) << orv3::ToUtf8(sign);
  // An angle that is none of the four leaves a limb as it stands.
  CSteelItemGeGou upright =
      RowOf({4, 600, 800, {{"I20a", 0}, {"[5", 0}, {"L75X5", 0}, {"[10", 0}}});
  CSteelItemGeGou odd =
      RowOf({4, 600, 800, {{"I20a", 45}, {"[5", 360}, {"L75X5", 0}, {"[10", -90}}});
  ASSERT_TRUE(upright.CalSteelJMGeGou() && odd.CalSteelJMGeGou());
  for (const auto& [sign, value] : cells) EXPECT_EQ(Cell(odd, sign), Cell(upright, sign));
}

// With two limbs, limb 1's top counts as k lower than it stands. It matters where it is the higher.
TEST_F(Lattice, UpperReachOfTwoLimbs) {
  CSteelItemGeGou row = RowOf({2, 0, 60, {{"I20a", 0}, {"[5", 0}}});
  ASSERT_EQ(row.CalSteelJMGeGou(), 1);
  const double Ix = Cell(row, L"Ix(mm^4)"), yo = Cell(row, L"yo(mm)");
  EXPECT_NEAR(Cell(row, L"Wx1(mm^3)"), Ix / (60 + 25 - yo), 1e-5 * Ix / 85);
  EXPECT_NEAR(Cell(row, L"Wx2(mm^3)"), Ix / (100 + yo), 1e-5 * Ix / 100);
}

// What fails, and what is written by then.
TEST_F(Lattice, Failures) {
  const CColumn column = {3, 600, 800, {{"[10", 0}, {"[10", 180}, {"[10", 90}}};
  const auto without = [&](const wchar_t* sign) {
    CSteelItemGeGou row = RowOf(column);
    row.m_arrCell.RemoveAt(row.GetSignIndex(sign));
    return row;
  };
  for (const wchar_t* sign : {L"P1θ°", L"P3θ°", L"kx(mm)", L"ky(mm)"}) {
    CSteelItemGeGou row = without(sign);
    EXPECT_EQ(row.CalSteelJMGeGou(), 0) << orv3::ToUtf8(sign);
    EXPECT_EQ(row[L"A(mm^2)"].m_strValue, L"3824.4");
    EXPECT_EQ(row[L"Ix(mm^4)"].m_strValue, L"");
  }
  for (const wchar_t* sign : {L"P2Type", L"P2No.", L"A(mm^2)"}) {
    CSteelItemGeGou row = without(sign);
    EXPECT_EQ(row.CalSteelJMGeGou(), 0) << orv3::ToUtf8(sign);
  }
  EXPECT_EQ(without(L"iyo(mm)").CalSteelJMGeGou(), 0) << "a result has no cell";

  CSteelItemGeGou unknown = RowOf(column);
  unknown[L"P3No."].m_strValue = L"[11";
  EXPECT_EQ(unknown.CalSteelJMGeGou(), 0);
  EXPECT_EQ(unknown[L"A(mm^2)"].m_strValue, L"");

  CSteelItemGeGou other = RowOf(column);
  EXPECT_EQ(other.CalSteelJMGeGou2(), 0);
  EXPECT_EQ(other.CalSteelJMGeGou4(), 0);
  other.m_strTableName = L"五肢格构柱";
  EXPECT_EQ(other.CalSteelJMGeGou(), 0);
  EXPECT_EQ(other.CalSteelJMGeGou3(), 0);
  EXPECT_EQ(other[L"A(mm^2)"].m_strValue, L"");
}

}  // namespace
