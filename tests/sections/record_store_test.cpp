// Record stores to the byte, their growth, and saves that fail.
#include "sections/record_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "platform/faulty_files.h"
#include "platform/store_file.h"
#include "platform/store_journal.h"
#include "platform/temp_folder.h"
#include "print.h"
#include "sections/steel_jm_data.h"
#include "tables/data_table.h"

namespace {

CSteelJMData Record(const std::wstring& name, int style = 3, int state = 1) {
  CSteelJMData record;
  std::copy(name.begin(), name.end(), record.m_szName);
  record.m_nStyle = style;
  record.m_nState = state;
  record.m_dSize[0] = 300;
  record.m_dSize[1] = 400;
  CSteelJMData::CalSectCharacterStyle(record);
  return record;
}

CArray<CSteelJMData> Records(int count, const std::wstring& name = L"R", int state = 1) {
  CArray<CSteelJMData> records;
  for (int i = 0; i < count; ++i) records.Add(Record(name + std::to_wstring(i), 3, state));
  return records;
}

// The names of a group's records, deleted ones with "-" in front.
std::string Names(const CString& path, int group) {
  CArray<CSteelJMData> records;
  CSteelJMData::GetTable(records, group, path);
  std::string names;
  for (const CSteelJMData& record : records) {
    names += (record.m_nState == -1 ? "-" : "") + orv3::ToUtf8(record.m_szName) + " ";
  }
  return names;
}

class RecordStore : public testing::Test {
 protected:
  static int Save(const CArray<CSteelJMData>& records, int group, const CString& path) {
    return CSteelJMData::WriteTable(records, group, path);
  }

