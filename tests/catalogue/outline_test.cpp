// Outlines of rows against the catalogue's printed figures, which come from the standards.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/outline/outline_moments.h"
#include "catalogue/outline/row_outline.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "print.h"
#include "sections/load_data_table.h"
#include "tables/data_table.h"

namespace {

using namespace orv3;

constexpr auto kText = CDataTypeStruct::KVBT_STRING;
constexpr auto kNumber = CDataTypeStruct::KVBT_DOUBLE;

std::vector<std::string> Split(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream in(line);
  for (std::string cell; std::getline(in, cell, ',');) cells.push_back(cell);
  return cells;
}

CDataItem RowOf(const wchar_t* table, const std::vector<std::string>& signs,
                const std::vector<std::string>& values) {
  CDataItem row;
  row.m_strTableName = table;
  for (std::size_t i = 0; i < signs.size(); ++i) {
    const bool text = signs[i] == "No.";
    row.m_arrCell.Add(
        CDataCell({L"", FromUtf8(signs[i]), text ? kText : kNumber, text}, FromUtf8(values[i])));
  }
  return row;
}

std::vector<CDataItem> PrintedRows(const wchar_t* table, const char* file) {
  std::ifstream in(std::string(ORV3CAL_CATALOGUE_SOURCES "/") + file + ".csv");
  std::vector<CDataItem> rows;
  std::string line;
  std::getline(in, line);
  const std::vector<std::string> signs = Split(line);
  while (std::getline(in, line)) rows.push_back(RowOf(table, signs, Split(line)));
  return rows;
}

std::string NameOf(const CDataItem& row) {
  return ToUtf8(row.m_strTableName) + " " + ToUtf8(row[0].m_strValue);
}

// --- Form
// -----------------------------------------------------------------------------------------

CPoint Direction(const CVertex& from, const CVertex& to, double atEnd) {
  if (from.bulge == 0) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    return {(to.x - from.x) / length, (to.y - from.y) / length};
  }
  const CArc arc = EdgeArc(from, to);
  const double angle = arc.start + atEnd * arc.sweep;
  const double sense = arc.sweep > 0 ? 1 : -1;
  return {-std::sin(angle) * sense, std::cos(angle) * sense};
}

double Cross(CPoint o, CPoint a, CPoint b) {
  return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
}

bool Meet(CPoint a, CPoint b, CPoint c, CPoint d) {
  return Cross(a, b, c) * Cross(a, b, d) < 0 && Cross(c, d, a) * Cross(c, d, b) < 0;
}

bool CrossesItself(const std::vector<CPath>& loops) {
  std::vector<std::pair<CPoint, CPoint>> chords;
  for (const CPath& loop : loops) {
    const std::vector<CPoint> points = Flattened(loop, 0.05);
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
      chords.emplace_back(points[i], points[i + 1]);
  }
  for (std::size_t i = 0; i < chords.size(); ++i) {
    for (std::size_t j = i + 1; j < chords.size(); ++j) {
      if (Meet(chords[i].first, chords[i].second, chords[j].first, chords[j].second)) return true;
    }
  }
  return false;
}

// Arcs run on into their neighbours without a corner.
void CheckTangents(const CPath& loop) {
  const auto& v = loop.m_arrVertex;
  const std::size_t n = v.size();
  for (std::size_t i = 0; i < n; ++i) {
    const CVertex& before = v[(i + n - 1) % n];
    const CVertex& at = v[i];
    if (before.bulge == 0 && at.bulge == 0) continue;
    const CPoint in = Direction(before, at, 1);
    const CPoint out = Direction(at, v[(i + 1) % n], 0);
    EXPECT_NEAR(in.x * out.x + in.y * out.y, 1, 1e-9) << "vertex " << i;
  }
}

