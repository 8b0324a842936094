// orv3cal tables, rows, lattice and gauge on the catalogue, run as a user runs them.

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

// On the catalogue of the build.
CRunResult OnCatalogue(const std::string& arguments) { return RunProgram(arguments + kData); }
Json CatalogueJson(const std::string& arguments) { return JsonOf(arguments + kData); }

std::vector<std::string> Numbers(const Json& rows) {
  std::vector<std::string> numbers;
  for (const Json& row : rows["rows"]) numbers.push_back(row["cells"][0]);
  return numbers;
}

// --- tables --------------------------------------------------------------------------------------

TEST(TablesCommand, ListsTheCatalogueByFamily) {
  const Json all = CatalogueJson("tables --mask 0x01000FFF");
  EXPECT_EQ(all.size(), 27U);
  EXPECT_EQ(all[0]["name"], "热轧普通工字钢");
  EXPECT_EQ(all[0]["rows"], 34);
  EXPECT_EQ(all[0]["columns"], 17);
  EXPECT_EQ(all[0]["mask"], 0x01000001);
  const Json channels = CatalogueJson("tables --mask 0x01000008");
  ASSERT_EQ(channels.size(), 4U);
  EXPECT_EQ(channels[1]["name"], "热轧轻型槽钢");
  EXPECT_EQ(channels[1]["family"], "channel");
  EXPECT_EQ(CatalogueJson("tables --mask 16777224"), channels);
  EXPECT_EQ(CatalogueJson("tables --mask 8").size(), 0U) << "no source";
  EXPECT_EQ(OnCatalogue("tables --csv --mask 0x01000002").m_strOut,
            "\xEF\xBB\xBFtable,source,family,rows,columns,mask\n"
            "冷弯薄壁方钢管,rolled,box," +
                std::to_string(CatalogueJson("tables --mask 0x01000002")[0]["rows"].get<int>()) +
                ",9,0x01000002\n");
}

// --- rows ----------------------------------------------------------------------------------------

TEST(RowsCommand, SearchesSortsAndKeepsColumns) {
  const std::string beams = "rows 热轧普通工字钢";
  EXPECT_EQ(Numbers(CatalogueJson(beams + " --where \"No.==I20*\" --wildcard")),
            (std::vector<std::string>{"I20a", "I20b"}));
  EXPECT_EQ(Numbers(CatalogueJson(beams + " --where \"No. == I20a || No. == I63c\"")),
            (std::vector<std::string>{"I20a", "I63c"}));
  EXPECT_EQ(
      Numbers(CatalogueJson(beams + " --where \"h(mm) >= 560 && tw(mm) << 13\" --sort No.:desc")),
      (std::vector<std::string>{"I56a"}))
      << "webs of 12.5, 14.5, 16.5 (I56) and 13, 15, 17 mm (I63)";
  EXPECT_EQ(Numbers(CatalogueJson(beams + " --sort \"h(mm):desc\"")).front().substr(0, 3), "I63");
  EXPECT_EQ(Numbers(CatalogueJson(beams + " --where \"No.==nothing\"")).size(), 0U);

  const Json json = CatalogueJson(beams + " --columns \"A(cm^2),No.\" --where \"No.==I20a\"");
  EXPECT_EQ(json["table"], "热轧普通工字钢");
  ASSERT_EQ(json["columns"].size(), 2U);
  EXPECT_EQ(json["columns"][0]["sign"], "No.") << "the table's order";
  EXPECT_EQ(json["columns"][0]["key"], true);
  EXPECT_EQ(json["columns"][1]["type"], "double");
  EXPECT_EQ(json["columns"][1]["name"], "截面面积");
  EXPECT_EQ(json["rows"][0]["cells"], Json({"I20a", "35.578"})) << "GB/T 706-1988";
  EXPECT_EQ(json["rows"][0]["state"], 4) << "the catalogue's own";
}

TEST(RowsCommand, WritesCsvAndAlignedText) {
  const std::string beams = "rows 热轧普通工字钢 --columns \"No.,h(mm)\" --where ";
  EXPECT_EQ(OnCatalogue(beams + "\"No.==I10\" --csv").m_strOut, "\xEF\xBB\xBFNo.,h(mm)\nI10,100\n");
  EXPECT_EQ(OnCatalogue(beams + "\"No.==I1*\" --wildcard").m_strOut,
            "No.    h(mm)\nI10      100\nI12.6    126\nI14      140\nI16      160\nI18      180\n\n"
            "热轧普通工字钢: 5 rows\n");
  // Without --wildcard a star is a star; somebody who finds nothing is told.
  EXPECT_EQ(OnCatalogue(beams + "\"No.==I1*\"").m_strOut,
            "No.  h(mm)\n\n热轧普通工字钢: 0 rows\nwith --wildcard a * stands for any text\n");
}

