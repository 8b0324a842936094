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
