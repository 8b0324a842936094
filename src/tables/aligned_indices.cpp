#include "tables/aligned_indices.h"

#include <utility>

#include "tables/data_table.h"
#include "tables/edit_state.h"

namespace orv3 {

void AlignIndices(CDataTable& table) {
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    if (std::as_const(table)[i].m_nIndex == i) continue;
    CDataItem& row = table[i];
    row.m_nIndex = i;
    row.m_nModifyType = StateToSave(row.m_nModifyType);
  }
}

}  // namespace orv3
