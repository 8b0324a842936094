// What a save would cut is named before it, and what is wrong with a file is named by its place.
#include "tables/file/store_check.h"

#include <gtest/gtest.h>

#include "tables/file/check.h"
#include "tables/table_file_tools.h"

namespace {

using golden::CTable;
using golden::kBlock;
using golden::kFirst;
using golden::kOneBlock;

class StoreCheck : public TableFileTest {
 protected:
  // Saves one row with these values and says whether it came back as it was.
  bool Survives(const CString& name, const CString& height) {
    orv3::SystemFiles().Remove(m_path);
    CDataTable table = SectionTable(L"A");
    AddRow(table, name, height);
    if (!Save(table)) return false;
    CDataTable read = SectionTable(L"A");
    CString line;
    try {
      if (!read.GetTable(m_path, line)) return false;
    } catch (const CInvalidArgException&) {  // a separator in a value
      return false;
    }
    return read[0][0].m_strValue == name && read[0][1].m_strValue == height;
  }
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
  ASSERT_EQ(Save(table), 1);
  EXPECT_TRUE(orv3::SaveFaults(table, m_path).empty());
  EXPECT_EQ(orv3::SaveFaults(table, m_path, true).size(), 1U);

  const CDataTable tall = OneColumn(CString(L'型', 64), 700);
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
  constexpr std::int64_t kLine = kOneBlock - 20100;
  constexpr std::int64_t kRecord = kOneBlock - 20000;
  // The file of one table with these bytes at a place.
  const auto with = [](std::int64_t at, const std::string& bytes) {
    std::string file = golden::File({golden::Section("A", 2)}, kOneBlock);
    return file.replace(static_cast<std::size_t>(at), bytes.size(), bytes);
  };
  const auto field = [](const char* text) { return golden::Field(text, 200); };
  const struct {
    const char* name;
    std::string bytes;
    std::int64_t offset;
    std::size_t faults = 1;
  } kCases[] = {
      {"short", "x", 0},
      {"magic", with(kLine, "x"), 0},
      {"end mark", with(kOneBlock - 1, std::string(1, '\0')), kOneBlock - 1},
      {"kind", with(kLine + 20, golden::Fake("9")), kLine},
      {"slot", with(kRecord, field("A,,,92,,,2,,,20100")), kRecord},
      {"rows", with(kRecord, field("A,,,91,,,-2,,,20100")), kRecord},
      {"blocks missing", with(kRecord, field("A,,,91,,,96,,,20100")), kRecord,
       95},  // and 94 empty slots
      {"block outside", with(kRecord, field("A,,,91,,,2,,,20101")), kRecord},
      {"same block", with(kRecord + 200, field("B,,,91,,,1,,,20100")), kFirst},
      {"same name", with(kRecord + 200, field("A,,,91,,,1,,,20100")), kRecord + 200, 2},
      {"hidden record", with(kRecord + 400, "B"), kRecord + 400},
      {"heading", with(kFirst, field("a,,,b")), kFirst},
      {"heading fields", with(kFirst, field("a,,,b,,,0,,,0,,,c,,,d,,,0")), kFirst},
      {"heading key", with(kFirst, field("a,,,b,,,2,,,0,,,c,,,d,,,0,,,4")), kFirst},
      {"heading type", with(kFirst, field("a,,,b,,,1,,,x,,,c,,,d,,,0,,,7")), kFirst, 2},
      {"heading text", with(kFirst, golden::Fake("\xFF")), kFirst},
      {"record text", with(kRecord, field("A\xFF,,,91,,,2,,,20100")), kRecord},
      {"row fields", with(kFirst + 291, golden::Field("1,,,0", 91)), kFirst + 291},
      {"row text", with(kFirst + 208, golden::Fake("\xFF")), kFirst + 200},
      {"no number", with(kFirst + 200, golden::Field("0,,,0,,,a,,,1.5x", 91)), kFirst + 200},
      {"index", with(kFirst + 200, golden::Field("-3,,,0,,,a,,,1", 91)), kFirst + 200},
      {"unsaved state", with(kFirst + 200, golden::Field("0,,,2,,,a,,,1", 91)), kFirst + 200},
      {"long value",
       with(kFirst + 200, golden::Field("0,,,0,,," + std::string(31, 'a') + ",,,1", 91)),
       kFirst + 200},
      {"carriage return", with(kFirst + 200, golden::Field("0,,,0,,,a\r,,,1", 91)), kFirst + 200},
      {"cut", with(kFirst + 200, golden::Field("0,,,0,,," + std::string(83, 'a'), 91)),
       kFirst + 200, 3},
      {"same key",
       with(kFirst + 200, golden::Field("0,,,0,,,a,,,1", 91) + golden::Field("1,,,0,,,a,,,2", 91)),
       kFirst + 291},
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

TEST_F(StoreCheck, AFullRowIsWholeAndCanBeDeleted) {
  CDataTable table = SectionTable(L"A");
  table.m_Title[1].m_nType = CDataTypeStruct::KVBT_STRING;
  AddRow(table, CString(L'型', 30), CString(L'高', 10));  // 8 + 60 + 3 + 20 = 91 bytes
  std::vector<orv3::CStoreFault> faults;
  std::vector<orv3::CStoreFault> notes;
  ASSERT_EQ(Save(table), 1);
  EXPECT_TRUE(orv3::VerifyStore(m_path, faults, &notes));
  EXPECT_TRUE(faults.empty());
  EXPECT_EQ(notes.size(), 1U);
  table.DeleteTableItem(0);
  EXPECT_TRUE(orv3::SaveFaults(table, m_path).empty());
  ASSERT_EQ(Save(table), 1);
  EXPECT_TRUE(orv3::VerifyStore(m_path, faults, &notes));
  EXPECT_TRUE(faults.empty() && notes.empty());
}

TEST_F(StoreCheck, WhatAForcedSaveOfFewerRowsLeavesIsNoted) {
  CDataTable table = SectionTable(L"A");
  FillUp(table, 97);
  ASSERT_EQ(Save(table), 1);
  std::vector<orv3::CStoreFault> faults;
  std::vector<orv3::CStoreFault> notes;
  EXPECT_TRUE(orv3::VerifyStore(m_path, faults, &notes));
  EXPECT_TRUE(faults.empty() && notes.empty());
  table.m_arrItem.SetSize(2);
  ASSERT_EQ(Save(table, 1), 1);
  EXPECT_TRUE(orv3::VerifyStore(m_path, faults, &notes));
  EXPECT_TRUE(faults.empty());
  ASSERT_EQ(notes.size(), 2U);
  EXPECT_EQ(notes[0].m_strWhat, L"2 rows need 1 blocks, but the record names 2");
  EXPECT_EQ(notes[1].m_strWhat, L"behind the record's count of 2 lie more rows: 95");
  EXPECT_EQ(notes[1].m_nOffset, static_cast<std::int64_t>(kFirst + 200 + 2 * 91));
}

}  // namespace
