// Saving tables into table files.
#include <algorithm>
#include <set>
#include <utility>

#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/directory.h"
#include "tables/file/image.h"
#include "tables/file/merge.h"
#include "tables/file/plan.h"
#include "tables/file/proof.h"
#include "tables/file/table_text.h"
#include "tables/row_index.h"

using orv3::CStoreFile;
using orv3::CTableDirectory;
using orv3::CTableImage;

namespace {

constexpr std::size_t kEarlierImages = 3;

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

// --- What the table knows of its files -----------------------------------------------------------

void CDataTable::CopyImages(const CDataTable& other) {
  const bool inOrder = other.m_nImageArrangement == other.m_arrItem.Arrangement();
  m_pImage = other.m_pImage;
  m_arrEarlierImage = other.m_arrEarlierImage;
  m_nImageArrangement = inOrder ? m_arrItem.Arrangement() : kNoArrangement;
}

// The slots of m_pImage that hold the rows.
std::vector<int> CDataTable::SlotsIn() const {
  if (!m_pImage) return std::vector<int>(static_cast<std::size_t>(GetTableRowNum()), -1);
  return orv3::SlotsOfRows(m_arrItem, m_Title, *m_pImage,
                           m_nImageArrangement == m_arrItem.Arrangement());
}

// Makes m_pImage that of a file, if the table has read it or saved to it. Rows that differ from an
// earlier one count as unsaved.
bool CDataTable::TakeUpImage(const CString& path) {
  const auto isOfFile = [&](const auto& image) {
    return image && image->m_strPath == path && image->m_strTable == m_strTableName;
  };
  if (isOfFile(m_pImage)) return true;
  auto& earlier = m_arrEarlierImage;
  if (m_pImage) earlier.insert(earlier.begin(), std::move(m_pImage));
  m_pImage.reset();
  m_nImageArrangement = kNoArrangement;
  const auto found = std::find_if(earlier.begin(), earlier.end(), isOfFile);
  if (found != earlier.end()) {
    m_pImage = std::move(*found);
    earlier.erase(found);
    const std::vector<int> slots = SlotsIn();
    for (int i = 0; i < GetTableRowNum(); ++i) {
      CDataItem& row = m_arrItem.Own(i);
      if (slots[static_cast<std::size_t>(i)] < 0) {
        row.m_nModifyType = orv3::StateToSave(row.m_nModifyType);
      }
    }
  }
  earlier.resize(std::min(earlier.size(), kEarlierImages));
  return m_pImage != nullptr;
}

// --- The table's record --------------------------------------------------------------------------

int CDataTable::WriteTableFileInfo(CStoreFile* file, int storeKind, CDataFileInfo& info) {
  if (!file) return 0;
  orv3::CRecordPlan plan;
  if (!PlanRecord(*file, storeKind, plan) || !orv3::WritePlan(*file, plan)) return 0;
  SetTableFileInfo(plan.m_strInfoLine);
  info = plan.m_info;
  return 1;
}

// --- Bringing in what others have saved ----------------------------------------------------------

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
        row.m_nModifyType = orv3::StateToSave(row.m_nModifyType);
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
  const std::vector<int> slots = orv3::SlotsOfRows(m_arrItem, m_Title, image, false);
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
  const bool known = TakeUpImage(file.Path());
  if (known && m_pImage->m_state == file.State()) return 1;
  CTableDirectory directory;
  if (!orv3::ReadOrStart(file, directory)) return 0;
  const int record = directory.Find(m_strTableName);
  if (record < 0 || (!known && replaceUnknown)) {
    m_pImage.reset();
    return 1;
  }
  const CDataFileInfo info = directory.Record(record);
  if (info.m_nItemLen != GetTableItemLen())
    return orv3::RefuseColumns(file, *this, info.m_nItemLen);
  auto image = std::make_shared<CTableImage>();
  if (orv3::BlocksOf(info, directory.Offset()).empty() ||
      !orv3::ReadSlots(file, info, image->m_arrSlot)) {
    return orv3::RefuseDamaged(file, m_strTableName);
  }
  const CTableImage before = known ? *m_pImage : CTableImage();
  orv3::CTableMerge merge(*this, before, SlotsIn(), image->m_arrSlot, info.m_nItemLen);
  image->m_strPath = file.Path();
  image->m_strTable = m_strTableName;
  image->m_arrIndex = merge.SlotIndices();
  if (before.m_arrSlot != image->m_arrSlot) {
    if (!merge.Run()) return orv3::RefuseDamaged(file, m_strTableName);
    TakeIn(merge);
    SeparateIndices(*image);
  }
  m_pImage = std::move(image);
  return 1;
}

