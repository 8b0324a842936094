// Every pair of the catalogue against the outlines of its two components, put in their places.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "catalogue/rolled_outline.h"
#include "framework/utf8.h"
#include "platform/code_page.h"
#include "print.h"
#include "sections/load_data_table.h"

namespace {

double Value(const CDataItem& row, const std::wstring& sign) {
  double value = 0;
  EXPECT_EQ(row.GetCellValue(sign.c_str(), value), 1) << CString(sign);
  return value;
}

CPolygon Mapped(CPolygon polygon, const std::function<CPoint(CPoint)>& map) {
  for (CPoint& point : polygon) point = map(point);
  return polygon;
}

// One component in its place beside the axis between the two, cut at x = 0 with the gap left out;
// the other one is its image.
struct CPlaced {
  CPolygon one;                         // cm, touching x = 0
  std::function<CPoint(CPoint)> image;  // of a point of the first in the second
  CVector gap;                          // the way that the first one moves, per half of the gap
};

// Moments of both about the axes through the whole's centroid, at a gap in cm.
CIntegrals Whole(const CPlaced& placed, double gap) {
  const CPolygon one = Mapped(placed.one, [&](CPoint p) {
    return CPoint{p.x + placed.gap.x * gap / 2, p.y + placed.gap.y * gap / 2};
  });
  COutline both(one);
  both.Plate(Mapped(one, placed.image));
  CIntegrals sum = Integrate(both);
  sum.xx -= sum.x * sum.x / sum.A;
  sum.yy -= sum.y * sum.y / sum.A;
  return sum;
}

CPolygon InCm(const CPolygon& mm) {
  return Mapped(mm, [](CPoint p) { return CPoint{p.x / 10, p.y / 10}; });
}

CPoint MirrorX(CPoint p) { return {-p.x, p.y}; }
CPoint Opposite(CPoint p) { return {-p.x, -p.y}; }

CPolygon Angle(const CDataItem& row, bool equal) {
  const double b = Value(row, L"b(mm)");
  return OutlineAngle(equal ? b : Value(row, L"B(mm)"), b, Value(row, L"t(mm)"),
                      Value(row, L"r(mm)"));
}

CPlaced EqualPair(const CDataItem& row) { return {InCm(Angle(row, true)), MirrorX, {1, 0}}; }
CPlaced LongLegs(const CDataItem& row) { return {InCm(Angle(row, false)), MirrorX, {1, 0}}; }
CPlaced ShortLegs(const CDataItem& row) {
  const CPolygon lying = Mapped(Angle(row, false), [](CPoint p) { return CPoint{p.y, p.x}; });
  return {InCm(lying), MirrorX, {1, 0}};
}
// Turned so that the axis of symmetry is upright: Y1 is y here, X1 is x.
CPlaced Cross(const CDataItem& row) {
  const double c = std::sqrt(0.5);
  const CPolygon upright = Mapped(Angle(row, true), [&](CPoint p) {
    return CPoint{c * (p.x - p.y), c * (p.x + p.y)};
  });
  return {InCm(upright), Opposite, {0, 2 * c}};
}
CPolygon Channel(const CDataItem& row) {
  return OutlineChannel(Value(row, L"h(mm)"), Value(row, L"b(mm)"), Value(row, L"tw(mm)"),
                        Value(row, L"t(mm)"), Value(row, L"r(mm)"), Value(row, L"r1(mm)"), 0.1);
}
CPlaced BackToBack(const CDataItem& row) { return {InCm(Channel(row)), MirrorX, {1, 0}}; }
CPlaced ToeToToe(const CDataItem& row) {
  const double b = Value(row, L"b(mm)");
  return {InCm(Mapped(Channel(row),
                      [&](CPoint p) {
                        return CPoint{b - p.x, p.y};
                      })),
          MirrorX,
          {1, 0}};
}

struct CPairCase {
  const wchar_t* pair;
  const wchar_t* component;
  const wchar_t* marker;
  CPlaced (*place)(const CDataItem&);
  std::vector<int> gaps;  // mm; none: one arrangement
};

const std::vector<int> kGaps{0, 4, 6, 8, 10, 12, 14, 16, 18, 20};
const CPairCase kPairs[] = {
    {L"热轧等边角钢组合", L"热轧等边角钢", L"2", EqualPair, kGaps},
    {L"热轧不等边角钢长边组合", L"热轧不等边角钢", L"2", LongLegs, kGaps},
    {L"热轧不等边角钢短边组合", L"热轧不等边角钢", L"2", ShortLegs, kGaps},
    {L"热轧等边角钢十字组合", L"热轧等边角钢", L"2", Cross, {0, 4, 6, 8, 10}},
    {L"热轧普通槽钢][组合", L"热轧普通槽钢", L"2][", BackToBack, kGaps},
    {L"热轧普通槽钢[]组合", L"热轧普通槽钢", L"2[]", ToeToToe, {}},
    {L"热轧轻型槽钢][组合", L"热轧轻型槽钢", L"2][", BackToBack, kGaps},
    {L"热轧轻型槽钢[]组合", L"热轧轻型槽钢", L"2[]", ToeToToe, {}},
};

// A pair is made of its component's printed figures, whose last digits are worth most in the
// smallest angles. Half a unit of the last digit and this share of the figure:
constexpr double kShare = 0.012;

class RolledPairs : public testing::TestWithParam<CPairCase> {
 protected:
  void SetUp() override {
    orv3::SetAnsiCodePage(936);
    CLoadDataTable::SetOrvoPrgPath(orv3::FromUtf8(ORV3CAL_CATALOGUE "/"));
  }
  void TearDown() override {
    CLoadDataTable::SetOrvoPrgPath(L"");
    orv3::SetAnsiCodePage(0);
  }

