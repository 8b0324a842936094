// Small files read and written in one go.
#pragma once

#include <string>
#include <string_view>

#include "framework/cstring.h"
#include "framework/export.h"
#include "platform/file_system.h"

namespace orv3 {

// All bytes of a file that others may read at the same time.
ORV3CAL_API CFileError ReadWholeFile(const CString& path, std::string& bytes);
// Replaces the file, which after a failure is as it was.
ORV3CAL_API CFileError WriteWholeFile(const CString& path, std::string_view bytes);

}  // namespace orv3
