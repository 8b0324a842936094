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

// As many records as the file has of its own size, each read with the larger of that and the
// style's size, so that records of another size do not line up. What is read beyond the style's
// size means nothing; where the file ends first, the record is zero from there on.
void AddRecords(const CRolledStyle& style, const std::string& bytes, std::size_t fileSize, int bNew,
                CDataTable& table) {
  const auto styleSize = static_cast<std::size_t>(style.m_nSize);
  const std::size_t length = std::max(fileSize, styleSize);
  for (std::size_t i = 0; i < bytes.size() / fileSize; ++i) {
    const std::size_t at = std::min(i * length, bytes.size());
    std::string record = bytes.substr(at, styleSize);
    record.resize(styleSize, '\0');
    if (table.IsHaveValue(0, orv3::RecordNumber(style, record.data()), -1) < 0)
      table.AddTableItem(orv3::RecordRow(style, record.data()), bNew);
    if (at == bytes.size()) break;  // all that follow are zero too, and there already
  }
}

std::wstring_view FileName(std::wstring_view path) {
  return path.substr(path.find_last_of(L"\\/") + 1);
}

}  // namespace

int CReadFile::GetXGStyleName(CStringArray& names) {
  names.RemoveAll();
  for (const CRolledStyle& style : orv3::RolledStyles()) names.Add(style.Name());
  return names.GetSize();
}

int CReadFile::GetXGStyleIndex(const wchar_t* name) {
  return name ? orv3::FindRolledStyle(name) : -1;
}

CString CReadFile::GetXGStyleNo(int index) {
  if (index < 0 || index >= orv3::kRolledStyles) return {};
  return orv3::RolledStyles()[static_cast<std::size_t>(index)].Name();
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
  table.SetTableName(style.Name());
  table.GetSystemJmTable();
  if (table.GetTableColNum() <= 1) table.m_Title = orv3::RolledTitle(style);
  AddRecords(style, bytes, recordSize, userTwin ? 1 : 0, table);
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
