// orv3cal store, run as a user runs it.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "cli/run_program.h"
#include "framework/number_text.h"
#include "platform/store_file.h"
#include "platform/temp_folder.h"
#include "tables/data_table.h"

namespace {

const std::string kH = "自定义对称H型钢";

std::filesystem::path NativePath(const std::string& path) {
  return {std::u8string(path.begin(), path.end())};
}

// Rows of one cell.
std::string Lines(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += "r" + std::to_string(i) + "\n";
  return lines;
}

class StoreCommand : public testing::Test {
 protected:
  std::string File(const wchar_t* name) const { return orv3::ToUtf8(m_folder.Path(name)); }
  std::string Quoted(const wchar_t* name) const { return "\"" + File(name) + "\""; }
  // On the test's own store, limbs from the catalogue.
  std::string On(const std::string& arguments) const {
    return "store " + arguments + " --store \"" + m_store + "\"" + kData;
  }
  CRunResult Run(const std::string& arguments) const { return RunProgram(On(arguments)); }
  Json Rows(const std::string& table) const {
    return JsonOf("rows " + table + " --store \"" + m_store + "\"");
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
    return JsonOf(On("import " + arguments), exit)["tables"];
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

  ASSERT_EQ(Run(AddH("H2")).m_nExit, 0);
  EXPECT_EQ(JsonOf(On("delete " + kH + " H1"))["done"], "deleted");
  EXPECT_EQ(Rows(kH)["rows"].size(), 1U);
  const Json info = JsonOf("store info \"" + m_store + "\"");
  EXPECT_EQ(info["kind"], "system");
  EXPECT_EQ(info["tables"], Json::array({{{"name", kH},
                                          {"columns", 32},
                                          {"rows", 2},
                                          {"deleted", 1},
                                          {"slot", 1081},
                                          {"blocks", {20100}}}}));

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
  Put(L"I.csv", "No.:text:key,a:text,b:text\nI20a,1,2\n");  // a table of the user's own
  ASSERT_EQ(Run("import --table 我的表 " + Quoted(L"I.csv")).m_nExit, 0);
  ASSERT_EQ(Run("import \"" ORV3CAL_CATALOGUE "/PCGData.kvb\"").m_nExit, 0);
  const std::string before = FileBytes(m_store);
  const std::string edit = "edit " + kH + " H1 --set ";
  std::string wide;  // 30 characters, 60 bytes
  for (int i = 0; i < 30; ++i) wide += "宽";
  ExpectRefused({
      {On(AddH("H1")), {"has a row \"H1\" already"}},
      {On(AddH("1234567890123456789012345678901")), {"has 31 characters; give at most 30"}},
      {On(AddH("A,B")), {"has a comma"}},
      {On("add " + kH + " --set No.=X --set \"b(mm)=300\""), {"h(mm): is empty"}},
      {On(edit + "\"tf(mm)=250\""), {"give less than 200"}},
      {On(edit + "\"h(mm)=400.00001\""), {"six digits; right would be 400"}},
      {On(edit + "\"A(mm^2)=5\""), {"computed"}},
      {On(edit + "\"hh(mm)=5\""), {"the nearest are: h(mm)"}},
      {On(edit + "hh=5"), {"the nearest are: h(mm)"}},
      {On(edit + "h"), {"has no \"=\""}},
      {On("edit " + kH + " H9 --set No.=a"), {"has no \"H9\""}},
      {On("edit 热轧普通槽钢 [10 --set \"h(mm)=1\""), {"a row of the catalogue"}},
      {On("delete 热轧普通槽钢 [10 --lang zh"), {"本数据记录不能删除和编辑!"}},
      {On("add 热轧等边角钢组合 --set No.=2L50X5"), {"pairs are made of single sections"}},
      {On("add 热轧普通工字钢 --set No.=I99 --set \"h(mm)=990\""), {"b(mm): is empty"}},
      {On("add 不存在 --set No.=a"), {"has no table \"不存在\""}},
      {On("edit 我的表 I20a --set a=" + wide + " --set b=" + wide),
       {"bytes, but the file has room"}},
      {On("add 我的表 --set No.=x --set a=,,,"), {"has \",,,\""}},
      {On("add 我的表 --set a=x"), {"first cell is empty"}},
      {On("edit 我的表 I20a --set \"a=7\n\""), {"has a line feed"}},
      {On("import " + Quoted(L"none.kvb")), {"not found"}, 3},
      // A refused row starts no store.
      {"store add " + kH + " --set No.=a --store " + Quoted(L"new.KDB") + kData, {}},
  });
  for (const char* name : {"a,", ","}) {  // which would meet the separator behind it
    const Json told = Import("--table " + std::string(name) + " " + Quoted(L"I.csv"), 2);
    ExpectHas(told[0]["why"], {"ends with \",\""});
  }
  EXPECT_TRUE(FileBytes(m_store) == before);
  EXPECT_FALSE(Exists(m_folder.Path(L"new.KDB")));
  EXPECT_EQ(Run(AddH("H3")).m_nExit, 0);
}

// The first row was deleted before the first save, so that no index is its row's position.
TEST_F(StoreCommand, ANewRowTakesADeletedRowsPlaceAndNoOther) {
  {
    CDataTable table;
    table.SetTableName(L"我的");
    table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
    table.AddTableCol(L"注", L"note", CDataTypeStruct::KVBT_STRING, 0);
    for (const wchar_t* row : {L"A,1", L"B,2", L"C,3"}) ASSERT_EQ(table.AddTableItem(row, 1), 1);
    ASSERT_EQ(table.DeleteTableItem(0), 1);
    ASSERT_EQ(table.WriteTable(orv3::FromUtf8(m_store), 0, 0), 1);
  }
  ASSERT_EQ(Run("delete 我的 B").m_nExit, 0);
  ASSERT_EQ(Run("add 我的 --set No.=D").m_nExit, 0);
  EXPECT_EQ(Rows("我的")["rows"].size(), 2U);
  EXPECT_EQ(Cell("我的", "No."), "D");
  EXPECT_EQ(JsonOf("store info \"" + m_store + "\"")["tables"][0]["deleted"], 0);
}

// Files of others may hold a stable index twice, and a key that is not the first column.
TEST_F(StoreCommand, ChangesTheRowThatTheKeyNames) {
  {
    CDataTable table;
    table.SetTableName(L"我的");
    table.AddTableCol(L"注", L"note", CDataTypeStruct::KVBT_STRING, 0);
    table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
    for (const wchar_t* row : {L"B,A", L"A,B", L"x,C", L"x,D"})
      ASSERT_EQ(table.AddTableItem(row, 1), 1);
    for (int i = 0; i < 4; ++i) table[i].m_nIndex = 0;
    table[0][0].m_strValue = L"p,q";
    ASSERT_EQ(table.WriteTable(orv3::FromUtf8(m_store), 0, 0), 1);
  }
  ASSERT_EQ(Run("edit 我的 C --set note=y").m_nExit, 0);
  ASSERT_EQ(Run("delete 我的 B").m_nExit, 0);
  ASSERT_EQ(Run("edit 我的 A --set No.=E --set note=p,q").m_nExit, 0);  // as imports bring it
  const Json rows = Rows("我的")["rows"];
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0]["cells"], Json::array({"p,q", "E"}));
  EXPECT_EQ(rows[1]["cells"], Json::array({"y", "C"}));
  EXPECT_EQ(rows[2]["cells"], Json::array({"x", "D"}));

