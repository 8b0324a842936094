// Look-ups in the code tables: which arguments name a cell, which cell, and what lies between
// cells.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "orv3cal.h"

namespace {

using T = CTableSearch;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kFalse = -1;  // the look-up is expected to refuse

// What a look-up gave: the value, or kFalse when it refused and left its output untouched.
template <class VALUE, class LOOKUP>
VALUE Result(LOOKUP lookup) {
  VALUE value = 777;
  if (lookup(value)) return value;
  EXPECT_EQ(value, VALUE(777)) << "a refusal leaves the output untouched";
  return kFalse;
}

int Steel(int grade, int group, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub1(grade, group, kind, v); });
}
int Steel(int grade, double t, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub1(grade, t, kind, v); });
}
int Weld(int grade, int group, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub2(grade, group, kind, v); });
}
int WeldOf(int electrode, int grade, int group, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub2(electrode, grade, group, kind, v); });
}
int Bolt(int family, int grade, int column) {
  return Result<int>([=](int& v) { return T::SearchSub3(family, grade, column, v); });
}

TEST(CodeTableLookups, SteelStrengthByGroup) {
  struct {
    int grade, group, kind, strength;
  } cases[] = {
      {SUB1_Q235, SUB1_T16, SUB1_F, 215},
      {SUB1_Q235, SUB1_T60_100, SUB1_FV, 110},
      {SUB1_Q345, SUB1_T16, SUB1_F, 310},
      {SUB1_Q345, SUB1_T16_35, SUB1_FV, 170},
      {SUB1_Q390, SUB1_T35_50, SUB1_F, 315},
      {SUB1_Q420, SUB1_T50_100, SUB1_F, 325},
      {SUB1_Q420, SUB1_T50_100, SUB1_FV, 185},
      {SUB1_Q235, SUB1_T40_60, SUB1_FCE, 325},
      {SUB1_Q345, SUB1_T16, SUB1_FCE, 400},
      {SUB1_Q390, SUB1_T16_35, SUB1_FCE, 415},
      {SUB1_Q420, SUB1_T50_100, SUB1_FCE, 440},
      // a group of the other grades, a kind or a grade that is not there
      {SUB1_Q235, SUB1_T16_35, SUB1_F, kFalse},
      {SUB1_Q345, SUB1_T16_40, SUB1_F, kFalse},
      {SUB1_Q345, SUB1_T60_100, SUB1_F, kFalse},
      {SUB1_Q235, -1, SUB1_F, kFalse},
      {SUB1_Q420, 7, SUB1_F, kFalse},
      {SUB1_Q235, SUB1_T16, 3, kFalse},
      {SUB1_Q235, SUB1_T16, -1, kFalse},
      {4, SUB1_T16, SUB1_F, kFalse},
      {-1, SUB1_T16, SUB1_F, kFalse},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Steel(c.grade, c.group, c.kind), c.strength) << c.grade << " " << c.group;
  }
}

TEST(CodeTableLookups, SteelStrengthByThickness) {
  struct {
    double t;
    int grade, strength;
  } cases[] = {
      {16, 0, 215},        {16.01, 0, 205}, {40, 0, 205},       {40.01, 0, 200},   {60, 0, 200},
      {60.5, 0, 190},      {100, 0, 190},   {100.5, 0, kFalse}, {kNaN, 0, kFalse}, {16, 1, 310},
      {35, 1, 295},        {35.01, 1, 265}, {50, 1, 265},       {50.01, 2, 295},   {100, 3, 325},
      {100.01, 3, kFalse}, {10, 4, kFalse},
  };
  for (const auto& c : cases) EXPECT_EQ(Steel(c.grade, c.t, SUB1_F), c.strength) << c.t;
}

TEST(CodeTableLookups, WeldStrength) {
  struct {
    int grade, group, kind, strength;
  } cases[] = {
      {0, 0, SUB2_FCW, 215},    {0, 1, SUB2_FTW12, 205},  {0, 2, SUB2_FTW3, 170},
      {0, 3, SUB2_FVW, 110},    {1, 4, SUB2_FTW3, 250},   {2, 5, SUB2_FVW, 180},
      {3, 6, SUB2_FCW, 325},    {0, 2, SUB2_FFW, 160},    {1, 0, SUB2_FFW, 200},
      {2, 6, SUB2_FFW, 220},    {3, 4, SUB2_FFW, 220},    {0, 0, 5, kFalse},
      {0, 4, SUB2_FCW, kFalse}, {1, 1, SUB2_FFW, kFalse},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Weld(c.grade, c.group, c.kind), c.strength) << c.grade << " " << c.group;
  }
}

