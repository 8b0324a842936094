#include "platform/store_body.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/store_error.h"

namespace orv3 {
namespace {

constexpr std::size_t kMaxWrite = std::size_t{1} << 20;

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

// --- Reading and changing in memory
// ---------------------------------------------------------------

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
  for (auto it = m_pages.lower_bound(offset / kPage); it != m_pages.end(); ++it) {
    const std::uint64_t pageAt = it->first * kPage;
    if (pageAt >= end) break;
    const std::uint64_t from = std::max(offset, pageAt);
    const std::size_t count = Part(kPage - static_cast<std::size_t>(from - pageAt), end - from);
    std::memcpy(out + (from - offset), it->second.data() + (from - pageAt), count);
  }
  return true;
}

// The page in memory, read from the file first unless all of it is about to be overwritten.
std::string* CStoreBody::PageToChange(std::uint64_t page, bool whole) {
  const auto [it, added] = m_pages.try_emplace(page);
  if (!added) return &it->second;
  it->second.assign(kPage, '\0');
  if (whole || ReadFromFile(page * kPage, it->second.data(), kPage)) return &it->second;
  m_pages.erase(it);
  return nullptr;
}

bool CStoreBody::Write(std::uint64_t offset, const void* data, std::size_t size) {
  if (m_bBroken) return false;
  m_bUnkept = true;
  const char* in = static_cast<const char*>(data);
  const std::uint64_t end = offset + size;
  while (offset < end) {
    const std::uint64_t page = offset / kPage;
    const auto at = static_cast<std::size_t>(offset % kPage);
    const std::size_t step = Part(kPage - at, end - offset);
    std::string* bytes = PageToChange(page, step == kPage);
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

// --- Saving
// ---------------------------------------------------------------------------------------

// Keeps only the pages that differ from the file; their old bytes go into the journal.
bool CStoreBody::CollectOld(CStoreJournal& journal) {
  journal.m_nOldSize = m_nFileSize;
  journal.m_nNewSize = m_nSize;
  std::string old(kPage, '\0');
  for (auto it = m_pages.begin(); it != m_pages.end();) {
    const std::uint64_t pageAt = it->first * kPage;
    if (!ReadFromFile(pageAt, old.data(), kPage)) return false;
    if (old == it->second) {
      it = m_pages.erase(it);
      continue;
    }
    if (pageAt < m_nFileSize) {
      journal.m_arrPiece.push_back({pageAt, old.substr(0, Part(kPage, m_nFileSize - pageAt))});
    }
    ++it;
  }
  return true;
}

bool CStoreBody::WriteJournal(const CStoreJournal& journal) {
  CFileError error{};
  const auto file = Files().Open(JournalPath(m_strPath), CFileMode::Replace, error);
  if (!file) return false;
  const std::string bytes = EncodeJournal(journal);
  return file->Write(0, bytes.data(), bytes.size()) == bytes.size() && file->Sync();
}

// Writes neighbouring pages together.
bool CStoreBody::ApplyChanges() {
  std::string run;
  std::uint64_t runAt = 0;
  const auto flush = [&] {
    return run.empty() || m_pFile->Write(runAt, run.data(), run.size()) == run.size();
  };
  for (const auto& [number, bytes] : m_pages) {
    const std::uint64_t pageAt = number * kPage;
    if (run.empty() || runAt + run.size() != pageAt || run.size() >= kMaxWrite) {
      if (!flush()) return false;
      run.clear();
      runAt = pageAt;
    }
    run.append(bytes, 0, Part(kPage, m_nSize - pageAt));
  }
  if (!flush()) return false;
  // The end may be zeros that no page holds.
  CFileStamp now;
  return m_pFile->Stamp(now) && (now.m_nSize == m_nSize || m_pFile->SetSize(m_nSize));
}

bool CStoreBody::RollBack(const CStoreJournal& journal) {
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    const std::string& bytes = piece.m_strBytes;
    if (m_pFile->Write(piece.m_nOffset, bytes.data(), bytes.size()) != bytes.size()) return false;
  }
  return m_pFile->SetSize(journal.m_nOldSize) && m_pFile->Sync() &&
         Files().Remove(JournalPath(m_strPath)) && Files().SyncFolder(m_strPath);
}

bool CStoreBody::Commit() {
  if (!m_bWritable || m_bBroken || m_bReadFailed || m_bSpoiled) return false;
  m_bUnkept = false;
  if (m_bGathering) return true;
  CStoreJournal journal;
  if (!CollectOld(journal)) return false;
  if (m_pages.empty() && m_nSize == m_nFileSize) return true;

  const CString journalPath = JournalPath(m_strPath);
  if (!WriteJournal(journal) || !Files().SyncFolder(m_strPath)) {
    Files().Remove(journalPath);
    DropChanges();
    return false;
  }
  // Gone is the journal, done is the save.
  if (ApplyChanges() && m_pFile->AdvanceStamp(m_stamp.m_nChanged) && m_pFile->Sync() &&
      Files().Remove(journalPath)) {
    Files().SyncFolder(m_strPath);
    m_nFileSize = m_nSize;
    m_pages.clear();
    if (!TakeStamp()) m_stamp = CFileStamp();
    return true;
  }
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

// --- After an interrupted save
// --------------------------------------------------------------------

// `found` tells whether there is a journal at all; an empty `journal` with it, that it is not
// whole. False when one is there and cannot be read.
bool CStoreBody::ReadJournal(CStoreJournal& journal, bool& found) {
  CFileError error{};
  const auto file = Files().Open(JournalPath(m_strPath), CFileMode::Read, error);
  found = error != CFileError::NotFound;
  if (!file) return !found;
  CFileStamp stamp;
  if (!file->Stamp(stamp)) return false;
  // A journal holds at most the whole old store and a few words for each of its pages.
  if (stamp.m_nSize > 2 * m_nFileSize + 64) return true;
  std::string bytes(static_cast<std::size_t>(stamp.m_nSize), '\0');
  if (file->Read(0, bytes.data(), bytes.size()) != bytes.size()) return false;
  if (!DecodeJournal(bytes, m_nFileSize, journal)) journal = CStoreJournal();
  return true;
}

bool CStoreBody::Recover() {
  if (!TakeStamp()) return false;
  m_nSize = m_nFileSize;
  CStoreJournal journal;
  bool found = false;
  if (!ReadJournal(journal, found)) return false;
  if (!found) return true;
  if (journal.m_nNewSize == 0) {  // not whole: the store was not touched yet
    Files().Remove(JournalPath(m_strPath));
    return true;
  }
  if (m_bWritable) {
    if (!RollBack(journal) || !TakeStamp()) return false;
    m_nSize = m_nFileSize;
    m_bEmptied = m_nSize == 0;
    return true;
  }
  m_nSize = journal.m_nOldSize;
  m_bShadow = true;
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    if (!Write(piece.m_nOffset, piece.m_strBytes.data(), piece.m_strBytes.size())) return false;
  }
  return true;
}

}  // namespace orv3
