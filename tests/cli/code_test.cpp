// orv3cal code, run as a user runs it.

#include <gtest/gtest.h>

#include "cli/run_program.h"

namespace {

TEST(CodeCommand, AnswersBy2003AsBefore) {
  const struct {
    const char* arguments;
    Json value;
  } cases[] = {
      {"bolt anchor Q345 ft", 180},
      {"area 30 gross", 7.069},
      {"mu sway 0 0", nullptr},
      {"mu sway 0.04 0.02", nullptr},
      {"width-moments web Q235 1.6 60", 80.6},
      {"width-moments web Q235 2 60", 99.8},
      {"slenderness compression", 150},
      {"mu-taper 0.05 0.5", 0.644},
      {"class 1 x", "a"},
      {"class-thick 2 y", "d"},
      {"fatigue 3 C", 3.26},
      {"gamma 22 x", 1.0},
  };
  for (const auto& each : cases) {
    const Json answer = JsonOf(std::string("code ") + each.arguments + " --code 2003");
    EXPECT_EQ(answer["value"], each.value) << each.arguments;
    EXPECT_TRUE(answer.contains("unit") && !answer["source"].get<std::string>().empty());
    EXPECT_FALSE(answer.contains("status")) << "the shape is that of before";
  }
  ExpectHas(RunProgram("code mu sway 0 0 --code 2003").m_strOut, {"∞"});
  ExpectRefused({{"code gamma 23 x --code 2003", {"23", "solid bars", "T sections"}},
                 {"code class 0 x --code 2003", {"rolled tube"}},
                 {"code slip 5 Q235 --code 2003", {"wire brush"}},
                 {"code mu-step free 0 1 --code 2003", {"above 0"}}});
  for (const char* bad :
       {"steel Q235 101", "steel Q236 10", "bolt C 8.8 ft", "preload 8.8 18", "weld Q235 10",
        "phi 50 0 b", "mu-step2 free 0.1 0.2 0.1 0.2", "mu-taper 0.04 0.5", "steel Q235 1x"}) {
    ExpectRefused({{std::string("code ") + bad + " --code 2003", {}}});
  }
}

TEST(CodeCommand, AnswersBy2017UnlessTold) {
  const struct {
    const char* arguments;
    Json value;
    const char* source;
  } cases[] = {
      {"steel Q345GJ 16.01 fu", 490, "4.4.2, Table 4.4.2"},
      {"steel Q345 30", 295, "4.4.1, Table 4.4.1"},
      {"steel Q345 30 --tube", 290, "4.4.3, Table 4.4.3"},
      {"weld Q420 63.5 ftw3", 260, "4.4.5, Table 4.4.5"},
      {"weld Q390 16 ffw E55", 220, "4.4.5"},
      {"bolt bearing 10.9 fu", 1040, "4.4.6, Table 4.4.6"},
      {"bolt anchor Q390 ft", 185, "4.4.6"},
      {"preload 10.9 20", 155, "11.4.2, Table 11.4.2-2"},
      {"hole oversize 24", 30, "11.5.1, Table 11.5.1"},
      {"spacing side-least-rolled 20 8", 24, "11.5.2, Table 11.5.2"},
      {"section-class web-compressed 70.1 Q235 1", "S5", "3.5.1, Table 3.5.1"},
      {"section-class tube 101 Q235", "beyond S4", "3.5.1"},
      {"width flange Q235 60", 16, "7.3.1"},
      {"width-moments flange Q235 2", 15, "8.4.1, Table 3.5.1"},
      {"width-beam web-stiffeners Q235", 80, "6.3.2"},
      {"slenderness tension-dynamic", 250, "7.4.7"},
      {"class rolled-i-wide y", "b*", "7.2.1, Table 7.2.1-1"},
      {"class-thick 2 y", "d", "7.2.1, Table 7.2.1-2"},
      {"gamma 0 y S4", 1, "6.1.2"},
      {"gamma 18 x", 1.15, "8.1.1, Table 8.1.1"},
      {"mu sway 0 0", nullptr, "Appendix E, Table E.0.2"},
      {"mu-step sliding 3 0.8", 4.61, "Appendix E, Table E.0.4"},
      {"fatigue Z3 C", 3.91, "16.2.1, Table 16.2.1-1"},
      {"phib concentrated-upper 20 7 Q345", 0.58 * 235 / 345, "C.0.2, Table C.0.2"},
  };
  for (const auto& each : cases) {
    const Json answer = JsonOf(std::string("code ") + each.arguments);
    if (each.value.is_number_float()) {
      EXPECT_DOUBLE_EQ(answer["value"], each.value) << each.arguments;
    } else {
      EXPECT_EQ(answer["value"], each.value) << each.arguments;
    }
    ExpectHas(answer["source"], {"GB 50017-2017, ", each.source});
  }
  EXPECT_EQ(JsonOf("code steel Q355 20")["status"], "derived");
  EXPECT_EQ(JsonOf("code steel Q460 40 --tube")["status"], "doubtful");
  ExpectHas(RunProgram("code steel Q355 20").m_strOut, {"295 N/mm²", "Q345 column"});
}

TEST(CodeCommand, TheEditionIsAskedForByOptionOrVariable) {
  SetVariable("ORV3CAL_CODE", "2003");
  EXPECT_EQ(JsonOf("code steel Q345 16")["value"], 310);
  EXPECT_EQ(JsonOf("code steel Q345 16 --code 2017")["value"], 305);
  SetVariable("ORV3CAL_CODE", "1988");
  ExpectRefused({{"code steel Q345 16", {"ORV3CAL_CODE", "1988", "2003, 2017"}}});
  SetVariable("ORV3CAL_CODE", "");
  EXPECT_EQ(JsonOf("code steel Q345 16")["value"], 305);
}

TEST(CodeCommand, RefusesWhatAnEditionLacks) {
  ExpectRefused(
      {{"code steel Q345 16 --code 2010", {"--code", "2010", "2003, 2017"}},
       {"code steel Q345 16 --code \"\"", {"2003, 2017"}},
       {"code steel Q345 100.5", {"T: 100.5", "100 mm"}},
       {"code weld Q235 10 ffw E50", {"ELECTRODE", "Q235", "E43"}},
       {"code weld Q235 10 fcw E43", {"ffw alone"}},
       {"code slender Q235 upper", {"--code", "2003"}},
       {"code section-class web-compressed 10 Q235", {"ALPHA0"}},
       {"code fatigue 3 C", {"Z1 to Z14"}},
       {"code fatigue Z15 C", {"Z15"}},
       {"code fatigue Z01 C", {"Z01"}},
       {"code width-moments web Q235 1 --code 2003", {"LAMBDA", "0 to 1000"}},
       {"code width-moments web Q235 1 60", {"LAMBDA", "leave it out"}},
       {"code width web Q460 60 --code 2003", {"GB 50017-2003", "Q460"}},
       {"code width plate Q235 60 --lang zh", {"ELEMENT：“plate”不可用；请给出下列之一：flange"}},
       {"code steel Q345 -1 --lang zh", {"T：“-1”不可用；请给出大于 0"}},
       {"code fatigue J1 5e6", {"range 5e6"}},
       {"code class 3 x", {"rolled-tube"}},
       {"code gamma 0 x S1 --code 2003", {"CLASS"}}});
}

}  // namespace
