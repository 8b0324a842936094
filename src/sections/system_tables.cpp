#include "sections/system_tables.h"

#include <map>
#include <mutex>
#include <utility>

#include "platform/store_file.h"
#include "platform/threads.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

using CTablePtr = std::shared_ptr<const CSystemTable>;

// The tables of one state of a store.
struct CKeptStore {
  CStoreState m_state;
  std::map<CString, CTablePtr> m_mapTable;
};

class CCache {
 public:
  CTablePtr Find(const CString& store, const CStoreState& state, const CString& table) {
    const std::lock_guard lock(m_lock);
    const auto kept = m_mapStore.find(store);
    if (kept == m_mapStore.end() || kept->second.m_state != state) return nullptr;
    const auto found = kept->second.m_mapTable.find(table);
    return found == kept->second.m_mapTable.end() ? nullptr : found->second;
  }

  void Put(const CString& store, const CStoreState& state, const CString& table, CTablePtr read) {
    const std::lock_guard lock(m_lock);
    if (m_mapStore.size() >= kMostStores && !m_mapStore.contains(store)) m_mapStore.clear();
    CKeptStore& kept = m_mapStore[store];
    if (kept.m_state != state) kept = {state, {}};
    kept.m_mapTable[table] = std::move(read);
  }

  void SetInFront(const CString& file) {
    const std::lock_guard lock(m_lock);
    m_strInFront = file;
  }
  CString InFront() {
    const std::lock_guard lock(m_lock);
    return m_strInFront;
  }

 private:
  static constexpr std::size_t kMostStores = 4;

  CLock m_lock;
  std::map<CString, CKeptStore> m_mapStore;
  CString m_strInFront;
};

CCache& Cache() {
  static CCache cache;
  return cache;
}

}  // namespace

bool CSystemTable::Load(const CString& store, const CString& name) {
  m_table.SetTableName(name);
  CString line;
  if (!m_table.GetTable(store, line)) return false;
  const bool text = m_table.GetTableColNum() > 0 &&
                    ValueClassOf(m_table.GetDataTableColType(0)) == CValueClass::Text;
  const CDataItemArray& rows = std::as_const(m_table).m_arrItem;
  for (int i = 0; text && i < rows.GetSize(); ++i) {
    const CDataItem& row = rows[i];
    if (IsDeleted(row.m_nModifyType) || row.IsEmpty()) continue;
    m_mapNo.try_emplace(row.m_arrCell.GetAt(0).m_strValue.View(), i);
  }
  return true;
}

int CSystemTable::Find(const CString& no) const {
  if (m_table.GetTableColNum() == 0) return -1;
  if (ValueClassOf(m_table.GetDataTableColType(0)) != CValueClass::Text) {
    return m_table.IsHaveValue(0, no, -1);  // numbers are equal within a tolerance
  }
  const auto found = m_mapNo.find(no.View());
  return found == m_mapNo.end() ? -1 : found->second;
}

CTablePtr SystemTable(const CString& store, const CString& name) {
  ClearStoreError();
  CStoreState state;
  const bool known = StateOfStore(store, state);
  if (known) {
    if (CTablePtr kept = Cache().Find(store, state, name)) return kept;
  }
  auto read = std::make_shared<CSystemTable>();
  if (!read->Load(store, name)) return nullptr;
  // Kept only when no save came between: what was read is then what the state stands for.
  CStoreState after;
  if (known && StateOfStore(store, after) && after == state) Cache().Put(store, state, name, read);
  return read;
}

CDataItem StoredRow(const CString& store, const CString& table, const CString& no) {
  const auto read = SystemTable(store, table);
  const int position = read ? read->Find(no) : -1;
  return position < 0 ? CDataItem() : read->Table()[position];
}

int StoredNumbers(const CString& store, const CString& table, CStringArray& numbers) {
  const auto read = SystemTable(store, table);
  numbers.RemoveAll();  // of which the name may be one
  if (!read || read->Table().GetTableColNum() < 2) return 0;
  for (const CDataItem& row : read->Table().m_arrItem) {
    const int cell = row.GetSignIndex(L"No.");
    if (!IsDeleted(row.m_nModifyType) && cell >= 0)
      numbers.Add(row.m_arrCell.GetAt(cell).m_strValue);
  }
  return 1;
}

CString SystemStorePath() { return ProgramPath() + kSystemStore; }

void SetStoreInFront(const CString& file) { Cache().SetInFront(file); }

CString StoreInFront() { return Cache().InFront(); }

CString ServingStore() {
  const CString front = StoreInFront();
  return front.IsEmpty() ? SystemStorePath() : front;
}

}  // namespace orv3
