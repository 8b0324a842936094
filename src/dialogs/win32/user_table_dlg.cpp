#include "dialogs/win32/user_table_dlg.h"

#include "dialogs/model/user_table_model.h"
#include "dialogs/win32/list_view.h"
#include "dialogs/win32/resource.h"

using namespace orv3;

namespace {

constexpr int kRowColumnWidth = 80;  // pixels at 96 dpi

}  // namespace

CUserTableDlg::CUserTableDlg() : CKvbDlg(IDD_USER_TABLES) {
  MapTables();
  MapRows();
  MapColumns();
  MapUndo();
}

CUserTableDlg::~CUserTableDlg() = default;

// --- The message map ----------------------------------------------------------------------------

void CUserTableDlg::MapTables() {
  OnNotify(IDC_TABLE_LIST, LVN_ITEMCHANGED, [this](NMHDR&) {
    const int table = SelectedListItem(Control(IDC_TABLE_LIST));
    if (m_bShowing || table == m_pModel->SelectedTable()) return 0;
    m_columns.EndEdit(true);
    m_pModel->SelectTable(table);
    ShowTable();
    return 0;
  });
  OnNotify(IDC_TABLE_LIST, LVN_KEYDOWN, [this](NMHDR& header) {
    const int key = reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey;
    if (m_pModel->SelectedTable() < 0) return 0;
    if (key == VK_F2) Do(&CUserTableModel::RenameTable);
    if (key == VK_DELETE) Do(&CUserTableModel::DeleteTable);
    return 0;
  });
  OnClick(IDC_TABLE_NEW, [this] { NewTable(); });
  OnClick(IDC_TABLE_RENAME, [this] { Do(&CUserTableModel::RenameTable); });
  OnClick(IDC_TABLE_DELETE, [this] { Do(&CUserTableModel::DeleteTable); });
}

void CUserTableDlg::MapRows() {
  OnNotify(IDC_ROW_LIST, LVN_GETDISPINFOW, [this](NMHDR& header) {
    const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
    GiveItemText(header, m_pModel->RowText(item.iItem, item.iSubItem));
    return 0;
  });
  OnNotify(IDC_ROW_LIST, LVN_ITEMCHANGED, [this](NMHDR&) {
    if (m_bShowing) return 0;
    m_pModel->SelectRow(SelectedListItem(Control(IDC_ROW_LIST)));
    ShowCommands();
    return 0;
  });
  OnNotify(IDC_ROW_LIST, NM_DBLCLK, [this](NMHDR& header) {
    if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) Do(&CUserTableModel::EditRow);
    return 0;
  });
  OnNotify(IDC_ROW_LIST, LVN_KEYDOWN, [this](NMHDR& header) {
    return OnRowKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey) ? 1 : 0;
  });
  OnClick(IDC_ROW_ADD, [this] { Do(&CUserTableModel::AddRow); });
  OnClick(IDC_ROW_COPY, [this] { Do(&CUserTableModel::CopyRow); });
  OnClick(IDC_ROW_EDIT, [this] { Do(&CUserTableModel::EditRow); });
  OnClick(IDC_ROW_DELETE, [this] { Do(&CUserTableModel::DeleteRow); });
}

void CUserTableDlg::MapColumns() {
  OnNotify(IDC_COLUMN_GRID, NM_CUSTOMDRAW,
           [this](NMHDR& header) { return m_columns.OnCustomDraw(header); });
  OnNotify(IDC_COLUMN_GRID, LVN_ITEMCHANGED, [this](NMHDR&) {
    ShowCommands();
    return 0;
  });
  OnClick(IDC_COLUMN_ADD, [this] { Do(&CUserTableModel::AddColumn); });
  OnClick(IDC_COLUMN_REMOVE, [this] { DeleteColumn(); });
}

void CUserTableDlg::MapUndo() {
  OnClick(IDC_UNDO, [this] {
    m_pModel->Undo();
    ShowAll();
  });
  OnClick(IDC_REDO, [this] {
    m_pModel->Redo();
    ShowAll();
  });
  OnClick(IDC_SAVE, [this] { Do(&CUserTableModel::Save); });
}

