#include "tables/file/check.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/table_text.h"

namespace orv3 {
namespace {

// Of characters that every code page has and that end or part nothing.
bool IsPlain(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](wchar_t ch) { return ch >= L' ' && ch < L'\x7f' && ch != L','; });
}

// What a row can take at the most in any code page.
std::int64_t MostBytes(const CDataItem& row) {
  constexpr std::int64_t kSeparator = std::ssize(kFieldSeparator) - 1, kNumber = 11, kCharacter = 4;
  std::int64_t most = 2 * kNumber + kSeparator;
  for (const CDataCell& cell : row.m_arrCell) {
    const std::wstring_view text = cell.m_strValue.View();
    most += kSeparator + std::ssize(text) * (IsPlain(text) ? 1 : kCharacter);
  }
  return most;
}

class CCheck {
 public:
  explicit CCheck(const CDataTable& table) : m_table(table) {}

  void Table(const CString& path) {
    Text(-1, -1, {"表名", "name"}, m_table.m_strTableName, CDataTable::kMaxTableName, false);
    if (m_table.m_strTableName.IsEmpty())
      Add(-1, -1, Say(L"没有名称的表不能保存", L"a table without a name cannot be stored"));
    Heading();
    Directory(path);
  }

  void Row(int position) {
    const CDataItem& row = m_table.m_arrItem[position];
    // Nobody reads what is cut of a deleted row: one that fills its slot can be deleted too.
    if (IsDeleted(row.m_nModifyType)) return;
    for (int i = 0; i < row.GetItemLength(); ++i) {
      const bool last = i + 1 == row.GetItemLength();
      Text(position, i, {"值", "value"}, row[i].m_strValue, kMaxStoredValue, last);
    }
    if (row.GetItemLength() != m_table.GetTableColNum()) {
      Add(position, -1,
          Say(L"有 {1} 个值，文件只能放 {2} 个", L"{1} values, but the file has room for {2}",
              {FormatInt(row.GetItemLength()), FormatInt(m_table.GetTableColNum())}));
    }
    if (MostBytes(row) > m_table.GetTableItemLen())
      Size(position, RowForm(row, StateOnFile(row.m_nModifyType)), m_table.GetTableItemLen());
  }

  std::vector<CSaveFault> m_arrFault;

 private:
  void Add(int row, int column, const CString& what) {
    CString text = Say(L"表“{1}”", L"table \"{1}\"", {m_table.m_strTableName});
    if (row >= 0) text += Say(L"第 {1} 行", L", row {1}", {FormatInt(row + 1)});
    CString inRow = what;
    if (column >= 0 && column < m_table.GetTableColNum()) {
      const CString sign = m_table.m_Title[column].m_strSign;
      text += Say(L"列“{1}”", L", column \"{1}\"", {sign});
      inRow = Say(L"列“{1}”：{2}", L"column \"{1}\": {2}", {sign, what});
    }
    m_arrFault.push_back({row, column, text + Say(L"：", L": ") + what, inRow});
  }

  CString Bytes(std::int64_t count, std::int64_t room) {
    return Say(L"有 {1} 字节，文件只有 {2} 字节的位置", L"{1} bytes, but the file has room for {2}",
               {FormatInt(count), FormatInt(room)});
  }

