// Small files read and written in one go.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "framework/cstring.h"
#include "framework/export.h"
#include "platform/file_system.h"

namespace orv3 {

// All bytes of a file that others may read at the same time; of a larger one the first `most`.
ORV3CAL_API CFileError
ReadWholeFile(const CString& path, std::string& bytes,
              std::uint64_t most = std::numeric_limits<std::uint64_t>::max());

// Replaces the file, which after a failure is as it was. A link stays one: what it names is
// replaced. The new file has the owner and the rights of the old one, which must not be
// write-protected; a store is waited for until nobody changes it, and its journal has served.
ORV3CAL_API CFileError WriteWholeFile(const CString& path, std::string_view bytes);

// A file of this process alone, beside `path` and of a name that nothing had before. It is removed
// at the end.
class ORV3CAL_API CFreshFile {
 public:
  explicit CFreshFile(const CString& path);
  CFreshFile(const CFreshFile&) = delete;
  CFreshFile& operator=(const CFreshFile&) = delete;
  ~CFreshFile();

  CFileError Error() const noexcept { return m_nError; }  // why there is none
  const CString& Path() const noexcept { return m_strPath; }
  CFileError Write(std::string_view bytes);  // and closes it
  void Close() { m_pFile.reset(); }
  // Puts the closed file in the place of another.
  CFileError MoveTo(const CString& path);

 private:
  CString m_strPath;
  std::unique_ptr<CFile> m_pFile;
  CFileError m_nError = CFileError::Failed;
};

}  // namespace orv3
