// Journals left beside a store: any bytes there are undone or dropped, and the store can be opened,
// unless they are a whole journal of the first format.
#include <string>

#include "memory_files.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "platform/store_journal.h"

namespace {

// The input with the checksum that belongs to it, so that what is behind the checksum is reached.
std::string WithChecksum(std::string bytes) {
  const std::uint64_t sum = orv3::JournalChecksum(bytes);
  for (int i = 0; i < 8; ++i) bytes += static_cast<char>(sum >> 8 * i);
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  const std::string store(1000, 's');
  const std::string input(reinterpret_cast<const char*>(data), size);
  for (const std::string& journal : {input, WithChecksum(input)}) {
    files[L"a.KDB"] = store;
    files[orv3::JournalPath(L"a.KDB")] = journal;
    orv3::ClearStoreError();
    const auto file = orv3::CStoreFile::OpenToRead(L"a.KDB");
    if (!file) {
      Require(orv3::LastStoreError().m_nTrouble == orv3::CStoreTrouble::Damaged);
      Require(journal.rfind("Orv3CalJournal 1", 0) == 0 && files[L"a.KDB"] == store);
      continue;
    }
    Require(file->Size() <= 1000);
    Require(!files.Has(orv3::JournalPath(L"a.KDB")));
    std::string bytes(file->Size(), '\0');
    Require(file->Read(0, bytes.data(), bytes.size()));
  }
  return 0;
}
