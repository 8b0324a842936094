// Sections as profiles of building models. That a reader of IFC takes the whole catalogue, with the
// areas of its rows, is tested where there is one (tests/ifc).
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>
#include <vector>

#include "catalogue/ifc/ifc_library.h"
#include "sections/catalogue_store.h"
#include "sections/geometry_rows.h"

namespace {

std::string Library(const std::vector<CDataItem>& rows) {
  return orv3::IfcLibrary(rows, L"T").m_strText;
}

// The lines of entities whose name begins so, without their numbers.
std::vector<std::string> Entities(const std::string& text, const std::string& name) {
  std::vector<std::string> found;
  const std::regex line("#[0-9]+=(" + name + "[A-Z0-9]*\\(.*\\));\n");
  for (std::sregex_iterator i(text.begin(), text.end(), line), end; i != end; ++i)
    found.push_back((*i)[1]);
  return found;
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

class IfcProfiles : public CatalogueStore {
 protected:
  static CDataItem Stored(const wchar_t* table, const wchar_t* no) {
    return CLoadDataTable::GetSysTemJMItem(table, no);
  }
};

// Sizes by GB/T 706, 707, 9788 of 1988, GB/T 11263-1998 and GB 50018-2002, slopes as angles:
// arctan 1/6 and 1/10. The flange of a channel of 11 mm at 40 mm is 11.35 mm at 36.5 mm.
TEST_F(IfcProfiles, HaveTheSizesRadiiAndSlopesOfTheStandards) {
  const struct {
    CDataItem row;
    const char* entity;
  } cases[] = {
      {Stored(L"热轧普通工字钢", L"I20a"),
       "IFCISHAPEPROFILEDEF(.AREA.,'I20a',$,100.,200.,7.,11.4,9.,4.5,0.16514867741462"},
      {Stored(L"热轧宽翼缘H型钢", L"HW200X200"),
       "IFCISHAPEPROFILEDEF(.AREA.,'HW200X200',$,200.,200.,8.,12.,16.,$,$)"},
      {Stored(L"热轧普通槽钢", L"[20a"),
       "IFCUSHAPEPROFILEDEF(.AREA.,'[20a',$,200.,73.,7.,11.35,11.,5.5,0.09966865249116"},
      {Stored(L"热轧不等边角钢", L"L100X63X8"),
       "IFCLSHAPEPROFILEDEF(.AREA.,'L100X63X8',$,100.,63.,8.,10.,2.66666666666666"},
      {Stored(L"剖分T型钢", L"TW100X200"),
       "IFCTSHAPEPROFILEDEF(.AREA.,'TW100X200',$,100.,200.,8.,12.,16.,$,$,$,$)"},
      {Stored(L"冷弯薄壁卷边槽钢", L"C160X60X20X2.0"),
       "IFCCSHAPEPROFILEDEF(.AREA.,'C160X60X20X2.0',$,160.,60.,2.,20.,4.)"},
      {Stored(L"冷弯薄壁方钢管", L"80X2.5"),
       "IFCRECTANGLEHOLLOWPROFILEDEF(.AREA.,'80X2.5',$,80.,80.,2.5,5.,7.5)"},
      {Stored(L"冷弯焊接薄壁圆钢管", L"108X2.5"),
       "IFCCIRCLEHOLLOWPROFILEDEF(.AREA.,'108X2.5',$,54.,2.5)"},
      {RowOfPlates(L"自定义非对称H型钢", {10, 400, 20, 16, 95, 95, 145, 145}),
       "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,'1',$,300.,400.,10.,20.,$,200.,16.,$,$,$,$,$)"},
      {RowOfPlates(L"自定义非对称H型钢", {10, 400, 20, 16, 90, 100, 145, 145}),
       "IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,'1',"},
      {RowOfPlates(L"自定义T形截面", {10, 250, 16, 90, 90}),
       "IFCTSHAPEPROFILEDEF(.AREA.,'1',$,250.,190.,10.,16.,$,$,$,$,$)"},
      {RowOfPlates(L"自定义L形截面", {12, 200, 12, 88}),
       "IFCLSHAPEPROFILEDEF(.AREA.,'1',$,200.,100.,12.,$,$,$)"},
      {RowOfPlates(L"自定义L形截面", {12, 200, 10, 88}), "IFCARBITRARYCLOSEDPROFILEDEF("},
      {RowOfPlates(L"自定义Z形截面", {10, 300, 14, 14, 90, 90}),
       "IFCZSHAPEPROFILEDEF(.AREA.,'1',$,300.,100.,10.,14.,$,$)"},
      {RowOfPlates(L"自定义槽钢", {10, 300, 14, 14, 90, 90}),
       "IFCUSHAPEPROFILEDEF(.AREA.,'1',$,300.,100.,10.,14.,$,$,$)"},
      {RowOfPlates(L"自定义槽钢", {10, 300, 14, 16, 90, 90}), "IFCARBITRARYCLOSEDPROFILEDEF("},
      {RowOfPlates(L"自定义圆管", {150, 140}), "IFCCIRCLEHOLLOWPROFILEDEF(.AREA.,'1',$,150.,10.)"},
      {RowOfPlates(L"自定义非对称箱形截面", {300, 400, 12, 14, 10, 10}),
       "IFCARBITRARYPROFILEDEFWITHVOIDS(.AREA.,'1',"},
  };
  for (const auto& [row, entity] : cases) {
    const std::string text = Library({row});
    EXPECT_TRUE(Has(text, std::string("=") + entity)) << entity << "\n" << text;
    EXPECT_TRUE(Has(text, "IFCPROFILEPROPERTIES('Pset_ProfileMechanical',$,(")) << entity;
  }
}

// An L of 12 and 10 mm, 200 high and 100 wide, about the middle (50, 100); then two angles with
// their radii.
TEST_F(IfcProfiles, DrawAllOthersWithTheirArcs) {
  const std::string angle = Library({RowOfPlates(L"自定义L形截面", {12, 200, 10, 88})});
  EXPECT_EQ(Entities(angle, "IFCCARTESIANPOINTLIST2D"),
            std::vector<std::string>{"IFCCARTESIANPOINTLIST2D(((50.,-100.),(50.,-90.),(-38.,-90.),"
                                     "(-38.,100.),(-50.,100.),(-50.,-90.),(-50.,-100.)))"});
  const std::string pair = Library({Stored(L"热轧等边角钢组合", L"2L50X5")});
  EXPECT_EQ(Entities(pair, "IFCARBITRARYCLOSED").size(), 2U);
  EXPECT_EQ(Entities(pair, "IFCCOMPOSITE").size(), 1U);
  for (const std::string& curve : Entities(pair, "IFCINDEXEDPOLYCURVE")) {
    EXPECT_TRUE(Has(curve, "IFCARCINDEX(")) << curve;
    EXPECT_TRUE(Has(curve, ",1))),.F.)")) << curve;  // ends where it began
  }
}

// Each number refers to an entity before it, as readers that read once need it.
TEST_F(IfcProfiles, ReferToWhatIsThere) {
  std::vector<CDataItem> rows = Rows(L"热轧普通槽钢[]组合");
  rows.push_back(DefaultRow(L"四肢格构柱"));
  const std::string text = Library(rows);
  const std::regex line("#([0-9]+)=[A-Z0-9]+(\\(.*\\));\n");
  const std::regex reference("#([0-9]+)");
  int last = 0;
  for (std::sregex_iterator i(text.begin(), text.end(), line), end; i != end; ++i) {
    ASSERT_EQ(std::stoi((*i)[1]), ++last);
    const std::string values = (*i)[2];
    for (std::sregex_iterator k(values.begin(), values.end(), reference); k != end; ++k)
      ASSERT_LT(std::stoi((*k)[1]), last) << values;
  }
  EXPECT_EQ(std::ssize(Entities(text, "IFCMATERIALPROFILESET")), std::ssize(rows));
  EXPECT_EQ(text, Library(rows));
}

// A number that two tables use tells its table; texts are ASCII by ISO 10303-21, 6.4.3.
TEST_F(IfcProfiles, AreNamedApart) {
  CDataItem odd = RowOfPlates(L"矩形截面", {10, 20});
  odd[0].m_strValue = orv3::FromUtf8("钢'\\𠮷x\n");
  const std::string text =
      Library({Stored(L"热轧轻型工字钢", L"I10"), Stored(L"热轧普通工字钢", L"I10"),
               Stored(L"热轧普通工字钢", L"I20a"), odd});
  EXPECT_TRUE(Has(text, ",'I10 (\\X2\\70ED8F678F7B578B5DE55B5794A2\\X0\\)',")) << text;
  EXPECT_TRUE(Has(text, ",'I10 (\\X2\\70ED8F67666E901A5DE55B5794A2\\X0\\)',"));
  EXPECT_TRUE(Has(text, ",'I20a',"));
  EXPECT_TRUE(Has(text, "'\\X2\\94A2\\X0\\''\\\\\\X4\\00020BB7\\X0\\x\\X2\\000A\\X0\\'"));
  CDataItem alike = odd;  // a number that is the other's name with its table
  alike[0].m_strValue = L"I10 (热轧普通工字钢)";
  std::vector<std::string> names = Entities(
      Library({Stored(L"热轧轻型工字钢", L"I10"), alike, Stored(L"热轧普通工字钢", L"I10")}),
      "IFCMATERIALPROFILESET");
  std::ranges::sort(names);
  for (std::string& each : names) each.resize(each.find(','));
  EXPECT_EQ(std::ranges::unique(names).size(), 0U) << names[0] << "\n" << names[1];
  EXPECT_TRUE(
      std::ranges::all_of(text, [](char ch) { return ch == '\n' || (ch >= ' ' && ch <= '~'); }));
}

// GB/T 707-1988 prints 28.837 cm2, 1780 cm4, 128 cm4 and z0 = 20.1 mm of [20a.
TEST_F(IfcProfiles, CarryThePrintedFigures) {
  const std::string text = Library({Stored(L"热轧普通槽钢", L"[20a")});
  EXPECT_TRUE(Has(text, "'CrossSectionArea',$,IFCAREAMEASURE(2883.7)")) << text;
  EXPECT_TRUE(Has(text, "'MomentOfInertiaZ',$,IFCMOMENTOFINERTIAMEASURE(1280000.)"));
  EXPECT_TRUE(Has(text, "'CentreOfGravityInX',$,IFCLENGTHMEASURE(-16.4"));
  EXPECT_TRUE(Has(text, "'ShearCentreZ',$,IFCLENGTHMEASURE(0.)"));
  EXPECT_TRUE(Has(text, "'MinimumSectionModulusZ',$,IFCSECTIONMODULUSMEASURE(63800.)"));
}

// Four equal angles, each turned a quarter on from the one before, have their centroid in the
// middle, whatever each angle's printed one is rounded to.
TEST_F(IfcProfiles, HaveTheCentroidOfALatticeColumnInItsMiddle) {
  const std::string text = Library({DefaultRow(L"四肢格构柱")});
  EXPECT_TRUE(Has(text, "'CentreOfGravityInX',$,IFCLENGTHMEASURE(0.)")) << text;
  EXPECT_TRUE(Has(text, "'CentreOfGravityInY',$,IFCLENGTHMEASURE(0.)"));
}

TEST(IfcLibrary, TellsWhatHasNoOutline) {
  const std::vector<CDataItem> rows{RowOfPlates(L"矩形截面", {10, 20}),
                                    RowOfPlates(L"矩形截面", {10, 0})};
  EXPECT_EQ(orv3::IfcLibrary(rows, L"T").m_arrLeftOut, std::vector<std::size_t>{1});
}

}  // namespace
