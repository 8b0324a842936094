#include "platform/file_system.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string>

namespace orv3 {
namespace {

// A transfer of Windows counts in 32 bits.
constexpr std::size_t kMaxTransfer = std::size_t{1} << 30;

std::wstring Native(const CString& path) {
  std::wstring native(path.View());
  std::replace(native.begin(), native.end(), L'/', L'\\');
  return native;
}

CFileError ErrorOf(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return CFileError::NotFound;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return CFileError::Busy;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return CFileError::Denied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return CFileError::Full;
    default:
      return CFileError::Failed;
  }
}

std::uint64_t Join(DWORD high, DWORD low) { return (std::uint64_t{high} << 32) | low; }

CFileStamp StampOf(const BY_HANDLE_FILE_INFORMATION& info) {
  CFileStamp stamp;
  stamp.m_nVolume = info.dwVolumeSerialNumber;
  stamp.m_nFile = Join(info.nFileIndexHigh, info.nFileIndexLow);
  stamp.m_nSize = Join(info.nFileSizeHigh, info.nFileSizeLow);
  stamp.m_nChanged = static_cast<std::int64_t>(
      Join(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime));
  return stamp;
}

OVERLAPPED At(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

class CWinFile final : public CFile {
 public:
  CWinFile(HANDLE handle, bool created) : m_hFile(handle), m_bCreated(created) {}
  ~CWinFile() override { CloseHandle(m_hFile); }

  std::size_t Read(std::uint64_t offset, void* data, std::size_t size) override {
    std::size_t done = 0;
    while (done < size) {
      OVERLAPPED place = At(offset + done);
      DWORD step = 0;
      const auto part = static_cast<DWORD>(std::min(size - done, kMaxTransfer));
      if (!ReadFile(m_hFile, static_cast<char*>(data) + done, part, &step, &place) || step == 0) {
        break;
      }
      done += step;
    }
    return done;
  }

  std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) override {
    std::size_t done = 0;
    while (done < size) {
      OVERLAPPED place = At(offset + done);
      DWORD step = 0;
      const auto part = static_cast<DWORD>(std::min(size - done, kMaxTransfer));
      if (!WriteFile(m_hFile, static_cast<const char*>(data) + done, part, &step, &place) ||
          step == 0) {
        m_nTrouble = ErrorOf(GetLastError());
        break;
      }
      done += step;
    }
    return done;
  }

  bool Stamp(CFileStamp& stamp) override {
    BY_HANDLE_FILE_INFORMATION info{};
    if (!GetFileInformationByHandle(m_hFile, &info)) return false;
    stamp = StampOf(info);
    return true;
  }

  bool SetSize(std::uint64_t size) override {
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(size);
    return Done(SetFilePointerEx(m_hFile, end, nullptr, FILE_BEGIN) && SetEndOfFile(m_hFile));
  }

  bool AdvanceStamp(std::int64_t past) override {
    CFileStamp stamp;
    if (!Stamp(stamp)) return false;
    // 100 ns serves NTFS; FAT counts in two seconds.
    for (const std::int64_t step : {1LL, 20'000'000LL}) {
      if (stamp.m_nChanged > past) return true;
      const auto changed = static_cast<std::uint64_t>(past + step);
      const FILETIME time{static_cast<DWORD>(changed), static_cast<DWORD>(changed >> 32)};
      if (!SetFileTime(m_hFile, nullptr, nullptr, &time)) break;
      if (!Stamp(stamp)) return false;
    }
    return stamp.m_nChanged != past;
  }

  bool Sync() override { return Done(FlushFileBuffers(m_hFile) != 0); }

  bool Discard() override {
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = TRUE;
    return SetFileInformationByHandle(m_hFile, FileDispositionInfo, &disposition,
                                      sizeof disposition) != 0;
  }

  bool WasCreated() const override { return m_bCreated; }
  CFileError Trouble() const override { return m_nTrouble; }

 private:
  bool Done(bool done) {
    if (!done) m_nTrouble = ErrorOf(GetLastError());
    return done;
  }

  HANDLE m_hFile;
  bool m_bCreated;
  CFileError m_nTrouble = CFileError::Failed;
};

struct COpenArguments {
  DWORD access;
  DWORD share;
  DWORD disposition;
};

COpenArguments ArgumentsOf(CFileMode mode) {
  constexpr DWORD kChange = GENERIC_READ | GENERIC_WRITE | DELETE;
  switch (mode) {
    case CFileMode::ReadShared:
      return {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING};
    case CFileMode::ReadWrite:
      return {kChange, 0, OPEN_ALWAYS};
    case CFileMode::Replace:
      return {kChange, 0, CREATE_ALWAYS};
    case CFileMode::Read:
      break;
  }
  return {GENERIC_READ, 0, OPEN_EXISTING};
}

class CWinFileSystem final : public CFileSystem {
 public:
  std::unique_ptr<CFile> Open(const CString& path, CFileMode mode, CFileError& error) override {
    const COpenArguments arguments = ArgumentsOf(mode);
    const HANDLE handle =
        CreateFileW(Native(path).c_str(), arguments.access, arguments.share, nullptr,
                    arguments.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    const DWORD code = GetLastError();
    if (handle == INVALID_HANDLE_VALUE) {
      error = ErrorOf(code);
      return nullptr;
    }
    error = CFileError::None;
    const bool created = arguments.disposition != OPEN_EXISTING && code != ERROR_ALREADY_EXISTS;
    return std::make_unique<CWinFile>(handle, created);
  }

  CFileError Stamp(const CString& path, CFileStamp& stamp) override {
    const HANDLE handle = CreateFileW(Native(path).c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return ErrorOf(GetLastError());
    return CWinFile(handle, false).Stamp(stamp) ? CFileError::None : CFileError::Failed;
  }

  bool Remove(const CString& path) override { return DeleteFileW(Native(path).c_str()) != 0; }

  bool Rename(const CString& from, const CString& to) override {
    return MoveFileExW(Native(from).c_str(), Native(to).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  }

  bool ClearReadOnly(const CString& path) override {
    return SetFileAttributesW(Native(path).c_str(), FILE_ATTRIBUTE_NORMAL) != 0;
  }

  bool IsReadOnly(const CString& path) override {
    const DWORD attributes = GetFileAttributesW(Native(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  }

  bool SyncFolder(const CString&) override { return true; }  // folders are written through

  bool List(const CString& folder, std::vector<CString>& names) override {
    std::wstring pattern = Native(folder);
    if (!pattern.empty() && pattern.back() != L'\\') pattern += L'\\';
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW((pattern + L"*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return false;
    names.clear();
    do {
      const CString name = entry.cFileName;
      if (name != L"." && name != L"..") names.push_back(name);
    } while (FindNextFileW(search, &entry));
    const bool whole = GetLastError() == ERROR_NO_MORE_FILES;
    FindClose(search);
    std::sort(names.begin(), names.end());
    return whole;
  }

  bool MakeFolder(const CString& path) override {
    return CreateDirectoryW(Native(path).c_str(), nullptr) || IsFolder(path);
  }

  bool IsFolder(const CString& path) override {
    const DWORD attributes = GetFileAttributesW(Native(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  }

  CString Resolve(const CString& path) override {
    const std::wstring native = Native(path);
    std::wstring resolved(GetFullPathNameW(native.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length = GetFullPathNameW(native.c_str(), static_cast<DWORD>(resolved.size()),
                                          resolved.data(), nullptr);
    if (length == 0 || length >= resolved.size()) return path;
    resolved.resize(length);
    return resolved;
  }

  CLocalTime LocalTime() override {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear,   now.wMonth,  now.wDay,         now.wHour,
            now.wMinute, now.wSecond, now.wMilliseconds};
  }
};

}  // namespace

CFileSystem& SystemFiles() {
  static CWinFileSystem files;
  return files;
}

}  // namespace orv3
