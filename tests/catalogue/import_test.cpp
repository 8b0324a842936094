// Imports into a store: what becomes of each row, and that all of it or nothing comes in.
#include "catalogue/import/table_import.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "sections/load_data_table.h"
#include "tables/table_file_tools.h"

namespace {

using orv3::CImportReport;

constexpr const wchar_t* kTube = L"冷弯薄壁方钢管";
constexpr std::size_t kTubeRecord = 104;

// A record of LWRECT.kvb: 20 wide characters, two bytes whole number, doubles from byte 48 on.
std::string Record(const std::string& no, int h, double t = 2, double area = 10) {
  std::string bytes(kTubeRecord, '\0');
  for (std::size_t i = 0; i < no.size(); ++i) bytes[2 * i] = no[i];
  const auto height = static_cast<std::int16_t>(h);
  std::memcpy(bytes.data() + 40, &height, sizeof height);
  const double values[] = {t, area, 1, 2, 3, 4, 5};
  std::memcpy(bytes.data() + 48, values, sizeof values);
  return bytes;
}

std::string DataFile(const std::string& records) { return std::string("\x68\0", 2) + records; }

// "table +added ~replaced =unchanged, number: why; ..." for each table.
std::string Told(const CImportReport& report) {
  if (!report.m_bDone) return "refused";
  std::string told;
  for (const orv3::CTableImport& table : report.m_arrTable) {
    told += orv3::ToUtf8(table.m_strTable) + " +" + std::to_string(table.m_nAdded) + " ~" +
            std::to_string(table.m_nReplaced) + " =" + std::to_string(table.m_nUnchanged);
    for (const orv3::CRefusedRow& row : table.m_arrRefused)
      told += " !" + orv3::ToUtf8(row.m_strNo);
    told += table.m_strWhy.IsEmpty() ? "; " : " refused; ";
  }
  return told;
}

using CRowTexts = std::vector<std::pair<CString, CString>>;  // number and height

CRowTexts Numbered(int count) {
  CRowTexts rows;
  for (int i = 0; i < count; ++i) rows.emplace_back(Name(i), L"200");
  return rows;
}

// A section table of a file of its own, or one more of the file; gives it back as it was saved.
CDataTable Save(const CString& path, const wchar_t* name, const CRowTexts& rows) {
  CDataTable table = SectionTable(name);
  for (const auto& [no, height] : rows) AddRow(table, no, height);
  EXPECT_EQ(table.WriteTable(path, 0, 0), 1);
  return table;
}

class Import : public testing::Test {
 protected:
  CString File(const wchar_t* name, const std::string& bytes) const {
    PutBytes(m_folder.Path(name), bytes);
    return m_folder.Path(name);
  }
  CImportReport Run(const CString& file, bool overwrite = false) const {
    orv3::CImportOptions options;
    options.m_bOverwrite = overwrite;
    return orv3::ImportFile(file, m_store, options);
  }
  // The rows as "number(state) h=... A=...".
  std::string Tubes() const {
    std::string rows;
    const CDataTable table = Loaded(m_store, kTube);
    for (const CDataItem& row : table.m_arrItem) {
      rows += orv3::ToUtf8(row[0].m_strValue) + "(" + std::to_string(row.m_nModifyType) +
              ") h=" + orv3::ToUtf8(row[1].m_strValue) + " A=" + orv3::ToUtf8(row[3].m_strValue) +
              " ";
    }
    return rows;
  }

