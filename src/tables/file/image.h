// What a table has on file, as it was last read or saved: by it a save tells the rows that another
// process has changed since, and the rows that stand in their slots already.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "framework/cstring.h"
#include "platform/store_file.h"
#include "tables/data_item_array.h"
#include "tables/data_type.h"
#include "tables/file/info.h"

namespace orv3 {

struct CTableImage {
  CString m_strPath;
  CString m_strTable;
  CStoreState m_state;                 // of the file at that time
  std::vector<std::string> m_arrSlot;  // the rows' stored bytes
  std::vector<int> m_arrIndex;         // the rows' stable indices
  // After a save: the heading that was proven then, the table's record with its blocks, and the
  // file's information line. Until the file changes none is looked at again.
  std::optional<CDataTableTitle> m_title;
  CDataFileInfo m_info;
  CString m_strInfoLine;

  bool IsProven(const CStoreFile& file, const CString& table) const {
    return m_title && m_strPath == file.Path() && m_state == file.State() && m_strTable == table;
  }
};

// For each row the slot that holds it, -1 for a row that has none. No slot is given twice.
//
// `inOrder` says that each slot's row still has its position. Otherwise a row is known by its
// stable index, which other rows may share: an unchanged row by what its slot holds as well, any
// other row by an index that none of those has, if possible at its own position.
std::vector<int> SlotsOfRows(const CDataItemArray& rows, const CDataTableTitle& title,
                             const CTableImage& image, bool inOrder);

}  // namespace orv3
