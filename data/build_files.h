// The operating system's files as the build uses them. The clock stands still, so that what is made
// today is what was made yesterday. Nothing waits for the medium: what an interrupted build leaves
// is made again.
#pragma once

#include "platform/file_system.h"

namespace orv3::catalogue {

class CBuildFiles final : public CFileSystem {
 public:
  explicit CBuildFiles(const CLocalTime& now) : m_now(now) { m_pBefore = SetFiles(this); }
  ~CBuildFiles() override { SetFiles(m_pBefore); }

  std::unique_ptr<CFile> Open(const CString& path, CFileMode mode, CFileError& error) override {
    auto file = SystemFiles().Open(path, mode, error);
    return file ? std::make_unique<CBuildFile>(std::move(file)) : nullptr;
  }
  CFileError Stamp(const CString& path, CFileStamp& stamp) override {
    return SystemFiles().Stamp(path, stamp);
  }
  bool Remove(const CString& path) override { return SystemFiles().Remove(path); }
  bool Rename(const CString& from, const CString& to) override {
    return SystemFiles().Rename(from, to);
  }
  bool ClearReadOnly(const CString& path) override { return SystemFiles().ClearReadOnly(path); }
  bool SyncFolder(const CString&) override { return true; }
  bool List(const CString& folder, std::vector<CString>& names) override {
    return SystemFiles().List(folder, names);
  }
  bool MakeFolder(const CString& path) override { return SystemFiles().MakeFolder(path); }
  bool IsFolder(const CString& path) override { return SystemFiles().IsFolder(path); }
  CString Resolve(const CString& path) override { return SystemFiles().Resolve(path); }
  CLocalTime LocalTime() override { return m_now; }

 private:
  class CBuildFile final : public CFile {
   public:
    explicit CBuildFile(std::unique_ptr<CFile> file) : m_pFile(std::move(file)) {}
    std::size_t Read(std::uint64_t offset, void* data, std::size_t size) override {
      return m_pFile->Read(offset, data, size);
    }
    std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) override {
      return m_pFile->Write(offset, data, size);
    }
    bool Stamp(CFileStamp& stamp) override { return m_pFile->Stamp(stamp); }
    bool SetSize(std::uint64_t size) override { return m_pFile->SetSize(size); }
    bool AdvanceStamp(std::int64_t past) override { return m_pFile->AdvanceStamp(past); }
    bool Sync() override { return true; }
    bool Discard() override { return m_pFile->Discard(); }
    bool WasCreated() const override { return m_pFile->WasCreated(); }
    CFileError Trouble() const override { return m_pFile->Trouble(); }

   private:
    std::unique_ptr<CFile> m_pFile;
  };

  CLocalTime m_now;
  CFileSystem* m_pBefore;
};

}  // namespace orv3::catalogue
