#include "catalogue/exact/exact_figures.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "catalogue/lattice/steel_ge_gou.h"
#include "catalogue/outline/row_spacing.h"
#include "framework/double_bits.h"
#include "outlines/exact_keys.h"
#include "platform/threads.h"
#include "platform/whole_file.h"
#include "sections/section_kind.h"
#include "tables/file/table_store.h"

namespace orv3 {
namespace {

constexpr std::string_view kMagic = "ORV3EXCT";
constexpr std::size_t kHeader = 24;
constexpr std::size_t kRecord = 16 + 8 * (kExactKeys + 4) + 8;
constexpr std::size_t kMostRecords = 100'000;

constexpr double CExactErrors::*kErrors[] = {&CExactErrors::It, &CExactErrors::Iw,
                                             &CExactErrors::center, &CExactErrors::As};

// --- Bytes ---------------------------------------------------------------------------------------

void Append(std::string& bytes, std::uint64_t value, int size = 8) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::uint64_t Number(std::string_view bytes, std::size_t at, int size = 8) {
  std::uint64_t value = 0;
  for (int i = 0; i < size; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    value |= std::uint64_t{byte} << (8 * i);
  }
  return value;
}

// Each number changes all bits of what comes out.
std::uint64_t Mixed(std::uint64_t sum, std::uint64_t value) {
  sum = (sum ^ value) * 0x9E3779B97F4A7C15U;
  sum ^= sum >> 32;
  sum *= 0xD6E8FEB86659FD93U;
  return sum ^ sum >> 29;
}

std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = bytes.size();
  for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) sum = Mixed(sum, Number(bytes, at));
  return sum;
}

void AppendRecord(std::string& bytes, const CExactRecord& record) {
  const auto add = [&](double value) {
    Append(bytes, std::isnan(value) ? 0x7FF8000000000000U : BitsOf(value));
  };
  for (const std::uint64_t part : record.m_key) Append(bytes, part);
  for (const CExactKey& key : ExactKeys()) add(record.m_exact.*key.m_pField);
  for (const auto error : kErrors) add(record.m_exact.m_error.*error);
  Append(bytes, (record.m_exact.m_bJoined ? 1U : 0U) | (record.m_exact.m_bAccurate ? 2U : 0U));
}

CExactRecord RecordAt(std::string_view bytes, std::size_t at) {
  CExactRecord record;
  const auto next = [&] { return Number(bytes, std::exchange(at, at + 8)); };
  for (std::uint64_t& part : record.m_key) part = next();
  for (const CExactKey& key : ExactKeys()) record.m_exact.*key.m_pField = DoubleOf(next());
  for (const auto error : kErrors) record.m_exact.m_error.*error = DoubleOf(next());
  const std::uint64_t flags = next();
  record.m_exact.m_bJoined = (flags & 1U) != 0;
  record.m_exact.m_bAccurate = (flags & 2U) != 0;
  return record;
}

// --- Keys ----------------------------------------------------------------------------------------

// Made from the numbers of the characters, of which Windows has the same in half the bytes: three
// of them, of 21 bits at most, at once.
class CKeyMaker {
 public:
  // What an outline may be made from: any cell's sign, value and type.
  void AddRow(const CDataItem& row) {
    AddText(row.m_strTableName);
    for (const CDataCell& cell : row.m_arrCell) {
      AddText(cell.m_strSign);
      AddText(cell.m_strValue);
      Add(static_cast<std::uint64_t>(cell.m_nType));
    }
  }

  CExactRecordKey Key() {
    for (int i = 0; i < 3; ++i) Add(kEnd);
    return m_key;
  }

 private:
  static constexpr std::uint64_t kEnd = 0x110000;  // of a text; no character's number

  void AddText(std::wstring_view text) {
    for (const wchar_t ch : text) Add(static_cast<std::uint64_t>(ch));
    Add(kEnd);
  }

  void Add(std::uint64_t number) {
    m_open = m_open << 21 | number;
    if (++m_nOpen < 3) return;
    m_key = {Mixed(m_key[0], m_open), Mixed(m_key[1], ~m_open)};
    m_open = 0;
    m_nOpen = 0;
  }

  CExactRecordKey m_key{0x243F6A8885A308D3U, 0x13198A2E03707344U};
  std::uint64_t m_open = 0;  // not mixed yet
  int m_nOpen = 0;
};

// --- The files in use ----------------------------------------------------------------------------

using CRecords = std::shared_ptr<const std::vector<CExactRecord>>;

