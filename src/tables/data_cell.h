// Cells, and the array of cells that a row is made of.
#pragma once

#include <atomic>

#include "framework/cstring.h"
#include "framework/exception.h"
#include "framework/export.h"
#include "tables/data_type.h"

// One cell of a row: the value as text, and its column's name, sign, type and key flag.
class ORV3CAL_API CDataCell {
 public:
  using KVBT_Value_Type = CDataTypeStruct::KVBT_Value_Type;

  CDataCell() = default;
  CDataCell(const CDataTypeStruct& column, const CString& value)
      : m_strValue(value),
        m_strName(column.m_strName),
        m_strSign(column.m_strSign),
        m_nType(column.m_nType),
        m_bKey(column.m_bKey) {}
  CDataCell(const CDataCell&) = default;
  CDataCell(CDataCell&&) noexcept = default;
  CDataCell& operator=(const CDataCell&) = default;
  CDataCell& operator=(CDataCell&&) noexcept = default;
  virtual ~CDataCell() = default;

  void SetValue(const CString& value, const CString& name, const CString& sign);
  void SetItemValue(const CString& value) { m_strValue = value; }
  void SetItemName(const CString& name) { m_strName = name; }
  void SetItemSign(const CString& sign) { m_strSign = sign; }
  void SetItemValueType(KVBT_Value_Type type) { m_nType = type; }
  void SetItemKey(int bKey) { m_bKey = bKey; }
  CString GetItemName() const { return m_strName; }
  CString GetItemSign() const { return m_strSign; }
  KVBT_Value_Type GetItemValueType() const { return m_nType; }
  int IsKeyItem() const { return m_bKey; }

  // The value as the one C++ type that serves the cell's type: 1 and the value, or 0 and `value`
  // untouched when the cell has another type.
  int GetItemValue(CString& value) const;  // KVBT_STRING
  int GetItemValue(int& value) const;      // KVBT_INT
  int GetItemValue(long& value) const;     // KVBT_LONG, KVBT_LONG_ALT
  int GetItemValue(float& value) const;    // KVBT_FLOAT
  int GetItemValue(double& value) const;   // KVBT_DOUBLE
  int GetItemValue(wchar_t& value) const;  // KVBT_CHAR; 0 for an empty text

  CString m_strValue;
  CString m_strName;
  CString m_strSign;
  KVBT_Value_Type m_nType = CDataTypeStruct::KVBT_STRING;
  int m_bKey = 0;
};

// The cells of a row: an array whose members are those of CArray, implicitly shared.
//
// Copying it copies a pointer, so that a search result costs one reference count a row; the cells
// are copied when a shared array is changed. Once a cell has been handed out by reference, which
// may be written through at any time, copies of that array are made at once.
class ORV3CAL_API CDataCellArray {
 public:
  CDataCellArray() noexcept = default;
  CDataCellArray(const CDataCellArray& other) : m_pBlock(other.Shared()) {}
  CDataCellArray(CDataCellArray&& other) noexcept : m_pBlock(other.m_pBlock) {
    other.m_pBlock = nullptr;
  }
  CDataCellArray& operator=(const CDataCellArray& other);
  CDataCellArray& operator=(CDataCellArray&& other) noexcept;
  ~CDataCellArray() { Release(); }

  int GetSize() const noexcept { return m_pBlock ? m_pBlock->size : 0; }
  int GetCount() const noexcept { return GetSize(); }
  bool IsEmpty() const noexcept { return GetSize() == 0; }

  // CInvalidArgException out of range.
  const CDataCell& operator[](int index) const { return begin()[Checked(index)]; }
  CDataCell& operator[](int index) { return begin()[Checked(index)]; }
  const CDataCell& GetAt(int index) const { return (*this)[index]; }
  CDataCell& GetAt(int index) { return (*this)[index]; }
  CDataCell& ElementAt(int index) { return (*this)[index]; }
  void SetAt(int index, const CDataCell& cell) { Own(index) = cell; }

  int Add(CDataCell cell);                  // the new cell's position
  int Append(const CDataCellArray& other);  // the first new cell's position
  void Copy(const CDataCellArray& other) { *this = other; }
  void InsertAt(int index, const CDataCell& cell, int count = 1);
  void RemoveAt(int index, int count = 1);
  void RemoveAll() noexcept { Release(); }
  void SetSize(int size);
  void Reserve(int size) { MakeOwn(size); }

  const CDataCell* begin() const noexcept { return m_pBlock ? Cells(m_pBlock) : nullptr; }
  const CDataCell* end() const noexcept { return begin() + GetSize(); }
  CDataCell* begin();
  CDataCell* end() { return begin() + GetSize(); }

  // The cell, for a change made on the spot: the reference must not be kept.
  CDataCell& Own(int index);

 private:
  // Stands before the cells in one allocation; an array without cells may have none.
  struct alignas(CDataCell) CBlock {
    std::atomic<int> refs{1};
    bool handedOut = false;
    int size = 0;
    int capacity = 0;
  };

  static CDataCell* Cells(CBlock* block) noexcept {
    return reinterpret_cast<CDataCell*>(block + 1);
  }
  static CBlock* Allocate(int capacity);
  static CBlock* Copied(CBlock* block, int capacity);
  static void Free(CBlock* block) noexcept;

  int Checked(int index) const {
    orv3::CheckIndex("cells", index, GetSize());
    return index;
  }
  CBlock* Shared() const;      // the block for a copy
  void MakeOwn(int capacity);  // a block that is not shared and has room
  void Release() noexcept {
    if (m_pBlock && m_pBlock->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) Free(m_pBlock);
    m_pBlock = nullptr;
  }

  CBlock* m_pBlock = nullptr;
};
