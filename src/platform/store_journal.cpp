#include "platform/store_journal.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orv3 {
namespace {

constexpr std::string_view kMagic = "Orv3CalJournal 2";
constexpr std::string_view kFirstMagic = "Orv3CalJournal 1";
constexpr std::size_t kHead = 48;
constexpr std::size_t kFirstHead = 40;
constexpr std::size_t kPieceHead = 16;
// Differences that are nearer than a piece's head is long make one piece.
constexpr std::size_t kGap = kPieceHead;

void Put(std::string& out, std::uint64_t value) {
  for (int i = 0; i < 8; ++i) out += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::uint64_t Take(std::string_view bytes, std::size_t at) {
  std::uint64_t value = 0;
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(&value, bytes.data() + at, sizeof value);
  } else {
    for (std::size_t i = 8; i-- > 0;) {
      value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    }
  }
  return value;
}

// FNV-1a, as the first format has it.
std::uint64_t FirstChecksum(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return sum;
}

// The first byte from `at` on in which two pages differ.
std::size_t NextDifference(const std::string& a, const std::string& b, std::size_t at) {
  while (at + 8 <= a.size() && std::memcmp(a.data() + at, b.data() + at, 8) == 0) at += 8;
  while (at < a.size() && a[at] == b[at]) ++at;
  return at;
}

// The end of a run of differences that begins at `at`.
std::size_t EndOfDifference(const std::string& a, const std::string& b, std::size_t at) {
  std::size_t end = at;
  for (; at < a.size() && at - end < kGap; ++at) {
    if (a[at] != b[at]) end = at + 1;
  }
  return end;
}

std::size_t OldLength(const CStoreJournal& journal, std::uint64_t offset, std::size_t length) {
  if (offset >= journal.m_nOldSize) return 0;
  return static_cast<std::size_t>(std::min<std::uint64_t>(length, journal.m_nOldSize - offset));
}

bool DecodePieces(std::string_view bytes, std::size_t at, std::uint64_t count,
                  CStoreJournal& journal) {
  const std::uint64_t end = journal.m_bFirstFormat ? journal.m_nOldSize : journal.m_nNewSize;
  for (std::uint64_t i = 0; i < count; ++i) {
    if (bytes.size() - at < kPieceHead) return false;
    const std::uint64_t offset = Take(bytes, at);
    const std::uint64_t length = Take(bytes, at + 8);
    at += kPieceHead;
    if (length > bytes.size() - at || offset > end || length > end - offset) return false;
    const auto size = static_cast<std::size_t>(length);
    if (offset % kJournalPage + length > kJournalPage) return false;
    CStoreJournal::CPiece& piece = journal.m_arrPiece.emplace_back();
    piece.m_nOffset = offset;
    piece.m_strOld = bytes.substr(at, OldLength(journal, offset, size));
    at += piece.m_strOld.size();
    if (journal.m_bFirstFormat) continue;
    if (size > bytes.size() - at) return false;
    piece.m_strNew = bytes.substr(at, size);
    at += size;
  }
  return at == bytes.size();
}

// --- A journal beside a file ---------------------------------------------------------------------

// Which states of the save a file can be in.
struct CStates {
  bool m_bBefore = true;
  bool m_bAfter = true;
  bool m_bBetween = true;

  void See(const CStoreJournal::CPiece& piece, const char* bytes) {
    for (std::size_t i = 0; i < piece.m_strNew.size(); ++i) {
      const bool before = bytes[i] == (i < piece.m_strOld.size() ? piece.m_strOld[i] : '\0');
      const bool after = bytes[i] == piece.m_strNew[i];
      m_bBefore = m_bBefore && before;
      m_bAfter = m_bAfter && after;
      m_bBetween = m_bBetween && (before || after);
    }
  }
};

// Whether the bytes that the file has beyond the old store's end are zeros where no piece is.
bool IsTailClean(const CStoreJournal& journal, std::uint64_t fileSize, const CFileReader& read,
                 bool& clean) {
  std::string page(kJournalPage, '\0');
  auto piece = journal.m_arrPiece.begin();
  clean = true;
  for (std::uint64_t at = journal.m_nOldSize; clean && at < fileSize;) {
    const std::uint64_t next = at - at % kJournalPage + kJournalPage;
    page.resize(static_cast<std::size_t>(next - at));
    if (!read(at, page.data(), page.size())) return false;
    for (; piece != journal.m_arrPiece.end() && piece->m_nOffset < next; ++piece) {
      const std::uint64_t begin = std::max(piece->m_nOffset, at);
      const std::uint64_t end = piece->m_nOffset + piece->m_strNew.size();
      for (std::uint64_t i = begin; i < end; ++i) page[static_cast<std::size_t>(i - at)] = '\0';
    }
    clean = page.find_first_not_of('\0') == std::string::npos;
    at = next;
  }
  return true;
}

bool CompareFirstFormat(const CStoreJournal& journal, std::uint64_t fileSize,
                        const CFileReader& read, CJournalFit& fit) {
  fit = fileSize == journal.m_nOldSize ? CJournalFit::Before : CJournalFit::Undecided;
  std::string bytes;
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    bytes.resize(piece.m_strOld.size());
    if (!read(piece.m_nOffset, bytes.data(), bytes.size())) return false;
    if (bytes != piece.m_strOld) fit = CJournalFit::Undecided;
  }
  return true;
}

}  // namespace

