#include "dialogs/model/spacing_model.h"

#include <algorithm>

#include "catalogue/outline/row_spacing.h"
#include "dialogs/model/dialog_texts.h"
#include "framework/number_text.h"
#include "sections/load_data_table.h"
#include "sections/table_types.h"

namespace orv3 {
namespace {

constexpr int kSpacings[] = {0, 4, 6, 8, 10, 12, 14, 16, 18, 20};
constexpr int kCrossSpacings = 5;  // of them, for a cross

}  // namespace

CSpacingKind SpacingKindOf(const CString& tableName) {
  const CString sign = PairSpacingSign(tableName);
  if (sign.IsEmpty()) return CSpacingKind::None;
  return sign == texts::kSpacingSignDelta ? CSpacingKind::Delta : CSpacingKind::A;
}

bool IsCombinedTable(const CString& tableName) {
  return CLoadDataTable::IsTableNameType(
             tableName, TABLE_ROLLED | TABLE_FAMILY_ANGLE_PAIR | TABLE_FAMILY_CHANNEL_PAIR) != 0;
}

CStringArray SpacingChoices(CSpacingKind kind) {
  CStringArray choices;
  if (kind == CSpacingKind::None) return choices;
  const auto count = kind == CSpacingKind::Delta ? kCrossSpacings : std::ssize(kSpacings);
  for (int i = 0; i < count; ++i) choices.Add(FormatInt(kSpacings[i]));
  return choices;
}

CString SpacingSign(CSpacingKind kind) {
  if (kind == CSpacingKind::None) return {};
  return kind == CSpacingKind::Delta ? texts::kSpacingSignDelta : texts::kSpacingSignA;
}

CDataItem WithSpacing(const CDataItem& row, const CString& spacing) {
  CDataItem result = row;
  const CSpacingKind kind = SpacingKindOf(row.m_strTableName);
  if (kind == CSpacingKind::None || row.IsEmpty()) return result;
  const CDataTypeStruct column(texts::kSpacingName, SpacingSign(kind), CDataTypeStruct::KVBT_INT,
                               0);
  if (!SpacingOf(row).IsEmpty()) result.m_arrCell.RemoveAt(1);
  result.m_arrCell.InsertAt(1, CDataCell(column, spacing));
  return result;
}

CString SpacingOf(const CDataItem& row) {
  const CSpacingKind kind = SpacingKindOf(row.m_strTableName);
  if (kind == CSpacingKind::None || row.GetCellSign(1) != SpacingSign(kind)) return {};
  return row[1].m_strValue;
}

bool AskSpacing(CDialogUser& user, CDataItem& row, CString& spacing) {
  const CSpacingKind kind = SpacingKindOf(row.m_strTableName);
  if (kind == CSpacingKind::None || row.IsEmpty()) return true;
  CSpacingModel model(kind == CSpacingKind::Delta ? 1 : 0, spacing);
  if (!user.Run(model)) return false;
  spacing = model.Spacing();
  row = CDataItem(WithSpacing(row, spacing));
  return true;
}

CSpacingModel::CSpacingModel(int kind, const CString& spacing)
    : m_nKind(kind),
      m_strSpacing(spacing),
      m_arrChoice(SpacingChoices(kind != 0 ? CSpacingKind::Delta : CSpacingKind::A)) {
  const auto found = std::find(m_arrChoice.begin(), m_arrChoice.end(), spacing);
  if (found != m_arrChoice.end()) m_nSelected = static_cast<int>(found - m_arrChoice.begin());
}

CString CSpacingModel::Label() const {
  return m_nKind != 0 ? texts::kSpacingDelta : texts::kSpacingA;
}

bool CSpacingModel::Ok(const CString& text) {
  if (text.IsEmpty()) return false;
  m_strSpacing = text;
  return true;
}

}  // namespace orv3
