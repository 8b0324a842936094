// orv3cal show and the outlines for drawing programs, run as a user runs them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

std::string Show(const std::string& arguments) { return "show " + arguments + kData; }
Json ShowJson(const std::string& arguments) { return JsonOf(Show(arguments)); }

double Cell(const Json& row, const std::string& sign) {
  for (std::size_t i = 0; i < row["columns"].size(); ++i) {
    if (row["columns"][i]["sign"] == sign) return std::stod(row["cells"][i].get<std::string>());
  }
  ADD_FAILURE() << sign << " is no column";
  return NAN;
}

TEST(ShowCommand, GivesTheGeometryInMillimetres) {
  const Json row = ShowJson("热轧普通工字钢 I20a");
  EXPECT_EQ(row["columns"][0], Json({{"sign", "No."},
                                     {"name", "型号"},
                                     {"title", "number"},
                                     {"type", "text"},
                                     {"key", true}}));
  const Json& g = row["geometry"];
  EXPECT_EQ(g.size(), 23U);
  EXPECT_EQ(g["width"], 100);
  EXPECT_EQ(g["height"], 200);
  EXPECT_EQ(g["xc"], 50);
  EXPECT_NEAR(g["Ix"], 23.7e6, 0.02e6);
  EXPECT_EQ(g["tmax"], 11.4);
  EXPECT_EQ(g["symX"], true);
}

// Turned by 90 degrees counter-clockwise, a channel's back lies below.
TEST(ShowCommand, TurnsTheSection) {
  const Json upright = ShowJson("热轧普通槽钢 [20a")["geometry"];
  const Json turned = ShowJson("热轧普通槽钢 [20a --turn 90")["geometry"];
  const std::pair<const char*, const char*> same[] = {
      {"width", "height"}, {"height", "width"}, {"yc", "xc"},     {"Ix", "Iy"},
      {"Iy", "Ix"},        {"ix", "iy"},        {"Wxo1", "WyoR"}, {"Wxo2", "WyoL"},
      {"WyoL", "Wxo1"},    {"WyoR", "Wxo2"},    {"area", "area"}, {"symY", "symX"}};
  for (const auto& [now, before] : same) EXPECT_EQ(turned[now], upright[before]) << now;
  EXPECT_EQ(turned["xc"], 100);
  EXPECT_TRUE(turned["Sxo"].is_null());
  EXPECT_EQ(turned["axes"], Json({{"x", "Y"}, {"y", "X"}})) << "the axes turn with the section";
}

// The exact figures are those that the turned outline has when it is solved by itself.
TEST(ShowCommand, TurnsTheExactFiguresAsTheOutline) {
  for (const char* row : {"热轧不等边角钢 L100X80X8", "热轧普通槽钢 [20a"}) {
    for (const char* turn : {"90", "180", "270"}) {
      const COwnFile drawing("turned.dxf");
      const Json shown = ShowJson(std::string(row) + " --turn " + turn + " --dxf \"" +
                                  drawing.m_strPath + "\"")["exact"];
      const Json solved = JsonOf("outline \"" + drawing.m_strPath + "\" --json")["exact"];
      for (const auto& [key, value] : solved.items()) {
        const double scale = std::max(1.0, std::fabs(double(value)));
        EXPECT_NEAR(shown[key], double(value), 2e-3 * scale)
            << row << " at " << turn << ": " << key;
      }
    }
  }
}

// Each letter stands for one axis: a row's figures name the axes that they are about.
TEST(ShowCommand, NamesTheAxesOfItsFigures) {
  const Json angle = ShowJson("热轧等边角钢 L100X10");
  EXPECT_NEAR(angle["geometry"]["ix"], 10 * Cell(angle, "ix(cm)"), 1e-9) << "as Ix, about X";
  EXPECT_NEAR(angle["geometry"]["imin"], 10 * Cell(angle, "iyo(cm)"), 1e-9);
  EXPECT_EQ(ShowJson("冷弯薄壁卷边Z型钢 Z140X50X20X2.5")["geometry"]["axes"]["x"], "X1");
  const Json cross = ShowJson("热轧等边角钢十字组合 2L100X10 --turn 90");
  EXPECT_EQ(cross["geometry"]["axes"], Json({{"x", "X1"}, {"y", "Y1"}}));
  EXPECT_NEAR(cross["geometry"]["Iy"], 1e4 * Cell(cross, "Iy1(cm^4)"), 1);
  EXPECT_EQ(cross["geometry"]["symX"], true);
  EXPECT_NEAR(ShowJson("剖分T型钢 TW100X200")["geometry"]["yc"], 100 - 17.3, 1e-9);
}

// GB 50017-2003: f = 205 N/mm^2 above 16 mm; L/iyo = 570/3.55 and 570/0.39 cm.
TEST(ShowCommand, TellsWhatCapacitiesAreOf) {
  EXPECT_NEAR(Cell(ShowJson("热轧等边角钢 L180X18"), "N(kN)"), 61.955 * 20.5, 0.006);
  const Json small = ShowJson("热轧等边角钢 L20X3");
  EXPECT_NEAR(small["slenderness"]["P(5.7m)(kN)"], 570 / 0.39, 1e-9);
  ExpectHas(small["notes"][0], {"Q235", "class b"});
  ExpectHas(RunProgram(Show("热轧等边角钢 L20X3")).m_strOut, {"kN  ", "λ = 1462 > 250"});
}