TEST(CodeTableLookups, WeldStrengthByElectrode) {
  for (int grade = -1; grade <= 4; ++grade) {  // not consulted
    EXPECT_EQ(WeldOf(SUB2_E43, grade, 1, SUB2_FTW3), 175);
    EXPECT_EQ(WeldOf(SUB2_E43, grade, 3, SUB2_FFW), 160);
    EXPECT_EQ(WeldOf(SUB2_E50, grade, 5, SUB2_FCW), 265);
    EXPECT_EQ(WeldOf(SUB2_E50, grade, 6, SUB2_FFW), 200);
    EXPECT_EQ(WeldOf(SUB2_E43, grade, 4, SUB2_FCW), kFalse);
    EXPECT_EQ(WeldOf(SUB2_E50, grade, 1, SUB2_FCW), kFalse);
  }
  // The third electrode accepts nothing.
  for (int n = 0; n < 4 * 7 * 5; ++n) EXPECT_EQ(WeldOf(SUB2_E55, n / 35, n / 5 % 7, n % 5), kFalse);
}

TEST(CodeTableLookups, BoltStrength) {
  struct {
    int family, grade, column, strength;
  } cases[] = {
      {SUB3_ORDINARY, SUB3_46_48, 0, 170},  {SUB3_ORDINARY, SUB3_46_48, 1, 140},
      {SUB3_ORDINARY, SUB3_56, 4, 190},     {SUB3_ORDINARY, SUB3_88, 3, 400},
      {SUB3_ANCHOR, SUB3_Q235, 6, 140},     {SUB3_ANCHOR, SUB3_Q345, 6, 180},
      {SUB3_BEARING, SUB3_88, 7, 400},      {SUB3_BEARING, SUB3_109, 8, 310},
      {SUB3_MEMBER, SUB3_Q235, 2, 305},     {SUB3_MEMBER, SUB3_Q390, 5, 530},
      {SUB3_MEMBER, SUB3_Q420, 9, 655},     {SUB3_ORDINARY, SUB3_46_48, 5, 0},  // an empty cell
      {SUB3_ORDINARY, SUB3_109, 0, kFalse}, {SUB3_ANCHOR, SUB3_Q390, 6, kFalse},
      {SUB3_BEARING, SUB3_56, 7, kFalse},   {SUB3_MEMBER, SUB3_109, 2, kFalse},
      {4, SUB3_46_48, 0, kFalse},           {SUB3_MEMBER, SUB3_Q235, 10, kFalse},
      {SUB3_MEMBER, SUB3_Q235, -1, kFalse},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Bolt(c.family, c.grade, c.column), c.strength) << c.family << " " << c.grade;
  }
}

