// What a save would cut is named before it, and what is wrong with a file is named by its place.
#include "tables/store_check.h"

#include <gtest/gtest.h>

#include "tables/table_file_check.h"
#include "tables/table_file_tools.h"

namespace {

using golden::CTable;
using golden::kBlock;
using golden::kFirst;
using golden::kOneBlock;

class StoreCheck : public testing::Test {
 protected:
  // Saves one row with these values and says whether it came back as it was.
  bool Survives(const CString& name, const CString& height) {
    orv3::SystemFiles().Remove(m_path);
    CDataTable table = SectionTable(L"A");
    AddRow(table, name, height);
    if (!table.WriteTable(m_path, 0, 0)) return false;
    CDataTable read;
    read.SetTableName(L"A");
    CString line;
    try {
      if (!read.GetTable(m_path, line)) return false;
    } catch (const CInvalidArgException&) {  // a separator in a value
      return false;
    }
    return read[0][0].m_strValue == name && read[0][1].m_strValue == height;
  }

  CTempFolder m_folder;
  CFaultyFiles m_quick;
  const CString m_path = m_folder.Path(L"a.KDB");
};

TEST_F(StoreCheck, AFaultIsNamedExactlyWhenARowWouldChange) {
  const CString thirty(L'a', 30);
  const CString chinese(L'型', 30);
  const CString values[] = {L"",   L"I20a", thirty, thirty + L"b", chinese, L"a\nb", L"a,,,b",
                            L"a,", L",a",   L",,,", L"\xFFFD",     L"θ°",   L"a,b",  L"\t "};
  for (const CString& name : values) {
    for (const CString& height : values) {
      CDataTable table = SectionTable(L"A");
      AddRow(table, name, height);
      const auto faults = orv3::SaveFaults(table, L"");
      EXPECT_EQ(faults.empty(), Survives(name, height)) << name << " " << height;
    }
  }
}

TEST_F(StoreCheck, FaultsNameTableRowAndColumn) {
  CDataTable table = SectionTable(L"A");
  AddRow(table, L"ok");
  AddRow(table, CString(L'x', 31));
  const auto faults = orv3::SaveFaults(table, L"");
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].m_nRow, 1);
  EXPECT_EQ(faults[0].m_nColumn, 0);
  EXPECT_EQ(
      faults[0].m_strText,
      L"table \"A\", row 2, column \"No.\": value of 31 characters, but the file has room for 30");
  ASSERT_EQ(table.WriteTable(m_path, 0, 0), 1);
  EXPECT_TRUE(orv3::SaveFaults(table, m_path).empty());
  EXPECT_EQ(orv3::SaveFaults(table, m_path, true).size(), 1U);

  CDataTable tall;
  tall.SetTableName(CString(L'型', 64));
  tall.AddTableCol(L"c", L"c", CDataTypeStruct::KVBT_STRING, 0);
  for (int i = 0; i < 700; ++i) ASSERT_EQ(tall.AddTableItem(L"v", 1), 1);
  EXPECT_EQ(orv3::SaveFaults(tall, L"").size(), 1U);  // 203 bytes in a record of 200
}

TEST_F(StoreCheck, InformationCountsRowsByState) {
  CTable a{
      "A", 2, golden::kHeading, {"0,,,0,,,a,,,1", "1,,,-1,,,b,,,2", "2,,,4,,,c,,,3"}, {kFirst}};
  CTable b{"B", 1, "x,,,X,,,0,,,1", {}, {kFirst + kBlock}};
  PutBytes(m_path, golden::File({a, b}, kOneBlock + 5800));
  orv3::CStoreInfo info;
  ASSERT_TRUE(orv3::ReadStoreInfo(m_path, info));
  EXPECT_EQ(info.m_nKind, 0);
  EXPECT_EQ(info.m_nFreeTables, 97);
  ASSERT_EQ(info.m_arrTable.size(), 2U);
  EXPECT_EQ(info.m_arrTable[0].m_nRows, 3);
  EXPECT_EQ(info.m_arrTable[0].m_nDeleted, 1);
  EXPECT_EQ(info.m_arrTable[0].m_mapState, (std::map<int, int>{{-1, 1}, {0, 1}, {4, 1}}));
  EXPECT_EQ(info.m_arrTable[1].m_nSlot, 58);
  EXPECT_EQ(info.m_arrTable[1].m_arrBlock, std::vector<int>{kFirst + kBlock});
  std::vector<orv3::CStoreFault> faults;
  EXPECT_TRUE(orv3::VerifyStore(m_path, faults));
  EXPECT_TRUE(faults.empty());
  PutBytes(m_path, "no store");
  EXPECT_FALSE(orv3::ReadStoreInfo(m_path, info));
}

TEST_F(StoreCheck, EachFaultOfAFileIsNamedByItsPlace) {
  const CTable whole{"A", 2, golden::kHeading, {"0,,,0,,,a,,,1", "1,,,0,,,b,,,2"}, {kFirst}};
  const auto file = [&whole](auto change) {
    std::string bytes = golden::File({whole}, kOneBlock);
    change(bytes);
    return bytes;
  };
  const auto record = [&file](const char* text) {
    return file(
        [text](std::string& b) { b.replace(kOneBlock - 20000, 200, golden::Field(text, 200)); });
  };
  constexpr std::int64_t kRecord = kOneBlock - 20000;
  const struct {
    const char* name;
    std::string bytes;
    std::int64_t offset;
    std::size_t faults;
  } kCases[] = {
      {"short", "x", 0, 1},
      {"magic", file([](std::string& b) { b[kOneBlock - 20100] = 'x'; }), 0, 1},
      {"end mark", file([](std::string& b) { b.back() = '\0'; }), kOneBlock - 1, 1},
      {"kind", file([](std::string& b) { b[kOneBlock - 20100 + 20] = '9' - 10; }),
       kOneBlock - 20100, 1},
      {"slot", record("A,,,92,,,2,,,20100"), kRecord, 1},
      {"rows", record("A,,,91,,,-2,,,20100"), kRecord, 1},
      {"blocks missing", record("A,,,91,,,96,,,20100"), kRecord, 95},  // and 94 empty slots
      {"block outside", record("A,,,91,,,2,,,20101"), kRecord, 1},
      {"same block", file([](std::string& b) {
         b.replace(kOneBlock - 19800, 200, golden::Field("B,,,91,,,1,,,20100", 200));
       }),
       kFirst, 1},
      {"same name", file([](std::string& b) {
         b.replace(kOneBlock - 19800, 200, golden::Field("A,,,91,,,1,,,20100", 200));
       }),
       kRecord + 200, 2},
      {"hidden record", file([](std::string& b) { b[kOneBlock - 19600] = 'B'; }), kRecord + 400, 1},
      {"heading", file([](std::string& b) { b.replace(kFirst, 200, golden::Field("a,,,b", 200)); }),
       kFirst, 1},
      {"row fields",
       file([](std::string& b) { b.replace(kFirst + 291, 91, golden::Field("1,,,0", 91)); }),
       kFirst + 291, 1},
      {"row text", file([](std::string& b) { b[kFirst + 200 + 8] = static_cast<char>(0xFF - 10); }),
       kFirst + 200, 1},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    PutBytes(m_path, c.bytes);
    std::vector<orv3::CStoreFault> faults;
    ASSERT_TRUE(orv3::VerifyStore(m_path, faults));
    ASSERT_EQ(faults.size(), c.faults);
    EXPECT_EQ(faults[0].m_nOffset, c.offset) << faults[0].m_strWhat;
  }
}

}  // namespace
