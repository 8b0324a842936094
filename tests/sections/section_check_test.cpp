// Which sizes make a section.
#include "sections/section_check.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "sections/section_style.h"

namespace {

using Sizes = std::vector<double>;
constexpr double kInf = std::numeric_limits<double>::infinity();

struct CCase {
  const char* alias;
  Sizes sizes;
  int fault;  // position of the size at fault; kGood when there is none
};
constexpr int kGood = -2;
constexpr int kCount = -1;

TEST(SectionCheck, GoodAndImpossibleSizes) {
  const CCase cases[] = {
      {"h", {300, 400, 199.99, 10}, kGood},
      {"h", {300, 400, 200, 10}, 2},
      {"h", {300, 400, 20, 300}, kGood},  // a plain plate
      {"h", {300, 400, 20, 301}, 3},
      {"h", {300, 400, kInf, 10}, 2},
      {"h", {-300, 400, 20, 10}, 0},
      {"h", {300, 400, 20}, kCount},
      {"h", {300, 400, 20, 10, 0}, kCount},
      {"box", {300, 400, 149}, kGood},
      {"box", {300, 400, 150}, 2},
      {"flanged-cross", {400, 500, 150, 180, 12, 16}, kGood},
      {"flanged-cross", {400, 500, 401, 180, 12, 16}, 2},
      {"flanged-cross", {400, 500, 150, 501, 12, 16}, 3},
      {"flanged-cross", {400, 500, 150, 10, 12, 16}, 4},
      {"flanged-cross", {400, 500, 150, 180, 12, 194}, 5},
      {"flanged-cross", {400, 500, 400, 468, 12, 16}, kGood},  // touching corners
      {"flanged-cross", {400, 500, 400, 469, 12, 16}, 3},      // overlapping corners
      {"rect", {200, 0}, 1},
      {"hexagon", {-1}, 0},
      {"triangle", {1e-3, 1e6}, kGood},
      {"circle", {0}, 0},
      {"tube", {100, 99.9}, kGood},
      {"tube", {100, 100}, 1},
      {"tube", {100, 0}, 1},
      {"t", {12, 300, 18, 0, 0}, kGood},
      {"t", {12, 300, 0, 60, 60}, 2},
      {"t", {12, 300, 300, 60, 60}, 2},
      {"t", {12, 300, 18, -1, 60}, 3},
      {"general-h", {14, 600, 25, 20, 0, 0, 0, 0}, kGood},
      {"general-h", {14, 600, 0, 20, 80, 80, 0, 0}, 2},
      {"general-h", {14, 600, 300, 300, 80, 80, 80, 80}, 3},
      {"general-h", {14, 600, 25, 20, 80, 80, 80, -80}, 7},
      {"l", {16, 200, 20, 0}, kGood},
      {"l", {16, 200, 200, 144}, 2},
      {"z", {10, 250, 14, 18, 70, 0}, kGood},
      {"z", {10, 250, 14, 236, 70, 90}, 3},
      {"channel", {9, 320, 16, 12, 0, 80}, kGood},
      {"channel", {9, 320, 320, 12, 110, 80}, 2},
      {"cross", {30, 400, 0, 210, 0, 120}, kGood},
      {"cross", {30, 400, 190, 210, 90, 120}, 3},
      {"cross", {0, 400, 150, 210, 90, 120}, 0},
      {"general-box", {300, 400, 30, 20, 12, 16}, kGood},
      {"general-box", {300, 400, 200, 200, 12, 16}, 3},
      {"general-box", {300, 400, 30, 20, 12, 288}, 5},
      {"general-box", {300, 400, 30, 20, 300, 16}, 4},
  };
  for (const CCase& c : cases) {
    const orv3::CSectionStyle* style = orv3::FindSectionAlias(c.alias);
    ASSERT_TRUE(style) << c.alias;
    const auto fault = orv3::CheckSectionSizes(*style, c.sizes);
    EXPECT_EQ(c.fault, fault ? fault->m_nSize : kGood)
        << c.alias << testing::PrintToString(c.sizes) << (fault ? fault->m_strText : "");
  }
}

TEST(SectionCheck, NamesThatARowWouldChange) {
  EXPECT_EQ("", orv3::CheckSectionName(L""));
  EXPECT_EQ("", orv3::CheckSectionName(L"梁 1"));
  EXPECT_EQ("", orv3::CheckSectionName(std::wstring(30, L'长')));
  for (const std::wstring& name :
       {std::wstring(31, L'x'), std::wstring(L"a,b"), std::wstring(L"a\tb"), std::wstring(L" a"),
        std::wstring(L"a ")}) {
    EXPECT_NE("", orv3::CheckSectionName(name));
  }
}

}  // namespace
