// Cell tests, search expressions, views and ordering.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "framework/number_text.h"
#include "print.h"
#include "tables/data_table.h"

namespace {

using T = CDataTypeStruct;

CDataTable Table(std::initializer_list<const wchar_t*> rows) {
  CDataTable table;
  table.SetTableName(L"型钢");
  table.AddTableCol(L"型号", L"No.", T::KVBT_STRING, 0);
  table.AddTableCol(L"宽", L"b(mm)", T::KVBT_DOUBLE, 0);
  table.AddTableCol(L"数", L"n", T::KVBT_INT, 0);
  for (const wchar_t* row : rows) table.AddTableItem(row, 1);
  return table;
}

std::wstring Names(const CDataTable& table) {
  std::wstring names;
  for (const CDataItem& row : table.m_arrItem) {
    names += (names.empty() ? L"" : L" ") + std::wstring(row[0].m_strValue.View());
  }
  return names;
}

TEST(CellTests, EqualityFollowsTheColumnType) {
  const CDataTable table = Table({L"1.0000001,1.0000001,7"});
  EXPECT_EQ(table.IsSelected(0, 1, L"1", 0), 1);
  EXPECT_EQ(table.IsSelected(0, 1, L"1.00001", 0), 0);
  EXPECT_EQ(table.IsSelected(0, 0, L"1", 0), 0);
  EXPECT_EQ(table.IsSelected(0, 2, L"7.9", 0), 1) << "integers compare their integer parts";
  EXPECT_EQ(table.IsComPile(0, 1, L"1", L"=="), 0);
  EXPECT_EQ(table.IsComPile(0, 1, L"1", L">="), 1);
  EXPECT_EQ(table.IsComPile(0, 2, L"7.5", L"<<"), 1);
  EXPECT_THROW(table.IsSelected(1, 0, L"", 0), CInvalidArgException);
  EXPECT_THROW(table.IsSelected(0, 3, L"", 0), CInvalidArgException);
}

TEST(CellTests, StarsStandForAnyText) {
  const CDataTable table = Table({L"I20a,25,7"});
  const struct {
    const wchar_t* pattern;
    int result;
  } cases[] = {{L"I20*", 1}, {L"*20a", 1}, {L"*20*", 1},   {L"*", 1},     {L"**", 1},
               {L"I20", 0},  {L"*I20", 0}, {L"a*", 0},     {L"I*a", 0},   {L"*x*", 0},
               {L"", 0},     {L"I20a", 1}, {L"*xI20a", 0}, {L"I20ax*", 0}};
  for (const auto& c : cases)
    EXPECT_EQ(table.IsSelected(0, 0, c.pattern, 1), c.result) << c.pattern;
  EXPECT_EQ(table.IsSelected(0, 0, L"I20*", 0), 0) << "wildcards off";
  EXPECT_EQ(table.IsSelected(0, 1, L"*5", 1), 1) << "wildcards look at the text of a number";
  EXPECT_EQ(table.IsSelected(0, 1, L"25.0", 1), 1);
}

TEST(Search, FollowsTheExpression) {
  CDataTable table = Table({L"I10,68,1", L"I20a,100,2", L"I20b,102,3", L"I36a,136,2", L"gone,1,1"});
  table[4].m_nModifyType = -1;
  const struct {
    const wchar_t* expression;
    int wildcard;
    const wchar_t* names;
  } cases[] = {
      {L"No.==I20a", 0, L"I20a"},
      {L"  No. ==I20*", 1, L"I20a I20b"},
      {L"No.== I20a", 0, L""},              // the value is not trimmed
      {L"No.!=I10", 0, L"I20a I20b I36a"},  // deleted rows stay out
      {L"b(mm)>>100", 0, L"I20b I36a"},
      {L"b(mm)>=100&&b(mm)<=102", 0, L"I20a I20b"},
      {L"n==3||n==2", 0, L"I20b I20a I36a"},             // in the order of the conditions
      {L"n==2||No.==I20a||n==3", 0, L"I20a I36a I20b"},  // each row once
      {L"n==2&&No.==I20a||n==3", 0, L""},                // "||" stays inside a part
      {L"x==1&&n==2", 0, L""},                           // no such column: nothing to filter
      {L"n==2&&x==1", 0, L"I20a I36a"},
      {L"b(mm)&&n==2", 0, L""},  // the first part has no operator
      {L"b(mm)||n==2", 0, L"I20a I36a"},
      {L"n==2&&b(mm)", 0, L"I20a I36a"},
      {L"==2", 0, L""},                      // no operator after the first character
      {L"", 0, L"I10 I20a I20b I36a gone"},  // everything, deleted rows too
      {L"  ", 0, L"I10 I20a I20b I36a gone"},
      {L"No.>>I20a", 0, L"I20b I36a"},           // texts in code unit order
      {L"n==2VIEWb(mm)VIEWn", 0, L"I20a I36a"},  // two views are none
  };
  for (const auto& c : cases) {
    const CDataTable found = table.SearchTable(c.expression, c.wildcard);
    EXPECT_EQ(Names(found), c.names) << CString(c.expression);
    EXPECT_EQ(found.GetTableName(), L"型钢_1");
    EXPECT_EQ(found.m_pParentTable, &table);
    EXPECT_EQ(found.m_Title.IsEqualOf(table.m_Title), 1);
  }
}

TEST(Search, KeepsRowsAsTheyAre) {
  CDataTable table = Table({L"I10,68,1", L"I20a,100,2"});
  const CDataTable found = table.SearchTable(L"n==2VIEW n <<>>No.<<>>unknown", 0);
  EXPECT_EQ(found.GetTableColNum(), 2);
  EXPECT_EQ(found.GetTableColSign(0), L"No.") << "in the table's order";
  ASSERT_EQ(found.GetTableRowNum(), 1);
  EXPECT_EQ(found[0].m_nIndex, 1);
  EXPECT_EQ(found[0].m_nModifyType, 1);
  EXPECT_EQ(found[0].m_strTableName, L"型钢") << "a row found still tells its section style";
  EXPECT_EQ(found[0][1].m_strValue, L"2");
  EXPECT_EQ(table.ViewTable(L" ").GetTableColNum(), 3);
}

TEST(Search, PositionsAreAddedOrFiltered) {
  const CDataTable table = Table({L"I10,68,1", L"I20a,100,2", L"I20b,102,3"});
  CArray<int, int> found;
  found.Add(2);
  const auto plain = [&] { return std::vector<int>(found.begin(), found.end()); };
  EXPECT_EQ(table.SearchTableIndex(found, L" n ", L"2", L" >= ", 0, 0), 1);
  EXPECT_EQ(plain(), (std::vector<int>{2, 1}));
  EXPECT_EQ(table.SearchTableIndex(found, L"No.", L"*a", L"==", 1, 1), 1);
  EXPECT_EQ(plain(), (std::vector<int>{1}));
  EXPECT_EQ(table.SearchTableIndex(found, L"x", L"2", L"==", 0, 0), 0);
  EXPECT_EQ(table.SearchTableIndex(found, L"n", L"2", L" ", 0, 0), 0);
  EXPECT_EQ(plain(), (std::vector<int>{1}));
  EXPECT_EQ(table.SearchTableIndex(found, L"n", L"2", L"~~", 1, 0), 1);
  EXPECT_TRUE(found.IsEmpty()) << "an unknown operator matches nothing";
  EXPECT_EQ(table.IsHaveValue(2, L"3", -1), 2);
  EXPECT_EQ(table.IsHaveValue(2, L"3", 2), -1);
  EXPECT_EQ(table.IsHaveValue(7, L"3", -1), -1);
}

// The sorting that the order is defined by: each row goes before the first earlier row whose ">>"
// against it equals the direction.
void OrderByInsertion(CDataTable& table, int col, int ascending) {
  for (int i = 1; i < table.GetTableRowNum(); ++i) {
    const CString value = table[i][col].m_strValue;
    for (int j = 0; j < i; ++j) {
      if (table.IsComPile(j, col, value, L">>") != ascending) continue;
      const CDataItem row = table[i];
      table.m_arrItem.RemoveAt(i);
      table.m_arrItem.InsertAt(j, row);
      break;
    }
  }
}

TEST(Order, IsThatOfTheInsertion) {
  std::mt19937 random(7);
  for (int col = 0; col < 3; ++col) {
    for (const int ascending : {0, 1, 2}) {
      CDataTable table = Table({});
      for (int i = 0; i < 120; ++i) {
        CStringArray values;
        for (int c = 0; c < 3; ++c) {
          values.Add(orv3::FormatInt(static_cast<int>(random() % 30)) +
                     (random() % 3 ? L"" : L".0"));
        }
        table.AddTableItem(values, 1);
      }
      CDataTable expected(table);
      OrderByInsertion(expected, col, ascending);
      EXPECT_EQ(table.OrderTable(col, ascending), 1);
      for (int i = 0; i < 120; ++i) {
        ASSERT_EQ(table[i].m_nIndex, expected[i].m_nIndex) << col << ' ' << ascending << ' ' << i;
      }
    }
  }
}

TEST(Order, ComparesByTheColumnType) {
  CDataTable table = Table({L"9,9,9", L"10,10,10"});
  EXPECT_EQ(table.OrderTable(L"No.", 1), 1);
  EXPECT_EQ(Names(table), L"10 9");
  EXPECT_EQ(table.OrderTable(L"b(mm)", 1), 1);
  EXPECT_EQ(Names(table), L"9 10");
  EXPECT_EQ(table.OrderTable(L"x", 1), 0);
  EXPECT_EQ(table.OrderTable(3, 1), 0);
  CDataItem& held = table[0];
  table.OrderTable(2, 0);
  EXPECT_EQ(&held, &table[1]) << "a row that a caller holds keeps its address";
}

TEST(Order, StopsAtARowWithoutTheColumn) {
  CDataTable table = Table({L"c,1,1", L"b,2,2", L"a,3,3", L"0,4,4"});
  table[2].Clear();
  EXPECT_THROW(table.OrderTable(0, 1), CInvalidArgException);
  EXPECT_EQ(table[0][0].m_strValue, L"b");
  EXPECT_EQ(table[3][0].m_strValue, L"0");
}

}  // namespace
