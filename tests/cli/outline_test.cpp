// orv3cal outline, and the exact block of section, show, rows and exports.

#include <gtest/gtest.h>

#include <cmath>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

const char* const kSquareWithHole =
    R"({"unit": "cm", "loops": [[[2, 3], [12, 3], [12, 13], [2, 13]],)"
    R"( [[5, 8, 1], [9, 8, 1]]]})";

TEST(OutlineCommand, AnswersTheExactPropertiesOfAnOutline) {
  const COwnFile file("square.json", kSquareWithHole);
  const Json json = JsonOf("outline " + file.m_strPath);
  EXPECT_EQ(json["holes"], 1);
  EXPECT_EQ(json["origin"], Json({20.0, 30.0}));
  const Json& exact = json["exact"];
  const double pi = std::acos(-1.0);
  EXPECT_NEAR(exact["A"].get<double>(), 10000 - 400 * pi, 1e-6);
  EXPECT_NEAR(exact["xo"].get<double>(), 50, 1e-9);
  EXPECT_NEAR(exact["Ix"].get<double>(), 1e8 / 12 - pi * 160000 / 4, 1e-3);
  EXPECT_NEAR(exact["xs"].get<double>(), 50, 0.05);
  EXPECT_NEAR(exact["mass"].get<double>(), (10000 - 400 * pi) * 7850e-6, 1e-9);
  EXPECT_NEAR(exact["surface"].get<double>(), 0.4, 1e-12);
  std::string keys;
  const auto ordered = nlohmann::ordered_json::parse(
      RunProgram("outline --json " + file.m_strPath).m_strOut)["exact"];
  for (const auto& [key, value] : ordered.items()) keys += key + " ";
  EXPECT_EQ(keys,
            "A xo yo Ix Iy Ixy I1 I2 theta ix iy i1 i2 Wx1 Wx2 WyL WyR Wpx Wpy xp yp It Iw xs ys "
            "Asx Asy betax betay mass surface ");
}

// What section writes as DXF is what it computes: the same figures come back.
TEST(OutlineCommand, ReadsTheDxfThatSectionsAreWrittenAs) {
  const COwnFile dxf("exact.dxf");
  const COwnFile svg("exact.svg");
  const Json section = JsonOf("section tube 50 45 --dxf " + dxf.m_strPath)["exact"];
  const Json outline =
      JsonOf("outline " + dxf.m_strPath + " --svg " + svg.m_strPath + " --stress 0,0,0,1000");
  for (const char* key : {"A", "Ix", "It", "Wpx"}) {
    const double told = section[key].get<double>();
    EXPECT_NEAR(outline["exact"][key].get<double>(), told, 1e-9 * told) << key;
  }
  const double polar = 2 * section["Ix"].get<double>();
  EXPECT_NEAR(section["It"].get<double>(), polar, 1e-3 * polar);
  // T r / Ip on the rim; 1000 kN mm.
  const double tau = 1e6 * 50 / polar;
  EXPECT_NEAR(std::fabs(outline["stress"]["tau"]["value"].get<double>()), tau, 0.01 * tau);
  EXPECT_NEAR(outline["stress"]["mises"]["value"].get<double>(), std::sqrt(3.0) * tau, 0.02 * tau);
  CheckSvg(svg.Bytes());
}

TEST(OutlineCommand, RefusesInOneLineThatNamesTheFault) {
  const auto loops = [](const std::string& text) {
    return R"({"unit": "mm", "loops": )" + text + "}";
  };
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"", {"is no JSON"}},
      {"[]", {"holds no outline"}},
      {"{}", {"lacks \"loops\""}},
      {loops("[]"), {"holds no outline"}},
      {loops("[[[0,0],[4,4],[4,0],[0,4]]]"), {"loop 1 crosses or touches itself at (2, 2)"}},
      {loops("[[[0,0],[9,0],[9,9]],[[8,0],[12,0],[8,4]]]"), {"loops 1 and 2 cross or touch"}},
      {loops("[[[0,0],[4,0],[4,4],[0,0]]]"), {"from point 4", "has no length"}},
      {loops("[[[0,0],[4]]]"), {"loop 1, point 2", "[x, y, bulge]"}},
      {loops("[[[0,0],[4,0,0,7]]]"), {"loop 1, point 2", "has more than three numbers"}},
      {loops("[[[0,0],[4,\"b\"]]]"), {"loop 1, point 2", "\"b\""}},
      {loops("[[[0,0],[1e999,0],[1,1]]]"), {"1e999", "too large"}},
      {R"({"unit": "mile", "loops": []})", {"\"mile\" is not taken", "mm, cm, m or in"}},
      {R"({"units": "mm"})", {"\"units\" is no key of an outline"}},
      {loops("[[[0,0],[4,0],[4,4]]]") + "x", {"is no JSON"}},
      // Stopped within a character, of which no byte may come out.
      {"{\"unit\": 热}", {"error of syntax at line 1, column 10"}},
      {"0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n", {"holds no outline"}},
  };
  int number = 0;
  for (const auto& [text, names] : cases) {
    const COwnFile file("bad" + std::to_string(number++), text);
    std::vector<std::string> all = names;
    all.push_back(file.m_strPath);
    ExpectRefused({{"outline " + file.m_strPath, all}});
  }
  const COwnFile good("good.json", kSquareWithHole);
  ExpectRefused({
      {"outline no_such.dxf", {"no_such.dxf: not found"}, 3},
      {"outline " + good.m_strPath + " --stress 1,2", {"--stress", "2 numbers", "N,Mx,My,T"}},
      {"outline " + good.m_strPath + " --stress 1,2,x,4", {"--stress My", "\"x\""}},
      {"outline " + good.m_strPath + " --layer 0", {"--layer"}},
      {"outline " + good.m_strPath + " --svg " + good.m_strPath, {"is the file that is read"}},
  });
}