std::uint64_t JournalChecksum(std::string_view bytes, std::uint64_t sum) {
  const auto add = [&sum](std::uint64_t word) {
    sum = (sum ^ word) * 0x9E3779B97F4A7C15;
    sum ^= sum >> 32;
  };
  std::size_t at = 0;
  for (; at + 8 <= bytes.size(); at += 8) add(Take(bytes, at));
  if (at < bytes.size()) {
    std::string last(bytes.substr(at));
    last.resize(8, '\0');
    add(Take(last, 0));
  }
  return sum;
}

bool CStoreJournal::AddPage(std::uint64_t pageAt, const std::string& before,
                            const std::string& after) {
  std::size_t at = NextDifference(before, after, 0);
  if (at == before.size()) return false;
  std::string around = before;
  while (at < before.size()) {
    const std::size_t length = EndOfDifference(before, after, at) - at;
    const std::uint64_t offset = pageAt + at;
    m_arrPiece.push_back(
        {offset, before.substr(at, OldLength(*this, offset, length)), after.substr(at, length)});
    around.replace(at, length, length, '\0');
    at = NextDifference(before, after, at + length);
  }
  m_nAround = JournalChecksum(around, m_nAround);
  return true;
}

CString JournalPath(const CString& store) {
  const std::size_t name = store.View().find_last_of(L"/\\") + 1;
  CString path(store.View().substr(0, name));
  for (const wchar_t ch : store.View().substr(name)) {
    path += ch;
    if (ch == L'.') path += L'_';
  }
  return path + L".journal";
}

std::string EncodeJournal(const CStoreJournal& journal) {
  std::string bytes(kMagic);
  Put(bytes, journal.m_nOldSize);
  Put(bytes, journal.m_nNewSize);
  Put(bytes, journal.m_arrPiece.size());
  Put(bytes, journal.m_nAround);
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    Put(bytes, piece.m_nOffset);
    Put(bytes, piece.m_strNew.size());
    bytes += piece.m_strOld;
    bytes += piece.m_strNew;
  }
  Put(bytes, JournalChecksum(bytes));
  return bytes;
}

bool DecodeJournal(const std::string& bytes, CStoreJournal& journal) {
  journal = CStoreJournal();
  journal.m_bFirstFormat = bytes.compare(0, kFirstMagic.size(), kFirstMagic) == 0;
  const std::size_t head = journal.m_bFirstFormat ? kFirstHead : kHead;
  if (bytes.size() < head + 8) return false;
  if (!journal.m_bFirstFormat && bytes.compare(0, kMagic.size(), kMagic) != 0) return false;
  const std::string_view body = std::string_view(bytes).substr(0, bytes.size() - 8);
  const std::uint64_t sum = journal.m_bFirstFormat ? FirstChecksum(body) : JournalChecksum(body);
  if (sum != Take(bytes, body.size())) return false;
  journal.m_nOldSize = Take(bytes, 16);
  journal.m_nNewSize = Take(bytes, 24);
  if (!journal.m_bFirstFormat) journal.m_nAround = Take(bytes, 40);
  return journal.m_nOldSize <= journal.m_nNewSize &&
         DecodePieces(body, head, Take(bytes, 32), journal);
}

bool CompareWithFile(const CStoreJournal& journal, std::uint64_t fileSize, const CFileReader& read,
                     CJournalFit& fit) {
  fit = CJournalFit::Foreign;
  if (fileSize < journal.m_nOldSize || fileSize > journal.m_nNewSize) return true;
  if (journal.m_bFirstFormat) return CompareFirstFormat(journal, fileSize, read, fit);
  CStates states;
  std::uint64_t around = 0;
  std::string page(kJournalPage, '\0');
  for (auto piece = journal.m_arrPiece.begin(); piece != journal.m_arrPiece.end();) {
    const std::uint64_t pageAt = piece->m_nOffset - piece->m_nOffset % kJournalPage;
    if (!read(pageAt, page.data(), page.size())) return false;
    for (; piece != journal.m_arrPiece.end() && piece->m_nOffset - pageAt < kJournalPage; ++piece) {
      const auto at = static_cast<std::size_t>(piece->m_nOffset - pageAt);
      states.See(*piece, page.data() + at);
      page.replace(at, piece->m_strNew.size(), piece->m_strNew.size(), '\0');
    }
    around = JournalChecksum(page, around);
  }
  bool clean = false;
  if (!IsTailClean(journal, fileSize, read, clean)) return false;
  if (!clean || around != journal.m_nAround || !states.m_bBetween) return true;
  if (states.m_bBefore && fileSize == journal.m_nOldSize) {
    fit = CJournalFit::Before;
  } else if (states.m_bAfter && fileSize == journal.m_nNewSize) {
    fit = CJournalFit::After;
  } else {
    fit = CJournalFit::Between;
  }
  return true;
}

}  // namespace orv3
