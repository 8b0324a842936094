#include "dialogs/model/user_store.h"

#include <algorithm>
#include <utility>

#include "dialogs/model/store_failure.h"
#include "dialogs/model/store_transfer.h"
#include "dialogs/model/table_session.h"
#include "platform/file_system.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

bool SameRows(const CDataTable& a, const CDataTable& b) {
  return std::equal(a.m_arrItem.begin(), a.m_arrItem.end(), b.m_arrItem.begin(), b.m_arrItem.end(),
                    [](const CDataItem& x, const CDataItem& y) {
                      return IsDeleted(x.m_nModifyType) == IsDeleted(y.m_nModifyType) &&
                             SameValues(x, y);
                    });
}

bool HasLive(const CDataTable& table, int index) {
  const int position = table.GetTableIndex(index);
  return position >= 0 && !IsDeleted(table[position].m_nModifyType);
}

void RemoveMissingRows(CDataTable& target, const CDataTable& wanted) {
  for (int i = target.GetTableRowNum() - 1; i >= 0; --i) {
    const CDataItem& row = std::as_const(target)[i];
    if (IsDeleted(row.m_nModifyType) || wanted.GetTableIndex(row.m_nIndex) >= 0) continue;
    target.DeleteTableItem(row.m_nIndex);
  }
}

void ChangeRow(CDataTable& target, int position, const CDataItem& wanted) {
  CDataItem& row = target[position];
  if (SameValues(row, wanted)) return;
  row.m_arrCell = wanted.m_arrCell;
  row.m_nModifyType = StateAfterChange(row.m_nModifyType);
}

// Behind all rows: a deleted row's place is not taken, as its index may still be known elsewhere.
void AppendRow(CDataTable& target, const CDataItem& wanted) {
  CDataItem row = wanted;
  row.m_nIndex = target.GetTableRowNum();
  while (target.GetTableIndex(row.m_nIndex) >= 0) ++row.m_nIndex;
  row.m_nModifyType = kAdded;
  target.AddTableItem(row, 1, 1);
}

}  // namespace

CDataTable LiveRows(const CDataTable& table) {
  CDataTable live;
  live.SetSaveTablePath(table.GetSaveTablePath());
  live.SetTableName(table.GetTableName());
  live.m_Title = table.m_Title;
  for (const CDataItem& row : table.m_arrItem) {
    CDataItem copy = row;
    if (!IsDeleted(row.m_nModifyType)) live.AddTableItem(copy, 1, 1);
  }
  return live;
}

CString CUserStore::Folder() const { return m_strPath + kUserStoreFolder; }

CDataTable CUserStore::Named(const CString& name) const {
  CDataTable table;
  table.SetTableName(name);
  table.SetSaveTablePath(m_strPath);
  return table;
}

std::vector<CUserFile> CUserStore::Read(bool& failed) const {
  std::vector<CUserFile> found;
  CStringArray files;
  Named(L"").GetUserTableFileName(files);
  failed = false;
  for (const CString& file : files) {
    CStringArray names;
    CDataTable::GetTableNameFromFile(Folder() + file, names);
    for (const CString& name : names) {
      CDataTable table = Named(name);
      CString line;
      if (table.GetTable(Folder() + file, line)) {
        found.push_back({file, std::make_shared<CDataTable>(table), names.GetSize() == 1});
      } else {
        failed = true;
      }
    }
  }
  return found;
}

bool CUserStore::WriteNew(const CDataTable& table, CUserFile& file) const {
  CDataTable made = LiveRows(table);
  made.SetSaveTablePath(m_strPath);
  for (int i = 0; i < made.GetTableRowNum(); ++i) {
    made[i].m_nIndex = i;
    made[i].m_nModifyType = IsProtected(made[i].m_nModifyType) ? kCatalogueAdded : kAdded;
  }
  const CString name = NewTableFileName(Folder());
  if (!FitsFile(made, Folder() + name, true) || !made.WriteUserJmTable(name.GetString())) {
    return false;
  }
  file = {name, std::make_shared<CDataTable>(made), true};
  return true;
}

bool CUserStore::WriteRows(const CDataTable& table, CUserFile& file, bool& others) const {
  CDataTable target = *file.m_table;
  RemoveMissingRows(target, table);
  for (const CDataItem& row : table.m_arrItem) {
    const int position =
        HasLive(*file.m_table, row.m_nIndex) ? target.GetTableIndex(row.m_nIndex) : -1;
    if (position >= 0) {
      ChangeRow(target, position, row);
    } else {
      AppendRow(target, row);
    }
  }
  if (!FitsFile(target, Folder() + file.m_strName, false) ||
      !target.WriteUserJmTable(file.m_strName.GetString())) {
    return false;
  }
  others = others || !target.GetTakenInIndex().IsEmpty();
  file.m_table = std::make_shared<CDataTable>(target);
  return true;
}

bool CUserStore::IsUnchanged(const CString& path, const CDataTable& table) const {
  CDataTable fresh = Named(table.GetTableName());
  CString line;
  return fresh.GetTable(path, line) && fresh.m_Title.IsEqualOf(table.m_Title) &&
         SameRows(fresh, table);
}

// The file is first given a name that nobody knows, so that nobody can save into it between the
// comparison and its removal.
CRemoval CUserStore::Remove(const CUserFile& file) const {
  const CString path = Folder() + file.m_strName;
  {
    const CStoreLock lock(path);  // an interrupted save is undone under the file's own name
    if (!lock.IsHeld()) return CRemoval::Failed;
  }
  const CString aside = path + L".old";
  if (!Files().Rename(path, aside)) return CRemoval::Failed;
  if (IsUnchanged(aside, *file.m_table)) {
    Files().Remove(aside);
    return CRemoval::Done;
  }
  Files().Rename(aside, path);
  return CRemoval::Changed;
}

}  // namespace orv3
