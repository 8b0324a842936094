#include "sections/record_store.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "framework/language.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"

using orv3::CStoreFile;
using orv3::CStoreTrouble;
using orv3::GroupHeaderAt;
using orv3::kFirstSlot;
using orv3::kGroupHeadersEnd;
using orv3::kGroupHeaderStep;
using orv3::kGroupStep;
using orv3::kHeaderAt;
using orv3::kRecordSlot;
using orv3::kSingleGroup;
using orv3::kSystemGroups;
using FileInfo = CSteelJMData::FileInfo;

namespace {

constexpr std::int64_t kMaxStore = 0x7FFFFFFF;

bool ReadInfo(const CStoreFile& file, int at, FileInfo& info) {
  unsigned char bytes[12];
  if (!file.Read(static_cast<std::uint64_t>(at), bytes, sizeof bytes)) return false;
  std::int32_t* const fields[] = {&info.m_nGroup, &info.m_nOffset, &info.m_nCount};
  for (std::size_t i = 0; i < 3; ++i) {
    std::uint32_t value = 0;
    for (std::size_t b = 4; b-- > 0;) value = value << 8 | bytes[4 * i + b];
    *fields[i] = static_cast<std::int32_t>(value);
  }
  return true;
}

bool WriteInfo(CStoreFile& file, int at, const FileInfo& info) {
  unsigned char bytes[12];
  const std::int32_t fields[] = {info.m_nGroup, info.m_nOffset, info.m_nCount};
  for (std::size_t i = 0; i < sizeof bytes; ++i) {
    bytes[i] = static_cast<unsigned char>(static_cast<std::uint32_t>(fields[i / 4]) >> 8 * (i % 4));
  }
  return file.Write(static_cast<std::uint64_t>(at), bytes, sizeof bytes);
}

bool IsValid(const FileInfo& info) { return info.m_nOffset >= 1 && info.m_nCount >= 0; }

bool ReadGroup(const CStoreFile& file, int group, FileInfo& info) {
  return ReadInfo(file, GroupHeaderAt(group), info) && IsValid(info);
}

std::int64_t EndOf(const FileInfo& info) {
  return info.m_nOffset + std::int64_t{info.m_nCount} * kRecordSlot;
}

bool IsGroup(int group) { return group >= kSingleGroup && group < kSystemGroups; }

// Where a group begins that is used for the first time: at its own place, or behind the group
// before it where that has moved on to there.
std::int64_t FirstOffset(const CStoreFile& file, int group) {
  const std::int64_t offset = kFirstSlot + std::int64_t{kGroupStep} * group;
  FileInfo before;
  if (group == 0 || !ReadGroup(file, group - 1, before) || EndOf(before) < offset) return offset;
  return offset + ((EndOf(before) - offset) / kGroupStep + 1) * kGroupStep;
}

// Group headers that a new store, or a group used for the first time, does not have yet.
bool WriteMissingHeaders(CStoreFile& file, int group) {
  FileInfo info;
  if (!ReadInfo(file, kHeaderAt, info) || info.m_nOffset <= 0) {
    const int groups = group == kSingleGroup ? 1 : kSystemGroups;
    if (!WriteInfo(file, kHeaderAt, {-1, groups, 0})) return false;
  }
  if (ReadGroup(file, group, info)) return true;
  for (int g = 0; g <= std::max(group, 0); ++g) {
    if (ReadGroup(file, g, info)) continue;
    const std::int64_t offset = FirstOffset(file, g);
    if (offset > kMaxStore) return false;
    if (!WriteInfo(file, GroupHeaderAt(g), {g, static_cast<int>(offset), 0})) return false;
  }
  return true;
}

// Moves everything from `from` on by the room of one group.
bool MoveOn(CStoreFile& file, std::int64_t from) {
  const auto size = static_cast<std::int64_t>(file.Size());
  if (from >= size) return true;
  if (size + kGroupStep > kMaxStore) return false;
  std::string bytes(static_cast<std::size_t>(size - from), '\0');
  return file.Read(static_cast<std::uint64_t>(from), bytes.data(), bytes.size()) &&
         file.Write(static_cast<std::uint64_t>(from + kGroupStep), bytes.data(), bytes.size());
}

// Makes room behind a group that ends at `end`: as long as the next group begins there or before,
// that one and all after it move on.
bool MakeRoom(CStoreFile& file, int group, std::int64_t end) {
  const int nextAt = GroupHeaderAt(group + 1);
  FileInfo next;
  while (nextAt < kGroupHeadersEnd && ReadInfo(file, nextAt, next) && IsValid(next) &&
         next.m_nOffset <= end) {
    if (!MoveOn(file, next.m_nOffset)) return false;
    for (int at = nextAt; at < kGroupHeadersEnd; at += kGroupHeaderStep) {
      FileInfo info;
      if (!ReadInfo(file, at, info) || info.m_nOffset <= 0) continue;
      if (info.m_nOffset > kMaxStore - kGroupStep) return false;
      info.m_nOffset += kGroupStep;
      if (!WriteInfo(file, at, info)) return false;
    }
  }
  return true;
}

// Whether the groups before one lie between the headers and it, and those after it behind it in
// their order without a gap among their headers: only then does its growth meet none that does not
// move on.
bool IsInOrder(const CStoreFile& file, int group, const FileInfo& info) {
  FileInfo other;
  for (int g = 0; g < group; ++g) {
    if (!ReadGroup(file, g, other)) continue;
    if (other.m_nOffset < kGroupHeadersEnd || EndOf(other) > info.m_nOffset) return false;
  }
  std::int64_t behind = EndOf(info);
  bool last = false;
  for (int g = group + 1; g < kSystemGroups; ++g) {
    if (!ReadGroup(file, g, other)) {
      last = true;
    } else if (last || other.m_nOffset < behind) {
      return false;
    } else {
      behind = other.m_nOffset;
    }
  }
  return true;
}

// Whether a group's header can be true of the file: its slots lie behind the headers, apart from
// those of the other groups, and not further behind the end of the file than groups that are still
// empty can be.
bool IsPlausible(const CStoreFile& file, int group, const FileInfo& info) {
  const bool single = group == kSingleGroup;
  const auto size = static_cast<std::int64_t>(file.Size());
  if (info.m_nOffset < (single ? kGroupHeaderStep + 12 : kGroupHeadersEnd)) return false;
  if (EndOf(info) > size + kFirstSlot + std::int64_t{kSystemGroups + 1} * kGroupStep) return false;
  return single || IsInOrder(file, group, info);
}

int Damaged(const CStoreFile& file) {
  return orv3::SetStoreError(
      CStoreTrouble::Damaged, file.Path(),
      orv3::Say(L"{1}: 各组的头与文件不符", L"{1}: its group headers contradict the file",
                {file.Path()}));
}

// Where each record of an array goes; -1 for one that is not written. `end` is the group's end on
// file and moves on with each slot appended.
std::vector<std::int64_t> Places(const CArray<CSteelJMData>& records, std::int64_t begin,
                                 std::int64_t& end) {
  std::vector<std::int64_t> places;
  std::deque<std::int64_t> freed;
  for (int i = 0; i < records.GetSize(); ++i) {
    const std::int64_t own = begin + std::int64_t{i} * kRecordSlot;
    const int state = records[i].m_nState;
    if (state == orv3::kUnchanged) {
      places.push_back(-1);
    } else if (state != orv3::kAdded) {
      places.push_back(own);
      if (state == orv3::kDeleted) freed.push_back(own);
    } else if (!freed.empty()) {
      places.push_back(freed.front());
      freed.pop_front();
    } else {
      places.push_back(end);
      end += kRecordSlot;
    }
  }
  return places;
}

int Save(CStoreFile& file, const CArray<CSteelJMData>& records, int group) {
  if (!WriteMissingHeaders(file, group)) return 0;
  FileInfo before;
  if (!CSteelJMData::ReadJMFileInfo(&file, group, before) || !IsPlausible(file, group, before)) {
    return Damaged(file);
  }
  std::int64_t end = EndOf(before);
  std::vector<std::int64_t> places = Places(records, before.m_nOffset, end);
  const auto count = static_cast<int>((end - before.m_nOffset) / kRecordSlot);
  // Room for the slots to come and for every record's own one before anything is written there.
  FileInfo info;
  if (end > kMaxStore ||
      !CSteelJMData::WriteJMFileInfo(&file, group, std::max(records.GetSize(), count), info)) {
    return 0;
  }
  for (int i = 0; i < records.GetSize(); ++i) {
    const std::int64_t place = places[static_cast<std::size_t>(i)];
    if (place < 0) continue;
    if (place + kRecordSlot > kMaxStore ||
        !CSteelJMData::WriteTableItem(&file, static_cast<long>(place), records[i],
                                      group == kSingleGroup)) {
      return 0;
    }
  }
  return CSteelJMData::WriteJMFileInfo(&file, group, count, info) && file.Commit();
}

int SystemGroup(int group) { return group >= 0 && group < kSystemGroups ? group : 0; }

}  // namespace

