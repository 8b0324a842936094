// orv3cal check, run as a user runs it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>

#include "cli/run_program.h"
#include "connections/connection_kinds.h"
#include "framework/utf8.h"
#include "members/cases/member_case.h"
#include "platform/code_page.h"
#include "reports/report_document.h"

namespace {

const std::string kSource = ORV3CAL_SOURCE;

Json Example(const std::string& kind) {
  return Json::parse(FileBytes(kSource + "/examples/" + kind + ".json"));
}

// Runs a check on the text of a file.
CRunResult Check(const std::string& kind, const std::string& text, const std::string& options = "",
                 const std::string& name = "case.json") {
  const COwnFile file(name, text);
  return RunProgram("check " + kind + " " + file.m_strPath + " " + options);
}

Json ExampleAnswer(const std::string& kind, const std::string& options = "") {
  return JsonOf("check " + kind + " \"" + kSource + "/examples/" + kind + ".json\" " + options);
}

// The keys of an edition, each of whose choices the schema has.
template <class CHECK>
void AddKeysOf(const Json& properties, std::set<std::string>& keys) {
  for (const auto& key : CHECK::InputKeys()) {
    keys.insert(key.m_szKey);
    const Json& rule = properties[key.m_szKey];
    for (const std::string choice : key.m_choices)
      EXPECT_NE(std::find(rule["enum"].begin(), rule["enum"].end(), Json(choice)),
                rule["enum"].end())
          << key.m_szKey << ' ' << choice;
  }
}

template <class CHECK2003, class CHECK2017>
void ExpectKeysOf(const orv3::CConnectionKind<CHECK2003, CHECK2017>& kind) {
  const std::string file = kSource + "/docs/schema/" + kind.m_szName + ".schema.json";
  const Json schema = Json::parse(FileBytes(file));
  std::set<std::string> keys = {"code"};
  for (const auto& key : orv3::kSheetKeys) keys.insert(key.m_szKey);
  AddKeysOf<CHECK2003>(schema["properties"], keys);
  AddKeysOf<CHECK2017>(schema["properties"], keys);
  std::set<std::string> listed;
  for (const auto& [key, rule] : schema["properties"].items()) listed.insert(key);
  EXPECT_EQ(listed, keys) << kind.m_szName;
}

TEST(CheckCommand, TheSchemasListTheKeysOfTheChecks) {
  std::apply([](const auto&... kind) { (ExpectKeysOf(kind), ...); }, orv3::kConnectionKinds);
}

// The other way round the command refuses to start.
TEST(CheckCommand, TheSchemaOfMembersListsItsKeys) {
  const Json schema = Json::parse(FileBytes(kSource + "/docs/schema/member.schema.json"));
  for (const auto& key : orv3::MemberInputKeys()) {
    Json at = schema;
    // A key may have a point of its own: "section.lattice.P1No.".
    for (std::string rest = key.m_szKey; !rest.empty() && !at.is_null();) {
      const bool bLast = at["properties"].contains(rest);
      const std::string name = bLast ? rest : rest.substr(0, rest.find('.'));
      rest = bLast ? "" : rest.substr(std::min(name.size() + 1, rest.size()));
      at = Json(at["properties"][name]);
    }
    EXPECT_FALSE(at.is_null()) << key.m_szKey;
  }
}

TEST(CheckCommand, AnswersTheExamples) {
  const struct {
    const char* kind;
    std::set<std::string> results;
  } cases[] = {
      {"bolt",
       {"n", "d0", "f", "mu", "P", "Nvb", "Ntb", "Nv", "Nt", "l1", "beta", "ratio", "sigmaX",
        "sigmaY", "passForces", "passX", "passY"}},
      {"fillet", {"he", "W", "ffw", "sigma", "tau", "combined", "okSigma", "okTau", "okCombined"}},
      {"butt",
       {"ftw", "fcw", "fvw", "W", "sigma", "tau", "reduced", "okSigma", "okTau", "okReduced"}}};
  for (const auto& each : cases) {
    const Json answer = ExampleAnswer(each.kind, "--code 2003");
    EXPECT_EQ(answer["code"], "2003");
    EXPECT_TRUE(answer["pass"]);
    std::set<std::string> results;
    for (const auto& [key, value] : answer["results"].items()) results.insert(key);
    EXPECT_EQ(results, each.results) << each.kind;
    const Json later = ExampleAnswer(each.kind);
    EXPECT_EQ(later["code"], "2017") << "unless said";
    EXPECT_TRUE(later["pass"]);
    for (const std::string& key : results) EXPECT_TRUE(later["results"].contains(key)) << key;
  }
}

TEST(CheckCommand, RefusesByKeyInOneLine) {
  const struct {
    const char* kind;
    const char* patch;  // JSON merge patch of the example
    std::vector<std::string> names;
  } cases[] = {
      {"bolt", R"({"dd": 1})", {"dd", "keys are", "sumT"}},
      {"bolt", R"({"N": null})", {"N", "missing"}},
      {"bolt", R"({"nf": null})", {"nf", "missing", "at least 1"}},
      {"bolt", R"({"rowSpace": null})", {"rowSpace", "missing"}},
      {"bolt", R"({"d": 26})", {"d:", "26", "one of 16, 20, 22"}},
      {"bolt", R"({"d": "20"})", {"d:", "20"}},
      {"bolt", R"({"cols": 2.5})", {"cols", "2.5", "whole number"}},
      {"bolt", R"({"rowSpace": [70, "x", 70]})", {"rowSpace", "list"}},
      {"bolt", R"({"rowSpace": [70, 70]})", {"rowSpace", "2 spacings for 4 rows", "give 3"}},
      {"bolt", R"({"grade": "5.6"})", {"grade", "5.6", "8.8 or 10.9"}},
      {"bolt", R"({"grade": 8.8})", {"grade", "\"8.8\""}},
      {"bolt", R"({"type": "ordinary"})", {"sumT", "missing"}},
      {"fillet", R"({"hf": null})", {"he", "missing", "hf with angle"}},
      {"butt", R"({"quality": 0})", {"quality", "at least 1"}},
  };
  for (const auto& each : cases) {
    Json input = Example(each.kind);
    input.merge_patch(Json::parse(each.patch));
    const COwnFile file("case.json", input.dump());
    ExpectRefused({{std::string("check ") + each.kind + " " + file.m_strPath, each.names}});
  }
  const std::string behind = Example("bolt").dump() + std::string(3, '\0');
  for (const std::string& text :
       {std::string(R"({"N": 1e999})"), std::string("{"), std::string("7"), std::string(), behind,
        Example("bolt").dump() + " {}", std::string("[]"),
        "{\"" + std::string(1'000'000, 'k') + "\":1}"}) {
    const COwnFile file("case.json", text);
    const CRunResult run = RunProgram("check bolt " + file.m_strPath);
    EXPECT_EQ(run.m_nExit, 2) << run.m_strError;
    EXPECT_TRUE(run.m_strOut.empty()) << run.m_strOut;
    EXPECT_LT(run.m_strError.size(), 500U) << "what is quoted is cut";
  }
  EXPECT_EQ(RunProgram("check bolt no-such-file.json").m_nExit, 3);
  EXPECT_EQ(RunProgram("check rivet no-such-file.json").m_nExit, 2);
}

TEST(CheckCommand, TellsAFailureByItsStatus) {
  Json input = Example("bolt");
  input["Vy"] = 2500;
  const COwnFile file("case.json", input.dump());
  EXPECT_FALSE(JsonOf("check bolt " + file.m_strPath, 1)["pass"]);
}

// By both editions side by side 2003 leaves out what it does not have and says so, but not a hole
// or an electrode that it has no figures for.
TEST(CheckCommand, BothEditionsNameWhatOneLacks) {
  const std::string bolt =
      R"({"layout":"grid","type":"friction","cols":2,"rows":3,"colSpace":70,"rowSpace":80,"d":20,
          "nf":2,"surface":1,"grade":"10.9","N":0,"Vx":100,"Vy":0,"M":0,"T":0,"ex":50,"ey":50,
          "t":16,"steel":"Q345"})";
  const std::string fillet =
      R"({"case":3,"steel":"Q390","lw":200,"N":0,"M":0,"V":90,"betaF":1,"hf":6,"angle":90,
          "joint":"lap","t1":10,"t2":12})";
  const struct {
    const char* kind;
    const char* patch;
    std::vector<std::string> leftOut;
    bool bRefused;
  } cases[] = {{"bolt", R"({"hole":"standard"})", {"hole"}, false},
               {"bolt", R"({"hole":"oversize"})", {"hole"}, true},
               {"fillet", R"({"electrode":"E55"})", {"joint", "t1", "t2", "electrode"}, false},
               {"fillet", R"({"electrode":"E50"})", {"electrode"}, true}};
  for (const auto& each : cases) {
    SCOPED_TRACE(each.patch);
    Json input = Json::parse(std::string(each.kind) == "bolt" ? bolt : fillet);
    input.merge_patch(Json::parse(each.patch));
    const CRunResult run = Check(each.kind, input.dump(), "--json --code both");
    EXPECT_EQ(run.m_nExit, each.bRefused ? 2 : 0) << run.m_strError;
    const Json earlier = Json::parse(run.m_strOut)["editions"][1];
    const std::string told = earlier[each.bRefused ? "refused" : "warnings"].dump();
    ExpectHas(told, each.leftOut);
    ExpectHas(told, {each.bRefused ? "has no place by GB 50017-2003" : "GB 50017-2003 does not"});
  }
  const CRunResult table = Check("bolt", "[" + bolt + "]", "--code both");
  ExpectHas(table.m_strOut, {"surface", "shot-blasted (sand-blasted)", "sand- or shot-blasted"});
}

