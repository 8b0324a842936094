// Look-ups in the code tables: which arguments name a cell, which cell, and what lies between
// cells.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
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
int Weld(int grade, int group, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub2(grade, group, kind, v); });
}
int WeldOf(int electrode, int group, int kind) {
  return Result<int>([=](int& v) { return T::SearchSub2(electrode, 0, group, kind, v); });
}
int Bolt(int family, int grade, int column) {
  return Result<int>([=](int& v) { return T::SearchSub3(family, grade, column, v); });
}

// Tables 3.4.1-1 and 3.4.1-3; fce and ffw are one to a grade.
TEST(CodeTableLookups, SteelAndWeldStrength) {
  const struct {
    int ftw3[7];  // by group
    int fce, ffw;
  } grades[] = {{{185, 175, 170, 160, kFalse, kFalse, kFalse}, 325, 160},
                {{265, kFalse, kFalse, kFalse, 250, 225, 210}, 400, 200},
                {{300, kFalse, kFalse, kFalse, 285, 270, 250}, 415, 220},
                {{320, kFalse, kFalse, kFalse, 305, 290, 275}, 440, 220}};
  for (int grade = 0; grade < 4; ++grade) {
    const auto& g = grades[grade];
    for (int group = 0; group < 7; ++group) {
      const bool bNone = g.ftw3[group] == kFalse;
      EXPECT_EQ(Weld(grade, group, SUB2_FTW3), g.ftw3[group]) << grade << " " << group;
      EXPECT_EQ(Steel(grade, group, SUB1_FCE), bNone ? kFalse : g.fce);
      EXPECT_EQ(Weld(grade, group, SUB2_FFW), bNone ? kFalse : g.ffw);
    }
  }
  EXPECT_EQ(Steel(3, 6, SUB1_FV), 185);
  EXPECT_EQ(Weld(1, 5, SUB2_FTW12), 265);
  EXPECT_EQ(WeldOf(SUB2_E43, 1, SUB2_FTW3), 175);
  EXPECT_EQ(WeldOf(SUB2_E43, 3, SUB2_FFW), 160);
  EXPECT_EQ(WeldOf(SUB2_E50, 5, SUB2_FCW), 265);
  EXPECT_EQ(WeldOf(SUB2_E50, 6, SUB2_FFW), 200);
  for (const int refused :
       {Steel(-1, 0, 0), Steel(4, 0, 0), Steel(0, -1, 0), Steel(0, 7, 0), Steel(0, 0, -1),
        Steel(0, 0, 3), Weld(4, 0, 0), Weld(0, 0, -1), Weld(0, 0, 5), WeldOf(SUB2_E43, 4, 0),
        WeldOf(SUB2_E50, 1, 0), WeldOf(SUB2_E55, 0, 0), WeldOf(SUB2_E55, 4, 0)})
    EXPECT_EQ(refused, kFalse);
}

// Table 3.4.1-4 by family and grade: ft of each row's columns; the code leaves cells empty, which
// count 0.
TEST(CodeTableLookups, BoltStrength) {
  const struct {
    int family, grade, column, strength;
  } cases[] = {{0, 0, 0, 170}, {0, 1, 3, 210}, {0, 2, 4, 320}, {1, 4, 6, 140}, {1, 5, 6, 180},
               {2, 2, 7, 400}, {2, 3, 8, 310}, {3, 4, 2, 305}, {3, 5, 9, 590}, {3, 6, 5, 530},
               {3, 7, 9, 655}, {0, 0, 9, 0},   {3, 7, 0, 0}};
  for (const auto& c : cases)
    EXPECT_EQ(Bolt(c.family, c.grade, c.column), c.strength) << c.family << " " << c.grade;
  for (const int refused :
       {Bolt(-1, 0, 0), Bolt(4, 4, 0), Bolt(0, 3, 0), Bolt(0, -1, 0), Bolt(1, 3, 6), Bolt(1, 6, 6),
        Bolt(2, 1, 7), Bolt(2, 4, 7), Bolt(3, 3, 2), Bolt(3, 8, 2), Bolt(0, 0, -1), Bolt(0, 0, 10)})
    EXPECT_EQ(refused, kFalse);
}

// The first and the last cell of a table, as printed; there is none beyond its edges.
struct CCorners {
  const char* label;
  std::function<bool(int, int, double&)> lookup;
  int rows, columns;
  double first, last;
  double firstOfLastRow;
};

void ExpectCorners(const CCorners& c) {
  const auto at = [&c](int i, int j) {
    return Result<double>([&](double& v) { return c.lookup(i, j, v); });
  };
  EXPECT_EQ(at(0, 0), c.first) << c.label;
  EXPECT_EQ(at(c.rows - 1, c.columns - 1), c.last) << c.label;
  EXPECT_EQ(at(c.rows - 1, 0), c.firstOfLastRow) << c.label;
  for (const auto& [i, j] : {std::pair{-1, 0}, {0, -1}, {c.rows, 0}, {0, c.columns}})
    EXPECT_EQ(at(i, j), kFalse) << c.label << " " << i << ", " << j;
}

