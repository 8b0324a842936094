// What the dialogs ask of list views, in report style throughout.
#pragma once

#include "dialogs/win32/win32_api.h"
#include "framework/cstring.h"

namespace orv3 {

// Whole rows are selected and drawn without flicker; `more`: further LVS_EX_ styles.
void SetUpList(HWND list, DWORD more = 0);
void InsertListColumn(HWND list, int column, const CString& title, int width, bool right = false);
void DeleteListColumns(HWND list);
int SelectedListItem(HWND list);  // -1 when there is none
// Selects an item (none for -1), gives it the focus frame and brings it into view.
void SelectListItem(HWND list, int item);
// Scrolls so that an item is the first one shown, or as near to it as the list's end allows.
void ScrollListTo(HWND list, int item);
// The arrow in a column's header: 1 up, -1 down, 0 none.
void SetSortArrow(HWND list, int column, int direction);
// Lets an item's text point at `text`, which must last until the list asks again.
void GiveItemText(NMHDR& displayInfo, const wchar_t* text);
void SetListText(HWND list, int item, int column, const CString& text);

// Puts the text on the clipboard; false when another program holds it.
bool CopyToClipboard(HWND owner, const CString& text);

}  // namespace orv3
