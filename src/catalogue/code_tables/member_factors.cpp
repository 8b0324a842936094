// Factors of beams and struts: GB 50017-2003, chapters 4 to 6, Appendices B and C.
#include <cmath>
#include <numbers>

#include "catalogue/code_tables/cell_number.h"
#include "catalogue/code_tables/interpolation.h"
#include "catalogue/code_tables/table_search.h"

// Largest l1/b1: Table 4.2.1.
constexpr double CTableSearch::g_sub4[4][3] = {
    // load on the upper flange, on the lower flange, lateral support in the span
    {13.0, 20.0, 16.0},  // Q235
    {10.5, 16.5, 13.0},  // Q345
    {10.0, 15.5, 12.5},  // Q390
    {9.5, 15.0, 12.0},   // Q420
};

// Buckling class, t >= 40 mm: Table 5.1.2-2.
constexpr const wchar_t* CTableSearch::g_sub5S2[6][2] = {
    // axis x, axis y
    {L"b类", L"c类"},  // rolled I or H, t < 80 mm
    {L"c类", L"d类"},  // rolled I or H, t >= 80 mm
    {L"b类", L"b类"},  // welded I, flanges flame-cut
    {L"c类", L"d类"},  // welded I, flanges rolled or sheared
    {L"b类", L"b类"},  // welded box, width of plate over thickness > 20
    {L"c类", L"c类"},  // welded box, width of plate over thickness <= 20
};

// Plastic development factors of the eight rows of Table 5.2.1: gamma y and gamma x.
constexpr const wchar_t* CTableSearch::g_sub6[8] = {L"1.2", L"1.05", L"1.2",  L"1.05",
                                                    L"1.2", L"1.15", L"1.05", L"1.5"};
constexpr const wchar_t* CTableSearch::g_sub6_1[8] = {L"1.05", L"1.05", L"1.05", L"1.05",
                                                      L"1.2",  L"1.15", L"1.0",  L"1.0"};

// Fatigue, detail categories 1 to 8: Table 6.2.1-1.
constexpr const wchar_t* CTableSearch::g_sub7[2][8] = {
    {L"1940", L"861", L"3.26", L"2.18", L"1.47", L"0.96", L"0.65", L"0.41"},  // C, 1e12
    {L"4", L"4", L"3", L"3", L"3", L"3", L"3", L"3"},                         // beta
};

// Equivalent-moment factor: Table B.1.
constexpr double CTableSearch::g_sub10[9] = {
    0.95, 1.33, 1.09, 1.67,  // no lateral support, xi > 2.0: the rows of g_sub10_1
    1.15, 1.40, 1.75,        // one support at midspan
    1.20, 1.40,              // two and more, evenly spaced
};
constexpr const wchar_t* CTableSearch::g_sub10_1[4] = {
    // xi <= 2.0: uniform load upper, lower; concentrated load upper, lower flange
    L"0.69+0.13ξ",
    L"1.73-0.20ξ",
    L"0.73+0.18ξ",
    L"2.23-0.28ξ",
};

