// Rolled-section data files, the tables made of them, and the records of single sections.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <string_view>

#include "catalogue/outline/row_spacing.h"
#include "catalogue/rolled/read_file.h"
#include "catalogue/rolled/rolled_file.h"
#include "catalogue/rolled/rolled_records.h"
#include "catalogue/rolled/rolled_style.h"
#include "catalogue_csv.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/temp_folder.h"
#include "print.h"
#include "sections/catalogue_store.h"

namespace {

// --- Bytes written by hand -----------------------------------------------------------------------

std::string Hex(std::string_view digits) {
  std::string bytes;
  int high = -1;
  for (const char ch : digits) {
    if (ch == ' ') continue;
    const int value = ch <= '9' ? ch - '0' : ch - 'A' + 10;
    if (high >= 0) bytes += static_cast<char>(16 * high + value);
    high = high < 0 ? value : -1;
  }
  return bytes;
}

// UTF-16 of plain letters, in a field of 20.
std::string Name(std::string_view letters, std::size_t width = 20) {
  std::string bytes;
  for (const char ch : letters) bytes += {ch, '\0'};
  return bytes + std::string(2 * (width - letters.size()), '\0');
}

std::string Double(double value) {
  std::string bytes(8, '\0');
  std::memcpy(bytes.data(), &value, 8);  // both machines are little-endian
  return bytes;
}

// From `first` to `last` in whole steps.
std::string Doubles(int first, int last) {
  std::string bytes;
  for (int i = first; i <= last; ++i) bytes += Double(i);
  return bytes;
}

// L5X3 with r = 3.5 and, from A to N, 1, 2, 3, ... 17; the capacities at 0.6, 0.9, ... 5.7 m are
// 20, 40, 60, ... 360 kN.
std::string AngleRecord() {
  std::string record = Name("L5X3") + Hex("0500 0300 00000000") + Double(3.5) + Doubles(1, 17);
  for (int i = 0; i < 18; ++i) record += Double((6 + 3 * i) / 10.0) + Double(20 + 20 * i);
  return record;
}
constexpr wchar_t kAngleRow[] =
    L"L5X3,5,3,3.5,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,20,40,60,80,100,120,140,160,180,200,"
    L"220,240,260,280,300,320,340,360";

// A T whose height is the text "62.5"; from B to Cx 1, 2, 3, ... 13.
std::string SplitTRecord() { return Name("TX1") + Name("62.5") + Doubles(1, 13); }
constexpr wchar_t kSplitTRow[] = L"TX1,62.5,1,2,3,4,5,6,7,8,9,10,11,12,13";

// A round tube of 104 bytes: d, then seven doubles of 1.
std::string TubeRecord(std::string_view name, char d = 25) {
  std::string record = Name(name) + std::string({d, 0}) + std::string(6, '\0');
  for (int i = 0; i < 7; ++i) record += Double(1);
  return record;
}

CString RowText(const CDataItem& row) {
  CString text;
  for (int i = 0; i < row.GetItemLength(); ++i) text += (i == 0 ? L"" : L",") + row[i].m_strValue;
  return text;
}

// A number as stores write it.
CString Written(const CString& number) { return orv3::FormatG(orv3::ToDouble(number)); }

CDataTable TableOf(int style, std::initializer_list<const wchar_t*> rows) {
  const orv3::CRolledStyle& of = orv3::RolledStyles()[static_cast<std::size_t>(style)];
  CDataTable table;
  table.SetTableName(of.Name());
  table.m_Title = orv3::RolledTitle(of);
  for (const wchar_t* row : rows) EXPECT_TRUE(table.AddTableItem(row, 0)) << CString(row);
  return table;
}

class RolledFile : public testing::Test {
 protected:
  // The program path is a folder without stores unless a test puts one there.
  void SetUp() override {
    orv3::SetAnsiCodePage(936);
    CLoadDataTable::SetOrvoPrgPath(m_folder.Path());
  }
  void TearDown() override {
    CLoadDataTable::SetOrvoPrgPath(L"");
    orv3::SetAnsiCodePage(0);
  }

  int Read(const wchar_t* name, const std::string& bytes, CDataTable& table) {
    PutBytes(m_folder.Path(name), bytes);
    return CReadFile::GetIronData(m_folder.Path(name).GetString(), table);
  }

