// The index behind a table's key check and row look-up.
//
// Rows are found through hashes. A row that was handed out by reference may change at any time, so
// what it was hashed by is kept and compared with what it is before every question. A row that
// lacks a key column is a candidate of every question. The answers are candidates: the caller looks
// at each one's cells, and so decides exactly as a walk over all rows would.
#pragma once

#include <cstddef>
#include <cstdint>
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
  void Remove(int position);
  // The positions behind `position`, which is not held, are one less from now on.
  void CloseGap(int position);
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
  std::vector<int> KeyCandidates(const CDataItem& row) const;
  // Ascending positions that hold every row with a stable index.
  std::vector<int> IndexCandidates(int index) const;
  // Position of the first row with a negative edit state, -1 when there is none.
  int FirstDeleted() const { return m_arrDeleted.empty() ? -1 : m_arrDeleted.front(); }

  // Around every change that the table makes to a row: before and after it.
  void Forget(int position);
  void Remember(const CDataItemArray& rows, int position);
  // After a row that was forgotten has been removed from the array.
  void CloseGap(const CDataItemArray& rows, int position);

 private:
  // What a row that was handed out is hashed by, beside the texts of its key columns.
  struct CSeen {
    bool m_bKnown = false;
    bool m_bKey = false;
    int m_nIndex = 0;
    int m_nState = 0;
  };

  void LookAgain(const CDataItemArray& rows);
  void TakeSeen(const CDataItem& row, std::size_t at);
  bool IsAsSeen(const CDataItem& row, std::size_t at) const;
  bool HasKey(const CDataItem& row) const noexcept;
  std::uint64_t KeyHash(const CDataItem& row) const;

  std::vector<CKeyColumn> m_arrKey;
  CPositionChains m_byKey;
  CPositionChains m_byIndex;
  std::vector<int> m_arrDeleted;     // ascending positions
  std::vector<int> m_arrWithoutKey;  // the same
  std::vector<CSeen> m_arrSeen;      // by position, as far as rows were handed out
  // The key columns' texts, for each of m_arrSeen. They are shared with the rows', which therefore
  // cannot change in their places.
  std::vector<CString> m_arrSeenText;
  unsigned long long m_nArrangement = 0;
  int m_nIndexed = 0;  // rows taken in so far
};

}  // namespace orv3
