// Saves that faults are tried on: a store before each, and the table that is about to be saved.
#pragma once

#include "tables/table_file_tools.h"

namespace scenarios {

enum CScenario : int { kChange, kDelete, kGrow, kNewTable, kNewFile, kSorted, kStale, kCount };

inline const char* const kNames[] = {"change a row", "delete and add", "grow", "new table",
                                     "new file",     "sorted",         "stale"};

// Makes the store: 95 rows of one table and 2 of another.
inline void Prepare(const CString& path) {
  CDataTable table = SectionTable();
  FillUp(table, 95);
  EXPECT_EQ(table.WriteTable(path, 0, 0), 1);
  CDataTable second = SectionTable(L"B");
  AddRow(second, L"B1");
  AddRow(second, L"B2");
  EXPECT_EQ(second.WriteTable(path, 0, 0), 1);
}

// The table with unsaved changes.
inline CDataTable Start(const CString& path, int scenario) {
  if (scenario == kNewTable || scenario == kNewFile) {
    CDataTable table = SectionTable(L"C");
    FillUp(table, 150);
    return table;
  }
  CDataTable table = Loaded(path);
  if (scenario == kStale) {  // another process saves meanwhile
    CDataTable other = table;
    EXPECT_EQ(other.ModifyTableItem(20, L"I20,888"), 1);
    AddRow(other, L"their new");
    EXPECT_EQ(other.WriteTable(path, 0, 0), 1);
    EXPECT_EQ(table.ModifyTableItem(60, L"I60,999"), 1);
    AddRow(table, L"my new");
  }
  if (scenario == kChange || scenario == kSorted) {
    if (scenario == kSorted) table.OrderTable(0, 0);
    EXPECT_EQ(table.ModifyTableItem(50, L"I50,777"), 1);
  }
  if (scenario == kDelete) {
    EXPECT_EQ(table.DeleteTableItem(3), 1);
    EXPECT_EQ(table.DeleteTableItem(90), 1);
    AddRow(table, L"new");
  }
  if (scenario == kGrow) FillUp(table, 200);
  return table;
}

// Every table of the store with its rows, as a reader sees it.
inline std::string Seen(const CString& path) {
  std::string seen;
  CStringArray names;
  CDataTable::GetTableNameFromFile(path, names);
  for (const CString& name : names) {
    seen += orv3::ToUtf8(name) + ":";
    for (const std::string& row : Rows(Loaded(path, name.GetString()))) seen += row + " ";
  }
  return seen;
}

}  // namespace scenarios
