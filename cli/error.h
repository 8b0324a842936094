// How a command ends when it cannot do what it was asked.
#pragma once

#include <stdexcept>
#include <string>

namespace orv3::cli {

// The exit status of the program.
enum class CExit { Done = 0, CheckFailed = 1, BadInput = 2, FileTrouble = 3 };

// One line that names what was wrong and what would be right.
class CCommandError : public std::runtime_error {
 public:
  CCommandError(CExit exit, const std::string& text) : std::runtime_error(text), m_nExit(exit) {}
  CExit m_nExit;
};

// Ends the command for a mistake in what it was asked.
[[noreturn]] inline void Refuse(const std::string& text) {
  throw CCommandError(CExit::BadInput, text);
}

}  // namespace orv3::cli