  // Without a key rows may be equal, and come in once.
  Put(L"own.csv", "a:text,b:double\nx,1\nx,1e300\nx,1\n");
  EXPECT_EQ(Import("--table 无 " + Quoted(L"own.csv"), 0)[0]["added"], 3);
  EXPECT_EQ(Import("--table 无 " + Quoted(L"own.csv"), 0)[0]["unchanged"], 3);
  ExpectHas(RunProgram("rows 无 --csv --store \"" + m_store + "\"").m_strOut, {"x,1e300"});
  ExpectRefused({{On("delete 无 x"), {"3 rows \"x\"", "--key \"b=1\""}},
                 {On("delete 无 x --key b=2"), {"no \"x, b=2\""}},
                 {On("edit 我的 C --set note=a --set note=b"), {"\"note\" is given twice"}},
                 {On("export 我的 我的 --to " + Quoted(L"o.json")), {"is given twice"}},
                 {On("export --guard --to " + Quoted(L"o.json")), {"for .csv files alone"}}});
  for (int rows = 2; rows > 0; --rows) {  // one of two that are equal, then the other
    ASSERT_EQ(Run("delete 无 x --key b=1").m_nExit, 0);
    EXPECT_EQ(Rows("无")["rows"].size(), static_cast<std::size_t>(rows));
  }
  Put(L"own.csv", "a:text:key,b:int:key,c:text\nx,1,p\nx,2,q\n");
  ASSERT_EQ(Run("import --table [二,三] " + Quoted(L"own.csv")).m_nExit, 0);
  ASSERT_EQ(Run("edit [二,三] x --key b=2 --set c=r").m_nExit, 0);
  ASSERT_EQ(Run("delete [二,三] x --key b=1").m_nExit, 0);
  ASSERT_EQ(Run("export [二,三] --to " + Quoted(L"out.csv")).m_nExit, 0);
  ExpectHas(FileBytes(File(L"out.csv")), {"key,c:text\nx,2,r\n"});
}