TEST(RowsCommand, RefusesInOneLineThatNamesTheFault) {
  const std::string beams = "rows 热轧普通工字钢" + kData;
  ExpectRefused({
      {"rows 热轧工字钢" + kData, {"热轧工字钢", "热轧普通工字钢", "热轧轻型工字钢"}},
      {beams + " --where \"h(mm)>400\"", {"--where", "h(mm)>400", ">>"}},
      {beams + " --where \"h>>400\"", {"--where", "\"h\"", "h(mm)"}},
      {beams + " --where \"h(mm)>>tall\"", {"h(mm)", "tall", "number"}},
      {beams + " --where \"h(mm)==2*\"", {"h(mm)", "2*", "--wildcard"}},
      {beams + " --where \"No.==a && No.==b || No.==c\"", {"&&", "||"}},
      {beams + " --where \"No.==a VIEW No.\"", {"VIEW", "--columns"}},
      {beams + " --columns \"No.,H(mm)\"", {"--columns", "H(mm)", "h(mm)"}},
      {beams + " --sort G", {"--sort", "\"G\"", "G(kg/m)"}},
      {beams + " --sort No.:up", {"--sort", "up", "desc"}},
      {beams + " --json --csv", {"--json", "--csv"}},
      {"tables --mask 0xG" + kData, {"--mask", "0xG"}},
      {"rows 热轧普通工字钢 --store no_such_store.KDB" + kData, {"no_such_store.KDB"}, 3},
  });
}

// --- lattice -------------------------------------------------------------------------------------

const std::string kExample = ORV3CAL_SOURCE "/examples/lattice-4.json";

// The example with `change` merged over it; null takes a key away.
std::string Column(const Json& change) {
  Json column = Json::parse(FileBytes(kExample));
  column.merge_patch(change);
  return column.dump();
}

TEST(LatticeCommand, DrawsItsLimbs) {
  const COwnFile column("column.json", Column({{"P2No.", "L63X6"}}));
  const COwnFile svg("column.svg");
  const CRunResult run = OnCatalogue("lattice " + column.m_strPath + " --svg " + svg.m_strPath);
  EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
  CheckSvg(svg.Bytes());
  ExpectHas(svg.Bytes(), {"kx = 600", "ky = 800", "L63X6", "centroid"});
}

TEST(LatticeCommand, RefusesInOneLineThatNamesTheFault) {
  const struct {
    Json change;
    std::vector<std::string> names;
  } cases[] = {
      {{{"k(mm)", 800}}, {"k(mm)", "四肢格构柱", "leave it out"}},
      {{{"table", "三肢格构柱"}}, {"P4Type", "leave it out"}},
      {{{"ky(mm)", nullptr}}, {"ky(mm)", "missing"}},
      {{{"P3θ°", nullptr}}, {"P3θ°", "missing"}},
      {{{"P3θ°", 45}}, {"P3θ°", "45", "270"}},
      {{{"kx(mm)", 0}}, {"kx(mm)", "0", "above 0"}},
      {{{"kx(mm)", "600"}}, {"kx(mm)", "600", "number"}},
      {{{"A(mm^2)", 7704}}, {"A(mm^2)", "no key"}},
      {{{"P2No.", "L100X11"}}, {"P2No.", "L100X11", "L100X10"}},
      {{{"P2Type", "四肢格构柱"}}, {"P2Type", "四肢格构柱", "rolled"}},
  };
  for (const auto& c : cases) {
    const COwnFile file("wrong.json", Column(c.change));
    ExpectRefused({{"lattice " + file.m_strPath + kData, c.names}});
  }
  const COwnFile array("array.json", "[{}]");
  const COwnFile half("half.json", "{\"table\"");
  ExpectRefused({{"lattice " + array.m_strPath + kData, {"single"}},
                 {"lattice " + half.m_strPath + kData, {"no JSON"}},
                 {"lattice no_such_file.json" + kData, {"no_such_file.json"}, 3}});
}

// --- gauge ---------------------------------------------------------------------------------------

TEST(GaugeCommand, TellsEachFigureWithItsMeaning) {
  const Json line = CatalogueJson("gauge 热轧普通工字钢 I22a")["spacings"][0];
  EXPECT_EQ(line["source"], "strSub4");
  EXPECT_EQ(line["values"][0]["key"], "a");
  EXPECT_EQ(line["values"][0]["value"], 54);
  EXPECT_TRUE(line["values"][4]["value"].is_null()) << "17l is no number";
  EXPECT_EQ(line["values"][4]["text"], "17l");
  EXPECT_EQ(CatalogueJson("gauge 热轧不等边角钢 L140X90X8")["spacings"][2]["leg"], 90);
  ExpectHas(OnCatalogue("gauge 热轧等边角钢 L20X3").m_strOut, {"no bolt line"});
}

TEST(GaugeCommand, RefusesInOneLineThatNamesTheFault) {
  ExpectRefused(
      {{"gauge 热轧普通槽钢 [12" + kData, {"NO", "[12", "[12.6"}},
       {"gauge 热轧等边角钢 50X5" + kData, {"NO", "50X5", "L50X5"}},
       {"gauge 热轧等边角钢 L50X99" + kData, {"NO", "L50X99", "L50X5"}},
       {"gauge 热轧宽翼缘H型钢 HW100X100" + kData, {"TABLE", "热轧宽翼缘H型钢", "热轧普通槽钢"}}});
}

}  // namespace
