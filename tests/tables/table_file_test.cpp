// Table files to the byte.
#include "tables/file/info.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/code_page.h"
#include "platform/store_file.h"
#include "tables/file/check.h"
#include "tables/table_file_tools.h"

namespace {

using golden::CTable;
using golden::kBlock;
using golden::kFirst;
using golden::kOneBlock;

class TableFile : public TableFileTest {};

CTable Golden(int rows) { return golden::Section("\xB9\xA4\xD7\xD6\xB8\xD6", rows); }  // 工字钢

TEST_F(TableFile, ASavedTableIsTheGoldenFileAndGrowsByBlocks) {
  CDataTable table = SectionTable();
  CTable golden;
  for (const int rows : {2, 95, 96, 197}) {
    SCOPED_TRACE(rows);
    FillUp(table, rows);
    ASSERT_EQ(Save(table), 1);
    golden = Golden(rows);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(rows + 4) / 100; ++i)
      golden.blocks.push_back(kFirst + i * kBlock);
    const std::size_t more = golden.blocks.size() - 1;
    EXPECT_EQ(Bytes(m_path), golden::File({golden}, kOneBlock + more * kBlock));
    EXPECT_EQ(Rows(Loaded(m_path)), Rows(table));
    EXPECT_EQ(table[1].m_nModifyType, 0);
    EXPECT_EQ(table.m_strFileInfo, L"KvbTable_1.0_2005_3,0,2024-5-7:9:3:12:250");
    EXPECT_EQ(table[1].m_strFileInfo, table.m_strFileInfo);
  }
}

TEST_F(TableFile, AGoldenFileIsRead) {
  CTable golden = Golden(2);
  golden.rows.push_back("7,,,4,,,I20a,,,0.5");
  golden.rows.push_back("3,,,-1,,,\xD0\xCD,,,");
  golden.name = "B";
  golden.blocks = {kFirst + kBlock};
  PutBytes(m_path, golden::File({Golden(1), golden}, kOneBlock + kBlock));

  const CDataTable table = Loaded(m_path, L"B");
  EXPECT_EQ(Rows(table), (std::vector<std::string>{"I0=200", "I1=200", "I20a=0.5", "-型="}));
  EXPECT_EQ(table[2].m_nIndex, 7);
  EXPECT_EQ(table[2].m_nModifyType, 4);
  EXPECT_EQ(table[2].m_strTableName, L"B");
  EXPECT_EQ(table.m_Title.IsEqualOf(SectionTable().m_Title), 1);
  EXPECT_EQ(table.m_strFileInfo, L"KvbTable_1.0_2005_3,0,2024-5-7:9:3:12:250");
  CStringArray names;
  EXPECT_EQ(CDataTable::GetTableNameFromFile(m_path, names), 2);
  EXPECT_EQ(names[0], L"工字钢");
  EXPECT_EQ(names[1], L"B");
}

TEST_F(TableFile, ASecondTableIsAppendedAndTheFirstGrowsBehindIt) {
  CDataTable table = SectionTable();
  FillUp(table, 3);
  ASSERT_EQ(Save(table), 1);
  CDataTable second;
  second.SetTableName(L"B");
  second.AddTableCol(L"x", L"X", CDataTypeStruct::KVBT_INT, 0);
  ASSERT_EQ(second.AddTableItem(L"5", 0), 1);
  m_files.SetLocalTime({2030, 1, 1, 0, 0, 0, 0});  // the line is that of the first save
  ASSERT_EQ(Save(second), 1);
  const CTable b{"B", 1, "x,,,X,,,0,,,1", {"0,,,4,,,5"}, {kFirst + kBlock}};
  EXPECT_EQ(Bytes(m_path), golden::File({Golden(3), b}, kOneBlock + 100 * 58));
  EXPECT_EQ(second[0].m_nModifyType, 4);

  FillUp(table, 96);
  ASSERT_EQ(Save(table), 1);
  CTable grown = Golden(96);
  grown.blocks.push_back(kFirst + kBlock + 5800);
  EXPECT_EQ(Bytes(m_path), golden::File({grown, b}, kOneBlock + 5800 + kBlock));
}

