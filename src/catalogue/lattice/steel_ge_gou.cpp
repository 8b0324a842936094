// The row of a lattice column: its limbs and its properties.
#include "catalogue/lattice/steel_ge_gou.h"

#include <algorithm>

#include "catalogue/lattice/lattice_limbs.h"
#include "framework/number_text.h"
#include "sections/geometry/row_values.h"

namespace {

bool Write(CDataItem& row, std::wstring_view sign, double value) {
  const int index = row.GetSignIndex(sign);
  if (index < 0) return false;
  row.m_arrCell.Own(index).m_strValue = orv3::FormatG(value);
  return true;
}

bool WriteProperties(CDataItem& row, const orv3::CLatticeProperties& properties) {
  const auto columns = orv3::LatticePropertyColumns();
  return std::all_of(columns.begin(), columns.end(), [&](const auto& column) {
    return Write(row, column.m_szSign, properties.*column.m_pField);
  });
}

int Calculate(CSteelItemGeGou& row, int limbCount) {
  if (limbCount == 0 || orv3::LatticeLimbCount(row.m_strTableName) != limbCount) return 0;
  orv3::CLatticeLimbs limbs;
  if (!limbs.Fetch(row)) return 0;
  if (!Write(row, L"A(mm^2)", limbs.Area())) return 0;
  return limbs.Place(row) && WriteProperties(row, limbs.Properties()) ? 1 : 0;
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
  return orv3::ComponentRow(type, no);
}

int CSteelItemGeGou::CalSteelJMGeGou() {
  return Calculate(*this, orv3::LatticeLimbCount(m_strTableName));
}

int CSteelItemGeGou::CalSteelJMGeGou2() { return Calculate(*this, 2); }
int CSteelItemGeGou::CalSteelJMGeGou3() { return Calculate(*this, 3); }
int CSteelItemGeGou::CalSteelJMGeGou4() { return Calculate(*this, 4); }
