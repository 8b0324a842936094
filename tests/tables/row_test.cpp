// Column descriptors, cells and rows.

#include <gtest/gtest.h>

#include <memory>

#include "print.h"
#include "tables/data_item.h"
#include "tables/data_table.h"

namespace {

using T = CDataTypeStruct;

CDataCell Cell(T::KVBT_Value_Type type, const wchar_t* value) {
  CDataCell cell;
  cell.SetValue(value, L"名", L"s");
  cell.SetItemValueType(type);
  return cell;
}

// Reads a value, or keeps the one that is there when the cell's type is another.
template <class VALUE>
void ExpectRead(const CDataCell& cell, bool readable, VALUE expected, VALUE value) {
  const VALUE kept = value;
  EXPECT_EQ(cell.GetItemValue(value), readable);
  EXPECT_EQ(value, readable ? expected : kept);
}

TEST(Cell, IsReadOnlyAsItsOwnType) {
  for (const auto type : {T::KVBT_STRING, T::KVBT_INT, T::KVBT_LONG, T::KVBT_FLOAT, T::KVBT_DOUBLE,
                          T::KVBT_LONG_ALT, T::KVBT_CHAR}) {
    SCOPED_TRACE(type);
    const CDataCell cell = Cell(type, L"12.5");
    ExpectRead(cell, type == T::KVBT_STRING, CString(L"12.5"), CString(L"kept"));
    ExpectRead(cell, type == T::KVBT_INT, 12, -1);
    ExpectRead(cell, type == T::KVBT_LONG || type == T::KVBT_LONG_ALT, 12L, -1L);
    ExpectRead(cell, type == T::KVBT_FLOAT, 12.5F, -1.0F);
    ExpectRead(cell, type == T::KVBT_DOUBLE, 12.5, -1.0);
    ExpectRead(cell, type == T::KVBT_CHAR, L'1', L'?');
  }
  ExpectRead(Cell(T::KVBT_CHAR, L""), true, L'\0', L'?');
  ExpectRead(Cell(T::KVBT_LONG_ALT, L"-99999999999"), true, -2147483647L - 1, 0L);
}

CDataTableTitle Title() {
  CDataTableTitle title;
  title.InsertColumn(0, {L"型号", L"No.", T::KVBT_STRING, 1});
  title.InsertColumn(1, {L"宽", L"b", T::KVBT_DOUBLE, 0});
  title.InsertColumn(2, {L"宽二", L"b", T::KVBT_INT, 0});
  return title;
}

TEST(Title, CutsTextsAndReportsPositions) {
  CDataTableTitle title = Title();
  EXPECT_EQ(title.SetDataTableTitle(0, CString(L'钢', 70)), 1);
  EXPECT_EQ(title.GetColName(0), CString(L'钢', 64));
  EXPECT_EQ(title.SetDataTableSign(3, L"x"), 0);
  EXPECT_EQ(title.SetDataTableKeyIndex(2, 5), 1);
  CArray<int, int> keys;
  keys.Add(99);
  title.GetDataTableKeyIndex(keys);
  EXPECT_EQ(std::vector<int>(keys.begin(), keys.end()), (std::vector<int>{0, 2}));
  EXPECT_EQ(title.GetColName(-1), L"");
  EXPECT_EQ(title.GetColIndex(L"B"), -1);
  EXPECT_EQ(title.GetColIndex(L"b"), 1) << "the first of two equal signs";
  EXPECT_EQ(title.GetColType(1), T::KVBT_STRING) << "text, whatever the column's type";
  EXPECT_THROW(title.GetColType(3), CInvalidArgException);
}

TEST(Title, ComparesEveryAttribute) {
  const CDataTableTitle title = Title();
  EXPECT_EQ(title.IsEqualOf(Title()), 1);
  EXPECT_EQ(CDataTableTitle().IsEqualOf(CDataTableTitle()), 1);
  EXPECT_EQ(title.IsEqualOf(CDataTableTitle()), 0);
  CDataTableTitle others[4] = {title, title, title, title};
  others[0][1].m_strName = L"高";
  others[1][1].m_strSign = L"B";
  others[2][1].m_nType = T::KVBT_FLOAT;
  others[3][1].m_bKey = 1;
  for (const CDataTableTitle& other : others) EXPECT_EQ(title.IsEqualOf(other), 0);
}

TEST(Row, FindsCellsBySign) {
  CDataItem row;
  EXPECT_EQ(row.GetSignIndex(L"b"), -1);
  EXPECT_EQ(row.SetDataItemValue(L"1"), 0) << "a row without cells";
  row.SetItemTitle(Title());
  EXPECT_EQ(row.SetDataItemValue(L"a,b"), 0);
  EXPECT_EQ(row[0].m_strValue, L"");
  EXPECT_EQ(row.SetDataItemValue(L"I20a,100,200"), 1);
  EXPECT_EQ(row[L"b"].m_strValue, L"100");
  double b = 0;
  EXPECT_EQ(row.GetCellValue(L"b", b), 1);
  EXPECT_EQ(b, 100);
  EXPECT_EQ(row.GetCellValue(L"x", b), 0);
  EXPECT_EQ(row.GetCellValue(3, b), 0);
  EXPECT_THROW(row[L"x"], CInvalidArgException);
  EXPECT_THROW(row[3], CInvalidArgException);
  EXPECT_EQ(row.GetCellName(1), L"宽");
  EXPECT_EQ(row.GetCellSign(7), L"");
  row.SetItemTitle(Title());
  EXPECT_EQ(row.GetItemLength(), 6) << "cells that are there stay in front";
}

TEST(Row, NullTextsAreEmptyOnes) {
  const wchar_t* const sign = nullptr;
  const char* const stored = nullptr;
  CDataTable table;
  table.SetTableName(L"T");
  table.m_Title = Title();
  CDataItem row;
  row.SetItemTitle(Title());
  EXPECT_EQ(table.GetTableColIndex(sign), -1);
  EXPECT_EQ(table.m_Title.GetColIndex(sign), -1);
  EXPECT_EQ(row.GetSignIndex(sign), -1);
  EXPECT_EQ(CDataTable::TransFakeToString(stored), L"");
  EXPECT_EQ(table.TransItemToNormal(stored), 0);
  CDataTypeStruct column = Title()[0];
  column.TransToNormal(stored);
  EXPECT_EQ(column.m_strSign, L"");
  CDataTableTitle title = Title();
  title.TransToNormal(stored);
  EXPECT_EQ(title.GetTableTitleNum(), 0);
  CDataFileInfo().TransToNormal(stored);
}

TEST(Row, CopiesEverythingAndRefusesItself) {
  CDataItem row;
  row.m_strFileInfo = L"info";
  row.m_strTableName = L"T";
  row.m_nIndex = 4;
  row.m_nModifyType = 2;
  row.SetItemTitle(Title());
  CDataItem copy;
  copy.SetItemTitle(Title());
  copy = row;
  EXPECT_EQ(copy.m_strFileInfo, L"info");
  EXPECT_EQ(copy.GetTableName(), L"T");
  EXPECT_EQ(copy.GetItemIndex(), 4);
  EXPECT_EQ(copy.GetItemModifyType(), 2);
  EXPECT_EQ(copy.GetItemLength(), 3);
  const CDataItem& self = row;
  EXPECT_THROW(row = self, CInvalidArgException);
  row.Clear();
  EXPECT_EQ(row.IsEmpty(), 1);
  EXPECT_EQ(row.GetTableName(), L"T");
}

}  // namespace