// --- Opening and closing ------------------------------------------------------------------------

void CUserTableDlg::OnInitDialog() {
  m_pUser = std::make_unique<CWindowsUser>();
  m_pModel = std::make_unique<CUserTableModel>(m_strPath, m_arrTableName, m_item, *m_pUser);
  SetUpList(Control(IDC_TABLE_LIST));
  InsertListColumn(Control(IDC_TABLE_LIST), 0, {}, Scaled(100));
  SetUpList(Control(IDC_ROW_LIST), LVS_EX_HEADERDRAGDROP);
  for (const CString& name : m_pModel->Templates()) {
    SendMessageW(Control(IDC_TEMPLATE), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(name.GetString()));
  }
  SendMessageW(Control(IDC_TEMPLATE), CB_SETCURSEL, 0, 0);
  m_pModel->Open();
  m_columns.Attach(
      Control(IDC_COLUMN_GRID), m_pModel->Columns(),
      [this](int line, int column, const CString& text) { SetColumnCell(line, column, text); },
      Dpi());
  m_columns.ShadeFrom(0);
  HoldControls();
  Remember(L"UserTables");
  ShowAll();
  OnSize();
  Focus(IDC_TABLE_LIST);
}

void CUserTableDlg::HoldControls() {
  Hold(IDC_TABLE_LIST, HoldLeft | HoldTop | HoldBottom);
  for (const int id : {IDC_TEMPLATE, IDC_TABLE_NEW, IDC_TABLE_RENAME, IDC_TABLE_DELETE, IDC_SKETCH,
                       IDC_ROW_ADD, IDC_ROW_COPY, IDC_ROW_EDIT, IDC_ROW_DELETE, IDC_COLUMN_LABEL,
                       IDC_UNDO, IDC_REDO, IDC_SAVE}) {
    Hold(id, HoldLeft | HoldBottom);
  }
  Hold(IDC_STATUS, HoldLeft | HoldTop | HoldRight);
  Hold(IDC_ROW_LIST, HoldAll);
  Hold(IDC_COLUMN_GRID, HoldLeft | HoldRight | HoldBottom);
  for (const int id : {IDC_COLUMN_ADD, IDC_COLUMN_REMOVE, IDOK, IDCANCEL, IDC_HELP_BUTTON}) {
    Hold(id, HoldRight | HoldBottom);
  }
}

void CUserTableDlg::OnOK() {
  m_columns.EndEdit(true);
  const bool done = m_pModel->Ok();
  if (!done) {
    ShowAll();
    return;
  }
  m_item = CDataItem(m_pModel->ChosenRow());
  CKvbDlg::OnOK();
}

void CUserTableDlg::OnCancel() {
  m_columns.EndEdit(false);
  if (m_pModel->Cancel()) {
    CKvbDlg::OnCancel();
  } else {
    ShowAll();
  }
}

void CUserTableDlg::OnSize() {
  RECT client{};
  GetClientRect(Control(IDC_TABLE_LIST), &client);
  ListView_SetColumnWidth(Control(IDC_TABLE_LIST), 0, client.right);
}

void CUserTableDlg::OnDpiChanged() {
  m_columns.SetDpi(Dpi());
  ShowTable();
}

// --- Commands -----------------------------------------------------------------------------------

void CUserTableDlg::Do(CCommand command) {
  m_columns.EndEdit(true);
  (m_pModel.get()->*command)();
  ShowAll();
}

void CUserTableDlg::NewTable() {
  m_columns.EndEdit(true);
  m_pModel->NewTable(static_cast<int>(SendMessageW(Control(IDC_TEMPLATE), CB_GETCURSEL, 0, 0)));
  ShowAll();
}

void CUserTableDlg::SetColumnCell(int line, int column, const CString& text) {
  m_pModel->SetColumnCell(line, column, text);
  ShowTables();
  ShowRows();
  ShowCommands();
}

