#include "tables/file/plan.h"

#include <algorithm>

#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "tables/data_table.h"
#include "tables/file/image.h"
#include "tables/file/layout.h"
#include "tables/file/proof.h"
#include "tables/file/table_text.h"

namespace orv3 {
namespace {

// Appends blocks where the directory begins, which moves on behind them; false beyond 2 GB.
bool Reserve(int blocks, CRecordPlan& plan) {
  const std::int64_t length = BlockLength(ColumnsOf(plan.m_info.m_nItemLen));
  const std::int64_t begin = plan.m_directory.Offset();
  const std::int64_t end = begin + blocks * length;
  if (end + kDirectorySize > kMaxTableFile) return false;
  for (std::int64_t at = begin; at < end; at += length) {
    plan.m_info.m_arrBlockPos.Add(static_cast<std::int32_t>(at));
  }
  plan.m_nReserved = end - begin;
  plan.m_directory.MoveTo(end);
  return true;
}

// Whether the blocks that a table is about to use belong to no other table.
bool OwnsItsBlocks(const CTableDirectory& directory, int record, const CDataFileInfo& info) {
  const std::vector<CFileRange> ranges = BlocksOf(info, directory.Offset());
  if (ranges.empty()) return false;
  for (int i = 0, count = directory.Count(); i < count; ++i) {
    if (i == record) continue;
    for (const CFileRange& range : BlocksOf(directory.Record(i), directory.Offset())) {
      const bool apart = std::all_of(ranges.begin(), ranges.end(), [&range](const auto& own) {
        return range.m_nEnd <= own.m_nBegin || own.m_nEnd <= range.m_nBegin;
      });
      if (!apart) return false;
    }
  }
  return true;
}

// Whether the table's last save looked at the file as it is.
bool IsProven(const CTableImage* image, const CStoreFile& file, const CString& table) {
  return image != nullptr && image->IsProven(file, table);
}

}  // namespace

int RefuseSave(const CStoreFile& file, const CString& what) {
  return SetStoreError(CStoreTrouble::Refused, file.Path(), file.Path() + L": " + what);
}

int RefuseDamaged(const CStoreFile& file, const CString& table) {
  return SetStoreError(CStoreTrouble::Damaged, file.Path(),
                       Say(L"{1}: 文件中的表“{2}”已损坏", L"{1}: table \"{2}\" on file is damaged",
                           {file.Path(), table}));
}

int RefuseColumns(const CStoreFile& file, const CDataTable& table, int slotLength) {
  return RefuseSave(
      file, Say(L"表“{1}”有 {2} 列，文件中每行 {3} 字节，是另外的列",
                L"table \"{1}\" has {2} columns but rows of {3} bytes on file, "
                L"which are of other columns",
                {table.m_strTableName, FormatInt(table.GetTableColNum()), FormatInt(slotLength)}));
}

bool IsTooShort(const CStoreFile& file) { return file.Size() <= kUnusedHead; }

int ReadOrStart(const CStoreFile& file, CTableDirectory& directory) {
  if (IsTooShort(file) || directory.Read(file)) return 1;
  return SetStoreError(CStoreTrouble::NotAStore, file.Path(),
                       Say(L"{1}: 不是截面库文件；没有写入",
                           L"{1}: not a table file; nothing was written", {file.Path()}));
}

int WritePlan(CStoreFile& file, const CRecordPlan& plan) {
  if (plan.m_nReserved > 0) {  // where the directory was
    const auto size =
        static_cast<std::size_t>(std::min<std::int64_t>(plan.m_nReserved, kDirectorySize));
    const auto begin = static_cast<std::uint64_t>(plan.m_directory.Offset() - plan.m_nReserved);
    if (!file.Write(begin, std::string(size, '\0').data(), size)) return 0;
  }
  if (plan.m_bChanged && !plan.m_directory.Write(file)) return 0;
  if (plan.m_strHeading.empty()) return 1;
  return file.Write(static_cast<std::uint64_t>(plan.m_info.m_arrBlockPos[0]),
                    plan.m_strHeading.data(), plan.m_strHeading.size())
             ? 1
             : 0;
}

}  // namespace orv3

int CDataTable::PlanRecord(const orv3::CStoreFile& file, int storeKind,
                           orv3::CRecordPlan& plan) const {
  const bool bProven = orv3::IsProven(m_pImage.get(), file, m_strTableName);
  if (bProven && m_pImage->m_info.m_nRowNum == GetTableRowNum() &&
      m_pImage->m_info.m_nItemLen == GetTableItemLen()) {
    plan.m_info = m_pImage->m_info;
    plan.m_strInfoLine = m_pImage->m_strInfoLine;
    return 1;
  }
  orv3::CTableDirectory& directory = plan.m_directory;
  if (orv3::IsTooShort(file)) {
    directory = orv3::CTableDirectory(orv3::NewInfoLine(storeKind));
  }
  if (!orv3::ReadOrStart(file, directory)) return 0;
  plan.m_strInfoLine = directory.InfoLine();
  int record = directory.Find(m_strTableName);
  plan.m_bNewTable = record < 0;
  if (plan.m_bNewTable) {
    if (directory.IsFull()) {
      return orv3::RefuseSave(file, orv3::Say(L"没有位置再放一个表；一个文件至多 99 个",
                                              L"no room for another table; a file holds 99"));
    }
    record = directory.Count();
    plan.m_info.m_strTableName = m_strTableName;
    plan.m_info.m_nItemLen = GetTableItemLen();
  } else {
    plan.m_info = directory.Record(record);
    if (plan.m_info.m_nItemLen != GetTableItemLen()) {
      return orv3::RefuseColumns(file, *this, plan.m_info.m_nItemLen);
    }
  }
  plan.m_bChanged = plan.m_bNewTable || plan.m_info.m_nRowNum != GetTableRowNum();
  if (plan.m_bChanged) {
    plan.m_info.m_nRowNum = GetTableRowNum();
    const int missing = orv3::BlocksFor(GetTableRowNum()) - plan.m_info.m_arrBlockPos.GetSize();
    if (missing > 0 && !orv3::Reserve(missing, plan)) {
      return orv3::RefuseSave(file, orv3::Say(L"库将超过 2 GB", L"the store would exceed 2 GB"));
    }
    std::string field;
    CString why;
    if (!orv3::EncodeRecord(plan.m_info, field, why)) {
      return orv3::RefuseSave(
          file, orv3::Say(L"表“{1}”：{2}", L"table \"{1}\": {2}", {m_strTableName, why}));
    }
    directory.SetRecord(record, field);
  }
  return orv3::OwnsItsBlocks(directory, record, plan.m_info)
             ? 1
             : orv3::RefuseDamaged(file, m_strTableName);
}

int CDataTable::PlanHeading(const orv3::CStoreFile& file, orv3::CRecordPlan& plan) const {
  if (orv3::IsProven(m_pImage.get(), file, m_strTableName) && m_Title.IsEqualOf(*m_pImage->m_title))
    return 1;
  if (!plan.m_bNewTable) {
    std::string stored;
    CDataTableTitle title;
    if (!orv3::ReadHeading(file, plan.m_info, stored)) return 0;
    if (orv3::StoredHeading(stored, title) && m_Title.IsEqualOf(title)) return 1;
  }
  CString why;
  if (orv3::EncodeHeading(m_Title, plan.m_strHeading, why)) return 1;
  return orv3::RefuseSave(file,
                          orv3::Say(L"表“{1}”：{2}", L"table \"{1}\": {2}", {m_strTableName, why}));
}
