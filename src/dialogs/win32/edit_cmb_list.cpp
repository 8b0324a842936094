#include "dialogs/win32/edit_cmb_list.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "dialogs/win32/dpi.h"
#include "dialogs/win32/gdi.h"
#include "dialogs/win32/list_view.h"

using namespace orv3;

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr int kChoicesShown = 12;
constexpr int kCellMargin = 14;  // pixels at 96 dpi, beside a cell's text
constexpr int kLineMargin = 6;   // above and below it: room for the frame of a drop-down list

// Dialog keys that are the editor's while it is open, and not the dialog's.
bool IsEditorKey(WPARAM key) { return key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB; }

}  // namespace

void CEditCmbList::Attach(HWND list, const CEditGridModel& grid, CSetText setText, int dpi) {
  m_hList = list;
  m_pGrid = &grid;
  m_fnSetText = std::move(setText);
  m_nDpi = dpi;
  m_hEditor = nullptr;
  SetUpList(list);
  SetWindowSubclass(list, ListProc, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  SetLineHeight();
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    InsertListColumn(list, column, grid.ColumnTitle(column), 0);
  }
  FitColumns();
  Refresh();
}

void CEditCmbList::Refresh() {
  int shown = ListView_GetItemCount(m_hList);
  for (; shown > m_pGrid->LineCount(); --shown) ListView_DeleteItem(m_hList, shown - 1);
  for (int line = 0; line < m_pGrid->LineCount(); ++line) {
    if (line >= shown) {
      LVITEMW item{};
      item.iItem = line;
      SendMessageW(m_hList, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    for (int column = 0; column < m_pGrid->ColumnCount(); ++column) {
      SetListText(m_hList, line, column, m_pGrid->CellText(line, column));
    }
  }
}

void CEditCmbList::SetDpi(int dpi) {
  EndEdit(true);
  m_nDpi = dpi;
  SetLineHeight();
  FitColumns();
}

// A list view takes the height of its lines from its pictures, here empty ones.
void CEditCmbList::SetLineHeight() const {
  const CWindowDc dc(m_hList);
  const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(SendMessageW(m_hList, WM_GETFONT, 0, 0));
  const HGDIOBJ before = SelectObject(dc.Get(), font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.Get(), &metrics);
  SelectObject(dc.Get(), before);
  const int height = static_cast<int>(metrics.tmHeight) + ScaleToDpi(kLineMargin, m_nDpi);
  const HIMAGELIST pictures = ImageList_Create(1, height, ILC_COLOR, 0, 1);
  if (const HIMAGELIST old = ListView_SetImageList(m_hList, pictures, LVSIL_SMALL)) {
    ImageList_Destroy(old);
  }
}

// A column has its own width or, up to `most`, that of its longest text.
int CEditCmbList::FittingWidth(int column, int most) const {
  int width = ScaleToDpi(m_pGrid->ColumnWidth(column), m_nDpi);
  const int margin = ScaleToDpi(kCellMargin, m_nDpi);
  for (int line = 0; line < m_pGrid->LineCount(); ++line) {
    const CString text = m_pGrid->CellText(line, column);
    const auto needed = static_cast<int>(
        SendMessageW(m_hList, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.GetString())));
    width = std::max(width, std::min(needed + margin, most));
  }
  return width;
}

// The last column takes what the others leave it when there is no room for its own width; half of
// that they must leave.
void CEditCmbList::FitColumns() {
  RECT client{};
  GetWindowRect(m_hList, &client);
  int room = static_cast<int>(client.right - client.left) - GetSystemMetrics(SM_CXVSCROLL) -
             2 * GetSystemMetrics(SM_CXEDGE);
  const int last = m_pGrid->ColumnCount() - 1;
  const int lastOwn = ScaleToDpi(m_pGrid->ColumnWidth(last), m_nDpi);
  for (int column = 0; column < last; ++column) {
    const int width = FittingWidth(column, room - lastOwn / 2);
    ListView_SetColumnWidth(m_hList, column, width);
    room -= width;
  }
  ListView_SetColumnWidth(m_hList, last, room >= lastOwn / 2 ? std::min(lastOwn, room) : lastOwn);
}

bool CEditCmbList::CanEdit(int line, int column) const {
  return line >= 0 && line < m_pGrid->LineCount() && column >= 0 &&
         column < m_pGrid->ColumnCount() && m_pGrid->ModifyType(line, column) != CModifyType::Fixed;
}

int CEditCmbList::FirstEditable(int line) const {
  for (int column = 0; column < m_pGrid->ColumnCount(); ++column) {
    if (CanEdit(line, column)) return column;
  }
  return -1;
}

RECT CEditCmbList::CellRect(int line, int column) const {
  RECT cell{};
  ListView_GetSubItemRect(m_hList, line, column, LVIR_LABEL, &cell);
  return cell;
}

bool CEditCmbList::EditCell(int line, int column, wchar_t typed) {
  EndEdit(true);
  if (!CanEdit(line, column)) return false;
  SelectListItem(m_hList, line);
  m_nLine = line;
  m_nColumn = column;
  m_bList = m_pGrid->ModifyType(line, column) == CModifyType::List;
  return MakeEditor(CellRect(line, column), typed);
}

bool CEditCmbList::MakeEditor(const RECT& cell, wchar_t typed) {
  const int inset = m_bList ? 0 : ScaleToDpi(1, m_nDpi);  // an edit field's text stands at its top
  const int width = cell.right - cell.left;
  const int height = cell.bottom - cell.top - 2 * inset;
  const DWORD style = WS_CHILD | (m_bList ? CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL
                                          : ES_AUTOHSCROLL | WS_BORDER);
  m_hEditor = CreateWindowExW(
      0, m_bList ? WC_COMBOBOXW : WC_EDITW, L"", style, cell.left, cell.top + inset, width,
      m_bList ? height * (kChoicesShown + 2) : height, m_hList, nullptr, nullptr, nullptr);
  if (m_hEditor == nullptr) return false;
  SendMessageW(m_hEditor, WM_SETFONT, static_cast<WPARAM>(SendMessageW(m_hList, WM_GETFONT, 0, 0)),
               FALSE);
  if (m_bList) {
    FillChoices();
  } else {
    SetWindowTextW(m_hEditor, m_pGrid->CellText(m_nLine, m_nColumn).GetString());
    SendMessageW(m_hEditor, EM_SETSEL, 0, -1);
  }
  SetWindowSubclass(m_hEditor, EditorProc, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  ShowWindow(m_hEditor, SW_SHOW);
  SetFocus(m_hEditor);
  if (typed != 0) SendMessageW(m_hEditor, WM_CHAR, typed, 1);
  return true;
}

// The list's field is made as high as the cell.
void CEditCmbList::FillChoices() const {
  const CString text = m_pGrid->CellText(m_nLine, m_nColumn);
  for (const CString& choice : m_pGrid->Choices(m_nLine, m_nColumn)) {
    SendMessageW(m_hEditor, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.GetString()));
  }
  SendMessageW(
      m_hEditor, CB_SETCURSEL,
      static_cast<WPARAM>(SendMessageW(m_hEditor, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(text.GetString()))),
      0);
  const RECT cell = CellRect(m_nLine, m_nColumn);
  RECT field{};
  GetWindowRect(m_hEditor, &field);
  const LRESULT inner = SendMessageW(m_hEditor, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
  const LRESULT wanted = inner + (cell.bottom - cell.top) - (field.bottom - field.top);
  SendMessageW(m_hEditor, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max<LRESULT>(wanted, 8));
}

CString CEditCmbList::EditorText() const {
  const int length = GetWindowTextLengthW(m_hEditor);
  std::vector<wchar_t> text(static_cast<std::size_t>(length) + 1);
  return {text.data(), GetWindowTextW(m_hEditor, text.data(), length + 1)};
}

// The editor loses the focus while it is destroyed: it is forgotten first.
void CEditCmbList::EndEdit(bool keep) {
  if (m_hEditor == nullptr) return;
  const CString text = EditorText();
  const bool hadFocus = GetFocus() == m_hEditor;
  const HWND editor = std::exchange(m_hEditor, nullptr);
  if (hadFocus) SetFocus(m_hList);
  DestroyWindow(editor);
  if (!keep || text == m_pGrid->CellText(m_nLine, m_nColumn)) return;
  m_fnSetText(m_nLine, m_nColumn, text);
  Refresh();
}

void CEditCmbList::GoTo(int line) {
  if (line < 0 || line >= m_pGrid->LineCount()) return;
  SelectListItem(m_hList, line);
  SetFocus(m_hList);
  EditCell(line, FirstEditable(line));
}

// On to the next (previous) cell that can be changed, line by line.
bool CEditCmbList::EditNext(int step) {
  const int columns = m_pGrid->ColumnCount();
  const int cells = m_pGrid->LineCount() * columns;
  for (int cell = m_nLine * columns + m_nColumn + step; cell >= 0 && cell < cells; cell += step) {
    if (CanEdit(cell / columns, cell % columns)) return EditCell(cell / columns, cell % columns);
  }
  EndEdit(true);
  return false;
}

LRESULT CEditCmbList::OnCustomDraw(NMHDR& header) const {
  auto& draw = reinterpret_cast<NMLVCUSTOMDRAW&>(header);
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return m_nShadeFrom >= 0 ? CDRF_NOTIFYITEMDRAW : CDRF_DODEFAULT;
    case CDDS_ITEMPREPAINT:
      return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      const int line = static_cast<int>(draw.nmcd.dwItemSpec);
      const bool shaded = draw.iSubItem >= m_nShadeFrom && !CanEdit(line, draw.iSubItem);
      draw.clrTextBk = GetSysColor(shaded ? COLOR_BTNFACE : COLOR_WINDOW);
      return CDRF_DODEFAULT;
    }
    default:
      return CDRF_DODEFAULT;
  }
}