  void Text(int row, int column, CTextLiteral name, std::wstring_view text, int limit, bool last) {
    if (std::ssize(text) <= limit && IsPlain(text)) return;
    const CString part = FromUtf8(name.In(MessageLanguage()));
    if (std::ssize(text) > limit) {
      Add(row, column,
          Say(L"{1}有 {2} 个字符，文件只能放 {3} 个",
              L"{1} of {2} characters, but the file has room for {3}",
              {part, FormatInt(std::ssize(text)), FormatInt(limit)}));
    }
    bool missing = false;  // no code page lacks a character of ASCII
    if (std::any_of(text.begin(), text.end(), [](wchar_t ch) { return ch > 0x7F; }))
      EncodeText(text, &missing);
    if (missing) {
      Add(row, column,
          Say(L"{1}含有系统字符集没有的字符", L"{1} has a character that the code page lacks",
              {part}));
    }
    if (text.find(L'\n') != text.npos) {
      Add(row, column,
          Say(L"{1}含有换行，会在该处结束", L"{1} has a line feed, which would end it", {part}));
    }
    if (text.find(L'\r') != text.npos) {
      Add(row, column,
          Say(L"{1}含有回车，应删去", L"{1} has a carriage return; take it out", {part}));
    }
    if (text.find(L'\0') != text.npos) {
      Add(row, column,
          Say(L"{1}含有字符 NUL，会在该处结束", L"{1} has a character NUL, which would end it",
              {part}));
    }
    if (text.find(kFieldSeparator) != std::wstring_view::npos || (!last && text.ends_with(L','))) {
      Add(row, column,
          Say(L"{1}中有“,,,”或以“,”结尾，会在该处断开",
              L"{1} has \",,,\" or ends with \",\", which would split it", {part}));
    }
  }

  // A field that is full has no room for its ending zero, which readers do without.
  void Size(int row, std::wstring_view form, std::int64_t room) {
    const std::int64_t size = std::ssize(EncodeText(form));
    if (size > room) Add(row, -1, Bytes(size, room));
  }

  void Heading() {
    const CDataTableTitle& title = m_table.m_Title;
    for (int i = 0; i < title.GetTableTitleNum(); ++i) {
      Text(-1, i, {"列名", "title"}, title[i].m_strName, CDataTypeStruct::kMaxName, false);
      Text(-1, i, {"标识", "sign"}, title[i].m_strSign, CDataTypeStruct::kMaxSign, false);
      if (title[i].m_bKey != 0 && title[i].m_bKey != 1)
        Add(-1, i, Say(L"关键字标志应为 0 或 1", L"a key flag is 0 or 1"));
      if (title[i].m_nType < CDataTypeStruct::KVBT_STRING ||
          title[i].m_nType > CDataTypeStruct::KVBT_CHAR) {
        Add(-1, i, Say(L"类型应为 0 至 6", L"a type is 0 to 6"));
      }
    }
    Size(-1, HeadingForm(title), m_table.GetTableTitleLen());
  }

  // The record as it will be, in the file as it is.
  void Directory(const CString& path) {
    CDataFileInfo info;
    std::int64_t end = kUnusedHead;
    if (const auto file = path.IsEmpty() ? nullptr : CStoreFile::OpenToRead(path)) {
      CTableDirectory directory;
      if (directory.Read(*file)) {
        end = directory.Offset();
        const int record = directory.Find(m_table.m_strTableName);
        if (record >= 0) info = directory.Record(record);
        if (record < 0 && directory.IsFull())
          Add(-1, -1,
              Say(L"库中已有 99 个表，不能再多", L"the store has 99 tables, and room for 99"));
      }
    }
    info.m_strTableName = m_table.m_strTableName;
    info.m_nItemLen = m_table.GetTableItemLen();
    info.m_nRowNum = m_table.GetTableRowNum();
    const std::int64_t length = BlockLength(m_table.GetTableColNum());
    for (; info.m_arrBlockPos.GetSize() < BlocksFor(info.m_nRowNum); end += length) {
      if (end + length + kDirectorySize > kMaxTableFile) {
        return Add(-1, -1, Say(L"文件将超过 2 GB", L"the file would exceed 2 GB"));
      }
      info.m_arrBlockPos.Add(static_cast<std::int32_t>(end));
    }
    // With its ending zero: a full record cannot be told from a cut one.
    const std::int64_t size = std::ssize(EncodeText(RecordForm(info))) + 1;
    if (size > kRecordSize) Add(-1, -1, Bytes(size, kRecordSize));
  }

  const CDataTable& m_table;
};

}  // namespace

std::vector<CSaveFault> SaveFaults(const CDataTable& table, const CString& path, bool all) {
  CCheck check(table);
  check.Table(path);
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    if (all || IsUnsaved(table[i].m_nModifyType)) check.Row(i);
  }
  return check.m_arrFault;
}

}  // namespace orv3
