// Saving tables into table files.
#include <algorithm>
#include <set>
#include <utility>

#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/file/directory.h"
#include "tables/file/image.h"
#include "tables/file/merge.h"
#include "tables/file/table_text.h"
#include "tables/row_index.h"

using orv3::CStoreFile;
using orv3::CStoreTrouble;
using orv3::CTableDirectory;
using orv3::CTableImage;
using orv3::FormatInt;
using orv3::SetStoreError;

namespace {

int Refused(const CStoreFile& file, const CString& what) {
  return SetStoreError(CStoreTrouble::Refused, file.Path(), file.Path() + L": " + what);
}

int OtherColumns(const CStoreFile& file, const CDataTable& table, int slotLength) {
  return Refused(file, L"table \"" + table.m_strTableName + L"\" has " +
                           FormatInt(table.GetTableColNum()) + L" columns but rows of " +
                           FormatInt(slotLength) + L" bytes on file, which are of other columns");
}

int Damaged(const CStoreFile& file, const CString& table) {
  return SetStoreError(CStoreTrouble::Damaged, file.Path(),
                       file.Path() + L": table \"" + table + L"\" on file is damaged");
}

// The file's directory; `directory` as it is for a file too short to have one.
int ReadOrStart(const CStoreFile& file, CTableDirectory& directory) {
  if (file.Size() <= orv3::kUnusedHead || directory.Read(file)) return 1;
  return SetStoreError(CStoreTrouble::NotAStore, file.Path(),
                       file.Path() + L": not a table file; nothing was written");
}

// Appends blocks where the directory begins, which moves on behind them.
int Reserve(CStoreFile& file, int blocks, CTableDirectory& directory, CDataFileInfo& info) {
  const std::int64_t length = orv3::BlockLength(orv3::ColumnsOf(info.m_nItemLen));
  const std::int64_t begin = directory.Offset();
  const std::int64_t end = begin + blocks * length;
  if (end + orv3::kDirectorySize > orv3::kMaxTableFile) {
    return Refused(file, L"the store would exceed 2 GB");
  }
  for (std::int64_t at = begin; at < end; at += length) {
    info.m_arrBlockPos.Add(static_cast<std::int32_t>(at));
  }
  const std::string zeros(
      static_cast<std::size_t>(std::min<std::int64_t>(end - begin, orv3::kDirectorySize)), '\0');
  directory.MoveTo(end);
  return file.Write(static_cast<std::uint64_t>(begin), zeros.data(), zeros.size()) ? 1 : 0;
}

// Whether the blocks that a table is about to use belong to no other table.
bool OwnsItsBlocks(const CTableDirectory& directory, int record, const CDataFileInfo& info) {
  std::vector<orv3::CFileRange> ranges = orv3::BlocksOf(info, directory.Offset());
  if (ranges.empty()) return false;
  for (int i = 0, count = directory.Count(); i < count; ++i) {
    if (i == record) continue;
    for (const orv3::CFileRange& range : orv3::BlocksOf(directory.Record(i), directory.Offset())) {
      const bool apart = std::all_of(ranges.begin(), ranges.end(), [&range](const auto& own) {
        return range.m_nEnd <= own.m_nBegin || own.m_nEnd <= range.m_nBegin;
      });
      if (!apart) return false;
    }
  }
  return true;
}

int StateAfterSave(int state) {
  switch (state) {
    case 1:
    case 2:
      return 0;
    case 3:
      return 4;
    case -1:
      return -2;
    default:
      return state;
  }
}

// The state with which a row is written even if it was not changed.
int StateToSave(int state) { return state == 0 ? 2 : state == 4 ? 3 : state == -2 ? -1 : state; }

// What a row's slot says of its state: a deleted row stays on file as such.
int StateOnFile(int state) { return state < 0 && state >= -2 ? -1 : StateAfterSave(state); }

}  // namespace

int CDataTable::GetTableItemLen() const {
  return static_cast<int>(orv3::SlotLength(GetTableColNum()));
}

int CDataTable::GetTableTitleLen() const {
  return static_cast<int>(orv3::HeadingLength(GetTableColNum()));
}

int CDataTable::GetTableTextLen() const {
  return GetTableItemLen() * GetTableRowNum() + GetTableTitleLen();
}

// --- The table's record and blocks
// ----------------------------------------------------------------