  CTempFolder m_folder;
};

TEST_F(RolledFile, HasTheBytesThatItsLayoutSays) {
  struct CCase {
    const wchar_t* file;
    int style;
    std::string bytes;
    const wchar_t* row;
  };
  const CCase cases[] = {{L"DbData.kvb", 0, Hex("E001") + AngleRecord(), kAngleRow},
                         {L"PFTIRON.kvb", 26, Hex("B800") + SplitTRecord(), kSplitTRow}};
  for (const CCase& each : cases) {
    CDataTable table;
    ASSERT_EQ(Read(each.file, each.bytes, table), 1);
    ASSERT_EQ(table.GetTableRowNum(), 1);
    EXPECT_EQ(RowText(table[0]), each.row);
    const CString written = m_folder.Path(L"written.kvb");
    ASSERT_EQ(orv3::WriteRolledFile(written, each.style, TableOf(each.style, {each.row})), 1);
    EXPECT_EQ(Bytes(written), each.bytes);
  }
}

TEST_F(RolledFile, OfAnotherKindGivesNothing) {
  struct CCase {
    const wchar_t* file;
    std::string bytes;
    bool cleared;  // the table, which had a row before
  };
  const std::string tube = TubeRecord("25X1.5");
  const CCase cases[] = {
      {L"LWCIR.kvb", "", false},
      {L"LWCIR.kvb", "h", false},
      {L"LWCIR.kvb", Hex("6800"), false},
      {L"LWCIR.kvb", Hex("6800") + tube.substr(1), false},
      {L"LWCIR.kvb", Hex("0000") + tube, false},
      {L"LWCIR.kvb", Hex("FFFF") + tube, false},
      {L"OLWCIR.kvb", Hex("6800"), false},
      {L"OOLWCIR.kvb", Hex("6800") + tube, true},
      {L"LWCIR.KVB", Hex("6800") + tube, true},
      {L"lwcir.kvb", Hex("6800") + tube, true},
  };
  for (const CCase& each : cases) {
    CDataTable table = TableOf(17, {L"30X1.5,30,1.5,1,1,1,1,1,1"});
    EXPECT_EQ(Read(each.file, each.bytes, table), 0) << CString(each.file) << each.bytes.size();
    EXPECT_EQ(table.GetTableRowNum(), each.cleared ? 0 : 1) << CString(each.file);
  }
  CDataTable table;
  EXPECT_EQ(CReadFile::GetIronData(m_folder.Path(L"none/LWCIR.kvb").GetString(), table), 0);
  EXPECT_EQ(CReadFile::GetIronData(nullptr, table), 0);
}

TEST_F(RolledFile, GivesTheRowsThatItsBytesHold) {
  const std::string a = TubeRecord("A"), b = TubeRecord("B"), gap(8, 'g');
  std::string full = TubeRecord(std::string(20, 'x'));
  full.replace(48, 8, Double(std::nan("")));
  const struct {
    const char* what;
    std::string bytes;
    std::vector<std::string> rows;
  } cases[] = {
      {"the first record of each number; a rest is passed over",
       Hex("6800") + TubeRecord(" 30X2 ", 30) + a + TubeRecord("30X2", 31) + "rest",
       {"30X2,30,1,1,1,1,1,1,1", "A,25,1,1,1,1,1,1,1"}},
      {"a comma would make two cells of the number",
       Hex("6800") + TubeRecord("1,2") + b,
       {"B,25,1,1,1,1,1,1,1"}},
      {"a name that fills its field has no zero; numbers are shown as they are",
       Hex("6800") + full,
       {"xxxxxxxxxxxxxxxxxxxx,25,NAN,1,1,1,1,1,1"}},
      {"8 bytes more than a record: the file has them behind each",
       Hex("7000") + a + gap + b + gap,
       {"A,25,1,1,1,1,1,1,1", "B,25,1,1,1,1,1,1,1"}},
      {"half a record: twice as many are counted; the first of the empty ones stands for all",
       Hex("3400") + a + b,
       {"A,25,1,1,1,1,1,1,1", "B,25,1,1,1,1,1,1,1", ",0,0,0,0,0,0,0,0"}},
      {"records of 1 byte: the last one ends in the middle of its doubles",
       Hex("0100") + a + b.substr(0, 60),
       {"A,25,1,1,1,1,1,1,1", "B,25,1,0,0,0,0,0,0", ",0,0,0,0,0,0,0,0"}},
  };
  for (const auto& c : cases) {
    CDataTable table;
    EXPECT_EQ(Read(L"LWCIR.kvb", c.bytes, table), 1) << c.what;
    std::vector<std::string> rows;
    for (const CDataItem& row : table.m_arrItem) rows.push_back(orv3::ToUtf8(RowText(row)));
    EXPECT_EQ(rows, c.rows) << c.what;
  }
}

TEST_F(RolledFile, OfTheUserHasTheSameColumnsAndFreeRows) {
  CDataTable plain, twin;
  const std::string bytes = Hex("E001") + AngleRecord();
  ASSERT_EQ(Read(L"DbData.kvb", bytes, plain), 1);
  ASSERT_EQ(Read(L"ODbData.kvb", bytes, twin), 1);
  EXPECT_EQ(plain.GetTableName(), L"热轧等边角钢");
  EXPECT_EQ(twin.GetTableName(), plain.GetTableName());
  EXPECT_EQ(plain.GetTableColNum(), 39);
  EXPECT_TRUE(plain.m_Title.IsEqualOf(twin.m_Title));
  EXPECT_EQ(plain.GetTableColSign(21), L"P(0.6m)(kN)");
  EXPECT_EQ(plain.GetTableColName(38), L"5.7m长度抗压承载力设计值");
  // From 3 on a row is protected.
  EXPECT_EQ(plain[0].m_nModifyType, 3);
  EXPECT_EQ(twin[0].m_nModifyType, 1);
}

TEST_F(RolledFile, AddsToWhatTheSystemStoreHas) {
  CDataTable stored = TableOf(17, {L"30X1.5,30,9,9,9,9,9,9,9"});
  stored.SetTableColTitle(2, L"壁厚", L"t(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
  ASSERT_TRUE(stored.WriteSystemJmTable());
  CDataTable table;
  ASSERT_EQ(Read(L"LWCIR.kvb", Hex("6800") + TubeRecord("30X1.5") + TubeRecord("40X2"), table), 1);
  ASSERT_EQ(table.GetTableRowNum(), 2);
  EXPECT_EQ(RowText(table[0]), L"30X1.5,30,9,9,9,9,9,9,9");
  EXPECT_EQ(RowText(table[1]), L"40X2,25,1,1,1,1,1,1,1");
  EXPECT_EQ(table.GetTableColName(2), L"壁厚");
}

TEST_F(RolledFile, IsNotWrittenWithWhatARecordCannotHold) {
  struct CCase {
    int style;
    const wchar_t* row;
    const wchar_t* said;
  };
  const CCase cases[] = {
      {17, L"12345678901234567890,25,1,1,1,1,1,1,1", L"at most 19 characters"},
      {2, L"12345678901234,1,1,1,1,1,1,1,1,1,1,1,1,1", L"at most 13 characters"},
      {17, L"25X1.5,25.5,1,1,1,1,1,1,1", L"\"25.5\" is no size"},
      {17, L"25X1.5,32768,1,1,1,1,1,1,1", L"\"32768\" is no size"},
      {17, L"25X1.5,25,one,1,1,1,1,1,1", L"t(mm): \"one\" is no number"},
  };
  const CString path = m_folder.Path(L"LWCIR.kvb");
  PutBytes(path, "before");
  for (const CCase& each : cases) {
    EXPECT_EQ(orv3::WriteRolledFile(path, each.style, TableOf(each.style, {each.row})), 0);
    EXPECT_GE(orv3::LastStoreError().m_strText.Find(each.said), 0)
        << orv3::LastStoreError().m_strText;
    EXPECT_EQ(Bytes(path), "before");
  }
  CDataTable table = TableOf(17, {L"A,25,1,1,1,1,1,1,1", L"B,25,1,1,1,1,1,1,1"});
  table[0].m_nModifyType = -1;
  ASSERT_EQ(orv3::WriteRolledFile(path, 17, table), 1);
  EXPECT_EQ(Bytes(path), Hex("6800") + TubeRecord("B"));
}

// --- Styles and records --------------------------------------------------------------------------

TEST(RolledStyle, IsKnownByNumberAndName) {
  CStringArray names;
  EXPECT_EQ(CReadFile::GetXGStyleName(names), 27);
  EXPECT_EQ(names.GetSize(), 27);
  for (int i = 0; i < names.GetSize(); ++i) {
    EXPECT_EQ(CReadFile::GetXGStyleNo(i), names[i]);
    EXPECT_EQ(CReadFile::GetXGStyleIndex(names[i].GetString()), i);
    EXPECT_TRUE(CLoadDataTable::IsTableNameType(names[i], orv3::kCatalogueTables)) << names[i];
  }
  EXPECT_EQ(names[25], L"热轧轻型槽钢[]组合");
  EXPECT_EQ(CReadFile::GetXGStyleNo(27), L"");
  EXPECT_EQ(CReadFile::GetXGStyleNo(-1), L"");
  EXPECT_EQ(CReadFile::GetXGStyleIndex(L"工字钢"), -1);
  EXPECT_EQ(CReadFile::GetXGStyleIndex(nullptr), -1);
  EXPECT_THROW(orv3::RolledLayout(27), CInvalidArgException);
}

TEST(RolledRecord, IsFilledFromARow) {
  dbangleiron angle;
  std::memset(&angle, 'x', sizeof angle);
  CDataTable angles = TableOf(0, {kAngleRow});
  EXPECT_EQ(CReadFile::TransDataItemToXGStruct(angles[0], &angle), 0);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(&angle), sizeof angle), AngleRecord());
  EXPECT_EQ(angle.t, 3);
  EXPECT_EQ(angle.zo, 16);
  EXPECT_EQ(angle.P[17].P, 360);