TEST(CheckCommand, AnswersManyCasesOfACsv) {
  const std::string csv =
      "id,case,steel,quality,lw,t,N,M,V\n"
      "low,0,Q235,1,100,10,50,0,0\n"
      "\"high, \"\"x\"\"\",0,Q235,1,100,10,210,0,0\r\n"
      "\n"
      "bad,0,Q999,1,100,10,50,0,0\n"
      "over,0,Q235,1,100,10,300,0,0";
  const CRunResult run = Check("butt", csv, "--csv --sort", "cases.csv");
  EXPECT_EQ(run.m_nExit, 2) << "one case is refused";
  ExpectHas(run.m_strError, {"1 of 4 cases refused, the first: case 3, steel"});
  // 215 N/mm2: 300 kN on 1000 mm2 is 1.395, 210 kN 0.977, 50 kN 0.233; what is refused comes first.
  const std::string starts[] = {"case,id,pass,", "3,bad,", "4,over,false,1.395",
                                "2,\"high, \"\"x\"\"\",true,", "1,low,true,0.232"};
  std::istringstream lines(run.m_strOut);
  std::string line;
  for (const std::string& start : starts) {
    std::getline(lines, line);
    EXPECT_EQ(line.substr(0, start.size()), start);
  }
  ExpectHas(line, {",sigma,2017,"});
  EXPECT_FALSE(std::getline(lines, line));

  const Json answers = JsonOf("check bolt \"" + kSource + "/examples/bolts.csv\"");
  ASSERT_EQ(answers.size(), 4U);
  EXPECT_EQ(answers[1]["results"], ExampleAnswer("bolt")["results"]) << "the same group";
}