TEST_F(StoreCommand, ImportsCsvAndTellsWhatBecameOfEachRow) {
  const wchar_t* const name = L"自定义对称H型钢.csv";
  Put(name,
      "\xEF\xBB\xBFh(mm),No.,b(mm),tf(mm),tw(mm)\r\n400,A,300,12,10\r\n400,B,300,250,10\r\n\r\n"
      "400,C,300\r\n\"400\",\"D\",300,12,10\r\n");
  const Json first = Import(Quoted(name), 2);
  ASSERT_EQ(first.size(), 1U);
  EXPECT_EQ(first[0]["table"], kH);
  EXPECT_EQ(first[0]["added"], 2);
  ASSERT_EQ(first[0]["refused"].size(), 2U);
  EXPECT_EQ(first[0]["refused"][0]["no"], "B");
  ExpectHas(first[0]["refused"][0]["why"], {"line 3: "});
  ExpectHas(first[0]["refused"][1]["why"], {"line 5: 3 cells"});
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "10960");
  const std::string bytes = FileBytes(m_store);
  EXPECT_EQ(Import(Quoted(name), 2)[0]["unchanged"], 2);
  EXPECT_TRUE(FileBytes(m_store) == bytes);

  Put(name, "No.,b(mm),h(mm),tf(mm),tw(mm)\nT,300,500,12,10\nT,300,600,12,10\n");
  ExpectHas(Import("--overwrite " + Quoted(name), 2)[0]["refused"][0]["why"],
            {"line 3: line 2 has its key"});
  ASSERT_EQ(Run("delete " + kH + " T").m_nExit, 0);
  Put(name, "No.,b(mm),h(mm),tf(mm),tw(mm),A(mm^2)\nA,300,500,12,10,1\n");
  EXPECT_EQ(Import(Quoted(name), 2)[0]["refused"][0]["no"], "A");
  EXPECT_EQ(Import("--overwrite " + Quoted(name), 0)[0]["replaced"], 1);
  EXPECT_EQ(Cell(kH, "A(mm^2)"), "11960");
}