TEST_F(TableFile, StatesOnFileAreThoseAfterTheSave) {
  const struct {
    int before;
    int inMemory;
    const char* onFile;  // of a save that writes the row
    bool writtenAlways;
  } kCases[] = {{1, 0, "0", true},  {2, 0, "0", true},    {3, 4, "4", true},    {0, 0, "0", false},
                {4, 4, "4", false}, {-1, -2, "-1", true}, {-2, -2, "-1", false}};
  for (const auto& c : kCases) {
    for (const int all : {0, 1}) {
      SCOPED_TRACE(std::to_string(c.before) + (all ? " forced" : ""));
      orv3::SystemFiles().Remove(m_path);
      CDataTable table = SectionTable();
      AddRow(table, L"I0");
      ASSERT_EQ(Save(table), 1);
      table[0][1].m_strValue = L"300";
      table[0].m_nModifyType = c.before;
      ASSERT_EQ(Save(table, all), 1);
      EXPECT_EQ(table[0].m_nModifyType, c.inMemory);
      CTable golden = Golden(1);
      if (all || c.writtenAlways) golden.rows[0] = std::string("0,,,") + c.onFile + ",,,I0,,,300";
      EXPECT_EQ(Bytes(m_path), golden::File({golden}, kOneBlock));
    }
  }
}

TEST_F(TableFile, ADeletedRowStaysOnFileUntilItIsReused) {
  CDataTable table = SectionTable();
  FillUp(table, 3);
  ASSERT_EQ(Save(table), 1);
  ASSERT_EQ(table.DeleteTableItem(1), 1);
  ASSERT_EQ(Save(table), 1);
  CTable golden = Golden(3);
  golden.rows[1] = "1,,,-1,,,I1,,,200";
  EXPECT_EQ(Bytes(m_path), golden::File({golden}, kOneBlock));

  CDataTable again = Loaded(m_path);
  EXPECT_EQ(again[1].m_nModifyType, -1);
  AddRow(again, L"I9");
  ASSERT_EQ(Save(again), 1);
  golden.rows[1] = "1,,,0,,,I9,,,200";
  EXPECT_EQ(Bytes(m_path), golden::File({golden}, kOneBlock));
}

// The text of each part, every byte 10 lower, as hosts read and write it.
TEST_F(TableFile, TextFormsAndTransform) {
  CDataTypeStruct column(L"型", L"No.", CDataTypeStruct::KVBT_LONG, 1);
  const CString fake = column.TranToFake();
  const std::string stored = golden::Fake("\xD0\xCD,,,No.,,,1,,,2");
  ASSERT_EQ(fake.GetLength(), static_cast<int>(stored.size()));
  for (int i = 0; i < fake.GetLength(); ++i) {  // sign-extended to 16 bits
    const auto byte = static_cast<signed char>(stored[static_cast<std::size_t>(i)]);
    EXPECT_EQ(static_cast<std::uint16_t>(fake[i]), static_cast<std::uint16_t>(byte));
  }
  CDataTypeStruct back;
  back.TransToNormal(stored.c_str());
  EXPECT_EQ(back.TranToFake(), fake);
  back.TransToNormal(golden::Fake("only").c_str());
  EXPECT_EQ(back.m_strName, L"only");
  EXPECT_EQ(back.m_nType, CDataTypeStruct::KVBT_STRING);

  CDataTable table = SectionTable();
  AddRow(table, L"I20a", L"7.5");
  EXPECT_EQ(CDataTable::TransStringToFake(L"0,,,1,,,I20a,,,7.5"), table.TransItemToFake(0));
  EXPECT_EQ(table.TransItemToNormal(golden::Fake("8,,,4,,,I22,,,9").c_str()), 1);
  EXPECT_EQ(table[1].m_nIndex, 8);
  EXPECT_EQ(table.TransItemToNormal(golden::Fake("8,,,4,,,I22").c_str()), 0);
  EXPECT_THROW(table.TransItemToNormal(golden::Fake("8,,,4,,,a,,,b,,,c").c_str()),
               CInvalidArgException);
  EXPECT_EQ(table.GetTableRowNum(), 2);
  CDataTableTitle title;
  EXPECT_EQ(title.TranToFake(), L"");
  title.TransToNormal(golden::Fake(golden::kHeading).c_str());
  EXPECT_TRUE(title.IsEqualOf(table.m_Title));
  EXPECT_EQ(title.TranToFake(),
            CDataTable::TransStringToFake(L"型号,,,No.,,,1,,,0,,,高,,,h(mm),,,0,,,4"));
  CDataFileInfo info;
  info.TransToNormal(golden::Fake("A,,,91,,,3,,,20100,,,-5").c_str());
  EXPECT_EQ(info.m_nItemLen, 91);
  EXPECT_EQ(info.m_nRowNum, 3);
  EXPECT_EQ(info.TranToFake(), CDataTable::TransStringToFake(L"A,,,91,,,3,,,20100,,,-5"));
}

