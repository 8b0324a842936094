// The words of a help that the parser brings along.
#pragma once

#include <CLI/App.hpp>

namespace orv3::cli {

// In the language of messages, for a command and the commands within it; called when all are there.
void SayHelpWords(CLI::App& command);

}  // namespace orv3::cli
