// Checks of an option's value that refuse by what was given and what would be right.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

namespace orv3::cli {

// One of these words. The help and the completion read them from the check's description.
CLI::Validator OneOf(const std::vector<std::string>& words);

// A whole number within these limits.
CLI::Validator Within(int least, int most);

}  // namespace orv3::cli