// phi-b of rolled I beams: Table B.2. Free length 2 to 10 m.
constexpr double CTableSearch::g_sub11[15][9] = {
    // no lateral support in the span, concentrated load on the upper flange
    {2.0, 1.30, 0.99, 0.80, 0.68, 0.58, 0.53, 0.48, 0.43},
    {2.4, 1.48, 1.09, 0.86, 0.72, 0.62, 0.54, 0.49, 0.45},
    {2.8, 1.60, 1.07, 0.83, 0.68, 0.56, 0.50, 0.45, 0.40},
    // concentrated load on the lower flange
    {3.1, 1.95, 1.34, 1.01, 0.82, 0.69, 0.63, 0.57, 0.52},
    {5.5, 2.80, 1.84, 1.37, 1.07, 0.86, 0.73, 0.64, 0.56},
    {7.3, 3.60, 2.30, 1.62, 1.20, 0.96, 0.80, 0.69, 0.60},
    // uniform load on the upper flange
    {1.7, 1.12, 0.84, 0.68, 0.57, 0.50, 0.45, 0.41, 0.37},
    {2.1, 1.30, 0.93, 0.73, 0.60, 0.51, 0.45, 0.40, 0.36},
    {2.6, 1.45, 0.97, 0.73, 0.59, 0.50, 0.44, 0.38, 0.35},
    // uniform load on the lower flange
    {2.5, 1.55, 1.08, 0.83, 0.68, 0.56, 0.52, 0.47, 0.42},
    {4.0, 2.20, 1.45, 1.10, 0.85, 0.70, 0.60, 0.52, 0.46},
    {5.6, 2.80, 1.80, 1.25, 0.95, 0.78, 0.65, 0.55, 0.49},
    // lateral support in the span, wherever the load
    {2.2, 1.39, 1.01, 0.79, 0.66, 0.57, 0.52, 0.47, 0.42},
    {3.0, 1.80, 1.24, 0.96, 0.76, 0.65, 0.56, 0.49, 0.43},
    {4.0, 2.20, 1.38, 1.01, 0.80, 0.66, 0.56, 0.49, 0.43},
};
constexpr const wchar_t* CTableSearch::g_sub11_1[15] = {
    L"10~20", L"22~32", L"36~63",  // the one load case with ranges of its own
    L"10~20", L"22~40", L"45~63", L"10~20", L"22~40", L"45~63",
    L"10~20", L"22~40", L"45~63", L"10~20", L"22~40", L"45~63",
};

namespace {

constexpr int kFreeLengths = 9;     // columns of g_sub11
constexpr double kFirstLength = 2;  // m; the columns are 1 m apart

struct CNumberRange {
  double m_first, m_last;
};
constexpr CNumberRange kFirstCaseRange[3] = {{10, 20}, {22, 32}, {36, 63}};
constexpr CNumberRange kOtherCaseRange[3] = {{10, 20}, {22, 40}, {45, 63}};

// The row of a load case (1 to 5) and range of I numbers (0 to 4), -1 when there is none.
int BeamRow(int loadCase, int range) noexcept {
  if (loadCase < 1 || loadCase > 5) return -1;
  if (loadCase == 1) return orv3::InRange(range, 3) ? range : -1;
  if (range == 0) return 3 * (loadCase - 1);
  return range == 3 || range == 4 ? 3 * (loadCase - 1) + range - 2 : -1;
}

// The row of a load case and I number, -1 when the number is within none of the case's ranges.
int BeamRow(int loadCase, double iNumber) noexcept {
  if (loadCase < 1 || loadCase > 5) return -1;
  const auto& ranges = loadCase == 1 ? kFirstCaseRange : kOtherCaseRange;
  for (int i = 0; i < 3; ++i) {
    if (iNumber >= ranges[i].m_first && iNumber <= ranges[i].m_last) return 3 * (loadCase - 1) + i;
  }
  return -1;
}

// The load case 1 to 5, 0 when the three selectors name none.
int LoadCase(int support, int loadKind, int loadPosition) noexcept {
  if (support == 0 && orv3::InRange(loadKind, 2) && orv3::InRange(loadPosition, 2)) {
    return 1 + 2 * loadKind + loadPosition;
  }
  return support == 1 && loadKind == 2 && loadPosition == 2 ? 5 : 0;
}

// Coefficients of Appendix C, (C-1) and (C-2); those of classes c and d depend on lambda-n.
struct CBucklingCurve {
  double m_alpha1, m_alpha2, m_alpha3;
};

CBucklingCurve BucklingCurve(int bucklingClass, double lambdaN) noexcept {
  const bool bStocky = lambdaN <= 1.05;
  switch (bucklingClass) {
    case 0:
      return {0.41, 0.986, 0.152};
    case 1:
      return {0.65, 0.965, 0.300};
    case 2:
      return bStocky ? CBucklingCurve{0.73, 0.906, 0.595} : CBucklingCurve{0.73, 1.216, 0.302};
    default:
      return bStocky ? CBucklingCurve{1.35, 0.868, 0.915} : CBucklingCurve{1.35, 1.375, 0.432};
  }
}

bool IsMeasure(double value) noexcept { return std::isfinite(value) && value >= 0; }

}  // namespace

