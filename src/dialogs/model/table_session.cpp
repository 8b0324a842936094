#include "dialogs/model/table_session.h"

#include <algorithm>
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/lattice/steel_ge_gou.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/store_failure.h"
#include "platform/store_file.h"
#include "tables/aligned_indices.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace orv3 {

bool SameValues(const CDataItem& a, const CDataItem& b) {
  return std::equal(a.m_arrCell.begin(), a.m_arrCell.end(), b.m_arrCell.begin(), b.m_arrCell.end(),
                    [](const auto& x, const auto& y) { return x.m_strValue == y.m_strValue; });
}

namespace {

bool SayFailed(const wchar_t* what) {
  ShowMessage(texts::kReminder, StoreFailureText(what));
  return false;
}

}  // namespace

CString CTableSession::StorePath() const { return m_strPath + kSystemStore; }

CDataTable CTableSession::Named(const CString& name) const {
  CDataTable table;
  table.SetTableName(name);
  table.SetSaveTablePath(m_strPath);
  return table;
}

void CTableSession::Clear() { m_table = CDataTable(); }

bool CTableSession::Load(const CString& name, CDialogUser& user) {
  CDataTable table = Named(name);
  const bool failed = !table.GetSystemJmTable() && IsReadFailure();
  m_table = table;
  if (failed) TellReadFailed(user);
  return !failed;
}

void CTableSession::MakeLatticeTable(CDialogUser& user) {
  const CString name = m_table.GetTableName();
  const int limbs = LatticeLimbCount(name);
  if (limbs == 0) return;
  CDataTable made = CSteelJMGeGou(limbs);
  made.SetSaveTablePath(m_strPath);
  CHeldMessages messages;
  {
    const CStoreLock lock(StorePath());
    CDataTable fresh = Named(name);
    if (lock.IsHeld() && fresh.GetSystemJmTable() && fresh.GetTableColNum() >= 2) {
      made = fresh;  // another program was quicker
    } else if (!lock.IsHeld() || !made.WriteSystemJmTable()) {
      SayFailed(texts::kSaveFailed);
    }
  }
  messages.ShowTo(user);
  m_table = made;
}

bool CTableSession::WriteBack(CDialogUser& user) {
  const CDataItemArray& rows = m_table.m_arrItem;
  const bool unsaved = std::any_of(
      rows.begin(), rows.end(), [](const CDataItem& row) { return IsUnsaved(row.m_nModifyType); });
  if (m_table.GetTableColNum() <= 1 || !unsaved || m_table.WriteSystemJmTable()) return true;
  TellSaveFailed(user);
  return false;
}

// What is said while the store is locked is shown afterwards: nobody is to wait for a box.
bool CTableSession::Change(const CChange& change, CDialogUser& user) {
  CHeldMessages messages;
  const bool changed = ChangeLocked(change);
  messages.ShowTo(user);
  return changed;
}

bool CTableSession::ChangeLocked(const CChange& change) {
  const CStoreLock lock(StorePath());
  if (!lock.IsHeld()) return SayFailed(texts::kSaveFailed);
  CDataTable fresh = Named(m_table.GetTableName());
  if (!fresh.GetSystemJmTable()) {
    if (IsReadFailure()) return SayFailed(texts::kReadFailed);
    fresh.m_Title = m_table.m_Title;
  }
  AlignIndices(fresh);
  if (!change(fresh)) return false;
  if (!FitsFile(fresh, StorePath(), false) || !fresh.WriteSystemJmTable()) {
    return SayFailed(texts::kSaveFailed);
  }
  m_table = fresh;
  return true;
}

bool CTableSession::Add(CDataItem& row, CDialogUser& user) {
  const auto add = [&](CDataTable& table) {
    if (table.GetTableColNum() == 0) table.setTableTitle(row);
    if (row.GetItemLength() == table.GetTableColNum()) return table.AddTableItem(row, 1) != 0;
    ShowMessage(texts::kReminder, texts::kOtherColumns);
    return false;
  };
  return Change(add, user);
}

// The position of the row; -1, the user told and the table in hand as it is on file, when it is not
// there as it was.
int CTableSession::Locate(CDataTable& fresh, const CDataItem& before) {
  const CDataItemArray& rows = fresh.m_arrItem;
  const auto same = [&](const CDataItem& row) {
    return !IsDeleted(row.m_nModifyType) && SameValues(row, before);
  };
  const int position = fresh.GetTableIndex(before.m_nIndex);
  if (position >= 0 && same(rows[position])) return position;
  const auto found = std::find_if(rows.begin(), rows.end(), same);
  if (found != rows.end()) return static_cast<int>(std::distance(rows.begin(), found));
  m_table = fresh;
  ShowMessage(texts::kReminder, texts::kRowGone);
  return -1;
}

bool CTableSession::Modify(const CDataItem& before, CDataItem& row, CDialogUser& user) {
  const auto modify = [&](CDataTable& table) {
    const int position = Locate(table, before);
    return position >= 0 &&
           table.ModifyTableItem(std::as_const(table)[position].m_nIndex, row) != 0;
  };
  return Change(modify, user);
}

bool CTableSession::Delete(const CDataItem& before, CDialogUser& user) {
  const auto remove = [&](CDataTable& table) {
    const int position = Locate(table, before);
    return position >= 0 && table.DeleteTableItem(std::as_const(table)[position].m_nIndex) != 0;
  };
  return Change(remove, user);
}

bool CTableSession::TakeBack(CDataItem& row, CDialogUser& user) {
  const auto restore = [&](CDataTable& table) {
    const CDataItemArray& rows = std::as_const(table).m_arrItem;
    const auto place = std::find_if(rows.begin(), rows.end(), [&](const CDataItem& other) {
      return IsDeleted(other.m_nModifyType) && SameValues(other, row);
    });
    return place == rows.end() ? table.AddTableItem(row, 1) != 0
                               : table.ModifyTableItem(place->m_nIndex, row) != 0;
  };
  return Change(restore, user);
}

}  // namespace orv3
