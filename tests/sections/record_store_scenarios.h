// Record stores for tests: records that can be told apart, and saves that faults are tried on.
#pragma once

#include <algorithm>
#include <string>

#include "platform/faulty_files.h"
#include "platform/temp_folder.h"
#include "print.h"
#include "sections/steel_jm_data.h"

inline CSteelJMData Record(const std::wstring& name, int style = 3, int state = 1) {
  CSteelJMData record;
  std::copy(name.begin(), name.end(), record.m_szName);
  record.m_nStyle = style;
  record.m_nState = state;
  record.m_dSize[0] = 300;
  record.m_dSize[1] = 400;
  CSteelJMData::CalSectCharacterStyle(record);
  return record;
}

inline CArray<CSteelJMData> Records(int count, const std::wstring& name = L"R", int state = 1) {
  CArray<CSteelJMData> records;
  for (int i = 0; i < count; ++i) records.Add(Record(name + std::to_wstring(i), 3, state));
  return records;
}

// The names of a group's records, deleted ones with "-" in front.
inline std::string Names(const CString& path, int group) {
  CArray<CSteelJMData> records;
  CSteelJMData::GetTable(records, group, path);
  std::string names;
  for (const CSteelJMData& record : records) {
    names += (record.m_nState == -1 ? "-" : "") + orv3::ToUtf8(record.m_szName) + " ";
  }
  return names;
}

namespace scenarios {

inline std::string SeenRecords(const CString& path) {
  std::string seen;
  for (int group = 0; group < 3; ++group) {
    seen += std::to_string(CSteelJMData::GetTableLength(group, path)) + ": " + Names(path, group);
  }
  return seen;
}

// A store with 98 records in group 0 and some in groups 1 and 2.
inline void PrepareRecords(const CString& path) {
  EXPECT_EQ(CSteelJMData::WriteTable(Records(98), 0, path), 1);
  EXPECT_EQ(CSteelJMData::WriteTable(Records(3, L"S"), 1, path), 1);
  EXPECT_EQ(CSteelJMData::WriteTable(Records(20, L"T"), 2, path), 1);
}

// What is about to be saved into a group: for group 0 so many more that the others move on, for any
// other a change, a deletion and an addition.
inline CArray<CSteelJMData> StartRecords(const CString& path, int group) {
  CArray<CSteelJMData> records;
  CSteelJMData::GetTable(records, group, path);
  if (group == 0) records.Append(Records(5, L"new"));
  if (group != 0) {
    records[0] = Record(L"changed", 3, 2);
    records[1].m_nState = -1;
    records.Add(Record(L"in place of the deleted one"));
    records.Add(Record(L"behind"));
  }
  return records;
}

}  // namespace scenarios
