#include "tables/data_cell.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "framework/number_text.h"

using orv3::ToDouble;
using orv3::ToInt;

void CDataCell::SetValue(const CString& value, const CString& name, const CString& sign) {
  m_strValue = value;
  m_strName = name;
  m_strSign = sign;
}

int CDataCell::GetItemValue(CString& value) const {
  if (m_nType != CDataTypeStruct::KVBT_STRING) return 0;
  value = m_strValue;
  return 1;
}

int CDataCell::GetItemValue(int& value) const {
  if (m_nType != CDataTypeStruct::KVBT_INT) return 0;
  value = ToInt(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(long& value) const {
  if (m_nType != CDataTypeStruct::KVBT_LONG && m_nType != CDataTypeStruct::KVBT_LONG_ALT) return 0;
  value = ToInt(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(float& value) const {
  if (m_nType != CDataTypeStruct::KVBT_FLOAT) return 0;
  value = static_cast<float>(ToDouble(m_strValue));
  return 1;
}

int CDataCell::GetItemValue(double& value) const {
  if (m_nType != CDataTypeStruct::KVBT_DOUBLE) return 0;
  value = ToDouble(m_strValue);
  return 1;
}

int CDataCell::GetItemValue(wchar_t& value) const {
  if (m_nType != CDataTypeStruct::KVBT_CHAR) return 0;
  value = m_strValue.GetString()[0];
  return 1;
}

CDataCellArray& CDataCellArray::operator=(const CDataCellArray& other) {
  return *this = CDataCellArray(other);
}

CDataCellArray& CDataCellArray::operator=(CDataCellArray&& other) noexcept {
  std::swap(m_pBlock, other.m_pBlock);
  return *this;
}

CDataCellArray::CBlock* CDataCellArray::Allocate(int capacity) {
  void* memory =
      ::operator new(sizeof(CBlock) + static_cast<std::size_t>(capacity) * sizeof(CDataCell));
  auto* block = new (memory) CBlock;
  block->capacity = capacity;
  return block;
}

CDataCellArray::CBlock* CDataCellArray::Copied(CBlock* block, int capacity) {
  CBlock* copy = Allocate(std::max(capacity, block->size));
  std::uninitialized_copy_n(Cells(block), block->size, Cells(copy));
  copy->size = block->size;
  return copy;
}

void CDataCellArray::Free(CBlock* block) noexcept {
  std::destroy_n(Cells(block), block->size);
  block->~CBlock();
  ::operator delete(block);
}

CDataCellArray::CBlock* CDataCellArray::Shared() const {
  if (m_pBlock == nullptr || m_pBlock->handedOut) {
    return m_pBlock ? Copied(m_pBlock, 0) : nullptr;
  }
  m_pBlock->refs.fetch_add(1, std::memory_order_relaxed);
  return m_pBlock;
}

void CDataCellArray::MakeOwn(int capacity) {
  if (m_pBlock == nullptr) {
    m_pBlock = Allocate(capacity);
    return;
  }
  const bool shared = m_pBlock->refs.load(std::memory_order_acquire) != 1;
  const bool grows = m_pBlock->capacity < capacity;
  if (!shared && !grows) return;
  CBlock* own = Copied(m_pBlock, grows ? std::max(capacity, GetSize() + GetSize() / 2) : 0);
  Release();
  m_pBlock = own;
}

CDataCell* CDataCellArray::begin() {
  if (m_pBlock == nullptr) return nullptr;
  MakeOwn(0);
  m_pBlock->handedOut = true;
  return Cells(m_pBlock);
}

CDataCell& CDataCellArray::Own(int index) {
  Checked(index);
  MakeOwn(0);
  return Cells(m_pBlock)[index];
}

int CDataCellArray::Add(CDataCell cell) {
  MakeOwn(GetSize() + 1);
  new (Cells(m_pBlock) + m_pBlock->size) CDataCell(std::move(cell));
  return m_pBlock->size++;
}

int CDataCellArray::Append(const CDataCellArray& other) {
  const int first = GetSize();
  // `other` may be this array. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const CDataCellArray added(other);
  MakeOwn(first + added.GetSize());
  for (const CDataCell& cell : added) Add(cell);
  return first;
}

void CDataCellArray::InsertAt(int index, const CDataCell& cell, int count) {
  orv3::CheckIndex("cells", index, static_cast<long long>(GetSize()) + 1);
  if (count <= 0) return;
  // `cell` may stand in this array. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const CDataCell copy(cell);
  MakeOwn(GetSize() + count);
  for (int i = 0; i < count; ++i) Add(copy);
  CDataCell* cells = Cells(m_pBlock);
  std::rotate(cells + index, cells + GetSize() - count, cells + GetSize());
}

void CDataCellArray::RemoveAt(int index, int count) {
  if (count <= 0) return;
  Checked(index);
  orv3::CheckIndex("cells", static_cast<long long>(index) + count - 1, GetSize());
  MakeOwn(0);
  CDataCell* cells = Cells(m_pBlock);
  std::move(cells + index + count, cells + GetSize(), cells + index);
  std::destroy_n(cells + GetSize() - count, count);
  m_pBlock->size -= count;
}

void CDataCellArray::SetSize(int size) {
  orv3::CheckIndex("cells", size, 0x7FFFFFFFLL);
  MakeOwn(size);
  while (GetSize() < size) Add(CDataCell());
  if (GetSize() > size) RemoveAt(size, GetSize() - size);
}
