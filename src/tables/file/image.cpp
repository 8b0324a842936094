#include "tables/file/image.h"

#include <algorithm>
#include <unordered_map>

namespace orv3 {

std::vector<int> SlotsOfRows(const CDataItemArray& rows, const CTableImage& image) {
  const auto count = static_cast<std::size_t>(rows.GetSize());
  const auto indexOf = [&rows](std::size_t i) { return rows[static_cast<int>(i)].m_nIndex; };
  std::vector<int> slots(count, -1);
  std::vector<bool> taken(image.m_arrIndex.size(), false);
  std::size_t found = 0;
  for (std::size_t i = 0; i < std::min(count, taken.size()); ++i) {
    if (indexOf(i) != image.m_arrIndex[i]) continue;
    slots[i] = static_cast<int>(i);
    taken[i] = true;
    ++found;
  }
  if (found == count || found == taken.size()) return slots;

  std::unordered_map<int, std::vector<int>> freeByIndex;  // last slot first
  for (std::size_t slot = taken.size(); slot-- > 0;) {
    if (!taken[slot]) freeByIndex[image.m_arrIndex[slot]].push_back(static_cast<int>(slot));
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (slots[i] >= 0) continue;
    const auto it = freeByIndex.find(indexOf(i));
    if (it == freeByIndex.end() || it->second.empty()) continue;
    slots[i] = it->second.back();
    it->second.pop_back();
  }
  return slots;
}

}  // namespace orv3
