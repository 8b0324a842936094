// UTF-16, which fixed-width texts of data files hold, and wide text, whatever the width of wchar_t.
#pragma once

#include <string>
#include <string_view>

#include "framework/export.h"

namespace orv3 {

// Both keep lone surrogates as they are.
ORV3CAL_API std::u16string ToUtf16(std::wstring_view text);
ORV3CAL_API std::wstring FromUtf16(std::u16string_view units);

}  // namespace orv3
