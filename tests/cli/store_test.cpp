// orv3cal store, run as a user runs it.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "cli/run_program.h"
#include "framework/number_text.h"
#include "platform/store_file.h"
#include "platform/temp_folder.h"
#include "tables/data_table.h"

namespace {

using Json = nlohmann::json;

const std::string kData = " --data \"" ORV3CAL_CATALOGUE "\"";
const std::string kH = "自定义对称H型钢";

void SetVariable(const char* name, const std::string& value) {
#ifdef _WIN32
  _wputenv_s(orv3::FromUtf8(name).GetString(), orv3::FromUtf8(value).GetString());
#else
  setenv(name, value.c_str(), 1);
#endif
}

class StoreCommand : public testing::Test {
 protected:
  std::string File(const wchar_t* name) const { return orv3::ToUtf8(m_folder.Path(name)); }
  // On the test's own store, limbs from the catalogue.
  CRunResult Run(const std::string& arguments) const {
    return RunProgram("store " + arguments + " --store \"" + m_store + "\"" + kData);
  }
  Json Rows(const std::string& table) const {
    const CRunResult run = RunProgram("rows " + table + " --json --store \"" + m_store + "\"");
    EXPECT_EQ(run.m_nExit, 0) << run.m_strError;
    return run.m_nExit == 0 ? Json::parse(run.m_strOut) : Json();
  }
  // The cell of the first row, by its column's sign.
  std::string Cell(const std::string& table, const std::string& sign) const {
    const Json rows = Rows(table);
    for (std::size_t i = 0; i < rows["columns"].size(); ++i) {
      if (rows["columns"][i]["sign"] == sign) return rows["rows"][0]["cells"][i];
    }
    return "no such column";
  }
  std::string AddH(const std::string& no) const {
    return "add " + kH + " --set No.=" + no +
           " --set \"b(mm)=300\" --set \"h(mm)=400\" --set \"tf(mm)=12\" --set \"tw(mm)=10\"";
  }
  void Put(const wchar_t* name, const std::string& text) const {
    PutBytes(m_folder.Path(name), text);
  }
  Json Import(const std::string& arguments, int exit) const {
    const CRunResult run = Run("import --json " + arguments);
    EXPECT_EQ(run.m_nExit, exit) << run.m_strError;
    return run.m_strOut.empty() ? Json() : Json::parse(run.m_strOut)["tables"];
  }

  CTempFolder m_folder;
  const std::string m_store = File(L"我的.KDB");
};

TEST_F(StoreCommand, RowsAreComputedAndASecondEditChangesNothing) {
  ASSERT_EQ(Run(AddH("H1")).m_nExit, 0);
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "10960");  // 2 * 300 * 12 + 376 * 10
  EXPECT_EQ(Cell(kH, "yo(mm)"), "200");
  const std::string edit = "edit " + kH + " H1 --set \"h(mm)=500\" --set \"x(mm)=-150.5\"";
  ASSERT_EQ(Run(edit).m_nExit, 0);
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "11960");
  EXPECT_EQ(Cell(kH, "x(mm)"), "-150.5");
  const std::string bytes = FileBytes(m_store);
  ASSERT_EQ(Run(edit).m_nExit, 0);
  EXPECT_TRUE(FileBytes(m_store) == bytes);
  EXPECT_EQ(RunProgram("store verify \"" + m_store + "\"").m_nExit, 0);

  ASSERT_EQ(Run(AddH("H2")).m_nExit, 0);
  const CRunResult gone = Run("delete " + kH + " H1 --json");
  EXPECT_EQ(Json::parse(gone.m_strOut)["done"], "deleted");
  EXPECT_EQ(Rows(kH)["rows"].size(), 1U);
  const Json info = Json::parse(RunProgram("store info --json \"" + m_store + "\"").m_strOut);
  EXPECT_EQ(info["kind"], "system");
  EXPECT_EQ(info["tables"],
            Json::parse("[{\"name\": \"" + kH +
                        "\", \"columns\": 32, \"rows\": 2, \"deleted\": 1, \"slot\": 1081, "
                        "\"blocks\": [20100]}]"));

  const CRunResult lattice =
      Run("add 双肢格构柱 --set No.=G --set \"k(mm)=800\" --set P1Type=热轧普通槽钢 --set "
          "\"P1No.=[10\" "
          "--set P1θ°=90 --set P2Type=热轧普通槽钢 --set \"P2No.=[10\" --set P2θ°=270");
  ASSERT_EQ(lattice.m_nExit, 0) << lattice.m_strError;
  EXPECT_EQ(Cell("双肢格构柱", "yo(mm)"), "400");      // half of the spacing
  EXPECT_EQ(Cell("双肢格构柱", "A(mm^2)"), "2549.6");  // twice 12.748 cm²
}

