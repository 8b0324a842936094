// Sections of a style whose sizes are ranges: {"style": "h", "b": [200, 400, 10], "h": 400, ...}.
#pragma once

#include <string>
#include <vector>

#include "members/cases/member_choice.h"

namespace orv3::cli {

// Adds every section of the ranges: a size is a number, or [from, to, step]. Sizes that bound no
// section are added with their fault. An object that is wrong is refused under --style.
void AddStyles(const std::string& json, std::vector<CMemberCandidate>& candidates);

}  // namespace orv3::cli