// A row with figures ten times those of its sizes is named wherever it is met and checks nothing.
TEST_F(StoreCommand, NoCheckGoesByARowThatContradictsItself) {
  const std::string table = "热轧普通工字钢";
  const wchar_t* const name = L"热轧普通工字钢.csv";
  Put(name,
      "No.,h(mm),b(mm),tw(mm),t(mm),r(mm),r1(mm),A(cm^2),G(kg/m),Aw(m^2/m),Ix(cm^4),Wx(cm^3),"
      "Sx(cm^3),ix(cm),Iy(cm^4),Wy(cm^3),iy(cm)\n"
      "I16,160,88,6,9.9,8,4,26.131,20.513,0.621,1126.9,140.9,80.8,6.57,93,21.1,1.89\n"
      "I99,160,88,6,9.9,8,4,261.31,20.513,0.621,11269,1409,80.8,6.57,93,21.1,1.89\n"
      "I98,160,88,6,9.9,8,4,,20.513,0.621,1126.9,140.9,80.8,6.57,93,21.1,1.89\n"
      "I97,160,88,6,9.9,8,4,26.131,20.513,0.621,1126.9,140.9,80.8,6.57,93,21.1,"
      "1.8900000000000000000000000000001\n");
  const Json told = Import(Quoted(name), 2)[0];
  EXPECT_EQ(told["added"], 2);
  ASSERT_EQ(told["doubtful"].size(), 1U);
  EXPECT_EQ(told["doubtful"][0]["no"], "I99");
  ExpectHas(told["doubtful"][0]["why"], {"A = 26131 mm², its sizes give 26"});
  ASSERT_EQ(told["refused"].size(), 2U);
  for (const Json& row : told["refused"]) ExpectHas(row["why"], {"line "});
  const Json notes = JsonOf("store verify \"" + m_store + "\"")["notes"];
  ASSERT_EQ(notes.size(), 1U);
  ExpectHas(notes[0]["what"], {"row 2, \"I99\", contradicts itself: A = 26131"});

  const std::string rest = R"("steel": "Q235", "lengths": {"x": 2000, "y": 2000}, "N": -50})";
  const COwnFile one("one.json",
                     R"({"section": {"table": ")" + table + R"(", "no": "I99"}, )" + rest);
  const COwnFile any("any.json", "{" + rest);
  const std::string on = " --store \"" + m_store + "\"" + kData;
  ExpectRefused({{"check member " + one.m_strPath + on, {"section", "I99 contradicts itself"}}});
  const Json choice = JsonOf("choose " + any.m_strPath + " --table " + table + " --json" + on);
  EXPECT_EQ(choice["tried"], 1) << "the store's own rows, not the catalogue's";
  EXPECT_EQ(choice["rows"][0]["no"], "I16");
  EXPECT_EQ(choice["refusals"][0]["no"], "I99");
  const CRunResult csv =
      RunProgram("choose " + any.m_strPath + " --table " + table + " --csv" + on);
  EXPECT_EQ(csv.m_strOut.find("I99"), std::string::npos);
  ExpectHas(csv.m_strError, {"1 more are not covered", "I99 contradicts itself"});
  const std::string limb = " --set P1Type=" + table + " --set P1No.=I99 --set P1θ°=90";
  const std::string limbs = limb + " --set P2Type=" + table + " --set P2No.=I99 --set P2θ°=90";
  ExpectRefused(
      {{"store export " + table + " --to " + Quoted(L"x.ifc") + " --store \"" + m_store + '"',
        {"I99 contradicts itself"}}});
  ExpectRefused({{"store add 双肢格构柱 --set No.=G --set \"k(mm)=300\"" + limbs + on,
                  {"a limb contradicts itself: I99: A = 26131"}}});

  CDataTable rows;  // a table file is under the same rule
  rows.SetTableName(orv3::FromUtf8(table));
  CString line;
  ASSERT_EQ(rows.GetTable(orv3::FromUtf8(m_store), line), 1);
  rows[1][L"A(cm^2)"].m_strValue = L"";
  rows[1].m_nModifyType = 2;
  ASSERT_EQ(rows.WriteTable(m_folder.Path(L"x.KDB"), 0, 0), 1);
  ASSERT_EQ(Run("delete " + table + " I99").m_nExit, 0);
  const Json refused = Import(Quoted(L"x.KDB"), 2)[0]["refused"];
  ASSERT_EQ(refused.size(), 1U);
  ExpectHas(refused[0]["why"], {"A(cm^2)"});
}

