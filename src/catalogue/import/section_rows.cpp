#include "catalogue/import/section_rows.h"

#include <algorithm>
#include <utility>

#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue/rolled/rolled_style.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/load_data_table.h"
#include "sections/row_check.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_table.h"
#include "tables/value_fit.h"

namespace orv3 {
namespace {

constexpr long kLattice = TABLE_CUSTOM | TABLE_FAMILY_LATTICE;

bool IsLattice(const CString& table) {
  return CLoadDataTable::IsTableNameType(table, kLattice) != 0;
}

bool LatticeHeading(const CString& table, CDataTableTitle& title) {
  for (int limbs = 2; limbs <= 4; ++limbs) {
    const CSteelJMGeGou lattice(limbs);
    if (lattice.GetTableName() != table) continue;
    title = lattice.m_Title;
    return true;
  }
  return false;
}

// Sizes and base point go through "%G" when a row is computed: what it would round is refused.
CString CheckDigits(const CDataItem& row, const CSectionStyle& style) {
  for (int cell = 1; cell <= style.m_nSizes + 2; ++cell) {
    const double value = ToDouble(row[cell].m_strValue);
    const CString kept = FormatG(value);
    if (ToDouble(kept) == value) continue;
    return Say(L"{1} = {2}：行中只保留六位数字；可写为 {3}",
               L"{1} = {2}: a row keeps six digits; right would be {3}",
               {row.GetCellSign(cell), row[cell].m_strValue, kept});
  }
  return {};
}

}  // namespace

bool KnownHeading(const CString& table, CDataTableTitle& title) {
  if (const CSectionStyle* style = FindSectionStyle(table.View())) {
    CDataTable heading;
    heading.SetTableName(table);
    CSteelJMData::GetJMTableTitle(heading, style->m_nStyle);
    title = heading.m_Title;
    return true;
  }
  const int rolled = FindRolledStyle(table.View());
  if (rolled >= 0) title = RolledTitle(RolledStyles()[static_cast<std::size_t>(rolled)]);
  return rolled >= 0 || LatticeHeading(table, title);
}

int GivenColumns(const CString& table, const CDataTableTitle& title) {
  if (const CSectionStyle* style = FindSectionStyle(table.View())) return style->m_nSizes + 3;
  const int results = IsLattice(table) ? title.GetColIndex(L"A(mm^2)") : -1;
  return results >= 0 ? results : title.GetTableTitleNum();
}

CDataItem EmptyRow(const CString& table, const CDataTableTitle& title) {
  CDataItem row;
  row.m_strTableName = table;
  row.SetItemTitle(title);
  if (const CSectionStyle* style = FindSectionStyle(table.View())) {
    for (int cell = style->m_nSizes + 1; cell <= style->m_nSizes + 2; ++cell) {
      if (cell < row.GetItemLength()) row[cell].m_strValue = L"0";
    }
  }
  return row;
}

CString RowMisfit(const CDataItem& row) {
  const auto& cells = row.m_arrCell;
  const bool keyed = std::any_of(cells.begin(), cells.end(),
                                 [](const CDataCell& cell) { return cell.m_bKey != 0; });
  if (keyed && cells[0].m_strValue.IsEmpty()) {
    return Say(L"第一个单元格为空", L"its first cell is empty");
  }
  const int misfit = FindMisfit(row);
  return misfit < 0 ? CString() : MisfitText(row[misfit]).In(MessageLanguage());
}

CString CompleteRow(CDataItem& row) {
  CDataTableTitle known;
  if (!KnownHeading(row.m_strTableName, known)) return RowMisfit(row);
  if (const auto fault = CheckRow(row)) return fault->m_text.In(MessageLanguage());
  if (const auto fault = CheckRolledRow(row)) return fault->m_text.In(MessageLanguage());
  if (const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View())) {
    CString digits = CheckDigits(row, *style);
    if (!digits.IsEmpty()) return digits;
    if (CLoadDataTable::CalSectCharacterStyle(row)) return {};
    return Say(L"行的单元格与“{1}”的列不符", L"the row has other cells than the columns of \"{1}\"",
               {row.m_strTableName});
  }
  CString misfit = RowMisfit(row);
  if (!misfit.IsEmpty() || !IsLattice(row.m_strTableName)) return misfit;
  if (const auto what = Contradiction(row))
    return Say(L"一肢自相矛盾：{1}；请改正库中该行的尺寸或特性",
               L"a limb contradicts itself: {1}; right would be to correct the sizes or figures of "
               L"its row in the store",
               {FromUtf8(what->In(MessageLanguage()))});
  CSteelItemGeGou lattice(row);
  if (!lattice.CalSteelJMGeGou())
    return Say(L"不能由各肢计算其特性", L"its properties cannot be computed from its limbs");
  row = lattice;
  return {};
}

}  // namespace orv3
