#include "catalogue/rolled/rolled_record.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <string>

#include "framework/number_text.h"
#include "framework/utf16.h"

namespace orv3 {
namespace {

static_assert(std::endian::native == std::endian::little, "records are the bytes of a data file");

template <class VALUE>
VALUE Take(const char* at) {
  VALUE value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

template <class VALUE>
void Put(char* at, VALUE value) {
  std::memcpy(at, &value, sizeof value);
}

// A text of `width` characters, which a damaged file may have left without its zero.
CString TakeText(const char* at, int width) {
  std::u16string units(static_cast<std::size_t>(width), u'\0');
  std::memcpy(units.data(), at, units.size() * sizeof(char16_t));
  CString text(FromUtf16(units.substr(0, units.find(u'\0'))));
  return text.Trim(L" ");
}

void PutText(char* at, int width, std::wstring_view text) {
  const std::u16string units = ToUtf16(text);
  const std::size_t kept = std::min(units.size(), static_cast<std::size_t>(width) - 1);
  std::memcpy(at, units.data(), kept * sizeof(char16_t));
}

CString TakeValue(const CRolledStyle& style, int column, const char* record) {
  const CRecordField field = style.Field(column);
  const char* const at = record + field.m_nOffset;
  switch (field.m_nKind) {
    case CFieldKind::Text:
      return TakeText(at, style.m_nName);
    case CFieldKind::Whole:
      return FormatInt(Take<std::int16_t>(at));
    default:
      return FormatG(Take<double>(at));
  }
}

void PutValue(const CRolledStyle& style, int column, std::wstring_view text, char* record) {
  using CLimits = std::numeric_limits<std::int16_t>;
  const CRecordField field = style.Field(column);
  char* const at = record + field.m_nOffset;
  if (field.m_nKind == CFieldKind::Text) {
    PutText(at, style.m_nName, text);
  } else if (field.m_nKind == CFieldKind::Whole) {
    const std::int32_t value =
        std::clamp<std::int32_t>(ToInt(text), CLimits::min(), CLimits::max());
    Put(at, static_cast<std::int16_t>(value));
  } else {
    Put(at, ToDouble(text));
  }
}

// The member lengths that the capacity columns are for: 0.6, 0.9, ... m.
void PutLengths(const CRolledStyle& style, char* record) {
  for (int i = 0; i < style.m_nCapacity; ++i) {
    const CRecordField capacity = style.Field(style.Columns() - style.m_nCapacity + i);
    Put(record + capacity.m_nOffset - sizeof(double), (6 + 3 * i) / 10.0);
  }
}

}  // namespace

CString RecordNumber(const CRolledStyle& style, const char* record) {
  return TakeText(record, style.m_nName);
}

CString RecordRow(const CRolledStyle& style, const char* record) {
  CString row = RecordNumber(style, record);
  for (int column = 0; column < style.Columns(); ++column) {
    row += L',';
    row += TakeValue(style, column, record);
  }
  return row;
}

void FillRecord(const CRolledStyle& style, const CDataItem& row, char* record) {
  std::memset(record, 0, static_cast<std::size_t>(style.m_nSize));
  PutLengths(style, record);
  const int cells = std::min(row.GetItemLength(), style.Columns() + 1);
  if (cells > 0) PutText(record, style.m_nName, row[0].m_strValue);
  for (int i = 1; i < cells; ++i) PutValue(style, i - 1, row[i].m_strValue, record);
}

}  // namespace orv3
