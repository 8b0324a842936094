// The C interface as a program of another language uses it. Expectations are hand calculations and
// printed values of GB 50017-2003.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "catalogue/code_tables/thickness_group.h"
#include "connections/bolt_group.h"
#include "connections/butt_weld.h"
#include "framework/utf8.h"
#include "module/orv3cal_c.h"

namespace {

using CText16 = std::u16string;

std::string Utf8(const CText16& text) {
  std::wstring wide;
  for (const char16_t unit : text) wide += static_cast<wchar_t>(unit);
  return orv3::ToUtf8(wide);
}

CText16 Utf16(const CString& text) {
  CText16 out;
  for (const wchar_t unit : text.View()) out += static_cast<char16_t>(unit);
  return out;
}

// The whole text of a function that gives one, asked in the two steps that callers take.
template <class FUNCTION, class... ARGUMENTS>
CText16 TextFrom(FUNCTION function, ARGUMENTS... arguments) {
  const int length = function(arguments..., nullptr, 0);
  if (length < 0) return u"failed";
  CText16 text(static_cast<std::size_t>(length) + 1, u'x');
  EXPECT_EQ(function(arguments..., text.data(), length + 1), length);
  EXPECT_EQ(text.back(), u'\0');
  text.pop_back();
  return text;
}

std::string LastError() { return Utf8(TextFrom(orv3_last_error)); }

std::vector<std::string> Lines(const CText16& text) {
  std::vector<std::string> lines(1);
  for (const char ch : Utf8(text)) {
    if (ch == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += ch;
    }
  }
  return lines;
}

std::map<std::string, std::string> Values(const CText16& text) {
  std::map<std::string, std::string> values;
  for (const std::string& line : Lines(text)) {
    const std::size_t at = line.find('=');
    values[line.substr(0, at)] = line.substr(at + 1);
  }
  return values;
}

// --- Texts ---------------------------------------------------------------------------------------

TEST(CTexts, AreCutToTheRoomThereIsAndNeverInsideACharacter) {
  ASSERT_EQ(orv3_list_sizes(u"型钢\U0001F600", nullptr, 0), -1);
  const CText16 whole = TextFrom(orv3_last_error);
  ASSERT_NE(whole.find(u"型钢\U0001F600"), CText16::npos);
  for (int size = 1; size <= static_cast<int>(whole.size()); ++size) {
    CText16 text(whole.size() + 1, u'x');
    EXPECT_EQ(orv3_last_error(text.data(), size), static_cast<int>(whole.size()));
    const CText16 cut = text.substr(0, text.find(u'\0'));
    EXPECT_EQ(cut, whole.substr(0, cut.size()));
    EXPECT_GE(static_cast<int>(cut.size()) + 2, size);
    EXPECT_LT(static_cast<int>(cut.size()), size);
    EXPECT_TRUE(cut.empty() || (cut.back() & 0xFC00) != 0xD800) << size;
    EXPECT_EQ(text[static_cast<std::size_t>(size)], u'x') << "written beyond the room";
  }
}

TEST(CTexts, TellEachThreadItsOwnFailure) {
  ASSERT_EQ(orv3_list_sizes(u"here", nullptr, 0), -1);
  std::thread([] {
    EXPECT_EQ(LastError(), "");
    ASSERT_EQ(orv3_list_sizes(u"there", nullptr, 0), -1);
    EXPECT_NE(LastError().find("there"), std::string::npos);
  }).join();
  EXPECT_NE(LastError().find("here\""), std::string::npos) << LastError();
  EXPECT_EQ(LastError().find("there"), std::string::npos) << LastError();
}

TEST(CTexts, AnswerTheInterfaceVersion) { EXPECT_EQ(orv3_version(), ORV3_INTERFACE_VERSION); }

// --- Sections ------------------------------------------------------------------------------------

TEST(CSection, ComputesAnHSectionUnderEachNameOfItsStyle) {
  const double sizes[] = {300, 400, 10, 10};  // b, h, tf, tw
  for (const char16_t* style : {u"自定义对称H型钢", u"0", u"h", u"H"}) {
    double p[ORV3_PROPERTIES + 1] = {};
    p[ORV3_PROPERTIES] = -7;
    ASSERT_EQ(orv3_section(style, sizes, 4, 150, 0, p, ORV3_PROPERTIES + 1), ORV3_PROPERTIES);
    const double A = 2 * 300 * 10 + 380 * 10;
    const double Ixo = (300 * std::pow(400, 3) - 290 * std::pow(380, 3)) / 12;
    const double Iyo = (2 * 10 * std::pow(300, 3) + 380 * std::pow(10, 3)) / 12;
    EXPECT_DOUBLE_EQ(p[ORV3_XO], 150);
    EXPECT_DOUBLE_EQ(p[ORV3_YO], 200);
    EXPECT_NEAR(p[ORV3_A], A, 1e-9 * A);
    EXPECT_NEAR(p[ORV3_IX], Ixo + A * 200 * 200, 1e-9 * Ixo);  // base point at the lower edge
    EXPECT_EQ(p[ORV3_WX2], 1e100);
    EXPECT_NEAR(p[ORV3_IYO], Iyo, 1e-9 * Iyo);
    EXPECT_NEAR(p[ORV3_RYO], std::sqrt(Iyo / A), 1e-9);
    EXPECT_EQ(p[ORV3_PROPERTIES], -7);
  }
  double two[3] = {0, 0, -7};
  EXPECT_EQ(orv3_section(u"h", sizes, 4, 0, 0, two, 2), 2);
  EXPECT_EQ(two[2], -7);
}

// A square of 100 with a hole of 20 in a corner.
TEST(CSection, TellsHowExactItsFiguresAre) {
  const double square[] = {0,  0,  0, 100, 0,  0, 100, 100, 0, 0,  100, 0,
                           10, 10, 0, 30,  10, 0, 30,  30,  0, 10, 30,  0};
  const int counts[] = {4, 4};
  double p[ORV3_EXACT] = {};
  ASSERT_EQ(orv3_outline_exact(square, counts, 2, p, ORV3_EXACT), ORV3_EXACT);
  EXPECT_NEAR(p[ORV3_EXACT_A], 9600, 1e-9);
  for (const int error : {ORV3_EXACT_ERROR_IT, ORV3_EXACT_ERROR_IW, ORV3_EXACT_ERROR_AS}) {
    EXPECT_GT(p[error], 0);
    EXPECT_LT(p[error], 3e-3);
  }
  EXPECT_GT(p[ORV3_EXACT_ERROR_CENTRE], 0);
  EXPECT_LT(p[ORV3_EXACT_ERROR_CENTRE], 0.05);
  EXPECT_EQ(p[ORV3_EXACT_ACCURATE], 1);
}

TEST(CSection, ListsStylesAndTheirSizes) {
  const auto styles = Lines(TextFrom(orv3_list_styles));
  ASSERT_EQ(styles.size(), 15U);
  EXPECT_EQ(styles[3], "矩形截面");
  EXPECT_EQ(Utf8(TextFrom(orv3_list_sizes, u"自定义圆管")), "R(mm)\nr(mm)");
}

TEST(CSection, RefusesByNameWhatMakesNoSection) {
  const double sizes[] = {300, 400, 10, 10};
  const double thick[] = {300, 400, 210, 10};
  const double endless[] = {300, HUGE_VAL, 10, 10};
  double p[ORV3_PROPERTIES] = {};
  struct {
    const char16_t* style;
    const double* sizes;
    int count;
    double x;
    double* out;
    const char* named;
  } const cases[] = {
      {u"自定义", sizes, 4, 0, p, "style"},  {u"15", sizes, 4, 0, p, "style"},
      {nullptr, sizes, 4, 0, p, "style"},    {u"h", nullptr, 4, 0, p, "sizes"},
      {u"h", sizes, 3, 0, p, "count"},       {u"h", thick, 4, 0, p, "tf(mm)"},
      {u"h", endless, 4, 0, p, "sizes"},     {u"h", sizes, 4, NAN, p, "x"},
      {u"h", sizes, 4, 0, nullptr, "place"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(orv3_section(c.style, c.sizes, c.count, c.x, 0, c.out, ORV3_PROPERTIES), -1)
        << c.named;
    EXPECT_NE(LastError().find(c.named), std::string::npos) << c.named << ": " << LastError();
  }
}

// --- Checks --------------------------------------------------------------------------------------

const std::vector<CText16> kBolts = {
    u"layout=grid", u"type=friction", u"cols=3",    u"rows=4",     u"colSpace=80;90",
    u"rowSpace=70", u"d=20",          u"nf=2",      u"N=60",       u"Vx=40",
    u"Vy=250",      u"M=3000",        u"T=15000",   u"ex=50",      u"ey=50",
    u"t=16",        u"steel=Q345",    u"surface=0", u"grade=10.9",
};
const std::vector<CText16> kFillet = {u"case=4", u"steel=Q235", u"lw=240",   u"N=60", u"M=3000",
                                      u"V=120",  u"betaF=1.22", u"angle=90", u"hf=8"};
const std::vector<CText16> kButt = {u"case=0", u"steel=Q235", u"quality=1", u"lw=200",
                                    u"t=10",   u"N=100",      u"M=0",       u"V=0"};

CText16 Joined(const std::vector<CText16>& lines, std::size_t without = 999) {
  CText16 text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i != without) text += lines[i] + u"\r\n";
  }
  return text;
}

