#include "dialogs/win32/steel_data_base_dlg.h"

#include "dialogs/model/browser_model.h"
#include "dialogs/win32/list_view.h"
#include "dialogs/win32/resource.h"
#include "dialogs/win32/tree_images.h"

using namespace orv3;

CSteelDataBaseDlg::CSteelDataBaseDlg() : CKvbDlg(IDD_DATABASE) {
  MapTree();
  MapList();
  MapSearch();
  MapButtons();
}

CSteelDataBaseDlg::~CSteelDataBaseDlg() = default;

// --- The message map ----------------------------------------------------------------------------

void CSteelDataBaseDlg::MapTree() {
  OnNotify(IDC_TREE, TVN_SELCHANGEDW, [this](NMHDR& header) {
    if (!m_bShowing) SelectNode(reinterpret_cast<const NMTREEVIEWW&>(header).itemNew.hItem);
    return 0;
  });
}

void CSteelDataBaseDlg::MapList() {
  OnNotify(IDC_LIST, LVN_GETDISPINFOW, [this](NMHDR& header) {
    const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
    GiveItemText(header, m_pModel->ItemText(item.iItem, item.iSubItem));
    return 0;
  });
  OnNotify(IDC_LIST, LVN_ODFINDITEMW, [this](NMHDR& header) { return FindItem(header); });
  OnNotify(IDC_LIST, LVN_ITEMCHANGED, [this](NMHDR&) {
    if (m_bShowing) return 0;
    m_pModel->SelectItem(SelectedListItem(Control(IDC_LIST)));
    ShowCommands();
    return 0;
  });
  OnNotify(IDC_LIST, LVN_COLUMNCLICK, [this](NMHDR& header) {
    Show(m_pModel->SortBy(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem));
    return 0;
  });
  OnNotify(IDC_LIST, NM_DBLCLK, [this](NMHDR& header) {
    if (reinterpret_cast<const NMITEMACTIVATE&>(header).iItem >= 0) m_pModel->ShowProperties();
    return 0;
  });
  OnNotify(IDC_LIST, LVN_KEYDOWN, [this](NMHDR& header) {
    return OnListKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey) ? 1 : 0;
  });
}

// Enter in the search field searches, because the search button is the default one there.
void CSteelDataBaseDlg::MapSearch() {
  OnClick(IDC_SEARCH, [this] { SearchNow(); });
  OnCommand(IDC_SEARCH_VALUE, EN_SETFOCUS,
            [this] { SendMessageW(Window(), DM_SETDEFID, IDC_SEARCH, 0); });
  OnCommand(IDC_SEARCH_VALUE, EN_KILLFOCUS,
            [this] { SendMessageW(Window(), DM_SETDEFID, IDOK, 0); });
  OnCommand(IDC_SEARCH_COLUMN, CBN_SELCHANGE, [this] {
    m_pModel->SetSearchColumn(
        static_cast<int>(SendMessageW(Control(IDC_SEARCH_COLUMN), CB_GETCURSEL, 0, 0)));
    ShowSearch();
  });
  OnCommand(IDC_SEARCH_OPERATOR, CBN_SELCHANGE, [this] {
    m_pModel->SetOperator(
        static_cast<int>(SendMessageW(Control(IDC_SEARCH_OPERATOR), CB_GETCURSEL, 0, 0)));
    ShowSearch();
  });
}

void CSteelDataBaseDlg::MapButtons() {
  OnClick(IDC_VIEW_COLUMNS, [this] { Do(&CBrowserModel::ChooseColumns); });
  OnClick(IDC_IMPORT, [this] { Do(&CBrowserModel::Import); });
  OnClick(IDC_EXPORT, [this] { m_pModel->Export(); });
  OnClick(IDC_ADD, [this] { Do(&CBrowserModel::Add); });
  OnClick(IDC_DELETE, [this] { Do(&CBrowserModel::Delete); });
  OnClick(IDC_EDIT, [this] { Do(&CBrowserModel::Edit); });
  OnClick(IDC_TAKE_BACK, [this] { Do(&CBrowserModel::TakeBack); });
}

// --- Opening and closing ------------------------------------------------------------------------

void CSteelDataBaseDlg::OnInitDialog() {
  m_pUser = std::make_unique<CWindowsUser>();
  m_pModel = std::make_unique<CBrowserModel>(m_strPath, m_arrTableName, m_item, *m_pUser);
  SetUpList(Control(IDC_LIST), LVS_EX_HEADERDRAGDROP);
  FillOperators();
  MakeImages();
  FillTree();
  HoldControls();
  Remember(L"Browser");
  Show(m_pModel->Open());
  ShowTable();
  Focus(IDC_TREE);
}