TEST_F(StoreCommand, ImportsATableWhoseHeadingNamesItsColumns) {
  const std::string own = Quoted(L"own.csv");
  const std::string import = "import --table 我的 " + own;
  const std::pair<std::string, const char*> refused[] = {
      {"", "empty"},
      {"No.,v\na,1\n", "right would be for example No.:double"},
      {"No.:text:key,v:number\n", "\"v:number\" is no column"},
      {"No.:text:key,v:double:yes\n", "\"v:double:yes\" is no column"},
      {"No.:text:key,:double\n", "without a sign"},
      {"No.:text:key,\xFF:double\n", "UTF-8"},
      {"No.:text:key,v:double\na,\"3\"00\n", "line 2: a cell in quotation marks"},
      {"No.:text:key,v:double\na,\"3\n", "a cell in quotation marks is not closed"},
      {"No.:text:key\n" + Lines(2501), "more than 2500 rows"},
  };
  for (const auto& [text, why] : refused) {
    Put(L"own.csv", text);
    ExpectRefused({{On(import), {why}}});
  }
  Put(L"own.csv", "No.:text:key,v:double,c:char\na,1.5,x\nb,two,y\n");
  const Json told = Import("--table 我的 " + own, 2);
  EXPECT_EQ(told[0]["added"], 1);
  EXPECT_EQ(told[0]["refused"][0]["no"], "b");
  const Json columns = Rows("我的")["columns"];
  EXPECT_EQ(columns[0]["key"], true);
  EXPECT_EQ(columns[1]["type"], "double");
  EXPECT_EQ(columns[2]["type"], "char");
  ExpectRefused({{On("import " + own), {}}});  // own is no section table
}

TEST_F(StoreCommand, ImportsCsvAsSpreadsheetsSaveIt) {
  const std::string head = "No.:text:key,v:double,n:text,,\r\n";
  const std::u16string wide = u"\xFEFFNo.:text:key\tv:double\tn:text\na\t1.5\t宽\n";
  const std::string sources[] = {
      head + "a,1.5,\xE5\xAE\xBD,,\r\n,,,,\r\n",  // UTF-8
      head + "a,1.5,\xBF\xED,,\r\n,,,,\r\n",      // GBK
      "No.:text:key;v:double;n:text\n\na;1.5;\"\xE5\xAE\xBD\"\n;;\n",
      "No.:text:key\tv:double\tn:text\na\t1.5\t\xBF\xED\n",
      std::string(reinterpret_cast<const char*>(wide.data()), 2 * wide.size()),
  };
  Json first;
  for (const std::string& bytes : sources) {
    Put(L"own.csv", bytes);
    std::filesystem::remove(NativePath(m_store));
    EXPECT_EQ(Import("--table 我的 - <" + Quoted(L"own.csv"), 0)[0]["added"], 1);
    const Json rows = Rows("我的")["rows"];
    if (first.is_null()) first = rows;
    EXPECT_EQ(rows, first) << bytes;
    EXPECT_EQ(rows[0]["cells"], Json::array({"a", "1.5", "宽"}));
  }
}

TEST_F(StoreCommand, ExportsComeBackAsTheyWere) {
  const std::string bytes =
      "\xEF\xBB\xBFNo.:text:key,note:text,v:double\nb,\"a \"\"word\"\"\",2.50\na,,1\n";
  ASSERT_EQ(Run(AddH("\"H 1\"")).m_nExit, 0);
  Put(L"own.csv", bytes);
  ASSERT_EQ(Run("import --table 我的 " + Quoted(L"own.csv")).m_nExit, 0);
  ASSERT_EQ(Run(AddH("gone")).m_nExit, 0);
  ASSERT_EQ(Run("delete " + kH + " gone").m_nExit, 0);

  ASSERT_EQ(Run("export 我的 --to " + Quoted(L"out.csv")).m_nExit, 0);
  EXPECT_EQ(FileBytes(File(L"out.csv")), bytes);

  ASSERT_EQ(Run("export --to " + Quoted(L"all.JSON")).m_nExit, 0);
  const Json all = Json::parse(FileBytes(File(L"all.JSON")))["tables"];
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0]["rows"], Rows(kH)["rows"]);
  EXPECT_EQ(all[1], Rows("我的"));

  const std::string copy = Quoted(L"copy.KDB");
  for (int i = 0; i < 2; ++i) {  // the second one replaces the first
    ASSERT_EQ(Run("export --to " + copy).m_nExit, 0);
    const Json tables = JsonOf("store info " + copy)["tables"];
    EXPECT_EQ(tables[0]["rows"], 1);
    EXPECT_EQ(tables[1]["rows"], 2);
  }
  EXPECT_EQ(RunProgram("store verify " + copy).m_nExit, 0);
  for (const Json& table : Import(copy, 0)) EXPECT_EQ(table["added"], 0);

  const CRunResult book = Run("export --to " + Quoted(L"all.xlsx"));
  if (book.m_nExit == 0) {
    const std::string zip = FileBytes(File(L"all.xlsx"));
    EXPECT_EQ(zip.substr(0, 2), "PK");
    ExpectHas(zip, {"xl/worksheets/sheet2.xml"});
  } else {
    ExpectHas(book.m_strError, {"built without libxlsxwriter"});
  }
  ASSERT_EQ(Run("export " + kH + " --to " + Quoted(L"h.ifc")).m_nExit, 0);
  ExpectHas(FileBytes(File(L"h.ifc")), {"FILE_SCHEMA(('IFC4'))", "=IFCISHAPEPROFILEDEF("});
  ExpectRefused({{On("export --to " + Quoted(L"all.csv")), {}},
                 {On("export --to " + Quoted(L"all.ifc")), {"我的"}},
                 {On("export --exact " + kH + " --to " + Quoted(L"h.ifc")), {"--exact"}},
                 {On("export 无 --to " + Quoted(L"all.json")), {}},
                 {On("export --to " + Quoted(L"all.txt")), {}},
                 {On("export --to " + Quoted(L"none/all.json")), {}, 3}});
}

