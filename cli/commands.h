// The commands of orv3cal, one source file each. A command adds itself to the program with its
// options and what it does; it reports failure by throwing CCommandError (error.h).
#pragma once

#include <CLI/App.hpp>

namespace orv3::cli {

void AddStylesCommand(CLI::App& program);
void AddSectionCommand(CLI::App& program);

// The commands in the order of the help; a new one is entered here.
inline constexpr void (*kCommands[])(CLI::App&) = {AddStylesCommand, AddSectionCommand};

}  // namespace orv3::cli
