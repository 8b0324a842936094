// The geometry members of the facade.
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "sections/geometry/families.h"
#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

namespace {

bool Take(const std::optional<double>& value, double& out) {
  if (value) out = *value;
  return value.has_value();
}

double ValueOr0(const CDataItem& row, CSource CFamily::*source) {
  const CFamily* family = FindFamily(row.m_strTableName);
  return family ? Value(row, *family, family->*source).value_or(0) : 0;
}

// Of two values that come together; whether both were found.
bool FindTwo(const CDataItem& row, CSource CFamily::*first, CSource CFamily::*second, double& a,
             double& b) {
  a = b = 0;
  const CFamily* family = FindFamily(row.m_strTableName);
  return family && Take(Value(row, *family, family->*first), a) &&
         Take(Value(row, *family, family->*second), b);
}

// The least or the greatest thickness as `better` chooses; 0 when a cell is missing.
template <class BETTER>
double Plate(const CDataItem& row, BETTER better) {
  const CFamily* family = FindFamily(row.m_strTableName);
  if (!family) return 0;
  double chosen = 0;
  for (const CSource& plate : family->m_arrPlate) {
    if (plate.m_cell.IsEmpty() && !plate.m_formula) break;
    const auto t = Value(row, *family, plate);
    if (!t) return 0;
    if (*t > 0 && (chosen == 0 || better(*t, chosen))) chosen = *t;
  }
  return chosen;
}

}  // namespace

int QuarterTurns(double angle) {
  constexpr double kTolerance = 0.0001;
  for (int turns = 1; turns <= 3; ++turns) {
    if (std::fabs(angle - 90 * turns) < kTolerance) return turns;
  }
  return 0;
}

bool FindRect(const CDataItem& row, double& width, double& height, double angle) {
  if (!FindTwo(row, &CFamily::m_width, &CFamily::m_height, width, height)) return false;
  if (QuarterTurns(angle) % 2 == 1) std::swap(width, height);
  return true;
}

bool FindCenter(const CDataItem& row, double& x, double& y, double angle) {
  if (!FindTwo(row, &CFamily::m_x, &CFamily::m_y, x, y)) return false;
  const int turns = QuarterTurns(angle);
  if (turns == 0) return true;
  double width = 0, height = 0;
  const bool known = FindRect(row, width, height, 0);
  const double ownX = x, ownY = y;
  x = turns == 1 ? height - ownY : turns == 2 ? width - ownX : ownY;
  y = turns == 1 ? ownX : turns == 2 ? height - ownY : width - ownX;
  return known;
}

double AreaOf(const CDataItem& row) {
  if (const auto area = Read(row, L"A(cm^2)")) return *area;
  return Read(row, L"A(mm^2)").value_or(0);
}

double ThickestPlate(const CDataItem& row) { return Plate(row, std::greater<>()); }
double ThinnestPlate(const CDataItem& row) { return Plate(row, std::less<>()); }

}  // namespace orv3

using orv3::CFamily;

double CLoadDataTable::GetDataItemArea(const CDataItem& item) { return orv3::AreaOf(item); }

void CLoadDataTable::GetDataItemRect(const CDataItem& item, double& width, double& height,
                                     double angle) {
  orv3::FindRect(item, width, height, angle);
}

void CLoadDataTable::GetDataItemCenter(const CDataItem& item, double& x, double& y, double angle) {
  orv3::FindCenter(item, x, y, angle);
}

void CLoadDataTable::GetDataItemIo(const CDataItem& item, double& ix, double& iy, double angle) {
  if (!orv3::FindTwo(item, &CFamily::m_Ix, &CFamily::m_Iy, ix, iy)) return;
  if (orv3::QuarterTurns(angle) % 2 == 1) std::swap(ix, iy);
}

double CLoadDataTable::GetDataItemSxo(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_Sx);
}
double CLoadDataTable::GetDataItemRadixo(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_ix);
}
double CLoadDataTable::GetDataItemRadiyo(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_iy);
}
double CLoadDataTable::GetDataItemWxo1(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_Wx1);
}
double CLoadDataTable::GetDataItemWxo2(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_Wx2);
}
double CLoadDataTable::GetDataItemWyoL(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_WyL);
}
double CLoadDataTable::GetDataItemWyoR(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_WyR);
}
double CLoadDataTable::GetDataItemMaxThick(const CDataItem& item) {
  return orv3::ThickestPlate(item);
}
double CLoadDataTable::GetDataItemMinThick(const CDataItem& item) {
  return orv3::ThinnestPlate(item);
}
double CLoadDataTable::GetDatIteme0(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_e0);
}
double CLoadDataTable::GetDataItemIw(const CDataItem& item) {
  return orv3::ValueOr0(item, &CFamily::m_Iw);
}

double CLoadDataTable::CalDataItemWo(double inertia, double distance) {
  return distance == 0 ? 1e100 : inertia / std::fabs(distance);
}

double CLoadDataTable::CalDataItemRio(double inertia, double area) {
  return area == 0 ? 0 : std::sqrt(inertia / area);
}

int CLoadDataTable::CalSectCharacterStyle(CDataItem& item) {
  CSteelJMData record;
  return record.TransItemToJMData(item) ? record.TransJMDataToItem(item) : 0;
}
