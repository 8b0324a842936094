// The text forms of tables in files, and the byte transform ("fake" form) that every text goes
// through on its way there.
//
// A text form joins its fields by ",,,". In the file it is ANSI text with 10 subtracted from every
// byte. A line feed (byte 10) would become the zero byte that ends the text: titles, signs and
// values are cut there before they are joined, so that those after them are not lost too.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "tables/data_item.h"
#include "tables/data_type.h"

namespace orv3 {

inline constexpr wchar_t kFieldSeparator[] = L",,,";
inline constexpr int kMaxStoredValue = 30;  // characters of a cell that go to a file

// A text as it stands in a file, without the ending zero. `missing` is set when the code page lacks
// a character.
std::string EncodeText(std::wstring_view text, bool* missing = nullptr);
// The text of stored bytes, which end at the first zero byte; of a null pointer the empty one.
CString DecodeText(std::string_view stored);
CString DecodeText(const char* stored);

// A field of `length` bytes: the text, cut where its last whole character ends, then zeros.
std::string EncodeField(std::wstring_view text, std::size_t length, bool* missing = nullptr);
// What stands in a field up to its first zero byte.
std::string_view FieldBytes(std::string_view field);

// The fields of a text form; views into `form`.
std::vector<std::wstring_view> SplitFields(std::wstring_view form);

std::wstring HeadingForm(const CDataTableTitle& title);
// One column for every four fields; what is missing of a last one keeps its defaults.
CDataTableTitle HeadingOf(std::wstring_view form);

// The row with an edit state of its own choosing.
std::wstring RowForm(const CDataItem& row, int state);
// The row of a text form. False when it has fewer fields than the heading asks for; with `cut` the
// values that are missing are empty. CInvalidArgException when it has more.
bool RowOf(std::wstring_view form, const CDataTableTitle& title, bool cut, CDataItem& row);

}  // namespace orv3
