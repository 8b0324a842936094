#include "framework/csv.h"

#include <gtest/gtest.h>

namespace {

using CRecords = std::vector<std::vector<std::string>>;

CRecords Read(std::string text) {
  orv3::CCsvReader reader(std::move(text));
  CRecords records;
  for (std::vector<std::string_view> cells; reader.Next(cells);)
    records.emplace_back(cells.begin(), cells.end());
  if (reader.IsMalformed()) {
    records.push_back({"malformed at " + std::to_string(reader.Line())});
  } else {
    EXPECT_EQ(reader.Done(), 1);
  }
  return records;
}

TEST(CsvReader, SplitsRecordsAndCells) {
  const std::pair<const char*, CRecords> cases[] = {
      {"", {}},
      {"\xEF\xBB\xBF", {}},
      {"a", {{"a"}}},
      {"a,b\nc", {{"a", "b"}, {"c"}}},
      {"\xEF\xBB\xBF"
       "a,b\r\nc,\r\n",
       {{"a", "b"}, {"c", ""}}},
      {"a\rb\r", {{"a"}, {"b"}}},
      {"\n\na", {{""}, {""}, {"a"}}},
      {",", {{"", ""}}},
      {" a b , c\t\n", {{"a b", "c\t"}}},
      {"\"a,b\",\" c \"", {{"a,b", " c "}}},
      {"\"a\nb\",c\nd", {{"a\nb", "c"}, {"d"}}},
      {"\"say \"\"a\"\"\",b", {{"say \"a\"", "b"}}},
      {"\"a\" ,b", {{"a", "b"}}},
      {"c\n\"3\"00,b\nd", {{"c"}, {"malformed at 2"}}},
      {"\"a\nb\"c", {{"malformed at 2"}}},
      {"a\"b\",c", {{"a\"b\"", "c"}}},
      {"\"open,\nend", {{"malformed at 2"}}},
      {"a;b\n1,5;2", {{"a", "b"}, {"1,5", "2"}}},
      {"a\tb,c\td\n1,5\t2", {{"a", "b,c", "d"}, {"1,5", "2"}}},
      {"\"a;b;c\",d\n1", {{"a;b;c", "d"}, {"1"}}},
      {"\"\"", {{""}}},
      {"工,\"字,钢\"", {{"工", "字,钢"}}},
  };
  for (const auto& [text, records] : cases) EXPECT_EQ(Read(text), records) << text;
}

TEST(CsvReader, LeavesEarlierCellsValid) {
  orv3::CCsvReader reader("\"a\"\"b\",c\nd,\"e\"\"f\"\n");
  std::vector<std::string_view> first, second;
  ASSERT_TRUE(reader.Next(first) && reader.Next(second));
  EXPECT_EQ(first[0], "a\"b");
  EXPECT_EQ(second[1], "e\"f");
}

}  // namespace
