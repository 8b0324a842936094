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
int SteelOf(int grade, double t) {
  return Result<int>([=](int& v) { return T::SearchSub1(grade, t, SUB1_F, v); });
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

// The row of a selector in a table of rows, -1 outside of it.
template <std::size_t N>
int RowOf(const int (&rows)[N], int selector) {
  return selector >= 0 && selector < static_cast<int>(N) ? rows[selector] : -1;
}

// Tables 3.4.1-1 and 3.4.1-3 by grade and thickness group; fce and ffw are one to a grade.
TEST(CodeTableLookups, SteelAndWeldStrength) {
  constexpr int kRows[4][7] = {{0, 1, 2, 3, -1, -1, -1},
                               {4, -1, -1, -1, 5, 6, 7},
                               {8, -1, -1, -1, 9, 10, 11},
                               {12, -1, -1, -1, 13, 14, 15}};
  constexpr int kFce[] = {325, 400, 415, 440}, kFfw[] = {160, 200, 220, 220};
  for (int grade = -1; grade <= 4; ++grade) {
    for (int group = -1; group <= 7; ++group) {
      SCOPED_TRACE(testing::Message() << grade << " " << group);
      const int row = grade < 0 || grade > 3 ? -1 : RowOf(kRows[grade], group);
      const auto expected = [row](auto strength) {
        return row < 0 ? kFalse : static_cast<int>(strength());
      };
      for (const int kind : {0, 1})
        EXPECT_EQ(Steel(grade, group, kind), expected([=] { return T::g_sub1[row][kind]; }));
      EXPECT_EQ(Steel(grade, group, SUB1_FCE), expected([=] { return kFce[grade]; }));
      for (const int kind : {0, 1, 2, 3})
        EXPECT_EQ(Weld(grade, group, kind), expected([=] { return T::g_sub2[row][kind]; }));
      EXPECT_EQ(Weld(grade, group, SUB2_FFW), expected([=] { return kFfw[grade]; }));
      for (const int refused : {Steel(grade, group, -1), Steel(grade, group, 3),
                                Weld(grade, group, -1), Weld(grade, group, 5)})
        EXPECT_EQ(refused, kFalse);
    }
  }
}

// Table 3.4.1-4 by family and grade; the code leaves cells empty, which count 0.
TEST(CodeTableLookups, BoltStrength) {
  constexpr int kRows[4][8] = {{0, 1, 2, -1, -1, -1, -1, -1},
                               {-1, -1, -1, -1, 3, 4, -1, -1},
                               {-1, -1, 5, 6, -1, -1, -1, -1},
                               {-1, -1, -1, -1, 7, 8, 9, 10}};
  for (int family = -1; family <= 4; ++family) {
    for (int grade = -1; grade <= 8; ++grade) {
      const int row = family < 0 || family > 3 ? -1 : RowOf(kRows[family], grade);
      for (int column = 0; column < 10; ++column) {
        EXPECT_EQ(Bolt(family, grade, column),
                  row < 0 ? kFalse : orv3::ToDouble(T::g_sub3[row][column]))
            << family << " " << grade << " " << column;
      }
      EXPECT_EQ(Bolt(family, grade, -1), kFalse);
      EXPECT_EQ(Bolt(family, grade, 10), kFalse);
    }
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
  for (const auto& c : cases) EXPECT_EQ(SteelOf(c.grade, c.t), c.strength) << c.t;
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

double Number(double cell) { return cell; }
double Number(const wchar_t* cell) { return orv3::ToDouble(cell); }

// Every position has its cell; there is none beyond.
template <class LOOKUP, class CELL, int ROWS, int COLUMNS>
void ExpectCells(LOOKUP lookup, const CELL (&table)[ROWS][COLUMNS], const char* label) {
  for (int i = -1; i <= ROWS; ++i) {
    for (int j = -1; j <= COLUMNS; ++j) {
      const bool inside = i >= 0 && i < ROWS && j >= 0 && j < COLUMNS;
      EXPECT_EQ(Result<double>([&](double& v) { return lookup(i, j, v); }),
                inside ? Number(table[i][j]) : kFalse)
          << label << " " << i << ", " << j;
    }
  }
}

TEST(CodeTableLookups, CellsByPosition) {
  using CPlain = bool (*)(int, int, double&);
  ExpectCells(T::SearchSub4, T::g_sub4, "l1/b1");
  ExpectCells(T::SearchSub7, T::g_sub7, "fatigue");
  ExpectCells(T::SearchSub8, T::g_sub8, "slip");
  ExpectCells(static_cast<CPlain>(T::SearchSub9), T::g_sub9, "preload");
  ExpectCells(T::SearchSub22, T::g_sub22, "tapered");
  ExpectCells(T::SearchSub23, T::g_sub23, "area");
  const auto frame = [](auto lookup) {
    return [=](int i, int j, double& v) { return lookup(Sub16_Style1{i}, Sub16_Style1{j}, v); };
  };
  const auto single = [](auto lookup) {
    return [=](int i, int j, double& v) { return lookup(Sub18_Style1{i}, Sub18_Style2{j}, v); };
  };
  using CFrame = bool (*)(Sub16_Style1, Sub16_Style1, double&);
  using CSingle = bool (*)(Sub18_Style1, Sub18_Style2, double&);
  ExpectCells(frame(static_cast<CFrame>(T::SearchSub16)), T::g_sub16, "D-1");
  ExpectCells(frame(static_cast<CFrame>(T::SearchSub17)), T::g_sub17, "D-2");
  ExpectCells(single(static_cast<CSingle>(T::SearchSub18)), T::g_sub18, "D-3");
  ExpectCells(single(static_cast<CSingle>(T::SearchSub19)), T::g_sub19, "D-4");
  int preload = 0;
  EXPECT_TRUE(T::SearchSub9(1, 2, preload));
  EXPECT_EQ(preload, 190);
  EXPECT_FALSE(T::SearchSub9(1, 6, preload));
}

// Table 5.2.1 by kind of section.
TEST(CodeTableLookups, PlasticFactorGamma) {
  constexpr double kX[] = {1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05,
                           1.05, 1.05, 1.05, 1.2,  1.2,  1.2,  1.15, 1.0,  1.0,  1.0,  1.0};
  constexpr double kY[] = {1.2, 1.2,  1.2,  1.2, 1.2, 1.05, 1.05, 1.05, 1.05, 1.05, 1.05, 1.2,
                           1.2, 1.05, 1.05, 1.2, 1.2, 1.2,  1.15, 1.05, 1.05, 1.5,  1.5};
  double table[23][2];
  for (int kind = 0; kind < 23; ++kind) {
    table[kind][0] = kX[kind];
    table[kind][1] = kY[kind];
  }
  ExpectCells(T::SearchSub6, table, "gamma");
}

TEST(CodeTableLookups, BucklingClass) {
  // Table 5.1.2-1: kinds 1 to 30, about x and about y.
  const std::string classes[] = {"aa" + std::string(26, 'b') + "cc",
                                 "a" + std::string(24, 'b') + "ccccc"};
  for (int kind = 0; kind <= 31; ++kind) {
    for (int axis = -1; axis <= 2; ++axis) {
      const bool inside = kind >= 1 && kind <= 30 && (axis == 0 || axis == 1);
      CString found = L"-";
      EXPECT_EQ(T::SearchSub5(kind, axis, found), inside);
      EXPECT_EQ(orv3::ToUtf8(found),
                inside ? classes[axis].substr(static_cast<std::size_t>(kind - 1), 1) : "-")
          << kind << ", " << axis;
    }
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

// Table B.2: five load cases, each named by three selectors, with three ranges of I numbers each;
// those of the first case are 0, 1, 2 and those of the others 0, 3, 4.
constexpr struct CBeamCase {
  int support, kind, position;
  int ranges[3];
  int first[3], last[3];  // I numbers
} kBeamCases[] = {{0, 0, 0, {0, 1, 2}, {10, 22, 36}, {20, 32, 63}},
                  {0, 0, 1, {0, 3, 4}, {10, 22, 45}, {20, 40, 63}},
                  {0, 1, 0, {0, 3, 4}, {10, 22, 45}, {20, 40, 63}},
                  {0, 1, 1, {0, 3, 4}, {10, 22, 45}, {20, 40, 63}},
                  {1, 2, 2, {0, 3, 4}, {10, 22, 45}, {20, 40, 63}}};

TEST(CodeTableLookups, RolledBeam) {
  for (int n = 0; n < 15; ++n) {
    const CBeamCase& c = kBeamCases[n / 3];
    const int loadCase = n / 3 + 1, range = c.ranges[n % 3];
    const auto& row = T::g_sub11[n];
    for (int column = 0; column < 9; ++column) {
      SCOPED_TRACE(testing::Message() << "row " << n << " column " << column);
      EXPECT_EQ(PhiB(c.support, c.kind, c.position, range, column), row[column]);
      EXPECT_EQ(PhiB(loadCase, range, column), row[column]);
      EXPECT_EQ(PhiBOf(loadCase, c.first[n % 3], 2.0 + column), row[column]);
      EXPECT_EQ(PhiBOf(loadCase, c.last[n % 3], 2.0 + column), row[column]);
      if (column == 0) continue;
      EXPECT_NEAR(PhiBOf(loadCase, c.first[n % 3], 1.75 + column),
                  0.25 * row[column - 1] + 0.75 * row[column], 1e-12);
    }
  }
  // Ranges of another load case, selectors that do not go together, columns, numbers and lengths
  // outside.
  for (const double refused :
       {PhiB(0, 0, 0, 3, 0),   PhiB(0, 0, 1, 1, 0),    PhiB(1, 2, 2, 2, 0),  PhiB(1, 0, 0, 0, 0),
        PhiB(0, 2, 2, 0, 0),   PhiB(1, 2, 1, 0, 0),    PhiB(2, 2, 2, 0, 0),  PhiB(0, 0, 0, 0, 9),
        PhiB(0, 0, 0, 0, -1),  PhiB(0, 0, 0),          PhiB(6, 0, 0),        PhiB(2, 2, 0),
        PhiBOf(1, 34.0, 5.0),  PhiBOf(2, 42.0, 5.0),   PhiBOf(1, 8.0, 5.0),  PhiBOf(1, 64.0, 5.0),
        PhiBOf(1, 20.0, 1.99), PhiBOf(1, 20.0, 10.01), PhiBOf(0, 20.0, 5.0), PhiBOf(6, 20.0, 5.0),
        PhiBOf(1, kNaN, 5.0),  PhiBOf(1, 20.0, kNaN)}) {
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

double Mu3(bool bFree, double eta1, double eta2, double k1, double k2) {
  return Result<double>([=](double& v) {
    return bFree ? T::SearchSub20(eta1, eta2, k1, k2, v) : T::SearchSub21(eta1, eta2, k1, k2, v);
  });
}

double Cell3(bool bFree, int eta1, int eta2, int k1, int k2) {
  return Result<double>([=](double& v) {
    const auto lookup = [&](auto search) {
      return search(Sub20_Style1{eta1}, Sub20_Style2{eta2}, Sub20_Style3{k1}, Sub20_Style4{k2}, v);
    };
    using CLookup = bool (*)(Sub20_Style1, Sub20_Style2, Sub20_Style3, Sub20_Style4, double&);
    return bFree ? lookup(static_cast<CLookup>(T::SearchSub20))
                 : lookup(static_cast<CLookup>(T::SearchSub21));
  });
}

TEST(CodeTableLookups, DoubleSteppedColumnsOnTheGrid) {
  using orv3::kDoubleEta1, orv3::kDoubleEta2, orv3::kDoubleK1, orv3::kDoubleK2;
  for (const bool bFree : {true, false}) {
    const auto& table = bFree ? T::g_sub201 : T::g_sub211;
    const auto across = bFree ? T::GetU3Temp : T::GetU3Temp2;
    for (int n = 0; n < 7 * 6 * 4 * 11; ++n) {
      const int i1 = n / (6 * 4 * 11), i2 = n / (4 * 11) % 6, j1 = n / 11 % 4, j2 = n % 11;
      const double cell = table[6 * i1 + i2][11 * j1 + j2];
      EXPECT_EQ(Cell3(bFree, i1, i2, j1, j2), cell);
      EXPECT_EQ(Mu3(bFree, kDoubleEta1[i1], kDoubleEta2[i2], kDoubleK1[j1], kDoubleK2[j2]), cell);
      EXPECT_EQ(across(i1, i2, kDoubleK1[j1], kDoubleK2[j2]), cell);
    }
    for (const double refused : {Cell3(bFree, 7, 0, 0, 0), Cell3(bFree, 0, 6, 0, 0),
                                 Cell3(bFree, 0, 0, 4, 0), Cell3(bFree, 0, 0, 0, 11)}) {
      EXPECT_EQ(refused, kFalse);
    }
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
