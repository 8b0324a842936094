#include "platform/command_line.h"

namespace orv3 {

std::vector<std::string> ProgramArguments(int argc, const char* const* argv) {
  if (argc < 1) return {};
  return {argv + 1, argv + argc};
}

void PrintUtf8() {}

}  // namespace orv3
