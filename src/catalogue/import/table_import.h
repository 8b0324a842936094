// Bringing tables from elsewhere into a store: from table files (".KDB"), from rolled-section data
// files (".kvb") and from tables in memory.
//
// Rows are told apart by the key columns of their table, where it has none by all their values, of
// which the store then gets as many equal ones as the source has. A
// row that the store lacks is added. One that it has with the same values is left alone, so that
// importing a file twice changes nothing. One that it has with other values is replaced only with
// `m_bOverwrite`, and a row of the catalogue (edit state 3 or more) only by one of the catalogue.
// Rows of a data file are the catalogue's own, those of its "O" twin the user's; rows of a table
// file stay what they were. Deleted rows are passed over.
//
// A row of a rolled table comes in only with what its figures are computed from, as one that is
// typed in; one that contradicts itself comes in and is named.
//
// All of an import comes into the store or nothing does. A damaged source is refused as a whole.
#pragma once

#include <functional>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"
#include "tables/data_table.h"

namespace orv3 {

struct CRefusedRow {
  CString m_strNo;   // its first cell
  CString m_strWhy;  // one line: what is wrong and what would be right
};

struct CTableImport {
  CString m_strTable;
  int m_nAdded = 0;
  int m_nReplaced = 0;
  int m_nUnchanged = 0;
  std::vector<CRefusedRow> m_arrRefused;
  std::vector<CRefusedRow>
      m_arrDoubtful;             // that came in though their figures contradict their sizes
  CString m_strWhy;              // why none of its rows came in; empty otherwise
  bool m_bOtherColumns = false;  // that is why: the store's table of the name has other columns
};

struct CImportReport {
  bool m_bDone = false;
  CString m_strWhy;  // why nothing was imported; empty when done
  std::vector<CTableImport> m_arrTable;
};

// What no table can exceed: each block of 100 rows takes 8 bytes or more of the 200 that list a
// table in its file. The name and long files leave room for some 1,700 rows usually.
inline constexpr int kMostTableRows = 2500;
ORV3CAL_API CString TooManyRows();

struct CImportOptions {
  bool m_bOverwrite = false;
  CString m_strTable;                      // this table alone; empty for all of the source
  std::function<void(double)> m_progress;  // the share that is done, 0 to 1; may be empty
};

// A table as it comes from a source, with those of its rows that are no rows.
struct CImportTable {
  CDataTable m_table;
  std::vector<CRefusedRow> m_arrRefused;
  std::vector<int> m_arrLine;  // of the source, by the rows; empty for a source without lines
};

// What a file holds for an import, by its extension (upper or lower case) and its content. False,
// with `why` set, when it is damaged or of another kind.
ORV3CAL_API bool ReadImportFile(const CString& file, std::vector<CImportTable>& tables,
                                CString& why);

// Brings tables into the store, a system store that is made when it is not there.
ORV3CAL_API CImportReport ImportTables(const std::vector<CImportTable>& tables,
                                       const CString& store, const CImportOptions& options = {});

// Both in one step.
ORV3CAL_API CImportReport ImportFile(const CString& file, const CString& store,
                                     const CImportOptions& options = {});

}  // namespace orv3