TEST_F(StoreCommand, RefusesWhatCannotBeKeptAndLeavesTheStore) {
  ASSERT_EQ(Run(AddH("H1")).m_nExit, 0);
  Put(L"I.csv",
      "No.:text:key,a:text,b:text\n" + std::string("I20a,1,2\n"));  // a table of the user's own
  ASSERT_EQ(Run("import --table 我的表 \"" + File(L"I.csv") + "\"").m_nExit, 0);
  ASSERT_EQ(
      RunProgram("store import \"" ORV3CAL_CATALOGUE "/PCGData.kvb\" --store \"" + m_store + "\"")
          .m_nExit,
      0);
  const std::string before = FileBytes(m_store);
  const std::string edit = "edit " + kH + " H1 --set ";
  std::string wide;  // 30 characters, 60 bytes
  for (int i = 0; i < 30; ++i) wide += "宽";
  const struct {
    std::string arguments;
    std::string names;
    int exit = 2;
  } cases[] = {
      {AddH("H1"), "型号=H1，该条数据记录已经存在!"},
      {AddH("1234567890123456789012345678901"), "共31个字符，最多30个"},
      {AddH("A,B"), "含有逗号"},
      {"add " + kH + " --set No.=X --set \"b(mm)=300\"", "截面高度 h(mm)：不能为空"},
      {edit + "\"tf(mm)=250\"", "应小于200"},
      {edit + "\"h(mm)=400.00001\"", "six digits; right would be 400"},
      {edit + "\"A(mm^2)=5\"", "computed"},
      {edit + "\"hh(mm)=5\"", "the nearest are: h(mm)"},
      {edit + "h", "has no \"=\""},
      {"edit " + kH + " H9 --set No.=a", "has no \"H9\""},
      {"edit 热轧普通槽钢 [10 --set \"h(mm)=1\"", "本数据记录不能删除和编辑!"},
      {"delete 热轧普通槽钢 [10", "本数据记录不能删除和编辑!"},
      {"add 热轧等边角钢组合 --set No.=2L50X5", "型钢组合不能进行复制"},
      {"add 不存在 --set No.=a", "has no table \"不存在\""},
      {"edit 我的表 I20a --set a=" + wide + " --set b=" + wide, "bytes, but the file has room"},
      {"add 我的表 --set No.=x --set a=,,,", "含有逗号"},
      {"import \"" + File(L"none.kvb") + "\"", "not found", 3},
  };
  for (const auto& c : cases) {
    const CRunResult run = Run(c.arguments);
    EXPECT_EQ(run.m_nExit, c.exit) << c.arguments << run.m_strError;
    EXPECT_EQ(std::count(run.m_strError.begin(), run.m_strError.end(), '\n'), 1) << run.m_strError;
    EXPECT_NE(run.m_strError.find(c.names), std::string::npos) << c.names << ": " << run.m_strError;
    ASSERT_TRUE(FileBytes(m_store) == before) << c.arguments;
  }
  orv3::SetBusyWait(std::chrono::milliseconds{0});
  EXPECT_EQ(Run(AddH("H3")).m_nExit, 0);
  // A refused row starts no store.
  EXPECT_EQ(
      RunProgram("store add " + kH + " --set No.=a --store \"" + File(L"new.KDB") + "\"" + kData)
          .m_nExit,
      2);
  EXPECT_FALSE(Exists(m_folder.Path(L"new.KDB")));
}

TEST_F(StoreCommand, RefusesAHundredthTableAndARecordThatDoesNotFit) {
  {
    orv3::CStoreBatch batch(orv3::FromUtf8(m_store));
    for (int i = 0; i < 99; ++i) {
      CDataTable table;
      table.SetTableName(L"t" + orv3::FormatInt(i));
      table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
      ASSERT_EQ(table.WriteTable(orv3::FromUtf8(m_store), 0, 0), 1);
    }
    ASSERT_TRUE(batch.Commit());
  }
  const std::string before = FileBytes(m_store);
  const CRunResult run = Run(AddH("H1"));
  EXPECT_EQ(run.m_nExit, 2);
  EXPECT_NE(run.m_strError.find("room for 99"), std::string::npos) << run.m_strError;
  std::string rows = "No.\n";
  for (int i = 0; i < 2500; ++i) rows += "r" + std::to_string(i) + "\n";
  Put(L"t0.csv", rows);
  const Json tables = Import("--table t0 \"" + File(L"t0.csv") + "\"", 2);
  EXPECT_NE(tables[0]["why"].get<std::string>().find("room for 200"), std::string::npos);
  EXPECT_TRUE(FileBytes(m_store) == before);
}

