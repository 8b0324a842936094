#include "tables/data_item_array.h"

#include <algorithm>
#include <utility>

CDataItemArray& CDataItemArray::operator=(const CDataItemArray& other) {
  if (this == &other) return *this;
  RemoveAll();
  Append(other);
  return *this;
}

CDataItem& CDataItemArray::operator[](int index) {
  CNode& node = *m_arrNode[Checked(index)];
  if (!node.handedOut) {
    m_arrHandedOut.push_back(index);
    node.handedOut = true;
  }
  return node.item;
}

int CDataItemArray::Add(const CDataItem& row) {
  m_arrNode.push_back(std::make_unique<CNode>(row));
  return GetSize() - 1;
}

int CDataItemArray::Append(const CDataItemArray& other) {
  const int first = GetSize();
  m_arrNode.reserve(m_arrNode.size() + other.m_arrNode.size());
  for (int i = 0, count = other.GetSize(); i < count; ++i) Add(other.GetAt(i));
  return first;
}

void CDataItemArray::InsertAt(int index, const CDataItem& row, int count) {
  orv3::CheckIndex("rows", index, static_cast<long long>(GetSize()) + 1);
  if (count <= 0) return;
  std::vector<std::unique_ptr<CNode>> nodes;
  nodes.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) nodes.push_back(std::make_unique<CNode>(row));
  m_arrNode.insert(m_arrNode.begin() + index, std::make_move_iterator(nodes.begin()),
                   std::make_move_iterator(nodes.end()));
  Rearranged();
}

void CDataItemArray::RemoveAt(int index, int count) {
  if (count <= 0) return;
  orv3::CheckIndex("rows", index, GetSize());
  orv3::CheckIndex("rows", static_cast<long long>(index) + count - 1, GetSize());
  m_arrNode.erase(m_arrNode.begin() + index, m_arrNode.begin() + index + count);
  ++m_nArrangement;
  std::vector<int>& out = m_arrHandedOut;
  out.erase(std::remove_if(out.begin(), out.end(),
                           [&](int at) { return at >= index && at < index + count; }),
            out.end());
  for (int& at : out) at -= at > index ? count : 0;
}

void CDataItemArray::RemoveAll() noexcept {
  m_arrNode.clear();
  m_arrHandedOut.clear();
  ++m_nArrangement;
}

void CDataItemArray::SetSize(int size) {
  orv3::CheckIndex("rows", size, 0x7FFFFFFFLL);
  while (GetSize() < size) Add(CDataItem());
  if (GetSize() > size) RemoveAt(size, GetSize() - size);
}

void CDataItemArray::Rearrange(const std::vector<int>& positions) {
  std::vector<std::unique_ptr<CNode>> nodes(m_arrNode.size());
  for (std::size_t i = 0; i < nodes.size(); ++i)
    nodes[i] = std::move(m_arrNode[Checked(positions[i])]);
  m_arrNode = std::move(nodes);
  Rearranged();
}

void CDataItemArray::Prefetch(int index, int col) const noexcept {
  constexpr std::size_t kStep = 8;  // rows between one place and the place that it points to
  const auto node = [&](std::size_t ahead) -> const CNode* {
    const std::size_t at = static_cast<std::size_t>(index) + ahead;
    return at < m_arrNode.size() ? m_arrNode[at].get() : nullptr;
  };
  if (const CNode* far = node(3 * kStep)) __builtin_prefetch(far);
  if (const CNode* middle = node(2 * kStep)) {
    if (const CDataCell* cells = middle->item.m_arrCell.begin()) {
      __builtin_prefetch(cells);
      __builtin_prefetch(cells + col);
    }
  }
  if (const CNode* near = node(kStep)) {
    const CDataCellArray& cells = near->item.m_arrCell;
    if (col < cells.GetSize()) __builtin_prefetch(cells.begin()[col].m_strValue.GetString());
  }
}

void CDataItemArray::Rearranged() {
  ++m_nArrangement;
  m_arrHandedOut.clear();
  for (int i = 0; i < GetSize(); ++i) {
    if (m_arrNode[static_cast<std::size_t>(i)]->handedOut) m_arrHandedOut.push_back(i);
  }
}
