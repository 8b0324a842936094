// One opened store file with the changes made to it so far: what CStoreFile objects share.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/store_journal.h"

namespace orv3 {

class CStoreBody {
 public:
  CStoreBody(std::unique_ptr<CFile> file, const CString& path, bool writable);
  CStoreBody(const CStoreBody&) = delete;
  CStoreBody& operator=(const CStoreBody&) = delete;
  ~CStoreBody();

  // Takes up what an interrupted save left: rolls it back in the file or, for a reader, in memory
  // only; a journal that is not this file's is removed. False when that fails. Called once, before
  // anything else.
  bool Recover();
  // Whether Recover found a journal that only a writer can take back.
  bool RecoveredInMemory() const { return m_bShadow; }

  std::uint64_t Size() const { return m_nSize; }
  bool Read(std::uint64_t offset, void* data, std::size_t size) const;
  bool Write(std::uint64_t offset, const void* data, std::size_t size);
  bool Commit();
  void DropChanges();
  // From Gather() on, what openers commit stays in memory and what they forget spoils it all, until
  // CommitGathered() brings it into the file or DropGathered() forgets it.
  void Gather() { m_bGathering = true; }
  bool CommitGathered();
  void DropGathered();
  // A number of the last change that the file does not have; 0 when it has all of them.
  std::uint64_t LastChange() const { return HasChanges() ? m_nLastChange : 0; }
  const CFileStamp& Stamp() const { return m_stamp; }
  const CString& Path() const { return m_strPath; }
  bool IsWritable() const { return m_bWritable; }
  // After a Commit that failed: why, and whether half of it is in the file.
  CFileError Trouble() const { return m_nTrouble; }
  bool IsBroken() const { return m_bBroken; }

 private:
  bool HasChanges() const { return !m_pages.empty() || m_nSize != m_nFileSize; }
  bool ReadFromFile(std::uint64_t offset, char* data, std::size_t size) const;
  std::string* PageToChange(std::uint64_t page, bool whole);
  bool CollectChanges(CStoreJournal& journal);
  bool WriteJournal(const CStoreJournal& journal);
  bool ReadJournal(CStoreJournal& journal, bool& found);
  bool ApplyChanges();
  bool RollBack(const CStoreJournal& journal);
  void RemoveJournal() const;
  bool Undecided() const;
  bool Settle(const CStoreJournal& journal, CJournalFit fit);
  bool Shadow(const CStoreJournal& journal, CJournalFit fit);
  bool TakeStamp();

  std::unique_ptr<CFile> m_pFile;
  CString m_strPath;
  bool m_bWritable;
  bool m_bShadow = false;   // the pages are an interrupted save's old bytes
  bool m_bBroken = false;   // half a save is in the file; only the next opener can undo it
  bool m_bEmptied = false;  // an interrupted first save was rolled back
  bool m_bGathering = false;
  bool m_bUnkept = false;   // changes since the last commit
  bool m_bSpoiled = false;  // half of a save was forgotten while gathering
  // Reading has failed since the last commit, so that what was to be saved may rest on a wrong view
  // of the file: it is not committed.
  mutable bool m_bReadFailed = false;
  CFileError m_nTrouble = CFileError::Failed;
  CFileStamp m_stamp;
  std::uint64_t m_nLastChange = 0;
  std::uint64_t m_nFileSize = 0;
  std::uint64_t m_nSize = 0;
  std::map<std::uint64_t, std::string> m_pages;  // changed pages by their number
};

}  // namespace orv3
