// Effective length of single-stepped columns: GB 50017-2003, Tables D-3 and D-4.
#include "catalogue/code_tables/grids.h"
#include "catalogue/code_tables/interpolation.h"
#include "catalogue/code_tables/table_search.h"

// eta1 = H1/H2 * sqrt(N1/N2 * I2/I1) and K1 = I1/I2 * H2/H1.
constexpr const wchar_t* CTableSearch::g_sub18_1[19] = {
    L"0.2", L"0.3", L"0.4", L"0.5", L"0.6", L"0.7", L"0.8", L"0.9", L"1.0", L"1.2",
    L"1.4", L"1.6", L"1.8", L"2.0", L"2.2", L"2.4", L"2.6", L"2.8", L"3.0"};
constexpr const wchar_t* CTableSearch::g_sub18_2[18] = {
    L"0.06", L"0.08", L"0.10", L"0.12", L"0.14", L"0.16", L"0.18", L"0.20", L"0.22",
    L"0.24", L"0.26", L"0.28", L"0.3",  L"0.4",  L"0.5",  L"0.6",  L"0.7",  L"0.8"};

namespace {

bool SteppedCell(const double (&table)[19][18], Sub18_Style1 eta1, Sub18_Style2 k1,
                 double& mu2) noexcept {
  if (!orv3::InRange(eta1, 19) || !orv3::InRange(k1, 18)) return false;
  mu2 = table[eta1][k1];
  return true;
}

}  // namespace

bool CTableSearch::SearchSub18(Sub18_Style1 eta1, Sub18_Style2 k1, double& mu2) {
  return SteppedCell(g_sub18, eta1, k1, mu2);
}

bool CTableSearch::SearchSub19(Sub18_Style1 eta1, Sub18_Style2 k1, double& mu2) {
  return SteppedCell(g_sub19, eta1, k1, mu2);
}

bool CTableSearch::SearchSub18(double eta1, double k1, double& mu2) {
  return orv3::SearchGrid(orv3::kSingleEta1, orv3::kSingleK1, g_sub18, eta1, k1, mu2);
}

bool CTableSearch::SearchSub19(double eta1, double k1, double& mu2) {
  return orv3::SearchGrid(orv3::kSingleEta1, orv3::kSingleK1, g_sub19, eta1, k1, mu2);
}
