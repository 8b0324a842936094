#include "sections/geometry/row_values.h"
#include "sections/system_tables.h"

namespace orv3 {

// A store in front that cannot be read may have the row: the catalogue's is not taken for it.
CDataItem ComponentRow(const CString& table, const CString& no) {
  const CDataItem row = StoredRow(ServingStore(), table, no);
  if (!row.IsEmpty() || StoreInFront().IsEmpty() || IsStoreUnread()) return row;
  return StoredRow(SystemStorePath(), table, no);
}

CStringArray ComponentNumbers(const CString& table) {
  CStringArray numbers;
  if (StoredNumbers(ServingStore(), table, numbers) == 0)
    StoredNumbers(SystemStorePath(), table, numbers);
  return numbers;
}

}  // namespace orv3
