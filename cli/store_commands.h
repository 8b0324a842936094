// The subcommands of orv3cal store.
#pragma once

#include <CLI/App.hpp>

namespace orv3::cli {

void AddStoreInfoCommands(CLI::App& store);  // info, verify

inline constexpr void (*kStoreCommands[])(CLI::App&) = {AddStoreInfoCommands};

}  // namespace orv3::cli