  CTempFolder m_folder;
  CFaultyFiles m_quick;
  const CString m_path = m_folder.Path(L"SYSTEMJMTABLE.LV");
};

void PutInts(std::string& file, std::size_t at, std::initializer_list<int> values) {
  for (const int value : values) {
    for (int i = 0; i < 4; ++i) {
      file[at++] = static_cast<char>(static_cast<unsigned>(value) >> 8 * i);
    }
  }
}

// A slot's image from the layout; the record's 27 doubles are 1, 2, 3, ... and its sizes 101, ...
std::string GoldenImage(const std::string& name, int style, char deletedMark, char styleMark) {
  std::string image(400, '\0');
  for (std::size_t i = 0; i < 49; ++i) image[8 + 2 * i] = i < name.size() ? name[i] : ' ';
  image[8 + 2 * 47] = deletedMark;
  image[8 + 2 * 48] = styleMark;
  PutInts(image, 112, {style});
  for (std::size_t i = 0; i < 35; ++i) {
    const double value = i < 27 ? static_cast<double>(i) + 1 : static_cast<double>(i) + 74;
    std::memcpy(image.data() + 120 + 8 * i, &value, 8);  // both machines are little-endian
  }
  return image;
}

CSteelJMData GoldenRecord(const wchar_t* name, int style, int state) {
  CSteelJMData r = Record(name, style, state);
  double n = 0;
  for (double* field :
       {&r.m_dX,    &r.m_dY,    &r.m_dXo,  &r.m_dYo,  &r.m_dA,   &r.m_dIx,   &r.m_dIy,
        &r.m_dWx1,  &r.m_dWx2,  &r.m_dWyL, &r.m_dWyR, &r.m_dSx1, &r.m_dSx2,  &r.m_dSyL,
        &r.m_dSyR,  &r.m_dix,   &r.m_diy,  &r.m_dIxo, &r.m_dIyo, &r.m_dWxo1, &r.m_dWxo2,
        &r.m_dWyoL, &r.m_dWyoR, &r.m_dSxo, &r.m_dSyo, &r.m_dixo, &r.m_diyo}) {
    *field = ++n;
  }
  for (double& size : r.m_dSize) size = 74 + n++;
  return r;
}

TEST_F(RecordStore, ASystemStoreToTheByte) {
  CArray<CSteelJMData> records;
  records.Add(GoldenRecord(L"H400", 9, 1));
  records.Add(GoldenRecord(L"gone", 0, -1));
  ASSERT_EQ(Save(records, 3, m_path), 1);
  std::string golden(140000 + 400, '\0');
  PutInts(golden, 5, {-1, 16, 0});
  for (int g = 0; g <= 3; ++g) {
    PutInts(golden, static_cast<std::size_t>(50 * (g + 1)), {g, 5000 + 45000 * g, g == 3 ? 1 : 0});
  }
  golden.replace(140000, 400, GoldenImage("H400", 9, '\x01', ' '));
  golden.resize(140450 + 400);
  golden.replace(140450, 400, GoldenImage("gone", 0, '(', ' '));
  EXPECT_EQ(Bytes(m_path), golden);

  PutInts(golden, 200, {3, 140000, 2});
  PutBytes(m_path, golden);
  CArray<CSteelJMData> read;
  ASSERT_EQ(CSteelJMData::GetTable(read, 3, m_path), 1);
  ASSERT_EQ(read.GetSize(), 2);
  EXPECT_STREQ(read[0].m_szName, L"H400");
  EXPECT_EQ(read[0].m_nStyle, 9);
  EXPECT_EQ(read[0].m_nState, 0);
  EXPECT_EQ(read[0].m_dX, 1);
  EXPECT_EQ(read[0].m_dIxo, 18);
  EXPECT_EQ(read[0].m_diyo, 27);
  EXPECT_EQ(read[0].m_dSize[0], 101);
  EXPECT_EQ(read[1].m_nState, -1);
  EXPECT_EQ(CSteelJMData::GetTableLength(3, m_path), 2);
  EXPECT_EQ(CSteelJMData::GetTableLength(0, m_path), 0);
  EXPECT_EQ(CSteelJMData::GetTable(read, 4, m_path), 0);
}

TEST_F(RecordStore, AUserStoreCarriesTheStyleMark) {
  CArray<CSteelJMData> records;
  records.Add(GoldenRecord(L"A", 9, 1));
  ASSERT_EQ(Save(records, -1, m_path), 1);
  std::string golden(5400, '\0');
  PutInts(golden, 5, {-1, 1, 0});
  PutInts(golden, 50, {0, 5000, 1});
  golden.replace(5000, 400, GoldenImage("A", 9, '\x01', 29));
  EXPECT_EQ(Bytes(m_path), golden);
  EXPECT_EQ(Names(m_path, -1), "A ");
  EXPECT_EQ(Names(m_path, 0), "A ");
  EXPECT_EQ(Save(records, 1, m_path), 0);  // it has no group 1
  EXPECT_EQ(Bytes(m_path), golden);
}

// Callers write slots and headers by themselves too, and go by the results.
TEST_F(RecordStore, AWriteThatIsRefusedIsTold) {
  ASSERT_EQ(Save(Records(1), 0, m_path), 1);
  const auto file = orv3::CStoreFile::OpenToRead(m_path);
  CSteelJMData::FileInfo info;
  EXPECT_EQ(CSteelJMData::WriteTableItem(file.get(), 5000, Record(L"X"), 0), 0);
  EXPECT_EQ(CSteelJMData::WriteJMFileInfo(file.get(), 0, 2, info), 0);
}

TEST_F(RecordStore, LongAndChineseNames) {
  CArray<CSteelJMData> records;
  records.Add(Record(std::wstring(49, L'x')));
  records.Add(Record(L"  自定义(1)  "));
  ASSERT_EQ(Save(records, -1, m_path), 1);
  const std::string file = Bytes(m_path);
  EXPECT_EQ(file.substr(5000 + 8 + 2 * 46, 8), std::string("x\0\x01\0\x17\0\0\0", 8));
  EXPECT_EQ(Names(m_path, -1), std::string(47, 'x') + " 自定义(1) ");
}

TEST_F(RecordStore, AdditionsReuseTheSlotsOfDeletedRecordsBeforeThem) {
  ASSERT_EQ(Save(Records(3), 0, m_path), 1);
  CArray<CSteelJMData> records;
  ASSERT_EQ(CSteelJMData::GetTable(records, 0, m_path), 1);
  records[1].m_nState = -1;
  records[2].m_nState = -2;  // deleted and saved: frees nothing
  records.Add(Record(L"a"));
  records.Add(Record(L"b"));
  ASSERT_EQ(Save(records, 0, m_path), 1);
  EXPECT_EQ(CSteelJMData::GetTableLength(0, m_path), 4);
  EXPECT_EQ(Names(m_path, 0), "R0 a R2 b ");
}

TEST_F(RecordStore, ARecordWithoutASizeIsNotReadBack) {
  CArray<CSteelJMData> records = Records(3);
  records[1].m_dSize[0] = 0;
  ASSERT_EQ(Save(records, 0, m_path), 1);
  EXPECT_EQ(CSteelJMData::GetTableLength(0, m_path), 3);
  EXPECT_EQ(Names(m_path, 0), "R0 R2 ");
}

TEST_F(RecordStore, AGroupThatGrowsMovesThoseBehindIt) {
  const struct {
    int count;
    int second;  // where group 1 begins then
  } kCases[] = {{99, 50000},  {100, 95000},  {101, 95000},
                {199, 95000}, {200, 140000}, {450, 230000}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.count);
    orv3::SystemFiles().Remove(m_path);
    ASSERT_EQ(Save(Records(99), 0, m_path), 1);
    ASSERT_EQ(Save(Records(3, L"S"), 1, m_path), 1);
    ASSERT_EQ(Save(Records(120, L"T"), 2, m_path), 1);
    const std::string others = Names(m_path, 1) + Names(m_path, 2);
    const std::string before = Bytes(m_path);
    ASSERT_EQ(Save(Records(c.count - 99, L"N"), 0, m_path), 1);  // only what is new
    EXPECT_EQ(CSteelJMData::GetTableLength(0, m_path), c.count);
    EXPECT_EQ(Names(m_path, 1) + Names(m_path, 2), others);
    const std::string after = Bytes(m_path);
    std::string header(12, '\0');
    PutInts(header, 0, {1, c.second, 3});
    EXPECT_EQ(after.substr(100, 12), header);
    EXPECT_EQ(after.size(), before.size() + static_cast<std::size_t>(c.second - 50000));
  }
}