// --- Headers and slots ---------------------------------------------------------------------------

int CSteelJMData::ReadJMFileInfo(const CStoreFile* file, int group, FileInfo& info) {
  FileInfo header;
  if (!file || !IsGroup(group) || !ReadInfo(*file, kHeaderAt, header)) return 0;
  if (group != kSingleGroup && group >= header.m_nOffset) return 0;
  return ReadGroup(*file, group, info);
}

int CSteelJMData::WriteJMFileInfo(CStoreFile* file, int group, int count, FileInfo& info) {
  if (!file || !IsGroup(group) || !WriteMissingHeaders(*file, group)) return 0;
  if (!ReadGroup(*file, group, info)) return 0;
  const FileInfo now{info.m_nGroup, info.m_nOffset, count};
  if (!WriteInfo(*file, GroupHeaderAt(group), now)) return 0;
  return group == kSingleGroup || MakeRoom(*file, group, EndOf(now));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): callers pass the record by value
int CSteelJMData::WriteTableItem(CStoreFile* file, long position, CSteelJMData record,
                                 int bUserStore) {
  if (!file || position < 0) return 0;
  const orv3::CRecordImage image = orv3::EncodeRecord(record, bUserStore != 0);
  return file->Write(static_cast<std::uint64_t>(position), image.data(), image.size());
}

