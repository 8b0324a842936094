// A file system in memory, so that a target reads and writes at the speed of memory. In place for
// the whole process from its making on.
#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <utility>

#include "platform/file_system.h"

class CMemoryFiles final : public orv3::CFileSystem {
 public:
  CMemoryFiles() { orv3::SetFiles(this); }

  std::string& operator[](const CString& path) { return m_files[path]; }
  bool Has(const CString& path) const { return m_files.count(path) != 0; }

  std::unique_ptr<orv3::CFile> Open(const CString& path, orv3::CFileMode mode,
                                    orv3::CFileError& error) override {
    const bool there = Has(path);
    const bool reads = mode == orv3::CFileMode::Read || mode == orv3::CFileMode::ReadShared;
    error = there || !reads ? orv3::CFileError::None : orv3::CFileError::NotFound;
    if (error != orv3::CFileError::None) return nullptr;
    if (mode == orv3::CFileMode::Replace) m_files[path].clear();
    return std::make_unique<CMemoryFile>(*this, path, !there);
  }
  orv3::CFileError Stamp(const CString& path, orv3::CFileStamp& stamp) override {
    stamp.m_nSize = Has(path) ? m_files[path].size() : 0;
    return Has(path) ? orv3::CFileError::None : orv3::CFileError::NotFound;
  }
  bool Remove(const CString& path) override { return m_files.erase(path) != 0; }
  bool Rename(const CString& from, const CString& to) override {
    m_files[to] = m_files[from];
    return Remove(from);
  }
  bool ClearReadOnly(const CString&) override { return true; }
  bool SyncFolder(const CString&) override { return true; }
  bool List(const CString&, std::vector<CString>& names) override {
    for (const auto& file : m_files) names.push_back(file.first);
    return true;
  }
  bool MakeFolder(const CString&) override { return true; }
  bool IsFolder(const CString&) override { return false; }
  CString Resolve(const CString& path) override { return path; }
  orv3::CLocalTime LocalTime() override { return {2024, 5, 7, 9, 3, 12, 250}; }

 private:
  class CMemoryFile final : public orv3::CFile {
   public:
    CMemoryFile(CMemoryFiles& files, CString path, bool created)
        : m_files(files), m_strPath(std::move(path)), m_bCreated(created) {
      m_files[m_strPath];
    }
    std::size_t Read(std::uint64_t offset, void* data, std::size_t size) override {
      const std::string& bytes = m_files[m_strPath];
      if (offset >= bytes.size()) return 0;
      const std::size_t done = std::min(size, bytes.size() - static_cast<std::size_t>(offset));
      std::memcpy(data, bytes.data() + static_cast<std::size_t>(offset), done);
      return done;
    }
    std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) override {
      std::string& bytes = m_files[m_strPath];
      const auto at = static_cast<std::size_t>(offset);
      bytes.resize(std::max(bytes.size(), at + size));
      std::memcpy(bytes.data() + at, data, size);
      ++m_files.m_nChanged;
      return size;
    }
    bool Stamp(orv3::CFileStamp& stamp) override {
      stamp.m_nSize = m_files[m_strPath].size();
      stamp.m_nChanged = m_files.m_nChanged;
      return true;
    }
    bool SetSize(std::uint64_t size) override {
      m_files[m_strPath].resize(static_cast<std::size_t>(size));
      return true;
    }
    bool AdvanceStamp(std::int64_t) override { return true; }
    bool Sync() override { return true; }
    bool Discard() override { return m_files.Remove(m_strPath); }
    bool WasCreated() const override { return m_bCreated; }

   private:
    CMemoryFiles& m_files;
    CString m_strPath;
    bool m_bCreated;
  };

  std::map<CString, std::string> m_files;
  std::int64_t m_nChanged = 0;
};

// Stops the process, which the fuzzer reports as a finding.
inline void Require(bool holds) {
  if (!holds) __builtin_trap();
}
