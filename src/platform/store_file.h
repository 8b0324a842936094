// A store file: opened without sharing, changed in memory, and saved as a whole or not at all.
//
// Opening waits a bounded time for another opener to finish, and puts a store whose save was
// interrupted back to what it was before that save. Where the folder is read-only, a reader sees
// the store so without changing anything.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "framework/cstring.h"
#include "framework/export.h"
#include "platform/file_system.h"

namespace orv3 {

// How long an opener waits for a busy file; one second unless set. For the whole process.
ORV3CAL_API std::chrono::milliseconds BusyWait();
ORV3CAL_API void SetBusyWait(std::chrono::milliseconds wait);

class CStoreBody;

// What an opener sees of a store: its file, and changes that the opener's thread holds beyond it.
struct CStoreState {
  CFileStamp m_stamp;
  std::uint64_t m_nChange = 0;  // 0 for none; another number after every change

  bool operator==(const CStoreState&) const = default;
};

class ORV3CAL_API CStoreFile {
 public:
  // Null, with LastStoreError set, when the file cannot be had. A writer makes the file when it is
  // not there and clears its read-only mark; a file made and never saved to is removed again.
  static std::unique_ptr<CStoreFile> OpenToRead(const CString& path);
  static std::unique_ptr<CStoreFile> OpenToWrite(const CString& path);
  CStoreFile(const CStoreFile&) = delete;
  CStoreFile& operator=(const CStoreFile&) = delete;
  // Forgets what was not committed.
  ~CStoreFile();

  std::uint64_t Size() const;
  // All of the bytes or false.
  bool Read(std::uint64_t offset, void* data, std::size_t size) const;
  // Changes the store in memory; writing beyond its end lengthens it, with zeros between.
  bool Write(std::uint64_t offset, const void* data, std::size_t size);
  // Brings the changes into the file, unless a Read within it has failed before. After false the
  // file is as it was. Where not even that can be written, whoever opens it next finds it as it was
  // or, when all changes but nothing behind them got through, as it was to become.
  bool Commit();
  // Of the file as it was opened or last committed.
  const CFileStamp& Stamp() const;
  CStoreState State() const;
  const CString& Path() const;  // absolute

 private:
  friend class CStoreLock;
  explicit CStoreFile(std::shared_ptr<CStoreBody> body);
  static std::unique_ptr<CStoreFile> Held(const CString& path);

  std::shared_ptr<CStoreBody> m_pBody;
};

// Keeps a store to this thread: from its making to its end every other opener finds the file busy,
// while this thread's own openings of it go through. Held over reading, changing and saving, it
// makes them one step.
class ORV3CAL_API CStoreLock {
 public:
  explicit CStoreLock(const CString& path);
  CStoreLock(const CStoreLock&) = delete;
  CStoreLock& operator=(const CStoreLock&) = delete;
  ~CStoreLock();

  bool IsHeld() const noexcept { return m_pBody != nullptr; }  // else LastStoreError says why

 protected:
  std::shared_ptr<CStoreBody> m_pBody;
};

// A lock that makes all saves within it one: they are seen by this thread's own openings and come
// into the file, all of them or none, with Commit. One that fails takes the others with it.
class ORV3CAL_API CStoreBatch : private CStoreLock {
 public:
  explicit CStoreBatch(const CString& path);
  ~CStoreBatch();  // forgets what was not committed

  using CStoreLock::IsHeld;
  // False, with LastStoreError set, when the file is as it was before. Called once, at the end.
  bool Commit();
};

// Removes what an interrupted save left beside a file that has been replaced by another. An opener
// would find the two apart by their bytes and do the same.
ORV3CAL_API void RemoveJournal(const CString& path);

// What this thread sees of a store now; false when there is no file to be asked.
bool StateOfStore(const CString& path, CStoreState& state);

}  // namespace orv3