class CExactFiles {
 public:
  CRecords Of(const CString& file) {
    if (file.IsEmpty()) return nullptr;
    const std::lock_guard lock(m_lock);
    const auto known = m_mapFile.find(file);
    if (known != m_mapFile.end()) return known->second;
    if (m_mapFile.size() >= kMostFiles) m_mapFile.clear();
    return m_mapFile[file] = Read(file);
  }
  void SetSecond(const CString& file) {
    const std::lock_guard lock(m_lock);
    m_strSecond = file;
  }
  CString Second() {
    const std::lock_guard lock(m_lock);
    return m_strSecond;
  }

 private:
  static constexpr std::size_t kMostFiles = 4;

  static CRecords Read(const CString& file) {
    constexpr std::size_t kMost = kHeader + kRecord * kMostRecords;
    std::string bytes;
    if (ReadWholeFile(file, bytes, kMost + 1) != CFileError::None) return nullptr;
    auto records = ReadExactFile(bytes);
    return records ? std::make_shared<const std::vector<CExactRecord>>(std::move(*records))
                   : nullptr;
  }

  CLock m_lock;
  std::map<CString, CRecords> m_mapFile;  // null for one that is of no use
  CString m_strSecond;
};

CExactFiles& ExactFiles() {
  static CExactFiles files;
  return files;
}

const CExactRecord* Find(const std::vector<CExactRecord>& records, const CExactRecordKey& key) {
  const auto found =
      std::lower_bound(records.begin(), records.end(), key,
                       [](const CExactRecord& record, const CExactRecordKey& wanted) {
                         return record.m_key < wanted;
                       });
  return found != records.end() && found->m_key == key ? &*found : nullptr;
}

}  // namespace

std::optional<CExactRecordKey> ExactRecordKey(const CDataItem& row) {
  const CSectionTable* table = FindSectionTable(row.m_strTableName);
  if (table == nullptr) return std::nullopt;
  CKeyMaker key;
  key.AddRow(row);
  if (table->m_pPair != nullptr) key.AddRow(PairPartRow(row));
  if (table->m_nLimbs > 0) {
    const CSteelItemGeGou column(row);
    for (int limb = 1; limb <= table->m_nLimbs; ++limb) key.AddRow(column.GetPartItem(limb));
  }
  return key.Key();
}

std::string ExactFileBytes(std::vector<CExactRecord> records) {
  std::stable_sort(records.begin(), records.end(),
                   [](const CExactRecord& a, const CExactRecord& b) { return a.m_key < b.m_key; });
  records.erase(
      std::unique(records.begin(), records.end(),
                  [](const CExactRecord& a, const CExactRecord& b) { return a.m_key == b.m_key; }),
      records.end());
  std::string body;
  for (const CExactRecord& record : records) AppendRecord(body, record);
  std::string bytes(kMagic);
  Append(bytes, kExactVersion, 4);
  Append(bytes, records.size(), 4);
  Append(bytes, Checksum(body));
  return bytes + body;
}

std::optional<std::vector<CExactRecord>> ReadExactFile(std::string_view bytes) {
  if (bytes.size() < kHeader || !bytes.starts_with(kMagic) || Number(bytes, 8, 4) != kExactVersion)
    return std::nullopt;
  const std::uint64_t count = Number(bytes, 12, 4);
  if (count > kMostRecords || bytes.size() != kHeader + kRecord * count ||
      Number(bytes, 16) != Checksum(bytes.substr(kHeader)))
    return std::nullopt;
  std::vector<CExactRecord> records;
  records.reserve(static_cast<std::size_t>(count));
  for (std::size_t at = kHeader; at < bytes.size(); at += kRecord) {
    records.push_back(RecordAt(bytes, at));
    if (records.size() > 1 && !(records[records.size() - 2].m_key < records.back().m_key))
      return std::nullopt;
  }
  return records;
}

std::optional<CExactProperties> FindExact(const CDataItem& row) {
  const auto key = ExactRecordKey(row);
  if (!key) return std::nullopt;
  const CString folder = ProgramPath();
  for (const CString& file :
       {folder.IsEmpty() ? folder : folder + kExactFile, ExactFiles().Second()}) {
    const CRecords records = ExactFiles().Of(file);
    const CExactRecord* found = records ? Find(*records, *key) : nullptr;
    if (found != nullptr) return found->m_exact;
  }
  return std::nullopt;
}

void SetExactFile(const CString& file) { ExactFiles().SetSecond(file); }

}  // namespace orv3
