// The rollback journal of a store file: what a save is about to overwrite, as it was before and as
// it is to become.
//
// It stands beside the store while a save changes it. The next opener compares it with the file
// that it finds there, byte for byte: only a file each of whose bytes is as it was or as it was to
// become is the store of an interrupted save, and gets the old bytes back. Beside any other file,
// one that was put in the store's place since, the journal is only removed. So is a journal that is
// not whole: it was itself interrupted, before the store was touched.
//
//   offset  size  meaning (integers little-endian)
//        0    16  "Orv3CalJournal 2"
//       16     8  size of the store before the save
//       24     8  size of the store after the save
//       32     8  number of pieces
//       40     8  checksum of the changed pages' other bytes
//       48        each piece: offset in the store (8), length (8), the old bytes as far as the old
//                 store reaches, the new bytes
//  end - 8     8  checksum of everything before it
//
// A page is 4096 bytes; a piece lies within one. "Orv3CalJournal 1" held whole old pages and no new
// bytes, so that nothing tells which file it belongs to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

inline constexpr std::size_t kJournalPage = 4096;
// A save that would need a longer journal is refused.
inline constexpr std::uint64_t kMaxJournal = std::uint64_t{1} << 30;

struct CStoreJournal {
  struct CPiece {
    std::uint64_t m_nOffset;
    std::string m_strOld;  // shorter than the new bytes where the old store ends
    std::string m_strNew;
  };

  // Takes up the pieces in which a page is to change; false when it is not to change at all. Both
  // states of the page are whole, with zeros beyond the store's end.
  bool AddPage(std::uint64_t pageAt, const std::string& before, const std::string& after);

  std::uint64_t m_nOldSize = 0;
  std::uint64_t m_nNewSize = 0;
  std::uint64_t m_nAround = 0;  // checksum of the changed pages with zeros in the pieces' places
  std::vector<CPiece> m_arrPiece;
  bool m_bFirstFormat = false;  // "Orv3CalJournal 1": its pieces have no new bytes
};

// The journal's path for a store: "a.KDB" has "a._KDB.journal", which no search for store files
// finds.
ORV3CAL_API CString JournalPath(const CString& store);

// Each eight bytes, zeros filling the last ones, as a number: sum = (sum xor number) times
// 0x9E3779B97F4A7C15, then sum = sum xor (sum shifted right by 32).
std::uint64_t JournalChecksum(std::string_view bytes, std::uint64_t sum = 0);

std::string EncodeJournal(const CStoreJournal& journal);
// False unless `bytes` are a whole journal.
bool DecodeJournal(const std::string& bytes, CStoreJournal& journal);

// What a file is to a journal.
enum class CJournalFit {
  Foreign,    // another file
  Before,     // the store, nothing of the save in it
  Between,    // the store with some of the save
  After,      // the store with all of the save
  Undecided,  // of the first format, and not as before the save
};

// Reads bytes of the file, zeros beyond its end.
using CFileReader = std::function<bool(std::uint64_t offset, char* data, std::size_t size)>;
// False when `read` fails.
bool CompareWithFile(const CStoreJournal& journal, std::uint64_t fileSize, const CFileReader& read,
                     CJournalFit& fit);

}  // namespace orv3
