// orv3cal tables, rows, lattice and gauge on the catalogue, run as a user runs them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "cli/run_program.h"
#include "svg_check.h"

namespace {

using Json = nlohmann::json;

const std::string kData = " --data \"" ORV3CAL_CATALOGUE "\"";

CRunResult OnCatalogue(const std::string& arguments) { return RunProgram(arguments + kData); }

Json JsonOf(const std::string& arguments) {
  const CRunResult run = OnCatalogue(arguments + " --json");
  EXPECT_EQ(run.m_nExit, 0) << arguments << ": " << run.m_strError;
  return run.m_nExit == 0 ? Json::parse(run.m_strOut) : Json();
}

struct CRefusal {
  std::string arguments;
  std::vector<std::string> names;
  int exit = 2;
};

void ExpectRefused(const std::vector<CRefusal>& refusals) {
  for (const CRefusal& refusal : refusals) {
    const CRunResult run = RunProgram(refusal.arguments);
    EXPECT_EQ(run.m_nExit, refusal.exit) << refusal.arguments << run.m_strError;
    EXPECT_EQ(run.m_strOut, "") << refusal.arguments;
    EXPECT_EQ(std::count(run.m_strError.begin(), run.m_strError.end(), '\n'), 1) << run.m_strError;
    for (const std::string& name : refusal.names) {
      EXPECT_NE(run.m_strError.find(name), std::string::npos) << name << " in " << run.m_strError;
    }
  }
}

std::vector<std::string> Numbers(const Json& rows) {
  std::vector<std::string> numbers;
  for (const Json& row : rows["rows"]) numbers.push_back(row["cells"][0]);
  return numbers;
}

// --- tables --------------------------------------------------------------------------------------

TEST(TablesCommand, ListsTheCatalogueByFamily) {
  const Json all = JsonOf("tables --mask 0x01000FFF");
  EXPECT_EQ(all.size(), 27U);
  EXPECT_EQ(all[0]["name"], "热轧普通工字钢");
  EXPECT_EQ(all[0]["rows"], 34);
  EXPECT_EQ(all[0]["columns"], 17);
  EXPECT_EQ(all[0]["mask"], 0x01000001);
  const Json channels = JsonOf("tables --mask 0x01000008");
  ASSERT_EQ(channels.size(), 4U);
  EXPECT_EQ(channels[1]["name"], "热轧轻型槽钢");
  EXPECT_EQ(channels[1]["family"], "channel");
  EXPECT_EQ(JsonOf("tables --mask 16777224"), channels);
  EXPECT_EQ(JsonOf("tables --mask 8").size(), 0U) << "no source";
  EXPECT_EQ(OnCatalogue("tables --csv --mask 0x01000002").m_strOut,
            "\xEF\xBB\xBFtable,source,family,rows,columns,mask\n"
            "冷弯薄壁方钢管,rolled,box," +
                std::to_string(JsonOf("tables --mask 0x01000002")[0]["rows"].get<int>()) +
                ",9,0x01000002\n");
}

// --- rows ----------------------------------------------------------------------------------------

TEST(RowsCommand, SearchesSortsAndKeepsColumns) {
  const std::string beams = "rows 热轧普通工字钢";
  EXPECT_EQ(Numbers(JsonOf(beams + " --where \"No.==I20*\" --wildcard")),
            (std::vector<std::string>{"I20a", "I20b"}));
  EXPECT_EQ(Numbers(JsonOf(beams + " --where \"No. == I20a || No. == I63c\"")),
            (std::vector<std::string>{"I20a", "I63c"}));
  EXPECT_EQ(Numbers(JsonOf(beams + " --where \"h(mm) >= 560 && tw(mm) << 13\" --sort No.:desc")),
            (std::vector<std::string>{"I56a"}))
      << "webs of 12.5, 14.5, 16.5 (I56) and 13, 15, 17 mm (I63)";
  EXPECT_EQ(Numbers(JsonOf(beams + " --sort \"h(mm):desc\"")).front().substr(0, 3), "I63");
  EXPECT_EQ(Numbers(JsonOf(beams + " --where \"No.==nothing\"")).size(), 0U);

  const Json json = JsonOf(beams + " --columns \"A(cm^2),No.\" --where \"No.==I20a\"");
  EXPECT_EQ(json["table"], "热轧普通工字钢");
  ASSERT_EQ(json["columns"].size(), 2U);
  EXPECT_EQ(json["columns"][0]["sign"], "No.") << "the table's order";
  EXPECT_EQ(json["columns"][0]["key"], true);
  EXPECT_EQ(json["columns"][1]["type"], "double");
  EXPECT_EQ(json["columns"][1]["name"], "截面面积");
  EXPECT_EQ(json["rows"][0]["cells"], Json({"I20a", "35.578"})) << "GB/T 706-1988";
  EXPECT_EQ(json["rows"][0]["state"], 4) << "the catalogue's own";
}

TEST(RowsCommand, WritesCsvForASpreadsheet) {
  EXPECT_EQ(
      OnCatalogue("rows 热轧普通槽钢 --where \"No.==[10\" --columns \"No.,h(mm)\" --csv").m_strOut,
      "\xEF\xBB\xBFNo.,h(mm)\n[10,100\n");
}

TEST(RowsCommand, AlignsItsColumns) {
  EXPECT_EQ(
      OnCatalogue("rows 热轧普通工字钢 --where \"No.==I1*\" --wildcard --columns \"No.,h(mm)\"")
          .m_strOut,
      "No.    h(mm)\nI10      100\nI12.6    126\nI14      140\nI16      160\nI18      180\n\n"
      "热轧普通工字钢: 5 rows\n");
}

// Without --wildcard a star is a star; somebody who finds nothing is told.
TEST(RowsCommand, TellsOfTheWildcard) {
  const CRunResult run = OnCatalogue("rows 热轧普通工字钢 --where \"No.==I20*\" --columns No.");
  EXPECT_EQ(run.m_strOut,
            "No.\n\n热轧普通工字钢: 0 rows\nwith --wildcard a * stands for any text\n");
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
      {beams + " --sort A", {"--sort", "\"A\"", "A(cm^2)"}},
      {beams + " --sort No.:up", {"--sort", "up", "desc"}},
      {beams + " --json --csv", {"--json", "--csv"}},
      {"tables --mask 0xG" + kData, {"--mask", "0xG"}},
      {"rows 热轧普通工字钢 --store no_such_store.KDB" + kData, {"no_such_store.KDB"}, 3},
  });
}

