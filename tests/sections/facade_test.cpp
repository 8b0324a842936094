// The section facade: table names, look-ups in the stores, default rows, row checks and pictures.
#include "sections/load_data_table.h"

#include <gtest/gtest.h>

#include <set>

#include "framework/number_text.h"
#include "platform/store_file.h"
#include "sections/geometry_rows.h"
#include "sections/row_check.h"
#include "tables/file/table_store.h"
#include "tables/table_file_tools.h"

namespace {

std::string Joined(const CStringArray& texts) {
  std::string joined;
  for (const CString& text : texts) joined += (joined.empty() ? "" : " ") + orv3::ToUtf8(text);
  return joined;
}

TEST(TableTypes, MasksSelectNamesInTheirOrder) {
  const struct {
    long mask;
    const char* names;
  } cases[] = {
      {0x001, ""},
      {0x01000000, ""},
      {0x03000001,
       "热轧普通工字钢 热轧轻型工字钢 热轧普通焊接H型钢 热轧轻型焊接H型钢 热轧宽翼缘H型钢 "
       "热轧窄翼缘H型钢 自定义对称H型钢 自定义非对称H型钢"},
      {0x01000E00, ""},
      {0x02000180, ""},
      {0x02000A00, "自定义十字形截面 自定义翼缘十字形截面 双肢格构柱 四肢格构柱 三肢格构柱"},
  };
  for (const auto& c : cases) {
    CStringArray names;
    names.Add(L"前");
    CLoadDataTable::GetTableNameArray(c.mask, names);
    EXPECT_EQ(Joined(names), c.names) << std::hex << c.mask;
  }
  CStringArray names;
  CLoadDataTable::GetTableNameArray(static_cast<std::int32_t>(0xFEFFFFFFU), names);
  EXPECT_EQ(names.GetSize(), static_cast<int>(orv3::kPlateKinds + orv3::kLatticeKinds));
  CLoadDataTable::GetTableNameArray(static_cast<std::int32_t>(0xFDFFFFFFU), names);
  EXPECT_EQ(names.GetSize(), static_cast<int>(orv3::kRolledKinds));
}

TEST(TableTypes, NamesAreOfAMaskWhole) {
  EXPECT_EQ(CLoadDataTable::IsTableNameType(L"矩形截面", static_cast<std::int32_t>(0xFEFFFFFFU)),
            1);
  EXPECT_EQ(CLoadDataTable::IsTableNameType(L"矩形截面", 0x01FFFFFF), 0);
  EXPECT_EQ(CLoadDataTable::IsTableNameType(L"矩形截面 ", 0x02000400), 0);
  EXPECT_EQ(CLoadDataTable::IsTableNameType(L"自定义t形截面", 0x02000004), 0);
  EXPECT_EQ(CLoadDataTable::IsTableNameType(L"剖分T型钢", 0x01000037), 1);

  CStringArray available;
  for (const wchar_t* name : {L"自定义对称H型钢", L"热轧窄翼缘H型钢", L"别的", L"热轧普通工字钢"}) {
    available.Add(name);
  }
  CStringArray names;
  CLoadDataTable::SelectTableNameArray(0x03000001, available, names);
  EXPECT_EQ(Joined(names), "热轧普通工字钢 热轧窄翼缘H型钢 自定义对称H型钢");
  CLoadDataTable::SelectTableNameArray(0x01000001, names, names);
  EXPECT_EQ(Joined(names), "热轧普通工字钢 热轧窄翼缘H型钢");
}

TEST(TableTypes, EveryTableHasAPictureOfItsOwn) {
  CArray<CBitmap, const CBitmap&> images;
  CLoadDataTable::GetItemImageList(images);
  CStringArray names;
  CLoadDataTable::GetTableNameArray(-1, names);
  std::set<int> seen;
  for (const CString& name : names) {
    const int icon = CLoadDataTable::GetItemIcon(name);
    ASSERT_TRUE(icon >= 0 && icon < images.GetSize()) << name;
    EXPECT_TRUE(seen.insert(icon).second) << name;
    int dark = 0;
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 16; ++x) dark += (images[icon].GetPixel(x, y) & 0xFF) < 0xC0;
    }
    EXPECT_TRUE(dark >= 20 && dark < 200) << name << " " << dark;
  }
  EXPECT_EQ(CLoadDataTable::GetItemIcon(L"不存在"), -1);
}

