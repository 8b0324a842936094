#include "dialogs/model/store_transfer.h"

#include <algorithm>
#include <utility>

#include "catalogue/import/table_import.h"
#include "catalogue/rolled/rolled_style.h"
#include "dialogs/model/dialog_texts.h"
#include "dialogs/model/store_failure.h"
#include "dialogs/model/table_name_model.h"
#include "dialogs/model/text_match.h"
#include "framework/number_text.h"
#include "platform/file_system.h"
#include "platform/store_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

CString FileNameOf(const CString& path) {
  return path.Mid(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
}

CString FolderOf(const CString& path) {
  return path.Left(path.GetLength() - FileNameOf(path).GetLength());
}

CDataTable Named(const CString& name, const CString& path) {
  CDataTable table;
  table.SetTableName(name);
  table.SetSaveTablePath(path);
  return table;
}

// The live rows, their positions as their indices.
void AppendLive(const CDataTable& from, CDataTable& to) {
  for (const CDataItem& row : from.m_arrItem) {
    if (IsDeleted(row.m_nModifyType)) continue;
    CDataItem copy = row;
    copy.m_nIndex = to.GetTableRowNum();
    to.AddTableItem(copy, 1, 1);
  }
}

// --- Export -------------------------------------------------------------------------------------

bool WriteTo(const CString& file, const CString& path, const CString& name, CDialogUser& user) {
  CDataTable stored = Named(name, path);
  if (!stored.GetSystemJmTable()) {
    TellReadFailed(user);
    return false;
  }
  CDataTable table = Named(name, path);
  table.m_Title = stored.m_Title;
  AppendLive(stored, table);
  if (FitsFile(table, file, true) && table.WriteTable(file, kSystemKind, 1)) return true;
  TellSaveFailed(user);
  return false;
}

bool WriteAll(const CString& file, const CString& path, const CStringArray& names,
              CDialogUser& user) {
  for (int i = 0; i < names.GetSize(); ++i) {
    user.Progress(texts::kExporting, i, names.GetSize());
    if (!WriteTo(file, path, names[i], user)) return false;
  }
  return true;
}

bool ChooseTables(const CString& path, const CStringArray& marked, CStringArray& names,
                  CDialogUser& user) {
  CStringArray all;
  if (!Named(L"", path).GetSystemJmTableName(all)) {
    user.Tell(texts::kNothingToExport);
    return false;
  }
  CTableNameModel model(all, marked);
  if (!user.Run(model)) return false;
  names = model.Chosen();
  return !names.IsEmpty();
}

// --- Import -------------------------------------------------------------------------------------

constexpr int kSteps = 100;  // of the progress, for each file
constexpr int kNamed = 5;    // numbers named of those left out

CString NumbersOf(const std::vector<CRefusedRow>& rows) {
  CString text;
  for (std::size_t i = 0; i < rows.size() && i < kNamed; ++i) {
    if (i > 0) text += texts::kAnd;
    text += rows[i].m_strNo;
  }
  return rows.size() > kNamed ? text + texts::kAndOthers : text;
}

// Why nothing of a file came in.
const wchar_t* WhyNot(const CString& file) {
  if (LastStoreError().m_nTrouble != CStoreTrouble::None) {
    return StoreReason(LastStoreError().m_nTrouble);
  }
  CFileStamp stamp;
  if (Files().Stamp(file, stamp) != CFileError::None) return StoreReason(CStoreTrouble::NotFound);
  bool userTwin = false;
  const CString extension = file.Right(4);
  const bool dataFile = BeginsWithText(extension, L".kvb");
  if (!dataFile && !BeginsWithText(extension, L".kdb")) return texts::kImportOtherKind;
  return dataFile && FindRolledFile(FileNameOf(file).View(), userTwin) < 0 ? texts::kImportOtherName
                                                                           : texts::kImportDamaged;
}

CString TableLine(const CString& path, const CTableImport& table) {
  return L"\n" + FileNameOf(path) + texts::kComma + table.m_strTable + texts::kColon;
}

CString Counted(const std::vector<CRefusedRow>& rows) {
  return FormatInt(std::ssize(rows)) + texts::kRecords + texts::kOpenBracket + NumbersOf(rows) +
         texts::kCloseBracket;
}

// A line for each thing that did not come in. Without `overwrite` rows that the store has are not
// meant to.
CString LeftOut(const CImportReport& report, const CString& path, bool overwrite) {
  if (!report.m_bDone) return L"\n" + FileNameOf(path) + texts::kColon + WhyNot(path);
  CString text;
  for (const CTableImport& table : report.m_arrTable) {
    if (!table.m_strWhy.IsEmpty()) {
      text +=
          TableLine(path, table) + (table.m_bOtherColumns ? texts::kImportOtherColumns
                                                          : StoreReason(CStoreTrouble::Refused));
    } else if (overwrite && !table.m_arrRefused.empty()) {
      text += TableLine(path, table) + Counted(table.m_arrRefused);
    }
  }
  return text;
}

// A line for each table whose rows came in though their figures are not those of their sizes.
CString Doubtful(const CImportReport& report, const CString& path) {
  CString text;
  for (const CTableImport& table : report.m_arrTable) {
    if (!table.m_arrDoubtful.empty()) text += TableLine(path, table) + Counted(table.m_arrDoubtful);
  }
  return text;
}

}  // namespace

