// What the shells complete, and what the manual pages are made of.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "cli/run_program.h"

namespace {

// The first fields of the candidates, each followed by a blank.
std::string Completed(const std::string& words) {
  const CRunResult run = RunProgram("complete -- " + words);
  EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
  std::string candidates;
  std::istringstream lines(run.m_strOut);
  for (std::string line; std::getline(lines, line);)
    candidates += line.substr(0, line.find('\t')) + " ";
  return candidates;
}

TEST(Completion, KnowsEveryPlaceOfACommandLine) {
  const std::string data = kData + " ";
  const struct {
    const char* m_szWhat;
    std::string m_strWords;
    const char* m_szWords;
  } cases[] = {
      {"commands, none that is not for people", "\"\"",
       "styles section tables rows show outline lattice code check choose gauge store "},
      {"commands of a command", "store e", "export edit "},
      {"nothing behind a command that is none", "shwo \"\"", ""},
      {"orders behind a sign", "rows" + data + "热轧普通工字钢 --sort \"A(cm^2):\"",
       "A(cm^2):asc A(cm^2):desc "},
      {"options", "rows --w", "--where --wildcard "},
      {"tables", "show" + data + "热轧普通工", "热轧普通工字钢 "},
      {"numbers", "show" + data + "热轧普通工字钢 I20", "I20a I20b "},
      {"numbers behind an option", "show 热轧普通工字钢 --json" + data + "I20", "I20a I20b "},
      {"signs in a list", "rows" + data + "热轧普通工字钢 --columns No.,A",
       "No.,A(cm^2) No.,Aw(m^2/m) "},
      {"a value behind a sign of equality", "show 热轧普通工字钢 --turn=9", "--turn=90 "},
      {"styles", "section flanged", "flanged-cross "},
      {"grades", "code steel Q34", "Q345 Q345GJ "},
      {"choices of a question", "code weld Q345 16 ft", "ftw12 ftw3 "},
      {"kinds", "check b", "bolt butt "},
      {"no table of that name", "show" + data + "nothing I", ""},
  };
  for (const auto& each : cases)
    EXPECT_EQ(Completed(each.m_strWords), each.m_szWords) << each.m_szWhat;
  EXPECT_EQ(RunProgram("complete -- check bolt b").m_strOut, "\tfiles\n");
}

// As the help has it over lines.
std::string Spaceless(std::string text) {
  std::erase_if(text, [](char ch) { return ch == ' ' || ch == '\n'; });
  return text;
}

TEST(Description, HasEveryCommandWithItsHelp) {
  const Json program = Json::parse(RunProgram("describe").m_strOut);
  for (const Json& command : program["commands"]) {
    const std::string path = command["command"];
    const std::string help = RunProgram(path.substr(path.find(' ') + 1) + " --help").m_strOut;
    for (const Json& option : command["options"])
      EXPECT_NE(Spaceless(help).find(Spaceless(option["about"])), help.npos) << path << option;
  }
  EXPECT_GE(program["commands"].size(), 12u);
}

}  // namespace
