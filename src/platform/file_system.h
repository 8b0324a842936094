// Files as the library sees them: one narrow interface to the operating system, implemented in
// posix/ and win32/. Tests put their own implementation in front of it to make operations fail.
//
// Paths are wide texts in which "/" and "\" both separate folders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CFileError {
  None,
  NotFound,  // the file or its folder is not there
  Busy,      // somebody else has it open
  Denied,    // a read-only mark, medium or folder, or missing rights
  Full,      // no room is left on the medium
  NotAFile,  // a pipe, a device
  BadPath,   // a name too long, links that lead in a circle
  Failed,    // anything else
};

enum class CFileMode {
  Read,        // existing file, to read, nobody else may open it
  ReadShared,  // existing file, to read, together with other ReadShared openers
  ReadWrite,   // to read and change, made when not there, nobody else may open it
  Replace,     // the same, emptied
};

// What tells one state of a file from another. Two saves through CStoreFile never leave the same.
struct CFileStamp {
  std::uint64_t m_nVolume = 0;
  std::uint64_t m_nFile = 0;
  std::uint64_t m_nSize = 0;
  std::int64_t m_nChanged = 0;  // time of last change, in the system's own unit

  bool operator==(const CFileStamp&) const = default;
};

struct CLocalTime {
  int m_nYear = 0;
  int m_nMonth = 0;  // 1 to 12
  int m_nDay = 0;
  int m_nHour = 0;
  int m_nMinute = 0;
  int m_nSecond = 0;
  int m_nMillisecond = 0;
};

// An open file. It is closed with the object.
class ORV3CAL_API CFile {
 public:
  CFile() = default;
  CFile(const CFile&) = delete;
  CFile& operator=(const CFile&) = delete;
  virtual ~CFile() = default;

  // Bytes transferred; fewer than asked at the end of the file or after a failure.
  virtual std::size_t Read(std::uint64_t offset, void* data, std::size_t size) = 0;
  virtual std::size_t Write(std::uint64_t offset, const void* data, std::size_t size) = 0;
  virtual bool Stamp(CFileStamp& stamp) = 0;
  virtual bool SetSize(std::uint64_t size) = 0;
  // Sees to it that the time of last change is after `past`, if need be by setting it. False only
  // when it still equals `past`.
  virtual bool AdvanceStamp(std::int64_t past) = 0;
  // Returns once everything written is on the medium.
  virtual bool Sync() = 0;
  // Removes the file while it is open, so that nobody can come between.
  virtual bool Discard() = 0;
  virtual bool WasCreated() const = 0;  // the file was made by this opening
  // Why a Write, SetSize or Sync has failed.
  virtual CFileError Trouble() const { return CFileError::Failed; }
};

class ORV3CAL_API CFileSystem {
 public:
  CFileSystem() = default;
  CFileSystem(const CFileSystem&) = delete;
  CFileSystem& operator=(const CFileSystem&) = delete;
  virtual ~CFileSystem() = default;

  // Null, and `error` says why, when the file cannot be opened in that mode.
  virtual std::unique_ptr<CFile> Open(const CString& path, CFileMode mode, CFileError& error) = 0;
  virtual CFileError Stamp(const CString& path, CFileStamp& stamp) = 0;
  virtual bool Remove(const CString& path) = 0;
  virtual bool Rename(const CString& from, const CString& to) = 0;  // replaces `to`
  virtual bool ClearReadOnly(const CString& path) = 0;
  // Whether nobody may write the file: its mark or its mode says so.
  virtual bool IsReadOnly(const CString& /*path*/) { return false; }
  // Gives a file the owner and the rights of another, as far as this user may.
  virtual void CopyRights(const CString& /*from*/, const CString& /*to*/) {}
  // Makes additions and removals in the folder that holds `path` last.
  virtual bool SyncFolder(const CString& path) = 0;
  // The names in a folder, folders included, "." and ".." not, in code unit order.
  virtual bool List(const CString& folder, std::vector<CString>& names) = 0;
  virtual bool MakeFolder(const CString& path) = 0;  // true as well when it is there
  virtual bool IsFolder(const CString& path) = 0;
  // The one absolute path, links followed, under which the file is known.
  virtual CString Resolve(const CString& path) = 0;
  virtual CLocalTime LocalTime() = 0;
};

// The operating system's files, and those in use: the same unless a test has put its own in front.
ORV3CAL_API CFileSystem& SystemFiles();
ORV3CAL_API CFileSystem& Files();
// Puts `files` in front for the whole process (null takes it away again); returns what was there.
ORV3CAL_API CFileSystem* SetFiles(CFileSystem* files);

}  // namespace orv3
