#include "output/table_json.h"

#include "catalogue/headings/column_title.h"
#include "catalogue/import/csv_table.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "tables/edit_state.h"

namespace orv3::cli {

std::vector<std::string> RowCells(const CDataItem& row) {
  std::vector<std::string> cells;
  for (const CDataCell& cell : row.m_arrCell) cells.push_back(ToUtf8(cell.m_strValue));
  return cells;
}

CJson TableJson(const std::string& name, const CDataTable& table) {
  CJson columns = CJson::array();
  for (int i = 0; i < table.GetTableColNum(); ++i) {
    const CDataTypeStruct& column = table.m_Title[i];
    columns.push_back({{"sign", ToUtf8(column.m_strSign)},
                       {"name", ToUtf8(column.m_strName)},
                       {"title", ColumnTitle(table.GetTableName(), column).In(MessageLanguage())},
                       {"type", ValueTypeName(column.m_nType)},
                       {"key", column.m_bKey != 0}});
  }
  CJson rows = CJson::array();
  for (const CDataItem& row : table.m_arrItem) {
    if (IsDeleted(row.m_nModifyType)) continue;
    rows.push_back(
        {{"index", row.m_nIndex}, {"state", row.m_nModifyType}, {"cells", RowCells(row)}});
  }
  return {{"table", name}, {"columns", columns}, {"rows", rows}};
}

}  // namespace orv3::cli
