// The options of what a command writes that several commands have.
#pragma once

#include <CLI/App.hpp>
#include <string>

namespace orv3::cli {

// --json, the numbers with all their digits.
CLI::Option* AddJsonOption(CLI::App& command, bool& json);

// --svg FILE, a picture drawn to scale.
void AddSvgOption(CLI::App& command, std::string& file);

// --dxf FILE, the outline for a drawing program.
void AddDxfOption(CLI::App& command, std::string& file);

}  // namespace orv3::cli