TEST(CChecks, GiveTheResultsByKey) {
  auto bolts = Values(TextFrom(orv3_check_bolt, Joined(kBolts).c_str()));
  EXPECT_EQ(bolts["pass"], "1");
  EXPECT_EQ(bolts["n"], "12");
  EXPECT_EQ(bolts["P"], "155");                                     // Table 7.2.2-2
  EXPECT_NEAR(std::stod(bolts["Nvb"]), 0.9 * 2 * 0.5 * 155, 1e-9);  // (7.2.2-1)
  EXPECT_EQ(bolts.count("de"), 0U);                                 // not of the friction type

  const auto fillet = Values(TextFrom(orv3_check_fillet, Joined(kFillet).c_str()));
  EXPECT_NEAR(std::stod(fillet.at("he")), 0.7 * 8, 1e-9);
  EXPECT_EQ(fillet.at("ffw"), "160");

  auto heavy = kButt;
  const auto butt = Values(TextFrom(orv3_check_butt, Joined(kButt).c_str()));
  EXPECT_NEAR(std::stod(butt.at("sigma")), 100e3 / (200 * 10), 1e-9);
  EXPECT_EQ(butt.at("ftw"), "215");
  EXPECT_EQ(butt.at("pass"), "1");
  heavy[5] = u"N=1000";  // 500 N/mm2
  EXPECT_EQ(Values(TextFrom(orv3_check_butt, Joined(heavy).c_str())).at("pass"), "0");
}

