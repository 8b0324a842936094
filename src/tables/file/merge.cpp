#include "tables/file/merge.h"

#include <algorithm>
#include <utility>

#include "framework/number_text.h"
#include "tables/edit_state.h"
#include "tables/file/table_text.h"

namespace orv3 {

CTableMerge::CTableMerge(const CDataTable& table, const CTableImage& before,
                         std::vector<int> slotsOfRows, const std::vector<std::string>& slots,
                         int slotLength)
    : m_arrFileRow(slots.size()),
      m_table(table),
      m_before(before),
      m_slots(slots),
      m_nSlotLength(slotLength),
      m_arrSlotOfRow(std::move(slotsOfRows)),
      m_arrRowAtSlot(before.m_arrSlot.size(), -1),
      m_arrPlaced(m_arrSlotOfRow.size(), false) {
  for (std::size_t i = 0; i < m_arrSlotOfRow.size(); ++i) {
    const int slot = m_arrSlotOfRow[i];
    if (slot >= 0) m_arrRowAtSlot[static_cast<std::size_t>(slot)] = static_cast<int>(i);
  }
  table.m_Title.GetDataTableKeyIndex(m_arrKey);
  const bool seen = !before.m_strPath.IsEmpty();
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    const CDataItem& row = table.m_arrItem[i];
    if (IsDeleted(row.m_nModifyType)) continue;
    const bool cut = std::any_of(m_arrKey.begin(), m_arrKey.end(), [&](int column) {
      const CString& value = row[column].m_strValue;
      return StoredValue(value) != value.View();
    });
    if (cut) m_arrCutKey.push_back(i);
    if (m_arrKey.IsEmpty() && !seen && !IsAdded(row.m_nModifyType)) {
      m_mapByIndex[row.m_nIndex].push_back(i);
    }
  }
}

bool CTableMerge::Decode(const std::string& slot, CDataItem& row) const {
  return RowOf(DecodeText(slot), m_table.m_Title, std::ssize(slot) == m_nSlotLength, row);
}

bool CTableMerge::Changed(std::size_t slot) const {
  return slot >= m_before.m_arrSlot.size() || m_slots[slot] != m_before.m_arrSlot[slot];
}

bool CTableMerge::SameKey(const CDataItem& a, const CDataItem& b) const {
  if (m_arrKey.IsEmpty()) return a.m_nIndex == b.m_nIndex;
  return std::all_of(m_arrKey.begin(), m_arrKey.end(), [&](int column) {
    return StoredValue(a[column].m_strValue) == StoredValue(b[column].m_strValue);
  });
}

// Whether the file does not have the row as the table has it: unsaved, or never in this file.
bool CTableMerge::IsOwnChange(int position) const {
  return m_arrSlotOfRow[static_cast<std::size_t>(position)] < 0 ||
         IsUnsaved(m_table.m_arrItem[position].m_nModifyType);
}

// The table's row that a changed row of the file is another state of; -1 when there is none.
int CTableMerge::Counterpart(std::size_t slot, const CDataItem& row) const {
  if (slot < m_before.m_arrSlot.size() && m_arrRowAtSlot[slot] >= 0) {
    CDataItem before;
    if (Decode(m_before.m_arrSlot[slot], before) && SameKey(before, row)) {
      return m_arrRowAtSlot[slot];
    }
  }
  if (IsDeleted(row.m_nModifyType)) return -1;
  return m_arrKey.IsEmpty() ? WithIndexOf(row) : WithKeyOf(row);
}

int CTableMerge::WithKeyOf(const CDataItem& row) const {
  for (const int position : m_table.FindByKey(row)) {
    if (!IsPlaced(position)) return position;
  }
  for (const int position : m_arrCutKey) {
    if (!IsPlaced(position) && SameKey(m_table.m_arrItem[position], row)) return position;
  }
  return -1;
}

int CTableMerge::WithIndexOf(const CDataItem& row) const {
  const auto found = m_mapByIndex.find(row.m_nIndex);
  if (found == m_mapByIndex.end()) return -1;
  for (const int position : found->second) {
    if (!IsPlaced(position)) return position;
  }
  return -1;
}

void CTableMerge::Place(const CMergedRow& merged) {
  m_arrRow.push_back(merged);
  if (merged.m_nPosition >= 0) m_arrPlaced[static_cast<std::size_t>(merged.m_nPosition)] = true;
}

bool CTableMerge::MergeSlot(std::size_t slot) {
  if (!Changed(slot)) {
    const int position = m_arrRowAtSlot[slot];
    if (position >= 0 && !IsPlaced(position)) {
      Place({position, -1, false});
    }
    return true;  // without a row the table has taken it out
  }
  CDataItem& row = m_arrFileRow[slot];
  if (!Decode(m_slots[slot], row)) return false;
  int position = Counterpart(slot, row);
  if (position >= 0 && IsPlaced(position)) position = -1;
  Place({position, static_cast<int>(slot), position < 0 || !IsOwnChange(position)});
  return true;
}

std::vector<int> CTableMerge::SlotIndices() const {
  std::vector<int> indices;
  for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
    indices.push_back(Changed(slot) ? ToInt(DecodeText(m_slots[slot])) : m_before.m_arrIndex[slot]);
  }
  return indices;
}

bool CTableMerge::Run() {
  for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
    if (!MergeSlot(slot)) return false;
  }
  for (int i = 0; i < m_table.GetTableRowNum(); ++i) {
    if (IsPlaced(i) || !IsOwnChange(i)) continue;  // the latter: gone from the file
    // A row that the file does not have needs no deletion there.
    if (IsDeleted(m_table.m_arrItem[i].m_nModifyType)) continue;
    Place({i, -1, false});
  }
  return true;
}

}  // namespace orv3