// Drawings of old releases name their layers by the code page: 轮廓 is C2 D6 C0 AA, 轴线 D6 E1 CF
// DF.
TEST(OutlineCommand, TakesALayerNamedByTheCodePage) {
  const auto circle = [](const std::string& layer, const std::string& radius) {
    return "0\nCIRCLE\n8\n" + layer + "\n10\n0\n20\n0\n40\n" + radius + "\n";
  };
  const COwnFile file("gbk.dxf", "0\nSECTION\n2\nENTITIES\n" + circle("\xC2\xD6\xC0\xAA", "10") +
                                     circle("\xD6\xE1\xCF\xDF", "90") + "0\nENDSEC\n0\nEOF\n");
  EXPECT_NEAR(JsonOf("outline " + file.m_strPath + " --layer 轮廓")["exact"]["A"].get<double>(),
              314.159, 1e-3);
  ExpectRefused({{"outline " + file.m_strPath + " --layer x", {"轮廓, 轴线"}}});
}

TEST(ExactBlock, StandsBelowTheFiguresOfASection) {
  ExpectHas(RunProgram("section rect 200 200").m_strOut,
            {"Exact, from the outline itself", "自由扭转常数", "torsion constant", "thin-wall"});
  // 0.14058 b^4 of a square.
  EXPECT_NEAR(JsonOf("section rect 200 200")["exact"]["It"].get<double>() / 1.6e9, 0.140577, 1e-4);
  const CRunResult pair = RunProgram("show 热轧等边角钢组合 2L100X10" + kData);
  ExpectHas(pair.m_strOut, {"It is the sum of theirs"});
  EXPECT_TRUE(JsonOf("show 热轧等边角钢组合 2L100X10" + kData)["exact"]["Iw"].is_null());
}

TEST(ExactColumns, AreFilteredSortedAndExported) {
  const std::string table = "热轧普通工字钢" + kData;
  const Json json = JsonOf("rows " + table +
                           " --where \"It>=1e6 && Iw<<1e12\" --sort It:desc "
                           "--columns No.,Iw,It");
  ASSERT_GT(json["rows"].size(), 3U);
  EXPECT_EQ(json["columns"][1]["sign"], "It");
  double last = 1e99;
  for (const Json& row : json["rows"]) {
    const double It = std::stod(row["cells"][1].get<std::string>());
    EXPECT_GE(It, 1e6);
    EXPECT_LE(It, last);
    EXPECT_LT(std::stod(row["cells"][2].get<std::string>()), 1e12);
    last = It;
  }
  // A pair has no Iw: neither below nor above any number is it found by one.
  const std::string pairs = "rows 热轧等边角钢组合" + kData + " --columns No.,Iw --where ";
  EXPECT_EQ(JsonOf(pairs + "\"Iw<<1e99\"")["rows"].size(), 0U);
  EXPECT_EQ(JsonOf(pairs + "\"Iw!=5 || No.==2L100X10\"")["rows"].size(), 1U);
  const COwnFile csv("exact.csv");
  EXPECT_EQ(RunProgram("store export " + table + " --exact --to " + csv.m_strPath).m_nExit, 0);
  ExpectHas(csv.Bytes(), {",It:double,Iw:double,"});
  const COwnFile exported("exact.json");
  EXPECT_EQ(RunProgram("store export " + table + " --exact --to " + exported.m_strPath).m_nExit, 0);
  const Json file = Json::parse(exported.Bytes());
  for (const Json& row : file["tables"][0]["rows"]) {
    EXPECT_TRUE(row["accurate"].get<bool>());
    EXPECT_LT(row["errors"]["It"].get<double>(), 1e-3);
  }
  ExpectRefused({{"store export " + table + " --exact --to x.kdb", {"--exact", ".xlsx"}}});
}

}  // namespace
