#include "platform/file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "platform/posix/native_path.h"

namespace orv3 {
namespace {

std::string FolderOf(const std::string& native) {
  const auto slash = native.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : native.substr(0, slash);
}

CFileError ErrorOf(int code) {
  switch (code) {
    case ENOENT:
    case ENOTDIR:
      return CFileError::NotFound;
    case EWOULDBLOCK:
      return CFileError::Busy;
    case EACCES:
    case EPERM:
    case EROFS:
      return CFileError::Denied;
    case ENOSPC:
    case EDQUOT:
      return CFileError::Full;
    case ELOOP:
    case ENAMETOOLONG:
      return CFileError::BadPath;
    default:
      return CFileError::Failed;
  }
}

CFileStamp StampOf(const struct stat& info) {
  CFileStamp stamp;
  stamp.m_nVolume = info.st_dev;
  stamp.m_nFile = info.st_ino;
  stamp.m_nSize = static_cast<std::uint64_t>(info.st_size);
  stamp.m_nChanged = std::int64_t{info.st_mtim.tv_sec} * 1'000'000'000 + info.st_mtim.tv_nsec;
  return stamp;
}

class CPosixFile final : public CFile {
 public:
  CPosixFile(int handle, std::string path, bool created)
      : m_nHandle(handle), m_strPath(std::move(path)), m_bCreated(created) {}
  ~CPosixFile() override { ::close(m_nHandle); }

  std::size_t Read(std::uint64_t offset, void* data, std::size_t size) override {
    std::size_t done = 0;
    while (done < size) {
      const ssize_t step = ::pread(m_nHandle, static_cast<char*>(data) + done, size - done,
                                   static_cast<off_t>(offset + done));
      if (step < 0 && errno == EINTR) continue;
      if (step <= 0) break;
      done += static_cast<std::size_t>(step);
    }
    return done;
  }

  std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) override {
    std::size_t done = 0;
    while (done < size) {
      const ssize_t step = ::pwrite(m_nHandle, static_cast<const char*>(data) + done, size - done,
                                    static_cast<off_t>(offset + done));
      if (step < 0 && errno == EINTR) continue;
      if (step < 0) m_nTrouble = ErrorOf(errno);
      if (step <= 0) break;
      done += static_cast<std::size_t>(step);
    }
    return done;
  }

  bool Stamp(CFileStamp& stamp) override {
    struct stat info {};
    if (::fstat(m_nHandle, &info) != 0) return false;
    stamp = StampOf(info);
    return true;
  }

  bool SetSize(std::uint64_t size) override {
    return Done(::ftruncate(m_nHandle, static_cast<off_t>(size)) == 0);
  }

