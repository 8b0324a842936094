#include "framework/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "print.h"

namespace {

using orv3::FormatFixed;
using orv3::FormatG;
using orv3::IsNumber;
using orv3::ToDouble;
using orv3::ToInt;

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(NumberText, ReadsIntegers) {
  const struct {
    const wchar_t* text;
    int value;
  } cases[] = {{L"42", 42},
               {L" \t-7x", -7},
               {L"+8", 8},
               {L"", 0},
               {L"abc", 0},
               {L"- 5", 0},
               {L"3.9", 3},
               {L"0x10", 0},
               {L"2147483647", 2147483647},
               {L"2147483648", 2147483647},
               {L"-2147483648", -2147483647 - 1},
               {L"-99999999999999999999", -2147483647 - 1},
               {L"99999999999999999999", 2147483647}};
  for (const auto& c : cases) EXPECT_EQ(ToInt(c.text), c.value) << CString(c.text);
}

TEST(NumberText, ReadsDecimalNumbers) {
  const struct {
    const wchar_t* text;
    double value;
  } cases[] = {{L"35.5", 35.5},
               {L"  -1e3mm", -1000},
               {L"+.5", 0.5},
               {L"5.", 5},
               {L"1e", 1},
               {L"1e+", 1},
               {L"2E-2", 0.02},
               {L".", 0},
               {L"e5", 0},
               {L"", 0},
               {L"nan", 0},
               {L"inf", 0},
               {L"-infinity", 0},
               {L"0x1p3", 0},
               {L"1e999", kInf},
               {L"-1e999", -kInf},
               {L"1e-999", 0},
               {L"0.000e999", 0},
               {L"1,5", 1},
               {L"１", 0},
               {L"1e99999999999999999999", kInf},
               {L"1e-99999999999999999999", 0},
               {L"4.9406564584124654e-324", 4.9406564584124654e-324}};
  for (const auto& c : cases) EXPECT_EQ(ToDouble(c.text), c.value) << CString(c.text);
  const std::wstring tiny = L"0." + std::wstring(400, L'0') + L"1";
  EXPECT_EQ(ToDouble(tiny), 0);
  EXPECT_EQ(ToDouble(tiny + L"e+401"), 1);
  EXPECT_EQ(ToDouble(L"1" + std::wstring(400, L'0')), kInf);
  EXPECT_EQ(ToDouble(L"1" + std::wstring(400, L'0') + L"e-400"), 1);
}

TEST(NumberText, KnowsAWholeNumber) {
  for (const wchar_t* text : {L"1", L" -2.5e3 ", L".5", L"0"}) EXPECT_TRUE(IsNumber(text)) << text;
  for (const wchar_t* text : {L"", L" ", L"1mm", L"1e999", L"nan", L"1 2", L"--1"}) {
    EXPECT_FALSE(IsNumber(text)) << text;
  }
}

TEST(NumberText, WritesLikeCsPercentG) {
  const struct {
    double value;
    const wchar_t* text;
  } cases[] = {{0, L"0"},
               {-0.0, L"-0"},
               {100, L"100"},
               {115.470053838, L"115.47"},
               {999999.5, L"1E+06"},
               {999999.4, L"999999"},
               {1066666666.67, L"1.06667E+09"},
               {1e100, L"1E+100"},
               {0.0001, L"0.0001"},
               {0.00001234567, L"1.23457E-05"},
               {kInf, L"INF"},
               {-kInf, L"-INF"},
               {std::nan(""), L"NAN"},
               {-std::nan(""), L"NAN"}};
  for (const auto& c : cases) EXPECT_EQ(FormatG(c.value), c.text);
}

TEST(NumberText, WritesFixedAndShortest) {
  EXPECT_EQ(FormatFixed(0.5, 12), L"0.500000000000");
  EXPECT_EQ(FormatFixed(-1234.56789, 2), L"-1234.57");
  EXPECT_EQ(FormatFixed(1e300, 0).GetLength(), 301);
  EXPECT_EQ(orv3::FormatShortest(0.1), L"0.1");
  EXPECT_EQ(ToDouble(orv3::FormatShortest(1.0 / 3)), 1.0 / 3);
}

}  // namespace
