// The rows of a table: an array of rows whose members are those of CArray.
//
// Two things set it apart. A row keeps its address for as long as it is in the array, so that a
// caller's reference survives additions and sorting. And the array knows which rows it has handed
// out by reference: such a row may change at any time behind the table's back, every other row
// cannot have changed since the table last touched it. Reading through a const array hands out
// nothing.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "framework/exception.h"
#include "framework/export.h"
#include "tables/data_item.h"

class ORV3CAL_API CDataItemArray {
  struct CNode {
    explicit CNode(const CDataItem& row) : item(row) {}
    CDataItem item;
    bool handedOut = false;
  };

 public:
  template <class ARRAY, class ITEM>
  class CIterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = CDataItem;
    using difference_type = std::ptrdiff_t;
    using pointer = ITEM*;
    using reference = ITEM&;
    CIterator() = default;
    CIterator(ARRAY* array, int position) : m_pArray(array), m_nPosition(position) {}
    ITEM& operator*() const { return (*m_pArray)[m_nPosition]; }
    ITEM* operator->() const { return &**this; }
    CIterator& operator++() {
      ++m_nPosition;
      return *this;
    }
    CIterator operator++(int) { return {m_pArray, m_nPosition++}; }
    bool operator==(const CIterator& other) const { return m_nPosition == other.m_nPosition; }

   private:
    ARRAY* m_pArray = nullptr;
    int m_nPosition = 0;
  };

  CDataItemArray() = default;
  CDataItemArray(const CDataItemArray& other) { Append(other); }
  CDataItemArray& operator=(const CDataItemArray& other);
  ~CDataItemArray() = default;

  int GetSize() const noexcept { return static_cast<int>(m_arrNode.size()); }
  int GetCount() const noexcept { return GetSize(); }
  bool IsEmpty() const noexcept { return m_arrNode.empty(); }

  // CInvalidArgException out of range.
  const CDataItem& GetAt(int index) const { return m_arrNode[Checked(index)]->item; }
  CDataItem& GetAt(int index) { return (*this)[index]; }
  CDataItem& ElementAt(int index) { return (*this)[index]; }
  const CDataItem& operator[](int index) const { return m_arrNode[Checked(index)]->item; }
  CDataItem& operator[](int index);
  void SetAt(int index, const CDataItem& row) { (*this)[index] = row; }

  int Add(const CDataItem& row);            // the new row's position
  int Append(const CDataItemArray& other);  // the first new row's position
  void Copy(const CDataItemArray& other) { *this = other; }
  void InsertAt(int index, const CDataItem& row, int count = 1);
  void RemoveAt(int index, int count = 1);
  void RemoveAll() noexcept;
  void SetSize(int size);

  auto begin() { return CIterator<CDataItemArray, CDataItem>(this, 0); }
  auto end() { return CIterator<CDataItemArray, CDataItem>(this, GetSize()); }
  auto begin() const { return CIterator<const CDataItemArray, const CDataItem>(this, 0); }
  auto end() const { return CIterator<const CDataItemArray, const CDataItem>(this, GetSize()); }

  // --- For the table that owns the rows ---------------------------------------------------------

  // The row, not handed out: the table says itself what it changes there.
  CDataItem& Own(int index) { return m_arrNode[Checked(index)]->item; }
  // Calls visit(row) for each of them, not handed out.
  template <class VISIT>
  void Walk(VISIT visit) {
    for (const auto& node : m_arrNode) visit(node->item);
  }
  template <class VISIT>
  void Walk(VISIT visit) const {
    for (const auto& node : m_arrNode) visit(std::as_const(node->item));
  }
  // Brings what the cell in column `col` needs nearer to the processor, for a walk that comes to
  // row `index` next; each row is a few places in memory, and a walk would wait for every one.
  void Prefetch(int index, int col) const noexcept;
  bool IsHandedOut(int index) const { return m_arrNode[Checked(index)]->handedOut; }
  // Positions of the rows handed out so far, each once, in no order.
  const std::vector<int>& HandedOut() const noexcept { return m_arrHandedOut; }
  // Changes whenever rows change place or leave; additions at the end leave it alone.
  unsigned long long Arrangement() const noexcept { return m_nArrangement; }
  // Puts the rows into the order `positions` (a permutation of 0..GetSize()-1).
  void Rearrange(const std::vector<int>& positions);

 private:
  std::size_t Checked(int index) const {
    orv3::CheckIndex("rows", index, GetSize());
    return static_cast<std::size_t>(index);
  }
  void Rearranged();

  std::vector<std::unique_ptr<CNode>> m_arrNode;
  std::vector<int> m_arrHandedOut;
  unsigned long long m_nArrangement = 0;
};
