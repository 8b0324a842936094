// The ANSI code page: the bytes that stand for text in files.
//
// It is the system's on Windows and 936 (GBK) elsewhere, so that Chinese data files read the same
// everywhere. Pages of one and two bytes a character and UTF-8 (65001) are served.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

ORV3CAL_API int AnsiCodePage();
// Overrides the code page for the whole process; 0 takes the override away. False, and nothing
// changed, for a page that the system does not know.
ORV3CAL_API bool SetAnsiCodePage(int codePage);

// Text as bytes. A character that the page lacks becomes "?" and, if `missing` is given, sets it.
ORV3CAL_API std::string ToAnsi(std::wstring_view text, bool* missing = nullptr);
// Bytes as text. Half a character at the end is dropped; any other byte without meaning is U+FFFD.
ORV3CAL_API CString FromAnsi(std::string_view bytes);
// Whether characters of decoded bytes have no meaning: U+FFFD, or of the private area, which
// Windows gives to bytes that a page leaves free.
ORV3CAL_API bool HasMeaningless(std::wstring_view text);
// How many of the first `limit` bytes are whole characters.
ORV3CAL_API std::size_t AnsiCut(std::string_view bytes, std::size_t limit);

// --- What a platform supplies --------------------------------------------------------------------

// A page's characters by their bytes; 0 for bytes without a character.
struct CCodePageTable {
  std::array<char16_t, 256> m_arrSingle{};
  std::array<bool, 256> m_arrLead{};
  std::vector<char16_t> m_arrPair;  // by lead byte * 256 + second byte; empty without lead bytes
};

int SystemCodePage();
bool LoadCodePage(int codePage, CCodePageTable& table);

}  // namespace orv3
