// The right names nearest to a wrong one, for errors that say what would be right.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "framework/array.h"
#include "framework/cstring.h"

namespace orv3::cli {

// Up to three of `names`, nearest first and joined as a list: those that hold the wrong name or
// are held by it first, then by the number of characters to change; capitals count as small
// letters. Empty only without names.
std::string Nearest(std::string_view wrong, std::span<const CString> names);

inline std::string Nearest(std::string_view wrong, const CStringArray& names) {
  return Nearest(wrong, std::span(names.GetData(), static_cast<std::size_t>(names.GetSize())));
}

}  // namespace orv3::cli
