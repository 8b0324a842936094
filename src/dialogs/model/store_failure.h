// Why the last operation on a store failed, told to the user.
#pragma once

#include "dialogs/model/dialog_user.h"
#include "framework/cstring.h"

namespace orv3 {

// `what` ("数据保存失败："), the reason in Chinese and, on a line of its own, the details.
CString StoreFailureText(const wchar_t* what);
void TellSaveFailed(CDialogUser& user);
void TellReadFailed(CDialogUser& user);
// A table that is not there, or not yet, is no failure of reading.
bool IsReadFailure();

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
