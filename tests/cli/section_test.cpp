// orv3cal styles and orv3cal section, run as a user runs them.

#include <gtest/gtest.h>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

TEST(SectionCommand, GivesTheWorkedRectangle) {
  const Json json = JsonOf("section rect 200 400 --name 400X200");
  EXPECT_EQ(json["style"], 3);
  EXPECT_EQ(json["table"], "矩形截面");
  EXPECT_EQ(json["name"], "400X200");
  EXPECT_EQ(json["sizes"], Json({200.0, 400.0}));
  EXPECT_EQ(json["base"], Json({0.0, 0.0}));
  const Json& properties = json["properties"];
  EXPECT_EQ(properties.size(), 25U);
  EXPECT_TRUE(properties["Wx2"].is_null()) << "infinite: the base point lies on the lower edge";
  const Json& geometry = json["geometry"];
  EXPECT_EQ(geometry["height"], 400);
  EXPECT_EQ(geometry["tmax"], 200);
  EXPECT_TRUE(geometry["Iw"].is_null()) << "of a solid nobody computes it";
}

TEST(SectionCommand, TakesAStyleByNumberNameAndAlias) {
  const Json byNumber = JsonOf("section 7 50 45 --base -10 20");
  EXPECT_EQ(JsonOf("section tube 50 45 --base -10 20"), byNumber);
  EXPECT_EQ(JsonOf("section 自定义圆管 50 45 --base -10 20"), byNumber);
}

TEST(SectionCommand, TakesTheBasePointAnywhere) {
  const std::pair<const char*, Json> cases[] = {
      {"rect 200 400 --base 1e1 2", {10.0, 2.0}},
      {"rect --base -5 -6 200 400", {-5.0, -6.0}},
      {"--base -.5 .25 rect 200 400", {-0.5, 0.25}},
  };
  for (const auto& [arguments, base] : cases) {
    const Json json = JsonOf(std::string("section ") + arguments);
    EXPECT_EQ(json["base"], base) << arguments;
    EXPECT_EQ(json["sizes"], Json({200.0, 400.0})) << arguments;
  }
}

// A hexagon's first moments are not computed; a 0 would be taken for a result.
TEST(SectionCommand, GivesNoNumberWhereNoneIsComputed) {
  EXPECT_TRUE(JsonOf("section hexagon 100")["properties"]["Sxo"].is_null());
  ExpectHas(RunProgram("section hexagon 100").m_strOut,
            {"-  mm³  first moment about X0", "0.54127"});
  const Json circle = JsonOf("section circle 100")["properties"];
  EXPECT_NEAR(circle["Sxo"].get<double>(), 2e6 / 3, 1e-6);
  EXPECT_TRUE(circle["Sx1"].is_null());
  const Json outside = JsonOf("section rect 200 400 --base 100 401")["properties"];
  EXPECT_TRUE(outside["Sx1"].is_null());
  EXPECT_EQ(outside["SyL"], 400 * 100 * 50);
}

TEST(SectionCommand, RefusesInOneLineThatNamesTheFault) {
  ExpectRefused({
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
      {"section rect 1 2 --svg .", {".: not written", "it is a folder"}, 3},
#ifndef _WIN32
      {"section rect 1 2 --svg /dev/full", {"/dev/full", "the disk is full"}, 3},
      {"section rect 1 2 >/dev/full", {"standard output"}, 3},
#endif
  });
}

TEST(SectionCommand, WritesAPicture) {
  const COwnFile svg("梁1.svg");
  const std::string command = "section h 300 400 20 10 --name 梁1 --svg " + svg.m_strPath;
  EXPECT_EQ(RunProgram(command).m_nExit, 0);
  EXPECT_EQ(RunProgram(command + " --json").m_nExit, 0) << "an old picture is replaced";
  CheckSvg(svg.Bytes());
  ExpectHas(svg.Bytes(), {"tf = 20"});
}

TEST(StylesCommand, ListsAllFifteen) {
  ExpectHas(RunProgram("styles").m_strOut,
            {"自定义Z形截面", "bf1  上翼缘宽度  top flange overhang left of the web\n"});
  const Json styles = JsonOf("styles");
  ASSERT_EQ(styles.size(), 15U);
  EXPECT_EQ(styles[9]["alias"], "general-h");
  EXPECT_EQ(styles[9]["sizes"].size(), 8U);
  EXPECT_EQ(styles[9]["sizes"][4]["sign"], "bf1(mm)");
  const CRunResult help = RunProgram("--help");
  EXPECT_EQ(help.m_nExit, 0);
  ExpectHas(help.m_strOut, {"section", "2003"});  // the edition of the code
}

}  // namespace