void CheckForm(const COutline& outline) {
  ASSERT_FALSE(outline.m_arrLoop.empty());
  const CBox box = PathBounds(outline.m_arrLoop);
  EXPECT_NEAR(box.left, 0, 1e-9);
  EXPECT_NEAR(box.bottom, 0, 1e-9);
  EXPECT_NEAR(box.right, outline.m_dWidth, 1e-9);
  EXPECT_NEAR(box.top, outline.m_dHeight, 1e-9);
  for (const CPath& loop : outline.m_arrLoop) {
    EXPECT_TRUE(loop.m_bClosed);
    CheckTangents(loop);
  }
  EXPECT_FALSE(CrossesItself(outline.m_arrLoop));
}

// --- The printed figures
// --------------------------------------------------------------------------

struct CFigures {
  COutline outline;
  COutlineMoments m;
  double Spread() const { return std::hypot((m.m_dIx - m.m_dIy) / 2, m.m_dIxy); }
};

// In the units of the columns: cm, cm^2, cm^4.
double Area(const CFigures& f) { return f.m.m_dArea / 100; }
double Ix(const CFigures& f) { return f.m.m_dIx / 1e4; }
double Iy(const CFigures& f) { return f.m.m_dIy / 1e4; }
double Ixy(const CFigures& f) { return std::fabs(f.m.m_dIxy) / 1e4; }  // the standard's axes: > 0
double Major(const CFigures& f) { return ((f.m.m_dIx + f.m.m_dIy) / 2 + f.Spread()) / 1e4; }
double Minor(const CFigures& f) { return ((f.m.m_dIx + f.m.m_dIy) / 2 - f.Spread()) / 1e4; }
double FromLeft(const CFigures& f) { return f.m.m_centroid.x / 10; }
double FromBottom(const CFigures& f) { return f.m.m_centroid.y / 10; }
double FromTop(const CFigures& f) { return (f.outline.m_dHeight - f.m.m_centroid.y) / 10; }

// A figure may stray from a printed one by half a unit of its last digit and by this many percent,
// the deviation that the sources state for the column.
struct CPrinted {
  const wchar_t* sign;
  double (*figure)(const CFigures&);
  double percent = 0;
};

struct CPrintedTable {
  const wchar_t* table;
  const char* file;
  int digits;  // significant digits to which the table is printed at most; 0: as written
  std::vector<CPrinted> columns;
};