class Facade : public testing::Test {
 protected:
  Facade() { CLoadDataTable::SetOrvoPrgPath(m_folder.Path()); }
  ~Facade() override { CLoadDataTable::SetOrvoPrgPath(L""); }

  static void Save(CDataTable& table) {
    table.SetSaveTablePath(orv3::ProgramPath());
    ASSERT_EQ(table.WriteSystemJmTable(), 1) << orv3::LastStoreError().m_strText;
  }
  // 热轧普通槽钢 with [5, [8 (deleted) and [10.
  static void SaveChannels() {
    CDataTable table = SectionTable(L"热轧普通槽钢");
    AddRow(table, L"[5", L"50");
    AddRow(table, L"[8", L"80");
    AddRow(table, L"[10", L"100");
    Save(table);
    table.DeleteTableItem(1);
    Save(table);
  }
  static CString Height(const wchar_t* no, const wchar_t* table = L"热轧普通槽钢") {
    const CDataItem row = CLoadDataTable::GetSysTemJMItem(table, no);
    return row.IsEmpty() ? CString(L"none") : row[L"h(mm)"].m_strValue;
  }

  CTempFolder m_folder;
};

TEST_F(Facade, LooksSectionsUpInTheSystemStore) {
  EXPECT_EQ(CLoadDataTable::GetOrvoPrgPath(), m_folder.Path());
  EXPECT_EQ(orv3::ProgramPath(), m_folder.Path());
  CStringArray numbers;
  numbers.Add(L"before");
  EXPECT_EQ(CLoadDataTable::GetSysTemItemNo(L"热轧普通槽钢", numbers), 0);
  EXPECT_EQ(numbers.GetSize(), 0);
  EXPECT_EQ(Height(L"[5"), L"none");

  SaveChannels();
  EXPECT_EQ(CLoadDataTable::GetSysTemItemNo(L"热轧普通槽钢", numbers), 1);
  EXPECT_EQ(Joined(numbers), "[5 [10");
  EXPECT_EQ(Height(L"[10"), L"100");
  EXPECT_EQ(Height(L"[8"), L"none");  // deleted
  EXPECT_EQ(Height(L"[12"), L"none");
  EXPECT_EQ(Height(L"[10", L"热轧轻型槽钢"), L"none");
  EXPECT_EQ(CLoadDataTable::GetSysTemJMItem(L"热轧普通槽钢", L"[5").m_strTableName,
            L"热轧普通槽钢");
  CDataItem own = CLoadDataTable::GetSysTemJMItem(L"热轧普通槽钢", L"[10");
  own[L"h(mm)"].m_strValue = L"999";
  EXPECT_EQ(Height(L"[10"), L"100") << "a row is the caller's own";
  EXPECT_EQ(CLoadDataTable::IsHaveSystemJMItem(L"热轧普通槽钢", L"h(mm) >> 99"), 1);
  EXPECT_EQ(CLoadDataTable::IsHaveSystemJMItem(L"热轧普通槽钢", L"h(mm) == 80"), 0);
  EXPECT_EQ(CLoadDataTable::IsHaveSystemJMItem(L"热轧普通槽钢", L"No. == [1*"), 0);
  EXPECT_EQ(CLoadDataTable::IsHaveSystemJMItem(L"热轧轻型槽钢", L""), 0);

  CDataTable narrow;
  narrow.SetTableName(L"一列");
  narrow.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
  ASSERT_EQ(narrow.AddTableItem(L"a", 1), 1);
  Save(narrow);
  EXPECT_EQ(CLoadDataTable::GetSysTemItemNo(L"一列", numbers), 0);
}

TEST_F(Facade, TheStoreIsReadAgainOnlyWhenItHasChanged) {
  SaveChannels();
  ASSERT_EQ(Height(L"[10"), L"100");
  {
    // Nobody else can read it now, so what is found was kept.
    orv3::SetBusyWait(std::chrono::milliseconds{0});
    const auto held = orv3::CStoreFile::OpenToRead(m_folder.Path(orv3::kSystemStore));
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(Height(L"[5"), L"50");
    EXPECT_EQ(Height(L"[5", L"热轧轻型槽钢"), L"none");
    orv3::SetBusyWait(std::chrono::seconds{1});
  }
  // Saves of the same length within one tick of the clock.
  for (int height = 101; height < 140; ++height) {
    CDataTable table = Loaded(m_folder.Path(orv3::kSystemStore), L"热轧普通槽钢");
    CDataItem row = std::as_const(table)[2];
    row[1].m_strValue = orv3::FormatInt(height);
    ASSERT_EQ(table.ModifyTableItem(row.m_nIndex, row), 1);
    Save(table);
    ASSERT_EQ(Height(L"[10"), orv3::FormatInt(height));
  }
  CTempFolder other;
  CLoadDataTable::SetOrvoPrgPath(other.Path());
  EXPECT_EQ(Height(L"[10"), L"none");
  CLoadDataTable::SetOrvoPrgPath(m_folder.Path());
  EXPECT_EQ(Height(L"[10"), L"139");
  ASSERT_TRUE(orv3::Files().Remove(m_folder.Path(orv3::kSystemStore)));
  EXPECT_EQ(Height(L"[10"), L"none");
}