// As a check reads them: cells by their keys, objects within objects, and a key that has dots of
// its own.
TEST(CheckCommand, TellsTheCasesAsTheyAreRead) {
  const std::string csv =
      "id;section.lattice.P1No.;lengths.x;section.sizes;steel;code\r"
      "007;\"5\"\" pipe\nsteel\";6000;300,400;Q345;2003\r"
      "short;1\r"
      "\r"
      "1e3;;70;;;\r";
  const CRunResult run = Check("member", csv, "--cases", "cases.csv");
  EXPECT_EQ(run.m_nExit, 2);
  ExpectHas(run.m_strError, {"1 of 3 cases cannot be read, the first: case 2, case: has 2 cells"});
  EXPECT_EQ(Json::parse(run.m_strOut), Json::parse(R"([
    {"id": "007", "section": {"lattice": {"P1No.": "5\" pipe\nsteel"}, "sizes": "300,400"},
     "lengths": {"x": 6000}, "steel": "Q345", "code": "2003"},
    null, {"id": "1e3", "lengths": {"x": 70}}])"));
  for (const char* kind : {"bolt", "butt", "fillet", "weld-group", "member"}) {
    const CRunResult same = Check(kind, Example(kind).dump(), "--cases");
    EXPECT_EQ(same.m_nExit, 0) << same.m_strError;
    EXPECT_EQ(Json::parse(same.m_strOut), Json::array({Example(kind)})) << kind;
  }
}

// A line that has lost its end has lost forces; behind a broken cell cases cannot even be counted.
TEST(CheckCommand, NothingOfACsvIsLeftOut) {
  const std::string head = "id,case,steel,quality,lw,t,N,M,V\n";
  const std::string whole = "a,0,Q235,1,100,10,50,0,0\n";
  const CRunResult cut = Check("butt", head + whole + "b,0,Q235,1,100,10,50", "--csv", "cut.csv");
  ExpectHas(cut.m_strError, {"case 2, case: has 7 cells where the first line has 9 keys"});
  const CRunResult open =
      Check("butt", head + whole + "b,0,\"Q\"235,1,100,10,50,0,0\n" + whole, "--csv", "open.csv");
  EXPECT_NE(open.m_nExit, 0);
  ExpectHas(open.m_strError, {"line 3 has a cell in quotation marks that is not closed"});

  const std::string member =
      "section.table,section.no,steel,N,lengths.x,lengths.y,sway\n"
      "热轧普通工字钢,I20a,Q235,-50,2000,2000,";
  for (const char* yes : {"true", "FALSE", "1"}) {
    const CRunResult run = Check("member", member + yes, "--csv", "member.csv");
    EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
    ExpectHas(run.m_strOut, {"lengths.z: "});
  }
  ExpectHas(Check("member", member + "yes", "--csv", "member.csv").m_strOut, {"sway: "});
}