TEST_F(StoreCommand, GuardsTextsThatSpreadsheetsCompute) {
  Put(L"own.csv", "No.:text:key,n:text\n=1+1,-5\n+1e3,-a\n@x,\" =a\"\n'a,'b'\nb,\"=\"\"a\"\"\"\n");
  ASSERT_EQ(Run("import --table \"'我的'\" " + Quoted(L"own.csv")).m_nExit, 0);
  ASSERT_EQ(Run("export --guard --to " + Quoted(L"out.csv")).m_nExit, 0);
  EXPECT_EQ(FileBytes(File(L"out.csv")),
            "\xEF\xBB\xBFNo.:text:key,n:text\n'=1+1,-5\n+1e3,'-a\n'@x,' =a\n'a,'b'\n"
            "b,\"'=\"\"a\"\"\"\n");
  const CRunResult book = Run("export --to " + Quoted(L"all.xlsx"));
  if (book.m_nExit != 0) {
    ExpectHas(book.m_strError, {"built without libxlsxwriter"});
  }
}

TEST_F(StoreCommand, ExportsReplaceNothingButTheirTarget) {
  namespace fs = std::filesystem;
  ASSERT_EQ(Run(AddH("H1")).m_nExit, 0);
  const fs::path folder = NativePath(File(L""));
  const fs::path store = NativePath(m_store);
  const std::string before = FileBytes(m_store);
  fs::create_hard_link(store, folder / "hard.KDB");
  std::vector<CRefusal> own = {{On("export --to " + Quoted(L"我的.KDB")), {"is the store"}},
                               {On("export --to " + Quoted(L"./我的.KDB")), {"is the store"}},
                               {On("export --to " + Quoted(L"hard.KDB")), {"is the store"}}};
  Put(L"a.csv", "old");
#ifndef _WIN32  // where links need no rights of their own
  fs::create_symlink(store, folder / "soft.KDB");
  own.push_back({On("export --to " + Quoted(L"soft.KDB")), {"is the store"}});
  fs::create_symlink("/dev/full", folder / "full.csv");
  own.push_back({On("export --to " + Quoted(L"full.csv")), {"the disk is full"}, 3});
  fs::create_symlink("a.csv", folder / "link.csv");
  fs::permissions(folder / "a.csv", fs::perms(0640));
#else
  fs::copy(folder / "a.csv", folder / "link.csv");
#endif
  ExpectRefused(own);
  EXPECT_TRUE(FileBytes(m_store) == before);

  for (const wchar_t* mine :
       {L"link.csv.part", L"link.csv.new", L"a.csv.new", L".orv3cal-0.part"}) {
    Put(mine, "mine");
  }
  ASSERT_EQ(Run("export --to " + Quoted(L"link.csv")).m_nExit, 0);
  for (const wchar_t* mine :
       {L"link.csv.part", L"link.csv.new", L"a.csv.new", L".orv3cal-0.part"}) {
    EXPECT_EQ(FileBytes(File(mine)), "mine");
  }
  EXPECT_FALSE(Exists(m_folder.Path(L".orv3cal-1.part")));
#ifndef _WIN32
  EXPECT_EQ(fs::status(folder / "a.csv").permissions(), fs::perms(0640));
  EXPECT_TRUE(fs::is_symlink(folder / "link.csv"));
  EXPECT_EQ(FileBytes(File(L"a.csv")).substr(0, 3), "\xEF\xBB\xBF");
#endif
  fs::permissions(folder / "a.csv", fs::perms::owner_read);
  ExpectRefused({{On("export --to " + Quoted(L"a.csv")), {"write-protected"}, 3}});
  fs::permissions(folder / "a.csv", fs::perms::owner_all);
}

