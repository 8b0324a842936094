// The words of a help that the parser brings along.
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace orv3::cli {

// In the language of messages, for a command and the commands within it; called when all are there.
void SayHelpWords(CLI::App& command);

// What an option takes, as its help says it.
std::string TypeWords(const CLI::Option& option);

}  // namespace orv3::cli
