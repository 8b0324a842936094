#include "platform/store_body.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <iterator>
#include <utility>

#include "framework/language.h"
#include "platform/store_error.h"

namespace orv3 {
namespace {

constexpr std::size_t kMaxWrite = std::size_t{1} << 20;

// No number stands for two states, whichever store and thread they are of.
std::uint64_t NextChange() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

// The part of `size` bytes that lies before `left` more bytes end.
std::size_t Part(std::size_t size, std::uint64_t left) {
  return left < size ? static_cast<std::size_t>(left) : size;
}

}  // namespace

CStoreBody::CStoreBody(std::unique_ptr<CFile> file, const CString& path, bool writable)
    : m_pFile(std::move(file)), m_strPath(path), m_bWritable(writable) {}

CStoreBody::~CStoreBody() {
  const bool saves = m_bWritable && !m_bBroken;
  if (saves && m_nFileSize == 0 && (m_bEmptied || m_pFile->WasCreated())) m_pFile->Discard();
}

// --- Reading and changing in memory --------------------------------------------------------------

bool CStoreBody::ReadFromFile(std::uint64_t offset, char* data, std::size_t size) const {
  const std::uint64_t left = offset < m_nFileSize ? m_nFileSize - offset : 0;
  const std::size_t there = Part(size, left);
  std::fill(data + there, data + size, '\0');
  if (there == 0 || m_pFile->Read(offset, data, there) == there) return true;
  m_bReadFailed = true;
  return false;
}

bool CStoreBody::Read(std::uint64_t offset, void* data, std::size_t size) const {
  if (m_bBroken || offset > m_nSize || size > m_nSize - offset) return false;
  char* const out = static_cast<char*>(data);
  if (!ReadFromFile(offset, out, size)) return false;
  const std::uint64_t end = offset + size;
  for (auto it = m_pages.lower_bound(offset / kJournalPage); it != m_pages.end(); ++it) {
    const std::uint64_t pageAt = it->first * kJournalPage;
    if (pageAt >= end) break;
    const std::uint64_t from = std::max(offset, pageAt);
    const std::size_t count =
        Part(kJournalPage - static_cast<std::size_t>(from - pageAt), end - from);
    std::memcpy(out + (from - offset), it->second.data() + (from - pageAt), count);
  }
  return true;
}

// The page in memory, read from the file first unless all of it is about to be overwritten.
std::string* CStoreBody::PageToChange(std::uint64_t page, bool whole) {
  const auto [it, added] = m_pages.try_emplace(page);
  if (!added) return &it->second;
  it->second.assign(kJournalPage, '\0');
  if (whole || ReadFromFile(page * kJournalPage, it->second.data(), kJournalPage))
    return &it->second;
  m_pages.erase(it);
  return nullptr;
}

bool CStoreBody::Write(std::uint64_t offset, const void* data, std::size_t size) {
  if (m_bBroken) return false;
  m_bUnkept = true;
  m_nLastChange = NextChange();
  const char* in = static_cast<const char*>(data);
  const std::uint64_t end = offset + size;
  while (offset < end) {
    const std::uint64_t page = offset / kJournalPage;
    const auto at = static_cast<std::size_t>(offset % kJournalPage);
    const std::size_t step = Part(kJournalPage - at, end - offset);
    std::string* bytes = PageToChange(page, step == kJournalPage);
    if (!bytes) return false;
    std::memcpy(bytes->data() + at, in, step);
    in += step;
    offset += step;
  }
  m_nSize = std::max(m_nSize, end);
  return true;
}

void CStoreBody::DropChanges() {
  if (m_bGathering) m_bSpoiled = m_bSpoiled || m_bUnkept;
  if (m_bShadow || m_bGathering) return;
  m_pages.clear();
  m_nSize = m_nFileSize;
  m_bReadFailed = false;
}

bool CStoreBody::TakeStamp() {
  if (!m_pFile->Stamp(m_stamp)) return false;
  m_nFileSize = m_stamp.m_nSize;
  return true;
}

// --- Saving --------------------------------------------------------------------------------------

// Keeps only the pages that differ from the file; what differs goes into the journal.
bool CStoreBody::CollectChanges(CStoreJournal& journal) {
  journal.m_nOldSize = m_nFileSize;
  journal.m_nNewSize = m_nSize;
  std::string old(kJournalPage, '\0');
  for (auto it = m_pages.begin(); it != m_pages.end();) {
    const std::uint64_t pageAt = it->first * kJournalPage;
    if (!ReadFromFile(pageAt, old.data(), kJournalPage)) return false;
    it = journal.AddPage(pageAt, old, it->second) ? std::next(it) : m_pages.erase(it);
  }
  return true;
}

bool CStoreBody::WriteJournal(const CStoreJournal& journal) {
  const std::string bytes = EncodeJournal(journal);
  if (bytes.size() > kMaxJournal) return false;
  const auto file = Files().Open(JournalPath(m_strPath), CFileMode::Replace, m_nTrouble);
  if (!file) return false;
  const bool written = file->Write(0, bytes.data(), bytes.size()) == bytes.size() && file->Sync();
  m_nTrouble = written ? CFileError::None : file->Trouble();
  return written;
}

// Writes neighbouring pages together.
bool CStoreBody::ApplyChanges() {
  std::string run;
  std::uint64_t runAt = 0;
  const auto flush = [&] {
    return run.empty() || m_pFile->Write(runAt, run.data(), run.size()) == run.size();
  };
  for (const auto& [number, bytes] : m_pages) {
    const std::uint64_t pageAt = number * kJournalPage;
    if (run.empty() || runAt + run.size() != pageAt || run.size() >= kMaxWrite) {
      if (!flush()) return false;
      run.clear();
      runAt = pageAt;
    }
    run.append(bytes, 0, Part(kJournalPage, m_nSize - pageAt));
  }
  if (!flush()) return false;
  if (m_nSize == m_nFileSize) return true;
  // The end may be zeros that no page holds.
  CFileStamp now;
  return m_pFile->Stamp(now) && (now.m_nSize == m_nSize || m_pFile->SetSize(m_nSize));
}

bool CStoreBody::RollBack(const CStoreJournal& journal) {
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    const std::string& bytes = piece.m_strOld;
    if (m_pFile->Write(piece.m_nOffset, bytes.data(), bytes.size()) != bytes.size()) return false;
  }
  if (!m_pFile->SetSize(journal.m_nOldSize) || !m_pFile->Sync()) return false;
  RemoveJournal();
  return true;
}

