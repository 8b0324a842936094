#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"

namespace orv3 {

CDataItem ComponentRow(const CString& table, const CString& no) {
  return CLoadDataTable::GetSysTemJMItem(table, no);
}

}  // namespace orv3
