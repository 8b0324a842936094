// What a program is started with and where it prints.
#pragma once

#include <string>
#include <vector>

#include "framework/export.h"

namespace orv3 {

// The program's arguments, its own name left out, as UTF-8 whatever the system's code page is.
// (Elsewhere than on Windows they are taken as they are.)
ORV3CAL_API std::vector<std::string> ProgramArguments(int argc, const char* const* argv);

// Makes a console show what is printed as UTF-8.
ORV3CAL_API void PrintUtf8();

}  // namespace orv3