bool CTableSearch::SearchSub4(int grade, int column, double& ratio) {
  if (!orv3::InRange(grade, 4) || !orv3::InRange(column, 3)) return false;
  ratio = g_sub4[grade][column];
  return true;
}

bool CTableSearch::SearchSub5(int kind, int axis, CString& bucklingClass) {
  if (kind < 1 || kind > 30 || !orv3::InRange(axis, 2)) return false;
  const int lastA = axis == 0 ? 2 : 1;
  const int lastB = axis == 0 ? 28 : 25;
  bucklingClass = kind <= lastA ? L"a" : kind <= lastB ? L"b" : L"c";
  return true;
}

bool CTableSearch::SearchSub5S2(int row, int axis, CString& bucklingClass) {
  if (row < 1 || row > 6 || !orv3::InRange(axis, 2)) return false;
  bucklingClass = g_sub5S2[row - 1][axis];
  return true;
}

bool CTableSearch::SearchSub6(int kind, int axis, double& gamma) {
  static constexpr int kLastKind[8] = {4, 10, 12, 14, 17, 18, 20, 22};  // of each group
  if (!orv3::InRange(kind, 23) || !orv3::InRange(axis, 2)) return false;
  static constexpr auto kGammaX = orv3::CellNumbers(g_sub6_1);
  static constexpr auto kGammaY = orv3::CellNumbers(g_sub6);
  std::size_t group = 0;
  while (kind > kLastKind[group]) ++group;
  gamma = axis == 0 ? kGammaX[group] : kGammaY[group];
  return true;
}

bool CTableSearch::SearchSub7(int row, int column, double& parameter) {
  if (!orv3::InRange(row, 2) || !orv3::InRange(column, 8)) return false;
  static constexpr auto kParameter = orv3::CellNumbers(g_sub7);
  parameter = kParameter[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  return true;
}

bool CTableSearch::SearchSub11(int support, int loadKind, int loadPosition, int range, int column,
                               double& phiB) {
  return SearchSub11_1(LoadCase(support, loadKind, loadPosition), range, column, phiB);
}

bool CTableSearch::SearchSub11_1(int loadCase, int range, int column, double& phiB) {
  const int row = BeamRow(loadCase, range);
  if (row < 0 || !orv3::InRange(column, kFreeLengths)) return false;
  phiB = g_sub11[row][column];
  return true;
}

bool CTableSearch::SearchSub11_1(int loadCase, double iNumber, double freeLength, double& phiB) {
  const int row = BeamRow(loadCase, iNumber);
  const double at = freeLength - kFirstLength;
  if (row < 0 || !(at >= 0 && at <= kFreeLengths - 1)) return false;
  const int upper = static_cast<int>(std::ceil(at));
  phiB = upper == at
             ? g_sub11[row][upper]
             : DispersionForOne(upper - 1, g_sub11[row][upper - 1], upper, g_sub11[row][upper], at);
  return true;
}

bool CTableSearch::SearchSub12(double lambda, double fy, int bucklingClass, double& phi) {
  if (!orv3::InRange(bucklingClass, 4) || !IsMeasure(lambda) || !IsMeasure(fy)) return false;
  constexpr double kElasticModulus = 206000;  // N/mm2
  const double lambdaN = lambda / std::numbers::pi * std::sqrt(fy / kElasticModulus);
  const CBucklingCurve curve = BucklingCurve(bucklingClass, lambdaN);
  const double square = lambdaN * lambdaN;
  if (lambdaN <= 0.215) {
    phi = 1 - curve.m_alpha1 * square;
  } else {
    const double s = curve.m_alpha2 + curve.m_alpha3 * lambdaN + square;
    phi = (s - std::sqrt(s * s - 4 * square)) / (2 * square);
  }
  return true;
}
