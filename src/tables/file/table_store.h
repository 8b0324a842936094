// The section stores under a table's save path: one system file, one current file, and a folder
// with a file for each user table.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

inline constexpr wchar_t kSystemStore[] = L"KvbSystemJmDataBase.KDB";
inline constexpr wchar_t kCurrentStore[] = L"KvbCurrentJmDataBase.KDB";
inline constexpr wchar_t kUserStoreFolder[] = L"KvbUserJmDataBase\\";

// The second field of a file's information line.
enum CStoreKind : int { kSystemKind = 0, kUserKind = 1, kCurrentKind = 2 };

// The program's data directory, ending with a separator: where the stores of a table without a save
// path are. Empty until set; for the whole process.
ORV3CAL_API CString ProgramPath();
ORV3CAL_API void SetProgramPath(const CString& path);

}  // namespace orv3
