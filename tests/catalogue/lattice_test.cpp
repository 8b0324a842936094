// Lattice columns: tables, limbs, and properties against the parallel-axis theorem on the placement
// that docs/lattice.md draws.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "orv3cal.h"
#include "sections/catalogue_store.h"

namespace {

constexpr const wchar_t* kChannels = L"热轧普通槽钢";
constexpr const wchar_t* kBeams = L"热轧普通工字钢";
constexpr const wchar_t* kAngles = L"热轧等边角钢";

// A section by its distances from the centroid to the edges and its moments, mm.
struct CSection {
  const wchar_t* table;
  const wchar_t* no;
  double area, left, right, below, above, ix, iy;
};

// Rows of the catalogue (GB/T 707, GB/T 706 and GB/T 9787 of 1988).
const CSection kSections[] = {
    {kChannels, L"[10", 1274.8, 15.2, 32.8, 50, 50, 198.3e4, 25.6e4},
    {kChannels, L"[5", 692.8, 13.5, 23.5, 25, 25, 26.0e4, 8.3e4},
    {kBeams, L"I20a", 3557.8, 50, 50, 100, 100, 2368.6e4, 157.9e4},
    {kAngles, L"L75X5", 741.2, 20.3, 54.7, 20.3, 54.7, 39.96e4, 39.96e4},
};
const CSection &kC10 = kSections[0], &kC5 = kSections[1], &kI20a = kSections[2];
const CSection& kL75 = kSections[3];

struct CLimb {
  const CSection* section;
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
    row[(p + L"Type").GetString()].m_strValue = limb.section->table;
    row[(p + L"No.").GetString()].m_strValue = limb.section->no;
    row[(p + L"θ°").GetString()].m_strValue = orv3::FormatInt(limb.angle);
  }
  return row;
}

class Lattice : public CatalogueStore {};

double Cell(const CDataItem& row, const wchar_t* sign) {
  return orv3::ToDouble(row[sign].m_strValue);
}

// --- Expectations, from the drawing alone --------------------------------------------------------

// A quarter turn counter-clockwise takes the top edge to the left.
CSection Turned(CSection section, int angle) {
  for (; angle > 0; angle -= 90) {
    section = {section.table, section.no,    section.area, section.above, section.below,
               section.left,  section.right, section.iy,   section.ix};
  }
  return section;
}

struct CPlaced {
  double x, y;
  CSection section;
};

std::vector<CPlaced> Placed(const CColumn& column) {
  const double x = column.kx / 2;
  const double y = column.ky;
  const std::vector<std::pair<double, double>> places[] = {
      {{0, 0}, {0, y}},
      {{-x, 0}, {x, 0}, {0, y}},
      {{-x, -y / 2}, {x, -y / 2}, {x, y / 2}, {-x, y / 2}}};
  std::vector<CPlaced> placed;
  for (std::size_t i = 0; i < column.limb.size(); ++i) {
    const auto [atX, atY] = places[column.limbs - 2][i];
    placed.push_back({atX, atY, Turned(*column.limb[i].section, column.limb[i].angle)});
  }
  return placed;
}

struct CExpected {
  double a = 0, xo = 0, yo = 0, ix = 0, iy = 0;
  double top = 0, bottom = 0, left = 0, right = 0;  // coordinates of the edges
};

// Moments about the frame's origin first, then moved to the centroid.
CExpected Expect(const std::vector<CPlaced>& limbs) {
  CExpected e;
  e.top = e.right = -1e9;
  e.bottom = e.left = 1e9;
  for (const CPlaced& limb : limbs) {
    const CSection& s = limb.section;
    e.a += s.area;
    e.xo += s.area * limb.x;
    e.yo += s.area * limb.y;
    e.ix += s.ix + s.area * limb.y * limb.y;
    e.iy += s.iy + s.area * limb.x * limb.x;
    e.top = std::max(e.top, limb.y + s.above);
    e.bottom = std::min(e.bottom, limb.y - s.below);
    e.left = std::min(e.left, limb.x - s.left);
    e.right = std::max(e.right, limb.x + s.right);
  }
  e.xo /= e.a;
  e.yo /= e.a;
  e.ix -= e.a * e.yo * e.yo;
  e.iy -= e.a * e.xo * e.xo;
  return e;
}