  bool AdvanceStamp(std::int64_t past) override {
    CFileStamp stamp;
    if (!Stamp(stamp)) return false;
    // A nanosecond serves most file systems; two seconds is the coarsest step in use.
    for (const std::int64_t step : {1LL, 2'000'000'000LL}) {
      if (stamp.m_nChanged > past) return true;
      const std::int64_t changed = past + step;
      const struct timespec times[2] = {{0, UTIME_OMIT},
                                        {static_cast<time_t>(changed / 1'000'000'000),
                                         static_cast<long>(changed % 1'000'000'000)}};
      if (::futimens(m_nHandle, times) != 0) break;
      if (!Stamp(stamp)) return false;
    }
    return stamp.m_nChanged != past;
  }

  // The bytes and the size; nothing depends on the times after a power failure.
  bool Sync() override { return Done(::fdatasync(m_nHandle) == 0); }
  bool Discard() override { return ::unlink(m_strPath.c_str()) == 0; }
  bool WasCreated() const override { return m_bCreated; }
  CFileError Trouble() const override { return m_nTrouble; }

 private:
  bool Done(bool done) {
    if (!done) m_nTrouble = ErrorOf(errno);
    return done;
  }

  int m_nHandle;
  std::string m_strPath;
  bool m_bCreated;
  CFileError m_nTrouble = CFileError::Failed;
};

// Opens an existing file, or makes it when the mode allows that. -1 with errno set on failure.
int OpenOrCreate(const std::string& path, CFileMode mode, bool& created) {
  created = false;
  if (mode == CFileMode::Read || mode == CFileMode::ReadShared) {
    return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  }
  bool make = mode == CFileMode::Replace;  // which a file is rarely there for
  for (int attempt = 0; attempt < 200; ++attempt, make = !make) {
    const int how = make ? O_CREAT | O_EXCL : O_NONBLOCK;
    const int handle = ::open(path.c_str(), O_RDWR | O_CLOEXEC | how, 0666);
    created = make && handle >= 0;
    if (handle >= 0 || errno != (make ? EEXIST : ENOENT)) return handle;
  }
  return -1;
}

// Whether `handle` is still what stands under the path: its owner may have removed it while we
// waited for the lock.
bool IsStillThere(int handle, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return ::fstat(handle, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

class CPosixFileSystem final : public CFileSystem {
 public:
  std::unique_ptr<CFile> Open(const CString& path, CFileMode mode, CFileError& error) override {
    const std::string native = Native(path);
    // The lock belongs to the open file, so that two openings in one process exclude each other
    // too.
    const int lock = (mode == CFileMode::ReadShared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    for (int attempt = 0; attempt < 100; ++attempt) {
      bool created = false;
      const int handle = OpenOrCreate(native, mode, created);
      if (handle < 0) break;
      auto file = std::make_unique<CPosixFile>(handle, native, created);
      struct stat info {};
      if (::fstat(handle, &info) != 0) break;
      if (!S_ISREG(info.st_mode)) {
        error = CFileError::NotAFile;
        return nullptr;
      }
      if (::flock(handle, lock) != 0) break;
      if (!IsStillThere(handle, native)) continue;
      if (mode == CFileMode::Replace && info.st_size != 0 && !file->SetSize(0)) break;
      error = CFileError::None;
      return file;
    }
    error = ErrorOf(errno);
    return nullptr;
  }

  CFileError Stamp(const CString& path, CFileStamp& stamp) override {
    struct stat info {};
    if (::stat(Native(path).c_str(), &info) != 0) return ErrorOf(errno);
    stamp = StampOf(info);
    return CFileError::None;
  }

  bool Remove(const CString& path) override { return ::unlink(Native(path).c_str()) == 0; }

  bool Rename(const CString& from, const CString& to) override {
    return ::rename(Native(from).c_str(), Native(to).c_str()) == 0;
  }

  bool ClearReadOnly(const CString& path) override {
    const std::string native = Native(path);
    struct stat info {};
    return ::stat(native.c_str(), &info) == 0 &&
           ::chmod(native.c_str(), (info.st_mode & 07777) | S_IWUSR) == 0;
  }

  bool IsReadOnly(const CString& path) override {
    struct stat info {};
    return ::stat(Native(path).c_str(), &info) == 0 &&
           (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
  }

  void CopyRights(const CString& from, const CString& to) override {
    const std::string target = Native(to);
    struct stat info {};
    if (::stat(Native(from).c_str(), &info) != 0) return;
    // Changing the owner takes marks away that the mode gives back.
    const bool owned = ::chown(target.c_str(), info.st_uid, info.st_gid) == 0;
    ::chmod(target.c_str(), info.st_mode & (owned ? 07777 : 0777));
  }

  bool SyncFolder(const CString& path) override {
    const int handle = ::open(FolderOf(Native(path)).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return false;
    // The entries alone, not the folder's times. Some file systems keep no folders to write back
    // and say so by EINVAL.
    const bool done = ::fdatasync(handle) == 0 || errno == EINVAL;
    ::close(handle);
    return done;
  }

  bool List(const CString& folder, std::vector<CString>& names) override {
    DIR* stream = ::opendir(Native(folder).c_str());
    if (!stream) return false;
    names.clear();
    errno = 0;
    while (const dirent* entry = ::readdir(stream)) {
      const std::string_view name = entry->d_name;
      if (name != "." && name != "..") names.push_back(FromNative(name));
      errno = 0;
    }
    const bool whole = errno == 0;
    ::closedir(stream);
    std::sort(names.begin(), names.end());
    return whole;
  }

  bool MakeFolder(const CString& path) override {
    return ::mkdir(Native(path).c_str(), 0777) == 0 || (errno == EEXIST && IsFolder(path));
  }

  bool IsFolder(const CString& path) override {
    struct stat info {};
    return ::stat(Native(path).c_str(), &info) == 0 && S_ISDIR(info.st_mode);
  }

  CString Resolve(const CString& path) override {
    std::string native = Native(path);
    std::string resolved = RealPath(native);
    for (int link = 0; link < kMostLinks && resolved.empty() && FollowLink(native); ++link) {
    }
    if (resolved.empty()) {  // not there yet: its folder may be
      const auto slash = native.rfind('/');
      const std::string folder = RealPath(FolderOf(native));
      const std::string name = slash == std::string::npos ? native : native.substr(slash + 1);
      resolved = folder.empty() ? native : (folder == "/" ? "/" : folder + "/") + name;
    }
    return FromNative(resolved);
  }

  CLocalTime LocalTime() override {
    struct timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    struct tm local {};
    ::localtime_r(&now.tv_sec, &local);
    return {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            static_cast<int>(now.tv_nsec / 1'000'000)};
  }

 private:
  static constexpr int kMostLinks = 40;

  // A link to what is not there stands for the place that it names.
  static bool FollowLink(std::string& native) {
    std::string to(PATH_MAX, '\0');
    const ssize_t length = ::readlink(native.c_str(), to.data(), to.size());
    if (length <= 0) return false;
    to.resize(static_cast<std::size_t>(length));
    native = to.front() == '/' ? to : FolderOf(native) + "/" + to;
    return true;
  }

  static std::string RealPath(const std::string& native) {
    char* resolved = ::realpath(native.c_str(), nullptr);
    std::string path = resolved ? resolved : "";
    std::free(resolved);  // NOLINT: realpath's memory
    return path;
  }
};

}  // namespace

CFileSystem& SystemFiles() {
  static CPosixFileSystem files;
  return files;
}

}  // namespace orv3
