#include "catalogue/import/contradicting_rows.h"

#include <utility>

#include "catalogue/outline/row_doubts.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_kind.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"

namespace orv3 {

std::vector<CStoreFault> ContradictingRows(const CString& store) {
  std::vector<CStoreFault> found;
  CTableDirectory directory;
  if (const auto file = CStoreFile::OpenToRead(store); !file || !directory.Read(*file))
    return found;
  for (int i = 0; i < directory.Count(); ++i) {
    const CDataFileInfo info = directory.Record(i);
    CDataTable table;
    CString line;
    table.SetTableName(info.m_strTableName);
    if (!FindSectionTable(info.m_strTableName.View()) || !table.GetTable(store, line)) continue;
    for (int row = 0; row < table.GetTableRowNum(); ++row) {
      const CDataItem& item = std::as_const(table)[row];
      if (IsDeleted(item.m_nModifyType)) continue;
      const auto what = Contradiction(item);
      if (!what) continue;
      found.push_back(
          {info.m_strTableName, SlotOffset(info, row),
           Say(L"第 {1} 行“{2}”自相矛盾：{3}", L"row {1}, \"{2}\", contradicts itself: {3}",
               {FormatInt(row + 1), item[0].m_strValue, FromUtf8(what->In(MessageLanguage()))})});
    }
  }
  return found;
}

}  // namespace orv3
