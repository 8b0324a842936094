// The ANSI code page: Chinese text as bytes and back.
#include "platform/code_page.h"

#include <gtest/gtest.h>

#include "print.h"

namespace {

class CodePage : public testing::Test {
 protected:
  CodePage() { EXPECT_TRUE(orv3::SetAnsiCodePage(936)); }
  ~CodePage() override { orv3::SetAnsiCodePage(0); }
};

// Bytes from the GB 2312 and GBK code charts.
TEST_F(CodePage, ChineseTextHasItsGbkBytes) {
  const struct {
    const wchar_t* text;
    const char* bytes;
  } kCases[] = {
      {L"", ""},
      {L"I20a", "I20a"},
      {L"型号", "\xD0\xCD\xBA\xC5"},
      {L"中国", "\xD6\xD0\xB9\xFA"},
      {L"θ°", "\xA6\xC8\xA1\xE3"},
      {L"丂", "\x81\x40"},
      {L"€", "\x80"},
  };
  for (const auto& c : kCases) {
    bool missing = false;
    EXPECT_EQ(orv3::ToAnsi(c.text, &missing), c.bytes);
    EXPECT_FALSE(missing);
    EXPECT_EQ(orv3::FromAnsi(c.bytes), c.text);
  }
}

TEST_F(CodePage, ACharacterThatThePageLacksIsReported) {
  bool missing = false;
  EXPECT_EQ(orv3::ToAnsi(L"aü\xFFFD", &missing), "a\xA8\xB9?");
  EXPECT_TRUE(missing);
}

TEST_F(CodePage, HalfACharacterIsNoCharacter) {
  const std::string bytes =
      "a\xD0\xCD"
      "b\xBA\xC5";
  const wchar_t* const texts[] = {L"", L"a", L"a", L"a型", L"a型b", L"a型b", L"a型b号"};
  const std::size_t cuts[] = {0, 1, 1, 3, 4, 4, 6};
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    EXPECT_EQ(orv3::FromAnsi(bytes.substr(0, size)), texts[size]);
    EXPECT_EQ(orv3::AnsiCut(bytes, size), cuts[size]);
  }
  EXPECT_EQ(orv3::FromAnsi("\xD0,x"), L"\xFFFD,x");
}

TEST_F(CodePage, OneSettingOverridesIt) {
  ASSERT_TRUE(orv3::SetAnsiCodePage(1252));
  EXPECT_EQ(orv3::AnsiCodePage(), 1252);
  EXPECT_EQ(orv3::ToAnsi(L"ü€"), "\xFC\x80");
  EXPECT_FALSE(orv3::SetAnsiCodePage(12345));
  EXPECT_EQ(orv3::AnsiCodePage(), 1252);
  ASSERT_TRUE(orv3::SetAnsiCodePage(65001));
  EXPECT_EQ(orv3::ToAnsi(L"型"), "\xE5\x9E\x8B");
  EXPECT_EQ(orv3::FromAnsi("\xE5\x9E\x8B\xE5\x9E"), L"型");
  EXPECT_EQ(orv3::AnsiCut("a\xE5\x9E\x8B", 3), 1U);
}

}  // namespace
