#include "dialogs/model/store_failure.h"

#include "dialogs/model/dialog_texts.h"
#include "platform/store_error.h"
#include "tables/data_table.h"
#include "tables/file/check.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

// What stands where in a table, such as "热轧普通工字钢，I20a，h(mm)".
CString PlaceOf(const CDataTable& table, const CSaveFault& fault) {
  CString place = table.GetTableName();
  const bool row = fault.m_nRow >= 0 && fault.m_nRow < table.GetTableRowNum();
  if (row && !table[fault.m_nRow].IsEmpty()) {
    place += texts::kComma + table[fault.m_nRow][0].m_strValue;
  }
  if (fault.m_nColumn >= 0) place += texts::kComma + table.GetTableColSign(fault.m_nColumn);
  return place;
}

CString WithSeparator(const CString& path) {
  const wchar_t last = path.IsEmpty() ? L'\\' : path[path.GetLength() - 1];
  return last == L'\\' || last == L'/' ? path : path + L"\\";
}

}  // namespace

const wchar_t* StoreReason(CStoreTrouble trouble) {
  switch (trouble) {
    case CStoreTrouble::NotFound:
      return texts::kNotFound;
    case CStoreTrouble::Busy:
      return texts::kBusy;
    case CStoreTrouble::Denied:
      return texts::kDenied;
    case CStoreTrouble::NotAStore:
      return texts::kNotAStore;
    case CStoreTrouble::NoTable:
      return texts::kNoTable;
    case CStoreTrouble::Damaged:
      return texts::kDamaged;
    case CStoreTrouble::Refused:
      return texts::kRefused;
    case CStoreTrouble::Failed:
      return texts::kFailed;
    case CStoreTrouble::None:
      break;
  }
  return texts::kReasonUnknown;
}

CString StoreFailureText(const wchar_t* what) {
  const CStoreError& error = LastStoreError();
  CString text = CString(what) + StoreReason(error.m_nTrouble);
  for (const CString& line : {error.m_strPlace, error.m_strPath}) {
    if (!line.IsEmpty()) text += L"\n" + line;
  }
  return text;
}

void TellSaveFailed(CDialogUser& user) { user.Tell(StoreFailureText(texts::kSaveFailed)); }
void TellReadFailed(CDialogUser& user) { user.Tell(StoreFailureText(texts::kReadFailed)); }

bool IsReadFailure() {
  const CStoreTrouble trouble = LastStoreError().m_nTrouble;
  return trouble != CStoreTrouble::None && trouble != CStoreTrouble::NotFound &&
         trouble != CStoreTrouble::NoTable;
}

bool FitsFile(const CDataTable& table, const CString& path, bool all) {
  const std::vector<CSaveFault> faults = SaveFaults(table, path, all);
  ClearStoreError();  // of a file that is not there yet
  if (faults.empty()) return true;
  SetStoreError(CStoreTrouble::Refused, path, faults[0].m_strText, PlaceOf(table, faults[0]));
  return false;
}

CProgramPathScope::CProgramPathScope(const CString& path)
    : m_strPath(WithSeparator(path.IsEmpty() ? ProgramPath() : path)),
      m_strPrevious(ProgramPath()) {
  SetProgramPath(m_strPath);
}

CProgramPathScope::~CProgramPathScope() { SetProgramPath(m_strPrevious); }

}  // namespace orv3
