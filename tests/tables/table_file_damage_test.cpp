// Damaged and hostile table files: 0 or the invalid-argument exception, never more.
#include <gtest/gtest.h>

#include "tables/table_file_tools.h"

namespace {

using golden::CTable;
using golden::kBlock;
using golden::kFirst;
using golden::kOneBlock;

class DamagedTableFile : public TableFileTest {
 protected:
  // The result of reading table "A"; the table is untouched after 0.
  int Read(const std::string& bytes) {
    PutBytes(m_path, bytes);
    CDataTable table;
    table.SetTableName(L"A");
    CString line;
    const int result = table.GetTable(m_path, line);
    EXPECT_TRUE(result == 1 || table.GetTableRowNum() + table.GetTableColNum() == 0);
    // And a save into it either works or leaves every byte.
    CDataTable other = SectionTable(L"A");
    AddRow(other, L"X");
    EXPECT_TRUE(Save(other) == 1 || Bytes(m_path) == bytes);
    return result;
  }

  // The file of one table whose record is `record`.
  static std::string WithRecord(const std::string& record) {
    std::string file = golden::File({Golden()}, kOneBlock);
    return file.replace(file.size() - 20000, 200, golden::Field(record, 200));
  }
  static CTable Golden() { return golden::Section("A", 2); }
};

TEST_F(DamagedTableFile, RecordsThatCannotBe) {
  ASSERT_EQ(Read(WithRecord("A,,,91,,,2,,,20100")), 1);
  for (const char* record : {
           "A",
           "A,,,91,,,2",                   // no block
           "A,,,90,,,2,,,20100",           // no slot length
           "A,,,-8,,,2,,,20100",           // the same below 0
           "A,,,24,,,2,,,20100",           //
           "A,,,2147483647,,,2,,,20100",   // beyond the file
           "A,,,3325,,,2,,,20100",         // 100 columns: the block would not fit
           "A,,,91,,,-1,,,20100",          // rows below 0
           "A,,,91,,,97,,,20100",          // more rows than the block holds
           "A,,,91,,,2147483647,,,20100",  //
           "A,,,91,,,97,,,20100,,,20100",  // the same block twice
           "A,,,91,,,97,,,20100,,,24000",  // overlapping blocks
           "A,,,91,,,2,,,20099",           // in the head
           "A,,,91,,,2,,,20101",           // reaching into the directory
           "A,,,91,,,2,,,29200",           // in the directory
           "A,,,91,,,2,,,-20100",          //
           "A,,,91,,,2,,,2147483647",      //
           "A,,,91,,,2,,,99999999999999",  //
           "A,,,58,,,2,,,20100",           // fewer columns than the heading
           "A,,,124,,,2,,,20100",          // more
           "A,,,91,,,3,,,20100",           // a row that was never written
           "B,,,91,,,2,,,20100",           // another table
       }) {
    SCOPED_TRACE(record);
    EXPECT_EQ(Read(WithRecord(record)), 0);
  }
}

TEST_F(DamagedTableFile, ABlockThatNoRowUsesYetMayBeAnywhere) {
  CTable golden = golden::Section("A", 96);
  golden.blocks = {kFirst, 9999};
  EXPECT_EQ(Read(golden::File({golden}, kOneBlock + kBlock)), 1);
}

TEST_F(DamagedTableFile, TwoTablesInOneBlockAreNotWrittenTo) {
  CTable other = Golden();
  other.name = "B";
  const std::string file = golden::File({Golden(), other}, kOneBlock);
  PutBytes(m_path, file);
  CDataTable table = Loaded(m_path, L"A");
  AddRow(table, L"new");
  EXPECT_EQ(Save(table), 0);
  EXPECT_EQ(Bytes(m_path), file);
}

TEST_F(DamagedTableFile, CutAnywhere) {
  const std::string file = golden::File({Golden()}, kOneBlock);
  for (std::size_t size = 0; size < file.size(); size += size < 100 || size > 49000 ? 1 : 97) {
    ASSERT_EQ(Read(file.substr(0, size)), 0) << size;
  }
}

TEST_F(DamagedTableFile, OtherRowsAndHeadings) {
  const auto withRow = [](const char* row) {
    CTable golden = Golden();
    golden.rows[1] = row;
    return golden::File({golden}, kOneBlock);
  };
  EXPECT_EQ(Read(withRow("1,,,0,,,a")), 0);
  EXPECT_EQ(Read(withRow("")), 0);
  EXPECT_THROW(Read(withRow("1,,,0,,,a,,,b,,,c")), CInvalidArgException);
  CDataTable table = SectionTable(L"A");  // where a save meets such a row, it gives up
  AddRow(table, L"new");
  EXPECT_EQ(Save(table), 0);
  const auto withHeading = [](const std::string& heading) {
    CTable golden = Golden();
    golden.heading = heading;
    return golden::File({golden}, kOneBlock);
  };
  EXPECT_EQ(Read(withHeading("a,,,b")), 0);
  // Cut: the second column has lost its name.
  EXPECT_EQ(Read(withHeading(std::string(300, 'x'))), 1);
}

TEST_F(DamagedTableFile, OtherInformationLines) {
  std::string file = golden::File({Golden()}, kOneBlock, "KvbTable_1.0_2005_2,0,2024-5-7:9:3:12:1");
  EXPECT_EQ(Read(file), 0);
  CStringArray names;
  EXPECT_EQ(CDataTable::GetTableNameFromFile(m_path, names), 0);
  // Every record of a full directory, each "A": the first one counts.
  file = golden::File({Golden()}, kOneBlock);
  for (std::size_t i = 1; i < 99; ++i) {
    file.replace(file.size() - 20000 + 200 * i, 200, golden::Field("A,,,91,,,1,,,20100", 200));
  }
  PutBytes(m_path, file);
  EXPECT_EQ(CDataTable::GetTableNameFromFile(m_path, names), 99);
  EXPECT_EQ(Rows(Loaded(m_path, L"A")).size(), 2U);
}

}  // namespace
