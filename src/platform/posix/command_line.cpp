#include "platform/command_line.h"

namespace orv3 {

std::vector<std::string> CommandLineUtf8(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

bool CloseOwnConsole() { return false; }

void UseUtf8Console() {}

}  // namespace orv3
