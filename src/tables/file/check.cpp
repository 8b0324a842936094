#include "tables/file/check.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "framework/number_text.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/table_text.h"

namespace orv3 {
namespace {

class CCheck {
 public:
  explicit CCheck(const CDataTable& table) : m_table(table) {}

  void Table(const CString& path) {
    Text(-1, -1, L"name", m_table.m_strTableName, CDataTable::kMaxTableName, false);
    if (m_table.m_strTableName.IsEmpty()) Add(-1, -1, L"a table without a name cannot be stored");
    Heading();
    Directory(path);
  }

  void Row(int position) {
    const CDataItem& row = m_table.m_arrItem[position];
    for (int i = 0; i < row.GetItemLength(); ++i) {
      const bool last = i + 1 == row.GetItemLength();
      Text(position, i, L"value", row[i].m_strValue, kMaxStoredValue, last);
    }
    if (row.GetItemLength() != m_table.GetTableColNum()) {
      Add(position, -1, Count(row.GetItemLength(), L"values", m_table.GetTableColNum()));
    }
    Size(position, RowForm(row, row.m_nModifyType), m_table.GetTableItemLen());
  }

  std::vector<CSaveFault> m_arrFault;

 private:
  void Add(int row, int column, const CString& what) {
    CString text = L"table \"" + m_table.m_strTableName + L"\"";
    if (row >= 0) text += L", row " + FormatInt(row + 1);
    if (column >= 0 && column < m_table.GetTableColNum()) {
      text += L", column \"" + m_table.m_Title[column].m_strSign + L"\"";
    }
    m_arrFault.push_back({row, column, text + L": " + what});
  }

  static CString Count(std::int64_t count, const wchar_t* of, std::int64_t limit) {
    return FormatInt(count) + L" " + of + L", but the file has room for " + FormatInt(limit);
  }

  void Text(int row, int column, const wchar_t* part, std::wstring_view text, int limit,
            bool last) {
    if (std::ssize(text) > limit) {
      Add(row, column, CString(part) + L" of " + Count(std::ssize(text), L"characters", limit));
    }
    bool missing = false;  // no code page lacks a character of ASCII
    if (std::any_of(text.begin(), text.end(), [](wchar_t ch) { return ch > 0x7F; }))
      EncodeText(text, &missing);
    if (missing) Add(row, column, CString(part) + L" has a character that the code page lacks");
    if (text.find(L'\n') != text.npos || text.find(L'\0') != text.npos) {
      Add(row, column, CString(part) + L" has a line feed, which would end it");
    }
    if (text.find(kFieldSeparator) != std::wstring_view::npos || (!last && text.ends_with(L','))) {
      Add(row, column, CString(part) + L" has \",,,\" or ends with \",\", which would split it");
    }
  }

  // A field that is full has no room for its ending zero, which readers do without.
  void Size(int row, std::wstring_view form, std::int64_t room) {
    const std::int64_t size = std::ssize(EncodeText(form));
    if (size > room) Add(row, -1, Count(size, L"bytes", room));
  }

  void Heading() {
    const CDataTableTitle& title = m_table.m_Title;
    for (int i = 0; i < title.GetTableTitleNum(); ++i) {
      Text(-1, i, L"title", title[i].m_strName, CDataTypeStruct::kMaxName, false);
      Text(-1, i, L"sign", title[i].m_strSign, CDataTypeStruct::kMaxSign, false);
      if (title[i].m_bKey != 0 && title[i].m_bKey != 1) Add(-1, i, L"a key flag is 0 or 1");
      if (title[i].m_nType < CDataTypeStruct::KVBT_STRING ||
          title[i].m_nType > CDataTypeStruct::KVBT_CHAR) {
        Add(-1, i, L"a type is 0 to 6");
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
          Add(-1, -1, Count(kMaxTables + 1, L"tables", kMaxTables));
      }
    }
    info.m_strTableName = m_table.m_strTableName;
    info.m_nItemLen = m_table.GetTableItemLen();
    info.m_nRowNum = m_table.GetTableRowNum();
    const std::int64_t length = BlockLength(m_table.GetTableColNum());
    for (; info.m_arrBlockPos.GetSize() < BlocksFor(info.m_nRowNum); end += length) {
      if (end + length + kDirectorySize > kMaxTableFile) {
        return Add(-1, -1, L"the file would exceed 2 GB");
      }
      info.m_arrBlockPos.Add(static_cast<std::int32_t>(end));
    }
    // With its ending zero: a full record cannot be told from a cut one.
    const std::int64_t size = std::ssize(EncodeText(RecordForm(info))) + 1;
    if (size > kRecordSize) Add(-1, -1, Count(size, L"bytes", kRecordSize));
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
