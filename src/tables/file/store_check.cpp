#include "tables/file/store_check.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/table_text.h"
#include "tables/value_fit.h"

namespace orv3 {
namespace {

// The store kind of an information line; -1 when it says none.
int KindOf(const CString& line) {
  CStringArray parts;
  CDataTable::TransStrToArray(line, L",", parts);
  if (parts.GetSize() < 2 || parts[1].GetLength() != 1) return -1;
  const int kind = parts[1][0] - L'0';
  return kind >= 0 && kind <= 2 ? kind : -1;
}

// The second field of a stored row.
int StateOf(const std::string& slot) {
  const CString form = DecodeText(slot);
  const std::vector<std::wstring_view> fields = SplitFields(form);
  return fields.size() > 1 ? ToInt(fields[1]) : 0;
}

class CVerify {
 public:
  CVerify(const CStoreFile& file, std::vector<CStoreFault>& faults, std::vector<CStoreFault>& notes)
      : m_file(file), m_faults(faults), m_notes(notes) {}

  void Run() {
    if (!m_directory.Read(m_file)) {
      return Add(L"", 0,
                 Say(L"文件末尾前 20100 字节处没有含“{1}”的信息行",
                     L"no information line with \"{1}\" at end - 20100", {kTableMagic}));
    }
    const std::int64_t end = static_cast<std::int64_t>(m_file.Size());
    if (!m_directory.HasEndMark())
      Add(L"", end - 1, Say(L"最后一个字节不是“#”", L"the last byte is not \"#\""));
    if (KindOf(m_directory.InfoLine()) < 0) {
      Add(L"", m_directory.Offset(),
          Say(L"信息行中库的种类不是 0、1 或 2",
              L"the information line's store kind is not 0, 1 or 2"));
    }
    const int count = m_directory.Count();
    for (int i = 0; i < count; ++i) Record(i);
    for (int i = count; i < kMaxTables; ++i) {
      if (!FieldBytes(m_directory.RecordBytes(i)).empty()) {
        Add(L"", RecordAt(i),
            Say(L"目录记录结束之后还有记录", L"a record behind the end of the records"));
      }
    }
    if (m_faults.empty()) Gaps();
  }

 private:
  static CString Needs(int rows, int needed, int blocks) {
    return Say(L"{1} 行需要 {2} 个块，目录记录中有 {3} 个",
               L"{1} rows need {2} blocks, but the record names {3}",
               {FormatInt(rows), FormatInt(needed), FormatInt(blocks)});
  }

  // A save never gives a block back: bytes of no table are those of one whose record is lost.
  void Gaps() {
    std::sort(m_used.begin(), m_used.end(),
              [](const CFileRange& a, const CFileRange& b) { return a.m_nBegin < b.m_nBegin; });
    std::int64_t at = kUnusedHead;
    m_used.push_back({m_directory.Offset(), m_directory.Offset()});
    for (const CFileRange& used : m_used) {
      if (used.m_nBegin > at)
        Note(L"", at,
             Say(L"{1} 字节不属于任何表", L"{1} bytes belong to no table",
                 {FormatInt(used.m_nBegin - at)}));
      at = std::max(at, used.m_nEnd);
    }
  }

  void Add(const CString& table, std::int64_t offset, const CString& what) {
    m_faults.push_back({table, offset, what});
  }

  void Note(const CString& table, std::int64_t offset, const CString& what) {
    m_notes.push_back({table, offset, what});
  }

  void Text(const CString& table, std::int64_t offset, const CString& part, const CString& text) {
    if (text.Find(wchar_t{0xFFFD}) >= 0) {
      Add(table, offset,
          Say(L"{1}含有不是系统字符集文字的字节",
              L"{1} has bytes that are no text of the code page", {part}));
    }
  }

  std::int64_t RecordAt(int i) const {
    return m_directory.Offset() + kInfoLineSize + std::int64_t{kRecordSize} * i;
  }

