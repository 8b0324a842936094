// Columns, rows and their edit states, import, and the checks of typed-in numbers.

#include "tables/data_table.h"

#include <gtest/gtest.h>

#include <optional>

#include "print.h"
#include "tables/aligned_indices.h"

namespace {

using T = CDataTypeStruct;

// No. (key), b (double), n (int).
CDataTable Table() {
  CDataTable table;
  table.SetTableName(L"型钢");
  table.AddTableCol(L"型号", L"No.", T::KVBT_STRING, 1);
  table.AddTableCol(L"宽", L"b", T::KVBT_DOUBLE, 0);
  table.AddTableCol(L"数", L"n", T::KVBT_INT, 0);
  return table;
}

// The rows I10, I20, ... as if they had been read from a file.
CDataTable Loaded(int rows) {
  CDataTable table = Table();
  for (int i = 0; i < rows; ++i) {
    CDataItem row;
    row.SetItemTitle(table.m_Title);
    row.m_nIndex = i;
    row[0].m_strValue = L"I" + CString(std::to_wstring(10 * (i + 1)));
    table.AddTableItem(row, 0, 1);
  }
  return table;
}

std::vector<std::wstring> Names(const CDataTable& table) {
  std::vector<std::wstring> names;
  for (const CDataItem& row : table.m_arrItem) names.emplace_back(row[0].m_strValue.View());
  return names;
}

TEST(TableColumns, ChangeOnlyWithinRange) {
  CDataTable table = Table();
  EXPECT_EQ(table.InsertTableCol(4, {}), 0);
  EXPECT_EQ(table.InsertTableCol(-1, {}), 0);
  EXPECT_EQ(table.InsertTableCol(3, L"末", L"end", T::KVBT_CHAR, 0), 1);
  EXPECT_EQ(table.GetTableColIndex(L"end"), 3);
  EXPECT_EQ(table.SetTableColTitle(3, CString(L'x', 65), CString(L'y', 21), T::KVBT_LONG, 1), 1);
  EXPECT_EQ(table.GetTableColName(3).GetLength(), 64);
  EXPECT_EQ(table.GetTableColSign(3).GetLength(), 20);
  EXPECT_EQ(table.GetDataTableColType(3), T::KVBT_LONG);
  EXPECT_EQ(table.GetTableColKey(3), 1);
  EXPECT_EQ(table.SetTableColKey(4, 1), 0);
  EXPECT_EQ(table.GetTableColKey(4), 0);
  EXPECT_EQ(table.GetTableColName(-1), L"");
}

// The range test of GetTableColTitle counts rows.
TEST(TableColumns, TitleIsTestedAgainstTheRows) {
  EXPECT_EQ(Table().GetTableColTitle(0).m_strSign, L"");
  const CDataTable five = Loaded(5);
  EXPECT_EQ(five.GetTableColTitle(1).m_strSign, L"b");
  EXPECT_THROW(five.GetTableColTitle(3), CInvalidArgException);
  EXPECT_EQ(five.GetTableColTitle(5).m_strSign, L"");
  EXPECT_EQ(five.GetTableColTitle(-1).m_strSign, L"");
}

TEST(TableColumns, ComeFromARow) {
  CDataTable loaded = Loaded(1);
  EXPECT_EQ(loaded.setTableTitle(loaded[0]), 0);
  CDataTable table = Table();
  EXPECT_EQ(table.setTableTitle(CDataItem()), 0);
  CDataItem row = loaded[0];
  row.m_arrCell.RemoveAt(2);
  EXPECT_EQ(table.setTableTitle(row), 1);
  EXPECT_EQ(table.GetTableColNum(), 2);
  EXPECT_EQ(table.GetTableColKey(0), 1);
}

TEST(TableNames, ReachTheRows) {
  CDataTable table = Loaded(2);
  table.SetTableName(CString(L'名', 65));
  EXPECT_EQ(table[1].m_strTableName, CString(L'名', 64));
  table.SetTableFileInfo(L"line");
  CDataTable copy(table);
  EXPECT_EQ(copy.m_strFileInfo, L"") << "a copy has no file of its own";
  EXPECT_EQ(copy[1].m_strFileInfo, L"line");
  const CDataTable& self = table;
  EXPECT_THROW(table = self, CInvalidArgException);
  table.m_strSavePath = L"dir/";
  table.ClearTable();
  EXPECT_EQ(table.GetTableColNum() + table.GetTableRowNum(), 0);
  EXPECT_EQ(table.GetSaveTablePath(), L"dir/");
  EXPECT_EQ(table.m_strFileInfo, L"line");
}

TEST(TableNames, ParentMustBeAsLarge) {
  CDataTable small = Loaded(2);
  CDataTable large = Loaded(3);
  EXPECT_EQ(large.SetParentTable(&small), 0);
  EXPECT_EQ(small.SetParentTable(&large), 1);
  EXPECT_EQ(small.GetFullTableRowNum(), 3);
  EXPECT_EQ(small.SetParentTable(nullptr), 1);
  EXPECT_EQ(small.GetFullTableRowNum(), 2);
}

TEST(TableRows, RefuseADuplicateWithItsKey) {
  CDataTable table = Table();
  table.SetTableColKey(2, 1);
  CMessageCatcher messages;
  EXPECT_EQ(table.AddTableItem(L"I20a,1.5,200", 1), 1);
  EXPECT_EQ(table.AddTableItem(L"I20a,9,200", 1), 0);
  ASSERT_EQ(messages.m_arrMessage.size(), 1U);
  EXPECT_EQ(messages.m_arrMessage[0].m_strText, L"型号=I20a、数=200，该条数据记录已经存在!");
  EXPECT_EQ(messages.m_arrMessage[0].m_nButtons, orv3::CMessageButtons::Ok);
  EXPECT_EQ(table.AddTableItem(L"I20a,9,201", 1), 1);
  EXPECT_EQ(table.AddTableItem(L"I20a,9", 1), 0) << "two values for three columns";
  EXPECT_EQ(table.ModifyTableItem(1, L"I20a,9,200"), 0);
  EXPECT_EQ(table.ModifyTableItem(0, L"I20a,7,200"), 1) << "its own row is no duplicate";
  EXPECT_EQ(table[0].m_nModifyType, 2);
  EXPECT_EQ(messages.m_arrMessage.size(), 2U);
  EXPECT_EQ(table.ModifyTableItem(7, L"I1,1,1"), 0);
}

TEST(TableRows, AddAfterDeletionTakesIndexAndSlot) {
  CDataTable table = Loaded(3);
  EXPECT_EQ(table.DeleteTableItem(1), 1);
  EXPECT_EQ(table.DeleteTableItem(9), 0);
  EXPECT_EQ(table[1].m_nModifyType, -1);
  EXPECT_EQ(table.GetTableRowNum(), 3);
  EXPECT_EQ(table.GetRealTableRowNum(), 2);
  CDataItem row = table[1];
  EXPECT_EQ(table.AddTableItem(row, 0), 1) << "a deleted row's key is free";
  EXPECT_EQ(row.m_nIndex, 1);
  EXPECT_EQ(row.m_nModifyType, 3);
  EXPECT_EQ(table.GetTableRowNum(), 3);
  EXPECT_EQ(table[1].m_nModifyType, 3);
  EXPECT_EQ(table.DeleteTableItem(1), 1);
  EXPECT_EQ(Names(table), (std::vector<std::wstring>{L"I10", L"I30"})) << "never saved: gone";
  EXPECT_EQ(table.GetTableIndex(2), 1);
  EXPECT_EQ(table.GetTableIndex(1), -1);
  EXPECT_EQ(table.GetTableIndex(-1), -1);
}

// After sorting, a deleted row's index is not its position; the row at that position gives way.
TEST(TableRows, TheSlotIsThePositionOfTheIndex) {
  CDataTable table = Loaded(3);
  table.OrderTable(0, 0);
  table.DeleteTableItem(0);
  EXPECT_EQ(table.AddTableItem(L"new,1,1", 1), 1);
  EXPECT_EQ(Names(table), (std::vector<std::wstring>{L"new", L"I20", L"I10"}));
  CDataTable gone = Loaded(1);
  gone.m_arrItem[0].m_nIndex = 5;
  gone.DeleteTableItem(5);
  EXPECT_THROW(gone.AddTableItem(L"new,1,1", 1), CInvalidArgException);
}

// The first row was deleted before its first save: no index is its row's position.
TEST(TableRows, AlignedATableGivesANewRowTheDeletedRowsPlace) {
  CDataTable table = Loaded(3);
  table.m_arrItem.RemoveAt(0);
  orv3::AlignIndices(table);
  EXPECT_EQ(table[1].m_nIndex, 1);
  EXPECT_EQ(table[1].m_nModifyType, 2);
  EXPECT_EQ(table.DeleteTableItem(0), 1);
  EXPECT_EQ(table.AddTableItem(L"new,1,1", 1), 1);
  EXPECT_EQ(Names(table), (std::vector<std::wstring>{L"new", L"I30"}));
}

TEST(TableRows, AnUncheckedRowIsAppendedAsItIs) {
  CDataTable table = Loaded(1);
  CDataItem row = table[0];
  row.m_nIndex = 77;
  row.m_nModifyType = -2;
  EXPECT_EQ(table.AddTableItem(row, 1, 1), 1);
  EXPECT_EQ(table[1].m_nIndex, 77);
  EXPECT_EQ(table.DeleteTableItem(77), 1);
  EXPECT_EQ(table[1].m_nModifyType, -2) << "deleted twice";
}

TEST(TableImport, MergesRowsByKey) {
  CDataTable table = Loaded(2);
  CDataItem row = table[1];
  row[1].m_strValue = L"9";
  EXPECT_EQ(table.ImportTableItem(row, 0), 0);
  EXPECT_EQ(table.ImportTableItem(row, 1), 1);
  EXPECT_EQ(table[1][1].m_strValue, L"9");
  EXPECT_EQ(table[1].m_nModifyType, 1);
  row[0].m_strValue = L"I99";
  row.m_nModifyType = 4;
  EXPECT_EQ(table.ImportTableItem(row, 0), 1);
  EXPECT_EQ(row.m_nIndex, 2);
  EXPECT_EQ(row.m_nModifyType, 3);
  row.m_nModifyType = -1;
  row[0].m_strValue = L"gone";
  EXPECT_EQ(table.ImportTableItem(row, 1), 1);
  EXPECT_EQ(table.GetTableRowNum(), 3);
  row.m_arrCell.RemoveAt(0);
  EXPECT_EQ(table.ImportTableItem(row, 1), 0);
}

TEST(TableImport, TakesAWholeTableOfTheSameName) {
  CDataTable other = Loaded(3);
  CDataTable table;
  EXPECT_EQ(table.ImporDatatTable(other, 0), 0) << "another name";
  table.SetTableName(other.GetTableName());
  EXPECT_EQ(table.ImporDatatTable(other, 0), 1);
  EXPECT_EQ(Names(table), Names(other));
  EXPECT_EQ(table.ImporDatatTable(other, 1), 1);
  EXPECT_EQ(table.GetTableRowNum(), 3);
  other.SetTableColKey(1, 1);
  EXPECT_EQ(table.ImporDatatTable(other, 1), 0) << "another heading";
  EXPECT_EQ(other[0].m_nModifyType, 1) << "the rows given carry the state they got";
}

TEST(TypedNumbers, IntegersMustBeWrittenPlainly) {
  const std::pair<const wchar_t*, std::optional<long>> cases[] = {
      {L" 42 ", 42}, {L"007", 7},  {L"000", 0},        {L"-5", -5},  {L"100", 100},
      {L"+5", {}},   {L"", {}},    {L"4.0", {}},       {L"101", {}}, {L"-101", {}},
      {L"-05", {}},  {L"1e1", {}}, {L"4294967297", {}}};
  for (const auto& [text, expected] : cases) {
    long value = -999;
    EXPECT_EQ(CDataTable::CheckInt(text, value, 100, -100), expected.has_value()) << text;
    EXPECT_EQ(value, expected.value_or(-999)) << text;
  }
}

TEST(TypedNumbers, DoublesMayHaveAnExponent) {
  const std::pair<const wchar_t*, std::optional<double>> cases[] = {
      {L" 0.5 ", 0.5},     {L"00.5", 0.5},          {L"0", 0},
      {L"5.", 5},          {L"-2.25", -2.25},       {L"1.5e3", 1500},
      {L"1.5E+003", 1500}, {L"2e-2", 0.02},         {L"+5", {}},
      {L"", {}},           {L"1.5mm", {}},          {L"1e0", {}},
      {L"1e", {}},         {L"1e2.5", {}},          {L"1e9", {}},
      {L"abc", {}},        {L"0.1234567890123", {}}};
  for (const auto& [text, expected] : cases) {
    double value = -999;
    EXPECT_EQ(CDataTable::CheckDouble(text, value, 1e6, -1e6), expected.has_value()) << text;
    EXPECT_EQ(value, expected.value_or(-999)) << text;
  }
}

TEST(Texts, SplitAtEverySeparator) {
  CStringArray out;
  const auto split = [&](const wchar_t* text, const wchar_t* separator) {
    CDataTable::TransStrToArray(text, separator, out);
    return std::vector<CString>(out.begin(), out.end());
  };
  EXPECT_EQ(split(L"a,,b", L","), (std::vector<CString>{L"a", L"", L"b"}));
  EXPECT_EQ(split(L"", L","), (std::vector<CString>{L""}));
  EXPECT_EQ(split(L"a,,,,b", L",,,"), (std::vector<CString>{L"a", L",b"}));
  EXPECT_EQ(split(L"a,", L","), (std::vector<CString>{L"a", L""}));
}

}  // namespace