TEST(CChecks, AreByTheEditionThatIsAskedFor) {
  const auto answer = [](const char16_t* kind, const char16_t* code, const CText16& input) {
    return Values(TextFrom([&](orv3_char* text, int size) {
      return orv3_check(kind, code, input.c_str(), text, size);
    }));
  };
  const CText16 bolts = Joined(kBolts);
  auto later = answer(u"bolt", u"", bolts);
  EXPECT_EQ(later["code"], "2017");
  EXPECT_NEAR(std::stod(later["Nvb"]), 0.9 * 2 * 0.45 * 155, 1e-9);  // 11.4.2
  EXPECT_EQ(later["f"], "305");
  auto earlier = answer(u"bolt", nullptr, bolts + u"\ncode=2003");
  EXPECT_EQ(earlier["code"], "2003");
  EXPECT_NEAR(std::stod(earlier["Nvb"]), 0.9 * 2 * 0.5 * 155, 1e-9);
  // Two side welds of 6 mm: 100 kN along them on 2 x 0.7 x 6 x 200.
  auto group = answer(u"weld-group", u"2017",
                      u"welds=0;0;200;0;6;0;100;200;100;6\nsteel=Q235\nN=0\nVx=100\nVy=0\nM=0\n"
                      u"T=0\nx=100\ny=50");
  EXPECT_NEAR(std::stod(group["tau"]), 100e3 / 1680, 1e-9);
  EXPECT_EQ(orv3_check(u"rivet", u"", bolts.c_str(), nullptr, 0), -1);
  EXPECT_EQ(orv3_check(u"bolt", u"1999", bolts.c_str(), nullptr, 0), -1);
}

