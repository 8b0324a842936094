#include "platform/whole_file.h"

namespace orv3 {

CFileError ReadWholeFile(const CString& path, std::string& bytes) {
  CFileError error{};
  const auto file = Files().Open(path, CFileMode::ReadShared, error);
  if (!file) return error;
  CFileStamp stamp;
  if (!file->Stamp(stamp)) return CFileError::Failed;
  bytes.resize(static_cast<std::size_t>(stamp.m_nSize));
  return file->Read(0, bytes.data(), bytes.size()) == bytes.size() ? CFileError::None
                                                                   : CFileError::Failed;
}

CFileError WriteWholeFile(const CString& path, std::string_view bytes) {
  const CString resolved = Files().Resolve(path);
  const CString fresh = resolved + L".new";
  CFileError error{};
  {
    const auto file = Files().Open(fresh, CFileMode::Replace, error);
    if (!file) return error;
    if (file->Write(0, bytes.data(), bytes.size()) != bytes.size() || !file->Sync()) {
      file->Discard();
      return CFileError::Failed;
    }
  }
  if (Files().Rename(fresh, resolved)) {
    Files().SyncFolder(resolved);
    return CFileError::None;
  }
  Files().Remove(fresh);
  return CFileError::Failed;
}

}  // namespace orv3