int CDataTable::WriteTableFileInfo(CStoreFile* file, int storeKind, CDataFileInfo& info) {
  if (!file) return 0;
  CTableDirectory directory(orv3::NewInfoLine(storeKind));
  if (!ReadOrStart(*file, directory)) return 0;
  SetTableFileInfo(directory.InfoLine());

  int record = directory.Find(m_strTableName);
  CDataFileInfo found;
  if (record >= 0) {
    found = directory.Record(record);
    if (found.m_nItemLen != GetTableItemLen()) {
      return OtherColumns(*file, *this, found.m_nItemLen);
    }
  } else {
    if (directory.IsFull()) return Refused(*file, L"no room for another table; a file holds 99");
    record = directory.Count();
    found.m_strTableName = m_strTableName;
    found.m_nItemLen = GetTableItemLen();
    found.m_nRowNum = -1;
  }
  if (found.m_nRowNum != GetTableRowNum()) {
    found.m_nRowNum = GetTableRowNum();
    const int missing = orv3::BlocksFor(found.m_nRowNum) - found.m_arrBlockPos.GetSize();
    if (missing > 0 && !Reserve(*file, missing, directory, found)) return 0;
    directory.SetRecord(record, found);
    if (!directory.Write(*file)) return 0;
  }
  if (!OwnsItsBlocks(directory, record, found)) return Damaged(*file, m_strTableName);
  info = found;
  return 1;
}

// --- Bringing in what others have saved
// -----------------------------------------------------------

// Puts the merged rows into the table. Rows that stay keep their addresses.
void CDataTable::TakeIn(const orv3::CTableMerge& merge) {
  std::vector<int> order;
  std::vector<bool> stays(static_cast<std::size_t>(GetTableRowNum()), false);
  for (const orv3::CMergedRow& merged : merge.m_arrRow) {
    int position = merged.m_nPosition;
    if (position >= 0) stays[static_cast<std::size_t>(position)] = true;
    if (position < 0) position = m_arrItem.Add(CDataItem());
    if (merged.m_nSlot >= 0) {
      CDataItem& row = m_arrItem.Own(position);
      const CDataItem& stored = merge.m_arrFileRow[static_cast<std::size_t>(merged.m_nSlot)];
      if (merged.m_bFromFile) {
        row = stored;
        row.m_strTableName = m_strTableName;
        row.m_strFileInfo = m_strFileInfo;
        m_arrTakenIn.Add(row.m_nIndex);
      } else {
        row.m_nIndex = stored.m_nIndex;
        row.m_nModifyType = StateToSave(row.m_nModifyType);
      }
    }
    order.push_back(position);
  }
  const auto kept = static_cast<int>(order.size());
  for (std::size_t i = 0; i < stays.size(); ++i) {
    if (!stays[i]) order.push_back(static_cast<int>(i));
  }
  m_arrItem.Rearrange(order);
  m_arrItem.RemoveAt(kept, GetTableRowNum() - kept);
  m_pIndex.reset();
}

// Gives rows that the file does not have yet a stable index of their own where another has it.
void CDataTable::SeparateIndices(const CTableImage& image) {
  const std::vector<int> slots = orv3::SlotsOfRows(m_arrItem, image);
  std::set<int> used(image.m_arrIndex.begin(), image.m_arrIndex.end());
  int next = 0;
  for (int i = 0; i < GetTableRowNum(); ++i) {
    CDataItem& row = m_arrItem.Own(i);
    if (slots[static_cast<std::size_t>(i)] >= 0 || used.insert(row.m_nIndex).second) continue;
    next = std::max(next, i);
    while (!used.insert(next).second) ++next;
    row.m_nIndex = next;
  }
  m_pIndex.reset();
}

// Makes the table one that was read from the file as it is now, with its own changes kept.
int CDataTable::CatchUp(const CStoreFile& file, bool replaceUnknown) {
  const bool known =
      m_pImage && m_pImage->m_strPath == file.Path() && m_pImage->m_strTable == m_strTableName;
  if (known && m_pImage->m_stamp == file.Stamp()) return 1;
  CTableDirectory directory;
  if (!ReadOrStart(file, directory)) return 0;
  const int record = directory.Find(m_strTableName);
  if (record < 0 || (!known && replaceUnknown)) {
    m_pImage.reset();
    return 1;
  }
  const CDataFileInfo info = directory.Record(record);
  if (info.m_nItemLen != GetTableItemLen()) return OtherColumns(file, *this, info.m_nItemLen);
  auto image = std::make_shared<CTableImage>();
  if (orv3::BlocksOf(info, directory.Offset()).empty() ||
      !orv3::ReadSlots(file, info, image->m_arrSlot)) {
    return Damaged(file, m_strTableName);
  }
  const CTableImage before = known ? *m_pImage : CTableImage();
  orv3::CTableMerge merge(*this, before, image->m_arrSlot, info.m_nItemLen);
  image->m_strPath = file.Path();
  image->m_strTable = m_strTableName;
  image->m_arrIndex = merge.SlotIndices();
  if (before.m_arrSlot != image->m_arrSlot) {
    if (!merge.Run()) return Damaged(file, m_strTableName);
    TakeIn(merge);
    SeparateIndices(*image);
  }
  m_pImage = std::move(image);
  return 1;
}

