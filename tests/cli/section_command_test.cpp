// orv3cal styles and orv3cal section, run as programs.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "run_program.h"
#include "sections/section_style.h"
#include "svg_check.h"

namespace {

using nlohmann::json;

json RunJson(const std::string& arguments) {
  const CRun run = RunProgram(arguments);
  EXPECT_EQ(0, run.exit) << run.err;
  EXPECT_EQ("", run.err);
  const json parsed = json::parse(run.out, nullptr, false);
  EXPECT_FALSE(parsed.is_discarded()) << run.out;
  return parsed;
}

// The line of the table for people that holds a sign.
std::string LineOf(const std::string& out, const std::string& sign) {
  const std::size_t at = out.find("  " + sign + " ");
  if (at == std::string::npos) return {};
  const std::size_t start = out.rfind('\n', at) + 1;
  return out.substr(start, out.find('\n', at) - start);
}

// Hand calculation: plate 200 x 400, base point in its lower-left corner.
TEST(SectionCommand, JsonOfAPlateByHand) {
  const json plate = RunJson("section rect 200 400 --name PL200 --json");
  EXPECT_EQ(3, plate["style"]);
  EXPECT_EQ("矩形截面", plate["table"]);
  EXPECT_EQ("PL200", plate["name"]);
  EXPECT_EQ(json({200, 400}), plate["sizes"]);
  EXPECT_EQ(json({0, 0}), plate["base"]);
  const std::pair<const char*, double> expected[] = {
      {"xo", 100},
      {"yo", 200},
      {"A", 80000},
      {"Ixo", 32e8 / 3},
      {"Iyo", 8e8 / 3},
      {"Ix", 128e8 / 3},
      {"Iy", 32e8 / 3},
      {"Wxo1", 16e6 / 3},
      {"Wxo2", 16e6 / 3},
      {"WyoL", 8e6 / 3},
      {"WyoR", 8e6 / 3},
      {"Wx1", 32e6 / 3},
      {"Wx2", 1e100},
      {"WyL", 1e100},
      {"WyR", 16e6 / 3},
      {"Sxo", 4e6},
      {"Syo", 2e6},
      {"Sx1", 16e6},
      {"Sx2", 0},
      {"SyL", 8e6},
      {"SyR", 0},
      {"ixo", 200 / std::sqrt(3.0)},
      {"iyo", 100 / std::sqrt(3.0)},
      {"ix", 400 / std::sqrt(3.0)},
      {"iy", 200 / std::sqrt(3.0)},
  };
  EXPECT_EQ(std::size(expected), plate["properties"].size());
  for (const auto& [key, value] : expected) {
    ASSERT_TRUE(plate["properties"].contains(key)) << key;
    EXPECT_DOUBLE_EQ(value, plate["properties"][key].get<double>()) << key;
  }
}

TEST(SectionCommand, StylesByEveryNameAndBasePointsAnywhere) {
  const struct {
    const char* arguments;
    int style;
    json base;
  } cases[] = {
      {"h 300 400 20 10", 0, {0, 0}},
      {"0 300 400 20 10 --base 150 200", 0, {150, 200}},
      {"自定义对称H型钢 300 400 20 10 --base -5 -.5", 0, {-5, -0.5}},
      {"--base 1e1 2 14 300 400 30 20 12 16", 14, {10, 2}},
      {"general-box --base -1 2 300 400 30 20 12 16", 14, {-1, 2}},
  };
  for (const auto& c : cases) {
    const json section = RunJson(std::string("section ") + c.arguments + " --json");
    EXPECT_EQ(c.style, section["style"]) << c.arguments;
    EXPECT_EQ(c.base, section["base"]) << c.arguments;
  }
  // A property beyond the numbers of a double is null.
  const json huge = RunJson("section rect 1e200 1e200 --json");
  EXPECT_TRUE(huge["properties"]["Ixo"].is_null());
}

TEST(SectionCommand, TableForPeople) {
  const CRun run = RunProgram("section h 300 400 20 10 --name \"梁 1\"");
  ASSERT_EQ(0, run.exit) << run.err;
  EXPECT_EQ(0u, run.out.find("自定义对称H型钢"));
  EXPECT_NE(std::string::npos, run.out.find("梁 1"));
  // By hand: 2 x 300 x 20 + 360 x 10; sum of 300 x 20 x 190^2 x 2, 2 x 300 x 20^3/12, 10 x
  // 360^3/12.
  const std::pair<const char*, std::vector<const char*>> lines[] = {
      {"tf", {"翼缘厚度", " 20 ", "mm"}},
      {"A", {"截面面积", " 15600 ", "mm²"}},
      {"Ixo", {"X0轴惯性矩", " 472480000 ", "mm⁴"}},
      {"Wxo1", {"X0轴抵抗矩(上)", " 2362400 ", "mm³"}},
      {"Wx2", {"X轴抵抗矩(下)", "∞", "mm³", "base point on the edge"}},
      {"ixo", {"X0轴回转半径", " 174.032 ", "mm"}},
  };
  for (const auto& [sign, parts] : lines) {
    const std::string line = LineOf(run.out, sign);
    for (const char* part : parts) {
      EXPECT_NE(std::string::npos, (line + " ").find(part)) << part << " in: " << line;
    }
  }
  // Styles without first moments show none.
  EXPECT_EQ("", LineOf(RunProgram("section triangle 240 300").out, "Sxo"));
}

TEST(SectionCommand, RefusalsNameWhatIsWrongInOneLine) {
  const struct {
    const char* arguments;
    std::vector<const char*> parts;
  } cases[] = {
      {"section h 300 400 -20 10", {"tf(mm)", "-20", "above 0"}},
      {"section h 300 400 20 0", {"tw(mm)", "0", "above 0"}},
      {"section h 300 400 210 10", {"tf(mm)", "210", "below 200"}},
      {"section h 300 400 20 301", {"tw(mm)", "301", "at most 300"}},
      {"section tube 90 100", {"r(mm)", "100", "below 90"}},
      {"section h 300 400 20", {"4 sizes", "b(mm)", "h(mm)", "tf(mm)", "tw(mm)", "not 3"}},
      {"section hexagon 10 20", {"1 size", "a(mm)", "not 2"}},
      {"section rect 200 4oo", {"h(mm)", "4oo", "number"}},
      {"section rect 200 nan", {"h(mm)", "nan", "number"}},
      {"section rect 200 1e999", {"h(mm)", "1e999", "number"}},
      {"section i 200 400", {"STYLE", "\"i\"", "general-box"}},
      {"section 15 200 400", {"STYLE", "\"15\"", "0 to 14"}},
      {"section", {"STYLE"}},
      {"section rect 200 400 --base 1", {"--base"}},
      {"section rect 200 400 --base 1 y", {"--base Y", "\"y\"", "number"}},
      {"section rect 200 400 --nme x", {"--nme"}},
      {"section rect 200 400 --name a,b", {"--name", "a,b", "comma"}},
      {"section rect 200 400 --name 1234567890123456789012345678901", {"--name", "31", "30"}},
      {"sections", {"sections", "section"}},
      {"", {"--help"}},
  };
  for (const auto& c : cases) {
    const CRun run = RunProgram(c.arguments);
    EXPECT_EQ(2, run.exit) << c.arguments;
    EXPECT_EQ("", run.out) << c.arguments;
    EXPECT_EQ(1, std::count(run.err.begin(), run.err.end(), '\n')) << run.err;
    for (const char* part : c.parts) {
      EXPECT_NE(std::string::npos, run.err.find(part)) << part << " in: " << run.err;
    }
  }
}

TEST(SectionCommand, PictureIsWrittenWholeOrNotAtAll) {
  const auto folder = TestFolder();
  const auto file = folder / "h.svg";
  const CRun run = RunProgram("section h 300 400 20 10 --svg \"" + file.string() + "\"");
  EXPECT_EQ(0, run.exit) << run.err;
  const std::string svg = ReadBytes(file);
  CheckSvg(svg);
  for (const char* part : {"自定义对称H型钢", "tf = 20", "tw = 10"}) {
    EXPECT_NE(std::string::npos, svg.find(part)) << part;
  }
  const auto bad = folder / "none" / "h.svg";
  for (const std::string& path : {bad.string(), folder.string(), std::string()}) {
    const CRun refused = RunProgram("section h 300 400 20 10 --svg \"" + path + "\"");
    EXPECT_EQ(3, refused.exit) << path;
    EXPECT_EQ("", refused.out);
    EXPECT_NE(std::string::npos, refused.err.find("\"" + path + "\"")) << refused.err;
  }
  // Bad input leaves a file as it was.
  EXPECT_EQ(2, RunProgram("section h 300 400 0 10 --svg \"" + file.string() + "\"").exit);
  EXPECT_EQ(svg, ReadBytes(file));
}

TEST(StylesCommand, ListsAndDrawsEveryStyle) {
  const CRun run = RunProgram("styles");
  EXPECT_EQ(0, run.exit) << run.err;
  const auto folder = TestFolder() / "pictures";
  const json styles = RunJson("styles --json --svg \"" + folder.string() + "\"")["styles"];
  ASSERT_EQ(15u, styles.size());
  for (const auto& style : styles) {
    const std::string alias = style["alias"];
    EXPECT_NE(std::string::npos, run.out.find(style["table"])) << alias;
    EXPECT_NE(std::string::npos, run.out.find("  " + alias + " ")) << alias;
    CheckSvg(ReadBytes(folder / (alias + ".svg")));
  }
  EXPECT_EQ("tf(mm)", styles[0]["sizes"][2]["sign"]);
  EXPECT_EQ("翼缘厚度", styles[0]["sizes"][2]["title"]);
}

TEST(Program, HelpAndVersion) {
  for (const char* arguments : {"--help", "section --help", "styles --help", "--version"}) {
    const CRun run = RunProgram(arguments);
    EXPECT_EQ(0, run.exit) << arguments;
    EXPECT_EQ("", run.err);
    EXPECT_NE(std::string::npos, run.out.find("orv3cal")) << arguments;
  }
}

}  // namespace
