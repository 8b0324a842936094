// What the library takes from the program that has loaded it.
//
// A drawing host offers its own help and main window under names that it exports; they are looked
// up when they are wanted, in every module of the process. Any other program gets what plain
// Windows has. All of it belongs to the user-interface thread.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "framework/cstring.h"

namespace orv3 {

// Where the resources are: the library's own module, or the program that it is linked into.
HINSTANCE ModuleInstance() noexcept;
void SetModuleInstance(HINSTANCE instance) noexcept;  // called once, by the library's entry

// The window that owns a dialog or a message: the thread's active window, else the host's main
// window (adsw_acadMainWnd), else none.
HWND OwnerWindow();

// The host's help (acedHelp) on `topic`. Without one, `text` in a message box that the active
// window owns; an empty text says that there is no help here.
void ShowHostHelp(const CString& topic, const CString& text = {});

}  // namespace orv3
