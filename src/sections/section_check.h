// Which sizes make a section: what dialogs and commands ask before anything is computed. The
// calculation itself takes whatever it is given.
//
// Every plate has a thickness above 0, every web and wall a height above 0 between its flanges,
// every hole a width above 0. Overhangs and the arms of a plain cross may be 0: such a T, L, Z,
// channel or H is a plainer section but still one. No plate stands beyond the section's extents and
// no two plates overlap, since their areas are added.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "framework/export.h"
#include "sections/section_style.h"

namespace orv3 {

// A name's characters that a row of a section table holds; more are cut there.
inline constexpr int kMaxSectionName = 30;

// What a size at fault ought to be.
enum class CSizeRule { Finite, Positive, NotNegative, Below, AtMost };

struct CSectionFault {
  int m_nSize = -1;       // position of the size at fault; -1 when their number is wrong
  std::string m_strText;  // UTF-8, one line: the size's sign, its value and what would be right
  CSizeRule m_nRule = CSizeRule::Finite;
  double m_dBound = 0;  // of Below and AtMost
};

// The first fault of the sizes in column order; nothing when they make a section.
ORV3CAL_API std::optional<CSectionFault> CheckSectionSizes(const CSectionStyle& style,
                                                           std::span<const double> sizes);

// What is wrong with a section's name, UTF-8; empty when a row can hold it whole: at most 30
// characters, no comma (it separates values), no control characters, no space at an end.
ORV3CAL_API std::string CheckSectionName(std::wstring_view name);

}  // namespace orv3