// Group 1, moved on by group 0, is where group 2 has its own place in a new store.
TEST_F(RecordStore, AGroupUsedLateStartsBehindThoseThatMovedOn) {
  ASSERT_EQ(Save(Records(99), 0, m_path), 1);
  ASSERT_EQ(Save(Records(3, L"S"), 1, m_path), 1);
  ASSERT_EQ(Save(Records(1, L"N"), 0, m_path), 1);
  const std::string earlier = Names(m_path, 0) + Names(m_path, 1);
  ASSERT_EQ(Save(Records(2, L"T"), 2, m_path), 1);
  EXPECT_EQ(Names(m_path, 0) + Names(m_path, 1), earlier);
  EXPECT_EQ(Names(m_path, 2), "T0 T1 ");
  std::string header(12, '\0');
  PutInts(header, 0, {2, 140000, 2});
  EXPECT_EQ(Bytes(m_path).substr(150, 12), header);
}

TEST_F(RecordStore, TheThreeStoresAreInTheCurrentFolder) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(std::filesystem::path(std::wstring(m_folder.Path().View())));
  CArray<CSteelJMData> boxes;
  boxes.Add(Record(L"400X300", 14));
  boxes.Add(Record(L"gone", 14, -1));
  EXPECT_EQ(CSteelJMData::WriteTableToSystem(boxes, 14), 1);
  EXPECT_EQ(CSteelJMData::WriteTableToSystem(Records(2), 16), 1);  // group 0
  EXPECT_EQ(CSteelJMData::WriteTableToUser(Records(3, L"U")), 1);
  EXPECT_EQ(CSteelJMData::WriteTableToCurrent(Records(4, L"C")), 1);
  EXPECT_EQ(CSteelJMData::GetTableLengthToSysTem(-1), 2);
  EXPECT_EQ(CSteelJMData::GetTableLengthToUser(), 3);
  EXPECT_EQ(CSteelJMData::GetTableLengthToCurrent(), 4);
  EXPECT_TRUE(Exists(m_folder.Path(L"USERJMTABLE.LV")) &&
              Exists(m_folder.Path(L"CURRENTJMTABLE.LV")));

  CDataTable table;
  EXPECT_EQ(CSteelJMData::GetJMTableData(L"自定义非对称箱形截面", table), 1);
  EXPECT_EQ(table.GetTableRowNum(), 1);
  EXPECT_EQ(table[0][L"No."].m_strValue, L"400X300");
  EXPECT_EQ(table[0][L"h(mm)"].m_strValue, L"400");
  EXPECT_EQ(CSteelJMData::TransJMTableData(L"矩形截面", table, 1), 1);
  EXPECT_EQ(table.GetTableRowNum(), 3);
  EXPECT_EQ(CSteelJMData::TransJMTableData(L"矩形截面", table, 2), 1);
  EXPECT_EQ(table[3].m_nIndex, 3);
  EXPECT_EQ(CSteelJMData::TransJMTableData(L"工字钢", table, 2), 0);
  EXPECT_EQ(table.GetTableRowNum(), 4);
  std::filesystem::current_path(before);
}