TEST(ShowCommand, SetsAPairApart) {
  const Json closed = ShowJson("热轧等边角钢组合 2L100X10");
  const Json apart = ShowJson("热轧等边角钢组合 2L100X10 --gap 10");
  EXPECT_EQ(closed["geometry"]["width"], 200);
  EXPECT_EQ(apart["geometry"]["width"], 210);
  EXPECT_EQ(apart["columns"][1]["sign"], "a(mm)");
  EXPECT_EQ(apart["columns"][1]["type"], "int");
  EXPECT_EQ(apart["cells"][1], "10");
  EXPECT_NEAR(apart["geometry"]["iy"], 45.2, 0.05);
  EXPECT_EQ(ShowJson("热轧等边角钢十字组合 2L100X10 --gap 8")["columns"][1]["sign"], "δ(mm)");
}

TEST(ShowCommand, AlignsItsColumns) {
  ExpectHas(RunProgram(Show("热轧普通工字钢 I20a")).m_strOut,
            {"截面面积          A            35.578  cm²   area\n",
             "外接矩形高        height          200  mm    height of the bounding box\n"});
}

TEST(ShowCommand, WritesPictureAndOutline) {
  const COwnFile svg("c.svg");
  const COwnFile dxf("c.dxf");
  const std::string files = " --svg " + svg.m_strPath + " --dxf " + dxf.m_strPath;
  EXPECT_EQ(RunProgram(Show("热轧普通槽钢 [20a --turn 180" + files)).m_nExit, 0);
  CheckSvg(svg.Bytes());
  ExpectHas(svg.Bytes(), {"[20a", "tw = 7", "r1 = 5.5"});
  ExpectHas(dxf.Bytes(), {"AC1015", "LWPOLYLINE"});
}

// A store of the user's own; limbs of its columns are looked up in the catalogue.
TEST(ShowCommand, ShowsWhatAStoreHolds) {
  const COwnFile store("own.KDB");
  const std::string own = " --store " + store.m_strPath;
  const std::string limbs =
      " --set P1Type=热轧普通槽钢 --set \"P1No.=[10\" --set P1θ°=90 --set P2Type=热轧普通槽钢 "
      "--set \"P2No.=[10\" --set P2θ°=270";
  for (const std::string& row :
       {std::string(
            "自定义Z形截面 --set No.=Z180X70X20 --set \"b(mm)=20\" --set \"h(mm)=400\" --set "
            "\"bh1(mm)=20\" --set \"bh2(mm)=20\" --set \"bf1(mm)=50\" --set \"bf2(mm)=50\""),
        "双肢格构柱 --set No.=G2[10X800 --set \"k(mm)=800\"" + limbs})
    ASSERT_EQ(RunProgram("store add " + row + own + kData).m_nExit, 0);
  const Json z = ShowJson("自定义Z形截面 Z180X70X20" + own)["geometry"];
  EXPECT_EQ(z["area"], 20 * 400 + 2 * 20 * 50);
  EXPECT_EQ(z["width"], 120);
  const COwnFile svg("column.svg");
  const Json g = ShowJson("双肢格构柱 G2[10X800 --svg " + svg.m_strPath + own)["geometry"];
  EXPECT_NEAR(g["area"], 2 * 1274.8, 1);  // [10 of GB/T 707
  EXPECT_NEAR(g["Ix"], 2 * 1274.8 * 400 * 400 + 2 * 25.6e4, 1e6);
  ExpectHas(svg.Bytes(), {"k = 800"});
}

TEST(ShowCommand, RefusesInOneLineThatNamesTheFault) {
  ExpectRefused({
      {Show("热轧普通工字钢 I20"), {"NO", "I20", "I20a, I20b"}},
      {Show("热轧工字钢 I20a"), {"TABLE", "热轧工字钢", "热轧普通工字钢"}},
      {Show("热轧普通工字钢 I20a --turn 45"), {"--turn", "45", "270"}},
      {Show("热轧普通工字钢 I20a --gap 10"), {"--gap", "热轧普通工字钢", "pairs"}},
      {Show("热轧普通槽钢[]组合 2[][10 --gap 10"), {"--gap", "touch", "双肢格构柱"}},
      {Show("热轧等边角钢组合 2L100X10 --gap 2.5"), {"--gap", "2.5"}},
      {Show("热轧等边角钢组合 2L100X10 --gap -1"), {"--gap"}},
      {Show("热轧普通工字钢"), {"NO", "missing"}},
      {Show("热轧普通工字钢 -x"), {"NO", "-x", "behind --"}},
      {Show("热轧普通工字钢 I20a --store no_such.KDB"), {"no_such.KDB"}, 3},
      {Show("热轧普通工字钢 I20a --dxf no_such_folder/x.dxf"), {"no_such_folder/x.dxf"}, 3},
  });
}

}  // namespace