// Look-ups by position: a cell in the middle, the last one, and one beyond on each side.
TEST(CodeTableLookups, CellsByPosition) {
  struct {
    const char* label;
    bool (*lookup)(int, int, double&);
    int row, column;
    double value;
  } cases[] = {
      {"l1/b1", T::SearchSub4, 1, 1, 16.5},       {"l1/b1", T::SearchSub4, 3, 2, 12.0},
      {"l1/b1", T::SearchSub4, 4, 0, kFalse},     {"l1/b1", T::SearchSub4, 0, 3, kFalse},
      {"gamma", T::SearchSub6, 0, 0, 1.05},       {"gamma", T::SearchSub6, 4, 1, 1.2},
      {"gamma", T::SearchSub6, 5, 1, 1.05},       {"gamma", T::SearchSub6, 10, 1, 1.05},
      {"gamma", T::SearchSub6, 11, 1, 1.2},       {"gamma", T::SearchSub6, 12, 0, 1.05},
      {"gamma", T::SearchSub6, 14, 1, 1.05},      {"gamma", T::SearchSub6, 15, 0, 1.2},
      {"gamma", T::SearchSub6, 17, 0, 1.2},       {"gamma", T::SearchSub6, 18, 0, 1.15},
      {"gamma", T::SearchSub6, 19, 0, 1.0},       {"gamma", T::SearchSub6, 20, 1, 1.05},
      {"gamma", T::SearchSub6, 21, 1, 1.5},       {"gamma", T::SearchSub6, 22, 0, 1.0},
      {"gamma", T::SearchSub6, 23, 0, kFalse},    {"gamma", T::SearchSub6, -1, 0, kFalse},
      {"gamma", T::SearchSub6, 0, 2, kFalse},     {"fatigue", T::SearchSub7, 0, 0, 1940},
      {"fatigue", T::SearchSub7, 0, 7, 0.41},     {"fatigue", T::SearchSub7, 1, 1, 4},
      {"fatigue", T::SearchSub7, 1, 2, 3},        {"fatigue", T::SearchSub7, 2, 0, kFalse},
      {"fatigue", T::SearchSub7, 0, 8, kFalse},   {"slip", T::SearchSub8, 1, 0, 0.35},
      {"slip", T::SearchSub8, 3, 2, 0.40},        {"slip", T::SearchSub8, 4, 0, kFalse},
      {"slip", T::SearchSub8, 0, 3, kFalse},      {"preload", T::SearchSub9, 0, 1, 125},
      {"preload", T::SearchSub9, 1, 5, 355},      {"preload", T::SearchSub9, 2, 0, kFalse},
      {"preload", T::SearchSub9, 0, 6, kFalse},   {"tapered", T::SearchSub22, 0, 0, 0.428},
      {"tapered", T::SearchSub22, 7, 7, 0.969},   {"tapered", T::SearchSub22, 8, 0, kFalse},
      {"tapered", T::SearchSub22, 0, -1, kFalse}, {"area", T::SearchSub23, 4, 1, 2.45},
      {"area", T::SearchSub23, 8, 0, 7.069},      {"area", T::SearchSub23, 9, 0, kFalse},
      {"area", T::SearchSub23, 0, 2, kFalse},
  };
  for (const auto& c : cases) {
    const double got = Result<double>([&](double& v) { return c.lookup(c.row, c.column, v); });
    EXPECT_EQ(got, c.value) << c.label << " " << c.row << ", " << c.column;
  }
  int preload = 0;
  EXPECT_TRUE(T::SearchSub9(1, 2, preload));
  EXPECT_EQ(preload, 190);
  EXPECT_FALSE(T::SearchSub9(1, 6, preload));
}

TEST(CodeTableLookups, BucklingClass) {
  struct {
    int kind, axis;
    const wchar_t* result;
  } cases[] = {
      {1, 0, L"a"},  {2, 0, L"a"}, {3, 0, L"b"},  {28, 0, L"b"}, {29, 0, L"c"},
      {30, 0, L"c"}, {1, 1, L"a"}, {2, 1, L"b"},  {25, 1, L"b"}, {26, 1, L"c"},
      {30, 1, L"c"}, {0, 0, L"-"}, {31, 0, L"-"}, {1, 2, L"-"},  {1, -1, L"-"},
  };
  for (const auto& c : cases) {
    CString found = L"-";
    const bool bFound = T::SearchSub5(c.kind, c.axis, found);
    EXPECT_EQ(bFound, found != L"-");
    EXPECT_EQ(found, c.result) << c.kind << ", " << c.axis;
  }
  CString thick = L"-";
  EXPECT_FALSE(T::SearchSub5S2(0, 0, thick) || T::SearchSub5S2(7, 0, thick));
  EXPECT_FALSE(T::SearchSub5S2(1, 2, thick));
  EXPECT_TRUE(T::SearchSub5S2(2, 1, thick));
  EXPECT_EQ(thick, L"d类");
  EXPECT_TRUE(T::SearchSub5S2(6, 0, thick));
  EXPECT_EQ(thick, L"c类");
}

double PhiB(int support, int kind, int position, int range, int column) {
  return Result<double>(
      [=](double& v) { return T::SearchSub11(support, kind, position, range, column, v); });
}
double PhiB(int loadCase, int range, int column) {
  return Result<double>([=](double& v) { return T::SearchSub11_1(loadCase, range, column, v); });
}
double PhiBOf(int loadCase, double iNumber, double length) {
  return Result<double>([=](double& v) { return T::SearchSub11_1(loadCase, iNumber, length, v); });
}

