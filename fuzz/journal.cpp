// Journals left beside a store: any bytes there are undone or dropped, and the store can be opened.
#include <string>

#include "memory_files.h"
#include "platform/store_file.h"
#include "platform/store_journal.h"

namespace {

// The input with the checksum that belongs to it, so that what is behind the checksum is reached.
std::string WithChecksum(std::string bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  for (int i = 0; i < 8; ++i) bytes += static_cast<char>(sum >> 8 * i);
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  const std::string input(reinterpret_cast<const char*>(data), size);
  for (const std::string& journal : {input, WithChecksum(input)}) {
    files[L"a.KDB"] = std::string(1000, 's');
    files[orv3::JournalPath(L"a.KDB")] = journal;
    const auto file = orv3::CStoreFile::OpenToRead(L"a.KDB");
    Require(file && file->Size() <= 1000);
    Require(!files.Has(orv3::JournalPath(L"a.KDB")));
    std::string bytes(file->Size(), '\0');
    Require(file->Read(0, bytes.data(), bytes.size()));
  }
  return 0;
}
