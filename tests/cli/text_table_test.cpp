#include "text_table.h"

#include <gtest/gtest.h>

#include <sstream>

using orv3::CAlign;
using orv3::CTextTable;
using orv3::DisplayWidth;

TEST(TextTable, DisplayWidthOfMixedTexts) {
  const struct {
    const char* text;
    int width;
  } cases[] = {{"", 0},    {"tf(mm)", 6}, {"翼缘厚度", 8}, {"X0轴惯性矩", 10},
               {"mm⁴", 3}, {"∞", 1},      {"（上）", 6},   {"𠀀", 2}};
  for (const auto& c : cases) EXPECT_EQ(c.width, DisplayWidth(c.text)) << c.text;
}

TEST(TextTable, ColumnsAndDecimalPointsStandBelowEachOther) {
  CTextTable table({CAlign::Left, CAlign::Point, CAlign::Left});
  table.SetHeading({"名", "Value", "U"});
  table.AddRow({"面积", "80000", "mm²"});
  table.AddRow({"r", "115.47", "mm"});
  table.AddRow({"open", "∞"});
  std::ostringstream out;
  table.Print(out);
  EXPECT_EQ(
      "名       Value  U\n"
      "-------------------\n"
      "面积  80000     mm²\n"
      "r       115.47  mm\n"
      "open      ∞\n",
      out.str());
}
