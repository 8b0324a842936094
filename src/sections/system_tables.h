// The tables of the system store as they were last read, kept while the store is unchanged.
#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>

#include "framework/export.h"
#include "platform/store_error.h"
#include "tables/data_table.h"

namespace orv3 {

// One table and the places of its sections. It never changes once it is loaded, so that several
// threads may look into it.
class CSystemTable {
 public:
  bool Load(const CString& store, const CString& name);

  const CDataTable& Table() const noexcept { return m_table; }
  // Position of the first live row whose column 0 holds `no`; -1 when there is none.
  int Find(const CString& no) const;

 private:
  CDataTable m_table;
  std::unordered_map<std::wstring_view, int> m_mapNo;  // of a text column; views into the cells
};

// The table as it is on file now; null, with LastStoreError set, when the store has none. The file
// is read only when its stamp differs from that of the last reading.
std::shared_ptr<const CSystemTable> SystemTable(const CString& store, const CString& name);

// The row of a section; without cells when there is none, or when the table cannot be read.
CDataItem StoredRow(const CString& store, const CString& table, const CString& no);
// The "No." texts of a table's live rows; 0 without the table or with fewer than 2 columns.
int StoredNumbers(const CString& store, const CString& table, CStringArray& numbers);

// The system store under the program path.
CString SystemStorePath();

// A table file that serves instead of the system store; empty for none. What rows are made of,
// which ComponentRow looks up, may stand in either. For a program that works on a file of its own,
// whose rows are made of those of the catalogue. For the whole process.
ORV3CAL_API void SetStoreInFront(const CString& file);
CString StoreInFront();
// The store in front, else the system store.
CString ServingStore();

// Whether the last look-up found nothing for another reason than that the store lacks the table:
// what it would have found is not known then, and UnreadReason says why.
inline bool IsStoreUnread() {
  const CStoreTrouble trouble = LastStoreError().m_nTrouble;
  return trouble != CStoreTrouble::None && trouble != CStoreTrouble::NoTable;
}
inline const CString& UnreadReason() { return LastStoreError().m_strText; }

}  // namespace orv3