TEST(CodeTableLookups, CellsByPosition) {
  const auto frame = [](auto lookup) {
    return [=](int i, int j, double& v) { return lookup(Sub16_Style1{i}, Sub16_Style1{j}, v); };
  };
  const auto single = [](auto lookup) {
    return [=](int i, int j, double& v) { return lookup(Sub18_Style1{i}, Sub18_Style2{j}, v); };
  };
  using CPlain = bool (*)(int, int, double&);
  using CFrame = bool (*)(Sub16_Style1, Sub16_Style1, double&);
  using CSingle = bool (*)(Sub18_Style1, Sub18_Style2, double&);
  const CCorners tables[] = {
      {"l1/b1", T::SearchSub4, 4, 3, 13, 12, 9.5},
      {"fatigue", T::SearchSub7, 2, 8, 1940, 3, 4},
      {"slip", T::SearchSub8, 4, 3, 0.45, 0.4, 0.3},
      {"preload", static_cast<CPlain>(T::SearchSub9), 2, 6, 80, 355, 100},
      {"tapered", T::SearchSub22, 8, 8, 0.428, 0.969, 1.745},
      {"area", T::SearchSub23, 9, 2, 1.131, 5.61, 7.069},
      {"D-1", frame(static_cast<CFrame>(T::SearchSub16)), 13, 13, 1, 0.549, 0.732},
      {"D-2", frame(static_cast<CFrame>(T::SearchSub17)), 13, 13, 0, 1.03, 2.03},
      {"D-3", single(static_cast<CSingle>(T::SearchSub18)), 19, 18, 2, 10.24, 6.39},
      {"D-4", single(static_cast<CSingle>(T::SearchSub19)), 19, 18, 1.96, 4.61, 3.26},
  };
  for (const CCorners& table : tables) ExpectCorners(table);
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
  const auto gamma = [](int kind, int axis) {
    return Result<double>([=](double& v) { return T::SearchSub6(kind, axis, v); });
  };
  for (int kind = 0; kind < 23; ++kind) {
    EXPECT_EQ(gamma(kind, 0), kX[kind]) << kind;
    EXPECT_EQ(gamma(kind, 1), kY[kind]) << kind;
  }
  for (const double refused : {gamma(-1, 0), gamma(23, 0), gamma(0, -1), gamma(0, 2)})
    EXPECT_EQ(refused, kFalse);
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
// those of the first case are 0, 1, 2 and those of the others 0, 3, 4. phi-b at 2, 5 and 10 m.
TEST(CodeTableLookups, RolledBeam) {
  const struct {
    int loadCase, support, kind, position, range;
    int first, last;  // I numbers
    double at2, at5, at10;
  } rows[] = {
      {1, 0, 0, 0, 0, 10, 20, 2, 0.8, 0.43},    {1, 0, 0, 0, 1, 22, 32, 2.4, 0.86, 0.45},
      {1, 0, 0, 0, 2, 36, 63, 2.8, 0.83, 0.4},  {2, 0, 0, 1, 0, 10, 20, 3.1, 1.01, 0.52},
      {2, 0, 0, 1, 3, 22, 40, 5.5, 1.37, 0.56}, {2, 0, 0, 1, 4, 45, 63, 7.3, 1.62, 0.6},
      {3, 0, 1, 0, 0, 10, 20, 1.7, 0.68, 0.37}, {3, 0, 1, 0, 3, 22, 40, 2.1, 0.73, 0.36},
      {3, 0, 1, 0, 4, 45, 63, 2.6, 0.73, 0.35}, {4, 0, 1, 1, 0, 10, 20, 2.5, 0.83, 0.42},
      {4, 0, 1, 1, 3, 22, 40, 4, 1.1, 0.46},    {4, 0, 1, 1, 4, 45, 63, 5.6, 1.25, 0.49},
      {5, 1, 2, 2, 0, 10, 20, 2.2, 0.79, 0.42}, {5, 1, 2, 2, 3, 22, 40, 3, 0.96, 0.43},
      {5, 1, 2, 2, 4, 45, 63, 4, 1.01, 0.43},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(testing::Message() << "case " << r.loadCase << ", range " << r.range);
    for (const auto& [column, phi] : {std::pair{0, r.at2}, {3, r.at5}, {8, r.at10}}) {
      EXPECT_EQ(PhiB(r.support, r.kind, r.position, r.range, column), phi);
      EXPECT_EQ(PhiB(r.loadCase, r.range, column), phi);
      EXPECT_EQ(PhiBOf(r.loadCase, r.first, 2.0 + column), phi);
      EXPECT_EQ(PhiBOf(r.loadCase, r.last, 2.0 + column), phi);
    }
  }
  // Linear between 2 and 3 m: 2 and 1.3 at the second.
  EXPECT_NEAR(PhiBOf(1, 10, 2.75), 0.25 * 2 + 0.75 * 1.3, 1e-12);
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

// Its values are in the verification manual (docs/verification/code.md).
TEST(CodeTableLookups, StabilityFactor) {
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

// On the grid, and at the middle of every mesh the mean of its corners.
template <std::size_t ROWS, std::size_t COLUMNS>
void ExpectBilinear(CTwoNumbers lookup, const double (&rows)[ROWS],
                    const double (&columns)[COLUMNS], const double (&table)[ROWS][COLUMNS]) {
  for (std::size_t i = 1; i < ROWS; ++i) {
    for (std::size_t j = 1; j < COLUMNS; ++j) {
      EXPECT_EQ(At(lookup, rows[i], columns[j]), table[i][j]);
      EXPECT_NEAR(At(lookup, (rows[i] + rows[i - 1]) / 2, (columns[j] + columns[j - 1]) / 2),
                  (table[i][j] + table[i][j - 1] + table[i - 1][j] + table[i - 1][j - 1]) / 4,
                  1e-12);
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
    const auto& table = bFree ? T::g_sub20 : T::g_sub21;  // the form whose figures are held
    const auto across = bFree ? T::GetU3Temp : T::GetU3Temp2;
    for (int n = 0; n < 7 * 6 * 4 * 11; ++n) {
      const int i1 = n / (6 * 4 * 11), i2 = n / (4 * 11) % 6, j1 = n / 11 % 4, j2 = n % 11;
      const double cell = table[6 * (j1 / 2) + i2][22 * i1 + 11 * (j1 % 2) + j2];
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