const CPrintedTable kTables[] = {
    // The area of the ordinary series is the standard's formula, 0.1 % off the outline's.
    {L"热轧普通工字钢",
     "GZGData",
     0,
     {{L"A(cm^2)", Area, 0.11}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}}},
    {L"热轧轻型工字钢", "QGZGData", 0, {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}}},
    {L"热轧普通槽钢",
     "PCGData",
     0,
     {{L"A(cm^2)", Area, 0.13}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}, {L"zo(cm)", FromLeft}}},
    {L"热轧轻型槽钢",
     "QCGData",
     0,
     {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}, {L"zo(cm)", FromLeft}}},
    {L"热轧等边角钢",
     "DbData",
     0,
     {{L"A(cm^2)", Area},
      {L"Ix(cm^4)", Ix},
      {L"Ix(cm^4)", Iy},
      {L"zo(cm)", FromLeft},
      {L"zo(cm)", FromBottom},
      {L"Ixo(cm^4)", Major},
      {L"Iyo(cm^4)", Minor}}},
    {L"热轧不等边角钢",
     "BDbData",
     0,
     {{L"A(cm^2)", Area},
      {L"Ix(cm^4)", Ix},
      {L"Iy(cm^4)", Iy},
      {L"xo(cm)", FromLeft},
      {L"yo(cm)", FromBottom},
      {L"Iu(cm^4)", Minor}}},
    {L"热轧宽翼缘H型钢",
     "KHData",
     3,
     {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy, 0.05}}},
    {L"热轧窄翼缘H型钢",
     "ZHData",
     3,
     {{L"A(cm^2)", Area, 0.07}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}}},
    {L"剖分T型钢",
     "PFTIRON",
     3,
     {{L"A(cm^2)", Area, 0.15}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy, 0.4}, {L"Cx(cm)", FromTop}}},
    {L"热轧普通焊接H型钢", "PHData", 6, {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}}},
    {L"热轧轻型焊接H型钢",
     "QxHData",
     0,
     {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix}, {L"Iy(cm^4)", Iy}}},
    {L"冷弯薄壁等边角钢",
     "LWDBData",
     0,
     {{L"A(cm^2)", Area},
      {L"Ixo(cm^4)", Ix, 0.24},
      {L"Ix(cm^4)", Major, 0.32},
      {L"Iy(cm^4)", Minor, 2.42},
      {L"yo(cm)", FromLeft, 0.01}}},
    {L"冷弯卷边等边角钢",
     "LWJBDB",
     0,
     {{L"A(cm^2)", Area},
      {L"Ixo(cm^4)", Ix, 0.3},
      {L"Ix(cm^4)", Major, 0.3},
      {L"Iy(cm^4)", Minor, 0.3},
      {L"yo(cm)", FromBottom, 0.3}}},
    {L"冷弯薄壁槽钢",
     "LWBBCG",
     0,
     {{L"A(cm^2)", Area},
      {L"Ix(cm^4)", Ix, 0.2},
      {L"Iy(cm^4)", Iy, 0.64},
      {L"xo(cm)", FromLeft, 0.2}}},
    {L"冷弯薄壁卷边槽钢",
     "LWBBJbCG",
     0,
     {{L"A(cm^2)", Area, 0.5},
      {L"Ix(cm^4)", Ix, 0.5},
      {L"Iy(cm^4)", Iy, 0.5},
      {L"xo(cm)", FromLeft, 0.5}}},
    {L"冷弯薄壁卷边Z型钢",
     "LWJBZ",
     0,
     {{L"A(cm^2)", Area, 0.5},
      {L"Ix1(cm^4)", Ix, 0.5},
      {L"Iy1(cm^4)", Iy, 0.5},
      {L"Ix1y1(cm^4)", Ixy, 0.5},
      {L"Ix(cm^4)", Major, 0.7},
      {L"Iy(cm^4)", Minor, 0.79}}},
    {L"冷弯薄壁斜卷边Z型钢",
     "LWXJBZ",
     0,
     {{L"A(cm^2)", Area, 0.5},
      {L"Ix1(cm^4)", Ix, 0.5},
      {L"Iy1(cm^4)", Iy, 0.5},
      {L"Ix1y1(cm^4)", Ixy, 0.5},
      {L"Ix(cm^4)", Major, 0.5},
      {L"Iy(cm^4)", Minor, 0.5}}},
    {L"冷弯薄壁方钢管",
     "LWRECT",
     0,
     {{L"A(cm^2)", Area}, {L"Ix(cm^4)", Ix, 0.76}, {L"Ix(cm^4)", Iy, 0.76}}},
    {L"冷弯焊接薄壁圆钢管", "LWCIR", 0, {{L"A(cm^2)", Area}, {L"I(cm^4)", Ix}, {L"I(cm^4)", Iy}}},
};

double HalfUnit(const CDataCell& cell, int digits) {
  const int point = cell.m_strValue.Find(L'.');
  const int decimals = point < 0 ? 0 : cell.m_strValue.GetLength() - point - 1;
  double unit = std::pow(10, -decimals);
  const double value = ToDouble(cell.m_strValue);
  if (digits > 0) unit = std::max(unit, std::pow(10, std::floor(std::log10(value)) + 1 - digits));
  return unit / 2;
}

void CheckFigures(const CDataItem& row, const CPrintedTable& table) {
  CFigures figures{RowOutline(row), {}};
  figures.m = RowOutlineMoments(figures.outline.m_arrLoop);
  for (const CPrinted& column : table.columns) {
    const CDataCell& cell = row[column.sign];
    const double printed = ToDouble(cell.m_strValue);
    const double tolerance = HalfUnit(cell, table.digits) + printed * column.percent / 100;
    EXPECT_NEAR(column.figure(figures), printed, tolerance * (1 + 1e-9)) << ToUtf8(cell.m_strSign);
  }
}

