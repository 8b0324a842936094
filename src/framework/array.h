// CArray and CStringArray: growable arrays with index checking.
//
// Positions start at 0. An index outside the array raises CInvalidArgException, which names the
// index and the bound. A reference to an element is valid until the array grows or shrinks.
#pragma once

#include <cstddef>
#include <vector>

#include "framework/cstring.h"
#include "framework/exception.h"

template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray {
 public:
  int GetSize() const noexcept { return static_cast<int>(m_items.size()); }
  int GetCount() const noexcept { return GetSize(); }
  int GetUpperBound() const noexcept { return GetSize() - 1; }
  bool IsEmpty() const noexcept { return m_items.empty(); }

  const TYPE& GetAt(int index) const { return m_items[Checked(index)]; }
  TYPE& GetAt(int index) { return m_items[Checked(index)]; }
  TYPE& ElementAt(int index) { return m_items[Checked(index)]; }
  const TYPE& operator[](int index) const { return m_items[Checked(index)]; }
  TYPE& operator[](int index) { return m_items[Checked(index)]; }
  void SetAt(int index, ARG_TYPE value) { m_items[Checked(index)] = value; }

  // Appends; returns the position of the new element.
  int Add(ARG_TYPE value) {
    m_items.push_back(value);
    return GetSize() - 1;
  }
  // Appends all elements of `other`; returns the position of the first one.
  int Append(const CArray& other) {
    const int first = GetSize();
    m_items.reserve(m_items.size() + other.m_items.size());
    for (int i = 0, count = other.GetSize(); i < count; ++i)
      m_items.push_back(other.m_items[At(i)]);
    return first;
  }
  void Copy(const CArray& other) { m_items = other.m_items; }

  // Inserts `count` copies before `index`; `index` may be the size.
  void InsertAt(int index, ARG_TYPE value, int count = 1) {
    orv3::CheckIndex("CArray::InsertAt", index, static_cast<long long>(GetSize()) + 1);
    if (count > 0) m_items.insert(m_items.begin() + index, At(count), value);
  }
  void RemoveAt(int index, int count = 1) {
    if (count <= 0) return;
    Checked(index);
    orv3::CheckIndex("CArray::RemoveAt", static_cast<long long>(index) + count - 1, GetSize());
    m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
  }
  void RemoveAll() noexcept { std::vector<TYPE>().swap(m_items); }
  // New elements are value-initialised; a negative size is refused.
  void SetSize(int size) {
    orv3::CheckIndex("CArray::SetSize", size, 0x7FFFFFFFLL);
    m_items.resize(At(size));
  }
  void Reserve(int size) { m_items.reserve(At(size)); }

  const TYPE* GetData() const noexcept { return m_items.data(); }
  TYPE* GetData() noexcept { return m_items.data(); }
  auto begin() noexcept { return m_items.begin(); }
  auto end() noexcept { return m_items.end(); }
  auto begin() const noexcept { return m_items.begin(); }
  auto end() const noexcept { return m_items.end(); }

 private:
  static std::size_t At(int index) noexcept { return static_cast<std::size_t>(index); }
  std::size_t Checked(int index) const {
    orv3::CheckIndex("CArray", index, GetSize());
    return At(index);
  }

  std::vector<TYPE> m_items;
};

using CStringArray = CArray<CString, const CString&>;
