// orv3cal: sections, tables and checks of structural steel on the command line.

#include <cerrno>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "framework/language.h"
#include "output/output.h"
#include "platform/command_line.h"
#include "program.h"

using orv3::Say;

int main(int argc, char** argv) {
  orv3::UseUtf8Console();
  std::vector<std::string> arguments = orv3::CommandLineUtf8(argc, argv);
  if (!arguments.empty()) arguments.erase(arguments.begin());
  const int status = orv3::cli::RunProgram(arguments);
  errno = 0;
  if (std::cout.flush() && std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return status;
  const std::string& saved = orv3::cli::SavedNote();
  return orv3::cli::Fail(
      orv3::cli::CExit::FileTrouble,
      (errno == ENOSPC ? Say("标准输出不能写入，磁盘已满",
                             "standard output cannot be written, the disk is full")
                       : Say("标准输出不能写入，磁盘是否已满？",
                             "standard output cannot be written, is the disk full?")) +
          (saved.empty() ? "" : Say("；此前已保存：{1}", "; saved before that: {1}", {saved})));
}
