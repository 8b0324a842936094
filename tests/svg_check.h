// What every SVG of the library must be: whole UTF-8, balanced elements, only finite numbers,
// nothing fetched from elsewhere.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/utf8.h"

// Walks the tags with a stack; good for documents without comments and CDATA, which ours are.
inline testing::AssertionResult IsBalanced(const std::string& svg) {
  std::vector<std::string> open;
  std::size_t at = svg.find("?>") + 2;
  while ((at = svg.find('<', at)) != std::string::npos) {
    const std::size_t end = svg.find_first_of("<>", at + 1);
    if (end == std::string::npos || svg[end] == '<')
      return testing::AssertionFailure() << "stray < at " << at;
    const std::string tag = svg.substr(at + 1, end - at - 1);
    at = end;
    if (tag.back() == '/') continue;
    if (tag[0] != '/') {
      open.push_back(tag.substr(0, tag.find(' ')));
    } else if (open.empty() || open.back() != tag.substr(1)) {
      return testing::AssertionFailure() << "unexpected <" << tag << ">";
    } else {
      open.pop_back();
    }
  }
  if (!open.empty()) return testing::AssertionFailure() << "open <" << open.back() << ">";
  return testing::AssertionSuccess();
}

inline void CheckSvg(const std::string& svg) {
  EXPECT_TRUE(orv3::IsUtf8(svg));
  EXPECT_TRUE(IsBalanced(svg)) << svg;
  EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
  for (const char* bad : {"nan", "NAN", "NaN", "inf", "INF", "href", "@import"})
    EXPECT_EQ(svg.find(bad), std::string::npos) << bad << "\n" << svg;
  for (const char ch : svg) EXPECT_TRUE(ch == '\n' || static_cast<unsigned char>(ch) >= 0x20);
}
