#include "platform/command_line.h"

#include <windows.h>

#include <shellapi.h>

#include "framework/utf8.h"

namespace orv3 {

// The narrow arguments have gone through the ANSI code page and may have lost characters.
std::vector<std::string> ProgramArguments(int, const char* const*) {
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; wide != nullptr && i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

void PrintUtf8() { SetConsoleOutputCP(CP_UTF8); }

}  // namespace orv3