// --- Saving
// ---------------------------------------------------------------------------------------

// The rows to be written, with their slots' bytes.
struct CDataTable::CRowWrite {
  int m_nPosition;
  std::string m_strSlot;
};

int CDataTable::CollectRows(const CStoreFile& file, bool all,
                            std::vector<CRowWrite>& writes) const {
  static const CTableImage nothing;
  const std::vector<int> slots = orv3::SlotsOfRows(m_arrItem, m_pImage ? *m_pImage : nothing);
  const auto length = static_cast<std::size_t>(GetTableItemLen());
  for (int i = 0; i < GetTableRowNum(); ++i) {
    const CDataItem& row = std::as_const(m_arrItem)[i];
    // A row that is not in its slot goes there even if it is unchanged: it has moved, or the file
    // never had it.
    const bool inPlace = slots[static_cast<std::size_t>(i)] == i;
    if (inPlace && !all && !orv3::IsUnsaved(row.m_nModifyType)) continue;
    bool missing = false;
    writes.push_back({i, orv3::EncodeField(orv3::RowForm(row, StateOnFile(row.m_nModifyType)),
                                           length, &missing)});
    if (missing) {
      return Refused(file, L"table \"" + m_strTableName + L"\", row " + FormatInt(i + 1) +
                               L": a character that the code page lacks");
    }
  }
  return 1;
}

int CDataTable::WriteHeading(CStoreFile& file, const CDataFileInfo& info) const {
  std::string stored;
  if (!orv3::ReadHeading(file, info, stored)) return 0;
  if (m_Title.IsEqualOf(orv3::HeadingOf(orv3::DecodeText(stored)))) return 1;
  bool missing = false;
  const std::string heading =
      orv3::EncodeField(orv3::HeadingForm(m_Title), stored.size(), &missing);
  if (missing) {
    return Refused(
        file, L"table \"" + m_strTableName + L"\", heading: a character that the code page lacks");
  }
  return file.Write(static_cast<std::uint64_t>(info.m_arrBlockPos[0]), heading.data(),
                    heading.size());
}

// The rows written are in the file now.
void CDataTable::MarkSaved(const CStoreFile& file, const std::vector<CRowWrite>& writes) {
  if (!m_pImage || m_pImage.use_count() > 1) {
    m_pImage =
        m_pImage ? std::make_shared<CTableImage>(*m_pImage) : std::make_shared<CTableImage>();
  }
  m_pImage->m_strPath = file.Path();
  m_pImage->m_strTable = m_strTableName;
  m_pImage->m_stamp = file.Stamp();
  const auto count = static_cast<std::size_t>(GetTableRowNum());
  m_pImage->m_arrSlot.resize(count);
  m_pImage->m_arrIndex.resize(count);
  for (const CRowWrite& write : writes) {
    const auto at = static_cast<std::size_t>(write.m_nPosition);
    CDataItem& row = m_arrItem.Own(write.m_nPosition);
    row.m_nModifyType = StateAfterSave(row.m_nModifyType);
    m_pImage->m_arrSlot[at] = orv3::FieldBytes(write.m_strSlot);
    m_pImage->m_arrIndex[at] = row.m_nIndex;
  }
}

int CDataTable::WriteTable(const CString& path, int storeKind, int bAll) {
  orv3::ClearStoreError();
  m_arrTakenIn.RemoveAll();
  if (path.IsEmpty()) return 0;
  const auto file = CStoreFile::OpenToWrite(path);
  if (!file) return 0;
  bool missing = false;
  const std::string name = orv3::EncodeText(m_strTableName, &missing);
  if (m_strTableName.IsEmpty() || missing ||
      orv3::RecordOf(orv3::DecodeText(name)).m_strTableName != m_strTableName) {
    return Refused(*file, L"table name \"" + m_strTableName + L"\" cannot be stored");
  }
  try {
    if (!CatchUp(*file, bAll != 0)) return 0;
  } catch (const CInvalidArgException&) {  // a row on file with more values than columns
    return Damaged(*file, m_strTableName);
  }
  CDataFileInfo info;
  std::vector<CRowWrite> writes;
  if (!CollectRows(*file, bAll != 0, writes) || !WriteTableFileInfo(file.get(), storeKind, info) ||
      !WriteHeading(*file, info)) {
    return 0;
  }
  for (const CRowWrite& write : writes) {
    const auto at = static_cast<std::uint64_t>(orv3::SlotOffset(info, write.m_nPosition));
    if (!file->Write(at, write.m_strSlot.data(), write.m_strSlot.size())) return 0;
  }
  if (!file->Commit()) return 0;
  MarkSaved(*file, writes);
  return 1;
}