// --- lattice -------------------------------------------------------------------------------------

// A file of its own with a column; `change` is merged over the example.
class CColumnFile {
 public:
  explicit CColumnFile(const std::string& name, const Json& change = Json::object())
      : m_strPath(OwnFile(name)) {
    Json column = Json::parse(FileBytes(ORV3CAL_SOURCE "/examples/lattice-4.json"));
    column.merge_patch(change);  // null takes a key away
    Write(column.dump());
  }
  CColumnFile(const CColumnFile&) = delete;
  CColumnFile& operator=(const CColumnFile&) = delete;
  ~CColumnFile() { std::remove(m_strPath.c_str()); }
  void Write(const std::string& bytes) const {
    std::FILE* file = std::fopen(m_strPath.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
  }
  std::string Path() const { return m_strPath; }

 private:
  std::string m_strPath;
};

// Four L100X10 (GB/T 9787-1988: 19.261 cm2, 179.51 cm4, centroid at 2.84 cm), backs outwards.
TEST(LatticeCommand, ComputesTheExample) {
  const Json json = JsonOf("lattice \"" ORV3CAL_SOURCE "/examples/lattice-4.json\"");
  EXPECT_EQ(json["table"], "四肢格构柱");
  EXPECT_EQ(json["no"], "G4L600X800");
  const Json& p = json["properties"];
  EXPECT_EQ(p.size(), 11U);
  const double ix = 4 * (179.51e4 + 1926.1 * 400 * 400);
  const double iy = 4 * (179.51e4 + 1926.1 * 300 * 300);
  const struct {
    const char* key;
    double value;
  } expected[] = {{"A", 7704.4},
                  {"xo", 0},
                  {"yo", 0},
                  {"Ix", ix},
                  {"Iy", iy},
                  {"Wx1", ix / 428.4},
                  {"Wx2", ix / 428.4},
                  {"WyL", iy / 328.4},
                  {"WyR", iy / 328.4},
                  {"ixo", std::sqrt(ix / 7704.4)},
                  {"iyo", std::sqrt(iy / 7704.4)}};
  for (const auto& e : expected) {
    EXPECT_NEAR(p[e.key].get<double>(), e.value, 1e-9 * e.value) << e.key;
  }
  ASSERT_EQ(json["limbs"].size(), 4U);
  EXPECT_EQ(json["limbs"][2], Json({{"type", "热轧等边角钢"},
                                    {"no", "L100X10"},
                                    {"angle", 180.0},
                                    {"area", 1926.1},
                                    {"x", 300.0},
                                    {"y", 400.0}}));
  const std::string text =
      OnCatalogue("lattice \"" ORV3CAL_SOURCE "/examples/lattice-4.json\"").m_strOut;
  EXPECT_NE(text.find("X轴惯性矩      Ix   1239884400  mm⁴\n"), std::string::npos) << text;
}

TEST(LatticeCommand, DrawsItsLimbs) {
  const CColumnFile file("column.json", {{"P2No.", "L63X6"}});
  const std::string svg = OwnFile("column.svg");
  const CRunResult run = OnCatalogue("lattice " + file.Path() + " --svg " + svg);
  EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
  const std::string bytes = FileBytes(svg);
  CheckSvg(bytes);
  for (const char* text : {"kx = 600", "ky = 800", "L63X6", "重心"}) {
    EXPECT_NE(bytes.find(text), std::string::npos) << text;
  }
  std::remove(svg.c_str());
}

TEST(LatticeCommand, RefusesInOneLineThatNamesTheFault) {
  const struct {
    Json change;
    std::vector<std::string> names;
  } cases[] = {
      {{{"k(mm)", 800}}, {"k(mm)", "四肢格构柱", "leave it out"}},
      {{{"table", "双肢格构柱"}}, {"k(mm)", "missing"}},
      {{{"table", "三肢格构柱"}}, {"P4Type", "leave it out"}},
      {{{"table", "五肢格构柱"}}, {"table", "五肢格构柱", "四肢格构柱"}},
      {{{"ky(mm)", nullptr}}, {"ky(mm)", "missing"}},
      {{{"P3No.", nullptr}}, {"P3No.", "missing"}},
      {{{"No.", nullptr}}, {"No.", "missing"}},
      {{{"P3θ°", nullptr}}, {"P3θ°", "missing"}},
      {{{"P3θ°", 45}}, {"P3θ°", "45", "270"}},
      {{{"kx(mm)", 0}}, {"kx(mm)", "0", "above 0"}},
      {{{"kx(mm)", "600"}}, {"kx(mm)", "600", "number"}},
      {{{"A(mm^2)", 7704}}, {"A(mm^2)", "no key"}},
      {{{"P2No.", "L100X11"}}, {"P2No.", "L100X11", "L100X10"}},
      {{{"P2Type", "等边角钢"}}, {"P2Type", "等边角钢", "热轧等边角钢"}},
  };
  for (const auto& c : cases) {
    const CColumnFile file("wrong.json", c.change);
    ExpectRefused({{"lattice " + file.Path() + kData, c.names}});
  }
  const CColumnFile file("text.json");
  file.Write("[{}]");
  ExpectRefused({{"lattice " + file.Path() + kData, {"single"}},
                 {"lattice no_such_file.json" + kData, {"no_such_file.json"}, 3}});
  file.Write("{\"table\"");
  ExpectRefused({{"lattice " + file.Path() + kData, {"no JSON"}}});
}

// --- gauge ---------------------------------------------------------------------------------------

TEST(GaugeCommand, TellsEachFigureWithItsMeaning) {
  const Json json = Json::parse(RunProgram("gauge 热轧普通工字钢 I22a --json").m_strOut);
  ASSERT_EQ(json["spacings"].size(), 4U);
  const Json& lines = json["spacings"][0];
  EXPECT_EQ(lines["source"], "strSub4");
  EXPECT_EQ(lines["values"][0]["key"], "a");
  EXPECT_EQ(lines["values"][0]["value"], 54);
  EXPECT_TRUE(lines["values"][4]["value"].is_null()) << "17l is no number";
  EXPECT_EQ(lines["values"][4]["text"], "17l");
  const Json angle = Json::parse(RunProgram("gauge 热轧不等边角钢 L140X90X8 --json").m_strOut);
  EXPECT_EQ(angle["spacings"][2]["leg"], 90);
  EXPECT_EQ(angle["spacings"][2]["values"][1]["value"], 23.5);
  EXPECT_NE(RunProgram("gauge 热轧普通槽钢 [10").m_strOut.find("  hole      15  mm"),
            std::string::npos);
  EXPECT_NE(RunProgram("gauge 热轧等边角钢 L20X3").m_strOut.find("no bolt line"),
            std::string::npos);
}

TEST(GaugeCommand, RefusesInOneLineThatNamesTheFault) {
  ExpectRefused(
      {{"gauge 热轧普通槽钢 [12", {"NO", "[12", "[12.6"}},
       {"gauge 热轧等边角钢 50X5", {"NO", "50X5", "L50X5"}},
       {"gauge 热轧宽翼缘H型钢 HW100X100", {"TABLE", "热轧宽翼缘H型钢", "热轧普通槽钢"}}});
}

}  // namespace
