// What a program needs of the system at its start to speak UTF-8.
#pragma once

#include <string>
#include <vector>

#include "framework/export.h"

namespace orv3 {

// The program's arguments, its own name first, as UTF-8 whatever the system hands to main.
ORV3CAL_API std::vector<std::string> CommandLineUtf8(int argc, const char* const* argv);

// Closes the console that a desktop opened for this program alone; false when there is none, or
// when others use it too. What is printed afterwards is seen by nobody.
ORV3CAL_API bool CloseOwnConsole();

// Makes a console show the UTF-8 that the program prints.
ORV3CAL_API void UseUtf8Console();

}  // namespace orv3