void CSteelDataBaseDlg::OnOK() {
  if (!m_pModel->Ok()) return;
  m_item = CDataItem(m_pModel->ChosenRow());
  CKvbDlg::OnOK();
}

void CSteelDataBaseDlg::OnDpiChanged() {
  MakeImages();
  RebuildColumns();
  m_sketch.Show(Control(IDC_SKETCH), m_pModel->PreviewResource(), Dpi());
}

void CSteelDataBaseDlg::HoldControls() {
  Hold(IDC_TREE, HoldLeft | HoldTop | HoldBottom);
  Hold(IDC_SKETCH, HoldLeft | HoldBottom);
  Hold(IDC_LIST, HoldAll);
  for (const int id : {IDC_STATUS, IDC_SEARCH_GROUP, IDC_SEARCH_VALUE}) {
    Hold(id, HoldLeft | HoldRight | HoldBottom);
  }
  for (const int id : {IDC_SEARCH_LABEL, IDC_SEARCH_COLUMN, IDC_SEARCH_OPERATOR, IDC_VIEW_COLUMNS,
                       IDC_IMPORT, IDC_EXPORT, IDC_ADD, IDC_DELETE, IDC_EDIT, IDC_TAKE_BACK}) {
    Hold(id, HoldLeft | HoldBottom);
  }
  for (const int id : {IDC_WHOLE_MATCH, IDC_SEARCH, IDOK, IDCANCEL, IDC_HELP_BUTTON}) {
    Hold(id, HoldRight | HoldBottom);
  }
}

// --- Tree ---------------------------------------------------------------------------------------

void CSteelDataBaseDlg::MakeImages() {
  CImages images = TreeImages(Dpi());
  TreeView_SetImageList(Control(IDC_TREE), images.Get(), TVSIL_NORMAL);
  m_images = std::move(images);
}

void CSteelDataBaseDlg::FillTree() {
  m_bShowing = true;
  const HWND tree = Control(IDC_TREE);
  TreeView_DeleteAllItems(tree);
  m_arrTreeItem.clear();
  for (const CTreeNode& node : m_pModel->Tree()) {
    TVINSERTSTRUCTW insert{};
    insert.hParent =
        node.m_nParent < 0 ? TVI_ROOT : m_arrTreeItem[static_cast<std::size_t>(node.m_nParent)];
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    insert.item.pszText = const_cast<wchar_t*>(node.m_strText.GetString());
    insert.item.iImage = insert.item.iSelectedImage = node.m_nImage;
    insert.item.lParam = static_cast<LPARAM>(m_arrTreeItem.size());
    m_arrTreeItem.push_back(reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert))));
  }
  for (std::size_t i = 0; i < m_arrTreeItem.size(); ++i) {
    if (m_pModel->Tree()[i].m_nParent < 0) TreeView_Expand(tree, m_arrTreeItem[i], TVE_EXPAND);
  }
  m_bShowing = false;
}

void CSteelDataBaseDlg::SelectNode(HTREEITEM item) {
  TVITEMW info{};
  info.mask = TVIF_PARAM;
  info.hItem = item;
  SendMessageW(Control(IDC_TREE), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&info));
  const CWaitCursor wait;
  const CListChange change = m_pModel->SelectNode(static_cast<int>(info.lParam));
  Show(change);
  if (change == CListChange::Columns) ShowTable();
}

// --- What the model has changed -----------------------------------------------------------------

// With the columns the list of those to search may be another one; what was typed there stays.
void CSteelDataBaseDlg::Do(CChange change) {
  const CListChange changed = (m_pModel.get()->*change)();
  Show(changed);
  if (changed != CListChange::Columns) return;
  m_pModel->SetSearchValue(TextOf(IDC_SEARCH_VALUE));
  m_pModel->SetWholeMatch(IsDlgButtonChecked(Window(), IDC_WHOLE_MATCH) == BST_CHECKED);
  ShowTable();
}

void CSteelDataBaseDlg::Show(CListChange change) {
  if (change == CListChange::Columns) RebuildColumns();
  const int top = ListView_GetTopIndex(Control(IDC_LIST));
  if (change != CListChange::None) ShowRows();
  if (change == CListChange::Order) ScrollListTo(Control(IDC_LIST), top);
  ShowCommands();
}

