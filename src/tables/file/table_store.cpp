#include "tables/file/table_store.h"

#include <mutex>
#include <vector>

#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/store_file.h"
#include "platform/threads.h"
#include "tables/data_table.h"
#include "tables/file/directory.h"

namespace orv3 {
namespace {

CLock& PathLock() {
  static CLock lock;
  return lock;
}

CString& StoredPath() {
  static CString path;
  return path;
}

wchar_t Folded(wchar_t ch) { return ch >= L'A' && ch <= L'Z' ? static_cast<wchar_t>(ch + 32) : ch; }

// Whether a name fits a pattern in which "*" stands for any text and "?" for one character; letters
// of both cases are equal.
bool Matches(std::wstring_view name, std::wstring_view pattern) {
  std::size_t at = 0;
  std::size_t p = 0;
  std::size_t star = std::wstring_view::npos;
  std::size_t afterStar = 0;
  while (at < name.size()) {
    if (p < pattern.size() && pattern[p] == L'*') {
      star = p++;
      afterStar = at;
    } else if (p < pattern.size() &&
               (pattern[p] == L'?' || Folded(pattern[p]) == Folded(name[at]))) {
      ++p;
      ++at;
    } else if (star != std::wstring_view::npos) {
      p = star + 1;
      at = ++afterStar;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == L'*') ++p;
  return p == pattern.size();
}

// Whether a file of the user folder is to be offered: a user store, or one that cannot be judged.
bool IsUserStore(const CString& path) {
  const auto file = CStoreFile::OpenToRead(path);
  if (!file || file->Size() <= 1) return true;
  CTableDirectory directory;
  if (!directory.Read(*file)) return false;
  CStringArray fields;
  CDataTable::TransStrToArray(directory.InfoLine(), L",", fields);
  return fields.GetSize() < 2 || ToInt(fields[1]) == kUserKind;
}

}  // namespace

CString ProgramPath() {
  const std::lock_guard lock(PathLock());
  return StoredPath();
}

void SetProgramPath(const CString& path) {
  const std::lock_guard lock(PathLock());
  StoredPath() = path;
}

}  // namespace orv3

CString CDataTable::StorePath(const wchar_t* name) {
  if (m_strSavePath.IsEmpty()) m_strSavePath = orv3::ProgramPath();
  return m_strSavePath + name;
}

int CDataTable::GetSystemJmTable() {
  CString line;
  return GetTable(StorePath(orv3::kSystemStore), line);
}

int CDataTable::GetCurrentJmTable() {
  CString line;
  return GetTable(StorePath(orv3::kCurrentStore), line);
}

int CDataTable::WriteSystemJmTable() {
  return WriteTable(StorePath(orv3::kSystemStore), orv3::kSystemKind, 0);
}

int CDataTable::WriteCurrentJmTable() {
  return WriteTable(StorePath(orv3::kCurrentStore), orv3::kCurrentKind, 0);
}

int CDataTable::WriteUserJmTable(const wchar_t* fileName) {
  const CString folder = StorePath(orv3::kUserStoreFolder);
  const CString name(fileName);
  if (name.IsEmpty()) {
    orv3::ClearStoreError();
    return orv3::SetStoreError(orv3::CStoreTrouble::Refused, folder,
                               orv3::Say(L"{1}: 用户表应给出文件名",
                                         L"{1}: a user table needs the name of a file", {folder}));
  }
  orv3::Files().MakeFolder(folder);
  return WriteTable(folder + name, orv3::kUserKind, 0);
}

int CDataTable::GetSystemJmTableName(CStringArray& names) {
  return GetTableNameFromFile(StorePath(orv3::kSystemStore), names);
}

int CDataTable::GetCurrentJmTableName(CStringArray& names) {
  return GetTableNameFromFile(StorePath(orv3::kCurrentStore), names);
}

int CDataTable::GetUserJmTableName(CStringArray& names) {
  return GetTableNameFromFile(StorePath(orv3::kUserStoreFolder), names);
}

int CDataTable::GetDirectoryFileName(const wchar_t* dir, CStringArray& files, const CString& ext) {
  std::vector<CString> names;
  if (orv3::Files().List(dir, names)) {
    for (const CString& name : names) {
      if (orv3::Matches(name, L"*." + ext)) files.Add(name);
    }
  }
  return files.GetSize();
}

int CDataTable::GetUserTableFileName(CStringArray& files) {
  const CString folder = StorePath(orv3::kUserStoreFolder);
  GetDirectoryFileName(folder.GetString(), files, L"*");
  for (int i = files.GetSize() - 1; i >= 0; --i) {
    if (files[i].Find(L".KDB") < 0 || !orv3::IsUserStore(folder + files[i])) files.RemoveAt(i);
  }
  return files.GetSize();
}

int CDataTable::GetUserJmTable(const CString& key) {
  CStringArray files;
  GetUserTableFileName(files);
  const CString folder = StorePath(orv3::kUserStoreFolder);
  for (const CString& name : files) {
    CString line;
    if (ReadTableFileInfo(folder + name, line) && line == key) return GetTable(folder + name, line);
  }
  return 0;
}