TEST(CodeTableLookups, RolledBeam) {
  // Table B.2 read cell by cell.
  EXPECT_EQ(PhiB(0, 0, 0, 0, 0), 2.0);
  EXPECT_EQ(PhiB(0, 0, 0, 2, 6), 0.50);  // 36~63, upper, 8 m
  EXPECT_EQ(PhiB(0, 0, 1, 3, 1), 2.80);  // 22~40, concentrated lower, 3 m
  EXPECT_EQ(PhiB(0, 1, 0, 4, 6), 0.44);  // 45~63, uniform upper, 8 m
  EXPECT_EQ(PhiB(0, 1, 1, 0, 8), 0.42);
  EXPECT_EQ(PhiB(1, 2, 2, 4, 0), 4.0);
  // ranges of another load case, selectors that do not go together, a column too many
  for (const double refused : {PhiB(0, 0, 0, 3, 0), PhiB(0, 0, 1, 1, 0), PhiB(1, 2, 2, 2, 0),
                               PhiB(1, 0, 0, 0, 0), PhiB(0, 2, 2, 0, 0), PhiB(1, 2, 1, 0, 0),
                               PhiB(2, 2, 2, 0, 0), PhiB(0, 0, 0, 0, 9), PhiB(0, 0, 0, 0, -1)}) {
    EXPECT_EQ(refused, kFalse);
  }
  // The same rows by load case.
  EXPECT_EQ(PhiB(1, 1, 3), 0.86);
  EXPECT_EQ(PhiB(2, 4, 8), 0.60);
  EXPECT_EQ(PhiB(3, 0, 2), 0.84);
  EXPECT_EQ(PhiB(5, 3, 4), 0.76);
  EXPECT_EQ(PhiB(0, 0, 0), kFalse);
  EXPECT_EQ(PhiB(6, 0, 0), kFalse);
  EXPECT_EQ(PhiB(2, 2, 0), kFalse);
}

TEST(CodeTableLookups, RolledBeamByNumbers) {
  const int kFirstNumber[2][3] = {{10, 22, 36}, {10, 22, 45}};
  const int kLastNumber[2][3] = {{20, 32, 63}, {20, 40, 63}};
  for (int row = 0; row < 15; ++row) {
    const int loadCase = row / 3 + 1;
    for (int column = 0; column < 9; ++column) {
      const auto& table = T::g_sub11[row];
      const int own = loadCase == 1 ? 0 : 1;
      EXPECT_EQ(PhiBOf(loadCase, kFirstNumber[own][row % 3], 2.0 + column), table[column]);
      EXPECT_EQ(PhiBOf(loadCase, kLastNumber[own][row % 3], 2.0 + column), table[column]);
      if (column == 0) continue;
      EXPECT_NEAR(PhiBOf(loadCase, kFirstNumber[own][row % 3], 1.75 + column),
                  0.25 * table[column - 1] + 0.75 * table[column], 1e-12);
    }
  }
  for (const double refused :
       {PhiBOf(1, 34.0, 5.0), PhiBOf(2, 42.0, 5.0), PhiBOf(1, 8.0, 5.0), PhiBOf(1, 64.0, 5.0),
        PhiBOf(1, 20.0, 1.99), PhiBOf(1, 20.0, 10.01), PhiBOf(0, 20.0, 5.0), PhiBOf(6, 20.0, 5.0),
        PhiBOf(1, kNaN, 5.0), PhiBOf(1, 20.0, kNaN)}) {
    EXPECT_EQ(refused, kFalse);
  }
}

double Phi(double lambda, double fy, int bucklingClass) {
  return Result<double>([=](double& v) { return T::SearchSub12(lambda, fy, bucklingClass, v); });
}

