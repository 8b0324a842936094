#include "tables/row_index.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string_view>

#include "framework/number_text.h"

namespace orv3 {
namespace {

// Floating keys are equal within 1e-6. Each value falls into one bucket of a grid far wider than
// that, so all values equal to one lie in its bucket or in one beside it. The grid's edges lie
// where no value with up to five decimals comes within reach of one; whoever does has two hashes
// instead of one, which doubles with each such column: only the first few are hashed.
constexpr double kReach = 1.01e-6;
constexpr double kBucket = 1e-4;
constexpr double kEdge = 5.5555e-5;
constexpr int kHashedFloating = 4;

constexpr int kAbsent = -2;

std::uint64_t Mix(std::uint64_t seed, std::uint64_t value) noexcept {
  seed ^= value + 0x9E3779B97F4A7C15ULL + (seed << 6) + (seed >> 2);
  seed *= 0xBF58476D1CE4E5B9ULL;
  return seed ^ (seed >> 31);
}

std::uint64_t BucketHash(double value) noexcept {
  return std::hash<double>()(std::floor((value - kEdge) / kBucket) + 0.0);
}

// The hash of a cell that is not floating.
std::uint64_t ExactHash(CValueClass valueClass, const CString& text) noexcept {
  if (valueClass == CValueClass::Integer) return static_cast<std::uint64_t>(ToInt(text));
  return std::hash<std::wstring_view>()(text);
}

void SortOut(std::vector<int>& positions) {
  std::sort(positions.begin(), positions.end());
  positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
}

}  // namespace

std::vector<CKeyColumn> KeyColumns(const CDataTableTitle& title) {
  std::vector<CKeyColumn> key;
  bool first = true;
  for (int i = 0; i < title.GetTableTitleNum(); ++i) {
    if (title[i].m_bKey == 0) continue;
    const int compare = title.GetColIndex(CString(title[i].m_strSign).Trim());
    if (compare >= 0) {
      key.push_back({i, compare, ValueClassOf(title[compare].m_nType)});
    } else if (first) {
      return {};
    }
    first = false;
  }
  return key;
}

std::size_t CPositionChains::Bucket(std::uint64_t hash) const noexcept {
  return static_cast<std::size_t>(Mix(0, hash)) & (m_arrHead.size() - 1);
}

void CPositionChains::Link(int position) {
  const auto at = static_cast<std::size_t>(position);
  int& head = m_arrHead[Bucket(m_arrHash[at])];
  m_arrNext[at] = head;
  head = position;
}

// Keeps at most one position a bucket on average; the number of buckets is a power of two.
void CPositionChains::Grow() {
  m_arrHead.assign(std::max<std::size_t>(16, m_arrHead.size() * 2), -1);
  for (std::size_t i = 0; i < m_arrNext.size(); ++i) {
    if (m_arrNext[i] != kAbsent) Link(static_cast<int>(i));
  }
}

void CPositionChains::Clear() {
  m_arrHead.clear();
  m_arrNext.clear();
  m_arrHash.clear();
}

void CPositionChains::Add(std::uint64_t hash, int position) {
  const auto at = static_cast<std::size_t>(position);
  if (m_arrNext.size() <= at) {
    m_arrNext.resize(at + 1, kAbsent);
    m_arrHash.resize(at + 1);
  }
  if (m_arrNext.size() > m_arrHead.size()) Grow();
  m_arrHash[at] = hash;
  Link(position);
}

void CPositionChains::Remove(std::uint64_t hash, int position) {
  if (m_arrHead.empty()) return;
  int* link = &m_arrHead[Bucket(hash)];
  while (*link >= 0 && *link != position) link = &m_arrNext[static_cast<std::size_t>(*link)];
  if (*link < 0) return;
  *link = m_arrNext[static_cast<std::size_t>(position)];
  m_arrNext[static_cast<std::size_t>(position)] = kAbsent;
}

void CPositionChains::Collect(std::uint64_t hash, std::vector<int>& out) const {
  if (m_arrHead.empty()) return;
  for (int position = m_arrHead[Bucket(hash)]; position >= 0;
       position = m_arrNext[static_cast<std::size_t>(position)]) {
    if (m_arrHash[static_cast<std::size_t>(position)] == hash) out.push_back(position);
  }
}

void CRowIndex::Update(const CDataItemArray& rows, const CDataTableTitle& title) {
  std::vector<CKeyColumn> key = KeyColumns(title);
  if (m_nArrangement != rows.Arrangement() || key != m_arrKey || m_nIndexed > rows.GetSize()) {
    m_arrKey = std::move(key);
    m_nArrangement = rows.Arrangement();
    m_byKey.Clear();
    m_byIndex.Clear();
    m_setDeleted.clear();
    m_setWithoutKey.clear();
    m_nIndexed = 0;
  }
  while (m_nIndexed < rows.GetSize()) Remember(rows, m_nIndexed++);
}

std::vector<int> CRowIndex::KeyCandidates(const CDataItemArray& rows, const CDataItem& row) const {
  std::vector<std::uint64_t> hashes{0};
  int floating = 0;
  for (const CKeyColumn& column : m_arrKey) {
    const CString& text = row[column.m_nKey].m_strValue;
    if (column.m_nClass == CValueClass::Floating && floating++ >= kHashedFloating) continue;
    if (column.m_nClass != CValueClass::Floating) {
      const std::uint64_t part = ExactHash(column.m_nClass, text);
      for (std::uint64_t& hash : hashes) hash = Mix(hash, part);
      continue;
    }
    const double value = ToDouble(text);
    const std::uint64_t low = BucketHash(value - kReach);
    const std::uint64_t high = BucketHash(value + kReach);
    const std::size_t count = hashes.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (high != low) hashes.push_back(Mix(hashes[i], high));
      hashes[i] = Mix(hashes[i], low);
    }
  }
  std::vector<int> positions = rows.HandedOut();
  positions.insert(positions.end(), m_setWithoutKey.begin(), m_setWithoutKey.end());
  for (const std::uint64_t hash : hashes) m_byKey.Collect(hash, positions);
  SortOut(positions);
  return positions;
}

