// Why the last operation on a store failed, told to the user.
#pragma once

#include "dialogs/model/dialog_user.h"
#include "framework/cstring.h"
#include "platform/store_error.h"

class CDataTable;

namespace orv3 {

// The reason in Chinese, one sentence.
const wchar_t* StoreReason(CStoreTrouble trouble);
// `what` ("数据保存失败："), the reason and, on lines of their own, where in the tables and which
// file.
CString StoreFailureText(const wchar_t* what);
void TellSaveFailed(CDialogUser& user);
void TellReadFailed(CDialogUser& user);
// A table that is not there, or not yet, is no failure of reading.
bool IsReadFailure();
// Whether a file holds everything of a table that is about to be saved there (its unsaved rows, or
// all of them). If not, that is the trouble of which StoreFailureText tells: the format would cut
// what is too long, up to the list of the table's own rows.
bool FitsFile(const CDataTable& table, const CString& path, bool all);

// While it lives, `path` is the program's data directory, where rows are looked up; an empty one
// leaves it alone.
class CProgramPathScope {
 public:
  explicit CProgramPathScope(const CString& path);
  CProgramPathScope(const CProgramPathScope&) = delete;
  CProgramPathScope& operator=(const CProgramPathScope&) = delete;
  ~CProgramPathScope();

  const CString& Path() const noexcept { return m_strPath; }  // with a separator at its end

 private:
  CString m_strPath;
  CString m_strPrevious;
};

}  // namespace orv3
