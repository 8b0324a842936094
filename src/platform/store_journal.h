// The rollback journal of a store file: what a save is about to overwrite, as it was before.
//
// It stands beside the store while a save changes it; when it is there and whole, the store's save
// was interrupted and the next opener puts the old bytes back. One that is not whole was itself
// interrupted, before the store was touched, and is only removed.
//
//   offset  size  meaning (integers little-endian)
//        0    16  "Orv3CalJournal 1"
//       16     8  size of the store before the save
//       24     8  size of the store after the save
//       32     8  number of pieces
//       40        each piece: offset in the store (8), length (8), the old bytes
//  end - 8     8  FNV-1a checksum of everything before it
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

struct CStoreJournal {
  struct CPiece {
    std::uint64_t m_nOffset;
    std::string m_strBytes;
  };

  std::uint64_t m_nOldSize = 0;
  std::uint64_t m_nNewSize = 0;
  std::vector<CPiece> m_arrPiece;
};

// The journal's path for a store: "a.KDB" has "a._KDB.journal", which no search for store files
// finds.
ORV3CAL_API CString JournalPath(const CString& store);

std::string EncodeJournal(const CStoreJournal& journal);
// False unless `bytes` are a whole journal of a store that is now `storeSize` bytes long.
bool DecodeJournal(const std::string& bytes, std::uint64_t storeSize, CStoreJournal& journal);

}  // namespace orv3