// Printed values of Tables C-1 to C-4 at lambda sqrt(fy / 235).
TEST(CodeTableLookups, StabilityFactor) {
  struct {
    int bucklingClass;
    double lambda, phi;
  } cases[] = {
      {0, 0, 1.000},   {0, 10, 0.995},  {0, 50, 0.916}, {0, 100, 0.638}, {0, 150, 0.339},
      {1, 20, 0.970},  {1, 50, 0.856},  {1, 80, 0.688}, {1, 100, 0.555}, {1, 120, 0.437},
      {1, 150, 0.308}, {1, 200, 0.186}, {2, 20, 0.966}, {2, 50, 0.775},  {2, 80, 0.578},
      {2, 100, 0.463}, {2, 150, 0.280}, {3, 20, 0.937}, {3, 50, 0.690},  {3, 100, 0.394},
      {3, 150, 0.248},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(Phi(c.lambda, 235, c.bucklingClass), c.phi, 0.00051) << c.lambda;
    EXPECT_NEAR(Phi(c.lambda * std::sqrt(235.0 / 345), 345, c.bucklingClass), c.phi, 0.00051);
  }
  EXPECT_EQ(Phi(100, 235, 4), kFalse);
  EXPECT_EQ(Phi(100, 235, -1), kFalse);
  EXPECT_EQ(Phi(-1, 235, 0), kFalse);
  EXPECT_EQ(Phi(kNaN, 235, 0), kFalse);
  EXPECT_EQ(Phi(100, kInfinity, 0), kFalse);
}

// Either side of the limits lambda-n = 0.215 (all classes) and 1.05 (classes c and d), by hand from
// (C-1) and (C-2). Class a below 0.215: 1 - 0.41 0.215^2 = 0.981048; above: s = 0.986 +
// 0.152 0.215 + 0.046225 = 1.064905, phi = (s - sqrt(s^2 - 0.1849)) / 0.09245 = 0.980808.
// Class c up to 1.05: s = 0.906 + 0.595 1.05 + 1.1025 = 2.63325, phi = (s - sqrt(s^2 - 4.41))
// / 2.205 = 0.473713; above: s = 1.216 + 0.302 1.05 + 1.1025 = 2.6356, phi = 0.473014. Class d: s =
// 0.868 + 0.915 1.05 + 1.1025 = 2.93125, phi = 0.401905; above: 1.375 + 0.432 1.05 + 1.1025
// = 2.9311, phi = 0.401935.
TEST(CodeTableLookups, StabilityFactorAtTheLimits) {
  const double toLambda = std::numbers::pi * std::sqrt(206000.0 / 235);
  struct {
    int bucklingClass;
    double lambdaN, phi;
  } cases[] = {{0, 0.215 - 1e-8, 0.981048}, {0, 0.215 + 1e-8, 0.980808},
               {2, 1.05 - 1e-8, 0.473713},  {2, 1.05 + 1e-8, 0.473014},
               {3, 1.05 - 1e-8, 0.401905},  {3, 1.05 + 1e-8, 0.401935}};
  for (const auto& c : cases) {
    EXPECT_NEAR(Phi(c.lambdaN * toLambda, 235, c.bucklingClass), c.phi, 2e-6) << c.lambdaN;
  }
}

using CTwoNumbers = bool (*)(double, double, double&);

double At(CTwoNumbers lookup, double row, double column) {
  return Result<double>([=](double& v) { return lookup(row, column, v); });
}

// On the grid, at the middle of every mesh and of every edge.
template <std::size_t ROWS, std::size_t COLUMNS>
void ExpectBilinear(CTwoNumbers lookup, const double (&rows)[ROWS],
                    const double (&columns)[COLUMNS], const double (&table)[ROWS][COLUMNS]) {
  for (std::size_t i = 0; i < ROWS; ++i) {
    for (std::size_t j = 0; j < COLUMNS; ++j) {
      const double x = rows[i];
      const double z = columns[j];
      EXPECT_EQ(At(lookup, x, z), table[i][j]);
      if (i == 0 || j == 0) continue;
      const double xMiddle = (x + rows[i - 1]) / 2;
      const double zMiddle = (z + columns[j - 1]) / 2;
      const double alongZ = (table[i][j] + table[i][j - 1]) / 2;
      const double alongX = (table[i][j] + table[i - 1][j]) / 2;
      EXPECT_NEAR(At(lookup, x, zMiddle), alongZ, 1e-12);
      EXPECT_NEAR(At(lookup, xMiddle, z), alongX, 1e-12);
      EXPECT_NEAR(At(lookup, xMiddle, zMiddle),
                  (alongZ + (table[i - 1][j] + table[i - 1][j - 1]) / 2) / 2, 1e-12);
    }
  }
}