  void Record(int i) {
    const CDataFileInfo info = m_directory.Record(i);
    const CString& name = info.m_strTableName;
    const std::int64_t at = RecordAt(i);
    if (!m_names.insert(name).second)
      Add(name, at, Say(L"前面已有同名的表", L"an earlier table has the same name"));
    if (FieldBytes(m_directory.RecordBytes(i)).size() == kRecordSize) {
      Add(name, at,
          Say(L"目录记录占满 200 字节，可能被截断",
              L"the record fills its 200 bytes and may be cut"));
    }
    Text(name, at, Say(L"目录记录", L"the record"), DecodeText(m_directory.RecordBytes(i)));
    const auto isControl = [](wchar_t ch) { return ch < L' ' || ch == L'\x7f'; };
    if (std::any_of(name.View().begin(), name.View().end(), isControl))
      Note(name, at, Say(L"表名含有控制字符", L"the table's name has a control character"));
    if (!Numbers(i, info)) return;
    if (!IsSlotLength(info.m_nItemLen)) {
      return Add(name, at,
                 Say(L"槽长 {1} 不是 33 n + 25", L"slot length {1} is not 33 n + 25",
                     {FormatInt(info.m_nItemLen)}));
    }
    if (info.m_nRowNum < 0) return Add(name, at, Say(L"行数为负", L"the row count is negative"));
    const int blocks = info.m_arrBlockPos.GetSize();
    if (blocks < BlocksFor(info.m_nRowNum)) {
      Add(name, at, Needs(info.m_nRowNum, BlocksFor(info.m_nRowNum), blocks));
    }
    if (!Blocks(info, at) || BlocksOf(info, m_directory.Offset()).empty()) return;
    const std::ptrdiff_t faults = std::ssize(m_faults);
    Heading(info);
    Rows(info);
    const bool sound = std::all_of(m_faults.begin() + faults, m_faults.end(),
                                   [](const CStoreFault& fault) { return fault.m_bValue; });
    if (sound) Values(info);
    LeftOver(info, at);
  }

  // Whether the record's numbers read as what stands there: a count of "15x" would pass for 15.
  bool Numbers(int i, const CDataFileInfo& info) {
    const CString form = DecodeText(m_directory.RecordBytes(i));
    if (form == CString(RecordForm(info))) return true;
    Add(info.m_strTableName, RecordAt(i),
        Say(L"目录记录中的数字不是数字：“{1}”", L"the record's numbers are none: \"{1}\"", {form}));
    return false;
  }

  bool Blocks(const CDataFileInfo& info, std::int64_t recordAt) {
    const std::int64_t length = BlockLength(ColumnsOf(info.m_nItemLen));
    bool sound = true;
    for (const std::int64_t at : info.m_arrBlockPos) {
      const bool inside = at >= kUnusedHead && at + length <= m_directory.Offset();
      bool free = true;
      for (const CFileRange& used : m_used) {
        free = free && (at + length <= used.m_nBegin || used.m_nEnd <= at);
      }
      if (!inside)
        Add(info.m_strTableName, recordAt,
            Say(L"第 {1} 字节处的块在行区之外", L"a block at {1} lies outside the row area",
                {FormatInt(at)}));
      if (!free)
        Add(info.m_strTableName, at, Say(L"有块与另一块重叠", L"a block overlaps another one"));
      if (inside) m_used.push_back({at, at + length});
      sound = sound && inside && free;
    }
    return sound;
  }