TEST(CChecks, RefuseAnInputWithoutOneOfItsKeys) {
  const struct {
    int(ORV3_CALL* check)(const orv3_char*, orv3_char*, int);
    const std::vector<CText16>& lines;
  } checks[] = {{orv3_check_bolt, kBolts}, {orv3_check_fillet, kFillet}, {orv3_check_butt, kButt}};
  for (const auto& [check, lines] : checks) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_EQ(check(Joined(lines, i).c_str(), nullptr, 0), -1) << Utf8(lines[i]);
      const std::string key = Utf8(lines[i].substr(0, lines[i].find(u'=')));
      // Without its leg a fillet weld lacks a throat of any kind.
      EXPECT_EQ(LastError().substr(0, LastError().find(':')), key == "hf" ? "he" : key);
    }
  }
}

TEST(CChecks, RefuseByKeyWhatIsNoValue) {
  const struct {
    const char16_t* line;
    const char* named;
  } cases[] = {{u"steel=Q235B", "steel: "},
               {u"t=ten", "t: "},
               {u"cols=2.5", "cols: "},
               {u"rowSpace=70;x", "rowSpace: "},
               {u"N=1,5", "N: "},
               {u"colspace=80", "colspace: "},
               {u"pitch", "\"pitch\" has no \"=\""},
               {u"grade=", "grade: is missing"}};
  for (const auto& c : cases) {
    const CText16 line = c.line;
    const CText16 key = line.substr(0, line.find(u'=') + 1);
    auto lines = kBolts;
    std::erase_if(lines,
                  [&](const CText16& each) { return !key.empty() && each.starts_with(key); });
    lines.push_back(line);
    EXPECT_EQ(orv3_check_bolt(Joined(lines).c_str(), nullptr, 0), -1) << c.named;
    EXPECT_NE(LastError().find(c.named), std::string::npos) << c.named << " / " << LastError();
  }
  auto twice = kBolts;
  twice.push_back(u"d=24");
  EXPECT_EQ(orv3_check_bolt(Joined(twice).c_str(), nullptr, 0), -1);
  EXPECT_NE(LastError().find("d: stands twice"), std::string::npos);
}

// --- Members -------------------------------------------------------------------------------------

CText16 Member(const char16_t* code, const CText16& input) {
  return TextFrom([&](orv3_char* text, int size) {
    return orv3_check_member(code, input.c_str(), text, size);
  });
}

const CText16 kColumn =
    u"section.style=h\nsection.sizes=300;400;20;10\nsteel=Q345\nN=-800\nMx=150000\nload=uniform\n"
    u"lengths.x=6000\nlengths.y=3000\nVy=100\nsway=0\n";

TEST(CMembers, AreCheckedByEitherEdition) {
  auto later = Values(Member(nullptr, kColumn));
  EXPECT_EQ(later["code"], "2017");
  EXPECT_EQ(later["pass"], "1");
  EXPECT_EQ(later["f"], "295");
  // 800e3/(15600 295) + 150e6/(1.05 2362400 295)
  EXPECT_NEAR(std::stod(later["strength"]), 0.37882, 1e-5);
  EXPECT_EQ(later["ratio"], later[later["governs"]]);
  auto earlier = Values(Member(u"", kColumn + u"code=2003"));
  EXPECT_EQ(earlier["code"], "2003");
  EXPECT_EQ(earlier["betamx"], "1");
}

