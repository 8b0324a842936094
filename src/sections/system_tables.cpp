#include "sections/system_tables.h"

#include <map>
#include <mutex>
#include <utility>

#include "platform/file_system.h"
#include "platform/store_error.h"
#include "tables/table_store.h"

namespace orv3 {
namespace {

using CTablePtr = std::shared_ptr<const CSystemTable>;

// The tables read from one state of one store.
class CCache {
 public:
  CTablePtr Find(const CString& path, const CFileStamp& stamp, const CString& table) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!IsOf(path, stamp)) return nullptr;
    const auto found = m_mapTable.find(table);
    return found == m_mapTable.end() ? nullptr : found->second;
  }

  void Put(const CString& path, const CFileStamp& stamp, const CString& table, CTablePtr read) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!IsOf(path, stamp)) {
      m_mapTable.clear();
      m_strPath = path;
      m_stamp = stamp;
    }
    m_mapTable[table] = std::move(read);
  }

 private:
  bool IsOf(const CString& path, const CFileStamp& stamp) const {
    return m_stamp == stamp && m_strPath == path;
  }

  std::mutex m_mutex;
  CString m_strPath;
  CFileStamp m_stamp;
  std::map<CString, CTablePtr> m_mapTable;
};

CCache& Cache() {
  static CCache cache;
  return cache;
}

}  // namespace

bool CSystemTable::Load(const CString& name) {
  m_table.SetTableName(name);
  m_table.SetSaveTablePath(ProgramPath());
  if (!m_table.GetSystemJmTable()) return false;
  const bool text = m_table.GetTableColNum() > 0 &&
                    ValueClassOf(m_table.GetDataTableColType(0)) == CValueClass::Text;
  const CDataItemArray& rows = std::as_const(m_table).m_arrItem;
  for (int i = 0; text && i < rows.GetSize(); ++i) {
    const CDataItem& row = rows[i];
    if (row.m_nModifyType < 0 || row.IsEmpty()) continue;
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

CTablePtr SystemTable(const CString& name) {
  ClearStoreError();
  const CString path = ProgramPath() + kSystemStore;
  CFileStamp stamp;
  const bool stamped = Files().Stamp(path, stamp) == CFileError::None;
  if (stamped) {
    if (CTablePtr kept = Cache().Find(path, stamp, name)) return kept;
  }
  auto read = std::make_shared<CSystemTable>();
  if (!read->Load(name)) return nullptr;
  // Kept only when no save came between: what was read is then what the stamp stands for.
  CFileStamp after;
  if (stamped && Files().Stamp(path, after) == CFileError::None && after == stamp) {
    Cache().Put(path, stamp, name, read);
  }
  return read;
}

}  // namespace orv3
