// Outlines of rows: their form, their turns, and sizes that bound nothing. What they enclose is
// held against the printed figures in rolled_rows_test.cpp.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "outlines/outline_check.h"
#include "outlines/outline_moments.h"
#include "outlines/touching_parts.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"
#include "sections/outline_integral.h"

namespace {

using orv3::CPoint, orv3::CVertex, orv3::RowOutline, orv3::RowOutlineMoments;

// --- Form ----------------------------------------------------------------------------------------

CPoint Direction(const CVertex& from, const CVertex& to, double atEnd) {
  if (from.bulge == 0) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    return {(to.x - from.x) / length, (to.y - from.y) / length};
  }
  const orv3::CArc arc = EdgeArc(from, to);
  const double angle = arc.start + atEnd * arc.sweep;
  const double sense = arc.sweep > 0 ? 1 : -1;
  return {-std::sin(angle) * sense, std::cos(angle) * sense};
}

// Arcs run on into their neighbours without a corner.
void CheckTangents(const orv3::CPath& loop) {
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

void CheckForm(const orv3::COutline& outline) {
  ASSERT_FALSE(outline.m_arrLoop.empty());
  const orv3::CBox box = PathBounds(outline.m_arrLoop);
  EXPECT_NEAR(box.left, 0, 1e-9);
  EXPECT_NEAR(box.bottom, 0, 1e-9);
  EXPECT_NEAR(box.right, outline.m_dWidth, 1e-9);
  EXPECT_NEAR(box.top, outline.m_dHeight, 1e-9);
  for (const orv3::CPath& loop : outline.m_arrLoop) {
    EXPECT_TRUE(loop.m_bClosed);
    CheckTangents(loop);
  }
  EXPECT_TRUE(!orv3::CheckOutline(outline.m_arrLoop) || orv3::PartsCleared(outline.m_arrLoop));
}

class StoredOutline : public CatalogueStore {};

TEST_F(StoredOutline, OfEveryRowIsWhole) {
  for (const CString& name : Tables()) {
    for (const CDataItem& row : Rows(name)) {
      SCOPED_TRACE(orv3::ToUtf8(name + L" " + row[0].m_strValue));
      CheckForm(RowOutline(row));
      if (orv3::IsPairTable(name)) CheckForm(RowOutline(orv3::WithPairSpacing(row, 8)));
    }
  }
  for (const wchar_t* table : {L"双肢格构柱", L"三肢格构柱", L"四肢格构柱"}) {
    CheckForm(RowOutline(DefaultRow(table)));
  }
}

TEST_F(StoredOutline, OfAPairIsEmptyWithoutItsPart) {
  const auto pair = [](const wchar_t* no, int gap) {
    return RowOutline(WithSpacing(RowOf(L"热轧等边角钢组合", no, {}), L"a(mm)", gap)).m_arrLoop;
  };
  EXPECT_FALSE(pair(L"2L50X5", 0).empty());
  EXPECT_TRUE(pair(L"2L50X5", -1).empty());
  EXPECT_TRUE(pair(L"2L999X1", 0).empty());
  CLoadDataTable::SetOrvoPrgPath(L"no_such_folder/");
  EXPECT_TRUE(pair(L"2L50X5", 0).empty());
}

// --- Turning, radii, sizes that are none ---------------------------------------------------------

TEST(RowOutline, TurnsByQuarters) {
  const CDataItem row = RowOf(L"热轧不等边角钢", L"L100X63X8",
                              {{L"B(mm)", 100}, {L"b(mm)", 63}, {L"t(mm)", 8}, {L"r(mm)", 10}});
  const orv3::COutline upright = RowOutline(row);
  const orv3::COutlineMoments m = RowOutlineMoments(upright.m_arrLoop);
  const double w = 63, h = 100;
  const orv3::CPoint c = m.m_centroid;
  const struct {
    double angle, width, height;
    CPoint centroid;
    double ixy;
  } cases[] = {{0, w, h, {c.x, c.y}, m.m_dIxy},
               {90, h, w, {h - c.y, c.x}, -m.m_dIxy},
               {180, w, h, {w - c.x, h - c.y}, m.m_dIxy},
               {270, h, w, {c.y, w - c.x}, -m.m_dIxy},
               {89.99995, h, w, {h - c.y, c.x}, -m.m_dIxy},
               {45, w, h, {c.x, c.y}, m.m_dIxy},
               {-90, w, h, {c.x, c.y}, m.m_dIxy}};
  for (const auto& turn : cases) {
    SCOPED_TRACE(turn.angle);
    const orv3::COutline outline = RowOutline(row, turn.angle);
    CheckForm(outline);
    EXPECT_EQ(outline.m_dWidth, turn.width);
    EXPECT_EQ(outline.m_dHeight, turn.height);
    const orv3::COutlineMoments turned = RowOutlineMoments(outline.m_arrLoop);
    EXPECT_NEAR(turned.m_centroid.x, turn.centroid.x, 1e-9);
    EXPECT_NEAR(turned.m_centroid.y, turn.centroid.y, 1e-9);
    EXPECT_NEAR(turned.m_dIxy, turn.ixy, 1e-9 * m.m_dIx);
  }
}

TEST(RowOutline, IsEmptyForSizesThatBoundNoSection) {
  const CDataItem good = RowOf(L"热轧普通工字钢", L"I20a",
                               {{L"h(mm)", 200},
                                {L"b(mm)", 100},
                                {L"tw(mm)", 7},
                                {L"t(mm)", 11.4},
                                {L"r(mm)", 9},
                                {L"r1(mm)", 4.5}});
  EXPECT_FALSE(RowOutline(good).m_arrLoop.empty());
  const struct {
    const wchar_t* sign;
    const wchar_t* value;
  } cases[] = {{L"h(mm)", L"0"},   {L"h(mm)", L"20"},   {L"b(mm)", L"6.9"},  {L"b(mm)", L"x"},
               {L"tw(mm)", L"-7"}, {L"t(mm)", L""},     {L"t(mm)", L"99"},   {L"t(mm)", L"0.1"},
               {L"r(mm)", L"-1"},  {L"r(mm)", L"60"},   {L"r1(mm)", L"9.9"}, {L"r1(mm)", L"nan"},
               {L"h(mm)", L"1e9"}, {L"b(mm)", L"1e999"}};
  for (const auto& c : cases) {
    CDataItem bad = good;
    bad[c.sign].m_strValue = c.value;
    EXPECT_TRUE(RowOutline(bad).m_arrLoop.empty()) << orv3::ToUtf8(c.sign) << orv3::ToUtf8(c.value);
  }
  CDataItem unknown = good;
  unknown.m_strTableName = L"热轧普通工字";
  EXPECT_TRUE(RowOutline(unknown).m_arrLoop.empty());
  EXPECT_TRUE(RowOutline(RowOf(L"热轧普通工字钢", L"I20a", {})).m_arrLoop.empty());
  EXPECT_TRUE(RowOutline(CDataItem()).m_arrLoop.empty());
}

}  // namespace
