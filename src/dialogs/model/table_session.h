// CTableSession: one table of the system store, as a dialog holds it.
//
// A change reads the table afresh, is made there and saved, all while the store is locked, so that
// what other programs have saved meanwhile is kept. When a step fails the user is told why, and the
// table in hand is as it was.
#pragma once

#include <functional>

#include "dialogs/model/dialog_user.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

// Whether two rows have the same text in every cell.
bool SameValues(const CDataItem& a, const CDataItem& b);

class CTableSession {
 public:
  explicit CTableSession(const CString& path) : m_strPath(path) {}

  // Reads the table of this name; without columns when the store has none. False, after a message,
  // when it cannot be read.
  bool Load(const CString& name, CDialogUser& user);
  void Clear();
  // The table of a lattice column that the store does not have yet; made there.
  void MakeLatticeTable(CDialogUser& user);
  // Saves rows that are not saved yet; false, after a message, when that fails.
  bool WriteBack(CDialogUser& user);

  CDataTable& Table() noexcept { return m_table; }
  const CDataTable& Table() const noexcept { return m_table; }
  const CString& Path() const noexcept { return m_strPath; }
  CString StorePath() const;

  // The row gets its index. A duplicate is refused with the table's own message.
  bool Add(CDataItem& row, CDialogUser& user);
  // `before`: the row as the user saw it. One that another program has changed or deleted since is
  // left alone, and the user is told.
  bool Modify(const CDataItem& before, CDataItem& row, CDialogUser& user);
  bool Delete(const CDataItem& before, CDialogUser& user);
  // A row deleted before: in its own place, or in another one when that has been taken. It gets its
  // index. Refused with the table's own message when its key has been taken.
  bool TakeBack(CDataItem& row, CDialogUser& user);

 private:
  using CChange = std::function<bool(CDataTable& table)>;

  CDataTable Named(const CString& name) const;
  bool Change(const CChange& change, CDialogUser& user);
  bool ChangeLocked(const CChange& change);
  int Locate(CDataTable& fresh, const CDataItem& before);

  CString m_strPath;
  CDataTable m_table;
};

}  // namespace orv3