TEST(RowOutline, HasThePrintedAreaCentroidAndInertia) {
  for (const CPrintedTable& table : kTables) {
    const std::vector<CDataItem> rows = PrintedRows(table.table, table.file);
    ASSERT_FALSE(rows.empty()) << table.file;
    for (const CDataItem& row : rows) {
      SCOPED_TRACE(NameOf(row));
      CheckFigures(row, table);
    }
  }
}

// --- The store
// ------------------------------------------------------------------------------------

class StoredOutline : public testing::Test {
 protected:
  void SetUp() override { CLoadDataTable::SetOrvoPrgPath(FromUtf8(ORV3CAL_CATALOGUE "/")); }
  void TearDown() override { CLoadDataTable::SetOrvoPrgPath(L""); }
};

TEST_F(StoredOutline, OfEveryRowIsWholeAndFillsItsRectangle) {
  CStringArray tables;
  CLoadDataTable::GetTableNameArray(kCatalogueTables, tables);
  EXPECT_EQ(tables.GetSize(), 27);
  for (const CString& name : tables) {
    CDataTable table;
    table.SetTableName(name);
    ASSERT_EQ(table.GetSystemJmTable(), 1) << ToUtf8(name);
    for (int i = 0; i < table.GetTableRowNum(); ++i) {
      SCOPED_TRACE(NameOf(table[i]));
      const COutline outline = RowOutline(table[i]);
      CheckForm(outline);
      double width = 0, height = 0;
      CLoadDataTable::GetDataItemRect(table[i], width, height, 0);
      EXPECT_NEAR(outline.m_dWidth, width, 1e-9);
      EXPECT_NEAR(outline.m_dHeight, height, 1e-9);
      double x = 0, y = 0;
      CLoadDataTable::GetDataItemCenter(table[i], x, y, 0);
      const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
      EXPECT_NEAR(x, m.m_centroid.x, 0.06);
      // A T's centroid is answered at half its height, whatever "Cx(cm)" says.
      EXPECT_NEAR(y, name == L"剖分T型钢" ? height / 2 : m.m_centroid.y, 0.06);
    }
  }
}

// --- Pairs and lattice columns
// --------------------------------------------------------------------

CDataItem PairRow(const wchar_t* table, const wchar_t* no, const wchar_t* sign, int gap) {
  CDataItem row;
  row.m_strTableName = table;
  row.m_arrCell.Add(CDataCell({L"型号", L"No.", kText, 1}, no));
  row.m_arrCell.Add(CDataCell({L"肢距", sign, CDataTypeStruct::KVBT_INT, 0}, FormatInt(gap)));
  return row;
}

// By hand from the printed figures of one part: i of the pair about its axis of symmetry is
// sqrt(i1^2 + (e + a/2)^2), e the part's centroid from its back.
const struct CPairCase {
  const wchar_t* table;
  const wchar_t* no;
  const wchar_t* sign;
  int gap;
  double width, height;  // mm
  double area;           // cm^2, of both
  double ix, iy;         // cm
} kPairs[] = {
    {L"热轧等边角钢组合", L"2L100X10", L"a(mm)", 0, 200, 100, 38.52, 3.05, 4.17},
    {L"热轧等边角钢组合", L"2L100X10", L"a(mm)", 10, 210, 100, 38.52, 3.05, 4.52},
    {L"热轧不等边角钢长边组合", L"2L100X80X8", L"a(mm)", 10, 170, 100, 27.89, 3.14, 3.48},
    {L"热轧不等边角钢短边组合", L"2L100X80X8", L"a(mm)", 10, 210, 80, 27.89, 2.37, 4.73},
    {L"热轧普通槽钢][组合", L"2][[20a", L"a(mm)", 0, 146, 200, 57.66, 7.86, 2.92},
};

