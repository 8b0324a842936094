// The index behind a table's key check and row look-up.
//
// Rows that only the table has touched are found through hashes. A row that was handed out by
// reference may change at any time, so it is never trusted to the hashes but named as a candidate
// of every question; so is a row that lacks a key column. The answers are candidates: the caller
// looks at each one's cells, and so decides exactly as a walk over all rows would.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

#include "tables/data_item_array.h"
#include "tables/data_type.h"

namespace orv3 {

// One column of a table's key. Key columns are searched by their signs, so a column is compared
// with the first one that carries its sign.
struct CKeyColumn {
  int m_nKey;      // the key column, whose value is taken from the new row
  int m_nCompare;  // the column that it is compared with
  CValueClass m_nClass;
  bool operator==(const CKeyColumn&) const = default;
};

// The key of a heading; empty when no row can ever be found by it (no key column, or the first
// one's sign cannot be found).
std::vector<CKeyColumn> KeyColumns(const CDataTableTitle& title);

// Positions by hash value: a chain of positions for each bucket.
class CPositionChains {
 public:
  void Clear();
  void Add(std::uint64_t hash, int position);
  void Remove(std::uint64_t hash, int position);
  void Collect(std::uint64_t hash, std::vector<int>& out) const;

 private:
  std::size_t Bucket(std::uint64_t hash) const noexcept;
  void Link(int position);
  void Grow();

  std::vector<int> m_arrHead;            // by bucket; -1 ends a chain
  std::vector<int> m_arrNext;            // by position; kAbsent for one that is not held
  std::vector<std::uint64_t> m_arrHash;  // by position
};

class CRowIndex {
 public:
  // Takes in what has changed since the last call; every question comes after it.
  void Update(const CDataItemArray& rows, const CDataTableTitle& title);

  const std::vector<CKeyColumn>& Key() const noexcept { return m_arrKey; }
  // Ascending positions that hold every row with the key of `row`. CInvalidArgException when `row`
  // lacks a key column.
  std::vector<int> KeyCandidates(const CDataItemArray& rows, const CDataItem& row) const;
  // Ascending positions that hold every row with a stable index.
  std::vector<int> IndexCandidates(const CDataItemArray& rows, int index) const;
  // Position of the first row with a negative edit state, -1 when there is none.
  int FirstDeleted(const CDataItemArray& rows) const;

  // Around every change that the table makes to a row: before and after it.
  void Forget(const CDataItemArray& rows, int position);
  void Remember(const CDataItemArray& rows, int position);

 private:
  bool HasKey(const CDataItem& row) const noexcept;
  std::uint64_t KeyHash(const CDataItem& row) const;

  std::vector<CKeyColumn> m_arrKey;
  CPositionChains m_byKey;
  CPositionChains m_byIndex;
  std::set<int> m_setDeleted;
  std::set<int> m_setWithoutKey;
  unsigned long long m_nArrangement = 0;
  int m_nIndexed = 0;  // rows taken in so far
};

}  // namespace orv3