  void Heading(const CDataFileInfo& info) {
    std::string stored;
    if (!ReadHeading(m_file, info, stored)) return;
    const CString& name = info.m_strTableName;
    const std::int64_t at = info.m_arrBlockPos[0];
    const auto wanted = 4 * static_cast<std::size_t>(ColumnsOf(info.m_nItemLen));
    const bool full = wanted > 0 && FieldBytes(stored).size() == stored.size();
    if (full)
      Add(name, at,
          Say(L"表头占满其区域，可能被截断", L"the heading fills its area and may be cut"));
    const CString form = DecodeText(stored);
    Text(name, at, Say(L"表头", L"the heading"), form);
    const std::vector<std::wstring_view> fields = SplitStored(form, wanted, full);
    const std::size_t count = form.IsEmpty() ? 0 : fields.size();
    if (full ? count > wanted : count != wanted) {
      return Add(name, at,
                 Say(L"表头有 {1} 个字段，应为 {2} 个，各行的每列 4 个",
                     L"the heading has {1} fields instead of {2}, 4 for each column of the rows",
                     {FormatInt(std::ssize(fields)), FormatInt(static_cast<int>(wanted))}));
    }
    for (std::size_t i = 0; i + 4 <= count; i += 4) Column(name, at, &fields[i]);
  }

  void Column(const CString& table, std::int64_t at, const std::wstring_view* fields) {
    const auto isDigit = [](std::wstring_view text, wchar_t last) {
      return text.size() == 1 && text[0] >= L'0' && text[0] <= last;
    };
    const CString column = Say(L"列“{1}”：", L"column \"{1}\": ", {CString(fields[1])});
    if (!isDigit(fields[2], L'1')) {
      Add(table, at,
          column + Say(L"关键字标志“{1}”不是 0 或 1", L"the key flag \"{1}\" is not 0 or 1",
                       {CString(fields[2])}));
    }
    if (!isDigit(fields[3], L'6')) {
      Add(table, at,
          column + Say(L"类型“{1}”不是 0 至 6", L"the type \"{1}\" is not 0 to 6",
                       {CString(fields[3])}));
    }
  }

  void Rows(const CDataFileInfo& info) {
    std::vector<std::string> slots;
    if (!ReadSlots(m_file, info, slots)) return;
    std::set<int> indices;
    int shared = 0;
    int first = 0;
    for (int i = 0; i < info.m_nRowNum; ++i) {
      const std::string& slot = slots[static_cast<std::size_t>(i)];
      const CString form = DecodeText(slot);
      const std::vector<std::wstring_view> fields = SplitFields(form);
      const CString row = Say(L"第 {1} 行", L"row {1}", {FormatInt(i + 1)});
      Slot(info, i, row, slot, fields);
      Text(info.m_strTableName, SlotOffset(info, i), row, form);
      if (fields.size() < 2) continue;
      State(info, i, row, fields);
      if (!Index(info, i, row, fields) || indices.insert(ToInt(fields[0])).second) continue;
      if (shared++ == 0) first = i;
    }
    if (shared == 0) return;
    Note(info.m_strTableName, SlotOffset(info, first),
         Say(L"固定序号与前面的行相同的有 {1} 行，其中第一个是第 {2} 行",
             L"stable indices that an earlier row has: {1}, the first in row {2}",
             {FormatInt(shared), FormatInt(first + 1)}));
  }

  // Whether a slot has all fields of its row. Nobody reads what is cut of a deleted one.
  void Slot(const CDataFileInfo& info, int position, const CString& row, const std::string& slot,
            const std::vector<std::wstring_view>& fields) {
    const auto wanted = static_cast<std::size_t>(ColumnsOf(info.m_nItemLen)) + 2;
    const std::int64_t at = SlotOffset(info, position);
    const bool full = std::ssize(slot) == info.m_nItemLen;
    const bool deleted = fields.size() > 1 && IsDeleted(ToInt(fields[1]));
    if (full && deleted && fields.size() <= wanted) return;
    const bool half = EncodeText(DecodeText(slot)).size() != slot.size();  // of a character
    if (full && (half || fields.size() < wanted)) {
      Add(info.m_strTableName, at,
          Say(L"{1}占满其槽，已被截断", L"{1} fills its slot and may be cut", {row}));
    } else if (full) {
      Note(info.m_strTableName, at,
           Say(L"{1}占满其槽；各值齐全", L"{1} fills its slot with all its values", {row}));
    }
    if (fields.size() != wanted) {
      Add(info.m_strTableName, at,
          Say(L"{1}有 {2} 个字段，应为 {3} 个", L"{1} has {2} fields instead of {3}",
              {row, FormatInt(std::ssize(fields)), FormatInt(static_cast<int>(wanted))}));
    }
    for (std::size_t i = 2; !deleted && i < fields.size(); ++i) {
      if (std::ssize(fields[i]) <= kMaxStoredValue) continue;
      Add(info.m_strTableName, at,
          Say(L"{1}：第 {2} 个值有 {3} 个字符，只读取前 30 个",
              L"{1}: value {2} has {3} characters, of which 30 are read",
              {row, FormatInt(static_cast<int>(i) - 1), FormatInt(std::ssize(fields[i]))}));
    }
  }