void CSteelDataBaseDlg::RebuildColumns() {
  const HWND list = Control(IDC_LIST);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  DeleteListColumns(list);
  for (int i = 0; i < m_pModel->ColumnCount(); ++i) {
    const CListColumn column = m_pModel->Column(i);
    InsertListColumn(list, i, column.m_strSign, Scaled(column.m_nWidth), column.m_bRight);
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void CSteelDataBaseDlg::ShowArrow() {
  for (int i = 0; i < m_pModel->ColumnCount(); ++i) {
    SetSortArrow(Control(IDC_LIST), i, m_pModel->Column(i).m_nSorted);
  }
}

void CSteelDataBaseDlg::ShowRows() {
  m_bShowing = true;
  const HWND list = Control(IDC_LIST);
  SelectListItem(list, -1);
  ListView_SetItemCountEx(list, m_pModel->ItemCount(), LVSICF_NOSCROLL);
  SelectListItem(list, m_pModel->SelectedItem());
  InvalidateRect(list, nullptr, TRUE);
  m_bShowing = false;
  ShowArrow();
  SetText(IDC_STATUS, m_pModel->CountText());
}

// Picture and search controls of another table, and its node in the tree.
void CSteelDataBaseDlg::ShowTable() {
  m_bShowing = true;
  const auto node = static_cast<std::size_t>(m_pModel->SelectedNode());
  if (node < m_arrTreeItem.size()) TreeView_SelectItem(Control(IDC_TREE), m_arrTreeItem[node]);
  m_bShowing = false;
  m_sketch.Show(Control(IDC_SKETCH), m_pModel->PreviewResource(), Dpi());
  const HWND columns = Control(IDC_SEARCH_COLUMN);
  SendMessageW(columns, CB_RESETCONTENT, 0, 0);
  for (const CString& sign : m_pModel->SearchColumns()) {
    SendMessageW(columns, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(sign.GetString()));
  }
  SendMessageW(columns, CB_SETCURSEL, static_cast<WPARAM>(m_pModel->SearchColumn()), 0);
  SendMessageW(Control(IDC_SEARCH_OPERATOR), CB_SETCURSEL,
               static_cast<WPARAM>(m_pModel->Operator()), 0);
  SetText(IDC_SEARCH_VALUE, m_pModel->SearchValue());
  CheckDlgButton(Window(), IDC_WHOLE_MATCH, m_pModel->WholeMatch() ? BST_CHECKED : BST_UNCHECKED);
  ShowSearch();
}

void CSteelDataBaseDlg::ShowCommands() {
  for (const int id : {IDC_ADD, IDC_VIEW_COLUMNS, IDC_SEARCH}) Enable(id, m_pModel->HasTable());
  for (const int id : {IDC_DELETE, IDC_EDIT, IDOK}) Enable(id, m_pModel->HasItem());
  Enable(IDC_TAKE_BACK, m_pModel->CanTakeBack());
}

// --- Search -------------------------------------------------------------------------------------

void CSteelDataBaseDlg::FillOperators() {
  for (const CString& text : CBrowserModel::Operators()) {
    SendMessageW(Control(IDC_SEARCH_OPERATOR), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(text.GetString()));
  }
}

void CSteelDataBaseDlg::ShowSearch() { Enable(IDC_WHOLE_MATCH, m_pModel->IsWholeMatchEnabled()); }

void CSteelDataBaseDlg::SearchNow() {
  m_pModel->SetSearchValue(TextOf(IDC_SEARCH_VALUE));
  m_pModel->SetWholeMatch(IsDlgButtonChecked(Window(), IDC_WHOLE_MATCH) == BST_CHECKED);
  const CWaitCursor wait;
  Show(m_pModel->Search());
}

// --- List ---------------------------------------------------------------------------------------

bool CSteelDataBaseDlg::OnListKey(int key) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (control && (key == 'C' || key == VK_INSERT)) {
    CopyRow();
    return true;
  }
  if (control && key == 'Z') {
    Do(&CBrowserModel::TakeBack);
    return true;
  }
  switch (key) {
    case VK_DELETE:
      if (m_pModel->HasItem()) Do(&CBrowserModel::Delete);
      return true;
    case VK_F2:
      if (m_pModel->HasItem()) Do(&CBrowserModel::Edit);
      return true;
    case VK_INSERT:
      if (m_pModel->HasTable()) Do(&CBrowserModel::Add);
      return true;
    default:
      return false;
  }
}

void CSteelDataBaseDlg::CopyRow() {
  const CString text = m_pModel->CopyText();
  if (!text.IsEmpty()) CopyToClipboard(Window(), text);
}

LRESULT CSteelDataBaseDlg::FindItem(const NMHDR& header) const {
  const auto& find = reinterpret_cast<const NMLVFINDITEMW&>(header);
  if ((find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return -1;
  return m_pModel->FindItem(CString(find.lvfi.psz), find.iStart);
}
