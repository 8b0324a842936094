#include "dialogs/win32/host_services.h"

#include <psapi.h>

#include <vector>

#include "dialogs/model/dialog_texts.h"
#include "framework/message.h"

namespace orv3 {
namespace {

// The host's functions, as it documents them: wide texts, the C calling convention.
using CHelpFunction = int(const wchar_t* file, const wchar_t* topic, int command);
using CMainWindowFunction = HWND();
constexpr int kDone = 5100;  // the host's code for a call that did what was asked

HINSTANCE g_instance = nullptr;

std::vector<HMODULE> LoadedModules() {
  std::vector<HMODULE> modules(256);
  for (;;) {
    const auto size = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
    DWORD needed = 0;
    if (!K32EnumProcessModules(GetCurrentProcess(), modules.data(), size, &needed)) return {};
    modules.resize(needed / sizeof(HMODULE));
    if (needed <= size) return modules;
  }
}

// The host is not one module: which of its libraries holds a function differs between its releases.
template <class Function>
Function* FindHostFunction(const char* name) {
  for (const HMODULE module : LoadedModules()) {
    if (const FARPROC found = GetProcAddress(module, name)) {
      return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
    }
  }
  return nullptr;
}

}  // namespace

HINSTANCE ModuleInstance() noexcept {
  return g_instance != nullptr ? g_instance : GetModuleHandleW(nullptr);
}

void SetModuleInstance(HINSTANCE instance) noexcept { g_instance = instance; }

HWND OwnerWindow() {
  if (const HWND active = GetActiveWindow()) return active;
  auto* mainWindow = FindHostFunction<CMainWindowFunction>("adsw_acadMainWnd");
  return mainWindow != nullptr ? mainWindow() : nullptr;
}

void ShowHostHelp(const CString& topic, const CString& text) {
  auto* help = FindHostFunction<CHelpFunction>("acedHelp");
  if (help != nullptr && help(L"", topic.GetString(), HELP_PARTIALKEY) == kDone) return;
  ShowMessage(texts::kHelpCaption, text.IsEmpty() ? CString(texts::kHelpMissing) : text);
}

}  // namespace orv3
