// Runs the command orv3cal as a user's shell does, and keeps what it printed.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "framework/utf8.h"

struct CRun {
  int exit = -1;
  std::string out;
  std::string err;
};

inline std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(in), {}};
  std::erase(text, '\r');  // a Windows program's line ends
  return text;
}

// A folder of the running test's own, in the program's working directory.
inline std::filesystem::path TestFolder() {
  const auto* info = testing::UnitTest::GetInstance()->current_test_info();
  const std::filesystem::path folder =
      std::string("cli_test_") + info->test_suite_name() + "_" + info->name();
  std::filesystem::create_directories(folder);
  return folder;
}

// `arguments`: UTF-8, quoted with double quotes where they hold blanks.
inline CRun RunProgram(const std::string& arguments) {
  const auto folder = TestFolder();
  const auto out = folder / "stdout", err = folder / "stderr";
  const std::string line = "\"" ORV3CAL_PROGRAM "\" " + arguments + " >\"" + out.string() +
                           "\" 2>\"" + err.string() + "\"";
  CRun run;
#ifdef _WIN32
  const std::string whole = "\"" + line + "\"";  // cmd takes one pair of quotes away
  run.exit = _wsystem(orv3::FromUtf8(whole).GetString());
#else
  run.exit = (std::system(line.c_str()) >> 8) & 0xFF;
#endif
  run.out = ReadBytes(out);
  run.err = ReadBytes(err);
  return run;
}
