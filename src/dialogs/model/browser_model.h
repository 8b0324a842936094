// CBrowserModel: the section database browser (CSteelDataBaseDlg).
//
// The full table is the one of the selected tree node, as it is in the system store; the shown
// table is what a search and the choice of columns leave of it. List items are the live rows of the
// shown table. Every change is in the store before the call that made it returns.
#pragma once

#include <vector>

#include "dialogs/model/browser_tree.h"
#include "dialogs/model/dialog_user.h"
#include "dialogs/model/store_failure.h"
#include "dialogs/model/table_session.h"
#include "framework/array.h"
#include "framework/cstring.h"
#include "tables/data_table.h"

namespace orv3 {

class CPropertyModel;

// What a call has changed of the list, and so what the view has to show anew. Except after None the
// selected item is SelectedItem().
enum class CListChange {
  None,
  Order,    // the same items in another order: the list stays scrolled as it is
  Rows,     // items, their order, count and selection
  Columns,  // columns as well; and, after a tree node, picture and search controls
};

struct CListColumn {
  CString m_strSign;
  int m_nWidth = 0;       // pixels at 96 dpi
  bool m_bRight = false;  // a column of numbers
  int m_nSorted = 0;      // 1 ascending, -1 descending, 0 not the sorted one
};

class CBrowserModel {
 public:
  // `path`: the data directory (the program's when empty). `initial`: the row to start with;
  // without one, or when its table is not among the names, the first table there is. `user` must
  // outlive the model, which sends the library's messages there while it lives.
  CBrowserModel(const CString& path, const CStringArray& tableNames, const CDataItem& initial,
                CDialogUser& user);
  CBrowserModel(const CBrowserModel&) = delete;
  CBrowserModel& operator=(const CBrowserModel&) = delete;
  ~CBrowserModel() = default;

  // Loads the table to start with: once, when the dialog is there to show messages.
  CListChange Open();

  // --- Tree -------------------------------------------------------------------------------------
  const std::vector<CTreeNode>& Tree() const noexcept { return m_arrNode; }
  // The node whose table is shown, which has no children.
  int SelectedNode() const noexcept { return m_nNode; }
  // Follows `node` down its first children and shows the table found there. A root or family is
  // refused a table of its own. None when that table is shown already.
  CListChange SelectNode(int node);
  // The sketch of the table's sections, for SketchBitmap; 0 without a table.
  int PreviewResource() const;

  // --- Search -----------------------------------------------------------------------------------
  // The column list: an empty entry, then every sign of the full table.
  const CStringArray& SearchColumns() const noexcept { return m_arrSearchColumn; }
  static const CStringArray& Operators();
  int SearchColumn() const noexcept { return m_nSearchColumn; }
  int Operator() const noexcept { return m_nOperator; }
  CString SearchValue() const { return m_strValue; }
  bool WholeMatch() const noexcept { return m_bWholeMatch; }
  void SetSearchColumn(int entry) { m_nSearchColumn = entry; }
  void SetOperator(int entry) { m_nOperator = entry; }
  void SetSearchValue(const CString& text) { m_strValue = text; }
  void SetWholeMatch(bool whole) { m_bWholeMatch = whole; }
  // Texts alone can match in part, and only for being equal or not: for anything else the mark
  // "完全匹配" is greyed.
  bool IsWholeMatchEnabled() const;
  // Without a column the filter stays. A column of numbers takes a number, and none for all rows;
  // anything else is refused (None).
  CListChange Search();
  CString FilterExpression() const { return m_strFilter; }
  CString ViewExpression() const { return m_strView; }

  // --- List -------------------------------------------------------------------------------------
  int ColumnCount() const noexcept { return m_shown.GetTableColNum(); }
  CListColumn Column(int column) const;
  int ItemCount() const noexcept { return static_cast<int>(m_arrItemRow.size()); }
  // Valid until the list changes; empty for a cell that is not there.
  const wchar_t* ItemText(int item, int column) const;
  CString CountText() const;                             // "检索到 2 条记录，共 50 条"
  int SelectedItem() const noexcept { return m_nItem; }  // -1 when there is none
  void SelectItem(int item);
  // The first item from `start` on, around the end, whose first text begins with `text` (letters of
  // both cases are equal); -1 when there is none. For typing into the list.
  int FindItem(const CString& text, int start) const;
  CListChange SortBy(int column);
  CListChange ChooseColumns();
  // The selected row for the clipboard: its values of the shown columns, joined by tabs.
  CString CopyText() const;

  // --- Rows -------------------------------------------------------------------------------------
  bool HasTable() const;                                  // adding, columns
  bool HasItem() const noexcept { return m_nItem >= 0; }  // editing, deleting, showing
  // A user-defined or lattice table: a default section; a rolled one: a copy of the selected row.
  CListChange Add();
  CListChange Copy();  // the selected row as a new one
  CListChange Edit();
  CListChange Delete();  // the neighbour is selected then
  // Brings back the row that was deleted last, in any table, and shows it: once for each deletion
  // since the dialog was opened.
  CListChange TakeBack();
  bool CanTakeBack() const noexcept { return !m_arrDeleted.empty(); }
  void ShowProperties();

  // --- Stores -----------------------------------------------------------------------------------
  CListChange Import();
  CListChange Export();  // leaves the list alone

  // --- End --------------------------------------------------------------------------------------
  // False when the dialog stays open (no item is selected, or the spacing was not given).
  bool Ok();
  // After OK: the selected row with every column of its table, a combined section with its spacing.
  const CDataItem& ChosenRow() const noexcept { return m_chosen; }

 private:
  const CDataTable& Full() const noexcept { return m_session.Table(); }
  int DeepestNode(int node) const;
  int InitialNode() const;
  void LoadNode(int node);
  void FillSearchColumns();
  bool MakeFilter();
  CListChange Refresh(CListChange change);
  void ApplySearch();
  void FillList();
  bool SelectByIndex(int index);
  int SelectedIndex() const;
  CDataItem SelectedRow() const;
  bool IsProtected(const CDataItem& row);
  CListChange AddRow(const CDataItem& row, bool copy);
  bool AcceptNew(CDataItem& row, bool copy, CDialogUser& user);

  CDialogUser& m_user;
  CMessageRoute m_route;
  CProgramPathScope m_path;
  CDataItem m_initial;
  std::vector<CTreeNode> m_arrNode;
  int m_nNode = -1;

  CTableSession m_session;
  CDataTable m_shown;
  std::vector<int> m_arrItemRow;  // positions in the shown table
  int m_nItem = -1;

  CStringArray m_arrSearchColumn;
  int m_nSearchColumn = 0;
  int m_nOperator = 0;
  CString m_strValue;
  bool m_bWholeMatch = false;
  CString m_strFilter;
  CString m_strView;
  int m_nWildcard = 0;
  int m_nSortColumn = -1;
  bool m_bAscending = true;
  std::vector<CDataItem> m_arrDeleted;  // the last one deleted at the end

  CString m_strSpacing;  // last given for a combined section
  CDataItem m_chosen;
};

}  // namespace orv3