TEST_F(StoreCommand, ImportsCsvAndTellsWhatBecameOfEachRow) {
  Put(L"自定义对称H型钢.csv",
      "\xEF\xBB\xBFh(mm),No.,b(mm),tf(mm),tw(mm)\r\n400,A,300,12,10\r\n400,B,300,250,10\r\n\r\n"
      "400,C,300\r\n\"400\",\"D\",300,12,10\r\n");
  const std::string file = "\"" + File(L"自定义对称H型钢.csv") + "\"";
  const Json first = Import(file, 2);
  ASSERT_EQ(first.size(), 1U);
  EXPECT_EQ(first[0]["table"], kH);
  EXPECT_EQ(first[0]["added"], 2);
  ASSERT_EQ(first[0]["refused"].size(), 2U);
  EXPECT_EQ(first[0]["refused"][0]["no"], "B");
  EXPECT_NE(first[0]["refused"][0]["why"].get<std::string>().find("line 3: "), std::string::npos);
  EXPECT_NE(first[0]["refused"][1]["why"].get<std::string>().find("line 5: 3 cells"),
            std::string::npos);
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "10960");
  const std::string bytes = FileBytes(m_store);
  EXPECT_EQ(Import(file, 2)[0]["unchanged"], 2);
  EXPECT_TRUE(FileBytes(m_store) == bytes);

  Put(L"自定义对称H型钢.csv", "No.,b(mm),h(mm),tf(mm),tw(mm),A(mm^2)\nA,300,500,12,10,1\n");
  EXPECT_EQ(Import(file, 2)[0]["refused"][0]["no"], "A");
  EXPECT_EQ(Import("--overwrite " + file, 0)[0]["replaced"], 1);
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "11960");

  const struct {
    const char* text;
    const char* names;
  } cases[] = {
      {"", "empty"},
      {"No.,v\na,1\n", "right would be for example No.:double"},
      {"No.:text:key,v:number\n", "\"v:number\" is no column"},
      {"No.:text:key,v:double:yes\n", "\"v:double:yes\" is no column"},
      {"No.:text:key,:double\n", "without a sign"},
      {"No.:text:key,\xFF:double\n", "UTF-8"},
  };
  for (const auto& c : cases) {
    Put(L"own.csv", c.text);
    const CRunResult run = Run("import --table 我的 \"" + File(L"own.csv") + "\"");
    EXPECT_EQ(run.m_nExit, 2) << c.text;
    EXPECT_NE(run.m_strError.find(c.names), std::string::npos) << run.m_strError;
  }
  Put(L"own.csv", "No.:text:key,v:double,c:char\na,1.5,x\nb,two,y\n");
  const Json own = Import("--table 我的 \"" + File(L"own.csv") + "\"", 2);
  EXPECT_EQ(own[0]["added"], 1);
  EXPECT_EQ(own[0]["refused"][0]["no"], "b");
  const Json columns = Rows("我的")["columns"];
  EXPECT_EQ(columns[0]["key"], true);
  EXPECT_EQ(columns[1]["type"], "double");
  EXPECT_EQ(columns[2]["type"], "char");
  EXPECT_EQ(Run("import \"" + File(L"own.csv") + "\"").m_nExit, 2) << "own is no section table";
}

