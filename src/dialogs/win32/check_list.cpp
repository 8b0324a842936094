#include "dialogs/win32/check_list.h"

#include <utility>

#include "dialogs/win32/list_view.h"

namespace orv3 {

void CCheckList::Attach(HWND list, CSource source) {
  m_hList = list;
  m_source = std::move(source);
  SetUpList(list, LVS_EX_CHECKBOXES);
  ListView_SetExtendedListViewStyleEx(list, LVS_EX_GRIDLINES, 0);
  InsertListColumn(list, 0, {}, 100);
  Fill();
}

void CCheckList::Fill() {
  m_bFilling = true;
  SendMessageW(m_hList, WM_SETREDRAW, FALSE, 0);
  ListView_DeleteAllItems(m_hList);
  for (int i = 0; i < m_source.m_fnCount(); ++i) {
    const CString text = m_source.m_fnText(i);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = i;
    item.pszText = const_cast<wchar_t*>(text.GetString());
    SendMessageW(m_hList, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  SendMessageW(m_hList, WM_SETREDRAW, TRUE, 0);
  FitColumn();
  ShowMarks();
}

void CCheckList::ShowMarks() {
  m_bFilling = true;
  for (int i = 0; i < m_source.m_fnCount(); ++i) {
    ListView_SetCheckState(m_hList, i, m_source.m_fnIsChecked(i));
  }
  m_bFilling = false;
  m_source.m_fnChanged();
}

void CCheckList::FitColumn() {
  RECT client{};
  GetClientRect(m_hList, &client);
  ListView_SetColumnWidth(m_hList, 0, client.right);
}

void CCheckList::OnItemChanged(NMHDR& header) {
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  const UINT marks = (change.uOldState ^ change.uNewState) & LVIS_STATEIMAGEMASK;
  if (m_bFilling || (change.uChanged & LVIF_STATE) == 0 || marks == 0) return;
  m_source.m_fnCheck(change.iItem, ListView_GetCheckState(m_hList, change.iItem) != 0);
  ShowMarks();
}

}  // namespace orv3
