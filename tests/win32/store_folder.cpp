#include "win32/store_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "framework/utf8.h"
#include "platform/temp_folder.h"

namespace {

constexpr wchar_t kStore[] = L"KvbSystemJmDataBase.KDB";

std::filesystem::path Of(const CString& path) { return std::wstring(path.View()); }

}  // namespace

CStoreFolder::CStoreFolder(CStart start) {
  static int number = 0;
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const auto folder = std::filesystem::temp_directory_path() /
                      (std::string("orv3cal-") + test->name() + std::to_string(++number));
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  m_strPath = CString(folder.wstring()) + L"\\";
  if (start == CStart::Catalogue) {
    // Another test may have the catalogue open.
    PutBytes(m_strPath + kStore, Bytes(orv3::FromUtf8(ORV3CAL_CATALOGUE "/") + CString(kStore)));
  }
}

CStoreFolder::~CStoreFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(Of(m_strPath), ignored);
}

CDataTable CStoreFolder::Table(const wchar_t* name) const {
  CDataTable table;
  table.SetTableName(name);
  table.SetSaveTablePath(m_strPath);
  table.GetSystemJmTable();
  return table;
}

CDataItem CStoreFolder::Row(const wchar_t* tableName, const wchar_t* no) const {
  const CDataTable table = Table(tableName);
  for (const CDataItem& row : table.m_arrItem) {
    if (row.m_nModifyType >= 0 && std::as_const(row)[0].m_strValue == no) return row;
  }
  return {};
}

void CStoreFolder::Save(CDataTable& table) const {
  ASSERT_EQ(table.WriteTable(m_strPath + kStore, 0, 1), 1);
}
