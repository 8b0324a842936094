// Bringing in what another process has changed in a table since it was read.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "tables/data_table.h"
#include "tables/file/image.h"

namespace orv3 {

// The rows of a table as they are to follow each other once the changes on file are in.
struct CMergedRow {
  int m_nPosition;   // the table's row; -1 for one that only the file has
  int m_nSlot;       // the slot on file that another process has changed; -1 for none
  bool m_bFromFile;  // the row becomes what that slot holds; else it is to replace it
};

// A table's rows, unsaved changes and all, on top of the file's present slots. Every row of the
// file comes in file order, then the table's own in theirs. `before` is what the table last saw on
// file (nothing when it never saw it), `slotsOfRows` where its rows stood there. A row that both
// changed is the table's. CInvalidArgException and false as RowOf.
//
// A row of the file is one of the table's when it stands in that row's slot with the same key.
// Otherwise keys tell, compared as they stand on file; in a table without a key stable indices do,
// in a file that the table never saw and of rows that have been in some file.
class CTableMerge {
 public:
  CTableMerge(const CDataTable& table, const CTableImage& before, std::vector<int> slotsOfRows,
              const std::vector<std::string>& slots, int slotLength);
  bool Run();
  // The stable index that each slot carries.
  std::vector<int> SlotIndices() const;

  std::vector<CMergedRow> m_arrRow;
  std::vector<CDataItem> m_arrFileRow;  // by slot; only those that the result takes over

 private:
  bool Decode(const std::string& slot, CDataItem& row) const;
  bool Changed(std::size_t slot) const;
  bool SameKey(const CDataItem& a, const CDataItem& b) const;
  bool IsOwnChange(int position) const;
  bool IsPlaced(int position) const { return m_arrPlaced[static_cast<std::size_t>(position)]; }
  bool MergeSlot(std::size_t slot);
  int Counterpart(std::size_t slot, const CDataItem& row) const;
  int WithKeyOf(const CDataItem& row) const;
  int WithIndexOf(const CDataItem& row) const;
  void Place(const CMergedRow& merged);

  const CDataTable& m_table;
  const CTableImage& m_before;
  const std::vector<std::string>& m_slots;
  int m_nSlotLength;
  std::vector<int> m_arrSlotOfRow;
  std::vector<int> m_arrRowAtSlot;
  std::vector<bool> m_arrPlaced;
  CArray<int, int> m_arrKey;
  std::vector<int> m_arrCutKey;                            // live rows whose key the file cuts
  std::unordered_map<int, std::vector<int>> m_mapByIndex;  // rows that stable indices tell
};

}  // namespace orv3
