// Compiled tables against the CSV files that the catalogue keeps of them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "framework/csv.h"
#include "framework/number_text.h"
#include "platform/temp_folder.h"

inline std::vector<std::vector<CString>> CsvRows(const std::string& path) {
  std::vector<std::vector<CString>> rows;
  orv3::CCsvReader csv(Bytes(orv3::FromUtf8(path)));
  for (std::vector<std::string_view> cells; csv.Next(cells);) {
    rows.emplace_back();
    for (const std::string_view cell : cells) rows.back().push_back(orv3::FromUtf8(cell));
  }
  return rows;
}

// Every cell of a table of one or two dimensions is the file's. Numbers are compared as numbers:
// the files write 2 where the table has 2.0.
template <class TABLE>
void ExpectCsv(const TABLE& table, const std::string& path) {
  using CELL = std::remove_all_extents_t<TABLE>;
  constexpr std::size_t kColumns = std::extent_v<TABLE, std::rank_v<TABLE> - 1>;
  const auto csv = CsvRows(path);
  ASSERT_EQ(csv.size(), sizeof(TABLE) / sizeof(CELL) / kColumns) << path;
  const CELL* cell = reinterpret_cast<const CELL*>(&table);
  for (std::size_t i = 0; i < csv.size(); ++i) {
    ASSERT_EQ(csv[i].size(), kColumns) << path << " row " << i;
    for (const CString& text : csv[i]) {
      const std::string where = path + " row " + std::to_string(i) + ": " + orv3::ToUtf8(text);
      if constexpr (std::is_arithmetic_v<CELL>) {
        EXPECT_TRUE(orv3::IsNumber(text)) << where;
        EXPECT_EQ(*cell++, orv3::ToDouble(text)) << where;
      } else {
        EXPECT_EQ(*cell++, text) << where;
      }
    }
  }
}