// Of a store that is on the medium as before a save or as after it, a journal says no more than
// that there is nothing to undo. So it does no harm when its removal fails or is lost again with
// the power.
void CStoreBody::RemoveJournal() const { Files().Remove(JournalPath(m_strPath)); }

bool CStoreBody::Commit() {
  m_nTrouble = CFileError::Failed;
  if (!m_bWritable || m_bBroken || m_bReadFailed || m_bSpoiled) return false;
  m_bUnkept = false;
  if (m_bGathering) return true;
  CStoreJournal journal;
  if (!CollectChanges(journal)) return false;
  if (m_pages.empty() && m_nSize == m_nFileSize) return true;

  if (!WriteJournal(journal) || !Files().SyncFolder(m_strPath)) {
    RemoveJournal();
    DropChanges();
    return false;
  }
  if (ApplyChanges() && m_pFile->AdvanceStamp(m_stamp.m_nChanged) && m_pFile->Sync()) {
    RemoveJournal();
    m_nFileSize = m_nSize;
    m_pages.clear();
    if (!TakeStamp()) m_stamp = CFileStamp();
    return true;
  }
  m_nTrouble = m_pFile->Trouble();
  m_bBroken = !RollBack(journal);
  if (!TakeStamp()) m_bBroken = true;
  DropChanges();
  return false;
}

bool CStoreBody::CommitGathered() {
  m_bGathering = false;
  return Commit();
}

void CStoreBody::DropGathered() {
  m_bGathering = m_bSpoiled = m_bUnkept = false;
  DropChanges();
}

// --- After an interrupted save -------------------------------------------------------------------

