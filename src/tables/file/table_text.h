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

// A field of `length` bytes: the text, cut at its end, then zeros.
std::string EncodeField(std::wstring_view text, std::size_t length, bool* missing = nullptr);
// What stands in a field up to its first zero byte.
std::string_view FieldBytes(std::string_view field);

// The fields of a text form; views into `form`.
std::vector<std::wstring_view> SplitFields(std::wstring_view form);
// The same one by one, of what stands in a field of the file that is to hold `wanted` of them. With
// `cut`, when it reaches to the field's end, commas at its end may begin the separator before a
// field that is lost: they are none of the last field's then.
class CStoredFields {
 public:
  CStoredFields(std::wstring_view form, std::size_t wanted, bool cut)
      : m_rest(form), m_nWanted(wanted), m_bCut(cut) {}
  bool Next(std::wstring_view& field);  // false behind the last one
  bool AtEnd() const noexcept { return m_bEnd; }

 private:
  std::wstring_view m_rest;
  std::size_t m_nWanted;
  bool m_bCut;
  bool m_bEnd = false;
};
std::vector<std::wstring_view> SplitStored(std::wstring_view form, std::size_t wanted, bool cut);

// What a file keeps of a title, sign or value: nothing from a line feed or zero on.
std::wstring_view OneLine(std::wstring_view text);
// The same of a cell's value, which is also cut at 30 characters.
std::wstring_view StoredValue(std::wstring_view value);

// The fields of a heading: four for each column.
std::vector<std::wstring> HeadingFields(const CDataTableTitle& title);
std::wstring HeadingForm(const CDataTableTitle& title);
// One column for every four fields; what is missing of a last one keeps its defaults.
CDataTableTitle HeadingOf(std::wstring_view form);
// The heading of a heading area, 100 bytes a column. A heading cut at the end of its area has lost
// columns; they become nameless ones, since the rows still hold their values. False when it has
// other than these columns.
bool StoredHeading(std::string_view area, CDataTableTitle& title);

// What a row's slot is to say, with an edit state of its own choosing: the fields, views into the
// row and this object, and the text form.
class CRowText {
 public:
  CRowText(const CDataItem& row, int state);
  CRowText(const CRowText&) = delete;
  CRowText& operator=(const CRowText&) = delete;
  const std::vector<std::wstring_view>& Fields() const noexcept { return m_arrField; }
  std::wstring Form() const;

 private:
  CString m_strIndex;
  CString m_strState;
  std::vector<std::wstring_view> m_arrField;
};
std::wstring RowForm(const CDataItem& row, int state);
// The row of a text form. False when it has fewer fields than the heading asks for; with `cut` the
// values that are missing are empty. CInvalidArgException when it has more.
bool RowOf(std::wstring_view form, const CDataTableTitle& title, bool cut, CDataItem& row);

}  // namespace orv3