int CSteelJMData::GetTableItem(const CStoreFile* file, long position, CSteelJMData& record) {
  orv3::CRecordImage image;
  return file && position >= 0 &&
         file->Read(static_cast<std::uint64_t>(position), image.data(), image.size()) &&
         orv3::DecodeRecord(image, record);
}

// --- Whole groups --------------------------------------------------------------------------------

int CSteelJMData::WriteTable(const CArray<CSteelJMData>& records, int group, const CString& path) {
  orv3::ClearStoreError();
  if (!IsGroup(group)) return 0;
  const auto file = CStoreFile::OpenToWrite(path);
  return file ? Save(*file, records, group) : 0;
}

int CSteelJMData::GetTable(CArray<CSteelJMData>& records, int group, const CString& path) {
  orv3::ClearStoreError();
  const auto file = CStoreFile::OpenToRead(path);
  FileInfo info;
  if (!file || !ReadJMFileInfo(file.get(), group, info)) return 0;
  // Slots beyond the end of the file hold nothing.
  const auto end = std::min<std::int64_t>(EndOf(info), static_cast<std::int64_t>(file->Size()));
  for (std::int64_t at = info.m_nOffset; at < end; at += kRecordSlot) {
    CSteelJMData record;
    if (GetTableItem(file.get(), static_cast<long>(at), record)) records.Add(record);
  }
  return 1;
}

int CSteelJMData::GetTableLength(int group, const CString& path) {
  orv3::ClearStoreError();
  const auto file = CStoreFile::OpenToRead(path);
  FileInfo info;
  return file && ReadJMFileInfo(file.get(), group, info) ? info.m_nCount : 0;
}

// --- The three stores ----------------------------------------------------------------------------

int CSteelJMData::WriteTableToSystem(const CArray<CSteelJMData>& records, int group) {
  return WriteTable(records, SystemGroup(group), orv3::kSystemRecords);
}

int CSteelJMData::WriteTableToUser(const CArray<CSteelJMData>& records) {
  return WriteTable(records, kSingleGroup, orv3::kUserRecords);
}

int CSteelJMData::WriteTableToCurrent(const CArray<CSteelJMData>& records) {
  return WriteTable(records, kSingleGroup, orv3::kCurrentRecords);
}

int CSteelJMData::GetTableToSystem(CArray<CSteelJMData>& records, int group) {
  return GetTable(records, SystemGroup(group), orv3::kSystemRecords);
}

int CSteelJMData::GetTableToUser(CArray<CSteelJMData>& records) {
  return GetTable(records, kSingleGroup, orv3::kUserRecords);
}

int CSteelJMData::GetTableToCurrent(CArray<CSteelJMData>& records) {
  return GetTable(records, kSingleGroup, orv3::kCurrentRecords);
}

int CSteelJMData::GetTableLengthToSysTem(int group) {
  return GetTableLength(SystemGroup(group), orv3::kSystemRecords);
}

int CSteelJMData::GetTableLengthToUser() {
  return GetTableLength(kSingleGroup, orv3::kUserRecords);
}

int CSteelJMData::GetTableLengthToCurrent() {
  return GetTableLength(kSingleGroup, orv3::kCurrentRecords);
}

// --- Section tables from records -----------------------------------------------------------------

int CSteelJMData::GetJMTableData(const CString& tableName, CDataTable& table) {
  return TransJMTableData(tableName, table, 0);
}

int CSteelJMData::TransJMTableData(const CString& tableName, CDataTable& table, int store) {
  const orv3::CSectionStyle* style = orv3::FindSectionStyle(tableName.View());
  if (!style) return 0;
  CArray<CSteelJMData> records;
  const int read = store == 1   ? GetTableToUser(records)
                   : store == 2 ? GetTableToCurrent(records)
                                : GetTableToSystem(records, style->m_nStyle);
  if (!read) return 0;
  table.ClearTable();
  table.SetTableName(tableName);
  GetJMTableTitle(table, style->m_nStyle);
  for (const CSteelJMData& record : records) {
    if (record.m_nStyle != style->m_nStyle || record.m_nState == orv3::kDeleted) continue;
    CDataItem row;
    row.m_strTableName = tableName;
    row.SetItemTitle(table.m_Title);
    row.m_nIndex = table.GetTableRowNum();
    if (record.TransJMDataToItem(row)) table.AddTableItem(row, 0, 1);
  }
  return 1;
}