  CTempFolder m_folder;
  CFaultyFiles m_quick;
  const CString m_store = m_folder.Path(L"store.KDB");
};

TEST_F(Import, RowsOfDataFilesAreTheCataloguesAndThoseOfTwinsTheUsers) {
  const CString plain = File(L"LWRECT.kvb", DataFile(Record("50X2", 50) + Record("60X2", 60)));
  const CString twin =
      File(L"OLWRECT.KVB", DataFile(Record("60X2", 60, 2, 99) + Record("my", 70, 2, 7)));
  EXPECT_EQ(Told(Run(plain)), "冷弯薄壁方钢管 +2 ~0 =0; ");
  EXPECT_EQ(Tubes(), "50X2(4) h=50 A=10 60X2(4) h=60 A=10 ");

  EXPECT_EQ(Told(Run(twin)), "refused");  // the style's file is named OLWRECT.kvb
  const CString user =
      File(L"OLWRECT.kvb", DataFile(Record("60X2", 60, 2, 99) + Record("my", 70, 2, 7)));
  EXPECT_EQ(Told(Run(user)), "冷弯薄壁方钢管 +1 ~0 =0 !60X2; ");
  EXPECT_EQ(Told(Run(user, true)), "冷弯薄壁方钢管 +0 ~0 =1 !60X2; ");  // the catalogue's stays
  EXPECT_EQ(Tubes(), "50X2(4) h=50 A=10 60X2(4) h=60 A=10 my(0) h=70 A=7 ");

  const CString later =
      File(L"LWRECT.kvb", DataFile(Record("60X2", 60, 2, 11) + Record("my", 70, 2, 8)));
  EXPECT_EQ(Told(Run(later)), "冷弯薄壁方钢管 +0 ~0 =0 !60X2 !my; ");
  EXPECT_EQ(Told(Run(later, true)), "冷弯薄壁方钢管 +0 ~2 =0; ");
  EXPECT_EQ(Tubes(), "50X2(4) h=50 A=10 60X2(4) h=60 A=11 my(4) h=70 A=8 ");

  const CString twice = File(L"LWRECT.kvb", DataFile(Record("a", 40, 2, 1) + Record("b", 50, 2, 2) +
                                                     Record("a", 60, 2, 3)));
  EXPECT_EQ(Told(Run(twice)), "冷弯薄壁方钢管 +2 ~0 =0 !a; ");
}

TEST_F(Import, TheSameFileTwiceChangesNothing) {
  const CString other = m_folder.Path(L"other.KDB");
  Save(other, L"工字钢", Numbered(120));
  CDataTable loose;  // without a key
  loose.SetTableName(L"无键");
  loose.AddTableCol(L"值", L"v", CDataTypeStruct::KVBT_DOUBLE, 0);
  for (const wchar_t* value : {L"1", L"2"}) ASSERT_EQ(loose.AddTableItem(value, 1), 1);
  ASSERT_EQ(loose.WriteTable(other, 1, 0), 1);
  Save(other, L"空", {});

  const CString files[] = {File(L"LWRECT.kvb", DataFile(Record("50X2", 50))),
                           File(L"OLWRECT.kvb", DataFile(Record("my", 50))), other};
  for (const CString& file : files) ASSERT_TRUE(Run(file).m_bDone);
  const std::string bytes = Bytes(m_store);
  EXPECT_EQ(Told(Run(other)), "工字钢 +0 ~0 =120; 无键 +0 ~0 =2; 空 +0 ~0 =0; ");
  for (const bool overwrite : {false, true}) {
    for (const CString& file : files) {
      EXPECT_TRUE(Run(file, overwrite).m_bDone);
      EXPECT_TRUE(Bytes(m_store) == bytes) << file;
    }
  }
}

TEST_F(Import, TablesOfATableFileComeInEachByItself) {
  const CString other = m_folder.Path(L"other.kdb");
  CDataTable table =
      Save(other, L"工字钢",
           {{L"new", L"200"}, {L"changed", L"2"}, {L"deleted", L"200"}, {L"same", L"5"}});
  table.DeleteTableItem(2);
  ASSERT_EQ(table.WriteTable(other, 0, 0), 1);
  CDataTable wider = SectionTable(L"B");
  wider.AddTableCol(L"宽", L"b(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
  ASSERT_EQ(wider.AddTableItem(L"w,1,2", 1), 1);
  ASSERT_EQ(wider.WriteTable(other, 0, 0), 1);

  Save(m_store, L"工字钢", {{L"changed", L"1"}, {L"same", L"5"}});
  Save(m_store, L"B", {{L"n", L"200"}});

  const CImportReport report = Run(other);
  EXPECT_EQ(Told(report), "工字钢 +1 ~0 =1 !changed; B +0 ~0 =0 refused; ");
  EXPECT_NE(report.m_arrTable[1].m_strWhy.Find(L"3 columns, in the store 2"), -1);
  EXPECT_EQ(Told(Run(other, true)), "工字钢 +0 ~1 =2; B +0 ~0 =0 refused; ");
  EXPECT_EQ(Rows(Loaded(m_store)), (std::vector<std::string>{"changed=2", "same=5", "new=200"}));
  EXPECT_EQ(Rows(Loaded(m_store, L"B")), std::vector<std::string>{"n=200"});

  orv3::CImportOptions one;
  one.m_strTable = L"无";
  EXPECT_FALSE(orv3::ImportFile(other, m_store, one).m_bDone);
  one.m_strTable = L"B";
  EXPECT_EQ(Told(orv3::ImportFile(other, m_store, one)), "B +0 ~0 =0 refused; ");
}

TEST_F(Import, ADamagedFileIsRefusedAndTheStoreUnchanged) {
  const std::string good = Record("50X2", 50);
  const double nan = std::nan("");
  Save(m_folder.Path(L"whole.KDB"), L"工字钢", Numbered(1));
  const std::string kdb = Bytes(m_folder.Path(L"whole.KDB"));
  const struct {
    const wchar_t* name;
    std::string bytes;
    const wchar_t* says;
  } cases[] = {
      {L"LWRECT.kvb", DataFile(good).substr(0, 90), L"ends 88 bytes into a record of 104"},
      {L"LWRECT.kvb", DataFile(good + good.substr(0, 5)), L"ends 5 bytes into"},
      {L"LWRECT.kvb", std::string("\x78\0", 2) + good, L"records are of 120 bytes"},
      {L"LWRECT.kvb", std::string("\xFF\xFF", 2) + good, L"records are of -1 bytes"},
      {L"LWRECT.kvb", DataFile(""), L"holds no record"},
      {L"LWRECT.kvb", "", L"records are of 0 bytes"},
      {L"LWRECT.kvb", DataFile(good + Record("", 60)), L"record 2 has no model number"},
      {L"LWRECT.kvb", DataFile(Record("5,6", 60)), L"has a comma"},
      {L"LWRECT.kvb", DataFile(Record("50", 60, 2, nan)), L"which is no number"},
      {L"RECT.kvb", DataFile(good), L"no rolled-section style has a data file of this name"},
      {L"cut.KDB", kdb.substr(0, kdb.size() - 1000), L"damaged: at 0: no information line"},
      {L"text.KDB", std::string(50000, 'x'), L"damaged: at 0: no information line"},
      {L"empty.KDB", "", L"damaged: at 0: no information line"},
      {L"rows.csv", "No.\n", L"right would be a table file"},
  };
  for (const bool there : {false, true}) {
    if (there) Save(m_store, L"工字钢", Numbered(1));
    const std::string before = there ? Bytes(m_store) : "";
    for (const auto& c : cases) {
      const CImportReport report = Run(File(c.name, c.bytes), true);
      EXPECT_FALSE(report.m_bDone);
      EXPECT_TRUE(report.m_arrTable.empty());
      EXPECT_NE(report.m_strWhy.Find(c.says), -1) << report.m_strWhy << " for " << CString(c.says);
      ASSERT_EQ(Exists(m_store), there);
      ASSERT_TRUE(!there || Bytes(m_store) == before) << CString(c.says);
    }
    EXPECT_FALSE(Run(m_folder.Path(L"none.KDB")).m_bDone);
  }
  // Into a file that is no store.
  PutBytes(m_store, "a text of the user's");
  const CImportReport report = Run(File(L"LWRECT.kvb", DataFile(good)));
  EXPECT_FALSE(report.m_bDone);
  EXPECT_EQ(Bytes(m_store), "a text of the user's");
}

TEST_F(Import, AllTablesComeInOrNone) {
  const CString other = m_folder.Path(L"other.KDB");
  for (const wchar_t* name : {L"A", L"B", L"C"}) Save(other, name, Numbered(10));
  Save(m_store, L"B", {{L"mine", L"200"}});
  const std::string before = Bytes(m_store);
  for (const CFault fault : {CFault::Fail, CFault::Short}) {
    bool met = true;
    for (int at = 1; met; ++at) {
      bool done = false;
      {
        CFaultyFiles faulty(fault, at, false);
        done = Run(other).m_bDone;
        met = faulty.Met();
      }
      CStringArray names;
      ASSERT_EQ(CDataTable::GetTableNameFromFile(m_store, names), done ? 3 : 1) << at;
      ASSERT_EQ(Rows(Loaded(m_store, L"B")).size(), done ? 11U : 1U) << at;
      orv3::SystemFiles().Remove(m_store);
      PutBytes(m_store, before);
    }
  }
}

TEST_F(Import, TheFacadeImportsIntoTheSystemStore) {
  CLoadDataTable::SetOrvoPrgPath(m_folder.Path());
  const CString store = CLoadDataTable::GetOrvoPrgPath() + L"KvbSystemJmDataBase.KDB";
  const auto area = [] {
    return CLoadDataTable::GetDataItemArea(CLoadDataTable::GetSysTemJMItem(kTube, L"50X2"));
  };
  EXPECT_EQ(
      CLoadDataTable::ImportSysDataTable(File(L"LWRECT.kvb", DataFile(Record("50X2", 50))), 0), 1);
  EXPECT_EQ(area(), 1000);
  const CString changed = File(L"LWRECT.kvb", DataFile(Record("50X2", 50, 2, 20)));
  EXPECT_EQ(CLoadDataTable::ImportDataTable(changed, store, 0), 1);
  EXPECT_EQ(area(), 1000);
  EXPECT_EQ(CLoadDataTable::ImportDataTable(changed, store, 1), 1);
  EXPECT_EQ(area(), 2000);
  EXPECT_EQ(CLoadDataTable::ImportDataTable(m_folder.Path(L"none.kvb"), store, 1), 0);
  CLoadDataTable::SetOrvoPrgPath(L"");
}

}  // namespace