// `found` tells whether there is a journal that is whole; one that is not is removed: the store was
// not touched yet. False, with the reason told, when one is there and cannot be read.
bool CStoreBody::ReadJournal(CStoreJournal& journal, bool& found) {
  const CString path = JournalPath(m_strPath);
  CFileError error{};
  auto file = Files().Open(path, CFileMode::Read, error);
  found = false;
  if (!file && error == CFileError::NotFound) return true;
  CFileStamp stamp;
  std::string bytes;
  if (file && file->Stamp(stamp)) {
    if (stamp.m_nSize <= kMaxJournal) bytes.resize(static_cast<std::size_t>(stamp.m_nSize));
    if (file->Read(0, bytes.data(), bytes.size()) == bytes.size()) {
      file.reset();
      found = DecodeJournal(bytes, journal);
      if (!found) RemoveJournal();
      return true;
    }
  }
  const CStoreTrouble trouble = error == CFileError::Denied ? CStoreTrouble::Denied
                                : error == CFileError::Busy ? CStoreTrouble::Busy
                                                            : CStoreTrouble::Failed;
  SetStoreError(trouble, m_strPath,
                Say(L"{1}: 中断的保存留下的日志不能读取；待其可读或删去之后才能打开 {2}",
                    L"{1}: the journal of an interrupted save cannot be read; {2} can be opened "
                    L"once it can, or is removed",
                    {path, m_strPath}));
  return false;
}

bool CStoreBody::Recover() {
  if (!TakeStamp()) return false;
  m_nSize = m_nFileSize;
  CStoreJournal journal;
  bool found = false;
  if (!ReadJournal(journal, found)) return false;
  if (!found) return true;
  CJournalFit fit{};
  const auto read = [this](std::uint64_t offset, char* data, std::size_t size) {
    return ReadFromFile(offset, data, size);
  };
  if (!CompareWithFile(journal, m_nFileSize, read, fit)) return false;
  switch (fit) {
    case CJournalFit::Foreign:
      RemoveJournal();
      return true;
    case CJournalFit::Undecided:
      return Undecided();
    case CJournalFit::Before:
    case CJournalFit::Between:
    case CJournalFit::After:
      break;
  }
  return m_bWritable ? Settle(journal, fit) : Shadow(journal, fit);
}

bool CStoreBody::Undecided() const {
  const CString journal = JournalPath(m_strPath);
  return SetStoreError(
             CStoreTrouble::Damaged, m_strPath,
             Say(L"{1}: 旁边有早期版本写的日志 "
                 L"{2}"
                 L"，其中看不出是否属于本文件；请用该版本打开文件以撤销中断的保存，或删去日志以保留"
                 L"文件现状",
                 L"{1}: beside it lies {2}, written by an earlier version, which does not "
                 L"tell whether it belongs to this file; open the file with that version to "
                 L"undo the interrupted save, or remove the journal to keep the file as it is",
                 {m_strPath, journal})) != 0;
}

// Undoes a save in the file, or finds that there is nothing to undo once the file is on the medium.
bool CStoreBody::Settle(const CStoreJournal& journal, CJournalFit fit) {
  if (fit == CJournalFit::Between) {
    if (!RollBack(journal) || !TakeStamp()) return false;
  } else {
    // The save may not have come to where it stamps the file.
    const bool saved = fit == CJournalFit::After;
    if (saved && !(m_pFile->AdvanceStamp(m_stamp.m_nChanged) && TakeStamp())) return false;
    if (!m_pFile->Sync()) return false;
    RemoveJournal();
  }
  m_nSize = m_nFileSize;
  m_bEmptied = m_nSize == 0;
  return true;
}

// Undoes a save in memory, for a reader.
bool CStoreBody::Shadow(const CStoreJournal& journal, CJournalFit fit) {
  m_bShadow = true;
  if (fit != CJournalFit::Between) return true;
  m_nSize = journal.m_nOldSize;
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    if (piece.m_nOffset >= m_nSize) break;
    if (!Write(piece.m_nOffset, piece.m_strOld.data(), piece.m_strOld.size())) return false;
  }
  return true;
}

}  // namespace orv3
