// Paths of the system, which are bytes, and wide paths.
#pragma once

#include <string>
#include <string_view>

#include "framework/cstring.h"

namespace orv3 {

// Names that are no UTF-8 are kept: each byte that belongs to no character is a lone surrogate
// U+DC80 to U+DCFF, and itself again on the way back. Both separators become "/".
std::string Native(std::wstring_view path);
CString FromNative(std::string_view path);

}  // namespace orv3