// "端板" in the code page 936, or what the same bytes are in another system's, and the same text in
// UTF-8, behind more plain text than is read at once.
TEST(CheckCommand, TakesACsvInTheCodePageOfASpreadsheet) {
  const std::string codePage = "\xB6\xCB\xB0\xE5";
  const std::string utf8 = orv3::ToUtf8(orv3::FromAnsi(codePage));
  const std::string rest = ";0;Q235;1;100;10;50;0;0\r\n";
  std::string plain = "id;case;steel;quality;lw;t;N;M;V\r\n";
  for (int i = 0; i < 4000; ++i) plain += "plain" + rest;
  const auto check = [&](const std::string& id) {
    return Check("butt", plain + id + rest, "--csv", "saved.csv");
  };
  const std::string answers = check(utf8).m_strOut;
  ExpectHas(answers, {utf8});
  EXPECT_EQ(std::count(answers.begin(), answers.end(), '\n'), 4002) << "written in parts";
  EXPECT_EQ(check(codePage).m_strOut, check(utf8).m_strOut);
  // What began as UTF-8 goes on as such; what is neither is refused.
  if (orv3::AnsiCodePage() != 936) return;  // another page may have a character for every byte
  for (const std::string& broken : {utf8 + rest + codePage, std::string("\xFF\xFF")})
    EXPECT_EQ(check(broken).m_nExit, 2);
}

// Of an array of cases, each of which is read to its end.
TEST(CheckCommand, RefusedCasesKeepTheirOwnIds) {
  const COwnFile file("cases.json",
                      R"([{"id": 12, "N": 5, "N": 7}, {"zz": 1, "id": 1.50}, 7, [1, {}],
      {"M": {"id": "no"}, "id": "x"}, {"rowSpace": [7, "x"]}])");
  const struct {
    const char* id;  // null: none
    std::vector<std::string> refused;
    std::vector<std::string> chinese;
  } cases[] = {{"12", {"N:", "twice, with 5 and with 7"}, {"N：", "两次，值为 5 和 7"}},
               {"1.50", {"zz", "keys are"}, {"zz", "可用的键为"}},
               {nullptr, {"case: 7 is no object"}, {"7 不是对象"}},
               {nullptr, {"is no object"}, {"不是对象"}},
               {"x", {"M: {…} is not possible"}, {"M：{…} 不可用"}},
               {nullptr, {"rowSpace: \"x\"", "list"}, {"rowSpace：", "\"x\""}}};
  const Json english = JsonOf("check bolt " + file.m_strPath, 2);
  const Json chinese = JsonOf("check bolt " + file.m_strPath + " --lang zh", 2);
  ASSERT_EQ(english.size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(english[i].value("id", Json()), cases[i].id ? Json(cases[i].id) : Json()) << i;
    ExpectHas(english[i]["refused"], cases[i].refused);
    ExpectHas(chinese[i]["refused"], cases[i].chinese);
  }
}

TEST(CheckCommand, AnArrayOfCasesGivesAReportOfAll) {
  Json second = Example("fillet");
  second["id"] = "the \"other\"";
  second["checked"] = "Li Hua";
  Json third = Example("fillet");
  third["id"] = "a third";
  third["case"] = 9;
  const COwnFile report("report.html");
  const CRunResult run = Check("fillet", Json::array({Example("fillet"), second, third}).dump(),
                               "--report " + report.m_strPath + " --lang en --project Depot");
  EXPECT_EQ(run.m_nExit, 2) << "one is refused";
  ExpectHas(run.m_strOut, {"utilisation"});
  // The summary lists the third, and the margins of the second's pages name it.
  ExpectHas(report.Bytes(), {"3 cases: 2 pass, 0 fail, 1 refused", "case: 9 is not possible",
                             "content: \"the\\20 \\22 other\\22 \"", "Li Hua", "Depot",
                             "counter(page)", "GB 50017-2017"});
  EXPECT_EQ(report.Bytes().find("验算"), std::string::npos) << "English was asked for";
}

}  // namespace
