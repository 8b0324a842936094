// orv3cal styles and orv3cal section, run as a user runs them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

using Json = nlohmann::json;

TEST(SectionCommand, GivesTheWorkedRectangle) {
  const CRunResult run = RunProgram("section rect 200 400 --name 400X200 --json");
  ASSERT_EQ(run.m_nExit, 0) << run.m_strError;
  const Json json = Json::parse(run.m_strOut);
  EXPECT_EQ(json["style"], 3);
  EXPECT_EQ(json["table"], "矩形截面");
  EXPECT_EQ(json["name"], "400X200");
  EXPECT_EQ(json["sizes"], Json({200.0, 400.0}));
  EXPECT_EQ(json["base"], Json({0.0, 0.0}));
  const Json& properties = json["properties"];
  EXPECT_EQ(properties.size(), 25U);
  EXPECT_EQ(properties["A"], 80000);
  EXPECT_NEAR(properties["Ixo"].get<double>(), 200.0 * 400 * 400 * 400 / 12, 1e-3);
  EXPECT_EQ(properties["Sxo"], 4000000);
  EXPECT_EQ(properties["Wx2"], 1e100) << "the base point lies on the lower edge";
}

TEST(SectionCommand, TakesAStyleByNumberNameAndAlias) {
  const std::string byNumber = RunProgram("section 7 50 45 --base -10 20 --json").m_strOut;
  EXPECT_FALSE(byNumber.empty());
  EXPECT_EQ(RunProgram("section tube 50 45 --base -10 20 --json").m_strOut, byNumber);
  EXPECT_EQ(RunProgram("section 自定义圆管 50 45 --base -10 20 --json").m_strOut, byNumber);
  EXPECT_EQ(Json::parse(byNumber)["base"], Json({-10.0, 20.0}));
}

TEST(SectionCommand, TakesTheBasePointAnywhere) {
  const struct {
    const char* arguments;
    Json base;
  } cases[] = {
      {"rect 200 400", {0.0, 0.0}},
      {"rect 200 400 --base 1e1 2", {10.0, 2.0}},
      {"rect --base -5 -6 200 400", {-5.0, -6.0}},
      {"--base -.5 .25 rect 200 400", {-0.5, 0.25}},
  };
  for (const auto& c : cases) {
    const CRunResult run = RunProgram(std::string("section ") + c.arguments + " --json");
    ASSERT_EQ(run.m_nExit, 0) << run.m_strError;
    const Json json = Json::parse(run.m_strOut);
    EXPECT_EQ(json["base"], c.base) << c.arguments;
    EXPECT_EQ(json["sizes"], Json({200.0, 400.0})) << c.arguments;
  }
}

// A hexagon's first moments are not computed; a 0 would be taken for a result.
TEST(SectionCommand, GivesNoNumberWhereNoneIsComputed) {
  const Json hexagon = Json::parse(RunProgram("section hexagon 100 --json").m_strOut);
  EXPECT_TRUE(hexagon["properties"]["Sxo"].is_null());
  EXPECT_EQ(RunProgram("section hexagon 100").m_strOut.find("Sxo"), std::string::npos);
  const Json circle = Json::parse(RunProgram("section circle 100 --json").m_strOut);
  EXPECT_NEAR(circle["properties"]["Sxo"].get<double>(), 2e6 / 3, 1e-6);
}

TEST(SectionCommand, RefusesInOneLineThatNamesTheFault) {
  const struct {
    const char* arguments;
    std::vector<std::string> names;
    int exit = 2;
  } cases[] = {
      {"section rect -5 400", {"b(mm)", "-5", "above 0"}},
      {"section h 300 400 200 10", {"tf(mm)", "200"}},
      {"section tube 50 60", {"r(mm)", "60", "50"}},
      {"section rect 200", {"矩形截面", "2 sizes", "b(mm) h(mm)"}},
      {"section rect 1 2 3", {"2 sizes", "3 were given"}},
      {"section rect 200 4x", {"h(mm)", "4x", "no number"}},
      {"section rect nan 5", {"b(mm)", "nan"}},
      {"section rect 1e9 5", {"b(mm)", "1e9", "1000000"}},
      {"section rect 1 2 --base 0 inf", {"--base Y", "inf"}},
      {"section rect 1 2 --name a,b", {"--name", "comma"}},
      {"section circles 5", {"STYLE", "circles", "styles"}},
      {"section 15 5", {"STYLE", "15"}},
      {"section rect 1 2 --colour red", {"--colour", "section --help"}},
      {"sections", {"sections", "styles, section"}},
      {"section rect -.5 2", {"b(mm)", "-0.5", "above 0"}},
      {"section rect 1 2 --base 1", {"--base"}},
      {"section rect 1 2 --svg no_such_folder/x.svg", {"no_such_folder/x.svg"}, 3},
      {"section rect 1 2 --svg .", {".: not written", "not a file"}, 3},
#ifndef _WIN32
      {"section rect 1 2 --svg /dev/full", {"/dev/full", "not a file"}, 3},
      {"section rect 1 2 >/dev/full", {"standard output"}, 3},
#endif
  };
  for (const auto& c : cases) {
    const CRunResult run = RunProgram(c.arguments);
    EXPECT_EQ(run.m_nExit, c.exit) << c.arguments;
    EXPECT_EQ(run.m_strOut, "") << c.arguments;
    EXPECT_EQ(std::count(run.m_strError.begin(), run.m_strError.end(), '\n'), 1) << run.m_strError;
    for (const std::string& name : c.names) {
      EXPECT_NE(run.m_strError.find(name), std::string::npos) << name << " in " << run.m_strError;
    }
  }
}

TEST(SectionCommand, WritesAPicture) {
  const CRunResult run = RunProgram("section h 300 400 20 10 --name 梁1 --svg 梁1.svg");
  EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
  const CRunResult again = RunProgram("section h 300 400 20 10 --name 梁1 --svg 梁1.svg --json");
  EXPECT_EQ(again.m_nExit, 0) << "an old picture is replaced";
#ifndef _WIN32
  const std::string svg = FileBytes("梁1.svg");
  CheckSvg(svg);
  EXPECT_NE(svg.find("tf = 20"), std::string::npos);
  std::remove("梁1.svg");
#endif
}

TEST(SectionCommand, AlignsItsColumns) {
  const std::string text = RunProgram("section rect 200 400").m_strOut;
  EXPECT_NE(text.find("截面面积        A          80000  mm²  area\n"), std::string::npos) << text;
  EXPECT_NE(text.find("X0轴抵抗矩(上)  Wxo1     5333333  mm³  modulus about X0, top\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("∞"), std::string::npos);
}

TEST(StylesCommand, ListsAllFifteen) {
  const Json styles = Json::parse(RunProgram("styles --json").m_strOut);
  ASSERT_EQ(styles.size(), 15U);
  EXPECT_EQ(styles[9]["alias"], "general-h");
  EXPECT_EQ(styles[9]["sizes"].size(), 8U);
  EXPECT_EQ(styles[9]["sizes"][4]["sign"], "bf1(mm)");
  const CRunResult help = RunProgram("--help");
  EXPECT_EQ(help.m_nExit, 0);
  EXPECT_NE(help.m_strOut.find("section"), std::string::npos);
  EXPECT_NE(help.m_strOut.find("2003"), std::string::npos) << "the edition of the code";
}

}  // namespace