  // Whether a row's stable index is one.
  bool Index(const CDataFileInfo& info, int position, const CString& row,
             const std::vector<std::wstring_view>& fields) {
    const int index = ToInt(fields[0]);
    if (index >= 0 && FormatInt(index) == CString(fields[0])) return true;
    Value(info, position,
          Say(L"{1}：固定序号“{2}”不是 0 或正整数",
              L"{1}: the stable index \"{2}\" is no whole number from 0 on",
              {row, CString(fields[0])}));
    return false;
  }

  // What sound rows say. Deleted ones are read by nobody.
  void Values(const CDataFileInfo& info) {
    std::string heading;
    std::vector<std::string> slots;
    CDataTable table;
    if (!ReadHeading(m_file, info, heading) || !ReadSlots(m_file, info, slots) ||
        !StoredHeading(heading, table.m_Title)) {
      return;
    }
    for (const std::string& slot : slots) {
      CDataItem row;
      const bool full = std::ssize(slot) == info.m_nItemLen;
      if (!RowOf(DecodeText(slot), table.m_Title, full, row)) return;
      row.m_nIndex = table.m_arrItem.GetSize();
      table.m_arrItem.Add(row);
    }
    for (int i = 0; i < table.GetTableRowNum(); ++i) {
      if (!IsDeleted(std::as_const(table)[i].m_nModifyType)) Values(info, table, i);
    }
  }

  void Values(const CDataFileInfo& info, const CDataTable& table, int position) {
    const CDataItem& row = table[position];
    const CString place = Say(L"第 {1} 行", L"row {1}, ", {FormatInt(position + 1)});
    for (int i = 0; i < row.GetItemLength(); ++i) {
      if (row[i].m_strValue.Find(L'\r') >= 0) {
        Value(
            info, position,
            place + Say(L"列“{1}”：值含有回车", L"column \"{1}\": the value has a carriage return",
                        {row.GetCellSign(i)}));
      }
      if (Fits(row[i])) continue;
      Value(info, position, place + MisfitText(row[i]).In(MessageLanguage()));
    }
    const int same = table.IsHaveValue(row, position);
    if (same < 0 || same > position) return;
    Value(info, position,
          Say(L"第 {1} 行的关键字“{2}”与第 {3} 行相同，查找时只能得到前一行",
              L"row {1} has the key \"{2}\" of row {3}, which is all that look-ups find",
              {FormatInt(position + 1), KeyText(table, row), FormatInt(same + 1)}));
  }

  void Value(const CDataFileInfo& info, int position, const CString& what) {
    m_faults.push_back({info.m_strTableName, SlotOffset(info, position), what, true});
  }

  static CString KeyText(const CDataTable& table, const CDataItem& row) {
    CArray<int, int> keys;
    table.m_Title.GetDataTableKeyIndex(keys);
    CString text;
    for (const int key : keys) text += (text.IsEmpty() ? L"" : L", ") + row[key].m_strValue;
    return text;
  }