// --- Saving --------------------------------------------------------------------------------------

// The rows to be written, with their slots' bytes.
struct CDataTable::CRowWrite {
  int m_nPosition;
  std::string m_strSlot;
};

int CDataTable::CollectRows(const CStoreFile& file, bool all,
                            std::vector<CRowWrite>& writes) const {
  const std::vector<int> slots = SlotsIn();
  std::vector<int> positions;
  int at = 0;
  m_arrItem.Walk([&](const CDataItem& row) {
    // A row that is not in its slot goes there even if it is unchanged: it has moved, or the file
    // never had it.
    const bool inPlace = slots[static_cast<std::size_t>(at)] == at;
    if (!inPlace || all || orv3::IsUnsaved(row.m_nModifyType)) positions.push_back(at);
    ++at;
  });
  for (const int position : positions) {
    const CDataItem& row = std::as_const(m_arrItem)[position];
    CRowWrite write{position, {}};
    CString why;
    if (!orv3::EncodeRow(row, orv3::StateOnFile(row.m_nModifyType), m_Title, write.m_strSlot,
                         why)) {
      return orv3::RefuseSave(file,
                              orv3::Say(L"表“{1}”第 {2} 行：{3}", L"table \"{1}\", row {2}: {3}",
                                        {m_strTableName, orv3::FormatInt(position + 1), why}));
    }
    writes.push_back(std::move(write));
  }
  return 1;
}

// The rows written are in the file now.
void CDataTable::MarkSaved(const CStoreFile& file, const orv3::CRecordPlan& plan,
                           const std::vector<CRowWrite>& writes) {
  if (!m_pImage || m_pImage.use_count() > 1) {
    m_pImage =
        m_pImage ? std::make_shared<CTableImage>(*m_pImage) : std::make_shared<CTableImage>();
  }
  m_pImage->m_strPath = file.Path();
  m_pImage->m_strTable = m_strTableName;
  m_pImage->m_state = file.State();
  m_pImage->m_title = m_Title;
  m_pImage->m_info = plan.m_info;
  m_pImage->m_strInfoLine = plan.m_strInfoLine;
  const auto count = static_cast<std::size_t>(GetTableRowNum());
  m_pImage->m_arrSlot.resize(count);
  m_pImage->m_arrIndex.resize(count);
  for (const CRowWrite& write : writes) {
    const auto at = static_cast<std::size_t>(write.m_nPosition);
    CDataItem& row = m_arrItem.Own(write.m_nPosition);
    row.m_nModifyType = orv3::StateAfterSave(row.m_nModifyType);
    m_pImage->m_arrSlot[at] = orv3::FieldBytes(write.m_strSlot);
    m_pImage->m_arrIndex[at] = row.m_nIndex;
  }
  m_nImageArrangement = m_arrItem.Arrangement();
}

int CDataTable::WriteTable(const CString& path, int storeKind, int bAll) {
  orv3::ClearStoreError();
  m_arrTakenIn.RemoveAll();
  if (path.IsEmpty()) return 0;
  const auto file = CStoreFile::OpenToWrite(path);
  if (!file) return 0;
  try {
    if (!CatchUp(*file, bAll != 0)) return 0;
  } catch (const CInvalidArgException&) {  // a row on file with more values than columns
    return orv3::RefuseDamaged(*file, m_strTableName);
  }
  orv3::CRecordPlan plan;
  std::vector<CRowWrite> writes;
  if (!PlanRecord(*file, storeKind, plan) || !PlanHeading(*file, plan) ||
      !CollectRows(*file, bAll != 0, writes) || !orv3::WritePlan(*file, plan)) {
    return 0;
  }
  SetTableFileInfo(plan.m_strInfoLine);
  for (const CRowWrite& write : writes) {
    const auto at = static_cast<std::uint64_t>(orv3::SlotOffset(plan.m_info, write.m_nPosition));
    if (!file->Write(at, write.m_strSlot.data(), write.m_strSlot.size())) return 0;
  }
  if (!file->Commit()) return 0;
  MarkSaved(*file, plan, writes);
  return 1;
}
