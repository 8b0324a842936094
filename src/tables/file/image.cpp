#include "tables/file/image.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

#include "tables/edit_state.h"
#include "tables/file/proof.h"

namespace orv3 {
namespace {

class CSlotMatch {
 public:
  CSlotMatch(const CDataItemArray& rows, const CDataTableTitle& title, const CTableImage& image)
      : m_arrSlot(static_cast<std::size_t>(rows.GetSize()), -1),
        m_rows(rows),
        m_title(title),
        m_image(image),
        m_arrTaken(image.m_arrIndex.size(), false) {
    for (std::size_t slot = 0; slot < m_arrTaken.size(); ++slot) {
      m_mapByIndex[image.m_arrIndex[slot]].push_back(slot);
    }
  }

  void Run() {
    for (const bool unsaved : {false, true}) {
      ForEach(unsaved, [this](int row) { Take(row, static_cast<std::size_t>(row)); });
      ForEach(unsaved, [this](int row) {
        const auto slots = m_mapByIndex.find(m_rows[row].m_nIndex);
        if (slots == m_mapByIndex.end()) return;
        for (const std::size_t slot : slots->second) Take(row, slot);
      });
    }
  }

  std::vector<int> m_arrSlot;

 private:
  template <class WORK>
  void ForEach(bool unsaved, const WORK& work) const {
    for (int i = 0; i < m_rows.GetSize(); ++i) {
      if (IsUnsaved(m_rows[i].m_nModifyType) == unsaved) work(i);
    }
  }

  void Take(int position, std::size_t slot) {
    int& own = m_arrSlot[static_cast<std::size_t>(position)];
    if (own >= 0 || slot >= m_arrTaken.size() || m_arrTaken[slot]) return;
    const CDataItem& row = m_rows[position];
    if (row.m_nIndex != m_image.m_arrIndex[slot]) return;
    if (!IsUnsaved(row.m_nModifyType) && !StandsIn(row, m_image.m_arrSlot[slot], m_title)) return;
    own = static_cast<int>(slot);
    m_arrTaken[slot] = true;
  }

  const CDataItemArray& m_rows;
  const CDataTableTitle& m_title;
  const CTableImage& m_image;
  std::vector<bool> m_arrTaken;
  std::unordered_map<int, std::vector<std::size_t>> m_mapByIndex;
};

}  // namespace

std::vector<int> SlotsOfRows(const CDataItemArray& rows, const CDataTableTitle& title,
                             const CTableImage& image, bool inOrder) {
  if (inOrder) {
    std::vector<int> slots(static_cast<std::size_t>(rows.GetSize()), -1);
    std::iota(slots.begin(),
              slots.begin() +
                  static_cast<std::ptrdiff_t>(std::min(slots.size(), image.m_arrIndex.size())),
              0);
    return slots;
  }
  CSlotMatch match(rows, title, image);
  match.Run();
  return std::move(match.m_arrSlot);
}

}  // namespace orv3
