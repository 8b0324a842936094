// Reading tables from table files.
#include <utility>

#include "framework/language.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/file/directory.h"
#include "tables/file/image.h"
#include "tables/file/table_text.h"

using orv3::CStoreFile;
using orv3::CStoreTrouble;
using orv3::CTableDirectory;
using orv3::SetStoreError;

namespace {

int NotATableFile(const CString& path) {
  return SetStoreError(CStoreTrouble::NotAStore, path,
                       orv3::Say(L"{1}: 不是截面库文件；其信息行中应有“{2}”",
                                 L"{1}: not a table file; one has \"{2}\" in its information line",
                                 {path, orv3::kTableMagic}));
}

int Damaged(const CString& path, const CString& table, const CString& what) {
  return SetStoreError(
      CStoreTrouble::Damaged, path,
      orv3::Say(L"{1}: 表“{2}”：{3}", L"{1}: table \"{2}\": {3}", {path, table, what}));
}

}  // namespace

namespace orv3 {

// The table's record, 1; 0 with the reason when there is no table file or no such table.
int FindRecord(const CStoreFile& file, const CString& table, CString& infoLine,
               CDataFileInfo& info) {
  CTableDirectory directory;
  if (!directory.Read(file)) return NotATableFile(file.Path());
  infoLine = directory.InfoLine();
  const int record = directory.Find(table);
  if (record < 0) {
    return SetStoreError(
        CStoreTrouble::NoTable, file.Path(),
        Say(L"{1}: 没有表“{2}”", L"{1}: has no table \"{2}\"", {file.Path(), table}));
  }
  info = directory.Record(record);
  return 1;
}

}  // namespace orv3

int CDataTable::ReadTableFileInfo(CStoreFile* file, CString& infoLine, CDataFileInfo& info) const {
  if (!file) return 0;
  return orv3::FindRecord(*file, m_strTableName, infoLine, info);
}

int CDataTable::ReadTableFileInfo(const CString& path, CString& infoLine) {
  orv3::ClearStoreError();
  if (m_strTableName.IsEmpty()) SetTableName(L"test");
  const auto file = CStoreFile::OpenToRead(path);
  if (!file) return 0;
  CDataFileInfo info;
  CString line;
  ReadTableFileInfo(file.get(), line, info);
  if (line.Find(orv3::kTableMagic) < 0) return 0;
  infoLine = line;
  return 1;
}

int CDataTable::GetTable(const CString& path, CString& infoLine) {
  orv3::ClearStoreError();
  const auto file = CStoreFile::OpenToRead(path);
  if (!file) return 0;
  CString line;
  CDataFileInfo info;
  if (!ReadTableFileInfo(file.get(), line, info)) return 0;
  const std::int64_t end = static_cast<std::int64_t>(file->Size()) - orv3::kDirectorySize;
  if (orv3::BlocksOf(info, end).empty()) {
    return Damaged(path, m_strTableName,
                   orv3::Say(L"目录记录中的槽长、行数或块不可能",
                             L"its record names impossible slots, rows or blocks"));
  }

  auto image = std::make_shared<orv3::CTableImage>();
  std::string heading;
  if (!orv3::ReadHeading(*file, info, heading) || !orv3::ReadSlots(*file, info, image->m_arrSlot)) {
    return Damaged(path, m_strTableName, orv3::Say(L"不能读取各行", L"its rows cannot be read"));
  }
  CDataTableTitle title;
  if (!orv3::StoredHeading(heading, title)) {
    return Damaged(path, m_strTableName,
                   orv3::Say(L"表头与各行不符", L"its heading does not go with its rows"));
  }
  CDataItemArray rows;
  for (const std::string& slot : image->m_arrSlot) {
    CDataItem row;
    row.m_strTableName = m_strTableName;
    row.m_strFileInfo = line;
    const bool cut = std::ssize(slot) == info.m_nItemLen;
    if (!orv3::RowOf(orv3::DecodeText(slot), title, cut, row)) {
      return Damaged(path, m_strTableName, orv3::Say(L"有一行缺少值", L"a row lacks values"));
    }
    image->m_arrIndex.push_back(row.m_nIndex);
    rows.Add(row);
  }

  m_Title = title;
  const bool wasEmpty = m_arrItem.IsEmpty();
  m_arrItem.Append(rows);
  SetTableFileInfo(line);
  infoLine = line;
  image->m_strPath = file->Path();
  image->m_strTable = m_strTableName;
  image->m_state = file->State();
  m_pImage = std::move(image);
  m_arrEarlierImage.clear();
  m_nImageArrangement = wasEmpty ? m_arrItem.Arrangement() : kNoArrangement;
  return 1;
}

int CDataTable::GetTableNameFromFile(const CString& path, CStringArray& names) {
  orv3::ClearStoreError();
  const auto file = CStoreFile::OpenToRead(path);
  if (!file) return 0;
  CTableDirectory directory;
  if (!directory.Read(*file)) return NotATableFile(path);
  const int count = directory.Count();
  for (int i = 0; i < count; ++i) names.Add(directory.Name(i));
  return count;
}
