#include "dialogs/win32/list_view.h"

#include <cstring>

namespace orv3 {

void SetUpList(HWND list, DWORD more) {
  ListView_SetExtendedListViewStyle(
      list, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP | more);
}

void InsertListColumn(HWND list, int column, const CString& title, int width, bool right) {
  LVCOLUMNW info{};
  info.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
  info.fmt = right ? LVCFMT_RIGHT : LVCFMT_LEFT;
  info.cx = width;
  info.pszText = const_cast<wchar_t*>(title.GetString());
  SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column),
               reinterpret_cast<LPARAM>(&info));
}

void DeleteListColumns(HWND list) {
  while (ListView_DeleteColumn(list, 0)) {
  }
}

int SelectedListItem(HWND list) { return ListView_GetNextItem(list, -1, LVNI_SELECTED); }

void SelectListItem(HWND list, int item) {
  constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
  if (item < 0) {
    ListView_SetItemState(list, -1, 0, kBoth);
    return;
  }
  ListView_SetItemState(list, item, kBoth, kBoth);
  ListView_SetSelectionMark(list, item);
  ListView_EnsureVisible(list, item, FALSE);
}

void ScrollListTo(HWND list, int item) {
  ListView_EnsureVisible(list, ListView_GetItemCount(list) - 1, FALSE);
  ListView_EnsureVisible(list, item, FALSE);
}

void SetSortArrow(HWND list, int column, int direction) {
  const HWND header = ListView_GetHeader(list);
  HDITEMW item{};
  item.mask = HDI_FORMAT;
  SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
  item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
  if (direction > 0) item.fmt |= HDF_SORTUP;
  if (direction < 0) item.fmt |= HDF_SORTDOWN;
  SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
}

void GiveItemText(NMHDR& displayInfo, const wchar_t* text) {
  LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(displayInfo).item;
  if ((item.mask & LVIF_TEXT) != 0) item.pszText = const_cast<wchar_t*>(text);
}

void SetListText(HWND list, int item, int column, const CString& text) {
  LVITEMW info{};
  info.iSubItem = column;
  info.pszText = const_cast<wchar_t*>(text.GetString());
  SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&info));
}

bool CopyToClipboard(HWND owner, const CString& text) {
  const std::size_t size = (static_cast<std::size_t>(text.GetLength()) + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (memory == nullptr) return false;
  std::memcpy(GlobalLock(memory), text.GetString(), size);
  GlobalUnlock(memory);
  bool done = OpenClipboard(owner) != FALSE;
  if (done) {
    EmptyClipboard();
    done = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;  // the clipboard's from now on
    CloseClipboard();
  }
  if (!done) GlobalFree(memory);
  return done;
}

}  // namespace orv3
