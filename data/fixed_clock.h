// The operating system's files with a clock that stands still, so that what is written today is
// what was written yesterday.
#pragma once

#include "platform/file_system.h"

namespace orv3::catalogue {

class CFixedClock final : public CFileSystem {
 public:
  explicit CFixedClock(const CLocalTime& now) : m_now(now) { m_pBefore = SetFiles(this); }
  ~CFixedClock() override { SetFiles(m_pBefore); }

  std::unique_ptr<CFile> Open(const CString& path, CFileMode mode, CFileError& error) override {
    return SystemFiles().Open(path, mode, error);
  }
  CFileError Stamp(const CString& path, CFileStamp& stamp) override {
    return SystemFiles().Stamp(path, stamp);
  }
  bool Remove(const CString& path) override { return SystemFiles().Remove(path); }
  bool Rename(const CString& from, const CString& to) override {
    return SystemFiles().Rename(from, to);
  }
  bool ClearReadOnly(const CString& path) override { return SystemFiles().ClearReadOnly(path); }
  bool SyncFolder(const CString& path) override { return SystemFiles().SyncFolder(path); }
  bool List(const CString& folder, std::vector<CString>& names) override {
    return SystemFiles().List(folder, names);
  }
  bool MakeFolder(const CString& path) override { return SystemFiles().MakeFolder(path); }
  bool IsFolder(const CString& path) override { return SystemFiles().IsFolder(path); }
  CString Resolve(const CString& path) override { return SystemFiles().Resolve(path); }
  CLocalTime LocalTime() override { return m_now; }

 private:
  CLocalTime m_now;
  CFileSystem* m_pBefore;
};

}  // namespace orv3::catalogue