bool CEditCmbList::OnListKey(WPARAM key) {
  if (key != VK_F2) return false;
  const int line = SelectedListItem(m_hList);
  return line >= 0 && EditCell(line, FirstEditable(line));
}

bool CEditCmbList::OnEditorKey(WPARAM key) {
  if (m_bList && key != VK_TAB && SendMessageW(m_hEditor, CB_GETDROPPEDSTATE, 0, 0)) return false;
  switch (key) {
    case VK_RETURN:
    case VK_ESCAPE:
      EndEdit(key == VK_RETURN);
      return true;
    case VK_TAB:
      EditNext(GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
      return true;
    default:
      return false;
  }
}

void CEditCmbList::OnListClick(LPARAM place) {
  LVHITTESTINFO hit{};
  hit.pt = {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
  if (ListView_SubItemHitTest(m_hList, &hit) >= 0) EditCell(hit.iItem, hit.iSubItem);
}

// A choice taken from the open list ends the change, once the list has closed; one reached with the
// arrow keys does not.
void CEditCmbList::OnChosen(HWND editor) {
  if (editor != m_hEditor || !SendMessageW(editor, CB_GETDROPPEDSTATE, 0, 0)) return;
  PostMessageW(editor, WM_KEYDOWN, VK_RETURN, 0);
}

LRESULT CALLBACK CEditCmbList::ListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                        UINT_PTR, DWORD_PTR data) {
  auto* self = reinterpret_cast<CEditCmbList*>(data);
  switch (message) {
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_SIZE:
      self->EndEdit(true);
      break;
    case WM_KEYDOWN:
      if (self->OnListKey(wParam)) return 0;
      break;
    case WM_CHAR:
      if (wParam > L' ' && self->m_hEditor == nullptr) {
        const int line = SelectedListItem(window);
        if (line >= 0 &&
            self->EditCell(line, self->FirstEditable(line), static_cast<wchar_t>(wParam)))
          return 0;
      }
      break;
    case WM_LBUTTONDOWN: {
      const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
      self->OnListClick(lParam);
      return result;
    }
    case WM_COMMAND:
      if (HIWORD(wParam) == CBN_SELENDOK) self->OnChosen(reinterpret_cast<HWND>(lParam));
      break;
    case WM_NCDESTROY:
      RemoveWindowSubclass(window, ListProc, kSubclass);
      break;
    default:
      break;
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CALLBACK CEditCmbList::EditorProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR, DWORD_PTR data) {
  auto* self = reinterpret_cast<CEditCmbList*>(data);
  switch (message) {
    case WM_GETDLGCODE:
      return DefSubclassProc(window, message, wParam, lParam) | DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
      if (self->OnEditorKey(wParam)) return 0;
      break;
    case WM_CHAR:
      if (IsEditorKey(wParam)) return 0;  // no beep for a key that has done its work
      break;
    case WM_KILLFOCUS:
      if (self->m_hEditor == window) self->EndEdit(true);
      return 0;
    case WM_NCDESTROY:
      RemoveWindowSubclass(window, EditorProc, kSubclass);
      break;
    default:
      break;
  }
  return DefSubclassProc(window, message, wParam, lParam);
}