TEST(CMembers, TakeTheWorstOfTheirCombinations) {
  const CText16 member =
      u"section.style=h\nsection.sizes=300;400;20;10\nsteel=Q345\nlengths.x=6000\nlengths.y=3000\n";
  const CText16 heavy = u"id=heavy\nN=-1500\n", bent = u"id=bent\nN=-300\nMx=400000\n";
  auto both = Values(Member(u"2017", member + u"\n" + heavy + u"\n" + bent));
  EXPECT_EQ(both["strength"], Values(Member(u"2017", member + bent))["strength"]);
  EXPECT_EQ(both["strength.case"], "bent");
  EXPECT_EQ(both["stability-z"], Values(Member(u"2017", member + heavy))["stability-z"]);
  EXPECT_EQ(both["stability-z.case"], "heavy");
  EXPECT_EQ(both["case"], both[both["governs"] + ".case"]);
  EXPECT_EQ(orv3_check_member(nullptr, (member + u"N=1\n\nN=2").c_str(), nullptr, 0), -1);
  EXPECT_NE(LastError().find("N: stands beside"), std::string::npos) << LastError();
}

TEST(CMembers, AreRefusedByKey) {
  const struct {
    CText16 input;
    const char* named;
  } cases[] = {{kColumn + u"net.A=1.2", "net.A: "},
               {kColumn + u"sway=2", "sway: stands twice"},
               {kColumn + u"dynamic=2", "dynamic: "},
               {kColumn + u"length=3", "length: is no key"},
               {kColumn + u"Mqx=3", "Mqx: "},
               {kColumn + u"code=1999", "2003, 2017"},
               {u"steel=Q235\nN=3", "section: is missing"}};
  for (const auto& c : cases) {
    EXPECT_EQ(orv3_check_member(nullptr, c.input.c_str(), nullptr, 0), -1) << c.named;
    EXPECT_NE(LastError().find(c.named), std::string::npos) << c.named << " / " << LastError();
  }
}

// The first row that is chosen is told as it is by itself; which rows pass, the tests of members
// tell.
TEST(CMembers, TheLightestPass) {
  ASSERT_EQ(orv3_open_data(Utf16(orv3::FromUtf8(ORV3CAL_CATALOGUE)).c_str()), 0) << LastError();
  const CText16 up = u"steel=Q235\nlengths.x=2000\nlengths.y=2000\nN=150\nid=up";
  const CText16 both =
      u"steel=Q235\nlengths.x=2000\nlengths.y=2000\nN=-60\nid=down\n \n" + up + u"\n\n";
  const auto choose = [&](const CText16& tables, const CText16& input, int top) {
    return TextFrom([&](orv3_char* text, int size) {
      return orv3_choose(tables.c_str(), u"2017", input.c_str(), top, text, size);
    });
  };
  const CText16 table = u"热轧等边角钢";
  auto first = Values(choose(table, both, 1));
  const std::string row = first["row"];  // table;number;weight;ratio;check;case
  const std::string number =
      row.substr(row.find(';') + 1, row.find(';', row.find(';') + 1) - row.find(';') - 1);
  auto alone = Values(Member(u"2017", up + u"\nsection.table=" + table + u"\nsection.no=" +
                                          Utf16(orv3::FromUtf8(number))));
  EXPECT_EQ(alone["pass"], "1") << row;
  EXPECT_NE(row.find(";" + alone["ratio"] + ";"), std::string::npos) << row;
  EXPECT_TRUE(row.ends_with(";up")) << row;
  EXPECT_GT(std::stoi(first["passing"]), 10);
  // A style's ranges, and what was assumed of what they found.
  const CText16 styles = choose(u"h b=200:300:50 h=300 tf=12 tw=8",
                                u"steel=Q345\nN=-300\nlengths.x=3000\nlengths.y=3000", 1);
  EXPECT_NE(styles.find(u"\nrow=h;200 300 12 8;"), CText16::npos);
  EXPECT_NE(styles.find(u"\nwarning=h;200 300 12 8;edges;"), CText16::npos);
  EXPECT_EQ(orv3_choose(u"h b=200:300 h=300 tf=12 tw=8", nullptr, up.c_str(), 0, nullptr, 0), -1);
  EXPECT_NE(LastError().find("b is not possible"), std::string::npos) << LastError();
  EXPECT_EQ(orv3_choose(u"热轧", nullptr, both.c_str(), 0, nullptr, 0), -1);
  EXPECT_NE(LastError().find("no rows of \"热轧\""), std::string::npos) << LastError();
  EXPECT_EQ(orv3_choose(table.c_str(), nullptr, kColumn.c_str(), 0, nullptr, 0), -1);
  EXPECT_NE(LastError().find("section.style: is what is chosen"), std::string::npos);
}