// A row of 2 columns has 91 bytes: "0,,,0,,," takes 8, ",,," three of the others.
TEST_F(TableFile, ACutNeverShowsHalfACharacter) {
  const CString chinese(L'号', 30);
  for (int ascii = 0; ascii <= 30; ++ascii) {
    orv3::SystemFiles().Remove(m_path);
    CDataTable table = SectionTable();
    AddRow(table, chinese, CString(L'a', ascii) + CString(L'型', 30 - ascii));
    AddRow(table, L"next", L"1");
    ASSERT_EQ(Save(table), 1);
    const int room = 91 - 8 - 60 - 3;
    const int whole = std::min(30 - ascii, std::max(0, (room - ascii) / 2));
    const CDataTable read = Loaded(m_path);
    EXPECT_EQ(read[0][0].m_strValue, chinese);
    EXPECT_EQ(read[0][1].m_strValue, CString(L'a', std::min(ascii, room)) + CString(L'型', whole));
    EXPECT_EQ(read[1][0].m_strValue, L"next");
  }
  // Another writer's file, cut at every place of the slot.
  for (int size = 0; size <= 60; ++size) {
    CTable golden = Golden(2);
    std::string value;
    for (int i = 0; i < 30; ++i) value += "\xBA\xC5";
    golden.rows[0] = "0,,,0,,," + value + ",,," + value.substr(0, static_cast<std::size_t>(size));
    PutBytes(m_path, golden::File({golden}, kOneBlock));
    const CDataTable read = Loaded(m_path);
    EXPECT_EQ(read[0][1].m_strValue, CString(L'号', std::min(size, 20) / 2));
    EXPECT_EQ(read[1][0].m_strValue, L"I1");
  }
}

TEST_F(TableFile, WhatCannotBeReadBackIsRefusedBeforeAnythingIsWritten) {
  const auto row = [](const wchar_t* name, const wchar_t* height) {
    return [=](CDataTable& table) { AddRow(table, name, height); };
  };
  const auto title = [](const wchar_t* name, const wchar_t* sign) {
    return [=](CDataTable& table) { table.SetTableColTitle(0, name, sign, {}, 1); };
  };
  const auto column = [](CDataTable& table) { table.AddTableCol(L"x", L"x", {}, 0); };
  const struct {
    const char* what;
    const wchar_t* table;
    std::function<void(CDataTable&)> change;
  } kCases[] = {
      {"a separator", L"A", row(L"a,,,b", L"1")},
      {"the last value a separator", L"A", row(L"a", L",,,")},
      {"a comma before the separator", L"A", row(L"a,", L"1")},
      {"a comma left by the cut", L"A", row(L"12345678901234567890123456789,1", L"1")},
      {"no character of the page", L"A", row(L"\xFFFD", L"1")},
      {"a value too few", L"A", [](CDataTable& table) { table[0].m_arrCell.RemoveAt(1); }},
      {"a value too many", L"A", [](CDataTable& table) { table[0].m_arrCell.Add({}); }},
      {"a column behind the rows", L"A", column},
      {"the same in a new table", L"C", column},
      {"a title with a separator", L"A", title(L"a,,,b", L"No.")},
      {"a title that ends with a comma", L"C", title(L"a,", L"No.")},
      {"a sign that ends with a comma", L"A", title(L"a", L"No.,")},
      {"no name", L"", row(L"a", L"1")},
      {"a separator in the name", L"a,,,b", row(L"a", L"1")},
      {"a record in the name", L"A,,,91,,,1", row(L"a", L"1")},
      {"a comma at its end", L"a,", row(L"a", L"1")},
      {"a comma alone", L",", row(L"a", L"1")},
      {"a line feed in the name", L"a\nb", row(L"a", L"1")},
      {"no character of the page in the name", L"\xFFFD", row(L"a", L"1")},
  };
  CDataTable stored = SectionTable(L"A");
  AddRow(stored, L"I0");
  ASSERT_EQ(Save(stored), 1);
  const std::string before = Bytes(m_path);
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    CDataTable table = c.table == CString(L"A") ? Loaded(m_path, L"A") : SectionTable(c.table);
    if (table.GetTableRowNum() == 0) AddRow(table, L"I0");
    c.change(table);
    for (const int all : {0, 1}) {
      table[0].m_nModifyType = 1;
      EXPECT_EQ(Save(table, all), 0);
      EXPECT_EQ(orv3::LastStoreError().m_nTrouble, orv3::CStoreTrouble::Refused);
    }
    EXPECT_FALSE(orv3::SaveFaults(table, m_path, true).empty());
    EXPECT_TRUE(Bytes(m_path) == before);
  }
  EXPECT_EQ(stored.WriteTable(L"", 0, 0), 0);
}

