// The system's files with one operation, or all from one on, failing, stopping half-way or ending
// the process. In place from its making to its end.
#pragma once

#include <cstdlib>
#include <utility>

#include "platform/file_system.h"

enum class CFault {
  None,
  Fail,   // nothing happens and the operation fails
  Short,  // half of the bytes are transferred; other operations fail
  Kill,   // half of the bytes are transferred and the process ends
};

class CFaultyFiles final : public orv3::CFileSystem {
 public:
  static constexpr int kKilled = 77;  // exit status of a killed process

  // Counts operations from 1; `at` is the first to fail, with `forGood` all later ones do too.
  CFaultyFiles(CFault fault, int at, bool forGood)
      : m_nFault(fault), m_nAt(at), m_bForGood(forGood) {
    m_pBefore = orv3::SetFiles(this);
  }
  CFaultyFiles() : CFaultyFiles(CFault::None, 0, false) {}
  ~CFaultyFiles() override { orv3::SetFiles(m_pBefore); }

  int Count() const { return m_nCount; }
  bool Met() const { return m_nCount >= m_nAt; }
  // Opens for writing are denied, as in a read-only folder.
  void SetReadOnly(bool readOnly) { m_bReadOnly = readOnly; }
  // The same until the mark is cleared.
  void SetMarkedReadOnly(bool marked) { m_bMarked = marked; }
  void SetLocalTime(const orv3::CLocalTime& time) { m_time = time; }

  std::unique_ptr<orv3::CFile> Open(const CString& path, orv3::CFileMode mode,
                                    orv3::CFileError& error) override {
    const bool writes = mode == orv3::CFileMode::ReadWrite || mode == orv3::CFileMode::Replace;
    const bool denied = writes && (m_bReadOnly || m_bMarked);
    error = denied ? orv3::CFileError::Denied : orv3::CFileError::Failed;
    if (Fails() || denied) return nullptr;
    auto file = m_real.Open(path, mode, error);
    return file ? std::make_unique<CFaultyFile>(*this, std::move(file)) : nullptr;
  }
  orv3::CFileError Stamp(const CString& path, orv3::CFileStamp& stamp) override {
    return Fails() ? orv3::CFileError::Failed : m_real.Stamp(path, stamp);
  }
  bool Remove(const CString& path) override {
    return !Fails() && !m_bReadOnly && m_real.Remove(path);
  }
  bool Rename(const CString& from, const CString& to) override {
    return !Fails() && !m_bReadOnly && m_real.Rename(from, to);
  }
  bool ClearReadOnly(const CString& path) override {
    m_bMarked = false;
    return !Fails() && !m_bReadOnly && m_real.ClearReadOnly(path);
  }
  bool SyncFolder(const CString&) override { return !Fails(); }
  bool List(const CString& folder, std::vector<CString>& names) override {
    return !Fails() && m_real.List(folder, names);
  }
  bool MakeFolder(const CString& path) override { return !Fails() && m_real.MakeFolder(path); }
  bool IsFolder(const CString& path) override { return m_real.IsFolder(path); }
  CString Resolve(const CString& path) override { return m_real.Resolve(path); }
  orv3::CLocalTime LocalTime() override { return m_time.m_nYear ? m_time : m_real.LocalTime(); }

 private:
  class CFaultyFile final : public orv3::CFile {
   public:
    CFaultyFile(CFaultyFiles& files, std::unique_ptr<orv3::CFile> real)
        : m_files(files), m_pReal(std::move(real)) {}
    std::size_t Read(std::uint64_t offset, void* data, std::size_t size) override {
      return m_files.Transfer(size,
                              [&](std::size_t part) { return m_pReal->Read(offset, data, part); });
    }
    std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) override {
      return m_files.Transfer(size,
                              [&](std::size_t part) { return m_pReal->Write(offset, data, part); });
    }
    bool Stamp(orv3::CFileStamp& stamp) override {
      return !m_files.Fails() && m_pReal->Stamp(stamp);
    }
    bool SetSize(std::uint64_t size) override { return !m_files.Fails() && m_pReal->SetSize(size); }
    bool AdvanceStamp(std::int64_t past) override {
      return !m_files.Fails() && m_pReal->AdvanceStamp(past);
    }
    bool Sync() override { return !m_files.Fails(); }  // no test cuts the power
    bool Discard() override { return !m_files.Fails() && m_pReal->Discard(); }
    bool WasCreated() const override { return m_pReal->WasCreated(); }

   private:
    CFaultyFiles& m_files;
    std::unique_ptr<orv3::CFile> m_pReal;
  };

  bool IsMet() {
    ++m_nCount;
    return m_nFault != CFault::None && (m_bForGood ? m_nCount >= m_nAt : m_nCount == m_nAt);
  }
  bool Fails() {
    if (!IsMet()) return false;
    if (m_nFault == CFault::Kill) std::_Exit(kKilled);
    return true;
  }
  template <class TRANSFER>
  std::size_t Transfer(std::size_t size, TRANSFER transfer) {
    if (!IsMet()) return transfer(size);
    // After the first one that stops half-way nothing gets through.
    const bool half = m_nFault != CFault::Fail && m_nCount == m_nAt;
    const std::size_t done = half ? transfer(size / 2) : 0;
    if (m_nFault == CFault::Kill) std::_Exit(kKilled);
    return done;
  }

  orv3::CFileSystem& m_real = orv3::SystemFiles();
  orv3::CFileSystem* m_pBefore = nullptr;
  CFault m_nFault;
  int m_nAt;
  bool m_bForGood;
  bool m_bReadOnly = false;
  bool m_bMarked = false;
  int m_nCount = 0;
  orv3::CLocalTime m_time;
};