// --- Figures of the code -------------------------------------------------------------------------

// Tables 3.4.1-1 and 3.4.1-3 through every door: a limit belongs to the thinner group.
TEST(CCode, OneThicknessTableThroughEveryDoor) {
  const struct {
    const char16_t* steel;
    double upTo[4];
    int f[4], fv[4];
  } grades[] = {{u"Q235", {16, 40, 60, 100}, {215, 205, 200, 190}, {125, 120, 115, 110}},
                {u"Q345", {16, 35, 50, 100}, {310, 295, 265, 250}, {180, 170, 155, 145}},
                {u"Q390", {16, 35, 50, 100}, {350, 335, 315, 295}, {205, 190, 180, 170}},
                {u"Q420", {16, 35, 50, 100}, {380, 360, 340, 325}, {220, 210, 195, 185}}};
  for (int grade = 0; grade < 4; ++grade) {
    const auto& g = grades[grade];
    for (int step = 0; step < 4; ++step) {
      for (const double t : {g.upTo[step], step == 0 ? 3 : g.upTo[step - 1] + 0.01}) {
        SCOPED_TRACE(Utf8(g.steel) + " " + std::to_string(t));
        int whole = 0;
        EXPECT_TRUE(CTableSearch::SearchSub1(grade, t, SUB1_F, whole));
        EXPECT_EQ(whole, g.f[step]);
        const int group = orv3::ThicknessGroup(grade, t);
        EXPECT_TRUE(CTableSearch::SearchSub2(grade, group, SUB2_FVW, whole));
        EXPECT_EQ(whole, g.fv[step]);
        double value = 0;
        EXPECT_EQ(orv3_steel_strength(g.steel, t, u"f", &value), 0) << LastError();
        EXPECT_EQ(value, g.f[step]);
        EXPECT_EQ(orv3_weld_strength(g.steel, t, u"fvw", &value), 0) << LastError();
        EXPECT_EQ(value, g.fv[step]);
        NormalBoltData plate;
        plate.m_nSteel = grade;
        plate.m_dThick = t;
        plate.CalGangCaiQD();
        EXPECT_DOUBLE_EQ(plate.m_dF, g.f[step] / 1000.0);
        WQWeldingData weld;
        weld.m_nSteel = grade;
        weld.m_dT = t;
        weld.CalWeldQD();
        EXPECT_DOUBLE_EQ(weld.m_dFcw, g.f[step] / 1000.0);
        EXPECT_DOUBLE_EQ(weld.m_dFvw, g.fv[step] / 1000.0);
      }
    }
    double value = 0;
    int whole = 0;
    for (const double t : {100.01, std::nan("")}) {
      EXPECT_FALSE(CTableSearch::SearchSub1(grade, t, SUB1_F, whole));
      EXPECT_EQ(orv3_steel_strength(g.steel, t, u"f", &value), -1);
      EXPECT_EQ(orv3_weld_strength(g.steel, t, u"fcw", &value), -1);
    }
  }
}

