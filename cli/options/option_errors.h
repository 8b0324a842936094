// What is wrong with the options of a command, in the language of messages.
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace orv3::cli {

// A sentence of ours for one of the parser's, whose own are English; `program` is what was parsed.
std::string OptionErrorText(const CLI::ParseError& error, const CLI::App& program);

// The last command that a command line names.
const CLI::App& NamedCommand(const CLI::App& program);

// The names of the commands within a command, joined with ", ".
std::string CommandNames(const CLI::App& command);

// What is wrong with the name of a file; empty for one that can be.
std::string FileName(const std::string& name);

}  // namespace orv3::cli