std::vector<CFileFilter> ImportFilters() {
  return {{texts::kDataFileFilter, L"*.Kvb"}, {texts::kTableFileFilter, L"*.KDB"}};
}

void ImportFiles(const std::vector<CString>& files, const CString& store, bool overwrite,
                 CDialogUser& user) {
  const auto count = static_cast<int>(files.size());
  CString left, doubtful;
  for (int i = 0; i < count; ++i) {
    const CString& file = files[static_cast<std::size_t>(i)];
    CImportOptions options;
    options.m_bOverwrite = overwrite;
    options.m_progress = [&](double share) {
      user.Progress(texts::kImporting, i * kSteps + static_cast<int>(share * (kSteps - 1)),
                    count * kSteps);
    };
    ClearStoreError();
    const CImportReport report = ImportFile(file, store, options);
    left += LeftOut(report, file, overwrite);
    doubtful += Doubtful(report, file);
  }
  user.Progress(texts::kImporting, count * kSteps, count * kSteps);
  if (!left.IsEmpty()) user.Tell(texts::kImportFailed + left);
  if (!doubtful.IsEmpty()) user.Tell(texts::kImportDoubtful + doubtful);
}

void GroupByNumber(const CString& path, const CString& tableName, CDialogUser& user) {
  const CString store = path + kSystemStore;
  bool saved = true;
  {
    const CStoreLock lock(store);
    CDataTable table = Named(tableName, path);
    if (!lock.IsHeld() || !table.GetSystemJmTable()) return;
    CDataTable grouped = Named(tableName, path);
    grouped.m_Title = table.m_Title;
    AppendLive(table.SearchTable(L"No.!=*X*", 1), grouped);
    const int split = grouped.GetTableRowNum();
    AppendLive(table.SearchTable(L"No.==*X*", 1), grouped);
    const CDataItemArray& rows = table.m_arrItem;
    const int count = grouped.GetTableRowNum();
    const bool apart = std::equal(
        rows.begin(), rows.end(), std::as_const(grouped.m_arrItem).begin(),
        std::as_const(grouped.m_arrItem).end(),
        [](const CDataItem& a, const CDataItem& b) { return a[0].m_strValue == b[0].m_strValue; });
    if (apart || split == 0 || split == count) return;
    saved = grouped.WriteTable(store, kSystemKind, 1) != 0;
  }
  if (!saved) TellSaveFailed(user);
}

CString NewTableFileName(const CString& folder) {
  const CLocalTime now = Files().LocalTime();
  const int date = now.m_nYear * 10000 + now.m_nMonth * 100 + now.m_nDay;
  const int time = now.m_nHour * 10000 + now.m_nMinute * 100 + now.m_nSecond;
  for (int number = now.m_nMillisecond;; ++number) {
    CString name = L"KVBDB" + FormatInt(date) + FormatInt(time) + FormatInt(number) + L".KDB";
    CFileStamp stamp;
    if (Files().Stamp(folder + name, stamp) != CFileError::None) return name;
  }
}

void ExportTables(const CString& path, const CStringArray& marked, CDialogUser& user) {
  CStringArray names;
  CString target;
  if (!ChooseTables(path, marked, names, user)) return;
  if (!user.SaveFile(texts::kExportTitle, {{texts::kTableFileFilter, L"*.KDB"}}, target)) return;
  if (Files().Resolve(target) == Files().Resolve(path + kSystemStore)) {
    user.Tell(texts::kExportIntoItself);
    return;
  }
  const CString folder = FolderOf(target);
  const CString draft = folder + NewTableFileName(folder);
  bool written = WriteAll(draft, path, names, user);
  if (written && !Files().Rename(draft, target)) {
    user.Tell(texts::kExportNotPlaced + target);
    written = false;
  }
  if (!written) Files().Remove(draft);
  user.Progress(texts::kExporting, names.GetSize(), names.GetSize());
}

}  // namespace orv3
