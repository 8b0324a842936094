#include "catalogue/outline/row_doubts.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_figures.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/row_spacing.h"
#include "catalogue/outline/shapes.h"
#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/outline_moments.h"
#include "outlines/plastic.h"
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

// The figures of a row against its outline's, about the same axes.
class CComparison {
 public:
  CComparison(const CRowFigures& figures, const COutline& outline, bool firstMoment)
      : f(figures),
        m_arrLoop(outline.m_arrLoop),
        m_box(PathBounds(m_arrLoop)),
        m(RowOutlineMoments(m_arrLoop)),
        m_bFirstMoment(firstMoment) {}

  std::vector<CRowDoubt> Doubts() {
    constexpr double kArea = 0.02;
    Compare("A", f.m_dArea, m.m_dArea, kArea);
    // A cross is about axes at 45 degrees, of which X1 falls to the right.
    const double mean = (m.m_dIx + m.m_dIy) / 2;
    const double Ix = f.m_bAslant ? mean + m.m_dIxy : m.m_dIx;
    const double Iy = f.m_bAslant ? mean - m.m_dIxy : m.m_dIy;
    Compare("Ix", f.m_dIx, Ix);
    Compare("Iy", f.m_dIy, Iy);
    Compare("ix", f.m_dRx, std::sqrt(Ix / m.m_dArea));
    Compare("iy", f.m_dRy, std::sqrt(Iy / m.m_dArea));
    const double least = mean - Hypot((m.m_dIx - m.m_dIy) / 2, m.m_dIxy);
    Compare("imin", f.m_dRleast, std::sqrt(std::max(0.0, least) / m.m_dArea));
    if (!f.m_bAslant) Moduli();
    if (m_bFirstMoment) Compare("Sx", f.m_dSxo, PlasticAxisX(m_arrLoop).m_dModulus / 2);
    return std::move(m_arrDoubt);
  }

 private:
  void Moduli() {
    Compare("Wx1", f.m_dWTop, m.m_dIx / (m_box.top - m.m_centroid.y));
    Compare("Wx2", f.m_dWBottom, m.m_dIx / (m.m_centroid.y - m_box.bottom));
    Compare("WyL", f.m_dWLeft, m.m_dIy / (m.m_centroid.x - m_box.left));
    Compare("WyR", f.m_dWRight, m.m_dIy / (m_box.right - m.m_centroid.x));
  }

  void Compare(const char* key, double told, double drawn, double share = 0.03) {
    if (std::fabs(told - drawn) > share * drawn) m_arrDoubt.push_back({key, told, drawn});
  }

  const CRowFigures& f;
  const std::vector<CPath>& m_arrLoop;
  const CBox m_box;
  const COutlineMoments m;
  const bool m_bFirstMoment;
  std::vector<CRowDoubt> m_arrDoubt;
};

// Whether the row tells the first moment of its half: sections that are the same above and below.
bool HasFirstMoment(const CDataItem& row) { return row.GetSignIndex(L"Sx(cm^3)") >= 0; }

const char* UnitOf(std::string_view key) {
  if (key == "A") return "mm²";
  return key.starts_with('I') ? "mm⁴" : key.starts_with('i') ? "mm" : "mm³";
}

std::string PlainText(double value) { return ToUtf8(FormatG(value)); }

std::optional<CText> FirstDoubt(const CDataItem& row) {
  const std::vector<CRowDoubt> doubts = RowDoubts(row);
  if (doubts.empty()) return std::nullopt;
  const CRowDoubt& first = doubts.front();
  const std::string unit = UnitOf(first.m_szKey);
  const std::string told =
      std::string(first.m_szKey) + " = " + PlainText(first.m_dTold) + " " + unit;
  const std::string drawn = PlainText(first.m_dOutline) + " " + unit;
  return CText{told + "，由尺寸得 " + drawn, told + ", its sizes give " + drawn};
}

// A lattice column goes by its limbs' rows: the first that contradicts itself.
std::optional<CText> LimbContradiction(const CDataItem& row) {
  CLatticeLimbs limbs;
  if (!limbs.Fetch(CSteelItemGeGou(row))) return {};
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    const auto what = FirstDoubt(limb.m_row);
    if (!what) continue;
    const std::string no = ToUtf8(limb.m_row[0].m_strValue);
    return CText{no + " 的 " + what->m_strChinese, no + ": " + what->m_strEnglish};
  }
  return {};
}

}  // namespace

std::optional<CRowFault> CheckRolledRow(const CDataItem& row) {
  const CFamily* family = RolledFamily(row.GetTableName());
  if (family == nullptr) return {};
  for (int cell = 1; cell < row.GetItemLength(); ++cell) {
    if (auto fault = CheckCell(row, cell); fault && IsNeeded(row, cell, *family)) return fault;
  }
  if (RowOutline(row).m_arrLoop.empty()) return NoOutline(row);
  return {};
}

std::vector<CRowDoubt> RowDoubts(const CDataItem& row) {
  if (RolledFamily(row.GetTableName()) == nullptr && !IsPairTable(row.GetTableName())) return {};
  const COutline outline = RowOutline(row);
  if (outline.m_arrLoop.empty()) return {};
  return CComparison(RowFigures(row, outline), outline, HasFirstMoment(row)).Doubts();
}

std::optional<CText> Contradiction(const CDataItem& row) {
  return IsLatticeTable(row.GetTableName()) ? LimbContradiction(row) : FirstDoubt(row);
}

}  // namespace orv3