void CUserTableDlg::DeleteColumn() {
  m_columns.EndEdit(true);
  const int column = SelectedListItem(Control(IDC_COLUMN_GRID));
  if (column < 0) return;
  m_pModel->DeleteColumn(column);
  ShowAll();
}

bool CUserTableDlg::OnRowKey(int key) {
  switch (key) {
    case VK_DELETE:
      if (m_pModel->SelectedRow() >= 0) Do(&CUserTableModel::DeleteRow);
      return true;
    case VK_F2:
      if (m_pModel->SelectedRow() >= 0) Do(&CUserTableModel::EditRow);
      return true;
    case VK_INSERT:
      if (m_pModel->SelectedTable() >= 0) Do(&CUserTableModel::AddRow);
      return true;
    case 'C':
      if (GetKeyState(VK_CONTROL) < 0) CopyRowText();
      return GetKeyState(VK_CONTROL) < 0;
    default:
      return false;
  }
}

void CUserTableDlg::CopyRowText() {
  const int row = m_pModel->SelectedRow();
  if (row < 0) return;
  CString text;
  for (int column = 0; column < m_pModel->ColumnCount(); ++column) {
    if (column > 0) text += L'\t';
    text += m_pModel->RowText(row, column);
  }
  CopyToClipboard(Window(), text);
}

// --- What the model shows -----------------------------------------------------------------------

void CUserTableDlg::ShowAll() {
  ShowTables();
  ShowTable();
}

void CUserTableDlg::ShowTables() {
  m_bShowing = true;
  const HWND list = Control(IDC_TABLE_LIST);
  int shown = ListView_GetItemCount(list);
  for (; shown > m_pModel->TableCount(); --shown) ListView_DeleteItem(list, shown - 1);
  for (int table = 0; table < m_pModel->TableCount(); ++table) {
    if (table >= shown) {
      LVITEMW item{};
      item.iItem = table;
      SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    SetListText(list, table, 0, m_pModel->TableText(table));
  }
  SelectListItem(list, m_pModel->SelectedTable());
  m_bShowing = false;
}

void CUserTableDlg::ShowTable() {
  ShowRows();
  m_columns.Refresh();
  const bool table = m_pModel->SelectedTable() >= 0;
  m_sketch.Show(Control(IDC_SKETCH), table ? m_pModel->PictureResource() : 0, Dpi());
  ShowCommands();
}

void CUserTableDlg::ShowRows() {
  m_bShowing = true;
  const HWND list = Control(IDC_ROW_LIST);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  SelectListItem(list, -1);
  DeleteListColumns(list);
  for (int column = 0; column < m_pModel->ColumnCount(); ++column) {
    InsertListColumn(list, column, m_pModel->ColumnSign(column), Scaled(kRowColumnWidth),
                     m_pModel->IsRightAligned(column));
  }
  ListView_SetItemCountEx(list, m_pModel->RowCount(), LVSICF_NOSCROLL);
  SelectListItem(list, m_pModel->SelectedRow());
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
  m_bShowing = false;
  SetText(IDC_STATUS, m_pModel->CountText());
}

void CUserTableDlg::ShowCommands() {
  const bool table = m_pModel->SelectedTable() >= 0;
  const bool row = m_pModel->SelectedRow() >= 0;
  const bool columns = table && m_pModel->HasOwnColumns();
  for (const int id : {IDC_TABLE_RENAME, IDC_TABLE_DELETE, IDC_ROW_ADD}) Enable(id, table);
  for (const int id : {IDC_ROW_COPY, IDC_ROW_EDIT, IDC_ROW_DELETE}) Enable(id, row);
  Enable(IDC_COLUMN_ADD, columns);
  Enable(IDC_COLUMN_REMOVE, columns && SelectedListItem(Control(IDC_COLUMN_GRID)) >= 0);
  Enable(IDC_UNDO, m_pModel->CanUndo());
  Enable(IDC_REDO, m_pModel->CanRedo());
  Enable(IDC_SAVE, m_pModel->IsChanged());
}