std::vector<int> CRowIndex::IndexCandidates(const CDataItemArray& rows, int index) const {
  std::vector<int> positions = rows.HandedOut();
  m_byIndex.Collect(static_cast<std::uint64_t>(index), positions);
  SortOut(positions);
  return positions;
}

int CRowIndex::FirstDeleted(const CDataItemArray& rows) const {
  int first = rows.GetSize();
  for (const int position : m_setDeleted) {
    if (rows.IsHandedOut(position)) continue;
    first = position;
    break;
  }
  for (const int position : rows.HandedOut()) {
    if (position < first && rows.GetAt(position).m_nModifyType < 0) first = position;
  }
  return first < rows.GetSize() ? first : -1;
}

void CRowIndex::Forget(const CDataItemArray& rows, int position) {
  if (rows.IsHandedOut(position)) return;
  const CDataItem& row = rows.GetAt(position);
  m_setDeleted.erase(position);
  m_setWithoutKey.erase(position);
  m_byIndex.Remove(static_cast<std::uint64_t>(row.m_nIndex), position);
  if (!m_arrKey.empty() && HasKey(row)) m_byKey.Remove(KeyHash(row), position);
}

void CRowIndex::Remember(const CDataItemArray& rows, int position) {
  if (rows.IsHandedOut(position)) return;
  const CDataItem& row = rows.GetAt(position);
  if (row.m_nModifyType < 0) m_setDeleted.insert(position);
  m_byIndex.Add(static_cast<std::uint64_t>(row.m_nIndex), position);
  if (m_arrKey.empty()) return;
  if (HasKey(row)) {
    m_byKey.Add(KeyHash(row), position);
  } else {
    m_setWithoutKey.insert(position);
  }
}

bool CRowIndex::HasKey(const CDataItem& row) const noexcept {
  return std::all_of(m_arrKey.begin(), m_arrKey.end(), [&](const CKeyColumn& column) {
    return column.m_nCompare < row.GetItemLength();
  });
}

std::uint64_t CRowIndex::KeyHash(const CDataItem& row) const {
  std::uint64_t hash = 0;
  int floating = 0;
  for (const CKeyColumn& column : m_arrKey) {
    if (column.m_nClass == CValueClass::Floating && floating++ >= kHashedFloating) continue;
    const CString& text = row[column.m_nCompare].m_strValue;
    hash = Mix(hash, column.m_nClass == CValueClass::Floating ? BucketHash(ToDouble(text))
                                                              : ExactHash(column.m_nClass, text));
  }
  return hash;
}

}  // namespace orv3
