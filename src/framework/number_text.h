// Numbers from text and text from numbers, the same on every platform and in every locale.
#pragma once

#include <cstdint>
#include <string_view>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

// The leading integer of a text after white space: sign, then decimal digits. 0 when there is none;
// beyond 32 bits the nearest 32-bit value. (`_wtoi` and `_wtol` of the table formats: both 32-bit.)
ORV3CAL_API std::int32_t ToInt(std::wstring_view text) noexcept;

// The leading decimal number of a text after white space: sign, digits with at most one point, and
// an exponent if it is whole. 0 when there is none ("nan", "inf" and hexadecimal forms are none);
// too large a number gives a signed infinity, too small a one a signed 0. (`_wtof`.)
ORV3CAL_API double ToDouble(std::wstring_view text) noexcept;

// Whether the whole text, white space around it aside, is one such number and finite.
ORV3CAL_API bool IsNumber(std::wstring_view text) noexcept;

ORV3CAL_API CString FormatInt(long long value);  // "%d"
// "%G": six significant digits, trailing zeros dropped, an exponent of at least two digits below
// 1E-04 and from 1E+06 on. "INF", "-INF" and "NAN" when not finite.
ORV3CAL_API CString FormatG(double value);
ORV3CAL_API CString FormatFixed(double value, int decimals);  // "%.*f"
// The shortest text that reads back as the same double.
ORV3CAL_API CString FormatShortest(double value);

}  // namespace orv3