TEST(CodeTableLookups, ColumnsByNumbers) {
  ExpectBilinear(T::SearchSub16, orv3::kFrameK, orv3::kFrameK, T::g_sub16);
  ExpectBilinear(T::SearchSub17, orv3::kFrameK, orv3::kFrameK, T::g_sub17);
  ExpectBilinear(T::SearchSub18, orv3::kSingleEta1, orv3::kSingleK1, T::g_sub18);
  ExpectBilinear(T::SearchSub19, orv3::kSingleEta1, orv3::kSingleK1, T::g_sub19);
}

TEST(CodeTableLookups, ColumnsBeyondTheGrid) {
  EXPECT_EQ(At(T::SearchSub16, 10, 10), 0.549);
  EXPECT_EQ(At(T::SearchSub16, 25, 40), 0.549);
  EXPECT_EQ(At(T::SearchSub16, kInfinity, 0), 0.732);
  EXPECT_EQ(At(T::SearchSub16, -1, -1), 1.0);
  EXPECT_EQ(At(T::SearchSub17, 0, 0), 0.0);  // stored for infinity
  EXPECT_NEAR(At(T::SearchSub17, 0, 12), 2.03, 0);
  EXPECT_NEAR(At(T::SearchSub17, 10.0000005, 9.9999995), 1.03, 0);  // within the tolerance
  EXPECT_EQ(At(T::SearchSub18, 5, 2), 10.24);
  EXPECT_EQ(At(T::SearchSub18, 0.1, 0.01), 2.0);
  EXPECT_EQ(At(T::SearchSub16, kNaN, 1), kFalse);
  EXPECT_EQ(At(T::SearchSub19, 1, kNaN), kFalse);
}

TEST(CodeTableLookups, ColumnsByPosition) {
  double mu = 0;
  EXPECT_TRUE(T::SearchSub16(Sub16_Style1{7}, Sub16_Style1{0}, mu));
  EXPECT_EQ(mu, 0.875);  // K1 = 1, K2 = 0
  EXPECT_TRUE(T::SearchSub17(Sub16_Style1{12}, Sub16_Style1{12}, mu));
  EXPECT_EQ(mu, 1.03);
  EXPECT_TRUE(T::SearchSub18(Sub18_Style1{0}, Sub18_Style2{17}, mu));
  EXPECT_EQ(mu, 2.07);
  EXPECT_TRUE(T::SearchSub19(Sub18_Style1{8}, Sub18_Style2{3}, mu));
  EXPECT_EQ(mu, 2.0);  // eta1 = 1 makes one column of both parts
  EXPECT_FALSE(T::SearchSub16(Sub16_Style1{13}, Sub16_Style1{0}, mu));
  EXPECT_FALSE(T::SearchSub17(Sub16_Style1{0}, Sub16_Style1{-1}, mu));
  EXPECT_FALSE(T::SearchSub18(Sub18_Style1{19}, Sub18_Style2{0}, mu));
  EXPECT_FALSE(T::SearchSub19(Sub18_Style1{0}, Sub18_Style2{18}, mu));
  EXPECT_FALSE(
      T::SearchSub20(Sub20_Style1{7}, Sub20_Style2{0}, Sub20_Style3{0}, Sub20_Style4{0}, mu));
  EXPECT_FALSE(
      T::SearchSub20(Sub20_Style1{0}, Sub20_Style2{6}, Sub20_Style3{0}, Sub20_Style4{0}, mu));
  EXPECT_FALSE(
      T::SearchSub21(Sub20_Style1{0}, Sub20_Style2{0}, Sub20_Style3{4}, Sub20_Style4{0}, mu));
  EXPECT_FALSE(
      T::SearchSub21(Sub20_Style1{0}, Sub20_Style2{0}, Sub20_Style3{0}, Sub20_Style4{11}, mu));
  EXPECT_EQ(mu, 2.0);
}

double Mu3(bool bFree, double eta1, double eta2, double k1, double k2) {
  return Result<double>([=](double& v) {
    return bFree ? T::SearchSub20(eta1, eta2, k1, k2, v) : T::SearchSub21(eta1, eta2, k1, k2, v);
  });
}