TEST_F(StoreCommand, ExportsComeBackAsTheyWere) {
  ASSERT_EQ(Run(AddH("\"H 1\"")).m_nExit, 0);
  Put(L"own.csv", "No.:text:key,note:text,v:double\nb,\"a \"\"word\"\"\",2.50\na,,1\n");
  ASSERT_EQ(Run("import --table 我的 \"" + File(L"own.csv") + "\"").m_nExit, 0);
  ASSERT_EQ(Run(AddH("gone")).m_nExit, 0);
  ASSERT_EQ(Run("delete " + kH + " gone").m_nExit, 0);

  const std::string to = " --to \"" + File(L"out.csv") + "\"";
  ASSERT_EQ(Run("export 我的" + to).m_nExit, 0);
  EXPECT_EQ(FileBytes(File(L"out.csv")),
            "\xEF\xBB\xBFNo.:text:key,note:text,v:double\nb,\"a \"\"word\"\"\",2.50\na,,1\n");
  const std::string other = "\"" + File(L"other.KDB") + "\"";
  ASSERT_EQ(
      RunProgram("store import \"" + File(L"out.csv") + "\" --table 我的 --store " + other).m_nExit,
      0);
  EXPECT_EQ(Json::parse(RunProgram("rows 我的 --json --store " + other).m_strOut)["rows"],
            Rows("我的")["rows"]);

  ASSERT_EQ(Run("export --to \"" + File(L"all.JSON") + "\"").m_nExit, 0);
  const Json all = Json::parse(FileBytes(File(L"all.JSON")))["tables"];
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0]["rows"], Rows(kH)["rows"]);
  EXPECT_EQ(all[1], Rows("我的"));

  const std::string copy = "\"" + File(L"copy.KDB") + "\"";
  for (int i = 0; i < 2; ++i) {  // the second one replaces the first
    ASSERT_EQ(Run("export --to " + copy).m_nExit, 0);
    const Json info = Json::parse(RunProgram("store info --json " + copy).m_strOut);
    EXPECT_EQ(info["tables"][0]["rows"], 1);
    EXPECT_EQ(info["tables"][1]["rows"], 2);
  }
  EXPECT_EQ(RunProgram("store verify " + copy).m_nExit, 0);
  for (const Json& table : Import(copy, 0)) EXPECT_EQ(table["added"], 0);

  const CRunResult book = Run("export --to \"" + File(L"all.xlsx") + "\"");
  if (book.m_nExit == 0) {
    const std::string bytes = FileBytes(File(L"all.xlsx"));
    EXPECT_EQ(bytes.substr(0, 2), "PK");
    EXPECT_NE(bytes.find("xl/worksheets/sheet2.xml"), std::string::npos);
  } else {
    EXPECT_NE(book.m_strError.find("built without libxlsxwriter"), std::string::npos);
  }
  EXPECT_EQ(Run("export --to \"" + File(L"all.csv") + "\"").m_nExit, 2);
  EXPECT_EQ(Run("export 无 --to \"" + File(L"all.json") + "\"").m_nExit, 2);
  EXPECT_EQ(Run("export --to \"" + File(L"all.txt") + "\"").m_nExit, 2);
  EXPECT_EQ(Run("export --to \"" + File(L"none/all.json") + "\"").m_nExit, 3);
}

TEST_F(StoreCommand, TellsFaultsOfATableFile) {
  ASSERT_EQ(Run(AddH("H1")).m_nExit, 0);
  std::string bytes = FileBytes(m_store);
  bytes[20100 + 3200] = '\0';  // the first row, behind a heading of 32 columns
  Put(L"bad.KDB", bytes);
  const CRunResult bad = RunProgram("store verify --json \"" + File(L"bad.KDB") + "\"");
  EXPECT_EQ(bad.m_nExit, 3);
  const Json told = Json::parse(bad.m_strOut);
  EXPECT_EQ(told["ok"], false);
  EXPECT_EQ(told["faults"][0]["table"], kH);
  EXPECT_EQ(told["faults"][0]["offset"], 20100 + 3200);
  const CRunResult good = RunProgram("store verify --json \"" + m_store + "\"");
  EXPECT_EQ(good.m_nExit, 0);
  EXPECT_EQ(Json::parse(good.m_strOut)["ok"], true);
  EXPECT_EQ(RunProgram("store info \"" + File(L"none.KDB") + "\"").m_nExit, 3);
}

TEST_F(StoreCommand, TheShippedStoreIsCopiedAtTheFirstWriteAndNeverChanged) {
  const std::string home = orv3::ToUtf8(m_folder.Path(L"home"));
  SetVariable("XDG_DATA_HOME", home);
  SetVariable("APPDATA", home);
  const std::string shipped = FileBytes(ORV3CAL_CATALOGUE "/KvbSystemJmDataBase.KDB");
  ASSERT_FALSE(shipped.empty());
  EXPECT_EQ(RunProgram("rows 热轧普通槽钢").m_nExit, 0);
  EXPECT_FALSE(Exists(m_folder.Path(L"home")));
  // A refused command makes no copy of the shipped store.
  for (const std::string& refused :
       {"delete " + kH + " none", std::string("edit 热轧普通工字钢 I10 --set A=1"),
        "add " + kH + " --set No.=a", std::string("import none.kvb")}) {
    EXPECT_NE(RunProgram("store " + refused).m_nExit, 0) << refused;
    EXPECT_FALSE(Exists(m_folder.Path(L"home/orv3cal/KvbSystemJmDataBase.KDB"))) << refused;
  }
  ASSERT_EQ(RunProgram("store " + AddH("H1")).m_nExit, 0);
  EXPECT_TRUE(FileBytes(ORV3CAL_CATALOGUE "/KvbSystemJmDataBase.KDB") == shipped);
  const auto rows = [](const std::string& options) {
    return Json::parse(RunProgram("rows " + kH + " --json" + options).m_strOut)["rows"].size();
  };
  EXPECT_EQ(rows(""), rows(kData) + 1);
  EXPECT_EQ(RunProgram("rows 热轧普通槽钢").m_nExit, 0);
  EXPECT_EQ(RunProgram("rows " + kH + " --data \"" + home + "/none\"").m_nExit, 3);
}

}  // namespace
