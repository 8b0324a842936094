#include "platform/whole_file.h"

#include <algorithm>

#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"

namespace orv3 {
namespace {

constexpr int kMostFresh = 10'000;  // names to try in one folder

CString FolderOf(const CString& path) {
  return CString(path.View().substr(0, path.View().find_last_of(L"/\\") + 1));
}

CFileError ErrorOf(CStoreTrouble trouble) {
  switch (trouble) {
    case CStoreTrouble::NotFound:
      return CFileError::NotFound;
    case CStoreTrouble::Busy:
      return CFileError::Busy;
    case CStoreTrouble::Denied:
      return CFileError::Denied;
    default:
      return CFileError::Failed;
  }
}

}  // namespace

CFileError ReadWholeFile(const CString& path, std::string& bytes, std::uint64_t most) {
  CFileError error{};
  const auto file = Files().Open(path, CFileMode::ReadShared, error);
  if (!file) return error;
  CFileStamp stamp;
  if (!file->Stamp(stamp)) return CFileError::Failed;
  bytes.resize(static_cast<std::size_t>(std::min(stamp.m_nSize, most)));
  return file->Read(0, bytes.data(), bytes.size()) == bytes.size() ? CFileError::None
                                                                   : CFileError::Failed;
}

CFreshFile::CFreshFile(const CString& path) {
  const CString folder = FolderOf(path);
  for (int i = 0; i < kMostFresh; ++i) {
    m_strPath = folder + L".orv3cal-" + FormatInt(i) + L".part";
    CFileStamp stamp;
    if (Files().Stamp(m_strPath, stamp) == CFileError::None) continue;
    m_pFile = Files().Open(m_strPath, CFileMode::ReadWrite, m_nError);
    if (m_pFile && m_pFile->WasCreated()) return;
    m_pFile.reset();
    if (m_nError != CFileError::None && m_nError != CFileError::Busy) break;
  }
  m_strPath.Empty();
  if (m_nError == CFileError::None) m_nError = CFileError::Failed;
}

CFreshFile::~CFreshFile() {
  if (m_pFile) {
    m_pFile->Discard();
  } else if (!m_strPath.IsEmpty()) {
    Files().Remove(m_strPath);
  }
}

CFileError CFreshFile::Write(std::string_view bytes) {
  if (!m_pFile) return m_nError;
  if (m_pFile->Write(0, bytes.data(), bytes.size()) != bytes.size() || !m_pFile->Sync()) {
    return m_pFile->Trouble();
  }
  Close();
  return CFileError::None;
}

CFileError CFreshFile::MoveTo(const CString& path) {
  if (!Files().Rename(m_strPath, path)) return CFileError::Failed;
  m_strPath.Empty();
  Files().SyncFolder(path);
  return CFileError::None;
}

CFileError WriteWholeFile(const CString& path, std::string_view bytes) {
  const CString resolved = Files().Resolve(path);
  CFileStamp stamp;
  std::unique_ptr<CStoreFile> there;
  const CFileError found = Files().Stamp(resolved, stamp);
  if (found == CFileError::None) {
    if (Files().IsReadOnly(resolved)) return CFileError::Denied;
    ClearStoreError();
    there = CStoreFile::OpenToWrite(resolved);
    if (!there) return ErrorOf(LastStoreError().m_nTrouble);
  } else if (found != CFileError::NotFound) {
    return found;
  }
  CFreshFile fresh(resolved);
  if (fresh.Error() != CFileError::None) return fresh.Error();
  if (there) Files().CopyRights(resolved, fresh.Path());
  const CFileError written = fresh.Write(bytes);
  if (written != CFileError::None) return written;
  there.reset();  // Windows replaces no file that is open
  return fresh.MoveTo(resolved);
}

}  // namespace orv3
