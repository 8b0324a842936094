#include "tables/row_index.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string_view>

#include "framework/number_text.h"
#include "tables/edit_state.h"

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

// Into ascending positions and out of them.
void PutIn(std::vector<int>& positions, int position) {
  if (positions.empty() || positions.back() < position) {
    positions.push_back(position);
    return;
  }
  const auto place = std::lower_bound(positions.begin(), positions.end(), position);
  if (*place != position) positions.insert(place, position);
}

void TakeOut(std::vector<int>& positions, int position) {
  const auto place = std::lower_bound(positions.begin(), positions.end(), position);
  if (place != positions.end() && *place == position) positions.erase(place);
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

void CPositionChains::Remove(int position) {
  const auto at = static_cast<std::size_t>(position);
  if (at >= m_arrNext.size() || m_arrNext[at] == kAbsent) return;
  int* link = &m_arrHead[Bucket(m_arrHash[at])];
  while (*link != position) link = &m_arrNext[static_cast<std::size_t>(*link)];
  *link = m_arrNext[at];
  m_arrNext[at] = kAbsent;
}

void CPositionChains::CloseGap(int position) {
  if (position >= std::ssize(m_arrNext)) return;
  m_arrNext.erase(m_arrNext.begin() + position);
  m_arrHash.erase(m_arrHash.begin() + position);
  for (int& head : m_arrHead) head -= head > position;
  for (int& next : m_arrNext) next -= next > position;
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
    m_arrDeleted.clear();
    m_arrWithoutKey.clear();
    m_arrSeen.clear();
    m_arrSeenText.clear();
    m_nIndexed = 0;
  }
  while (m_nIndexed < rows.GetSize()) Remember(rows, m_nIndexed++);
  LookAgain(rows);
}

void CRowIndex::LookAgain(const CDataItemArray& rows) {
  const int column = m_arrKey.empty() ? 0 : m_arrKey.front().m_nCompare;
  for (const int position : rows.HandedOut()) {
    rows.Prefetch(position, column);
    if (IsAsSeen(rows.GetAt(position), static_cast<std::size_t>(position))) continue;
    Forget(position);
    Remember(rows, position);
  }
}

std::vector<int> CRowIndex::KeyCandidates(const CDataItem& row) const {
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
  std::vector<int> positions = m_arrWithoutKey;
  for (const std::uint64_t hash : hashes) m_byKey.Collect(hash, positions);
  SortOut(positions);
  return positions;
}

std::vector<int> CRowIndex::IndexCandidates(int index) const {
  std::vector<int> positions;
  m_byIndex.Collect(static_cast<std::uint64_t>(index), positions);
  SortOut(positions);
  return positions;
}

void CRowIndex::Forget(int position) {
  TakeOut(m_arrDeleted, position);
  TakeOut(m_arrWithoutKey, position);
  m_byIndex.Remove(position);
  m_byKey.Remove(position);
}

void CRowIndex::Remember(const CDataItemArray& rows, int position) {
  const CDataItem& row = rows.GetAt(position);
  if (IsDeleted(row.m_nModifyType)) PutIn(m_arrDeleted, position);
  m_byIndex.Add(static_cast<std::uint64_t>(row.m_nIndex), position);
  if (!m_arrKey.empty()) {
    if (HasKey(row)) {
      m_byKey.Add(KeyHash(row), position);
    } else {
      PutIn(m_arrWithoutKey, position);
    }
  }
  if (rows.IsHandedOut(position)) TakeSeen(row, static_cast<std::size_t>(position));
}

void CRowIndex::CloseGap(const CDataItemArray& rows, int position) {
  m_byKey.CloseGap(position);
  m_byIndex.CloseGap(position);
  for (int& deleted : m_arrDeleted) deleted -= deleted > position;
  for (int& bare : m_arrWithoutKey) bare -= bare > position;
  if (position < std::ssize(m_arrSeen)) {
    const auto width = std::ssize(m_arrKey);
    const auto text = m_arrSeenText.begin() + position * width;
    m_arrSeen.erase(m_arrSeen.begin() + position);
    m_arrSeenText.erase(text, text + width);
  }
  --m_nIndexed;
  m_nArrangement = rows.Arrangement();
}

void CRowIndex::TakeSeen(const CDataItem& row, std::size_t at) {
  if (m_arrSeen.size() <= at) {
    m_arrSeen.resize(at + 1);
    m_arrSeenText.resize((at + 1) * m_arrKey.size());
  }
  const bool hasKey = HasKey(row);
  m_arrSeen[at] = {true, hasKey, row.m_nIndex, row.m_nModifyType};
  CString* text = m_arrSeenText.data() + at * m_arrKey.size();
  for (const CKeyColumn& column : m_arrKey) {
    *text++ = hasKey ? row[column.m_nCompare].m_strValue : CString();
  }
}

bool CRowIndex::IsAsSeen(const CDataItem& row, std::size_t at) const {
  if (at >= m_arrSeen.size()) return false;
  const CSeen& seen = m_arrSeen[at];
  if (!seen.m_bKnown || seen.m_nIndex != row.m_nIndex || seen.m_nState != row.m_nModifyType ||
      seen.m_bKey != HasKey(row)) {
    return false;
  }
  const CString* text = m_arrSeenText.data() + at * m_arrKey.size();
  return !seen.m_bKey ||
         std::all_of(m_arrKey.begin(), m_arrKey.end(), [&](const CKeyColumn& column) {
           return row[column.m_nCompare].m_strValue.GetString() == text++->GetString();
         });
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
