#include "catalogue/outline/row_doubts.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/outline/row_figures.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "catalogue/outline/shapes.h"
#include "framework/number_text.h"
#include "outlines/outline_moments.h"
#include "sections/geometry/families.h"

namespace orv3 {
namespace {

// The family of a table whose rows stand for themselves; pairs follow from their components.
const CFamily* RolledFamily(const CString& table) {
  return FindRolledTable(table) == nullptr ? nullptr : FindFamily(table.View());
}

// Whether each source of the family finds what it reads.
bool TellsAll(const CDataItem& row, const CFamily& family) {
  using F = CFamily;
  for (const CSource F::*source :
       {&F::m_width, &F::m_height, &F::m_x, &F::m_y, &F::m_Ix, &F::m_Iy, &F::m_ix, &F::m_iy,
        &F::m_Wx1, &F::m_Wx2, &F::m_WyL, &F::m_WyR, &F::m_Sx, &F::m_e0, &F::m_Iw, &F::m_trueY,
        &F::m_trueR, &F::m_leastR}) {
    const CSource& s = family.*source;
    const bool none = s.m_cell.IsEmpty() && s.m_formula == nullptr;
    if (!none && !Value(row, family, s)) return false;
  }
  return std::all_of(family.m_arrPlate.begin(), family.m_arrPlate.end(), [&](const CSource& s) {
    const bool none = s.m_cell.IsEmpty() && s.m_formula == nullptr;
    return none || Value(row, family, s).has_value();
  });
}

bool IsNeeded(const CDataItem& row, int cell, const CFamily& family) {
  if (row.GetCellSign(cell) == L"A(cm^2)") return true;
  CDataItem whole = row;
  for (int i = 1; i < whole.GetItemLength(); ++i) whole.m_arrCell.Own(i).m_strValue = L"1";
  whole.m_arrCell.RemoveAt(cell);
  return !TellsAll(whole, family);
}

CRowFault Fault(const CDataItem& row, int cell, const CSentence& what) {
  return {cell,
          {row.GetCellName(cell) + L" " + row.GetCellSign(cell) + L"：" + what.m_strChinese,
           row.GetCellSign(cell) + L": " + what.m_strEnglish}};
}

std::optional<CRowFault> CheckCell(const CDataItem& row, int cell) {
  const CString& value = row[cell].m_strValue;
  if (CString(value).Trim().IsEmpty())
    return Fault(row, cell,
                 Both(L"不能为空，截面特性由它计算，请输入数值。",
                      L"is empty, and properties follow from it; give a number"));
  const CString sign = row.GetCellSign(cell);
  const bool radius = sign == L"r(mm)" || sign == L"r1(mm)";
  const double number = IsNumber(value) ? ToDouble(value) : -1;
  if (number > 0 || (radius && number == 0)) return {};
  return Fault(row, cell,
               radius ? Both(L"应为不小于0的数值。", L"give a number of 0 or more")
                      : Both(L"应为大于0的数值。", L"give a number above 0"));
}

// Why no section can be drawn: a size that is not there, or sizes that do not fit together.
CRowFault NoOutline(const CDataItem& row) {
  for (int cell = 1; cell < row.GetItemLength(); ++cell) {
    if (row.GetCellSign(cell).Right(4) != L"(mm)") continue;
    if (const auto fault = CheckCell(row, cell)) return *fault;
  }
  return {-1, Both(L"各尺寸不能构成截面，请检查高度、宽度、厚度和圆弧半径。",
                   L"the sizes make no section; look at height, width, thicknesses and radii")};
}

}  // namespace

std::optional<CRowFault> CheckRolledRow(const CDataItem& row) {
  const CFamily* family = RolledFamily(row.GetTableName());
  if (family == nullptr) return {};
  for (int cell = 1; cell < row.GetItemLength(); ++cell) {
    if (!IsNeeded(row, cell, *family)) continue;
    if (auto fault = CheckCell(row, cell)) return fault;
  }
  if (RowOutline(row).m_arrLoop.empty()) return NoOutline(row);
  return {};
}

std::vector<CRowDoubt> RowDoubts(const CDataItem& row) {
  if (RolledFamily(row.GetTableName()) == nullptr) return {};
  const COutline outline = RowOutline(row);
  if (outline.m_arrLoop.empty()) return {};
  const COutlineMoments m = RowOutlineMoments(outline.m_arrLoop);
  const CRowFigures f = RowFigures(row);
  std::vector<CRowDoubt> doubts;
  const auto compare = [&](const char* key, double told, double drawn, double share) {
    if (std::fabs(told - drawn) > share * drawn) doubts.push_back({key, told, drawn});
  };
  compare("A", f.m_dArea, m.m_dArea, 0.02);
  compare("Ix", f.m_dIx, m.m_dIx, 0.03);
  compare("Iy", f.m_dIy, m.m_dIy, 0.03);
  return doubts;
}

}  // namespace orv3
