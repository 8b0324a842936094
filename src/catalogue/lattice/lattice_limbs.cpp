#include "catalogue/lattice/lattice_limbs.h"

#include <array>
#include <cmath>

#include "catalogue/outline/row_figures.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

bool Read(const CDataItem& row, std::wstring_view sign, double& value) {
  return row.GetCellValue(row.GetSignIndex(sign), value) != 0;
}

bool SameCell(const CDataItem& row, const wchar_t* a, const wchar_t* b) {
  const int first = row.GetSignIndex(a);
  const int second = row.GetSignIndex(b);
  return first >= 0 && second >= 0 && row[first].m_strValue == row[second].m_strValue;
}

// The limb before `i` that is of the same section, which need not be looked up twice; `i` itself
// when there is none.
int LimbLike(const CDataItem& column, int i) {
  for (int j = 0; j < i; ++j) {
    if (SameCell(column, kLimbColumns[j].m_szNo, kLimbColumns[i].m_szNo) &&
        SameCell(column, kLimbColumns[j].m_szType, kLimbColumns[i].m_szType)) {
      return j;
    }
  }
  return i;
}

}  // namespace

std::wstring_view LatticeTableName(int limbs) noexcept {
  for (const CSectionTable& table : SectionTables()) {
    if (limbs != 0 && table.m_nLimbs == limbs) return table.Name();
  }
  return {};
}

int LatticeLimbCount(std::wstring_view tableName) noexcept {
  const CSectionTable* table = FindSectionTable(tableName);
  return table ? table->m_nLimbs : 0;
}

bool CLatticeLimbs::Fetch(const CSteelItemGeGou& column) {
  const int limbs = LatticeLimbCount(column.m_strTableName);
  m_arrLimb.resize(static_cast<std::size_t>(limbs));
  for (int i = 0; i < limbs; ++i) {
    CLatticeLimb& limb = m_arrLimb[static_cast<std::size_t>(i)];
    const int like = LimbLike(column, i);
    limb.m_row =
        like < i ? m_arrLimb[static_cast<std::size_t>(like)].m_row : column.GetPartItem(i + 1);
    if (limb.m_row.IsEmpty()) return false;
    limb.m_dArea = CLoadDataTable::GetDataItemArea(limb.m_row);
  }
  return limbs > 0;
}

namespace {

// Angles, spacings and places; false when one is missing.
bool ReadPlaces(CLatticeLimbs& limbs, const CSteelItemGeGou& column) {
  auto& all = limbs.m_arrLimb;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (!Read(column, kLimbColumns[i].m_szAngle, all[i].m_dAngle)) return false;
  }
  const bool two = all.size() == 2;
  if (!two && !Read(column, L"kx(mm)", limbs.m_dKx)) return false;
  if (!Read(column, two ? L"k(mm)" : L"ky(mm)", limbs.m_dKy)) return false;
  const auto places = LatticePlacement(static_cast<int>(all.size()), limbs.m_dKx, limbs.m_dKy);
  for (std::size_t i = 0; i < all.size(); ++i) all[i].m_at = places[i];
  return true;
}

}  // namespace

bool CLatticeLimbs::Place(const CSteelItemGeGou& column) {
  m_bTrue = false;
  if (!ReadPlaces(*this, column)) return false;
  for (CLatticeLimb& limb : m_arrLimb) {
    CLimbBox& box = limb.m_box;
    CLoadDataTable::GetDataItemRect(limb.m_row, box.m_dWidth, box.m_dHeight, limb.m_dAngle);
    CLoadDataTable::GetDataItemCenter(limb.m_row, box.m_dCx, box.m_dCy, limb.m_dAngle);
    CLoadDataTable::GetDataItemIo(limb.m_row, limb.m_dIx, limb.m_dIy, limb.m_dAngle);
  }
  return true;
}

bool CLatticeLimbs::PlaceTruly(const CSteelItemGeGou& column) {
  m_bTrue = true;
  if (!ReadPlaces(*this, column)) return false;
  for (CLatticeLimb& limb : m_arrLimb) {
    // A limb is no column: one that named itself would have no end.
    if (LatticeLimbCount(limb.m_row.m_strTableName) > 0) return false;
    const CRowFigures f = RowFigures(limb.m_row, limb.m_dAngle);
    limb.m_dArea = f.m_dArea;
    limb.m_box = {f.m_dWidth, f.m_dHeight, f.m_dXc, f.m_dYc};
    // About axes at 45 degrees to two others both moments are the mean of theirs.
    limb.m_dIx = f.m_bAslant ? (f.m_dIx + f.m_dIy) / 2 : f.m_dIx;
    limb.m_dIy = f.m_bAslant ? limb.m_dIx : f.m_dIy;
    const double all = f.m_dArea + f.m_dWidth + f.m_dHeight + f.m_dXc + f.m_dYc + f.m_dIx + f.m_dIy;
    if (!std::isfinite(all) || !(f.m_dArea > 0)) return false;
  }
  return true;
}

double CLatticeLimbs::Area() const noexcept {
  double area = 0;
  for (const CLatticeLimb& limb : m_arrLimb) area += limb.m_dArea;
  return area;
}

CLatticeReach CLatticeLimbs::Reach() const {
  std::array<CLimbBox, kMaxLimbs> boxes;
  for (std::size_t i = 0; i < m_arrLimb.size(); ++i) boxes[i] = m_arrLimb[i].m_box;
  const auto limbs = std::span(boxes).first(m_arrLimb.size());
  return m_bTrue ? LatticeReach(limbs, m_dKx, m_dKy) : RowLatticeReach(limbs, m_dKx, m_dKy);
}

CLatticeProperties CLatticeLimbs::Properties() const {
  CLatticeProperties p;
  p.m_dA = Area();
  for (const CLatticeLimb& limb : m_arrLimb) {
    p.m_dXo += p.m_dA == 0 ? 0 : limb.m_dArea * limb.m_at.m_x / p.m_dA;
    p.m_dYo += p.m_dA == 0 ? 0 : limb.m_dArea * limb.m_at.m_y / p.m_dA;
  }
  for (const CLatticeLimb& limb : m_arrLimb) {
    const double dx = limb.m_at.m_x - p.m_dXo;
    const double dy = limb.m_at.m_y - p.m_dYo;
    p.m_dIx += limb.m_dIx + limb.m_dArea * dy * dy;
    p.m_dIy += limb.m_dIy + limb.m_dArea * dx * dx;
  }
  const CLatticeReach reach = Reach();
  p.m_dWx1 = CLoadDataTable::CalDataItemWo(p.m_dIx, reach.m_above - p.m_dYo);
  p.m_dWx2 = CLoadDataTable::CalDataItemWo(p.m_dIx, reach.m_below + p.m_dYo);
  p.m_dWyL = CLoadDataTable::CalDataItemWo(p.m_dIy, reach.m_left + p.m_dXo);
  p.m_dWyR = CLoadDataTable::CalDataItemWo(p.m_dIy, reach.m_right - p.m_dXo);
  p.m_dixo = CLoadDataTable::CalDataItemRio(p.m_dIx, p.m_dA);
  p.m_diyo = CLoadDataTable::CalDataItemRio(p.m_dIy, p.m_dA);
  return p;
}

}  // namespace orv3
