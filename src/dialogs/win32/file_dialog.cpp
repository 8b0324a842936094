#include "dialogs/win32/file_dialog.h"

#include <commdlg.h>

#include <algorithm>
#include <cwchar>
#include <string>

namespace orv3 {
namespace {

constexpr std::size_t kPathsBuffer = 64 * 1024;  // room for some thousand names

// "text\0pattern\0...\0\0"
std::wstring FilterText(const std::vector<CFileFilter>& filters) {
  std::wstring text;
  for (const CFileFilter& filter : filters) {
    text.append(filter.m_strText.View()).push_back(L'\0');
    text.append(filter.m_strPattern.View()).push_back(L'\0');
  }
  text.push_back(L'\0');
  return text;
}

// "kdb" of "*.KDB", as the system appends it.
std::wstring Extension(const std::vector<CFileFilter>& filters) {
  if (filters.empty()) return {};
  const CString& pattern = filters.front().m_strPattern;
  return std::wstring(pattern.Mid(pattern.ReverseFind(L'.') + 1).View());
}

OPENFILENAMEW Request(HWND owner, const CString& title, const std::wstring& filter,
                      std::vector<wchar_t>& buffer) {
  OPENFILENAMEW request{};
  request.lStructSize = sizeof(request);
  request.hwndOwner = owner;
  request.lpstrFilter = filter.c_str();
  request.lpstrFile = buffer.data();
  request.nMaxFile = static_cast<DWORD>(buffer.size());
  request.lpstrTitle = title.GetString();
  request.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING;
  return request;
}

// One path; or a folder, then the names in it, each ended by a zero.
std::vector<CString> PathsIn(const wchar_t* text) {
  const CString first(text);
  std::vector<CString> paths;
  for (text += first.GetLength() + 1; *text != 0; text += std::wcslen(text) + 1) {
    const bool ended = first[first.GetLength() - 1] == L'\\';  // the root of a drive
    paths.push_back(first + (ended ? L"" : L"\\") + CString(text));
  }
  if (paths.empty()) paths.push_back(first);
  return paths;
}

}  // namespace

bool AskOpenFiles(HWND owner, const CString& title, const std::vector<CFileFilter>& filters,
                  std::vector<CString>& paths) {
  std::vector<wchar_t> buffer(kPathsBuffer);
  const std::wstring filter = FilterText(filters);
  OPENFILENAMEW request = Request(owner, title, filter, buffer);
  request.Flags |= OFN_ALLOWMULTISELECT | OFN_FILEMUSTEXIST;
  if (!GetOpenFileNameW(&request)) return false;
  paths = PathsIn(buffer.data());
  return true;
}

bool AskSaveFile(HWND owner, const CString& title, const std::vector<CFileFilter>& filters,
                 CString& path) {
  std::vector<wchar_t> buffer(kPathsBuffer);
  std::copy_n(path.GetString(),
              std::min(static_cast<std::size_t>(path.GetLength()), buffer.size() - 1),
              buffer.begin());
  const std::wstring filter = FilterText(filters);
  const std::wstring extension = Extension(filters);
  OPENFILENAMEW request = Request(owner, title, filter, buffer);
  request.Flags |= OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
  request.lpstrDefExt = extension.c_str();
  if (!GetSaveFileNameW(&request)) return false;
  path = CString(buffer.data());
  return true;
}

}  // namespace orv3