TEST_F(StoredOutline, OfAPairHasThePrintedRadii) {
  for (const CPairCase& c : kPairs) {
    const CDataItem row = PairRow(c.table, c.no, c.sign, c.gap);
    SCOPED_TRACE(NameOf(row) + " " + std::to_string(c.gap));
    const COutline outline = RowOutline(row);
    CheckForm(outline);
    EXPECT_NEAR(outline.m_dWidth, c.width, 1e-9);
    EXPECT_NEAR(outline.m_dHeight, c.height, 1e-9);
    const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
    EXPECT_NEAR(m.m_dArea / 100, c.area, 0.02);
    EXPECT_NEAR(std::sqrt(m.m_dIx / m.m_dArea) / 10, c.ix, 0.011);
    EXPECT_NEAR(std::sqrt(m.m_dIy / m.m_dArea) / 10, c.iy, 0.011);
  }
}

// The two angles of a cross meet at their heels: the polar moment is that of two angles, and one
// principal axis runs through both.
TEST_F(StoredOutline, OfACrossIsTheAngleAndItsHalfTurn) {
  const CDataItem angle = CLoadDataTable::GetSysTemJMItem(L"热轧等边角钢", L"L100X10");
  const COutlineMoments one = RowOutlineMoments(RowOutline(angle).m_arrLoop);
  const COutline outline = RowOutline(PairRow(L"热轧等边角钢十字组合", L"2L100X10", L"δ(mm)", 8));
  const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
  const double arm = one.m_centroid.x + 4;
  EXPECT_NEAR(m.m_dIx, 2 * (one.m_dIx + one.m_dArea * arm * arm), 1e-6 * m.m_dIx);
  EXPECT_NEAR(m.m_dIxy, 2 * (one.m_dIxy + one.m_dArea * arm * arm), 1e-6 * m.m_dIx);
  EXPECT_NEAR(m.m_centroid.x, 104, 1e-9);
}

TEST_F(StoredOutline, OfChannelsToeToToeIsClosed) {
  const CDataItem channel = CLoadDataTable::GetSysTemJMItem(L"热轧普通槽钢", L"[20a");
  const COutlineMoments one = RowOutlineMoments(RowOutline(channel).m_arrLoop);
  const COutline outline = RowOutline(PairRow(L"热轧普通槽钢[]组合", L"2[][20a", L"a(mm)", 0));
  const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
  const double arm = 73 - one.m_centroid.x;
  EXPECT_NEAR(m.m_dIy, 2 * (one.m_dIy + one.m_dArea * arm * arm), 1e-6 * m.m_dIy);
}

TEST_F(StoredOutline, IsEmptyWithoutItsPart) {
  EXPECT_TRUE(RowOutline(PairRow(L"热轧等边角钢组合", L"2L999X1", L"a(mm)", 0)).m_arrLoop.empty());
  EXPECT_TRUE(RowOutline(PairRow(L"热轧等边角钢组合", L"2L50X5", L"a(mm)", -1)).m_arrLoop.empty());
  CLoadDataTable::SetOrvoPrgPath(L"no_such_folder/");
  EXPECT_TRUE(RowOutline(PairRow(L"热轧等边角钢组合", L"2L50X5", L"a(mm)", 0)).m_arrLoop.empty());
}

// The outline stands as the column was computed: extents and moments agree with its results.
TEST_F(StoredOutline, OfALatticeColumnAgreesWithItsResults) {
  for (const wchar_t* table : {L"双肢格构柱", L"三肢格构柱", L"四肢格构柱"}) {
    CSteelItemGeGou row{CDataItem()};
    row.m_strTableName = table;
    ASSERT_EQ(CLoadDataTable::GetDefaultDataItem(row), 1);
    ASSERT_EQ(row.CalSteelJMGeGou(), 1);
    SCOPED_TRACE(NameOf(row));
    const COutline outline = RowOutline(row);
    CheckForm(outline);
    const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
    const struct {
      const wchar_t* sign;
      double value;
    } results[] = {{L"A(mm^2)", m.m_dArea},
                   {L"Ix(mm^4)", m.m_dIx},
                   {L"Iy(mm^4)", m.m_dIy},
                   {L"Wx1(mm^3)", m.m_dIx / (outline.m_dHeight - m.m_centroid.y)},
                   {L"Wx2(mm^3)", m.m_dIx / m.m_centroid.y},
                   {L"WyL(mm^3)", m.m_dIy / m.m_centroid.x},
                   {L"WyR(mm^3)", m.m_dIy / (outline.m_dWidth - m.m_centroid.x)}};
    for (const auto& result : results) {
      double value = 0;
      ASSERT_EQ(row.GetCellValue(result.sign, value), 1);
      EXPECT_NEAR(result.value, value, 0.003 * value) << testing::PrintToString(result.sign);
    }
  }
}

