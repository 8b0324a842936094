// The system's dialogs for choosing files.
#pragma once

#include <vector>

#include "dialogs/model/dialog_user.h"
#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"

namespace orv3 {

// False when cancelled.
bool AskOpenFiles(HWND owner, const CString& title, const std::vector<CFileFilter>& filters,
                  std::vector<CString>& paths);
// `path`: the name offered, the answer afterwards.
bool AskSaveFile(HWND owner, const CString& title, const std::vector<CFileFilter>& filters,
                 CString& path);

}  // namespace orv3
