// CUserTableModel: the user table editor (CUserTableDlg): makes, fills, edits, renames and deletes
// the tables of the user store, one file each.
//
// The store changes only when Save or Ok is called; until then every step can be undone and done
// again. A table whose columns or name changed is written as a new file, and its old file removed
// unless another program has changed it meanwhile.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "dialogs/model/dialog_user.h"
#include "dialogs/model/edit_grid_model.h"
#include "dialogs/model/store_failure.h"
#include "dialogs/model/user_store.h"
#include "drawing/bitmap.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

inline constexpr long kAllTables = -1;  // the mask that every section table is in

class CUserTableModel {
 public:
  // `tableNames`: the section tables that the command accepts; other names of section tables are
  // not shown, names of the user's own are. `initial`: the row to start with.
  CUserTableModel(const CString& path, const CStringArray& tableNames, const CDataItem& initial,
                  CDialogUser& user);
  CUserTableModel(const CUserTableModel&) = delete;
  CUserTableModel& operator=(const CUserTableModel&) = delete;
  ~CUserTableModel() = default;

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
  int RowCount() const noexcept;
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
  using CTablePtr = std::shared_ptr<const CDataTable>;

  // A table as the user has it: live rows only, each with an index of its own.
  struct CTable {
    int m_nId = 0;
    CTablePtr m_table;
  };
  struct CState {
    CString m_strStep;  // what led to it
    std::vector<CTable> m_arrTable;
    int m_nTable = -1;
  };
  struct CSaved {
    CUserFile m_file;
    CTablePtr m_table;  // what the user has when nothing is changed
  };

  const CState& State() const { return m_arrState[static_cast<std::size_t>(m_nState)]; }
  CState& State() { return m_arrState[static_cast<std::size_t>(m_nState)]; }
  const CDataTable* Selected() const;
  bool Offers(const CString& tableName) const;
  bool IsSaved(const CTable& table) const;
  bool IsNameTaken(const CString& name) const;
  void FillTemplates();
  void SelectInitial();
  void Push(const wchar_t* step, CState state);
  bool Replace(const wchar_t* step, const CDataTable& table);
  bool AskName(const wchar_t* title, CString& name);
  bool MakeTable(int templateIndex, CDataTable& table);

  void ShowColumns();
  void ShowTable();
  bool ChangeColumns(const wchar_t* step, const CDataTable& changed);

  CDataItem Row(int item) const;
  bool PutRow(const wchar_t* step, const CDataItem& row, bool added, bool copy);
  bool AcceptRow(CDataItem& row, bool added, bool copy, CDataTable& draft, CDialogUser& user);

  bool SaveTable(CTable& table, bool& others, CString& kept);
  bool RemoveMissing(CString& kept);
  bool RemoveFile(const CUserFile& file, CString& kept);

  CDialogUser& m_user;
  CMessageRoute m_route;
  CProgramPathScope m_path;
  CUserStore m_store;
  CStringArray m_arrName;
  CStringArray m_arrTemplate;
  CDataItem m_initial;
  std::vector<CState> m_arrState;
  int m_nState = 0;
  std::map<int, CSaved> m_mapSaved;  // by table id
  int m_nNextId = 0;
  CEditGridModel m_columns;
  int m_nItem = -1;
  CString m_strSpacing;
  CDataItem m_chosen;
};

}  // namespace orv3