TEST_F(RecordStore, DamagedStores) {
  const auto store = [](std::initializer_list<int> header, std::initializer_list<int> group,
                        std::initializer_list<int> next) {
    std::string file(60000, '\0');
    PutInts(file, 5, header);
    PutInts(file, 50, group);
    PutInts(file, 100, next);
    return file;
  };
  constexpr int kBig = 0x7FFFFFFF;
  const struct {
    const char* name;
    std::string bytes;
    int read;  // result of reading group 0
    int length;
    int saved;  // result of a save into it
  } kCases[] = {
      {"empty group", store({-1, 16, 0}, {0, 5000, 0}, {}), 1, 0, 1},
      {"no header", std::string(10, 'x'), 0, 0, 1},
      {"offset 0", store({-1, 16, 0}, {0, 0, 3}, {}), 0, 0, 1},
      {"negative count", store({-1, 16, 0}, {0, 5000, -1}, {}), 0, 0, 1},
      {"slots in the headers", store({-1, 16, 0}, {0, 10, 1}, {}), 1, 1, 0},
      {"count beyond the file", store({-1, 16, 0}, {0, 5000, kBig}, {}), 1, kBig, 0},
      {"offset beyond the file", store({-1, 16, 0}, {0, kBig, 1}, {}), 1, 1, 0},
      {"the next group inside", store({-1, 16, 0}, {0, 5000, 10}, {1, 6000, 1}), 1, 10, 0},
      {"the next group in the headers", store({-1, 16, 0}, {0, 5000, 0}, {1, 60, 1}), 1, 0, 0},
      {"a group missing before another",
       store({-1, 16, 0}, {0, 5000, 0}, {})
           .replace(150, 12, std::string("\2\0\0\0\0\x40\0\0\0\0\0\0", 12)),
       1, 0, 0},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    PutBytes(m_path, c.bytes);
    CArray<CSteelJMData> records;
    EXPECT_EQ(CSteelJMData::GetTable(records, 0, m_path), c.read);
    EXPECT_EQ(records.GetSize(), 0);
    EXPECT_EQ(CSteelJMData::GetTableLength(0, m_path), c.length);
    EXPECT_EQ(Save(Records(1), 0, m_path), c.saved);
    EXPECT_TRUE(c.saved == 1 || Bytes(m_path) == c.bytes);
  }
  EXPECT_EQ(CSteelJMData::GetTableLength(0, m_folder.Path(L"none")), 0);
  EXPECT_EQ(Save(Records(1), 16, m_folder.Path(L"none")), 0);
  EXPECT_FALSE(Exists(m_folder.Path(L"none")));
}

// Records more than a group's room, so that the one behind it moves on. Kills are tried on table
// files, which are saved in the same way.
TEST_F(RecordStore, AFaultLeavesTheOldStoreOrTheNew) {
  ASSERT_EQ(Save(Records(98), 0, m_path), 1);
  ASSERT_EQ(Save(Records(3, L"S"), 1, m_path), 1);
  const std::string before = Bytes(m_path);
  const CArray<CSteelJMData> more = Records(5, L"new");
  ASSERT_EQ(Save(more, 0, m_path), 1);
  const std::string after = Bytes(m_path);
  for (const CFault fault : {CFault::Fail, CFault::Short}) {
    for (const bool forGood : {false, true}) {
      bool met = true;
      for (int at = 1; met; ++at) {
        SCOPED_TRACE(at);
        PutBytes(m_path, before);
        int saved = 0;
        {
          CFaultyFiles faulty(fault, at, forGood);
          saved = Save(more, 0, m_path);
          met = faulty.Met();
        }
        CSteelJMData::GetTableLength(0, m_path);  // a reader undoes what is half done
        const std::string seen = Bytes(m_path);
        // When nothing behind it got through, all of a failed save may have.
        ASSERT_TRUE(seen == (saved ? after : before) || (forGood && seen == after));
        ASSERT_FALSE(Exists(orv3::JournalPath(m_path)));
      }
    }
  }
}

}  // namespace
