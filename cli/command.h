// What the commands share: exit statuses, errors, files, JSON.
#pragma once

#include <CLI/App.hpp>
#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>

namespace orv3 {

enum class CExit { Done = 0, CheckFailed = 1, BadInput = 2, FileTrouble = 3 };

// Ends a command: one line that names what was wrong and what would be right.
class CCommandError : public std::runtime_error {
 public:
  CCommandError(CExit exit, const std::string& what) : std::runtime_error(what), m_nExit(exit) {}
  CExit Exit() const noexcept { return m_nExit; }

 private:
  CExit m_nExit;
};

[[noreturn]] void BadInput(const std::string& what);

// A finite number; `what` names the argument in the error.
double ParseNumber(const std::string& text, const std::string& what);

// Writes a file whole or not at all.
void WriteTextFile(const std::string& path, const std::string& text);

// Numbers with all their digits, one that is not finite as null.
void PrintJson(const nlohmann::ordered_json& json);

// One function a command, each in its own file: adds the command, which sets `exit` unless it is
// done.
void AddStylesCommand(CLI::App& app, CExit& exit);
void AddSectionCommand(CLI::App& app, CExit& exit);

}  // namespace orv3