  // Cells that do not fit, and cells that are missing.
  CDataTable tubes = TableOf(17, {L"abcdefghijklmnopqrstuvw,99999,1.5,1,1,1,1,1,1"});
  tubes[0].m_arrCell.SetSize(3);
  LwCircleiron tube;
  EXPECT_EQ(CReadFile::TransDataItemToXGStruct(tubes[0], &tube), 17);
  EXPECT_EQ(std::u16string(tube.xh), u"abcdefghijklmnopqrs");
  EXPECT_EQ(tube.d, 32767);
  EXPECT_EQ(tube.t, 1.5);
  EXPECT_EQ(tube.i, 0);

  CDataItem other = tubes[0];
  other.m_strTableName = L"矩形截面";
  EXPECT_LT(CReadFile::TransDataItemToXGStruct(other, &tube), 0);
  EXPECT_EQ(CReadFile::TransXGStructToDataItem(17, &tube, other), 0);
  EXPECT_EQ(other.GetItemLength(), 3);
}

// --- The catalogue that the build makes ----------------------------------------------------------

class RolledCatalogue : public CatalogueStore {};

// The store and the data file hold what the CSV file prints, pairs as many rows as their component;
// the user's twin holds none.
TEST_F(RolledCatalogue, HasEveryPrintedRow) {
  int rows = 0;
  for (int style = 0; style < orv3::kRolledStyles; ++style) {
    const orv3::CRolledStyle& of = orv3::RolledStyles()[static_cast<std::size_t>(style)];
    const std::vector<CDataItem> stored = Rows(CReadFile::GetXGStyleNo(style));
    CLoadDataTable::SetOrvoPrgPath(L"nowhere/");
    CDataTable file;
    const CString folder = Folder();
    EXPECT_EQ(CReadFile::GetIronData((folder + CString(of.m_strFile)).GetString(), file), 1);
    EXPECT_EQ(CReadFile::GetIronData((folder + L"O" + CString(of.m_strFile)).GetString(), file), 0);
    CLoadDataTable::SetOrvoPrgPath(folder);
    const bool pair = orv3::IsPairTable(stored[0].GetTableName());
    const CDataTable printed =
        pair ? file : orv3::catalogue::ReadCsvTable(ORV3CAL_CATALOGUE_CSV, style);
    ASSERT_EQ(file.GetTableRowNum(), static_cast<int>(stored.size())) << style;
    ASSERT_EQ(printed.GetTableRowNum(), static_cast<int>(stored.size())) << style;
    for (int i = 0; i < printed.GetTableRowNum(); ++i) {
      const CDataItem& row = stored[static_cast<std::size_t>(i)];
      EXPECT_GE(row.m_nModifyType, 3);
      EXPECT_EQ(RowText(file[i]), RowText(row));
      for (int cell = 0; cell < row.GetItemLength(); ++cell) {
        const CString text = printed[i][cell].m_strValue;
        EXPECT_EQ(row[cell].m_strValue,
                  row[cell].m_nType == CDataTypeStruct::KVBT_STRING ? text : Written(text));
      }
    }
    CStringArray numbers;
    EXPECT_EQ(CReadFile::GetIronXh(style, numbers), 1);
    EXPECT_EQ(numbers.GetSize(), printed.GetTableRowNum());
    rows += printed.GetTableRowNum();
  }
  EXPECT_EQ(rows, 1097);
}

TEST_F(RolledCatalogue, FillsRecordsByModelNumber) {
  dbangleiron angle;
  EXPECT_EQ(CReadFile::GetIronData(L"L100X10", 0, reinterpret_cast<wchar_t*>(&angle)), 1);
  EXPECT_EQ(std::u16string(angle.xh), u"L100X10");
  EXPECT_EQ(angle.b, 100);
  EXPECT_EQ(angle.A, 19.261);
  EXPECT_EQ(angle.P[0].L, 0.6);
  PftIron tee;
  EXPECT_EQ(CReadFile::GetIronData(L"TW62.5X125", 26, reinterpret_cast<wchar_t*>(&tee)), 1);
  EXPECT_EQ(std::u16string(tee.h), u"62.5");
  EXPECT_EQ(tee.Cx, 1.19);
  EXPECT_EQ(CReadFile::GetIronData(L"L100X11", 0, reinterpret_cast<wchar_t*>(&angle)), 0);
  EXPECT_EQ(CReadFile::GetIronData(L"L100X10", 27, reinterpret_cast<wchar_t*>(&angle)), 0);
}

}  // namespace