// A heading of 100 bytes a column may lose the last columns' texts, never shift them.
TEST_F(TableFile, AHeadingIsCutAtTheEndOfItsArea) {
  for (int size = 20; size <= 64; ++size) {
    orv3::SystemFiles().Remove(m_path);
    CDataTable table = SectionTable(L"A");
    AddRow(table, L"I0", L"7");
    const CString name(L'型', size);
    table.SetTableColTitle(0, name, L"a", CDataTypeStruct::KVBT_STRING, 1);
    table.SetTableColTitle(1, name, L"bcd", CDataTypeStruct::KVBT_DOUBLE, 0);
    ASSERT_EQ(Save(table), 1);
    const CDataTable read = Loaded(m_path, L"A");
    EXPECT_EQ(Rows(read), (std::vector<std::string>{"I0=7"}));
    const int room = 200 - 2 * size - 3 - 1 - 3 - 1 - 3 - 1 - 3;  // behind the first column
    EXPECT_EQ(read.GetTableColName(1), CString(L'型', std::min(size, room / 2)));
    EXPECT_EQ(read.GetTableColSign(1), CString(L"bcd").Left(std::max(0, room - 2 * size - 3)));
  }
}

TEST_F(TableFile, NinetyNineTablesFit) {
  for (int i = 0; i < 100; ++i) {
    CDataTable table = OneColumn(Name(i), 1);
    EXPECT_EQ(Save(table), i < 99 ? 1 : 0);
  }
  CStringArray names;
  EXPECT_EQ(CDataTable::GetTableNameFromFile(m_path, names), 99);
  EXPECT_EQ(Loaded(m_path, L"I98")[0][0].m_strValue, L"v");
  EXPECT_EQ(Bytes(m_path).back(), '#');
}

// 128 bytes of name, 11 of sizes, 8 for each block, a zero: 196 with 7 blocks, 204 with 8.
TEST_F(TableFile, ARecordThatOutgrowsItsFieldIsRefused) {
  CDataTable table = OneColumn(CString(L'型', 64), 695);
  ASSERT_EQ(Save(table), 1);
  EXPECT_EQ(Loaded(m_path, table.GetTableName().GetString()).GetTableRowNum(), 695);
  const std::string before = Bytes(m_path);
  ASSERT_EQ(table.AddTableItem(L"v", 1), 1);
  EXPECT_EQ(Save(table), 0);
  EXPECT_EQ(orv3::LastStoreError().m_nTrouble, orv3::CStoreTrouble::Refused);
  EXPECT_TRUE(Bytes(m_path) == before);
  EXPECT_EQ(orv3::SaveFaults(table, m_path).size(), 1U);
  const auto file = orv3::CStoreFile::OpenToWrite(m_path);
  CDataFileInfo info;
  EXPECT_EQ(table.WriteTableFileInfo(file.get(), 0, info), 0);
}

TEST_F(TableFile, InformationOfAFile) {
  CDataTable table = SectionTable();
  AddRow(table, L"I0");
  ASSERT_EQ(table.WriteTable(m_path, 1, 0), 1);
  CString line;
  CDataTable nameless;
  EXPECT_EQ(nameless.ReadTableFileInfo(m_path, line), 1);  // though it holds no table "test"
  EXPECT_EQ(nameless.GetTableName(), L"test");
  EXPECT_EQ(line, L"KvbTable_1.0_2005_3,1,2024-5-7:9:3:12:250");
  EXPECT_EQ(nameless.ReadTableFileInfo(m_folder.Path(L"none.KDB"), line), 0);
  EXPECT_EQ(nameless.GetTable(m_path, line), 0);
  EXPECT_EQ(orv3::LastStoreError().m_nTrouble, orv3::CStoreTrouble::NoTable);
  CDataFileInfo info;
  EXPECT_EQ(table.ReadTableFileInfo(nullptr, line, info), 0);
  EXPECT_EQ(table.WriteTableFileInfo(nullptr, 0, info), 0);
  const auto file = orv3::CStoreFile::OpenToRead(m_path);
  EXPECT_EQ(table.ReadTableFileInfo(file.get(), line, info), 1);
  EXPECT_EQ(info.m_nItemLen, 91);
  EXPECT_EQ(table.GetTableTextLen(), 91 + 200);
}

}  // namespace
