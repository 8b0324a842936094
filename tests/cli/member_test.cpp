// orv3cal check member and choose, run as a user runs them.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/run_program.h"

namespace {

const std::string kBody =
    R"("section": {"style": "h", "sizes": [300, 400, 20, 10]}, "steel": "Q345",)"
    R"( "lengths": {"x": 6000, "y": 3000})";

CRunResult Check(const std::string& text, const std::string& options = "") {
  const COwnFile file("member.json", text);
  return RunProgram("check member " + file.m_strPath + " " + options + kData);
}

TEST(Member, BothEditionsAndReport) {
  const COwnFile report("member.html");
  const std::string text = "[{" + kBody + R"(, "id": "<C1>", "N": -800}, {"N": 1}])";
  const CRunResult run = Check(text, "--code both --lang en --json --report " + report.m_strPath);
  EXPECT_EQ(run.m_nExit, 2);
  const Json answer = Json::parse(run.m_strOut);
  EXPECT_EQ(answer[0]["editions"][0]["code"], "2017");
  EXPECT_EQ(answer[0]["editions"][1]["code"], "2003");
  ExpectHas(report.Bytes(), {"2 pass", "2 refused", "&lt;C1&gt;", "D.0.5"});
}

TEST(Member, RefusedByName) {
  struct CBad {
    std::string text;
    const char* told;
  };
  const CBad bad[] = {
      {"{" + kBody + R"(, "N": 5, "joined": "leg"})", "joined: leg is not possible"},
      {"{" + kBody + R"(, "N": 5, "joined": "bolts"})", "joined: "},
      {"{" + kBody + R"(, "N": 5, "stiffeners": 0})", "stiffeners: "},
      {"{" + kBody + R"(, "cases": []})", "cases: holds no combination"},
      {"{" + kBody + R"(, "cases": [5]})", "cases: 5 is not possible in a list"},
      {"{" + kBody + R"(, "cases": [{"steel": "Q235"}]})", "cases.steel: is no key here"},
      {"{" + kBody + R"(, "N": 5, "cases": [{"N": 1}]})", "N: stands beside cases"},
      {"{" + kBody + R"(, "cases": [{"N": 1, "N": 2}]})", "N: stands twice"},
      {"{" + kBody + R"(, "cases": [{"id": "a", "N": 1}, {"id": "a", "N": 2}]})",
       "cases[a].id: stands twice"},
      {"{" + kBody + R"(, "cases": [{}]})", "cases[1].N: stands with no force"},
      {R"({"section": {"lattice": {"table": "x"}}, "steel": "Q235", "N": -1})",
       "section.lattice.table"},
      {R"({"section": {"style": "h", "sizes": [300, 400, 20, 10], "lacing": {"type": "lacing"}},)"
       R"( "steel": "Q235", "N": 1, "lengths": {"x": 1, "y": 1}})",
       "section.lacing: is for lattice columns"},
      {R"({"section": {"style": "tube", "sizes": [200, 10]}, "steel": "Q235", "N": 1,)"
       R"( "lengths": {"x": 1, "y": 1}})",
       "section.sizes: the thickness 190 is not possible with Q235; give a thickness above 0 and "
       "up"},
  };
  for (const CBad& each : bad) {
    const CRunResult run = Check(each.text);
    EXPECT_EQ(run.m_nExit, 2) << each.text;
    EXPECT_EQ(run.m_strOut, "") << each.text;
    ExpectHas(run.m_strError, {each.told});
  }
}

CRunResult Choose(const std::string& text, const std::string& options) {
  const COwnFile file("choose.json", text);
  return RunProgram("choose " + file.m_strPath + " " + options + kData);
}

const std::string kBare = R"("steel": "Q345", "N": -800, "lengths": {"x": 6000, "y": 3000})";

// An argument of JSON, as the shells of every system take it.
std::string Argument(std::string_view json) {
  std::string text = "\"";
  for (const char ch : json) text += ch == '"' ? std::string("\\\"") : std::string(1, ch);
  return text + "\"";
}

// The first row that was chosen is told as the check tells it by itself.
void ExpectAsChecked(const Json& row, const std::string& section, const std::string& body) {
  const Json check =
      Json::parse(Check(R"({"section": )" + section + ", " + body + "}", "--json").m_strOut);
  EXPECT_EQ(check["ratio"], row["ratio"]);
  EXPECT_EQ(check["warnings"], row["warnings"]);
}

TEST(Choose, AnswersSectionsAsTheCheckTakesThem) {
  const std::string style = R"({"style": "h", "b": [200, 300, 50], "h": 300,)"
                            R"( "tf": [0.1, 12.1, 12], "tw": 8})";
  const CRunResult run = Choose("{" + kBare + "}", "--style " + Argument(style) + " --json");
  const Json answer = Json::parse(run.m_strOut);
  EXPECT_EQ(answer["tried"], 6);
  const Json& row = answer["rows"][0];
  ExpectAsChecked(row, R"({"style": "h", "sizes": )" + row["sizes"].dump() + "}", kBare);

  const std::string body = R"("steel": "Q235", "N": -300, "lengths": {"x": 3000, "y": 3000})";
  const Json pairs = Json::parse(
      Choose(R"({"section": {"gap": 12}, )" + body + "}", "--table 热轧等边角钢组合 --json")
          .m_strOut);
  const std::string no = pairs["rows"][0]["no"].dump();
  ExpectAsChecked(pairs["rows"][0], R"({"table": "热轧等边角钢组合", "gap": 12, "no": )" + no + "}",
                  body);
}

TEST(Choose, IsByOneEditionAndNamesIt) {
  const std::string old = "{" + kBare + R"(, "code": "2003"})";
  EXPECT_EQ(Json::parse(Choose(old, "--table 热轧宽翼缘H型钢 --code 2017 --json").m_strOut)["code"],
            "2003");
  const CRunResult mixed = Choose("[" + old + ", {" + kBare + "}]", "--table 热轧宽翼缘H型钢");
  EXPECT_EQ(mixed.m_nExit, 2);
  EXPECT_NE(mixed.m_strError.find("code: "), std::string::npos) << mixed.m_strError;
}

TEST(Choose, RefusesWhatIsNoRangeByName) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"style": "h", "b": 200})", "h is missing"},
      {R"({"style": "hh"})", "\"hh\" is no section style"},
      {R"({"style": "circle", "R": 9, "r": 8})", "no key r; there are style, R"},
      {R"({"style": "circle", "R": [9, 8, 1]})", "R is not possible"},
      {R"({"style": "circle", "R": [1, 8, 0]})", "R is not possible"},
      {R"({"style": "circle", "R": [1, 9e9, 1]})", "more than 20000 sections"},
      {"[]", "is no JSON object"},
  };
  for (const auto& [style, what] : cases) {
    const CRunResult run = Choose("{" + kBare + "}", "--style " + Argument(style) + " --lang en");
    EXPECT_EQ(run.m_nExit, 2) << style;
    EXPECT_NE(run.m_strError.find(what), std::string::npos) << run.m_strError;
  }
}

}  // namespace
