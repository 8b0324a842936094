// orv3cal code: one figure of the design code's tables, with its unit and its source.

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/code_tables/stepped_column_equation.h"
#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "commands.h"
#include "connections/cases/case_rules.h"
#include "error.h"
#include "framework/excerpt.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "output.h"

namespace orv3::cli {
namespace {

using CArguments = std::vector<std::string>;

struct CFigure {
  std::variant<double, std::string> m_value;  // an infinity where the code prints one
  const char* m_szUnit;
  const char* m_szSource;
  std::string m_strNote = {};  // what to know before relying on it
};

[[noreturn]] void RefuseArgument(const std::string& name, const std::string& text,
                                 const std::string& right) {
  Refuse(name + ": \"" + Excerpt(text) + "\" is not possible; give " + right);
}

double Number(const CArguments& arguments, std::size_t at, const char* name, const char* right) {
  const CString text = FromUtf8(arguments[at]);
  if (!IsNumber(text) || ToDouble(text) < 0) RefuseArgument(name, arguments[at], right);
  return ToDouble(text);
}

// The position of an argument among the words that it may be.
template <std::size_t COUNT>
int Choice(const CArguments& arguments, std::size_t at, const char* name,
           const char* const (&words)[COUNT]) {
  std::string right = "one of";
  for (std::size_t i = 0; i < COUNT; ++i) {
    if (arguments[at] == words[i]) return static_cast<int>(i);
    right += std::string(i == 0 ? " " : ", ") + words[i];
  }
  RefuseArgument(name, arguments[at], right);
}

// The same for numbers.
template <class NUMBER, std::size_t COUNT>
int Choice(const CArguments& arguments, std::size_t at, const char* name,
           const NUMBER (&numbers)[COUNT]) {
  std::string right = "one of";
  for (std::size_t i = 0; i < COUNT; ++i) right += (i == 0 ? " " : ", ") + NumberText(numbers[i]);
  const double number = Number(arguments, at, name, right.c_str());
  const auto* found = std::find(std::begin(numbers), std::end(numbers), number);
  if (found == std::end(numbers)) RefuseArgument(name, arguments[at], right);
  return static_cast<int>(found - std::begin(numbers));
}

// `meanings` tells what the numbers stand for.
int Whole(const CArguments& arguments, std::size_t at, const char* name, int first, int last,
          const std::string& meanings = "") {
  const std::string right = "a whole number from " + std::to_string(first) + " to " +
                            std::to_string(last) + (meanings.empty() ? "" : ": " + meanings);
  const double number = Number(arguments, at, name, right.c_str());
  if (number != std::floor(number) || number < first || number > last)
    RefuseArgument(name, arguments[at], right);
  return static_cast<int>(number);
}

// What a look-up found, or a refusal that names the argument it does not have.
void Found(bool bFound, const CArguments& arguments, std::size_t at, const char* name,
           const char* right) {
  if (!bFound) RefuseArgument(name, arguments[at], right);
}

constexpr const char* kStress = "N/mm²";
constexpr const char* kThickness = "a thickness above 0 and up to 100 mm";
constexpr const char* kRatio = "a number not below 0";
constexpr const char* kAxes[] = {"x", "y"};

// The numbers of the section kinds run through the pictures of the table, row by row.
constexpr const char* kGammaKinds =
    "0 to 4 I and H sections (item 1 of the table: 1.05 and 1.2), 5 to 10 boxes and what is bent "
    "as "
    "they are (item 2: 1.05 and 1.05), 11 and 12 T sections (item 3: x 1.05 at the flange, 1.2 at "
    "the tip of the web; y 1.2), 13 and 14 the same with y 1.05 (item 4), 15 to 17 solid bars "
    "(item "
    "5: 1.2 and 1.2), 18 the circular tube (item 6: 1.15), 19 and 20 lattices, x the axis that "
    "cuts "
    "no limb (item 7: 1.0 and 1.05), 21 and 22 lattices whose axes both cut no limb (item 8: 1.0 "
    "and 1.0)";
constexpr const char* kClassKinds =
    "1 the rolled tube (class a), 2 the rolled I of width over height up to 0.8 (x a, y b), 3 to "
    "25 "
    "what the table has as b about both axes (other rolled I and H, flame-cut welded I, rolled "
    "channels, angles and tees, welded tubes, boxes of width over thickness above 20, lattices), "
    "26 "
    "to 28 welded I and tees whose flanges are rolled or sheared (x b, y c), 29 and 30 welded "
    "sections of rolled or sheared plates and boxes of width over thickness up to 20 (c)";
constexpr const char* kThickRows =
    "1 rolled I or H, t below 80 mm; 2 the same, 80 mm and more; 3 welded I, flanges flame-cut; 4 "
    "welded I, flanges rolled or sheared; 5 welded box, width over thickness above 20; 6 the same, "
    "up to 20";

constexpr const char* kSurfaces =
    "0 sand- or shot-blasted, 1 the same with inorganic zinc-rich paint, 2 the same and rusted "
    "red, "
    "3 loose rust brushed off with a wire brush, 4 clean rolled surface without treatment";

CFigure Steel(const CArguments& a) {
  static constexpr const char* kKinds[] = {"f", "fv", "fce"};
  const int kind = a.size() > 2 ? Choice(a, 2, "STRENGTH", kKinds) : 0;
  const double t = Number(a, 1, "T", kThickness);
  int strength = 0;
  Found(t > 0 && CTableSearch::SearchSub1(Choice(a, 0, "GRADE", kSteels), t, kind, strength), a, 1,
        "T", kThickness);
  return {strength + 0.0, kStress, "GB 50017-2003, Table 3.4.1-1"};
}

CFigure Weld(const CArguments& a) {
  static constexpr const char* kKinds[] = {"fcw", "ftw12", "ftw3", "fvw", "ffw"};
  const int grade = Choice(a, 0, "GRADE", kSteels);
  const double t = Number(a, 1, "T", kThickness);
  const int group = ThicknessGroup(grade, t);
  Found(t > 0 && group >= 0, a, 1, "T", kThickness);
  int strength = 0;
  CTableSearch::SearchSub2(grade, group, Choice(a, 2, "STRENGTH", kKinds), strength);
  return {strength + 0.0, kStress, "GB 50017-2003, Table 3.4.1-3"};
}

CFigure Bolt(const CArguments& a) {
  static constexpr const char* kKinds[] = {"C", "AB", "anchor", "bearing"};
  static constexpr const char* kGrades[] = {"4.6",  "5.6",  "8.8",  "10.9", "Q235",
                                            "Q345", "Q390", "Q420", "4.8"};
  static constexpr const char* kStrengths[] = {"ft", "fv", "fc"};
  static constexpr int kFirstColumn[] = {0, 3, 6, 7};
  static constexpr int kFamily[] = {SUB3_ORDINARY, SUB3_ORDINARY, SUB3_ANCHOR, SUB3_BEARING};
  const int kind = Choice(a, 0, "KIND", kKinds);
  const int grade = Choice(a, 1, "GRADE", kGrades) % 8;
  const int part = Choice(a, 2, "STRENGTH", kStrengths);
  const int column = kFirstColumn[kind] + part;
  const bool bAnchor = kind == 2;
  int strength = 0;
  const bool bFound =
      !(bAnchor && part > 0) &&
      CTableSearch::SearchSub3(part == 2 ? static_cast<int>(SUB3_MEMBER) : kFamily[kind], grade,
                               column, strength) &&
      strength > 0;
  Found(bFound, a, 1, "GRADE",
        "4.6, 4.8 with C; 5.6, 8.8 with AB; 8.8, 10.9 with bearing; Q235, Q345 with anchor ft; a "
        "steel with fc");
  return {strength + 0.0, kStress, "GB 50017-2003, Table 3.4.1-4"};
}

CFigure Preload(const CArguments& a) {
  static constexpr const char* kGrades[] = {"8.8", "10.9"};
  static constexpr int kDiameters[] = {16, 20, 22, 24, 27, 30};
  double preload = 0;
  CTableSearch::SearchSub9(Choice(a, 0, "GRADE", kGrades), Choice(a, 1, "D", kDiameters), preload);
  return {preload, "kN", "GB 50017-2003, Table 7.2.2-2"};
}

CFigure Slip(const CArguments& a) {
  static constexpr int kColumn[] = {0, 1, 1, 2};  // Q235; Q345 and Q390; Q420
  const int surface = std::min(Whole(a, 0, "SURFACE", 0, 4, kSurfaces), 3);  // 3 and 4 share a row
  double factor = 0;
  CTableSearch::SearchSub8(surface, kColumn[Choice(a, 1, "GRADE", kSteels)], factor);
  return {factor, "", "GB 50017-2003, Table 7.2.2-1"};
}

CFigure Area(const CArguments& a) {
  static constexpr const char* kKinds[] = {"gross", "effective"};
  double area = 0;
  CTableSearch::SearchSub23(Choice(a, 0, "D", CTableSearch::g_sub23_1),
                            a.size() > 1 ? Choice(a, 1, "KIND", kKinds) : 1, area);
  return {area, "cm²", "stress areas of coarse metric threads"};
}

CFigure Slender(const CArguments& a) {
  static constexpr const char* kCases[] = {"upper", "lower", "braced"};
  double ratio = 0;
  CTableSearch::SearchSub4(Choice(a, 0, "GRADE", kSteels), Choice(a, 1, "CASE", kCases), ratio);
  return {ratio, "", "GB 50017-2003, Table 4.2.1"};
}

CFigure Phi(const CArguments& a) {
  static constexpr const char* kClasses[] = {"a", "b", "c", "d"};
  static constexpr const char* kSlenderness = "a slenderness of 0 to 1000";
  static constexpr const char* kYield = "a yield strength of 100 to 1000 N/mm²";
  const double lambda = Number(a, 0, "LAMBDA", kSlenderness);
  const double fy = Number(a, 1, "FY", kYield);
  double phi = 0;
  Found(lambda >= 0 && lambda <= 1000, a, 0, "LAMBDA", kSlenderness);
  Found(fy >= 100 && fy <= 1000, a, 1, "FY", kYield);
  CTableSearch::SearchSub12(lambda, fy, Choice(a, 2, "CLASS", kClasses), phi);
  return {phi, "", "GB 50017-2003, Appendix C"};
}

CFigure PhiB(const CArguments& a) {
  static constexpr const char* kCases[] = {"concentrated-upper", "concentrated-lower",
                                           "uniform-upper", "uniform-lower", "braced"};
  const double number = Number(a, 1, "I-NUMBER", "an I number, 10 to 63");
  const double length = Number(a, 2, "LENGTH", "a free length of 2 to 10 m");
  double phi = 0;
  Found(length >= 2 && length <= 10, a, 2, "LENGTH", "a free length of 2 to 10 m");
  Found(CTableSearch::SearchSub11_1(Choice(a, 0, "CASE", kCases) + 1, number, length, phi), a, 1,
        "I-NUMBER", "an I number of the table, 10 to 63");
  // The figures are those of Q235; above 0.6 the beam is no longer elastic.
  if (phi <= 0.6) return {phi, "", "GB 50017-2003, Table B.2", "for Q235; × 235/fy for others"};
  return {std::min(1.0, 1.07 - 0.282 / phi), "", "GB 50017-2003, Table B.2 with (B.1-2)",
          "for Q235; the table's φb = " + NumberText(phi) +
              " is above 0.6, so φb' = 1.07 − 0.282/φb, at most 1, takes its place; other steels: "
              "φb × 235/fy before that"};
}

CFigure Mu(const CArguments& a) {
  static constexpr const char* kFrames[] = {"nosway", "sway"};
  const double k1 = Number(a, 1, "K1", kRatio);
  const double k2 = Number(a, 2, "K2", kRatio);
  double mu = 0;
  if (Choice(a, 0, "FRAME", kFrames) == 0) {
    CTableSearch::SearchSub16(k1, k2, mu);
    return {mu, "", "GB 50017-2003, Table D-1"};
  }
  CTableSearch::SearchSub17(k1, k2, mu);
  // The table's first cell is infinite, and so is every value between it and its neighbours.
  if (k1 < 0.05 && k2 < 0.05) mu = HUGE_VAL;
  return {mu, "", "GB 50017-2003, Table D-2"};
}

constexpr const char* kTops[] = {"free", "sliding"};

// Within the tables their figures; elsewhere, where they have none, the equation under them.
CFigure MuStep(const CArguments& a) {
  constexpr double kLargest = 1000;
  constexpr const char* kRange = "a number above 0 and up to 1000";
  const bool bFree = Choice(a, 0, "TOP", kTops) == 0;
  const double eta1 = Number(a, 1, "ETA1", kRange);
  const double k1 = Number(a, 2, "K1", kRange);
  Found(eta1 > 0 && eta1 <= kLargest, a, 1, "ETA1", kRange);
  Found(k1 > 0 && k1 <= kLargest, a, 2, "K1", kRange);
  const char* table = bFree ? "GB 50017-2003, Table D-3" : "GB 50017-2003, Table D-4";
  if (!IsWithinSingleStepped(eta1, k1)) {
    return {SingleSteppedMu(bFree ? CSteppedTop::Free : CSteppedTop::Sliding, eta1, k1), "", table,
            "by the equation under the table, whose figures are for η1 0.2 to 3.0 and K1 0.06 to "
            "0.8"};
  }
  double mu = 0;
  if (bFree) {
    CTableSearch::SearchSub18(eta1, k1, mu);
  } else {
    CTableSearch::SearchSub19(eta1, k1, mu);
  }
  return {mu, "", table};
}

CFigure MuStep2(const CArguments& a) {
  const bool bFree = Choice(a, 0, "TOP", kTops) == 0;
  double v[4] = {};
  static constexpr const char* kNames[] = {"ETA1", "ETA2", "K1", "K2"};
  for (std::size_t i = 0; i < 4; ++i) v[i] = Number(a, i + 1, kNames[i], kRatio);
  double mu = 0;
  const bool bFound = bFree ? CTableSearch::SearchSub20(v[0], v[1], v[2], v[3], mu)
                            : CTableSearch::SearchSub21(v[0], v[1], v[2], v[3], mu);
  Found(bFound, a, 1, "ETA1 ETA2 K1 K2",
        "ETA1 0.2 to 1.8, ETA2 0.2 to 1.2, K1 0.05 to 0.3 and K2 0.2 to 1.2");
  return {mu, "", bFree ? "GB 50017-2003, Table D-5" : "GB 50017-2003, Table D-6"};
}

// The table prints no rule between its figures, so that an argument must be one of them.
CFigure MuTaper(const CArguments& a) {
  static constexpr double kStiffness[] = {0.1, 0.2, 0.3, 0.5, 0.75, 1, 2, 10};  // 10 and above
  CArguments capped = a;
  if (Number(a, 1, "K2/K1", kRatio) > 10) capped[1] = "10";
  double mu = 0;
  CTableSearch::SearchSub22(Choice(a, 0, "IC0/IC1", CTableSearch::g_sub22_1),
                            Choice(capped, 1, "K2/K1", kStiffness), mu);
  return {mu, "", "CECS 102:2002, Table 6.1.3"};
}

CFigure BucklingClass(const CArguments& a) {
  CString name;
  CTableSearch::SearchSub5(Whole(a, 0, "KIND", 1, 30, kClassKinds), Choice(a, 1, "AXIS", kAxes),
                           name);
  return {ToUtf8(name), "", "GB 50017-2003, Table 5.1.2-1"};
}

CFigure ThickClass(const CArguments& a) {
  CString name;
  CTableSearch::SearchSub5S2(Whole(a, 0, "ROW", 1, 6, kThickRows), Choice(a, 1, "AXIS", kAxes),
                             name);
  return {ToUtf8(name.Left(1)), "", "GB 50017-2003, Table 5.1.2-2"};
}

CFigure Gamma(const CArguments& a) {
  const int kind = Whole(a, 0, "KIND", 0, 22, kGammaKinds);
  const int axis = Choice(a, 1, "AXIS", kAxes);
  double gamma = 0;
  CTableSearch::SearchSub6(kind, axis, gamma);
  CFigure figure{gamma, "", "GB 50017-2003, Table 5.2.1"};
  if (kind >= 21) figure.m_value = 1.0;  // item 8 has 1.0 about both axes
  if (axis == 0 && kind >= 11 && kind <= 14)
    figure.m_strNote = "at the flange; 1.2 at the web's tip";
  return figure;
}

CFigure Fatigue(const CArguments& a) {
  static constexpr const char* kParameters[] = {"C", "beta"};
  const int row = Choice(a, 1, "PARAMETER", kParameters);
  double value = 0;
  CTableSearch::SearchSub7(row, Whole(a, 0, "CATEGORY", 1, 8) - 1, value);
  return {value, row == 0 ? "×10¹²" : "", "GB 50017-2003, Table 6.2.1-1"};
}

// One question: its arguments, how many of them may be left out, and who answers it.
struct CQuestion {
  const char* m_szName;
  const char* m_szArguments;
  int m_nArguments;
  int m_nOptional;
  const char* m_szHelp;
  CFigure (*m_pAnswer)(const CArguments&);
  const char* m_szMeanings = "";  // of the numbers that an argument takes
};

constexpr CQuestion kQuestions[] = {
    {"steel", "GRADE T [f|fv|fce]", 3, 1, "Strength of steel by grade and thickness in mm", Steel},
    {"weld", "GRADE T fcw|ftw12|ftw3|fvw|ffw", 3, 0, "Strength of welds", Weld},
    {"bolt", "C|AB|anchor|bearing GRADE ft|fv|fc", 3, 0,
     "Strength of bolts; fc takes the steel of the plate for GRADE", Bolt},
    {"preload", "8.8|10.9 D", 2, 0, "Preload of one high-strength bolt of D mm", Preload},
    {"slip", "SURFACE GRADE", 2, 0, "Slip factor by surface treatment 0 to 4 and steel", Slip,
     kSurfaces},
    {"area", "D [gross|effective]", 2, 1, "Area of a bolt of D mm", Area},
    {"slender", "GRADE upper|lower|braced", 2, 0,
     "Largest l1/b1 of an I beam that needs no check of overall stability", Slender},
    {"phi", "LAMBDA FY a|b|c|d", 3, 0, "Stability factor of an axially compressed member", Phi},
    {"phib", "CASE I-NUMBER LENGTH", 3, 0,
     "Stability factor of a rolled I beam; CASE concentrated-upper, concentrated-lower, "
     "uniform-upper, uniform-lower or braced, free LENGTH in m",
     PhiB},
    {"mu", "nosway|sway K1 K2", 3, 0, "Effective length factor of a frame column", Mu},
    {"mu-step", "free|sliding ETA1 K1", 3, 0, "The same, lower part of a single-stepped column",
     MuStep},
    {"mu-step2", "free|sliding ETA1 ETA2 K1 K2", 5, 0,
     "The same, lowest part of a double-stepped column", MuStep2},
    {"mu-taper", "IC0/IC1 K2/K1", 2, 0,
     "The same, tapered column with a pinned foot; figures of the table only", MuTaper},
    {"class", "KIND x|y", 2, 0, "Buckling class of a section kind 1 to 30", BucklingClass,
     kClassKinds},
    {"class-thick", "ROW x|y", 2, 0, "Buckling class with plates of 40 mm and more, row 1 to 6",
     ThickClass, kThickRows},
    {"gamma", "KIND x|y", 2, 0, "Plastic development factor of a section kind 0 to 22", Gamma,
     kGammaKinds},
    {"fatigue", "CATEGORY C|beta", 2, 0, "Fatigue parameters of a detail category 1 to 8", Fatigue},
};

void CheckCount(const CQuestion& question, std::size_t count) {
  const auto given = static_cast<int>(count);
  if (given <= question.m_nArguments && given >= question.m_nArguments - question.m_nOptional)
    return;
  Refuse(std::string("code ") + question.m_szName + " takes " + question.m_szArguments + "; " +
         std::to_string(given) + (given == 1 ? " argument was" : " arguments were") + " given");
}

void PrintFigure(const CFigure& figure, bool bJson) {
  const double* number = std::get_if<double>(&figure.m_value);
  if (bJson) {
    const CJson value =
        number != nullptr ? JsonNumber(*number) : CJson(std::get<std::string>(figure.m_value));
    CJson answer = {{"value", value}, {"unit", figure.m_szUnit}, {"source", figure.m_szSource}};
    if (!figure.m_strNote.empty()) answer["note"] = figure.m_strNote;
    return PrintJson(answer);
  }
  std::string text =
      number != nullptr ? NumberText(*number) : std::get<std::string>(figure.m_value);
  if (*figure.m_szUnit != 0) text += std::string(" ") + figure.m_szUnit;
  text += std::string("  (") + figure.m_szSource;
  if (!figure.m_strNote.empty()) text += "; " + figure.m_strNote;
  Print(text + ")\n");
}

}  // namespace

void AddCodeCommand(CLI::App& program) {
  struct COptions {
    CArguments arguments;
    bool json = false;
  };
  CLI::App* code = program.add_subcommand("code", "Look up a figure of the design code's tables");
  code->require_subcommand(1);
  for (const CQuestion& question : kQuestions) {
    auto options = std::make_shared<COptions>();
    CLI::App* command = code->add_subcommand(question.m_szName, question.m_szHelp);
    command->add_option("ARGUMENTS", options->arguments, question.m_szArguments);
    command->add_flag("--json", options->json, "As JSON, the number with all its digits");
    command->footer(question.m_szMeanings);
    command->callback([options, &question] {
      CheckCount(question, options->arguments.size());
      PrintFigure(question.m_pAnswer(options->arguments), options->json);
    });
  }
}

}  // namespace orv3::cli
