// The browser's commands on rows, and what it hands back.
#include <algorithm>
#include <utility>

#include "dialogs/model/browser_model.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/property_model.h"
#include "dialogs/model/sign_model.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/model/store_transfer.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"
#include "sections/table_types.h"
#include "tables/edit_state.h"

namespace orv3 {
// The selected row with all columns of its table; without cells when there is none.
CDataItem CBrowserModel::SelectedRow() const {
  const int position = Full().GetTableIndex(SelectedIndex());
  return position < 0 ? CDataItem() : Full()[position];
}

bool CBrowserModel::IsProtected(const CDataItem& row) {
  if (!orv3::IsProtected(row.m_nModifyType)) return false;
  m_user.Tell(texts::kProtectedReminder, texts::kProtectedRow);
  return true;
}

// --- Adding -------------------------------------------------------------------------------------

CListChange CBrowserModel::Add() {
  if (!HasTable()) return CListChange::None;
  const CString name = Full().GetTableName();
  if (!CLoadDataTable::IsTableNameType(name, kUserTables)) return Copy();
  CDataItem row;
  row.m_strTableName = name;
  if (CLoadDataTable::GetDefaultDataItem(row)) return AddRow(row, false);
  m_user.Tell(texts::kNoDefaultRow);
  return CListChange::None;
}

CListChange CBrowserModel::Copy() {
  if (!HasTable()) return CListChange::None;
  const CDataItem row = SelectedRow();
  if (IsCombinedTable(Full().GetTableName())) {
    m_user.Tell(texts::kNoCopyOfCombined);
  } else if (row.IsEmpty()) {
    m_user.Tell(texts::kNoSample);
  } else {
    return AddRow(row, true);
  }
  return CListChange::None;
}

CListChange CBrowserModel::AddRow(const CDataItem& row, bool copy) {
  const bool hadColumns = Full().GetTableColNum() > 0;
  CPropertyModel model(row, Full().GetTableName(), 1);
  model.SetAccept(
      [&](CDataItem& added, CDialogUser& user) { return AcceptNew(added, copy, user); });
  if (!m_user.Run(model)) return CListChange::None;
  if (!hadColumns) FillSearchColumns();
  const CListChange change = Refresh(hadColumns ? CListChange::Rows : CListChange::Columns);
  SelectByIndex(model.Row().m_nIndex);
  return change;
}

// A copy whose number is taken asks for another one until it is free or the user gives up.
bool CBrowserModel::AcceptNew(CDataItem& row, bool copy, CDialogUser& user) {
  while (copy && Full().GetTableColKey(0) && Full().IsHaveValue(row, -1) >= 0) {
    CSignModel number(std::as_const(row)[0].m_strValue);
    if (!user.Run(number)) return false;
    if (!number.Number().IsEmpty()) row.m_arrCell.Own(0).m_strValue = number.Number();
    if (!CLoadDataTable::CheckCustomDataItem(row)) return false;
  }
  return m_session.Add(row, user);
}

// --- Changing -----------------------------------------------------------------------------------

CListChange CBrowserModel::Edit() {
  const CDataItem before = SelectedRow();
  if (before.IsEmpty() || IsProtected(before)) return CListChange::None;
  CPropertyModel model(before, Full().GetTableName(), 1);
  model.SetAccept(
      [&](CDataItem& row, CDialogUser& user) { return m_session.Modify(before, row, user); });
  const bool changed = m_user.Run(model);
  Refresh(CListChange::Rows);
  SelectByIndex(changed ? model.Row().m_nIndex : before.m_nIndex);
  return CListChange::Rows;
}

CListChange CBrowserModel::Delete() {
  const CDataItem row = SelectedRow();
  if (row.IsEmpty() || IsProtected(row)) return CListChange::None;
  const int item = m_nItem;
  if (m_session.Delete(row, m_user)) m_arrDeleted.push_back(row);
  Refresh(CListChange::Rows);
  SelectItem(std::min(item, ItemCount() - 1));
  return CListChange::Rows;
}

CListChange CBrowserModel::TakeBack() {
  if (!CanTakeBack()) return CListChange::None;
  CDataItem row = m_arrDeleted.back();
  CListChange change = CListChange::Rows;
  if (Full().GetTableName() != row.m_strTableName) {
    const auto node = std::find_if(m_arrNode.begin(), m_arrNode.end(), [&](const CTreeNode& n) {
      return n.m_bTable && n.m_strText == row.m_strTableName;
    });
    change = SelectNode(static_cast<int>(node - m_arrNode.begin()));
  }
  if (!m_session.TakeBack(row, m_user)) return change;
  m_arrDeleted.pop_back();
  Refresh(CListChange::Rows);
  if (SelectByIndex(row.m_nIndex)) return change;
  m_strFilter.Empty();  // it would hide the row
  Refresh(CListChange::Rows);
  SelectByIndex(row.m_nIndex);
  return change;
}

void CBrowserModel::ShowProperties() {
  const CDataItem row = SelectedRow();
  if (row.IsEmpty()) return;
  const CString spacing = m_strSpacing.IsEmpty() ? CString(L"0") : m_strSpacing;
  CPropertyModel model(WithSpacing(row, spacing), Full().GetTableName(), 0);
  m_user.Run(model);
  const CString chosen = SpacingOf(model.Row());
  if (!chosen.IsEmpty()) m_strSpacing = chosen;
}

// --- Stores -------------------------------------------------------------------------------------

CListChange CBrowserModel::Import() {
  std::vector<CString> files;
  if (!m_user.OpenFiles(texts::kImportTitle, ImportFilters(), files) || files.empty()) {
    return CListChange::None;
  }
  if (!m_session.WriteBack(m_user)) return CListChange::None;
  const bool overwrite = m_user.AskYesNo(texts::kReminder, texts::kOverwriteQuestion);
  ImportFiles(files, m_session.StorePath(), overwrite, m_user);
  if (!HasTable()) return CListChange::None;
  const CString name = Full().GetTableName();
  if (FindSectionKind(name) == CSectionKind::WideH) GroupByNumber(m_session.Path(), name, m_user);
  m_session.Load(name, m_user);
  const int column = m_nSearchColumn;
  FillSearchColumns();
  m_nSearchColumn = column < m_arrSearchColumn.GetSize() ? column : 0;
  return Refresh(CListChange::Columns);
}

CListChange CBrowserModel::Export() {
  if (!m_session.WriteBack(m_user)) return CListChange::None;
  CStringArray shown;
  if (HasTable()) shown.Add(Full().GetTableName());
  ExportTables(m_session.Path(), shown, m_user);
  return CListChange::None;
}

// --- End ----------------------------------------------------------------------------------------

bool CBrowserModel::Ok() {
  CDataItem row = SelectedRow();
  if (row.IsEmpty() || !AskSpacing(m_user, row, m_strSpacing)) return false;
  m_chosen = row;
  return true;
}

}  // namespace orv3