TEST_F(Facade, TheFirstLiveRowOfANumberIsFound) {
  CDataTable twice;
  twice.SetTableName(L"无键");
  twice.AddTableCol(L"号", L"n", CDataTypeStruct::KVBT_DOUBLE, 0);
  twice.AddTableCol(L"高", L"h(mm)", CDataTypeStruct::KVBT_DOUBLE, 0);
  for (const wchar_t* row : {L"1,10", L"2,20", L"2.0,30"}) ASSERT_EQ(twice.AddTableItem(row, 1), 1);
  Save(twice);
  EXPECT_EQ(Height(L"2.0000001", L"无键"), L"20");  // numbers, within 1e-6
  twice.DeleteTableItem(1);
  Save(twice);
  EXPECT_EQ(Height(L"2", L"无键"), L"30");
}

TEST_F(Facade, DefaultRows) {
  const struct {
    const wchar_t* table;
    const char* cells;  // number, sizes and base point, or number, spacings and limbs
  } cases[] = {
      {L"自定义对称H型钢", "H400X300 300 400 10 10 100 100"},
      {L"自定义非对称H型钢", "H400X320X20 20 400 20 20 150 150 150 150 100 100"},
      {L"自定义对称箱形截面", "400X300X20 300 400 20 100 100"},
      {L"自定义非对称箱形截面", "400X300X20 300 400 20 20 20 20 100 100"},
      {L"自定义十字形截面", "S400X320X20 20 400 190 190 150 150 100 100"},
      {L"自定义翼缘十字形截面", "YS400X300X100 300 400 100 100 20 20 100 100"},
      {L"自定义T形截面", "T400X320X20 20 400 20 150 150 100 100"},
      {L"自定义槽钢", "[400X100X20 20 400 20 20 80 80 50 50"},
      {L"自定义Z形截面", "Z180X70X20 20 400 20 20 50 50 50 50"},
      {L"自定义圆形截面", "R100 100 50 50"},
      {L"自定义圆管", "RH100X10 100 20 50 50"},
      {L"自定义L形截面", "L200X200X20 20 200 20 180 100 100"},
      {L"矩形截面", "400X300 300 400 100 100"},
      {L"三角形截面", "400X300 300 400 100 100"},
      {L"六边形截面", "200 200 100 100"},
      {L"双肢格构柱", "G2[10X800 800 热轧普通槽钢 [10 90 热轧普通槽钢 [10 270"},
      {L"三肢格构柱",
       "G3X600X800 600 800 冷弯焊接薄壁圆钢管 30X2.0 0 冷弯焊接薄壁圆钢管 30X2.0 0 "
       "冷弯焊接薄壁圆钢管 30X2.0 0"},
      {L"四肢格构柱",
       "G4L600X800 600 800 热轧等边角钢 L30X3 0 热轧等边角钢 L30X3 90 热轧等边角钢 L30X3 180 "
       "热轧等边角钢 L30X3 270"},
  };
  for (const auto& c : cases) {
    const CDataItem row = DefaultRow(c.table);
    const bool plates = orv3::FindSectionStyle(std::wstring_view(c.table)) != nullptr;
    std::string cells;
    for (int i = 0; i < row.GetSignIndex(plates ? L"xo(mm)" : L"A(mm^2)"); ++i) {
      cells += (i ? " " : "") + orv3::ToUtf8(row[i].m_strValue);
    }
    EXPECT_EQ(cells, c.cells);
    if (plates) {
      EXPECT_FALSE(orv3::CheckRow(row)) << orv3::CheckRow(row)->m_text.m_strChinese;
    }
  }
  CDataItem rolled;
  rolled.m_strTableName = L"热轧普通槽钢";
  EXPECT_EQ(CLoadDataTable::GetDefaultDataItem(rolled), 0);
}

