#include "platform/places.h"

#include <windows.h>

#include <cstring>
#include <cwchar>
#include <string>

namespace orv3 {

CString ProgramFile() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return CString(path.data(), static_cast<int>(length));
    path.resize(path.size() * 2);
  }
}

CString Environment(const char* name) {
  const wchar_t* value = _wgetenv(std::wstring(name, name + std::strlen(name)).c_str());
  return value ? CString(value) : CString();
}

CString UserDataFolder() {
  const wchar_t* data = _wgetenv(L"APPDATA");
  return data && *data ? CString(data) + L"\\Orv3Cal" : CString();
}

CLanguage UserLanguage() {
  return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_CHINESE ? CLanguage::Chinese
                                                                   : CLanguage::English;
}

}  // namespace orv3
