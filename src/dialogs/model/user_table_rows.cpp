// The user table editor's rows.
#include <algorithm>
#include <utility>

#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/property_model.h"
#include "dialogs/model/sign_model.h"
#include "dialogs/model/user_table_model.h"
#include "framework/number_text.h"
#include "sections/load_data_table.h"
#include "sections/table_types.h"

namespace orv3 {
namespace {

int FreeIndex(const CDataTable& table) {
  int index = 0;
  for (const CDataItem& row : table.m_arrItem) index = std::max(index, row.m_nIndex + 1);
  return index;
}

}  // namespace

void CUserTableModel::ShowTable() {
  ShowColumns();
  if (m_nItem < 0) m_nItem = 0;
  m_nItem = std::min(m_nItem, RowCount() - 1);
}

int CUserTableModel::ColumnCount() const { return Selected() ? Selected()->GetTableColNum() : 0; }

int CUserTableModel::RowCount() const noexcept {
  return Selected() ? Selected()->GetTableRowNum() : 0;
}

CString CUserTableModel::ColumnSign(int column) const {
  return Selected() ? Selected()->GetTableColSign(column) : CString();
}

bool CUserTableModel::IsRightAligned(int column) const {
  return Selected() && ValueClassOf(Selected()->GetDataTableColType(column)) != CValueClass::Text;
}

const wchar_t* CUserTableModel::RowText(int item, int column) const {
  if (item < 0 || item >= RowCount() || column < 0) return L"";
  const CDataItem& row = (*Selected())[item];
  return column < row.GetItemLength() ? row[column].m_strValue.GetString() : L"";
}

void CUserTableModel::SelectRow(int item) { m_nItem = item >= 0 && item < RowCount() ? item : -1; }

CString CUserTableModel::CountText() const {
  return texts::kAll + FormatInt(RowCount()) + texts::kRecords;
}

CDataItem CUserTableModel::Row(int item) const {
  return item < 0 || item >= RowCount() ? CDataItem() : (*Selected())[item];
}

bool CUserTableModel::AddRow() {
  if (!Selected()) return false;
  CDataItem row;
  row.m_strTableName = Selected()->GetTableName();
  const bool user = CLoadDataTable::IsTableNameType(row.m_strTableName, kUserTables) != 0;
  if (!user || !CLoadDataTable::GetDefaultDataItem(row)) row.SetItemTitle(Selected()->m_Title);
  if (row.GetItemLength() != ColumnCount()) {
    m_user.Tell(texts::kOtherColumns);
    return false;
  }
  return PutRow(texts::kAddRow, row, true, false);
}

bool CUserTableModel::CopyRow() {
  const CDataItem row = Row(m_nItem);
  return !row.IsEmpty() && PutRow(texts::kCopyRow, row, true, true);
}

bool CUserTableModel::EditRow() {
  const CDataItem row = Row(m_nItem);
  return !row.IsEmpty() && PutRow(texts::kEditRow, row, false, false);
}

bool CUserTableModel::DeleteRow() {
  if (m_nItem < 0) return false;
  CDataTable table = *Selected();
  table.m_arrItem.RemoveAt(m_nItem);
  return Replace(texts::kDeleteRow, table);
}

bool CUserTableModel::PutRow(const wchar_t* step, const CDataItem& row, bool added, bool copy) {
  CDataTable draft;
  CPropertyModel model(row, row.m_strTableName, 1);
  model.SetAccept([&](CDataItem& changed, CDialogUser& user) {
    draft = *Selected();
    return AcceptRow(changed, added, copy, draft, user);
  });
  if (!m_user.Run(model)) return false;
  Replace(step, draft);
  if (added) SelectRow(RowCount() - 1);
  return true;
}

bool CUserTableModel::AcceptRow(CDataItem& row, bool added, bool copy, CDataTable& draft,
                                CDialogUser& user) {
  if (!added) return draft.ModifyTableItem(row.m_nIndex, row) != 0;
  while (copy && draft.GetTableColKey(0) && draft.IsHaveValue(row, -1) >= 0) {
    CSignModel number(std::as_const(row)[0].m_strValue);
    if (!user.Run(number)) return false;
    if (!number.Number().IsEmpty()) row.m_arrCell.Own(0).m_strValue = number.Number();
    if (!CLoadDataTable::CheckCustomDataItem(row)) return false;
  }
  const int index = FreeIndex(draft);
  if (!draft.AddTableItem(row, 1)) return false;
  row.m_nIndex = index;
  draft[draft.GetTableRowNum() - 1].m_nIndex = index;
  return true;
}

}  // namespace orv3