TEST_F(Facade, SaysWhyARowCannotBeKept) {
  SaveChannels();
  const wchar_t* const h = L"自定义对称H型钢";
  const wchar_t* const lattice = L"双肢格构柱";
  const struct {
    const wchar_t* table;
    const wchar_t* sign;
    CString value;
    const char* says;  // a part of the message; empty when the row is good
  } cases[] = {
      {h, L"No.", L"我的 H-1", ""},
      {h, L"No.", L"", "型号 No.：不能为空"},
      {h, L"No.", L"A,B", "含有逗号"},
      {h, L"No.", L" A", "首尾不能有空格"},
      {h, L"No.", L"A\nB", "换行"},
      {h, L"No.", L"한", "字符集以外"},
      {h, L"No.", CString(L'A', 30), ""},
      {h, L"No.", CString(L'A', 31), "共31个字符，最多30个"},
      {h, L"h(mm)", L"abc", "截面高度 h(mm)：“abc”不是数值"},
      {h, L"h(mm)", L"", "不能为空"},
      {h, L"h(mm)", L"-400", "-400应大于0"},
      {h, L"tf(mm)", L"200", "应小于200"},
      {h, L"tw(mm)", L"301", "不应大于300"},
      {h, L"x(mm)", L"-12.5", ""},
      {h, L"x(mm)", L"中", "不是数值"},
      {h, L"A(mm^2)", L"旧", ""},  // computed anew
      {lattice, L"P1Type", L"热轧普通槽钢", ""},
      {lattice, L"k(mm)", L"0", "应大于0"},
      {lattice, L"P2No.", L"[99", "没有“[99”"},
      {lattice, L"P2No.", L"[8", "没有“[8”"},  // deleted
      {lattice, L"P1Type", L"矩形截面", "不是标准型钢表名"},
      {lattice, L"P1θ°", L"45", "应为0、90、180或270"},
      {lattice, L"P1θ°", L"360", "应为0、90、180或270"},
  };
  for (const auto& c : cases) {
    CDataItem row = DefaultRow(c.table);
    row[c.sign].m_strValue = c.value;
    CMessageCatcher caught;
    EXPECT_EQ(CLoadDataTable::CheckCustomDataItem(row), *c.says ? 0 : 1) << c.value;
    ASSERT_EQ(caught.m_arrMessage.size(), *c.says ? 1U : 0U) << c.value;
    if (!*c.says) continue;
    EXPECT_EQ(caught.m_arrMessage[0].m_strTitle, L"Orvo提醒您");
    EXPECT_NE(orv3::ToUtf8(caught.m_arrMessage[0].m_strText).find(c.says), std::string::npos)
        << caught.m_arrMessage[0].m_strText;
  }
  CDataItem rolled = CLoadDataTable::GetSysTemJMItem(L"热轧普通槽钢", L"[10");
  EXPECT_FALSE(orv3::CheckRow(rolled));
  rolled[1].m_strValue = L"x";
  EXPECT_TRUE(orv3::CheckRow(rolled));
  EXPECT_TRUE(orv3::CheckRow(CDataItem()));
}

TEST_F(Facade, SizesAreWrittenAsPeopleWriteThem) {
  EXPECT_EQ(CLoadDataTable::GetItemSizeString(DefaultRow(L"自定义对称H型钢")), L"300X400X10X10");
  EXPECT_EQ(CLoadDataTable::GetItemSizeString(DefaultRow(L"自定义圆管")), L"100X20");
  EXPECT_EQ(CLoadDataTable::GetItemSizeString(DefaultRow(L"三肢格构柱")), L"600X800");
  CDataTable rolled = SectionTable(L"热轧普通工字钢");
  for (const wchar_t* sign : {L"b(mm)", L"d(mm)", L"t(mm)", L"r(mm)", L"r1(mm)", L"A(cm^2)"}) {
    rolled.AddTableCol(L"", sign, CDataTypeStruct::KVBT_DOUBLE, 0);
  }
  ASSERT_EQ(rolled.AddTableItem(L"I20a,200,100,7,11.4,9,4.5,35.55", 1), 1);
  EXPECT_EQ(CLoadDataTable::GetItemSizeString(rolled[0]), L"200X100X7X11.4");
  EXPECT_EQ(CLoadDataTable::GetItemSizeString(CDataItem()), L"");
}

}  // namespace
