// The row of a lattice column: its limbs and its properties.
#include "catalogue/lattice/steel_ge_gou.h"

#include "catalogue/lattice/lattice_limbs.h"
#include "framework/number_text.h"
#include "sections/load_data_table.h"

namespace {

bool Write(CDataItem& row, std::wstring_view sign, double value) {
  const int index = row.GetSignIndex(sign);
  if (index < 0) return false;
  row.m_arrCell.Own(index).m_strValue = orv3::FormatG(value);
  return true;
}

// The properties about the centroid, by the parallel-axis theorem.
bool WriteProperties(CDataItem& row, const orv3::CLatticeLimbs& limbs) {
  const double area = limbs.Area();
  const orv3::CLimbPlace centroid = limbs.Centroid();
  double ix = 0;
  double iy = 0;
  for (const orv3::CLatticeLimb& limb : limbs.m_arrLimb) {
    const double dx = limb.m_at.m_x - centroid.m_x;
    const double dy = limb.m_at.m_y - centroid.m_y;
    ix += limb.m_dIx + limb.m_dArea * dy * dy;
    iy += limb.m_dIy + limb.m_dArea * dx * dx;
  }
  const orv3::CLatticeReach reach = limbs.Reach();
  const auto modulus = CLoadDataTable::CalDataItemWo;
  return Write(row, L"xo(mm)", centroid.m_x) && Write(row, L"yo(mm)", centroid.m_y) &&
         Write(row, L"Ix(mm^4)", ix) && Write(row, L"Iy(mm^4)", iy) &&
         Write(row, L"Wx1(mm^3)", modulus(ix, reach.m_above - centroid.m_y)) &&
         Write(row, L"Wx2(mm^3)", modulus(ix, reach.m_below + centroid.m_y)) &&
         Write(row, L"WyL(mm^3)", modulus(iy, reach.m_left + centroid.m_x)) &&
         Write(row, L"WyR(mm^3)", modulus(iy, reach.m_right - centroid.m_x)) &&
         Write(row, L"ixo(mm)", CLoadDataTable::CalDataItemRio(ix, area)) &&
         Write(row, L"iyo(mm)", CLoadDataTable::CalDataItemRio(iy, area));
}

int Calculate(CSteelItemGeGou& row, int limbCount) {
  if (limbCount == 0 || orv3::LatticeLimbCount(row.m_strTableName) != limbCount) return 0;
  orv3::CLatticeLimbs limbs;
  if (!limbs.Fetch(row)) return 0;
  if (!Write(row, L"A(mm^2)", limbs.Area())) return 0;
  return limbs.Place(row) && WriteProperties(row, limbs) ? 1 : 0;
}

}  // namespace

CDataItem CSteelItemGeGou::GetPartItem(int i) const {
  if (i < 1 || i > orv3::kMaxLimbs) return {};
  const orv3::CLimbColumns& columns = orv3::kLimbColumns[i - 1];
  CString type;
  CString no;
  if (!GetCellValue(GetSignIndex(columns.m_szType), type) ||
      !GetCellValue(GetSignIndex(columns.m_szNo), no)) {
    return {};
  }
  return CLoadDataTable::GetSysTemJMItem(type, no);
}

int CSteelItemGeGou::CalSteelJMGeGou() {
  return Calculate(*this, orv3::LatticeLimbCount(m_strTableName));
}

int CSteelItemGeGou::CalSteelJMGeGou2() { return Calculate(*this, 2); }
int CSteelItemGeGou::CalSteelJMGeGou3() { return Calculate(*this, 3); }
int CSteelItemGeGou::CalSteelJMGeGou4() { return Calculate(*this, 4); }
