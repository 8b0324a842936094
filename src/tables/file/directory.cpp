#include "tables/file/directory.h"

#include <algorithm>

#include "framework/number_text.h"
#include "tables/file/table_text.h"

namespace orv3 {

CString NewInfoLine(int storeKind) {
  const CLocalTime now = Files().LocalTime();
  CString line = CString(kTableMagic) + L"," + FormatInt(storeKind) + L"," + FormatInt(now.m_nYear);
  line += L"-" + FormatInt(now.m_nMonth) + L"-" + FormatInt(now.m_nDay);
  for (const int part : {now.m_nHour, now.m_nMinute, now.m_nSecond, now.m_nMillisecond}) {
    line += L":" + FormatInt(part);
  }
  return line;
}

CTableDirectory::CTableDirectory(const CString& infoLine) {
  m_strBytes.replace(0, kInfoLineSize, EncodeField(infoLine, kInfoLineSize));
  m_strBytes.back() = '#';
}

bool CTableDirectory::Read(const CStoreFile& file) {
  if (file.Size() < kDirectorySize || file.Size() > kMaxTableFile) return false;
  m_nOffset = static_cast<std::int64_t>(file.Size()) - kDirectorySize;
  return file.Read(static_cast<std::uint64_t>(m_nOffset), m_strBytes.data(), kDirectorySize) &&
         InfoLine().Find(kTableMagic) >= 0;
}

bool CTableDirectory::Write(CStoreFile& file) const {
  return file.Write(static_cast<std::uint64_t>(m_nOffset), m_strBytes.data(), kDirectorySize);
}

CString CTableDirectory::InfoLine() const {
  return DecodeText(std::string_view(m_strBytes).substr(0, kInfoLineSize));
}

std::string_view CTableDirectory::RecordBytes(int i) const {
  const auto at = kInfoLineSize + kRecordSize * static_cast<std::size_t>(i);
  return std::string_view(m_strBytes).substr(at, kRecordSize);
}

CDataFileInfo CTableDirectory::Record(int i) const { return RecordOf(DecodeText(RecordBytes(i))); }

std::string_view CTableDirectory::NameBytes(int i) const {
  static const std::string separator = EncodeText(kFieldSeparator);  // the same in every code page
  const std::string_view bytes = FieldBytes(RecordBytes(i));
  return bytes.substr(0, bytes.find(separator));  // no character has a comma for its second byte
}

CString CTableDirectory::Name(int i) const { return DecodeText(NameBytes(i)); }

int CTableDirectory::Count() const {
  constexpr std::size_t kLongestPart = 3;  // of a character that lacks bytes and reads as nothing
  int count = 0;
  while (count < kMaxTables && (NameBytes(count).size() > kLongestPart || !Name(count).IsEmpty())) {
    ++count;
  }
  return count;
}

int CTableDirectory::Find(const CString& table) const {
  const std::string wanted = EncodeText(table);
  for (int i = 0; i < kMaxTables && !NameBytes(i).empty(); ++i) {
    if (NameBytes(i) == wanted && Name(i) == table) return i;
  }
  // By other bytes for the same characters.
  for (int i = 0; i < kMaxTables; ++i) {
    const CString name = Name(i);
    if (name.IsEmpty()) return -1;
    if (name == table) return i;
  }
  return -1;
}

void CTableDirectory::SetRecord(int i, const std::string& field) {
  const auto at = kInfoLineSize + kRecordSize * static_cast<std::size_t>(i);
  m_strBytes.replace(at, kRecordSize, field);
}

bool Overlap(std::vector<CFileRange> ranges) {
  std::sort(ranges.begin(), ranges.end(),
            [](const auto& a, const auto& b) { return a.m_nBegin < b.m_nBegin; });
  for (std::size_t i = 1; i < ranges.size(); ++i) {
    if (ranges[i].m_nBegin < ranges[i - 1].m_nEnd) return true;
  }
  return false;
}

std::vector<CFileRange> BlocksOf(const CDataFileInfo& info, std::int64_t directoryAt) {
  if (!IsSlotLength(info.m_nItemLen) || info.m_nRowNum < 0) return {};
  // Of the last block reserved nothing is used until a row reaches it.
  const int used = info.m_nRowNum == 0 ? 1 : BlockOf(info.m_nRowNum - 1) + 1;
  if (info.m_arrBlockPos.GetSize() < used) return {};
  const std::int64_t length = BlockLength(ColumnsOf(info.m_nItemLen));
  std::vector<CFileRange> blocks;
  for (int i = 0; i < used; ++i) {
    const std::int64_t at = info.m_arrBlockPos[i];
    if (at < kUnusedHead || at + length > directoryAt) return {};
    blocks.push_back({at, at + length});
  }
  if (Overlap(blocks)) return {};
  return blocks;
}

std::int64_t SlotOffset(const CDataFileInfo& info, int row) {
  return info.m_arrBlockPos[BlockOf(row)] + SlotInBlock(row, ColumnsOf(info.m_nItemLen));
}

bool ReadSlots(const CStoreFile& file, const CDataFileInfo& info, std::vector<std::string>& slots) {
  const auto length = static_cast<std::size_t>(info.m_nItemLen);
  slots.clear();
  slots.reserve(static_cast<std::size_t>(info.m_nRowNum));
  std::string block;
  for (int row = 0; row < info.m_nRowNum;) {
    const int end = std::min(info.m_nRowNum, FirstRowOf(BlockOf(row) + 1));
    block.resize(static_cast<std::size_t>(end - row) * length);
    const auto at = static_cast<std::uint64_t>(SlotOffset(info, row));
    if (!file.Read(at, block.data(), block.size())) return false;
    for (std::string_view left = block; !left.empty(); left.remove_prefix(length)) {
      slots.emplace_back(FieldBytes(left.substr(0, length)));
    }
    row = end;
  }
  return true;
}

bool ReadHeading(const CStoreFile& file, const CDataFileInfo& info, std::string& stored) {
  const std::int64_t length = HeadingLength(ColumnsOf(info.m_nItemLen));
  stored.resize(static_cast<std::size_t>(length));
  return file.Read(static_cast<std::uint64_t>(info.m_arrBlockPos[0]), stored.data(), stored.size());
}

}  // namespace orv3
