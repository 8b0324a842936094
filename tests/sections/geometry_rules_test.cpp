// How a row is read: cells, units, spacings, turning and symmetry.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "framework/utf8.h"
#include "sections/geometry_rows.h"

namespace {

using KVBT = CDataTypeStruct;

void ExpectTwo(CTwo got, double first, double second, const char* what) {
  EXPECT_NEAR(got.first, first, 1e-9) << what;
  EXPECT_NEAR(got.second, second, 1e-9) << what;
}

TEST(GeometryRules, OnlyDoubleCellsCount) {
  CDataItem row = RowOf(L"矩形截面", L"R", {});
  AddCell(row, L"A(cm^2)", KVBT::KVBT_STRING, L"12");
  AddCell(row, L"A(mm^2)", KVBT::KVBT_DOUBLE, L"345");
  EXPECT_EQ(CLoadDataTable::GetDataItemArea(row), 345);

  AddCell(row, L"b(mm)", KVBT::KVBT_DOUBLE, L"20");
  AddCell(row, L"h(mm)", KVBT::KVBT_INT, L"30");
  ExpectTwo(RectOf(row), 20, 0, "the height is an integer cell");
  ExpectTwo(RectOf(row, 90), 20, 0, "not turned: the operation stopped");
  EXPECT_EQ(CLoadDataTable::GetDataItemMaxThick(row), 0);
}

TEST(GeometryRules, NothingKnownIsZero) {
  const CDataItem noTable =
      RowOf(L"工字钢", L"I20a", {{L"h(mm)", 200}, {L"b(mm)", 100}, {L"A(cm^2)", 35.578}});
  for (const CDataItem& row :
       {CDataItem(), noTable, RowOf(L"热轧普通工字钢", L"I", {}),
        RowOf(L"热轧等边角钢组合", L"2L50X5", {}), RowOf(L"四肢格构柱", L"G", {{L"kx(mm)", 1}})}) {
    ExpectTwo(RectOf(row), 0, 0, "rectangle");
    ExpectTwo(CenterOf(row, 90), 0, 0, "centroid");
    ExpectTwo(InertiaOf(row), 0, 0, "inertia");
    EXPECT_EQ(CLoadDataTable::GetDataItemSxo(row), 0);
    EXPECT_EQ(CLoadDataTable::GetDataItemRadiyo(row), 0);
    EXPECT_EQ(CLoadDataTable::GetDataItemWyoR(row), 0);
    EXPECT_EQ(CLoadDataTable::GetDataItemMinThick(row), 0);
    EXPECT_EQ(CLoadDataTable::GetDatIteme0(row), 0);
    EXPECT_EQ(CLoadDataTable::GetDataItemIw(row), 0);
    EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryX(row), row.m_strTableName == L"热轧普通工字钢");
  }
}

TEST(GeometryRules, ZeroDivisors) {
  EXPECT_EQ(CLoadDataTable::CalDataItemWo(5, 0), 1e100);
  EXPECT_EQ(CLoadDataTable::CalDataItemWo(6, -2), 3);
  EXPECT_EQ(CLoadDataTable::CalDataItemRio(5, 0), 0);
  EXPECT_EQ(CLoadDataTable::CalDataItemRio(8, 2), 2);
}

TEST(GeometryRules, TurnsCounterClockwise) {
  // [10 of GB/T 707: 48 wide, 100 high, its centroid 15.2 from the back on the left.
  const CDataItem row = RowOf(L"热轧普通槽钢", L"[10",
                              {{L"h(mm)", 100},
                               {L"b(mm)", 48},
                               {L"Ix(cm^4)", 198.3},
                               {L"Iy(cm^4)", 25.6},
                               {L"zo(cm)", 1.52}});
  const struct {
    double angle;
    CTwo rect, center, inertia;
  } cases[] = {
      {0, {48, 100}, {15.2, 50}, {1983e3, 256e3}},
      {90, {100, 48}, {50, 15.2}, {256e3, 1983e3}},
      {180, {48, 100}, {32.8, 50}, {1983e3, 256e3}},
      {270, {100, 48}, {50, 32.8}, {256e3, 1983e3}},
      {269.99991, {100, 48}, {50, 32.8}, {256e3, 1983e3}},
      {90.0002, {48, 100}, {15.2, 50}, {1983e3, 256e3}},
      {-90, {48, 100}, {15.2, 50}, {1983e3, 256e3}},
      {360, {48, 100}, {15.2, 50}, {1983e3, 256e3}},
  };
  for (const auto& c : cases) {
    const std::string what = std::to_string(c.angle);
    ExpectTwo(RectOf(row, c.angle), c.rect.first, c.rect.second, what.c_str());
    ExpectTwo(CenterOf(row, c.angle), c.center.first, c.center.second, what.c_str());
    ExpectTwo(InertiaOf(row, c.angle), c.inertia.first, c.inertia.second, what.c_str());
  }
  // The upper left of a row without symmetry comes to lie at the lower left.
  const CDataItem angle =
      RowOf(L"热轧不等边角钢", L"L100X63X10",
            {{L"B(mm)", 100}, {L"b(mm)", 63}, {L"yo(cm)", 3.4}, {L"xo(cm)", 1.58}});
  ExpectTwo(CenterOf(angle), 15.8, 34, "heel at the lower left");
  ExpectTwo(CenterOf(angle, 90), 66, 15.8, "heel at the lower right");
  ExpectTwo(CenterOf(angle, 180), 47.2, 66, "heel at the upper right");
  ExpectTwo(CenterOf(angle, 270), 34, 47.2, "heel at the upper left");
}

