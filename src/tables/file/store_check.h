// What a table file holds, and whether its parts go together.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

struct CStoreTable {
  CString m_strName;
  int m_nColumns = 0;
  int m_nRows = 0;  // in the table's slots, deleted ones included
  int m_nDeleted = 0;
  int m_nSlot = 0;                // bytes
  std::map<int, int> m_mapState;  // rows by the edit state that they have on file
  std::vector<int> m_arrBlock;    // offsets
};

struct CStoreInfo {
  CString m_strLine;      // information line
  int m_nKind = -1;       // 0 system, 1 user, 2 current; -1 when the line does not say
  int m_nFreeTables = 0;  // tables that the directory has room for
  std::vector<CStoreTable> m_arrTable;
};

// False, with LastStoreError set, when the file cannot be read or is no table file.
ORV3CAL_API bool ReadStoreInfo(const CString& path, CStoreInfo& info);

struct CStoreFault {
  CString m_strTable;          // empty for a fault of the file
  std::int64_t m_nOffset = 0;  // in the file
  CString m_strWhat;
  bool m_bValue = false;  // of what a row says; the table can be read
};

// Every fault of a table file: of its structure, and of rows whose values read as something else (a
// number that is none) or that no look-up finds (a key that an earlier row has). As notes, what
// harms nothing: rows behind a table's count of them and blocks that it does not need, as a save of
// fewer rows leaves them. False, with LastStoreError set, when the file cannot be read.
ORV3CAL_API bool VerifyStore(const CString& path, std::vector<CStoreFault>& faults,
                             std::vector<CStoreFault>* notes = nullptr);

}  // namespace orv3
