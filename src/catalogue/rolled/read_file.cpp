#include "catalogue/rolled/read_file.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/rolled/rolled_record.h"
#include "catalogue/rolled/rolled_style.h"
#include "platform/whole_file.h"
#include "tables/data_table.h"

using orv3::CRolledStyle;

namespace {

constexpr std::size_t kHeader = 2;
constexpr std::size_t kLargestFile = std::size_t{1} << 24;  // 30,000 of the largest records

// The bytes behind the header and the record size that it gives; false when there is no record.
bool ReadRecords(const wchar_t* path, std::string& bytes, std::size_t& recordSize) {
  orv3::CFileStamp stamp;
  const CString file(path);
  if (orv3::Files().Stamp(file, stamp) != orv3::CFileError::None || stamp.m_nSize > kLargestFile)
    return false;
  if (orv3::ReadWholeFile(file, bytes) != orv3::CFileError::None || bytes.size() <= kHeader)
    return false;
  std::int16_t size = 0;
  std::memcpy(&size, bytes.data(), kHeader);
  bytes.erase(0, kHeader);
  recordSize = static_cast<std::size_t>(size);
  return size > 0 && bytes.size() >= recordSize;
}

// The records of the style, one slot each. Every read takes the larger of the two record sizes,
// the slots advance by the style's: what a read brings beyond its slot is the start of the next
// one until that is read, and stays there when the file ends first.
std::string SlotsOf(const std::string& bytes, std::size_t fileSize, std::size_t styleSize) {
  const std::size_t length = std::max(fileSize, styleSize);
  const std::size_t reads = (bytes.size() + length - 1) / length;
  const std::size_t reached = reads + (length - styleSize + styleSize - 1) / styleSize;
  // Behind what the file reaches all slots are zero, and as good as one.
  const std::size_t count = std::min(bytes.size() / fileSize, reached + 1);
  std::string slots(count * styleSize + (length - styleSize), '\0');
  for (std::size_t i = 0; i < std::min(count, reads); ++i) {
    const std::size_t got = std::min(length, bytes.size() - i * length);
    std::memcpy(slots.data() + i * styleSize, bytes.data() + i * length, got);
  }
  slots.resize(count * styleSize);
  return slots;
}

std::wstring_view FileName(std::wstring_view path) {
  return path.substr(path.find_last_of(L"\\/") + 1);
}

}  // namespace

int CReadFile::GetXGStyleName(CStringArray& names) {
  names.RemoveAll();
  for (const CRolledStyle& style : orv3::RolledStyles()) names.Add(style.m_strName);
  return names.GetSize();
}

int CReadFile::GetXGStyleIndex(const wchar_t* name) {
  return name ? orv3::FindRolledStyle(name) : -1;
}

CString CReadFile::GetXGStyleNo(int index) {
  if (index < 0 || index >= orv3::kRolledStyles) return {};
  return orv3::RolledStyles()[static_cast<std::size_t>(index)].m_strName;
}

int CReadFile::GetIronData(const wchar_t* path, CDataTable& table) {
  std::string bytes;
  std::size_t recordSize = 0;
  if (!path || !ReadRecords(path, bytes, recordSize)) return 0;
  table.ClearTable();
  bool userTwin = false;
  const int index = orv3::FindRolledFile(FileName(path), userTwin);
  if (index < 0) return 0;

  const CRolledStyle& style = orv3::RolledStyles()[static_cast<std::size_t>(index)];
  const auto styleSize = static_cast<std::size_t>(style.m_nSize);
  const std::string slots = SlotsOf(bytes, recordSize, styleSize);
  table.SetTableName(style.m_strName);
  table.GetSystemJmTable();
  if (table.GetTableColNum() <= 1) table.m_Title = orv3::RolledTitle(style);
  for (std::size_t at = 0; at < slots.size(); at += styleSize) {
    const char* const record = slots.data() + at;
    if (table.IsHaveValue(0, orv3::RecordNumber(style, record), -1) < 0)
      table.AddTableItem(orv3::RecordRow(style, record), userTwin ? 1 : 0);
  }
  return 1;
}

int CReadFile::TransDataItemToXGStruct(const CDataItem& item, void* record) {
  const int index = orv3::FindRolledStyle(item.m_strTableName);
  if (index < 0 || !record) return -1;
  orv3::FillRecord(orv3::RolledStyles()[static_cast<std::size_t>(index)], item,
                   static_cast<char*>(record));
  return index;
}

int CReadFile::TransXGStructToDataItem(int, void*, CDataItem&) { return 0; }
