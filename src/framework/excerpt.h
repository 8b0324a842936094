// What a message shows of a text that somebody gave.
#pragma once

#include <string>
#include <string_view>

#include "framework/export.h"

namespace orv3 {

// The first 60 characters of a UTF-8 text, "…" where it has more, its control characters visible.
ORV3CAL_API std::string Excerpt(std::string_view text);

}  // namespace orv3
