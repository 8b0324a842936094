// The command as a whole, for its own program and for others that run it within themselves.
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "error.h"
#include "output/streams.h"

namespace orv3::cli {

// As typed, in UTF-8, without the program's name.
using CArguments = std::vector<std::string>;

// Runs a command; the answer is its exit status. Every error has been told on standard error.
int RunProgram(const CArguments& arguments);

// The same in memory. Calls by several threads run one after another.
int RunProgram(const CArguments& arguments, CMemoryStreams& streams);
// Held by the call that runs. Who forks the process holds it meanwhile, so that the child finds
// nothing half done and no lock of a thread that it has not.
std::mutex& ProgramTurn();

// Says on standard error, in a line, why the command could not do what it was asked.
int Fail(CExit exit, std::string text);

}  // namespace orv3::cli