// Cells keep six digits.
void ExpectRow(const CDataItem& row, const CExpected& e) {
  const struct {
    const wchar_t* sign;
    double value;
    double least;  // of what the digits are taken; a coordinate may be 0
  } cells[] = {{L"A(mm^2)", e.a, 0},
               {L"xo(mm)", e.xo, 1e-3},
               {L"yo(mm)", e.yo, 1e-3},
               {L"Ix(mm^4)", e.ix, 0},
               {L"Iy(mm^4)", e.iy, 0},
               {L"Wx1(mm^3)", e.ix / (e.top - e.yo), 0},
               {L"Wx2(mm^3)", e.ix / (e.yo - e.bottom), 0},
               {L"WyL(mm^3)", e.iy / (e.xo - e.left), 0},
               {L"WyR(mm^3)", e.iy / (e.right - e.xo), 0},
               {L"ixo(mm)", std::sqrt(e.ix / e.a), 0},
               {L"iyo(mm)", std::sqrt(e.iy / e.a), 0}};
  for (const auto& c : cells) {
    EXPECT_NEAR(Cell(row, c.sign), c.value, 6e-6 * std::max(std::fabs(c.value), c.least))
        << orv3::ToUtf8(c.sign);
  }
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
  const CSteelItemGeGou row = RowOf({3, 600, 800, {{&kC10, 0}, {&kC5, 90}, {&kI20a, 0}}});
  EXPECT_EQ(row.GetPartItem(1)[0].m_strValue, L"[10");
  EXPECT_EQ(row.GetPartItem(3)[0].m_strValue, L"I20a");
  EXPECT_EQ(row.GetPartItem(3).m_strTableName, kBeams);
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

TEST_F(Lattice, ParallelAxesOnTheDrawnPlacement) {
  const CColumn columns[] = {
      {2, 0, 300, {{&kI20a, 90}, {&kC5, 180}}},
      {2, 0, 250, {{&kI20a, 0}, {&kC10, 270}}},
      {3, 600, 800, {{&kL75, 0}, {&kL75, 90}, {&kL75, 0}}},
      {3, 600, 800, {{&kC10, 0}, {&kC10, 180}, {&kI20a, 90}}},
      {3, 400, -500, {{&kI20a, 0}, {&kC5, 90}, {&kL75, 270}}},
      {4, 600, 800, {{&kL75, 0}, {&kL75, 90}, {&kL75, 180}, {&kL75, 270}}},
      {4, 600, 800, {{&kI20a, 0}, {&kC5, 90}, {&kL75, 180}, {&kC10, 270}}},
      {4, 0, 0, {{&kC10, 0}, {&kC10, 90}, {&kC10, 180}, {&kC10, 270}}},
      {4, 500.5, 300.25, {{&kC10, 360}, {&kI20a, 45}, {&kC5, 0}, {&kL75, 0}}},  // as unturned
  };
  for (std::size_t i = 0; i < std::size(columns); ++i) {
    SCOPED_TRACE(i);
    CSteelItemGeGou row = RowOf(columns[i]);
    EXPECT_EQ(row.CalSteelJMGeGou(), 1);
    CColumn drawn = columns[i];
    for (CLimb& limb : drawn.limb) limb.angle = limb.angle % 90 ? 0 : limb.angle;
    ExpectRow(row, Expect(Placed(drawn)));
  }
}

// With two limbs, limb 1's top counts as k lower than it stands. It matters where it is the higher.
TEST_F(Lattice, UpperReachOfTwoLimbs) {
  const CColumn column = {2, 0, 60, {{&kI20a, 0}, {&kC5, 0}}};
  CSteelItemGeGou row = RowOf(column);
  ASSERT_EQ(row.CalSteelJMGeGou(), 1);
  CExpected e = Expect(Placed(column));
  EXPECT_EQ(e.top, 100);           // limb 1 as it stands
  e.top = std::max(100 - 60, 85);  // as it counts
  ExpectRow(row, e);
}

// What fails, and what is written by then.
TEST_F(Lattice, Failures) {
  const CColumn column = {3, 600, 800, {{&kC10, 0}, {&kC10, 180}, {&kC10, 90}}};
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
