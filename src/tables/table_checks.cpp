// Splitting texts and checking typed-in numbers.

#include <algorithm>

#include "framework/number_text.h"
#include "tables/data_table.h"

using orv3::FormatFixed;
using orv3::FormatInt;
using orv3::ToDouble;
using orv3::ToInt;

namespace {

CString WithoutLeadingZeros(const CString& text) { return CString(text).TrimLeft(L"0"); }

// Whether a text is how a number is written with up to 12 decimals.
bool IsWrittenAs(const CString& text, double value) {
  return FormatFixed(value, 12).Find(text) >= 0;
}

// Whether a text without leading zeros is a mantissa and an exponent as they are written.
bool IsScientific(const CString& text) {
  const int at = std::max(text.Find(L'e'), text.Find(L'E'));
  if (at < 0) return false;
  const CString mantissa = text.Left(at);
  CString exponent = text.Mid(at + 1);
  if (!exponent.IsEmpty() && (exponent[0] == L'+' || exponent[0] == L'-'))
    exponent = exponent.Mid(1);
  exponent = WithoutLeadingZeros(exponent);
  return IsWrittenAs(mantissa, ToDouble(mantissa)) && exponent == FormatInt(ToInt(exponent));
}

}  // namespace

void CDataTable::TransStrToArray(const CString& text, const CString& separator, CStringArray& out) {
  // `out` may hold `text`. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const CString rest(text);
  out.RemoveAll();
  int begin = 0;
  for (int at = 0; !separator.IsEmpty() && (at = rest.Find(separator, begin)) >= 0;) {
    out.Add(rest.Mid(begin, at - begin));
    begin = at + separator.GetLength();
  }
  out.Add(rest.Mid(begin));
}

int CDataTable::CheckInt(const CString& text, long& out, long max, long min) {
  const CString trimmed = CString(text).Trim();
  if (trimmed.IsEmpty()) return 0;
  const CString digits = WithoutLeadingZeros(trimmed);
  const long value = ToInt(digits);
  if (!digits.IsEmpty() && digits != FormatInt(value)) return 0;
  if (value < min || value > max) return 0;
  out = value;
  return 1;
}

int CDataTable::CheckDouble(const CString& text, double& out, double max, double min) {
  const CString trimmed = CString(text).Trim();
  if (trimmed.IsEmpty()) return 0;
  const double value = ToDouble(trimmed);
  if (!(value >= min && value <= max)) return 0;
  const CString digits = WithoutLeadingZeros(trimmed);
  if (!IsWrittenAs(digits, value) && !IsScientific(digits)) return 0;
  out = value;
  return 1;
}
