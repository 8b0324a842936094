// UTF-8 and wide text.
#pragma once

#include <string>
#include <string_view>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

// Wide text as UTF-8; a lone surrogate becomes U+FFFD.
ORV3CAL_API std::string ToUtf8(std::wstring_view text);

// UTF-8 as wide text; each byte that belongs to no whole character becomes U+FFFD.
ORV3CAL_API CString FromUtf8(std::string_view text);

// Whether `text` is whole, shortest-form UTF-8 without surrogates.
ORV3CAL_API bool IsUtf8(std::string_view text) noexcept;

// Text that a terminal or a page shows without obeying it: control characters, in `lines` but line
// ends and tabs, become their pictures; a byte that belongs to no whole character becomes U+FFFD.
ORV3CAL_API std::string Visible(std::string_view text, bool lines = false);

}  // namespace orv3
