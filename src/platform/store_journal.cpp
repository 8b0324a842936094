#include "platform/store_journal.h"

#include <cstddef>
#include <string_view>

namespace orv3 {
namespace {

constexpr std::string_view kMagic = "Orv3CalJournal 1";
constexpr std::size_t kHead = 40;
constexpr std::size_t kPieceHead = 16;

void Put(std::string& out, std::uint64_t value) {
  for (int i = 0; i < 8; ++i) out += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::uint64_t Take(const std::string& bytes, std::size_t at) {
  std::uint64_t value = 0;
  for (std::size_t i = 8; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return sum;
}

bool DecodePieces(const std::string& bytes, std::uint64_t count, CStoreJournal& journal) {
  const std::size_t end = bytes.size() - 8;
  std::size_t at = kHead;
  for (std::uint64_t i = 0; i < count; ++i) {
    if (end - at < kPieceHead) return false;
    const std::uint64_t offset = Take(bytes, at);
    const std::uint64_t length = Take(bytes, at + 8);
    at += kPieceHead;
    if (length > end - at || offset > journal.m_nOldSize || length > journal.m_nOldSize - offset) {
      return false;
    }
    const auto size = static_cast<std::size_t>(length);
    journal.m_arrPiece.push_back({offset, bytes.substr(at, size)});
    at += size;
  }
  return at == end;
}

}  // namespace

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
  for (const CStoreJournal::CPiece& piece : journal.m_arrPiece) {
    Put(bytes, piece.m_nOffset);
    Put(bytes, piece.m_strBytes.size());
    bytes += piece.m_strBytes;
  }
  Put(bytes, Checksum(bytes));
  return bytes;
}

bool DecodeJournal(const std::string& bytes, std::uint64_t storeSize, CStoreJournal& journal) {
  journal = CStoreJournal();
  if (bytes.size() < kHead + 8 || bytes.compare(0, kMagic.size(), kMagic) != 0) return false;
  const std::string_view body = std::string_view(bytes).substr(0, bytes.size() - 8);
  if (Checksum(body) != Take(bytes, body.size())) return false;
  journal.m_nOldSize = Take(bytes, 16);
  journal.m_nNewSize = Take(bytes, 24);
  if (storeSize < journal.m_nOldSize || storeSize > journal.m_nNewSize) return false;
  return DecodePieces(bytes, Take(bytes, 32), journal);
}

}  // namespace orv3