TEST(GeometryRules, ATHasItsHeightAsText) {
  CDataItem row =
      RowOf(L"剖分T型钢", L"TW62.5X125",
            {{L"B(mm)", 125}, {L"Ix(cm^4)", 35}, {L"Wx(cm^3)", 6.91}, {L"Cx(cm)", 1.19}});
  AddCell(row, L"h(mm)", KVBT::KVBT_STRING, L"62.5");
  ExpectTwo(RectOf(row), 125, 62.5, "rectangle");
  ExpectTwo(CenterOf(row), 62.5, 31.25, "at mid-height, whatever its Cx");
  EXPECT_NEAR(CLoadDataTable::GetDataItemWxo1(row), 35e4 / 11.9, 1e-6);
  EXPECT_NEAR(CLoadDataTable::GetDataItemWxo2(row), 6910, 1e-9);
  row[L"h(mm)"].m_strValue = L"about 60";
  ExpectTwo(RectOf(row), 125, 0, "no number");
}

// Of the plates; a solid counts as thick as the largest circle inside it is wide.
TEST(GeometryRules, ThicknessesOfUserDefinedSections) {
  const struct {
    const wchar_t* table;
    std::initializer_list<double> sizes;  // in the order of the columns
    double most, least;
  } cases[] = {
      {L"自定义对称H型钢", {300, 400, 20, 10}, 20, 10},
      {L"自定义非对称箱形截面", {300, 400, 30, 20, 12, 16}, 30, 12},
      {L"自定义十字形截面", {30, 400, 150, 210, 90, 120}, 40, 30},
      {L"自定义圆管", {100, 90}, 10, 10},
      {L"矩形截面", {200, 400}, 200, 200},
      {L"六边形截面", {100}, 100 * std::sqrt(3.0), 100 * std::sqrt(3.0)},
      {L"三角形截面", {60, 40}, 4.0 * 1200 / 160, 4.0 * 1200 / 160},
  };
  for (const auto& c : cases) {
    const CDataItem row = RowOfPlates(c.table, c.sizes);
    EXPECT_NEAR(CLoadDataTable::GetDataItemMaxThick(row), c.most, 1e-9)
        << orv3::ToUtf8(CString(c.table));
    EXPECT_NEAR(CLoadDataTable::GetDataItemMinThick(row), c.least, 1e-9)
        << orv3::ToUtf8(CString(c.table));
  }
}

// That proper sizes are as symmetric as their outlines is held in section_kinds_test.cpp.
TEST(GeometryRules, SymmetryWhereSizesAreMissing) {
  const struct {
    const wchar_t* table;
    std::initializer_list<double> sizes;  // in the order of the columns
    int x, y;
  } cases[] = {
      {L"自定义非对称H型钢", {0, 0, 0, 0, 0, 5, 0, 5.000001}, 0, 0},
      {L"自定义非对称H型钢", {0, 0, 0, 0, 1e-7}, 1, 1},
      {L"自定义T形截面", {0, 0, 8}, 1, 1},
      {L"自定义L形截面", {0, 0, 8}, 1, 1},
      {L"自定义Z形截面", {0, 0, 0, 0, 9}, 1, 1},
      {L"四肢格构柱", {}, 0, 0},
  };
  for (const auto& c : cases) {
    const CDataItem row = c.sizes.size() ? RowOfPlates(c.table, c.sizes) : RowOf(c.table, L"1", {});
    EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryX(row), c.x) << orv3::ToUtf8(CString(c.table));
    EXPECT_EQ(CLoadDataTable::IsDaTaItemSymmetryY(row), c.y) << orv3::ToUtf8(CString(c.table));
  }
}

}  // namespace
