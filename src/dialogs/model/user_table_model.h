// CUserTableModel: the user table editor (CUserTableDlg): makes, fills, edits, renames and deletes
// the tables of the user store, one file each.
//
// The store changes only when Save or Ok is called; until then every step can be undone and done
// again. A table whose columns or name changed is written as a new file, and its old file removed
// unless another program has changed it meanwhile.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/model/dialog_user.h"
#include "dialogs/model/edit_grid_model.h"
#include "framework/array.h"
#include "framework/bitmap.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

// One table of the editor. `m_table` is shared between the states that can be undone.
struct CUserTable {
  CString m_strFile;  // in the user store; empty for a table that was never saved
  std::shared_ptr<const CDataTable> m_table;
  std::shared_ptr<const CDataTable> m_saved;  // as it is on file; null when it is not
};

class CUserTableModel {
 public:
  // `tableNames`: the section tables that the command accepts; other names of section tables are
  // not shown, names of the user's own are. `initial`: the row to start with.
  CUserTableModel(const CString& path, const CStringArray& tableNames, const CDataItem& initial,
                  CDialogUser& user);
  CUserTableModel(const CUserTableModel&) = delete;
  CUserTableModel& operator=(const CUserTableModel&) = delete;
  ~CUserTableModel();

  // Reads the store: once, when the dialog is there to show messages.
  void Open();

  // --- Tables -----------------------------------------------------------------------------------
  int TableCount() const noexcept;
  CString TableText(int table) const;  // its name; followed by "*" when it is not saved
  int SelectedTable() const noexcept;  // -1 when there is none
  void SelectTable(int table);
  CBitmap Picture() const;
  int PictureResource() const;
  // What a new table can be: an empty one, or one for a section style.
  const CStringArray& Templates() const noexcept { return m_arrTemplate; }
  // False when cancelled or, after a message, refused; nothing has changed then. The same for every
  // command below.
  bool NewTable(int templateIndex);
  bool RenameTable();
  bool DeleteTable();

  // --- Columns of the selected table ------------------------------------------------------------
  // A line per column: name, sign, type and key, the last two as lists.
  const CEditGridModel& Columns() const noexcept { return m_columns; }
  bool HasOwnColumns() const;  // false for a section style's table, whose columns are given
  bool AddColumn();            // behind the last one, with a name and sign of its own
  bool DeleteColumn(int column);
  // The user's text for a cell of the grid.
  bool SetColumnCell(int line, int column, const CString& text);

  // --- Rows of the selected table ---------------------------------------------------------------
  int ColumnCount() const;
  CString ColumnSign(int column) const;
  bool IsRightAligned(int column) const;
  int RowCount() const noexcept { return static_cast<int>(m_arrItemRow.size()); }
  const wchar_t* RowText(int item, int column) const;   // valid until the next change
  int SelectedRow() const noexcept { return m_nItem; }  // -1 when there is none
  void SelectRow(int item);
  CString CountText() const;
  bool AddRow();   // a default section or, in a table of the user's own, an empty row
  bool CopyRow();  // the selected row as a new one
  bool EditRow();
  bool DeleteRow();

  // --- Undo -------------------------------------------------------------------------------------
  bool CanUndo() const noexcept { return m_nState > 0; }
  bool CanRedo() const noexcept { return m_nState + 1 < static_cast<int>(m_arrState.size()); }
  CString UndoText() const;  // what would be undone: "增加记录"
  CString RedoText() const;
  void Undo();
  void Redo();

  // --- End --------------------------------------------------------------------------------------
  bool IsChanged() const;
  // False, after a message, when a table could not be saved.
  bool Save();
  // Saves and hands back the selected row. False when the dialog stays open.
  bool Ok();
  // Asks whether changes are to be saved. False when the dialog stays open.
  bool Cancel();
  const CDataItem& ChosenRow() const noexcept { return m_chosen; }

 private:
  struct CState {
    CString m_strStep;  // what led to it
    std::vector<CUserTable> m_arrTable;
    int m_nTable = -1;
  };

  const CState& State() const { return m_arrState[static_cast<std::size_t>(m_nState)]; }
  CState& State() { return m_arrState[static_cast<std::size_t>(m_nState)]; }
  const CDataTable* Selected() const;
  CDataTable Draft() const;  // a copy of the selected table, to change
  void ReadStore();
  void SelectInitial();
  bool Offers(const CString& tableName) const;
  void Push(const wchar_t* step, CState state);
  bool Replace(const wchar_t* step, const CDataTable& table);
  bool AskName(const wchar_t* title, CString& name);
  bool ChangeColumns(const wchar_t* step, const CDataTable& changed);
  bool PutRow(const wchar_t* step, const CDataItem& row, int index);
  void ShowTable();

  CDialogUser& m_user;
  CMessageRoute m_route;
  CString m_strPath;
  CString m_strProgramPath;  // to be put back at the end
  CStringArray m_arrName;
  CStringArray m_arrTemplate;
  CDataItem m_initial;
  std::vector<CState> m_arrState;
  int m_nState = 0;
  std::vector<CUserTable> m_arrOnFile;  // what the store holds
  CEditGridModel m_columns;
  std::vector<int> m_arrItemRow;
  int m_nItem = -1;
  CDataItem m_chosen;
};

}  // namespace orv3
