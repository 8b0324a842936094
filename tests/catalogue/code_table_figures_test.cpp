// The compiled figures of the code tables against their CSV files and against each other.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "catalogue/csv_table_check.h"
#include "orv3cal.h"

namespace {

using T = CTableSearch;
constexpr double kPi = std::numbers::pi;

template <std::size_t N, class... TABLES>
void ExpectTables(const char* const (&names)[N], const TABLES&... tables) {
  static_assert(sizeof...(tables) == N);
  const char* const* name = names;
  (ExpectCsv(tables, std::string(ORV3CAL_CODE_TABLES "/g_sub") + *name++ + ".csv"), ...);
}

// The other tables are made of their files.
TEST(CodeTableFigures, EveryCsvFigureIsTheCompiledOne) {
  ExpectTables(
      {"1", "2", "3", "4", "5S2", "6", "6_1", "7", "8", "9", "10", "11", "16", "17", "22", "23"},
      T::g_sub1, T::g_sub2, T::g_sub3, T::g_sub4, T::g_sub5S2, T::g_sub6, T::g_sub6_1, T::g_sub7,
      T::g_sub8, T::g_sub9, T::g_sub10, T::g_sub11, T::g_sub16, T::g_sub17, T::g_sub22, T::g_sub23);
}

// A label names the number that the look-up uses, "≥10" the number 10.
template <std::size_t N>
void ExpectLabels(const wchar_t* const (&labels)[N], const double (&grid)[N]) {
  for (std::size_t i = 0; i < N; ++i) {
    const std::wstring_view label = labels[i];
    EXPECT_EQ(orv3::ToDouble(label.substr(label[0] == L'≥' ? 1 : 0)), grid[i]) << "label " << i;
  }
}

TEST(CodeTableFigures, LabelsNameTheGrid) {
  ExpectLabels(T::g_sub16_1, orv3::kFrameK);
  ExpectLabels(T::g_sub18_1, orv3::kSingleEta1);
  ExpectLabels(T::g_sub18_2, orv3::kSingleK1);
}

// What no equation gives must at least run one way: phi-b falls with the free length; mu of a
// tapered column falls with the stiffness of the beam and rises with that of the column's foot.
TEST(CodeTableFigures, RunOneWay) {
  for (int i = 0; i < 15; ++i) {
    for (int j = 1; j < 9; ++j) EXPECT_LT(T::g_sub11[i][j], T::g_sub11[i][j - 1]) << i << "," << j;
  }
  for (int i = 0; i < 8; ++i) {
    for (int j = 1; j < 8; ++j) {
      EXPECT_LT(T::g_sub22[i][j], T::g_sub22[i][j - 1]) << i << "," << j;
      EXPECT_GT(T::g_sub22[j][i], T::g_sub22[j - 1][i]) << j << "," << i;
    }
  }
}

TEST(CodeTableFigures, PhysicalRelations) {
  for (int i = 0; i < 16; ++i) {
    // fv and the third grade's ftw follow from f: 0.58 f and 0.85 f, rounded to 5.
    EXPECT_NEAR(T::g_sub1[i][1], 0.58 * T::g_sub1[i][0], 5);
    EXPECT_NEAR(T::g_sub2[i][2], 0.85 * T::g_sub1[i][0], 5);
    EXPECT_EQ(T::g_sub2[i][0], T::g_sub1[i][0]);
    EXPECT_EQ(T::g_sub2[i][1], T::g_sub1[i][0]);
    EXPECT_EQ(T::g_sub2[i][3], T::g_sub1[i][1]);
    EXPECT_TRUE(i % 4 == 0 || T::g_sub1[i][0] < T::g_sub1[i - 1][0]) << i;
  }
  for (int i = 0; i < 9; ++i) {
    const double d = T::g_sub23_1[i];
    EXPECT_NEAR(orv3::ToDouble(T::g_sub23[i][0]), kPi * d * d / 400, 0.0006) << d;
  }
}

// The effective diameter is d - 0.9382 p (13 sqrt(3) / 24 of the coarse pitch p).
TEST(CodeTableFigures, EffectiveDiameterFollowsFromThePitch) {
  constexpr double kPitch[28] = {1.5, 1.75, 2, 2,   2.5, 2.5, 2.5, 3, 3, 3.5, 3.5, 4, 4, 4.5,
                                 4.5, 5,    5, 5.5, 5.5, 6,   6,   6, 6, 6,   6,   6, 6, 6};
  for (int i = 0; i < 28; ++i) {
    const double d = orv3::ToDouble(NormalBoltData::m_strBolt[i][0]);
    const double de = orv3::ToDouble(NormalBoltData::m_strBolt[i][1]);
    EXPECT_NEAR(de, d - 13 * std::sqrt(3) / 24 * kPitch[i], 0.006) << d;
    for (int k = 0; k < 9; ++k) {
      if (T::g_sub23_1[k] != d) continue;
      EXPECT_NEAR(orv3::ToDouble(T::g_sub23[k][1]), kPi * de * de / 400, 0.011) << d;
    }
  }
}

}  // namespace