// --- Turning, sizes that are none, the integrator
// -------------------------------------------------

TEST(RowOutline, TurnsByQuarters) {
  const CDataItem row = PrintedRows(L"热轧不等边角钢", "BDbData")[20];
  const COutline upright = RowOutline(row);
  const COutlineMoments m = RowOutlineMoments(upright.m_arrLoop);
  const double w = upright.m_dWidth, h = upright.m_dHeight;
  const CPoint c = m.m_centroid;
  const struct {
    double angle, width, height;
    CPoint centroid;
    double ixy;
  } cases[] = {{90, h, w, {h - c.y, c.x}, -m.m_dIxy},
               {180, w, h, {w - c.x, h - c.y}, m.m_dIxy},
               {270, h, w, {c.y, w - c.x}, -m.m_dIxy},
               {89.99995, h, w, {h - c.y, c.x}, -m.m_dIxy},
               {45, w, h, c, m.m_dIxy},
               {-90, w, h, c, m.m_dIxy}};
  for (const auto& turn : cases) {
    SCOPED_TRACE(turn.angle);
    const COutline outline = RowOutline(row, turn.angle);
    CheckForm(outline);
    EXPECT_EQ(outline.m_dWidth, turn.width);
    EXPECT_EQ(outline.m_dHeight, turn.height);
    const COutlineMoments turned = RowOutlineMoments(outline.m_arrLoop);
    EXPECT_NEAR(turned.m_centroid.x, turn.centroid.x, 1e-9);
    EXPECT_NEAR(turned.m_centroid.y, turn.centroid.y, 1e-9);
    EXPECT_NEAR(turned.m_dIxy, turn.ixy, 1e-9 * m.m_dIx);
  }
}

// The toe arc of [5 takes more than half of the flange's end.
TEST(RowOutline, RoundsToesByTheirFullRadius) {
  const COutline outline = RowOutline(PrintedRows(L"热轧普通槽钢", "PCGData")[0]);
  int toes = 0;
  const auto& v = outline.m_arrLoop.at(0).m_arrVertex;
  for (std::size_t i = 0; i < v.size(); ++i) {
    if (v[i].bulge == 0) continue;
    const double radius = EdgeArc(v[i], v[(i + 1) % v.size()]).radius;
    EXPECT_NEAR(radius, v[i].bulge > 0 ? 3.5 : 7, 1e-9);
    toes += v[i].bulge > 0;
  }
  EXPECT_EQ(toes, 2);
}

TEST(RowOutline, IsEmptyForSizesThatBoundNoSection) {
  const std::vector<std::string> signs{"No.",   "h(mm)", "b(mm)", "tw(mm)",
                                       "t(mm)", "r(mm)", "r1(mm)"};
  const std::vector<std::string> good{"I20a", "200", "100", "7", "11.4", "9", "4.5"};
  EXPECT_FALSE(RowOutline(RowOf(L"热轧普通工字钢", signs, good)).m_arrLoop.empty());
  const struct {
    std::size_t cell;
    const char* value;
  } cases[] = {{1, "0"},   {1, "20"}, {2, "6.9"}, {2, "x"},   {3, "-7"},  {4, ""},    {4, "99"},
               {4, "0.1"}, {5, "-1"}, {5, "60"},  {6, "9.9"}, {6, "nan"}, {1, "1e9"}, {2, "1e999"}};
  for (const auto& c : cases) {
    std::vector<std::string> bad = good;
    bad[c.cell] = c.value;
    EXPECT_TRUE(RowOutline(RowOf(L"热轧普通工字钢", signs, bad)).m_arrLoop.empty())
        << signs[c.cell] << " = " << c.value;
  }
  EXPECT_TRUE(RowOutline(RowOf(L"热轧普通工字钢", {"No."}, {"I20a"})).m_arrLoop.empty());
  EXPECT_TRUE(RowOutline(RowOf(L"热轧普通工字", signs, good)).m_arrLoop.empty());
  EXPECT_TRUE(RowOutline(CDataItem()).m_arrLoop.empty());
}

