// Sections of a style whose sizes are ranges.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "members/cases/member_choice.h"

namespace orv3 {

// A size by its name ("tf"), mm: from, to, and the step between; one number where both are equal
// and the step is 0.
struct CSizeRange {
  std::string m_strName;
  double m_dFrom, m_dTo, m_dStep;
};

// Adds every section of the ranges. `style` is a number, a table or an alias. Sizes that bound no
// section are added with their fault. What is wrong, with nothing added: no such style, a size that
// it lacks or has besides, a range without an end, more than 20,000 sections in all.
ORV3CAL_API std::optional<CText> AddStyleRanges(const std::string& style,
                                                const std::vector<CSizeRange>& ranges,
                                                std::vector<CMemberCandidate>& candidates);

}  // namespace orv3
