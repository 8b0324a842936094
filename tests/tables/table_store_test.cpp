// The section stores: which file holds what.
#include "tables/file/table_store.h"

#include <gtest/gtest.h>

#include "platform/store_file.h"
#include "tables/table_file_tools.h"

namespace {

class TableStore : public testing::Test {
 protected:
  TableStore() { orv3::SetProgramPath(m_folder.Path()); }
  ~TableStore() override { orv3::SetProgramPath(L""); }

  CString User(const wchar_t* name) const { return m_folder.Path(L"KvbUserJmDataBase/") + name; }
  static CDataTable WithRow(const CString& row, const wchar_t* name = L"工字钢") {
    CDataTable table = SectionTable(name);
    AddRow(table, row);
    return table;
  }

  CTempFolder m_folder;
  CFaultyFiles m_quick;
};

TEST_F(TableStore, SystemAndCurrentStoresAreFiles) {
  CDataTable table = WithRow(L"I0");
  EXPECT_EQ(table.WriteSystemJmTable(), 1);
  EXPECT_EQ(table.GetSaveTablePath(), m_folder.Path());  // kept from then on
  CDataTable other = WithRow(L"I1", L"B");
  EXPECT_EQ(other.WriteCurrentJmTable(), 1);
  EXPECT_TRUE(Exists(m_folder.Path(L"KvbSystemJmDataBase.KDB")));
  EXPECT_TRUE(Exists(m_folder.Path(L"KvbCurrentJmDataBase.KDB")));
  EXPECT_EQ(other.m_strFileInfo.Mid(20, 1), L"2");

  CDataTable read = SectionTable();
  EXPECT_EQ(read.GetCurrentJmTable(), 0);
  EXPECT_EQ(read.GetSystemJmTable(), 1);
  EXPECT_EQ(Rows(read), std::vector<std::string>{"I0=200"});
  EXPECT_EQ(read.m_strFileInfo.Mid(20, 1), L"0");
  CStringArray names;
  EXPECT_EQ(read.GetSystemJmTableName(names), 1);
  EXPECT_EQ(read.GetCurrentJmTableName(names), 1);
  EXPECT_EQ(names[1], L"B");

  orv3::SetProgramPath(L"");
  CDataTable elsewhere = SectionTable();
  elsewhere.SetSaveTablePath(m_folder.Path());
  EXPECT_EQ(elsewhere.GetSystemJmTable(), 1);
}

TEST_F(TableStore, UserTablesAreFoundByTheirInformationLine) {
  for (int i = 0; i < 2; ++i) {
    m_quick.SetLocalTime({2024, 5, 7, 9, 3, 12, 250 + i});
    ASSERT_EQ(WithRow(Name(i)).WriteUserJmTable(i == 0 ? L"KVBDB001.KDB" : L"KVBDB002.KDB"), 1);
  }
  CDataTable table = SectionTable();
  EXPECT_EQ(table.GetUserJmTable(L"KvbTable_1.0_2005_3,1,2024-5-7:9:3:12:251"), 1);
  EXPECT_EQ(Rows(table), std::vector<std::string>{"I1=200"});
  EXPECT_EQ(table.GetUserJmTable(L"KvbTable_1.0_2005_3,1,2024-5-7:9:3:12:252"), 0);
  CStringArray names;
  EXPECT_EQ(table.GetUserJmTableName(names), 0);
}

TEST_F(TableStore, TheUserFolderListsWhatMayBeAUserStore) {
  CDataTable table = WithRow(L"I0");
  EXPECT_EQ(table.WriteUserJmTable(nullptr), 0);
  ASSERT_EQ(table.WriteUserJmTable(L"user.KDB"), 1);
  ASSERT_EQ(table.WriteSystemJmTable(), 1);
  PutBytes(User(L"copied.KDB"), Bytes(m_folder.Path(L"KvbSystemJmDataBase.KDB")));
  PutBytes(User(L"busy.KDB"), "busy");
  PutBytes(User(L"other.KDB"), std::string(30000, 'x'));
  for (const wchar_t* name : {L"empty.KDB", L"note.txt", L"plain", L"user._KDB.journal"})
    PutBytes(User(name), "");
  orv3::SetBusyWait(std::chrono::milliseconds{0});
  const auto held = orv3::CStoreFile::OpenToRead(User(L"busy.KDB"));
  CStringArray files;
  EXPECT_EQ(table.GetUserTableFileName(files), 3);
  orv3::SetBusyWait(std::chrono::seconds{1});
  EXPECT_EQ(std::vector(files.begin(), files.end()),
            (std::vector<CString>{L"busy.KDB", L"empty.KDB", L"user.KDB"}));

  CStringArray found;  // more names are added to those that are there
  const auto list = [&found](const CString& folder, const wchar_t* extension) {
    return CDataTable::GetDirectoryFileName(folder.GetString(), found, extension);
  };
  EXPECT_EQ(list(User(L""), L"kdb"), 5);
  EXPECT_EQ(list(User(L""), L"TXT"), 6);
  EXPECT_EQ(list(User(L"none"), L"*"), 6);
  EXPECT_EQ(list(m_folder.Path().Left(m_folder.Path().GetLength() - 1), L"KDB"), 7);
  EXPECT_EQ(found[5], L"note.txt");
}

}  // namespace
