// Runs another program of this build and waits for its end.
#pragma once

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

// The exit status of a program that stands beside this one.
inline int RunBeside(const std::string& program, const std::string& arguments) {
  std::string path = testing::internal::GetArgvs()[0];
  path.resize(path.find_last_of("/\\") + 1);
  std::string command = "\"" + path + program + "\" " + arguments;
#ifdef _WIN32
  command = "\"" + command + "\"";
#endif
  const int status = std::system(command.c_str());  // NOLINT: the command is the test's own
#ifdef WEXITSTATUS
  return WEXITSTATUS(status);
#else
  return status;
#endif
}
