// Table files put together byte by byte from their layout, with no help from the code under test.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/faulty_files.h"
#include "platform/store_error.h"
#include "platform/temp_folder.h"
#include "print.h"
#include "tables/data_table.h"

namespace golden {

// 7 May 2024, 09:03:12.250.
inline constexpr orv3::CLocalTime kTime{2024, 5, 7, 9, 3, 12, 250};
inline const std::string kLine = "KvbTable_1.0_2005_3,0,2024-5-7:9:3:12:250";

// GBK text in stored form: every byte 10 lower.
inline std::string Fake(std::string_view text) {
  std::string bytes(text);
  for (char& byte : bytes) byte = static_cast<char>(byte - 10);
  return bytes;
}

inline std::string Field(std::string_view text, std::size_t length) {
  std::string bytes = Fake(text).substr(0, length);
  return bytes + std::string(length - bytes.size(), '\0');
}

// One table: its heading's text, its record's texts before the blocks, and its rows' texts by slot.
struct CTable {
  std::string name;
  std::size_t columns;
  std::string heading;
  std::vector<std::string> rows;
  std::vector<std::size_t> blocks;

  std::size_t Slot() const { return 33 * columns + 25; }
  std::string Record() const {
    std::string text = name + ",,," + std::to_string(Slot()) + ",,," + std::to_string(rows.size());
    for (const std::size_t block : blocks) text += ",,," + std::to_string(block);
    return text;
  }
};

// A whole file that ends at `size`.
inline std::string File(const std::vector<CTable>& tables, std::size_t size,
                        const std::string& line = kLine) {
  std::string file(size, '\0');
  const auto put = [&file](std::size_t at, const std::string& bytes) {
    file.replace(at, bytes.size(), bytes);
  };
  put(size - 20100, Field(line, 100));
  put(size - 1, "#");
  for (std::size_t t = 0; t < tables.size(); ++t) {
    const CTable& table = tables[t];
    put(size - 20000 + 200 * t, Field(table.Record(), 200));
    put(table.blocks[0], Field(table.heading, 100 * table.columns));
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
      const std::size_t block = (i + 4) / 100;
      const std::size_t at = block == 0 ? 100 * table.columns + i * table.Slot()
                                        : (i - (100 * block - 4)) * table.Slot();
      put(table.blocks[block] + at, Field(table.rows[i], table.Slot()));
    }
  }
  return file;
}

// Two columns, 型号 (No., the key) and 高 (h(mm), a double): 91 bytes a slot, 9100 a block.
inline const std::string kHeading = "\xD0\xCD\xBA\xC5,,,No.,,,1,,,0,,,\xB8\xDF,,,h(mm),,,0,,,4";
inline constexpr std::size_t kBlock = 9100;
inline constexpr std::size_t kFirst = 20100;
inline constexpr std::size_t kOneBlock = 20100 + kBlock + 20100;

// A table of these columns with the rows I0, I1, ..., each 200 high.
inline CTable Section(const std::string& name, int rows) {
  CTable table{name, 2, kHeading, {}, {kFirst}};
  for (int i = 0; i < rows; ++i) {
    const std::string n = std::to_string(i);
    table.rows.push_back(n + ",,,0,,,I" + n + ",,,200");
  }
  return table;
}

}  // namespace golden

inline CDataTable SectionTable(const wchar_t* name = L"工字钢") {
  CDataTable table;
  table.SetTableName(name);
  table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
  table.AddTableCol(L"高", L"h(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
  return table;
}

// One column of text and so many rows.
inline CDataTable OneColumn(const CString& name, int rows) {
  CDataTable table;
  table.SetTableName(name);
  table.AddTableCol(L"c", L"c", CDataTypeStruct::KVBT_STRING, 0);
  for (int i = 0; i < rows; ++i) EXPECT_EQ(table.AddTableItem(L"v", 1), 1);
  return table;
}

inline CString Name(int i) { return L"I" + CString(std::to_wstring(i)); }

inline void AddRow(CDataTable& table, const CString& name, const CString& height = L"200") {
  CStringArray values;
  values.Add(name);
  values.Add(height);
  ASSERT_EQ(table.AddTableItem(values, 1), 1);
}

// Adds I0, I1, ... until there are `rows`.
inline void FillUp(CDataTable& table, int rows) {
  while (table.GetTableRowNum() < rows) AddRow(table, Name(table.GetTableRowNum()));
}

// The table's live and deleted rows as "name=height", deleted ones with "-" in front.
inline std::vector<std::string> Rows(const CDataTable& table) {
  std::vector<std::string> rows;
  for (const CDataItem& row : table.m_arrItem) {
    rows.push_back((row.m_nModifyType < 0 ? "-" : "") + orv3::ToUtf8(row[0].m_strValue) + "=" +
                   orv3::ToUtf8(row[1].m_strValue));
  }
  return rows;
}

inline CDataTable Loaded(const CString& path, const wchar_t* name = L"工字钢") {
  CDataTable table;
  table.SetTableName(name);
  CString line;
  EXPECT_EQ(table.GetTable(path, line), 1) << orv3::ToUtf8(orv3::LastStoreError().m_strText);
  return table;
}

// A table file in a folder of its own, at the time of the golden files.
class TableFileTest : public testing::Test {
 protected:
  TableFileTest() { m_files.SetLocalTime(golden::kTime); }

  int Save(CDataTable& table, int all = 0) { return table.WriteTable(m_path, 0, all); }

  CTempFolder m_folder;
  CFaultyFiles m_files;
  const CString m_path = m_folder.Path(L"a.KDB");
};
