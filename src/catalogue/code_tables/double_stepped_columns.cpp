// Effective length of double-stepped columns: GB 50017-2003, Tables D-5 and D-6.
#include <limits>

#include "catalogue/code_tables/grids.h"
#include "catalogue/code_tables/interpolation.h"
#include "catalogue/code_tables/table_search.h"
#include "framework/exception.h"

namespace {

using orv3::kDoubleEta1;
using orv3::kDoubleEta2;
using orv3::kDoubleK1;
using orv3::kDoubleK2;
using Printed = double[42][44];
using Continued = double[12][198];

bool PrintedCell(const Printed& table, int eta1, int eta2, int k1, int k2, double& mu3) noexcept {
  if (!orv3::InRange(eta1, 7) || !orv3::InRange(eta2, 6)) return false;
  if (!orv3::InRange(k1, 4) || !orv3::InRange(k2, 11)) return false;
  mu3 = table[6 * eta1 + eta2][11 * k1 + k2];
  return true;
}

// Bilinear in K1 and K2 at the grid positions eta1 and eta2.
double AtEta(const Continued& table, std::size_t eta1, std::size_t eta2, const orv3::CGridPlace& k1,
             const orv3::CGridPlace& k2) {
  const auto row = [&](std::size_t i) {
    return std::span(table[6 * (i / 2) + eta2]).subspan(22 * eta1 + 11 * (i % 2), 11);
  };
  const auto lower = row(k1.m_lower);
  const auto upper = row(k1.m_upper);
  const auto along = [&](std::size_t j) { return orv3::Between(k1, lower[j], upper[j]); };
  return orv3::Between(k2, along(k2.m_lower), along(k2.m_upper));
}

double AtEta(const Continued& table, int eta1, int eta2, double k1, double k2) {
  orv3::CheckIndex("eta1 of a double-stepped column", eta1, std::size(kDoubleEta1));
  orv3::CheckIndex("eta2 of a double-stepped column", eta2, std::size(kDoubleEta2));
  if (std::isnan(k1) || std::isnan(k2)) return std::numeric_limits<double>::quiet_NaN();
  return AtEta(table, static_cast<std::size_t>(eta1), static_cast<std::size_t>(eta2),
               orv3::PlaceOn(kDoubleK1, k1), orv3::PlaceOn(kDoubleK2, k2));
}

bool Interpolated(const Continued& table, double eta1, double eta2, double k1, double k2,
                  double& mu3) {
  if (!orv3::Spans(kDoubleEta1, eta1) || !orv3::Spans(kDoubleEta2, eta2)) return false;
  if (!orv3::Spans(kDoubleK1, k1) || !orv3::Spans(kDoubleK2, k2)) return false;
  const orv3::CGridPlace atK1 = orv3::PlaceOn(kDoubleK1, k1);
  const orv3::CGridPlace atK2 = orv3::PlaceOn(kDoubleK2, k2);
  const auto cell = [&](std::size_t i, std::size_t j) { return AtEta(table, i, j, atK1, atK2); };
  mu3 = orv3::ValueAt(cell, orv3::PlaceOn(kDoubleEta1, eta1), orv3::PlaceOn(kDoubleEta2, eta2));
  return true;
}

}  // namespace

bool CTableSearch::SearchSub20(Sub20_Style1 eta1, Sub20_Style2 eta2, Sub20_Style3 k1,
                               Sub20_Style4 k2, double& mu3) {
  return PrintedCell(g_sub201, eta1, eta2, k1, k2, mu3);
}

bool CTableSearch::SearchSub21(Sub20_Style1 eta1, Sub20_Style2 eta2, Sub20_Style3 k1,
                               Sub20_Style4 k2, double& mu3) {
  return PrintedCell(g_sub211, eta1, eta2, k1, k2, mu3);
}

bool CTableSearch::SearchSub20(double eta1, double eta2, double k1, double k2, double& mu3) {
  return DispersionSearchSub20(eta1, eta2, k1, k2, mu3);
}

bool CTableSearch::SearchSub21(double eta1, double eta2, double k1, double k2, double& mu3) {
  return DispersionSearchSub21(eta1, eta2, k1, k2, mu3);
}

bool CTableSearch::DispersionSearchSub20(double eta1, double eta2, double k1, double k2,
                                         double& mu3) {
  return Interpolated(g_sub20, eta1, eta2, k1, k2, mu3);
}

bool CTableSearch::DispersionSearchSub21(double eta1, double eta2, double k1, double k2,
                                         double& mu3) {
  return Interpolated(g_sub21, eta1, eta2, k1, k2, mu3);
}

double CTableSearch::GetU3Temp(int eta1, int eta2, double k1, double k2) {
  return AtEta(g_sub20, eta1, eta2, k1, k2);
}

double CTableSearch::GetU3Temp2(int eta1, int eta2, double k1, double k2) {
  return AtEta(g_sub21, eta1, eta2, k1, k2);
}
