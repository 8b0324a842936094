#include "framework/cstring.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "framework/exception.h"
#include "framework/utf8.h"
#include "print.h"

namespace {

TEST(String, SharesUntilChanged) {
  CString a(L"热轧等边角钢");
  CString b(a);
  EXPECT_EQ(a.GetString(), b.GetString()) << "a copy must share the characters";
  b.SetAt(0, L'冷');
  EXPECT_EQ(a, L"热轧等边角钢");
  EXPECT_EQ(b, L"冷轧等边角钢");
  CString c(a);
  c += L"组合";
  EXPECT_EQ(a, L"热轧等边角钢");
  EXPECT_EQ(c, L"热轧等边角钢组合");
  c += c.View();
  EXPECT_EQ(c, L"热轧等边角钢组合热轧等边角钢组合");
  c = c.Left(3);
  c = static_cast<const CString&>(c);
  EXPECT_EQ(c, L"热轧等");
}

TEST(String, GrowsInPlaceFromItself) {
  CString text(L"ab");
  for (int i = 0; i < 6; ++i) text += text.View();
  ASSERT_EQ(text.GetLength(), 128);
  for (int i = 0; i < 128; ++i) ASSERT_EQ(text[i], i % 2 ? L'b' : L'a');
}

TEST(String, CutsParts) {
  const CString text(L"abcdef");
  EXPECT_EQ(text.Left(2), L"ab");
  EXPECT_EQ(text.Left(-1), L"");
  EXPECT_EQ(text.Left(9), text);
  EXPECT_EQ(text.Right(2), L"ef");
  EXPECT_EQ(text.Right(0), L"");
  EXPECT_EQ(text.Mid(2), L"cdef");
  EXPECT_EQ(text.Mid(2, 3), L"cde");
  EXPECT_EQ(text.Mid(4, 9), L"ef");
  EXPECT_EQ(text.Mid(9, 1), L"");
  EXPECT_EQ(text.Mid(1, -1), L"");
}

TEST(String, FindsTrimsAndReplaces) {
  const CString text(L"  a,,b, ");
  EXPECT_EQ(text.Find(L",,"), 3);
  EXPECT_EQ(text.Find(L',', 5), 6);
  EXPECT_EQ(text.Find(L"x"), -1);
  EXPECT_EQ(text.Find(L""), 0);
  EXPECT_EQ(text.Find(L",", 99), -1);
  EXPECT_EQ(text.ReverseFind(L','), 6);
  EXPECT_EQ(CString(text).Trim(), L"a,,b,");
  EXPECT_EQ(CString(L"\t \r\n").Trim(), L"");
  EXPECT_EQ(CString(L"007").TrimLeft(L"0"), L"7");
  CString replaced(text);
  EXPECT_EQ(replaced.Replace(L",", L"、、"), 3);
  EXPECT_EQ(replaced, L"  a、、、、b、、 ");
  EXPECT_THROW(text.GetAt(8), CInvalidArgException);
}

TEST(String, TakesANullPointerForTheEmptyText) {
  const wchar_t* const none = nullptr;
  CString text(L" ab ");
  EXPECT_EQ(text.Find(none), 0);
  EXPECT_GT(text.Compare(none), 0);
  EXPECT_EQ(CString(text).Trim(none), text);
  EXPECT_EQ(text.Replace(none, L"x"), 0);
  EXPECT_EQ(text += none, L" ab ");
  EXPECT_EQ(text + none, L" ab ");
  EXPECT_EQ(none + text, L" ab ");
  text = none;
  EXPECT_TRUE(text.IsEmpty() && text == none);
  text = std::wstring(L"c");
  EXPECT_EQ(text, L"c");
}

// A character beyond 0xFFFF is two code units from 0xD800 on and so stands before 0xFF01.
TEST(String, OrdersByUtf16CodeUnits) {
  const CString beyond = orv3::FromUtf8("\xF0\xA0\x80\x80");
  EXPECT_LT(CString(L"10").Compare(L"9"), 0);
  EXPECT_GT(CString(L"I20b").Compare(L"I20a"), 0);
  EXPECT_LT(CString(L"I20").Compare(L"I20a"), 0);
  EXPECT_LT(beyond.Compare(L"\uFF01"), 0);
  EXPECT_GT(beyond.Compare(L"\u9FFF"), 0);
  EXPECT_EQ(beyond.Compare(beyond), 0);
}

TEST(String, CountsReferencesAcrossThreads) {
  const CString text(L"shared");
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < 20000; ++i) {
        CString copy(text);
        CString other(copy);
        other += L"!";
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(text, L"shared");
}

TEST(Utf8, GoesBothWays) {
  const std::string text = "A\xC2\xB2 \xE8\x82\xA2 \xF0\xA0\x80\x80";
  EXPECT_TRUE(orv3::IsUtf8(text));
  EXPECT_EQ(orv3::ToUtf8(orv3::FromUtf8(text)), text);
  EXPECT_EQ(orv3::FromUtf8("a\xFF\xC0\x80z"), L"a\uFFFD\uFFFD\uFFFDz");
  EXPECT_FALSE(orv3::IsUtf8("\xED\xA0\x80")) << "a lone surrogate";
  EXPECT_FALSE(orv3::IsUtf8("\xE8\x82")) << "cut short";
  EXPECT_EQ(orv3::ToUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

}  // namespace