TEST_F(StoreCommand, TellsFaultsOfATableFile) {
  ASSERT_EQ(Run(AddH("H1")).m_nExit, 0);
  std::string bytes = FileBytes(m_store);
  bytes[20100 + 3200] = '\0';  // the first row, behind a heading of 32 columns
  Put(L"bad.KDB", bytes);
  const Json told = JsonOf("store verify " + Quoted(L"bad.KDB"), 3);
  EXPECT_EQ(told["ok"], false);
  EXPECT_EQ(told["faults"][0]["table"], kH);
  EXPECT_EQ(told["faults"][0]["offset"], 20100 + 3200);
  EXPECT_EQ(JsonOf("store verify \"" + m_store + "\""),
            (Json{{"ok", true}, {"faults", Json::array()}, {"notes", Json::array()}}));
  ExpectRefused({{"store info " + Quoted(L"none.KDB"), {}, 3}});
}

// A row of that table and number is in every catalogue: with sizes of its own it must not pass by
// the catalogue's when its store is damaged.
TEST_F(StoreCommand, TheCatalogueNeverStandsInForAStore) {
  ASSERT_EQ(Run(AddH("H400X300")).m_nExit, 0);
  const std::string bytes = FileBytes(m_store);
  Put(L"cut.KDB", bytes.substr(0, bytes.size() / 2));
  Put(L"empty.KDB", "");
  std::string damaged = bytes;
  damaged[20100 + 3200] = '\0';  // the first row, behind a heading of 32 columns
  Put(L"damaged.KDB", damaged);
  Put(L"member.json", R"({"section": {"table": ")" + kH +
                          R"(", "no": "H400X300"}, "steel": "Q235",)"
                          R"( "N": -1, "lengths": {"x": 1000, "y": 1000}})");
  Put(L"load.json", R"({"steel": "Q235", "N": -1, "lengths": {"x": 1000, "y": 1000}})");
  std::filesystem::create_directory(NativePath(File(L"folder.KDB")));
#ifndef _WIN32
  std::filesystem::create_symlink("not_there.KDB", NativePath(File(L"link.KDB")));
#endif
  const std::string show = "show " + kH + " H400X300",
                    check = "check member " + Quoted(L"member.json");
  const std::string choose = "choose " + Quoted(L"load.json") + " --table ";
  const std::string lattice = "lattice \"" ORV3CAL_SOURCE "/examples/lattice-2.json\"";
  for (const wchar_t* file : {L"cut.KDB", L"empty.KDB", L"folder.KDB", L"link.KDB"}) {
    const std::string store = " --store " + Quoted(file) + kData;
    const std::string name = orv3::ToUtf8(CString(file));
    for (const std::string& command : {show, check, choose + kH, choose + "all", lattice,
                                       std::string("gauge 热轧普通工字钢 I20a")})
      ExpectRefused({{command + store, {name}, 3}});
  }
  const std::string store = " --store " + Quoted(L"damaged.KDB") + kData;
  for (const std::string& command : {show, choose + kH, choose + "all"})
    ExpectRefused({{command + store, {"damaged.KDB", kH}, 3}});
  ExpectRefused({{check + store, {"damaged.KDB", kH}}});
  const std::string sound = " --store \"" + m_store + "\"" + kData;
  EXPECT_EQ(RunProgram(check + sound).m_nExit, 0);
  ExpectRefused({{"show 热轧普通工字钢 I20a" + sound, {"热轧普通工字钢", "has no table"}},
                 {"gauge 热轧普通工字钢 I20a" + sound, {"热轧普通工字钢", "has no table"}},
                 {choose + "热轧普通工字钢" + sound, {"no rows of"}}});
  EXPECT_EQ(RunProgram(lattice + sound).m_nExit, 0)
      << "what rows are made of may be the catalogue's";
}

