#include "tables/file/store_check.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/table_text.h"

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
                 L"no information line with \"" + CString(kTableMagic) + L"\" at end - 20100");
    }
    const std::int64_t end = static_cast<std::int64_t>(m_file.Size());
    if (!m_directory.HasEndMark()) Add(L"", end - 1, L"the last byte is not \"#\"");
    if (KindOf(m_directory.InfoLine()) < 0) {
      Add(L"", m_directory.Offset(), L"the information line's store kind is not 0, 1 or 2");
    }
    const int count = m_directory.Count();
    for (int i = 0; i < count; ++i) Record(i);
    for (int i = count; i < kMaxTables; ++i) {
      if (!FieldBytes(m_directory.RecordBytes(i)).empty()) {
        Add(L"", RecordAt(i), L"a record behind the end of the records");
      }
    }
    if (m_faults.empty()) Gaps();
  }

 private:
  // A save never gives a block back: bytes of no table are those of one whose record is lost.
  void Gaps() {
    std::sort(m_used.begin(), m_used.end(),
              [](const CFileRange& a, const CFileRange& b) { return a.m_nBegin < b.m_nBegin; });
    std::int64_t at = kUnusedHead;
    m_used.push_back({m_directory.Offset(), m_directory.Offset()});
    for (const CFileRange& used : m_used) {
      if (used.m_nBegin > at)
        Note(L"", at, FormatInt(used.m_nBegin - at) + L" bytes belong to no table");
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
      Add(table, offset, part + L" has bytes that are no text of the code page");
    }
  }

  std::int64_t RecordAt(int i) const {
    return m_directory.Offset() + kInfoLineSize + std::int64_t{kRecordSize} * i;
  }

  void Record(int i) {
    const CDataFileInfo info = m_directory.Record(i);
    const CString& name = info.m_strTableName;
    const std::int64_t at = RecordAt(i);
    if (!m_names.insert(name).second) Add(name, at, L"an earlier table has the same name");
    if (FieldBytes(m_directory.RecordBytes(i)).size() == kRecordSize) {
      Add(name, at, L"the record fills its 200 bytes and may be cut");
    }
    Text(name, at, L"the record", DecodeText(m_directory.RecordBytes(i)));
    if (!Numbers(i, info)) return;
    if (!IsSlotLength(info.m_nItemLen)) {
      return Add(name, at, L"slot length " + FormatInt(info.m_nItemLen) + L" is not 33 n + 25");
    }
    if (info.m_nRowNum < 0) return Add(name, at, L"the row count is negative");
    const int blocks = info.m_arrBlockPos.GetSize();
    if (blocks < BlocksFor(info.m_nRowNum)) {
      Add(name, at,
          FormatInt(info.m_nRowNum) + L" rows need " + FormatInt(BlocksFor(info.m_nRowNum)) +
              L" blocks, but the record names " + FormatInt(blocks));
    }
    if (!Blocks(info, at) || BlocksOf(info, m_directory.Offset()).empty()) return;
    Heading(info);
    Rows(info);
    LeftOver(info, at);
  }

  // Whether the record's numbers read as what stands there: a count of "15x" would pass for 15.
  bool Numbers(int i, const CDataFileInfo& info) {
    const CString form = DecodeText(m_directory.RecordBytes(i));
    if (form == CString(RecordForm(info))) return true;
    Add(info.m_strTableName, RecordAt(i), L"the record's numbers are none: \"" + form + L"\"");
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
            L"a block at " + FormatInt(at) + L" lies outside the row area");
      if (!free) Add(info.m_strTableName, at, L"a block overlaps another one");
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
    if (full) Add(name, at, L"the heading fills its area and may be cut");
    const CString form = DecodeText(stored);
    Text(name, at, L"the heading", form);
    const std::vector<std::wstring_view> fields = SplitStored(form, wanted, full);
    const std::size_t count = form.IsEmpty() ? 0 : fields.size();
    if (full ? count > wanted : count != wanted) {
      return Add(name, at,
                 L"the heading has " + FormatInt(std::ssize(fields)) + L" fields instead of " +
                     FormatInt(static_cast<int>(wanted)) + L", 4 for each column of the rows");
    }
    for (std::size_t i = 0; i + 4 <= count; i += 4) Column(name, at, &fields[i]);
  }

  void Column(const CString& table, std::int64_t at, const std::wstring_view* fields) {
    const auto isDigit = [](std::wstring_view text, wchar_t last) {
      return text.size() == 1 && text[0] >= L'0' && text[0] <= last;
    };
    const CString column = L"column \"" + CString(fields[1]) + L"\": ";
    if (!isDigit(fields[2], L'1')) {
      Add(table, at, column + L"the key flag \"" + CString(fields[2]) + L"\" is not 0 or 1");
    }
    if (!isDigit(fields[3], L'6')) {
      Add(table, at, column + L"the type \"" + CString(fields[3]) + L"\" is not 0 to 6");
    }
  }

  void Rows(const CDataFileInfo& info) {
    std::vector<std::string> slots;
    if (!ReadSlots(m_file, info, slots)) return;
    const auto wanted = static_cast<std::size_t>(ColumnsOf(info.m_nItemLen)) + 2;
    for (int i = 0; i < info.m_nRowNum; ++i) {
      const std::string& slot = slots[static_cast<std::size_t>(i)];
      const CString form = DecodeText(slot);
      const std::size_t fields = SplitFields(form).size();
      const std::int64_t at = SlotOffset(info, i);
      const CString row = L"row " + FormatInt(i + 1);
      if (std::ssize(slot) == info.m_nItemLen) {
        Add(info.m_strTableName, at, row + L" fills its slot and may be cut");
      }
      if (fields != wanted) {
        Add(info.m_strTableName, at,
            row + L" has " + FormatInt(static_cast<int>(fields)) + L" fields instead of " +
                FormatInt(static_cast<int>(wanted)));
      }
      Text(info.m_strTableName, at, row, form);
      State(info.m_strTableName, at, row, form);
    }
  }

  // The states that a save writes, and those of rows that were never marked as saved.
  void State(const CString& table, std::int64_t at, const CString& row, const CString& form) {
    const std::vector<std::wstring_view> fields = SplitFields(form);
    if (fields.size() < 2) return;
    const int state = ToInt(fields[1]);
    if (FormatInt(state) == CString(fields[1]) && state >= -2 && state <= 4) return;
    Add(table, at, row + L": the state \"" + CString(fields[1]) + L"\" is not -2 to 4");
  }

  // What a save of fewer rows leaves behind, and what is left of rows whose count was lost.
  void LeftOver(CDataFileInfo info, std::int64_t recordAt) {
    const CString& name = info.m_strTableName;
    const int rows = info.m_nRowNum;
    const int blocks = info.m_arrBlockPos.GetSize();
    const int needed = BlocksFor(rows);
    if (blocks > needed) {
      Note(name, recordAt,
           FormatInt(rows) + L" rows need " + FormatInt(needed) +
               L" blocks, but the record names " + FormatInt(blocks));
    }
    info.m_nRowNum = FirstRowOf(blocks);
    std::vector<std::string> slots;
    if (info.m_nRowNum <= rows || !ReadSlots(m_file, info, slots)) return;
    const auto behind = slots.begin() + rows;
    const auto isUsed = [](const std::string& slot) { return !slot.empty(); };
    const auto first = std::find_if(behind, slots.end(), isUsed);
    if (first == slots.end()) return;
    Note(name, SlotOffset(info, static_cast<int>(first - slots.begin())),
         FormatInt(std::count_if(first, slots.end(), isUsed)) +
             L" rows lie behind the record's count of " + FormatInt(rows));
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
    SetStoreError(CStoreTrouble::NotAStore, path, path + L": not a table file");
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