  void Expect(const std::wstring& sign, double expected, double unit) {
    const double value = Value(m_pair, sign);
    EXPECT_NEAR(value, expected, unit / 2 + kShare * expected)
        << m_pair[0].m_strValue << CString(sign);
    m_dMean += value / expected - 1;
    ++m_nCount;
  }

  CDataItem m_pair;
  double m_dMean = 0;
  int m_nCount = 0;
};

std::wstring GapSign(const wchar_t* symbol, int mm, const wchar_t* unit) {
  return symbol + std::to_wstring(mm) + unit;
}

TEST_P(RolledPairs, AreTheirComponentsSideBySide) {
  const CPairCase& each = GetParam();
  const bool cross = each.place == Cross;
  CStringArray numbers;
  ASSERT_EQ(CLoadDataTable::GetSysTemItemNo(each.component, numbers), 1);
  for (const CString& no : numbers) {
    const CDataItem one = CLoadDataTable::GetSysTemJMItem(each.component, no);
    m_pair = CLoadDataTable::GetSysTemJMItem(each.pair, each.marker + no);
    ASSERT_FALSE(m_pair.IsEmpty()) << no;
    const CPlaced placed = each.place(one);
    double width = 0;
    for (const CPoint& point : placed.one) width = std::max(width, point.x);
    const CIntegrals closed = Whole(placed, 0);
    Expect(L"A(cm^2)", closed.A, 0.001);
    Expect(L"G(kg/m)", 0.785 * closed.A, 0.001);
    if (cross) {
      Expect(L"Iy1(cm^4)", closed.xx, 0.01);
      Expect(L"iy1(cm)", std::sqrt(closed.xx / closed.A), 0.01);
    } else {
      Expect(L"Ix(cm^4)", closed.yy, 0.1);
      Expect(L"ix(cm)", std::sqrt(closed.yy / closed.A), 0.01);
    }
    if (each.gaps.empty()) {
      Expect(L"Iy(cm^4)", closed.xx, 0.1);
      Expect(L"Wy(cm^3)", closed.xx / width, 0.1);
      Expect(L"iy(cm)", std::sqrt(closed.xx / closed.A), 0.01);
    }
    for (const int mm : each.gaps) {
      const CIntegrals sum = Whole(placed, mm / 10.0);
      const double inertia = cross ? sum.yy : sum.xx;
      const double expected = cross ? inertia : inertia / (width + mm / 20.0);
      Expect(GapSign(cross ? L"Ix" : L"Wy", mm, cross ? L"(cm^4)" : L"(cm^3)"), expected, 0.1);
      Expect(GapSign(cross ? L"ix" : L"iy", mm, L"(cm)"), std::sqrt(inertia / sum.A), 0.01);
    }
  }
  // Rounding goes either way.
  EXPECT_LT(std::abs(m_dMean / m_nCount), 0.0003);
}

INSTANTIATE_TEST_SUITE_P(Tables, RolledPairs, testing::ValuesIn(kPairs));

}  // namespace
