// Where a program is, where it keeps what belongs to its user, and which language that user reads.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"

namespace orv3 {

// The running program's own file; empty when the system does not tell.
ORV3CAL_API CString ProgramFile();

// The folder for the user's own stores: "orv3cal" in $XDG_DATA_HOME or ~/.local/share, on Windows
// "Orv3Cal" in %APPDATA%. It need not be there; empty when the user has no such place.
ORV3CAL_API CString UserDataFolder();

// A variable of the process; empty when it is not set.
ORV3CAL_API CString Environment(const char* name);

// The language that the user has set for programs: by LC_ALL, else LC_MESSAGES, else LANG, on
// Windows that of the desktop. Chinese where it is Chinese, else English.
ORV3CAL_API CLanguage UserLanguage();

// Makes a folder and those above it; true as well when it is there.
ORV3CAL_API bool MakeFolders(const CString& folder);

}  // namespace orv3
