// Lattice columns from their limbs.
#include <algorithm>
#include <array>

#include "sections/geometry/formulas.h"
#include "sections/geometry/lattice_placement.h"
#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"
#include "sections/table_types.h"

namespace orv3 {

namespace {

struct CLimbCells {
  std::wstring_view m_type, m_no;
  CCell m_angle;
};

constexpr CLimbCells kLimbs[] = {
    {L"P1Type", L"P1No.", L"P1θ°"},
    {L"P2Type", L"P2No.", L"P2θ°"},
    {L"P3Type", L"P3No.", L"P3θ°"},
    {L"P4Type", L"P4No.", L"P4θ°"},
};

std::size_t LimbCount(const CFamily& family) {
  return static_cast<std::size_t>(TableOf(family.m_kind).m_nLimbs);
}

// The limb's row; empty for a limb that is a lattice column itself or not in the system store.
CDataItem LimbRow(const CDataItem& row, const CLimbCells& limb) {
  const CString type = ReadText(row, limb.m_type);
  if (CLoadDataTable::IsTableNameType(type, TABLE_CUSTOM | TABLE_FAMILY_LATTICE)) return {};
  return ComponentRow(type, ReadText(row, limb.m_no));
}

struct CSpacings {
  double x = 0, y = 0;
};

std::optional<CSpacings> SpacingsOf(const CDataItem& row, std::size_t limbs) {
  const auto x = limbs == 2 ? std::optional(0.0) : Read(row, L"kx(mm)");
  const auto y = Read(row, limbs == 2 ? CCell(L"k(mm)") : CCell(L"ky(mm)"));
  if (!x || !y) return std::nullopt;
  return CSpacings{*x, *y};
}

std::optional<CLimbBox> BoxOf(const CDataItem& row, const CLimbCells& cells) {
  const auto angle = Read(row, cells.m_angle);
  const CDataItem limb = LimbRow(row, cells);
  CLimbBox box;
  if (!angle || !FindRect(limb, box.m_dWidth, box.m_dHeight, *angle) ||
      !FindCenter(limb, box.m_dCx, box.m_dCy, *angle)) {
    return std::nullopt;
  }
  return box;
}

std::optional<CLatticeReach> ReachOf(const CDataItem& row, const CFamily& family) {
  const std::size_t count = LimbCount(family);
  const auto spacings = SpacingsOf(row, count);
  if (!spacings) return std::nullopt;
  std::array<CLimbBox, 4> boxes;
  for (std::size_t i = 0; i < count; ++i) {
    const auto box = BoxOf(row, kLimbs[i]);
    if (!box) return std::nullopt;
    boxes[i] = *box;
  }
  return RowLatticeReach(std::span(boxes).first(count), spacings->x, spacings->y);
}

}  // namespace

std::optional<double> LatticeWidth(const CDataItem& row, const CFamily& family, const CCell&) {
  const auto reach = ReachOf(row, family);
  return reach ? std::optional(reach->m_left + reach->m_right) : std::nullopt;
}

std::optional<double> LatticeHeight(const CDataItem& row, const CFamily& family, const CCell&) {
  const auto reach = ReachOf(row, family);
  return reach ? std::optional(reach->m_below + reach->m_above) : std::nullopt;
}

// Of the limbs whose centroid lies above the axis, each whole.
std::optional<double> LatticeMoment(const CDataItem& row, const CFamily& family, const CCell&) {
  const std::size_t count = LimbCount(family);
  const auto spacings = SpacingsOf(row, count);
  const auto yo = Value(row, family, family.m_y);
  if (!spacings || !yo) return std::nullopt;
  const auto places = LatticePlacement(static_cast<int>(count), spacings->x, spacings->y);
  double moment = 0;
  for (std::size_t i = 0; i < count; ++i) {
    moment += AreaOf(LimbRow(row, kLimbs[i])) * std::max(0.0, places[i].m_y - *yo);
  }
  return moment;
}

std::optional<double> LatticeThickest(const CDataItem& row, const CFamily& family, const CCell&) {
  double thickest = 0;
  for (std::size_t i = 0; i < LimbCount(family); ++i) {
    thickest = std::max(thickest, ThickestPlate(LimbRow(row, kLimbs[i])));
  }
  return thickest;
}

std::optional<double> LatticeThinnest(const CDataItem& row, const CFamily& family, const CCell&) {
  double thinnest = 0;
  for (std::size_t i = 0; i < LimbCount(family); ++i) {
    const double limb = ThinnestPlate(LimbRow(row, kLimbs[i]));
    if (i == 0 || limb < thinnest) thinnest = limb;
  }
  return thinnest;
}

}  // namespace orv3
