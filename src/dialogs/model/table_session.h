// CTableSession: one table of the system store, as a dialog holds it.
//
// A change reads the table afresh, makes the change there and saves it, all while the store is
// locked, so that what other programs have saved meanwhile is kept. When any step fails the user is
// told why and the table in hand is as it was.
#pragma once

#include <functional>

#include "dialogs/model/dialog_user.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

// What the last operation on a store failed of, in Chinese, one line for the kind and one for the
// details.
CString StoreFailureText(const wchar_t* what);

class CTableSession {
 public:
  explicit CTableSession(const CString& path) : m_strPath(path) { m_table.SetSaveTablePath(path); }

  // Reads the table of this name; without columns when the store has none.
  void Load(const CString& name, CDialogUser& user);
  // The table of a lattice column that the store does not have yet; made there.
  void MakeLatticeTable(CDialogUser& user);
  // Saves rows that are not saved yet; false, after a message, when that fails.
  bool WriteBack(CDialogUser& user);

  CDataTable& Table() noexcept { return m_table; }
  const CDataTable& Table() const noexcept { return m_table; }
  CString StorePath() const;

  bool Add(CDataItem& row, CDialogUser& user);
  // `before`: the row as the user saw it. A row that another program has changed or deleted since
  // is left alone, and the user is told.
  bool Modify(const CDataItem& before, CDataItem& row, CDialogUser& user);
  bool Delete(const CDataItem& before, CDialogUser& user);

 private:
  using CChange = std::function<bool(CDataTable& table)>;

  bool Change(const CChange& change, CDialogUser& user);

  CString m_strPath;
  CDataTable m_table;
};

}  // namespace orv3