  // A save writes 0, 4 and -1. The others that the library knows are of rows never marked as saved,
  // which can be read.
  void State(const CDataFileInfo& info, int position, const CString& row,
             const std::vector<std::wstring_view>& fields) {
    const int state = ToInt(fields[1]);
    const bool known = FormatInt(state) == CString(fields[1]) && state >= -2 && state <= 4;
    if (known && StateOnFile(state) == state) return;
    const CString what =
        Say(L"{1}：状态“{2}”不是 0、4 或 -1", L"{1}: the state \"{2}\" is not 0, 4 or -1",
            {row, CString(fields[1])});
    m_faults.push_back({info.m_strTableName, SlotOffset(info, position), what, known});
  }

  // What a save of fewer rows leaves behind, and what is left of rows whose count was lost.
  void LeftOver(CDataFileInfo info, std::int64_t recordAt) {
    const CString& name = info.m_strTableName;
    const int rows = info.m_nRowNum;
    const int blocks = info.m_arrBlockPos.GetSize();
    const int needed = BlocksFor(rows);
    if (blocks > needed) {
      Note(name, recordAt, Needs(rows, needed, blocks));
    }
    info.m_nRowNum = FirstRowOf(blocks);
    std::vector<std::string> slots;
    if (info.m_nRowNum <= rows || !ReadSlots(m_file, info, slots)) return;
    const auto behind = slots.begin() + rows;
    const auto isUsed = [](const std::string& slot) { return !slot.empty(); };
    const auto first = std::find_if(behind, slots.end(), isUsed);
    if (first == slots.end()) return;
    Note(name, SlotOffset(info, static_cast<int>(first - slots.begin())),
         Say(L"在目录记录的行数 {2} 之后还有行，共 {1} 行",
             L"behind the record's count of {2} lie more rows: {1}",
             {FormatInt(std::count_if(first, slots.end(), isUsed)), FormatInt(rows)}));
  }

  const CStoreFile& m_file;
  std::vector<CStoreFault>& m_faults;
  std::vector<CStoreFault>& m_notes;
  CTableDirectory m_directory;
  std::set<CString> m_names;
  std::vector<CFileRange> m_used;
};

CStoreTable Describe(const CStoreFile& file, const CDataFileInfo& info, std::int64_t directoryAt) {
  CStoreTable table;
  table.m_strName = info.m_strTableName;
  table.m_nRows = info.m_nRowNum;
  table.m_nSlot = info.m_nItemLen;
  if (IsSlotLength(info.m_nItemLen)) table.m_nColumns = ColumnsOf(info.m_nItemLen);
  table.m_arrBlock.assign(info.m_arrBlockPos.begin(), info.m_arrBlockPos.end());
  std::vector<std::string> slots;
  if (BlocksOf(info, directoryAt).empty() || !ReadSlots(file, info, slots)) return table;
  for (const std::string& slot : slots) {
    const int state = StateOf(slot);
    ++table.m_mapState[state];
    table.m_nDeleted += IsDeleted(state);
  }
  return table;
}

}  // namespace

bool ReadStoreInfo(const CString& path, CStoreInfo& info) {
  ClearStoreError();
  info = CStoreInfo();
  const auto file = CStoreFile::OpenToRead(path);
  if (!file) return false;
  CTableDirectory directory;
  if (!directory.Read(*file)) {
    SetStoreError(CStoreTrouble::NotAStore, path,
                  Say(L"{1}: 不是截面库文件", L"{1}: not a table file", {path}));
    return false;
  }
  info.m_strLine = directory.InfoLine();
  info.m_nKind = KindOf(info.m_strLine);
  const int count = directory.Count();
  info.m_nFreeTables = kMaxTables - count;
  for (int i = 0; i < count; ++i) {
    info.m_arrTable.push_back(Describe(*file, directory.Record(i), directory.Offset()));
  }
  return true;
}

bool VerifyStore(const CString& path, std::vector<CStoreFault>& faults,
                 std::vector<CStoreFault>* notes) {
  ClearStoreError();
  std::vector<CStoreFault> found;
  faults.clear();
  const auto file = CStoreFile::OpenToRead(path);
  if (!file) return false;
  CVerify(*file, faults, found).Run();
  if (notes) *notes = std::move(found);
  return true;
}

}  // namespace orv3
