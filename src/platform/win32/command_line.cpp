#include "platform/command_line.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "framework/utf8.h"

namespace orv3 {

std::vector<std::string> CommandLineUtf8(int argc, const char* const* argv) {
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  if (wide == nullptr) return {argv, argv + argc};
  std::vector<std::string> arguments;
  for (int i = 0; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

bool CloseOwnConsole() {
  DWORD processes[2] = {};
  return GetConsoleProcessList(processes, 2) == 1 && FreeConsole() != 0;
}

void UseUtf8Console() {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(0, _O_BINARY);  // what is read from standard input are bytes
}

}  // namespace orv3
