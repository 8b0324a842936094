// Comparing texts as a user who types them expects: letters of both cases are equal.
#pragma once

#include <algorithm>
#include <string_view>

namespace orv3 {

inline wchar_t FoldedCase(wchar_t ch) {
  return ch >= L'A' && ch <= L'Z' ? static_cast<wchar_t>(ch - L'A' + L'a') : ch;
}

inline bool SameLetter(wchar_t a, wchar_t b) { return FoldedCase(a) == FoldedCase(b); }

inline bool ContainsText(std::wstring_view text, std::wstring_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(), SameLetter) !=
             text.end() ||
         part.empty();
}

inline bool BeginsWithText(std::wstring_view text, std::wstring_view part) {
  return text.size() >= part.size() &&
         std::equal(part.begin(), part.end(), text.begin(), SameLetter);
}

}  // namespace orv3