TEST(CodeTableLookups, DoubleSteppedColumnsOnTheGrid) {
  using orv3::kDoubleEta1, orv3::kDoubleEta2, orv3::kDoubleK1, orv3::kDoubleK2;
  for (int n = 0; n < 7 * 6 * 4 * 11; ++n) {
    const int i1 = n / (6 * 4 * 11), i2 = n / (4 * 11) % 6, j1 = n / 11 % 4, j2 = n % 11;
    double cell = 0;
    EXPECT_TRUE(T::SearchSub20(Sub20_Style1{i1}, Sub20_Style2{i2}, Sub20_Style3{j1},
                               Sub20_Style4{j2}, cell));
    EXPECT_EQ(cell, T::g_sub201[6 * i1 + i2][11 * j1 + j2]);
    EXPECT_EQ(Mu3(true, kDoubleEta1[i1], kDoubleEta2[i2], kDoubleK1[j1], kDoubleK2[j2]), cell);
    EXPECT_EQ(T::GetU3Temp(i1, i2, kDoubleK1[j1], kDoubleK2[j2]), cell);
    EXPECT_TRUE(T::SearchSub21(Sub20_Style1{i1}, Sub20_Style2{i2}, Sub20_Style3{j1},
                               Sub20_Style4{j2}, cell));
    EXPECT_EQ(cell, T::g_sub211[6 * i1 + i2][11 * j1 + j2]);
    EXPECT_EQ(Mu3(false, kDoubleEta1[i1], kDoubleEta2[i2], kDoubleK1[j1], kDoubleK2[j2]), cell);
    EXPECT_EQ(T::GetU3Temp2(i1, i2, kDoubleK1[j1], kDoubleK2[j2]), cell);
  }
}

// The middle of a mesh in all four directions is the mean of its sixteen corners.
TEST(CodeTableLookups, DoubleSteppedColumnsBetweenTheGrid) {
  for (const bool bFree : {true, false}) {
    double sum = 0;
    for (int n = 0; n < 16; ++n) {
      sum += Mu3(bFree, n & 1 ? 1.4 : 1.6, n & 2 ? 0.6 : 0.8, n & 4 ? 0.1 : 0.2, n & 8 ? 0.9 : 1.0);
    }
    EXPECT_NEAR(Mu3(bFree, 1.5, 0.7, 0.15, 0.95), sum / 16, 1e-12);
    EXPECT_NEAR(Mu3(bFree, 0.25, 0.4, 0.3, 1.2),
                0.75 * Mu3(bFree, 0.2, 0.4, 0.3, 1.2) + 0.25 * Mu3(bFree, 0.4, 0.4, 0.3, 1.2),
                1e-12);
    for (const double refused :
         {Mu3(bFree, 0.19, 0.4, 0.1, 0.5), Mu3(bFree, 1.81, 0.4, 0.1, 0.5),
          Mu3(bFree, 1.0, 1.21, 0.1, 0.5), Mu3(bFree, 1.0, 0.4, 0.04, 0.5),
          Mu3(bFree, 1.0, 0.4, 0.31, 0.5), Mu3(bFree, 1.0, 0.4, 0.1, 1.3),
          Mu3(bFree, kNaN, 0.4, 0.1, 0.5), Mu3(bFree, 1.0, 0.4, 0.1, kNaN)}) {
      EXPECT_EQ(refused, kFalse);
    }
  }
  EXPECT_THROW(T::GetU3Temp(9, 0, 0.1, 0.5), CInvalidArgException);
  EXPECT_THROW(T::GetU3Temp2(0, -1, 0.1, 0.5), CInvalidArgException);
  EXPECT_TRUE(std::isnan(T::GetU3Temp(0, 0, kNaN, 0.5)));
  EXPECT_EQ(T::GetU3Temp(0, 0, 0.01, 5), T::GetU3Temp(0, 0, 0.05, 1.2));
}

TEST(CodeTableLookups, StraightLines) {
  EXPECT_DOUBLE_EQ(T::DispersionForOne(1, 10, 3, 20, 1.5), 12.5);
  EXPECT_EQ(T::DispersionForOne(1, 0.1, 3, 0.7, 3), 0.7);
  // Levels z 10 and 20; at x = 1.5: 12.5 on the lower, 32.5 on the upper; at z = 14: 20.5.
  EXPECT_DOUBLE_EQ(T::DispersionForTwo(1, 10, 30, 3, 20, 40, 10, 20, 1.5, 14), 20.5);
}

}  // namespace
