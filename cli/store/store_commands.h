// The subcommands of orv3cal store.
#pragma once

#include <CLI/App.hpp>

namespace orv3::cli {

void AddStoreInfoCommands(CLI::App& store);  // info, verify
void AddStoreImportCommand(CLI::App& store);
void AddStoreExportCommand(CLI::App& store);
void AddStoreEditCommands(CLI::App& store);  // add, edit, delete

inline constexpr void (*kStoreCommands[])(CLI::App&) = {
    AddStoreInfoCommands, AddStoreImportCommand, AddStoreExportCommand, AddStoreEditCommands};

}  // namespace orv3::cli
