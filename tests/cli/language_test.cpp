// Every command answers and refuses in one language, the one that is asked for.

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>

#include "cli/run_program.h"

namespace {

bool HasChinese(const std::string& text) {
  return std::regex_search(text, std::regex("[\xE4-\xE9][\x80-\xBF][\x80-\xBF]"));
}

// Words in a row, commands and JSON apart.
bool HasEnglish(const std::string& text) {
  const std::string words = std::regex_replace(text, std::regex("orv3cal[ a-z]*|\"[^\"]*\""), "");
  return std::regex_search(words, std::regex("[a-z]{2,} [a-z]{2,}"));
}

// Of every command some; that each text has both halves is held in the sources
// (tests/docs/texts.py).
TEST(Language, HoldsForRefusalsOfEveryCommand) {
  const COwnFile csv("language.csv", "No.:text:key,n:int\na,1\nb,1.5\n");
  const COwnFile twice("twice.csv", "No.:text:key,n:int,n:int\na,1,2\n");
  const COwnFile blank("blank.csv", "\nd\n");
  const COwnFile json("language.json", "{\"d\" 1}");
  const COwnFile key("key.json", "{\"nothing\": 1}");
  const COwnFile store("language.KDB");
  const std::string on = " --store " + store.m_strPath;
  const std::string commands[] = {
      "nothing",
      "rows",
      "rows T --bogus",
      "show T x --gap 2000",
      "show T x --gap",
      "show T x --gap 1 --gap 2",
      "rows T --guard",
      "rows T --json --csv",
      "rows T --json=maybe",
      "store",
      "check nothing x.csv",
      "section nothing",
      "section circle 1 --svg missing/x.svg",
      "tables --mask x",
      "--bogus rows T",
      "lattice " + json.m_strPath,
      "gauge T",
      "check bolt " + key.m_strPath,
      "check bolt " + blank.m_strPath,
      "store verify " + csv.m_strPath,
      "store import " + twice.m_strPath + " --table T" + on,
      "store import " + csv.m_strPath + " --table T" + on,  // one row comes in
      "store import " + csv.m_strPath + " --table T" + on,
      "store add T --set No.=c --set n=1.5" + on,
      "store export T --to " + store.m_strPath + on,
  };
  for (const std::string& command : commands) {
    SCOPED_TRACE(command);
    const CRunResult english = RunProgram(command + " --lang en");
    const CRunResult chinese = RunProgram(command + " --lang zh");
    EXPECT_NE(english.m_nExit, 0);
    EXPECT_EQ(english.m_nExit, chinese.m_nExit);
    EXPECT_FALSE(HasChinese(english.m_strOut + english.m_strError))
        << english.m_strOut << english.m_strError;
    EXPECT_TRUE(HasChinese(chinese.m_strOut + chinese.m_strError));
    EXPECT_FALSE(HasEnglish(chinese.m_strOut + chinese.m_strError))
        << chinese.m_strOut << chinese.m_strError;
  }
}

// The options are named by English words in either language.
TEST(Language, HoldsForEveryHelp) {
  for (const std::string command :
       {"",           "styles",      "section",      "tables",       "rows",         "show",
        "lattice",    "outline",     "gauge",        "check",        "check bolt",   "check member",
        "store",      "store info",  "store verify", "store import", "store export", "store add",
        "store edit", "store delete"}) {
    SCOPED_TRACE(command);
    const std::string text = RunProgram(command + " --help --lang zh").m_strOut;
    EXPECT_TRUE(HasChinese(text));
    EXPECT_FALSE(HasEnglish(std::regex_replace(text, std::regex("--[a-z]+|[A-Z]+|orv3cal .*"), "")))
        << text;
  }
  const std::string text = RunProgram("choose --help --lang zh").m_strOut;  // its columns
  ExpectHas(text, {"  --store 文件                要使用", "  --top 整数（1 至 100000）   至多"});
}

TEST(Language, IsTheVariablesUnlessTheCommandSays) {
  const auto set = [](const char* value) { SetVariable("ORV3CAL_LANG", value); };
  set("ZH_cn.UTF-8");
  EXPECT_TRUE(HasChinese(RunProgram("rows").m_strError));
  EXPECT_TRUE(HasEnglish(RunProgram("rows --lang en").m_strError));
  set("fr");
  ExpectRefused({{"rows", {"ORV3CAL_LANG", "fr", "zh or en"}}});
#ifndef _WIN32  // whose users set it for the whole desktop
  set("");
  for (const auto& [locale, chinese] :
       {std::pair{"zh_CN.UTF-8", true}, {"zh", true}, {"C.UTF-8", false}, {"de_DE.UTF-8", false}}) {
    SCOPED_TRACE(locale);
    SetVariable("LC_ALL", locale);
    EXPECT_EQ(HasChinese(RunProgram("rows").m_strError), chinese);
    EXPECT_FALSE(HasChinese(RunProgram("rows --lang en").m_strError));
    const COwnFile report("report.html");
    RunProgram("check bolt \"" ORV3CAL_SOURCE "/examples/bolt.json\" --report " + report.m_strPath);
    EXPECT_EQ(report.Bytes().find("<html lang=\"zh") != std::string::npos, chinese);
    // Of a language that is none, too; as long as it may be.
    for (const std::string& none : {std::string("fr"), std::string(100000, 'x')}) {
      const CRunResult refused = RunProgram("rows T --lang " + none);
      ExpectHas(refused.m_strError, {"--lang", none.substr(0, 50), "zh, en"});
      EXPECT_EQ(HasChinese(refused.m_strError), chinese);
    }
  }
#endif
  set("en");
}

}  // namespace
