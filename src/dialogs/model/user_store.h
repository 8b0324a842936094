// The files of the user store, one table each, as the user table editor reads and writes them.
#pragma once

#include <memory>
#include <vector>

#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

struct CUserFile {
  CString m_strName;                          // in the store's folder
  std::shared_ptr<const CDataTable> m_table;  // as it was read or saved, deleted rows included
  bool m_bSingle = true;                      // the file holds no other table
};

enum class CRemoval { Done, Changed, Failed };

class CUserStore {
 public:
  explicit CUserStore(const CString& path) : m_strPath(path) {}

  // Every table of every file. `failed`: a file could not be read, and LastStoreError says why.
  std::vector<CUserFile> Read(bool& failed) const;
  // Results: false, with LastStoreError set, when the save failed.
  bool WriteNew(const CDataTable& table, CUserFile& file) const;
  // Makes the rows on file those of `table`, which has the same columns; rows are told by their
  // stable indices. What other programs have added meanwhile stays, and `others` says so.
  bool WriteRows(const CDataTable& table, CUserFile& file, bool& others) const;
  // Removes the file unless another program has changed it since it was read.
  CRemoval Remove(const CUserFile& file) const;

 private:
  CString Folder() const;
  CDataTable Named(const CString& name) const;
  bool IsUnchanged(const CString& path, const CDataTable& table) const;

  CString m_strPath;
};

// The live rows of a table, as a table of the same name and columns.
CDataTable LiveRows(const CDataTable& table);

}  // namespace orv3