TEST(CCode, AnswersByEdition) {
  double f = 0, weld = 0, bolt = 0, mu = 0, k = 0, P = 0;
  ASSERT_EQ(orv3_code_steel(u"2017", u"Q345GJ", u"plate", 50, u"fy", &f), 0) << LastError();
  ASSERT_EQ(orv3_code_weld(u"2017", u"Q460", 20, u"ffw", u"E60", &weld), 0) << LastError();
  ASSERT_EQ(orv3_code_bolt(u"2017", u"AB", u"Q460", u"fc", &bolt), 0) << LastError();
  ASSERT_EQ(orv3_code_slip(u"2017", 1, u"Q345", &mu), 0) << LastError();
  ASSERT_EQ(orv3_code_hole(u"2017", u"slot-along", &k), 0) << LastError();
  ASSERT_EQ(orv3_code_preload(u"2017", u"8.8", 30, &P), 0) << LastError();
  EXPECT_EQ(f, 345);
  EXPECT_EQ(weld, 240);
  EXPECT_EQ(bolt, 595);
  EXPECT_EQ(mu, 0.4);
  EXPECT_EQ(k, 0.6);
  EXPECT_EQ(P, 280);
  ASSERT_EQ(orv3_code_slip(u"2003", 2, u"Q345", &mu), 0) << LastError();
  ASSERT_EQ(orv3_code_weld(u"2003", u"Q390", 20, u"ffw", nullptr, &weld), 0) << LastError();
  EXPECT_EQ(mu, 0.5);
  EXPECT_EQ(weld, 220);
  EXPECT_EQ(orv3_code_steel(u"2003", u"Q460", u"plate", 10, u"f", &f), -1);
  EXPECT_NE(LastError().find("GB 50017-2003 has no Q460"), std::string::npos) << LastError();
  EXPECT_EQ(orv3_code_slip(u"2010", 0, u"Q345", &mu), -1);
  EXPECT_NE(LastError().find("2003, 2017"), std::string::npos) << LastError();
  EXPECT_EQ(orv3_code_hole(nullptr, u"standard", &k), -1);
}

TEST(CCode, GivesStabilityFactors) {
  double value = 0;
  ASSERT_EQ(orv3_phi(100, 235, u"c", &value), 0) << LastError();
  EXPECT_NEAR(value, 0.463, 0.0005);  // Table C-3
  for (const double wrong : {-1.0, 1e300, std::nan("")})
    EXPECT_EQ(orv3_phi(wrong, 235, u"a", &value), -1) << wrong;
  for (const double wrong : {-235.0, 0.0, 0.235, 1e300, std::nan("")})
    EXPECT_EQ(orv3_phi(100, wrong, u"a", &value), -1) << wrong;
  EXPECT_EQ(orv3_phi(100, 235, u"e", &value), -1);
}

// --- Catalogue -----------------------------------------------------------------------------------

class CCatalogue : public testing::Test {
 protected:
  CCatalogue() {
    EXPECT_EQ(orv3_open_data(Utf16(orv3::FromUtf8(ORV3CAL_CATALOGUE)).c_str()), 0) << LastError();
  }
};

TEST_F(CCatalogue, ListsWhatTheStoreHolds) {
  EXPECT_EQ(Utf8(TextFrom(orv3_list_tables, 0x03000002)),
            "冷弯薄壁方钢管\n自定义对称箱形截面\n自定义非对称箱形截面");
  EXPECT_EQ(Utf8(TextFrom(orv3_list_tables, 0x01000002)), "冷弯薄壁方钢管");
  EXPECT_EQ(orv3_list_tables(0, nullptr, 0), 0);
  EXPECT_EQ(Lines(TextFrom(orv3_list_columns, u"冷弯薄壁方钢管"))[1], "h(mm)");
  EXPECT_EQ(Lines(TextFrom(orv3_list_numbers, u"热轧普通工字钢")).size(), 34U);
}