TEST(RowOutline, OfAUserDefinedRowIsItsStyles) {
  CDataItem row;
  row.m_strTableName = L"自定义圆管";
  ASSERT_EQ(CLoadDataTable::GetDefaultDataItem(row), 1);  // R = 100, r = 20
  const COutlineMoments m = RowOutlineMoments(RowOutline(row).m_arrLoop);
  const double pi = std::numbers::pi;
  EXPECT_NEAR(m.m_dArea, pi * (100.0 * 100 - 20 * 20), 1e-8);
  EXPECT_NEAR(m.m_dIx, pi / 4 * (std::pow(100, 4) - std::pow(20, 4)), 1e-4);
  EXPECT_NEAR(m.m_dIy, m.m_dIx, 1e-4);
  EXPECT_NEAR(m.m_centroid.x, 100, 1e-10);
  row.m_arrCell.RemoveAt(2);
  EXPECT_TRUE(RowOutline(row).m_arrLoop.empty());
}

// Each arc as 5000 chords.
CPath FinePolygon(const CPath& loop) {
  CPath polygon;
  const auto& v = loop.m_arrVertex;
  for (std::size_t i = 0; i < v.size(); ++i) {
    polygon.m_arrVertex.push_back({v[i].x, v[i].y, 0});
    if (v[i].bulge == 0) continue;
    const CArc arc = EdgeArc(v[i], v[(i + 1) % v.size()]);
    for (int part = 1; part < 5000; ++part) {
      const double angle = arc.start + arc.sweep * part / 5000;
      polygon.m_arrVertex.push_back({arc.center.x + arc.radius * std::cos(angle),
                                     arc.center.y + arc.radius * std::sin(angle), 0});
    }
  }
  return polygon;
}

// Arcs of every sweep and sense, far from the origin, against the same loop of many chords.
TEST(RowOutlineMoments, AreThoseOfAFinePolygon) {
  const CPath loops[] = {
      {{{0, 0, 0.2}, {50, 0, -0.4}, {60, 40, 0}, {30, 80, 2.5}, {0, 60, -0.1}}, true},
      {{{0, 0, 1}, {10, 0, 0}}, true},
      {{{0, 0, 0.01}, {100, 0, 0}, {100, 90, -0.02}, {0, 90, 0}}, true},
  };
  for (const CPath& shape : loops) {
    for (const CPath& loop : {shape, Moved(Turned(shape, 33), 5000, -3000), MirroredX(shape)}) {
      const CPath polygon = FinePolygon(loop);
      const COutlineMoments exact = RowOutlineMoments({&loop, 1});
      const COutlineMoments fine = RowOutlineMoments({&polygon, 1});
      EXPECT_NEAR(exact.m_dArea, fine.m_dArea, 2e-6 * exact.m_dArea);
      EXPECT_NEAR(exact.m_centroid.x, fine.m_centroid.x, 1e-4);
      EXPECT_NEAR(exact.m_centroid.y, fine.m_centroid.y, 1e-4);
      EXPECT_NEAR(exact.m_dIx, fine.m_dIx, 2e-6 * fine.m_dIx);
      EXPECT_NEAR(exact.m_dIy, fine.m_dIy, 2e-6 * fine.m_dIy);
      EXPECT_NEAR(exact.m_dIxy, fine.m_dIxy, 2e-6 * fine.m_dIx);
    }
  }
  EXPECT_EQ(RowOutlineMoments({}).m_dArea, 0);
}

}  // namespace
