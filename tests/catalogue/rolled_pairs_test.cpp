// Every pair of the catalogue against its outline: its two components in their places.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "print.h"
#include "sections/catalogue_store.h"
#include "sections/outline_integral.h"

namespace {

struct CPairCase {
  const wchar_t* table;
  std::vector<int> gaps;  // mm; none: one arrangement
};

const std::vector<int> kGaps{0, 4, 6, 8, 10, 12, 14, 16, 18, 20};
const CPairCase kPairs[] = {
    {L"热轧等边角钢组合", kGaps},       {L"热轧不等边角钢长边组合", kGaps},
    {L"热轧不等边角钢短边组合", kGaps}, {L"热轧等边角钢十字组合", {0, 4, 6, 8, 10}},
    {L"热轧普通槽钢][组合", kGaps},     {L"热轧普通槽钢[]组合", {}},
    {L"热轧轻型槽钢][组合", kGaps},     {L"热轧轻型槽钢[]组合", {}},
};

// A pair is made of its component's printed figures, whose last digits are worth most in the
// smallest angles. Half a unit of the last digit and this share of the figure:
constexpr double kShare = 0.012;

class RolledPairs : public CatalogueStore, public testing::WithParamInterface<CPairCase> {
 protected:
  // The cell "Wy10(cm^3)" for the symbol "Wy", 10 mm and the unit "cm^3".
  void Expect(const CDataItem& row, const std::wstring& sign, double expected, double unit) {
    double value = 0;
    EXPECT_EQ(row.GetCellValue(sign.c_str(), value), 1) << CString(sign);
    EXPECT_NEAR(value, expected, unit / 2 + kShare * expected)
        << row[0].m_strValue << CString(sign);
    m_dMean += value / expected - 1;
    ++m_nCount;
  }

  double m_dMean = 0;
  int m_nCount = 0;
};

// About its centroid, in cm; a cross turned so that its axis of symmetry Y1 is upright.
CIntegrals Moments(const CDataItem& row, const orv3::COutline& outline) {
  const bool cross = row.GetTableName() == L"热轧等边角钢十字组合";
  CIntegrals sum = Central(Polygons(outline, cross ? 45 : 0));
  sum.A /= 1e2;
  sum.xx /= 1e4;
  sum.yy /= 1e4;
  return sum;
}

TEST_P(RolledPairs, AreTheirComponentsSideBySide) {
  const CPairCase& each = GetParam();
  const bool cross = each.gaps.size() == 5;
  for (const CDataItem& row : Rows(each.table)) {
    const orv3::COutline closed = orv3::RowOutline(row);
    const CIntegrals sum = Moments(row, closed);
    Expect(row, L"A(cm^2)", sum.A, 0.001);
    Expect(row, L"G(kg/m)", 0.785 * sum.A, 0.001);
    const double own = cross ? sum.xx : sum.yy;
    Expect(row, cross ? L"Iy1(cm^4)" : L"Ix(cm^4)", own, cross ? 0.01 : 0.1);
    Expect(row, cross ? L"iy1(cm)" : L"ix(cm)", std::sqrt(own / sum.A), 0.01);
    if (each.gaps.empty()) {
      Expect(row, L"Iy(cm^4)", sum.xx, 0.1);
      Expect(row, L"Wy(cm^3)", sum.xx / (closed.m_dWidth / 20), 0.1);
      Expect(row, L"iy(cm)", std::sqrt(sum.xx / sum.A), 0.01);
    }
    for (const int mm : each.gaps) {
      const orv3::COutline apart = orv3::RowOutline(orv3::WithPairSpacing(row, mm));
      const CIntegrals i = Moments(row, apart);
      const std::wstring gap = std::to_wstring(mm);
      if (cross) {
        Expect(row, L"Ix" + gap + L"(cm^4)", i.yy, 0.1);
        Expect(row, L"ix" + gap + L"(cm)", std::sqrt(i.yy / i.A), 0.01);
      } else {
        Expect(row, L"Wy" + gap + L"(cm^3)", i.xx / (apart.m_dWidth / 20), 0.1);
        Expect(row, L"iy" + gap + L"(cm)", std::sqrt(i.xx / i.A), 0.01);
      }
    }
  }
  // Rounding goes either way.
  EXPECT_LT(std::abs(m_dMean / m_nCount), 0.0003);
}

INSTANTIATE_TEST_SUITE_P(Tables, RolledPairs, testing::ValuesIn(kPairs));

}  // namespace
