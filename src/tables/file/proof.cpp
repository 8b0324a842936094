#include "tables/file/proof.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "framework/language.h"
#include "framework/number_text.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/layout.h"
#include "tables/file/table_text.h"

namespace orv3 {
namespace {

CString Missing() {
  return Say(L"含有系统字符集没有的字符", L"has a character that the code page lacks");
}
CString Split() {
  return Say(L"会在别处断开：其中不能有“,,,”，除最后一个外末尾不能是“,”",
             L"would part its text elsewhere: nothing holds \",,,\", and \",\" ends nothing but "
             L"the last");
}

// The position of the first of the `kept` texts that does not come back from the bytes of a field,
// -1 when all do. A field that is full has lost what stood behind its end.
int FirstLost(const std::vector<std::wstring_view>& kept, std::string_view bytes, bool full) {
  const CString form = DecodeText(bytes);
  CStoredFields back(form, kept.size(), full);
  for (std::size_t i = 0; i < kept.size(); ++i) {
    std::wstring_view field;
    const bool found = back.Next(field);
    if (found && field == kept[i]) continue;
    const bool cut = full && back.AtEnd() && (!found || kept[i].starts_with(field));
    if (!cut) return static_cast<int>(i);
  }
  return back.AtEnd() ? -1 : static_cast<int>(kept.size()) - 1;
}

bool Prove(const std::vector<std::wstring_view>& kept, std::string_view field, bool missing,
           int& lost, CString& why) {
  lost = -1;
  if (missing) {
    why = Missing();
    return false;
  }
  lost = FirstLost(kept, field, FieldBytes(field).size() == field.size());
  if (lost < 0) return true;
  why = Split();
  return false;
}

CString ColumnText(const CDataTableTitle& title, int column) {
  return column < 0 || column >= title.GetTableTitleNum()
             ? CString()
             : Say(L"列“{1}”", L"column \"{1}\" ", {title[column].m_strSign});
}

}  // namespace

bool EncodeRecord(const CDataFileInfo& info, std::string& field, CString& why) {
  const std::wstring form = RecordForm(info);
  bool missing = false;
  const std::string bytes = EncodeText(form, &missing);
  field = EncodeField(form, kRecordSize);
  if (missing) {
    why = Say(L"表名{1}", L"its name {1}", {Missing()});
  } else if (bytes.size() >= kRecordSize) {
    why = Say(L"表名与 {1} 个块的位置共 {2} 字节，文件只有 200 字节的位置；请减少行数或缩短表名",
              L"its name and the places of its {1} blocks take {2} bytes, but the file has room "
              L"for 200: fewer rows or a shorter name fit",
              {FormatInt(info.m_arrBlockPos.GetSize()), FormatInt(std::ssize(bytes) + 1)});
  } else if (const CDataFileInfo back = RecordOf(DecodeText(field));
             back.m_strTableName.IsEmpty() || back.m_strTableName != info.m_strTableName ||
             RecordForm(back) != form) {
    why = Say(L"表名不能保存；表名不能为空，不能有换行或“,,,”，末尾不能是“,”",
              L"its name cannot be stored; a name is not empty, holds no line feed and no \",,,\" "
              L"and does not end with \",\"");
  } else {
    return true;
  }
  return false;
}

bool EncodeHeading(const CDataTableTitle& title, std::string& area, CString& why) {
  const std::int64_t columns = title.GetTableTitleNum();
  const std::vector<std::wstring> fields = HeadingFields(title);
  bool missing = false;
  area =
      EncodeField(HeadingForm(title), static_cast<std::size_t>(HeadingLength(columns)), &missing);
  int lost = -1;
  if (columns == 0 || Prove({fields.begin(), fields.end()}, area, missing, lost, why)) return true;
  why =
      Say(L"表头{1}{2}", L"its heading {1}{2}", {ColumnText(title, lost < 0 ? -1 : lost / 4), why});
  return false;
}

bool EncodeRow(const CDataItem& row, int state, const CDataTableTitle& title, std::string& slot,
               CString& why) {
  const int columns = title.GetTableTitleNum();
  if (row.GetItemLength() != columns) {
    why = Say(L"有 {1} 个值；应为 {2} 列各一个",
              L"has {1} values; right would be one for each of {2} columns",
              {FormatInt(row.GetItemLength()), FormatInt(columns)});
    return false;
  }
  bool missing = false;
  const CRowText text(row, state);
  slot = EncodeField(text.Form(), static_cast<std::size_t>(SlotLength(columns)), &missing);
  int lost = -1;
  if (Prove(text.Fields(), slot, missing, lost, why)) return true;
  why = ColumnText(title, lost - 2) + why;
  return false;
}

bool StandsIn(const CDataItem& row, std::string_view slot, const CDataTableTitle& title) {
  if (row.GetItemLength() != title.GetTableTitleNum()) return false;
  const bool full = std::ssize(slot) == SlotLength(title.GetTableTitleNum());
  return FirstLost(CRowText(row, StateOnFile(row.m_nModifyType)).Fields(), slot, full) < 0;
}

}  // namespace orv3
