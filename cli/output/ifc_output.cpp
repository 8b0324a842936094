#include "output/ifc_output.h"

#include "catalogue/ifc/ifc_library.h"
#include "catalogue/outline/row_doubts.h"
#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "sections/section_kind.h"

namespace orv3::cli {

std::string IfcText(const std::vector<CDataItem>& rows, const std::string& name) {
  for (const CDataItem& row : rows) {
    const auto what = Contradiction(row);
    if (!what) continue;
    Refuse(Say("IFC：{1} {2} 的行自相矛盾：{3}；请改正其尺寸或特性",
               "IFC: the row of {1} {2} contradicts itself: {3}; right would be to correct its "
               "sizes or figures",
               {ToUtf8(row.GetTableName()), ToUtf8(row[0].m_strValue), Say(*what)}));
  }
  CIfcLibrary library = IfcLibrary(rows, FromUtf8(name));
  if (!library.m_arrLeftOut.empty()) {
    const CDataItem& row = rows[library.m_arrLeftOut.front()];
    Refuse(Say("IFC：{1} {2} 的尺寸不能构成截面", "IFC: the sizes of {1} {2} bound no section",
               {ToUtf8(row.GetTableName()), ToUtf8(row[0].m_strValue)}));
  }
  return std::move(library.m_strText);
}

std::string IfcText(const std::vector<CDataTable>& tables, const std::string& name) {
  std::vector<CDataItem> rows;
  for (const CDataTable& table : tables) {
    if (FindSectionTable(table.GetTableName()) == nullptr) {
      Refuse(Say("--to: IFC 文件只放截面，“{1}”不是截面表；请给出要导出的 TABLE",
                 "--to: an IFC file holds sections, and \"{1}\" is no section table; right would "
                 "be to name each TABLE to export",
                 {ToUtf8(table.GetTableName())}));
    }
    rows.insert(rows.end(), table.m_arrItem.begin(), table.m_arrItem.end());
  }
  return IfcText(rows, name);
}

}  // namespace orv3::cli