#ifndef _WIN32
// As on a share that is not mounted.
TEST_F(StoreCommand, TheShippedStoreDoesNotServeForAnOwnCopyThatIsOutOfReach) {
  const std::string home = File(L"home");
  SetVariable("XDG_DATA_HOME", home);
  std::filesystem::create_directory(NativePath(home));
  std::filesystem::create_symlink("not_mounted", NativePath(home + "/orv3cal"));
  for (const std::string& command :
       {"rows " + kH, "show " + kH + " H400X300", "store " + AddH("H1")})
    ExpectRefused({{command, {"link", "orv3cal"}, 3}});
  std::filesystem::remove(NativePath(home + "/orv3cal"));
  std::filesystem::create_directory(NativePath(home + "/orv3cal"));
  Put(L"home/orv3cal/KvbSystemJmDataBase.KDB", "damaged");
  ExpectRefused({{"show " + kH + " H400X300", {"not a table file"}, 3}});
}
#endif

TEST_F(StoreCommand, TheShippedStoreIsCopiedAtTheFirstWriteAndNeverChanged) {
  const std::string home = orv3::ToUtf8(m_folder.Path(L"home"));
  SetVariable("XDG_DATA_HOME", home);
  SetVariable("APPDATA", home);
  const std::string shipped = FileBytes(ORV3CAL_CATALOGUE "/KvbSystemJmDataBase.KDB");
  ASSERT_FALSE(shipped.empty());
  EXPECT_EQ(RunProgram("rows 热轧普通槽钢").m_nExit, 0);
  EXPECT_FALSE(Exists(m_folder.Path(L"home")));
  EXPECT_EQ(JsonOf("store info")["origin"], "shipped");
  // A command that is refused or changes nothing makes no copy of the shipped store.
  EXPECT_EQ(RunProgram("store import \"" ORV3CAL_CATALOGUE "/PCGData.kvb\"").m_nExit, 0);
  EXPECT_FALSE(Exists(m_folder.Path(L"home/orv3cal")));
  for (const std::string& refused :
       {"delete " + kH + " none", std::string("edit 热轧普通工字钢 I10 --set A=1"),
        "add " + kH + " --set No.=a", std::string("import none.kvb")}) {
    EXPECT_NE(RunProgram("store " + refused).m_nExit, 0) << refused;
    EXPECT_FALSE(Exists(m_folder.Path(L"home/orv3cal"))) << refused;
  }
  ASSERT_EQ(RunProgram("store " + AddH("H1")).m_nExit, 0);
  EXPECT_TRUE(FileBytes(ORV3CAL_CATALOGUE "/KvbSystemJmDataBase.KDB") == shipped);
  EXPECT_EQ(JsonOf("rows " + kH)["rows"].size(), JsonOf("rows " + kH + kData)["rows"].size() + 1);
  EXPECT_EQ(RunProgram("rows 热轧普通槽钢").m_nExit, 0);
  EXPECT_EQ(RunProgram("rows " + kH + " --data \"" + home + "/none\"").m_nExit, 3);
  EXPECT_EQ(JsonOf("store info")["origin"], "own");
  ExpectHas(RunProgram("tables").m_strOut, {home, "your own copy, read instead of"});

  SetVariable("ORV3CAL_DATA", home + "/none");
  ExpectRefused({{"rows " + kH, {"the variable ORV3CAL_DATA"}, 3},
                 {"rows " + kH + " --store \"\"", {"--store", "names nothing"}}});
  EXPECT_EQ(RunProgram("rows " + kH + " --store \"" + home + "/orv3cal/KvbSystemJmDataBase.KDB\"")
                .m_nExit,
            0);
  SetVariable("ORV3CAL_DATA", "");
}

}  // namespace
