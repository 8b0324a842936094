// The key check must answer as a walk over all rows does, whatever a caller has done to the rows in
// between.

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "framework/number_text.h"
#include "print.h"
#include "tables/data_table.h"

namespace {

using T = CDataTypeStruct;

// The key check by its definition: one search per key column.
bool WalkFinds(const CDataTable& table, const CDataItem& row) {
  CArray<int, int> keys;
  table.m_Title.GetDataTableKeyIndex(keys);
  CArray<int, int> found;
  for (int i = 0; i < keys.GetSize(); ++i) {
    const CString sign = table.GetTableColSign(keys[i]);
    const CString value = row[keys[i]].m_strValue;
    table.SearchTableIndex(found, sign.GetString(), value.GetString(), L"==", i > 0, 0);
  }
  return !found.IsEmpty();
}

// The answer of the walk, or -1 when it raises the invalid-argument exception.
template <class ANSWER>
int Outcome(ANSWER answer) {
  try {
    return answer();
  } catch (const CInvalidArgException&) {
    return -1;
  }
}

class KeyCheck : public ::testing::Test {
 protected:
  static CDataTable Table(T::KVBT_Value_Type first, T::KVBT_Value_Type second) {
    CDataTable table;
    table.AddTableCol(L"a", L"a", first, 1);
    table.AddTableCol(L"v", L"v", T::KVBT_STRING, 0);
    table.AddTableCol(L"b", L"b", second, 1);
    return table;
  }
  static CDataItem Row(const CDataTable& table, const CString& a, const CString& b) {
    CDataItem row;
    row.SetItemTitle(table.m_Title);
    row[0].m_strValue = a;
    row[2].m_strValue = b;
    return row;
  }
  // Whether the first deleted row's index, whose position a new row takes, is a position at all.
  static bool HasSlot(const CDataTable& table) {
    for (const CDataItem& row : table.m_arrItem) {
      if (row.m_nModifyType < 0) return row.m_nIndex >= 0 && row.m_nIndex < table.GetTableRowNum();
    }
    return true;
  }
  // Adds and compares the answer with the walk's.
  static void Add(CDataTable& table, CDataItem row) {
    int expected = Outcome([&] { return WalkFinds(table, row) ? 0 : 1; });
    if (expected == 1 && !HasSlot(table)) expected = -1;
    ASSERT_EQ(Outcome([&] { return table.AddTableItem(row, 1); }), expected) << row[0].m_strValue;
  }
  CMessageCatcher m_messages;
};

TEST_F(KeyCheck, SeesChangesThroughHeldReferences) {
  CDataTable table = Table(T::KVBT_STRING, T::KVBT_STRING);
  Add(table, Row(table, L"x", L"1"));
  CDataItem& held = table[0];
  CString& text = held[0].m_strValue;
  Add(table, Row(table, L"y", L"1"));
  text = L"z";
  EXPECT_EQ(table.AddTableItem(L"z,,1", 1), 0);
  EXPECT_EQ(table.AddTableItem(L"x,,1", 1), 1);
  held.m_nModifyType = -1;
  EXPECT_EQ(table.AddTableItem(L"z,,1", 1), 1) << "a row deleted through a reference";
  EXPECT_EQ(&held, &table[0]);
  table.m_Title[2].m_bKey = 0;
  EXPECT_EQ(table.AddTableItem(L"y,,9", 1), 0) << "a key column was taken away";
  held.Clear();
  EXPECT_THROW(table.AddTableItem(L"q,,1", 1), CInvalidArgException) << "a row without key cells";
  table.m_arrItem.RemoveAt(0);
  EXPECT_EQ(table.AddTableItem(L"q,,1", 1), 1);
}

TEST_F(KeyCheck, ComparesNumbersAsNumbers) {
  CDataTable table = Table(T::KVBT_DOUBLE, T::KVBT_LONG);
  Add(table, Row(table, L"100", L"7"));
  for (const wchar_t* a : {L"1e2", L"100.0000009", L"99.9999991", L"100.0000011", L"99.9999989"}) {
    Add(table, Row(table, a, L" 7mm"));
  }
  EXPECT_EQ(table.GetTableRowNum(), 3);
  for (const wchar_t* a : {L"0", L"-0", L"1e-7", L"1e999", L"1e999", L"-1e999", L"1e300"}) {
    Add(table, Row(table, a, L"7"));
  }
}

// Around the places where the index parts the numbers, and with more columns than it hashes.
TEST_F(KeyCheck, FindsNumbersOnBothSidesOfAnEdge) {
  for (int columns = 1; columns <= 26; columns += 5) {
    CDataTable table;
    for (int i = 0; i < columns; ++i)
      table.AddTableCol(L"a", orv3::FormatInt(i), T::KVBT_DOUBLE, 1);
    for (const double base : {0.0, 12.0, -7.5, 200.0}) {
      for (double step = 5.0e-5; step < 6.0e-5; step += 2.5e-7) {
        CDataItem row;
        row.SetItemTitle(table.m_Title);
        for (int i = 0; i < columns; ++i) row[i].m_strValue = orv3::FormatFixed(base + step, 9);
        Add(table, row);
      }
    }
  }
}

// Random work on a table through every door that a caller has.
TEST_F(KeyCheck, AgreesWithTheWalkUnderRandomWork) {
  const T::KVBT_Value_Type types[] = {T::KVBT_STRING, T::KVBT_INT, T::KVBT_DOUBLE, T::KVBT_FLOAT};
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 random(seed);
    const auto below = [&](int bound) {
      return static_cast<int>(random() % static_cast<unsigned>(bound));
    };
    CDataTable table = Table(types[seed % 4], types[seed / 4 % 4]);
    const auto value = [&] {
      const wchar_t* tails[] = {L"", L".0000004", L".0", L"x"};
      return orv3::FormatInt(below(9)) + tails[below(4)];
    };
    const auto row = [&] { return Row(table, value(), value()); };
    const auto position = [&] { return below(table.GetTableRowNum()); };
    CDataItem* held = nullptr;
    const std::function<void()> work[] = {
        [&] { held = &table[position()]; },
        [&] {  // through a reference from before, to a row that may have moved since
          for (int i = 0; i < table.GetTableRowNum(); ++i) {
            if (&std::as_const(table)[i] != held || !table.m_arrItem.IsHandedOut(i)) continue;
            (*held)[below(2) * 2].m_strValue = value();
            held->m_nIndex = below(30);
            held->m_nModifyType = below(4) - 2;
          }
        },
        [&] { table.DeleteTableItem(std::as_const(table)[position()].m_nIndex); },
        [&] { table[position()][below(2) * 2].SetItemValue(value()); },
        [&] { table.DeleteTableItem(below(table.GetTableRowNum() + 2)); },
        [&] { table.ModifyTableItem(position(), value() + L",," + value()); },
        [&] { table.OrderTable(below(3), below(2)); },
        [&] {
          const int at = position();
          if (at > 0) std::swap(table.m_arrItem[at], table.m_arrItem[at - 1]);
        },
        [&] {
          if (table.GetTableRowNum() > 20) table.m_arrItem.RemoveAt(position());
        },
        [&] { table.m_arrItem.InsertAt(position(), row()); },
        [&] { table.m_arrItem[position()].m_nModifyType = below(4) - 2; },
        // Signs of the key columns: both compared with the first column of that sign, or, with a
        // blank in front that is trimmed before it is looked up, never found.
        [&] {
          const int column = below(2) * 2;
          const wchar_t* const own = column == 0 ? L"a" : L"b";
          table.SetTableColSign(column, below(9) ? own : below(2) ? L"a" : L" x");
        },
        [&] {
          CDataItem added = row();
          added.m_nIndex = position();
          added.m_nModifyType = below(3) - 1;
          table.AddTableItem(added, 0, 1);
        },
        [&] {
          CDataItem imported = row();
          const bool present = WalkFinds(table, imported);
          ASSERT_EQ(table.IsHaveValue(imported, -1) >= 0, present);
          ASSERT_EQ(table.ImportTableItem(imported, 0), present ? 0 : 1);
        }};
    for (int step = 0; step < 600; ++step) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
      const int at = below(static_cast<int>(std::size(work)) + 4);
      if (table.GetTableRowNum() == 0 || at >= static_cast<int>(std::size(work))) {
        Add(table, row());
      } else {
        work[at]();
      }
      ASSERT_FALSE(HasFatalFailure());
      const int index = below(30);
      int first = -1;
      for (int i = table.GetTableRowNum() - 1; i >= 0; --i) {
        if (std::as_const(table)[i].m_nIndex == index) first = i;
      }
      ASSERT_EQ(table.GetTableIndex(index), first);
    }
  }
}

}  // namespace
