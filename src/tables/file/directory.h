// The directory of a table file: the information line and the table records, the last 20100 bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "platform/store_file.h"
#include "tables/file/info.h"
#include "tables/file/layout.h"

namespace orv3 {

std::wstring RecordForm(const CDataFileInfo& info);
CDataFileInfo RecordOf(std::wstring_view form);

// "KvbTable_1.0_2005_3,kind,year-month-day:hour:minute:second:millisecond" of this moment.
CString NewInfoLine(int storeKind);

class CTableDirectory {
 public:
  // A new one with an information line and no table.
  explicit CTableDirectory(const CString& infoLine);
  CTableDirectory() = default;

  // Reads a file's; false when it has none: too short, unreadable or without the magic.
  bool Read(const CStoreFile& file);
  // Writes it at Offset().
  bool Write(CStoreFile& file) const;

  // Where the directory begins, which is where the row blocks end.
  std::int64_t Offset() const { return m_nOffset; }
  void MoveTo(std::int64_t offset) { m_nOffset = offset; }

  CString InfoLine() const;
  int Count() const;  // records up to the first without a name
  CDataFileInfo Record(int i) const;
  std::string_view NameBytes(int i) const;
  CString Name(int i) const;             // Record(i).m_strTableName alone
  int Find(const CString& table) const;  // the table's record; -1 when there is none
  bool IsFull() const { return Count() >= kMaxTables; }
  void SetRecord(int i, const std::string& field);  // 200 bytes
  bool HasEndMark() const { return m_strBytes.back() == '#'; }
  std::string_view RecordBytes(int i) const;

 private:
  std::string m_strBytes = std::string(kDirectorySize, '\0');
  std::int64_t m_nOffset = kUnusedHead;
};

// A piece of a file that a table uses.
struct CFileRange {
  std::int64_t m_nBegin;
  std::int64_t m_nEnd;
};

// The row blocks that a record's rows use, as pieces of the file. Empty unless the slot length is
// one, the row count is not negative and those blocks are all named and lie between the head and
// the directory without overlapping.
std::vector<CFileRange> BlocksOf(const CDataFileInfo& info, std::int64_t directoryAt);
bool Overlap(std::vector<CFileRange> ranges);

// Where a row's slot is, for a record that BlocksOf accepts.
std::int64_t SlotOffset(const CDataFileInfo& info, int row);
// The rows' slots, each up to its first zero byte.
bool ReadSlots(const CStoreFile& file, const CDataFileInfo& info, std::vector<std::string>& slots);
// The heading area of the first block.
bool ReadHeading(const CStoreFile& file, const CDataFileInfo& info, std::string& stored);

}  // namespace orv3