TEST_F(CCatalogue, GivesCellsAndGeometry) {
  const char16_t* const table = u"热轧普通工字钢";
  EXPECT_EQ(Utf8(TextFrom(orv3_cell, table, u"I20a", u"A(cm^2)")), "35.578");
  double value = 0;
  EXPECT_EQ(orv3_cell_value(table, u"I20a", u"h(mm)", &value), 0);
  EXPECT_EQ(value, 200);
  EXPECT_EQ(orv3_cell_value(table, u"I20a", u"No.", &value), -1);

  double g[ORV3_GEOMETRY] = {};
  ASSERT_EQ(orv3_geometry(table, u"I20a", 0, g, ORV3_GEOMETRY), ORV3_GEOMETRY) << LastError();
  EXPECT_NEAR(g[ORV3_GEO_AREA], 3557.8, 1e-9);
  const char16_t* const own = u"自定义对称H型钢";
  ASSERT_EQ(orv3_geometry(own, u"H400X300", 0, g, ORV3_GEOMETRY), ORV3_GEOMETRY) << LastError();
  EXPECT_EQ(g[ORV3_GEO_WIDTH], 300);
  EXPECT_EQ(g[ORV3_GEO_HEIGHT], 400);
  EXPECT_EQ(g[ORV3_GEO_TMAX], 10);
  EXPECT_EQ(g[ORV3_GEO_SYMX], 1);
  EXPECT_NEAR(g[ORV3_GEO_IX], 273.927e6, 500);  // six digits in the row
  const double Ix = g[ORV3_GEO_IX];
  for (const double turn : {90.0, -90.0, 450.0, 270.00005}) {
    ASSERT_EQ(orv3_geometry(own, u"H400X300", turn, g, ORV3_GEOMETRY), ORV3_GEOMETRY) << turn;
    EXPECT_EQ(g[ORV3_GEO_WIDTH], 400) << turn;
    EXPECT_EQ(g[ORV3_GEO_IY], Ix) << turn;
  }
  for (const double turn : {45.0, -0.001, 1e-3, HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(orv3_geometry(own, u"H400X300", turn, g, ORV3_GEOMETRY), -1) << turn;
    EXPECT_EQ(LastError().find("turn: "), 0U) << LastError();
  }
}

TEST_F(CCatalogue, PairsStandApartByTheSpacingThatIsGiven) {
  const char16_t *const pairs = u"热轧等边角钢组合", *const pair = u"2L100X10";
  double g[ORV3_GEOMETRY] = {};
  for (const double spacing : {0.0, 13.0}) {
    ASSERT_EQ(orv3_pair_geometry(pairs, pair, spacing, 0, g, ORV3_GEOMETRY), ORV3_GEOMETRY)
        << LastError();
    EXPECT_EQ(g[ORV3_GEO_WIDTH], 200 + spacing);
  }
  for (const double spacing : {-1.0, 2.5, 1e300, std::nan("")}) {
    EXPECT_EQ(orv3_pair_geometry(pairs, pair, spacing, 0, g, ORV3_GEOMETRY), -1);
    EXPECT_EQ(LastError().find("spacing: "), 0U) << LastError();
  }
  EXPECT_EQ(orv3_pair_geometry(u"热轧等边角钢", u"L100X10", 10, 0, g, ORV3_GEOMETRY), -1);
  EXPECT_EQ(LastError().find("table: "), 0U) << LastError();
}

TEST_F(CCatalogue, TellsWhatIsNotThere) {
  double value = 0;
  const struct {
    const char16_t *table, *number, *sign;
    const char* named;
  } cases[] = {{u"热轧中型工字钢", u"I10", u"h(mm)", "table: \"热轧中型工字钢\""},
               {u"热轧普通工字钢", u"I11", u"h(mm)", "number: \"I11\""},
               {u"热轧普通工字钢", u"I10", u"B(mm)", "sign: \"B(mm)\""}};
  for (const auto& c : cases) {
    EXPECT_EQ(orv3_cell_value(c.table, c.number, c.sign, &value), -1) << c.named;
    EXPECT_NE(LastError().find(c.named), std::string::npos) << c.named << " / " << LastError();
  }
  EXPECT_EQ(orv3_open_data(Utf16(orv3::FromUtf8(ORV3CAL_CATALOGUE "/missing")).c_str()), -1);
  EXPECT_NE(LastError().find("missing"), std::string::npos);
  EXPECT_EQ(orv3_cell_value(u"热轧普通工字钢", u"I10", u"h(mm)", &value), 0) << "still open";
}

#ifndef _WIN32
TEST_F(CCatalogue, HasNoBrowserOutsideWindows) {
  EXPECT_EQ(orv3_browse(0x03000FFF, nullptr, 0), -1);
  EXPECT_EQ(orv3_edit_user_tables(0x03000FFF, nullptr, 0), -1);
  EXPECT_NE(LastError().find("Windows"), std::string::npos);
}
#endif

}  // namespace
