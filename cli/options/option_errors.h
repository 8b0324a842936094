// What is wrong with the options of a command, in the language of messages.
#pragma once

#include <CLI/Error.hpp>
#include <string>

namespace orv3::cli {

// The parser's own words, which are English, or the same in Chinese.
std::string OptionErrorText(const CLI::ParseError& error);

// What is wrong with the name of a file; empty for one that can be.
std::string FileName(const std::string& name);

}  // namespace orv3::cli
