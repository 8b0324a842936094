// Every figure of GB 50017-2017 as its CSV file has it, and the relations between them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

#include "catalogue/csv_table_check.h"
#include "orv3cal.h"

namespace {

using namespace orv3;

constexpr CCodeEdition k2017 = CCodeEdition::Gb2017;

// The rows of a file, each by the names of its columns.
using CRow = std::map<std::string, std::string>;
std::vector<CRow> Rows(const std::string& file) {
  const auto cells = CsvRows(std::string(ORV3CAL_CODE_2017 "/") + file + ".csv");
  std::vector<CRow> rows;
  for (std::size_t i = 1; i < cells.size(); ++i) {
    rows.emplace_back();
    for (std::size_t j = 0; j < cells[0].size(); ++j)
      rows.back()[ToUtf8(cells[0][j])] = j < cells[i].size() ? ToUtf8(cells[i][j]) : "";
  }
  return rows;
}

double Cell(const CRow& row, const char* column) { return ToDouble(FromUtf8(row.at(column))); }

std::string Line(const CRow& row) {
  std::string text;
  for (const auto& [column, cell] : row) text += column + "=" + cell + " ";
  return text;
}

CSteelGrade GradeOf(const CRow& row) { return *GradeByName(k2017, row.at("grade")); }

CSteelProduct ProductOf(const CRow& row) {
  return row.at("product") == "tube" ? CSteelProduct::Tube : CSteelProduct::Plate;
}

// Just above the band, in it, and on its upper limit, which belongs to it.
std::vector<double> Thicknesses(const CRow& row) {
  const double over = Cell(row, "t_over_mm");
  const double to = Cell(row, "t_to_mm");
  return {std::nextafter(over, to), (over + to) / 2, std::nextafter(to, over), to};
}

constexpr double kBeyond = std::numeric_limits<double>::infinity();

TEST(CodeFigures2017, SteelOfEveryBandAtItsLimits) {
  static constexpr const char* kColumns[] = {"f", "fv", "fce", "fy", "fu"};
  for (const CRow& row : Rows("steel")) {
    for (const double t : Thicknesses(row)) {
      for (int i = 0; i < 5; ++i) {
        const auto answer =
            SteelStrength(k2017, GradeOf(row), t, static_cast<CSteelStrength>(i), ProductOf(row));
        ASSERT_TRUE(answer) << Line(row) << t;
        EXPECT_EQ(*answer, Cell(row, kColumns[i])) << Line(row) << t;
        const bool bDoubt = row.at("doubt") == "f fv" && i < 2;
        EXPECT_EQ(answer.Source().m_nStatus == CFigureStatus::Doubtful, bDoubt) << Line(row);
      }
    }
  }
}

TEST(CodeFigures2017, WeldsOfEveryBandAtItsLimits) {
  for (const CRow& row : Rows("welds")) {
    for (const double t : Thicknesses(row)) {
      const auto answer = ButtWeldStrengths(k2017, GradeOf(row), t);
      ASSERT_TRUE(answer) << Line(row) << t;
      EXPECT_EQ(answer->m_dFcw, Cell(row, "fcw")) << Line(row);
      EXPECT_EQ(answer->m_dFtw12, Cell(row, "ftw12")) << Line(row);
      EXPECT_EQ(answer->m_dFtw3, Cell(row, "ftw3")) << Line(row);
      EXPECT_EQ(answer->m_dFvw, Cell(row, "fvw")) << Line(row);
      EXPECT_EQ(answer.Source().m_nStatus == CFigureStatus::Doubtful, !row.at("doubt").empty());
    }
  }
  for (const CRow& row : Rows("electrodes")) {
    const CSteelGrade grade = GradeOf(row);
    const auto electrodes = ElectrodesOf(k2017, grade);
    for (const CElectrode electrode : electrodes) {
      if (row.at("electrode") != ElectrodeName(electrode)) continue;
      EXPECT_EQ(*FilletWeldStrength(k2017, grade, electrode), Cell(row, "ffw")) << Line(row);
      if (electrode != electrodes.front()) continue;
      EXPECT_EQ(*FilletWeldStrength(k2017, grade), Cell(row, "ffw")) << Line(row);
    }
  }
}

// A thickness out of the tables is refused by every grade, and 2003's Q355 and Q460 by name.
TEST(CodeFigures2017, ThicknessesOutOfTheTables) {
  for (const CSteelGrade grade : GradesOf(k2017)) {
    const double least = grade == CSteelGrade::Q345GJ ? 16 : 0;
    for (const double t : {-1.0, 0.0, least, std::nextafter(100, 101), kBeyond, std::nan("")}) {
      EXPECT_FALSE(SteelStrengths(k2017, grade, t)) << GradeName(grade) << " " << t;
      EXPECT_FALSE(SteelStrengths(k2017, grade, t, CSteelProduct::Tube)) << GradeName(grade);
      EXPECT_FALSE(ButtWeldStrengths(k2017, grade, t)) << GradeName(grade) << " " << t;
    }
  }
}

TEST(CodeFigures2017, BoltsAndHoles) {
  const std::map<std::string, CBoltKind> kinds = {{"ordinary C", CBoltKind::OrdinaryC},
                                                  {"ordinary AB", CBoltKind::OrdinaryAB},
                                                  {"bearing", CBoltKind::Bearing}};
  const std::map<std::string, CBoltGrade> grades = {{"4.6", CBoltGrade::G46},
                                                    {"4.8", CBoltGrade::G48},
                                                    {"5.6", CBoltGrade::G56},
                                                    {"8.8", CBoltGrade::G88},
                                                    {"10.9", CBoltGrade::G109}};
  for (const CRow& row : Rows("bolts")) {
    if (row.at("kind") == "anchor") {
      EXPECT_EQ(*AnchorStrength(k2017, *GradeByName(k2017, row.at("class"))), Cell(row, "ft"));
      continue;
    }
    const auto bolt = BoltStrengths(k2017, kinds.at(row.at("kind")), grades.at(row.at("class")));
    ASSERT_TRUE(bolt) << Line(row);
    EXPECT_EQ(bolt->m_dFt, Cell(row, "ft")) << Line(row);
    EXPECT_EQ(bolt->m_dFv, Cell(row, "fv")) << Line(row);
    EXPECT_EQ(bolt->m_dFu.value_or(0), Cell(row, "fu")) << Line(row);
  }
  static constexpr const char* kBearing[] = {"fc_ordinary_C", "fc_ordinary_AB", "fc_bearing_type"};
  for (const CRow& row : Rows("bearing")) {
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(*BearingStrength(k2017, static_cast<CBoltKind>(i), GradeOf(row)),
                Cell(row, kBearing[i]))
          << Line(row);
  }
  const std::vector<CRow> factors = Rows("hole-factor");
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(*HoleFactor(k2017, static_cast<CHoleKind>(i)),
              Cell(factors[static_cast<std::size_t>(i)], "k"));
  for (const CRow& row : Rows("preload")) {
    for (const int d : {16, 20, 22, 24, 27, 30})
      EXPECT_EQ(*Preload(k2017, grades.at(row.at("class")), d),
                Cell(row, ("M" + std::to_string(d)).c_str()));
  }
  for (const CRow& row : Rows("holes")) {
    const double d = Cell(row, "d");
    EXPECT_EQ(HoleSize(k2017, CHoleKind::Standard, d)->m_dWidth, Cell(row, "standard"));
    EXPECT_EQ(HoleSize(k2017, CHoleKind::Oversize, d)->m_dWidth, Cell(row, "oversize"));
    EXPECT_EQ(HoleSize(k2017, CHoleKind::SlotAlong, d)->m_dWidth, Cell(row, "standard"));
    EXPECT_EQ(HoleSize(k2017, CHoleKind::SlotAlong, d)->m_dLength, Cell(row, "slot_length"));
    EXPECT_EQ(HoleDeduction(k2017, Cell(row, "standard"), d), d + 4);
  }
}

// A surface for which the table prints "-" is refused, as is a steel that it does not name.
TEST(CodeFigures2017, SlipFactors) {
  const std::vector<CRow> rows = Rows("slip");
  for (int surface = 0; surface < 3; ++surface) {
    for (const char* name : {"Q235", "Q345", "Q390", "Q420", "Q460"}) {
      const CRow& row = rows[static_cast<std::size_t>(surface)];
      const auto mu = SlipFactor(k2017, surface, *GradeByName(k2017, name));
      EXPECT_EQ(static_cast<bool>(mu), !row.at(name).empty()) << name << surface;
      EXPECT_EQ(mu ? *mu : 0, Cell(row, name)) << name << surface;
    }
  }
}

// Resistance factors fy/f by grade, f rounded to 5 N/mm2; Q345GJ keeps the factors of its own
// table.
double ResistanceFactor(const CRow& row) {
  const std::string& grade = row.at("grade");
  if (grade == "Q235") return 1.09;
  if (grade == "Q345GJ") return Cell(row, "t_to_mm") <= 50 ? 1.059 : 1.12;
  const bool bHigh = grade == "Q420" || grade == "Q460";
  return bHigh && Cell(row, "t_over_mm") >= 40 ? 1.18 : 1.125;
}

TEST(CodeFigures2017, StrengthsFollowFromYieldAndTensileStrength) {
  for (const CRow& row : Rows("steel")) {
    const double f = Cell(row, "f");
    const bool bFollows = std::fabs(f - Cell(row, "fy") / ResistanceFactor(row)) < 5;
    EXPECT_EQ(bFollows, row.at("doubt").empty()) << Line(row);
    EXPECT_NEAR(Cell(row, "fv") / (f / std::sqrt(3)), 1, 0.025) << Line(row);
    EXPECT_NEAR(Cell(row, "fce") / Cell(row, "fu"), 0.855, 0.01) << Line(row);
    EXPECT_LE(Cell(row, "fy"), NominalYield(GradeOf(row))) << Line(row);
  }
  for (const CRow& row : Rows("welds")) {
    const auto plate = SteelStrengths(k2017, GradeOf(row), Cell(row, "t_to_mm"));
    EXPECT_EQ(Cell(row, "fcw"), Cell(row, "ftw12")) << Line(row);
    EXPECT_NEAR(Cell(row, "ftw3"), 0.85 * Cell(row, "ftw12"), 2.5) << Line(row);
    const bool bOfPlate = Cell(row, "fcw") == plate->m_dF && Cell(row, "fvw") == plate->m_dFv;
    EXPECT_EQ(bOfPlate, row.at("doubt").empty()) << Line(row);
  }
  for (const CRow& row : Rows("electrodes"))  // fillet: 0.58 of the weld metal's tensile strength
    EXPECT_NEAR(Cell(row, "fuf_fillet") / Cell(row, "fuw_butt"), 0.58, 0.006) << Line(row);
}

// The printed stress ranges follow from C and beta; both slopes meet at 5e6 cycles.
TEST(CodeFigures2017, FatigueRangesFollowFromCAndBeta) {
  for (const CRow& row : Rows("fatigue")) {
    const std::string name = row.at("category");
    const auto category = FatigueCategory(k2017, name);
    ASSERT_TRUE(category) << name;
    EXPECT_EQ(category->m_dC, Cell(row, "C")) << name;
    EXPECT_EQ(category->m_dBeta, Cell(row, "beta")) << name;
    EXPECT_NEAR(AllowableRange(*category, 2e6), Cell(row, "range_2e6"), 1) << name;
    EXPECT_NEAR(AllowableRange(*category, 1e8), Cell(row, "cut_off_1e8"), 1) << name;
    EXPECT_EQ(AllowableRange(*category, 1e9), Cell(row, "cut_off_1e8")) << name;
    if (name[0] == 'J') continue;
    EXPECT_NEAR(AllowableRange(*category, 5e6), Cell(row, "range_5e6"), 1) << name;
    EXPECT_NEAR(AllowableRange(*category, 5.0001e6), AllowableRange(*category, 5e6), 0.6) << name;
    const double C = Cell(row, "C");
    EXPECT_NEAR(AllowableRange(*category, 1e5), std::pow(C / 1e5, 1 / Cell(row, "beta")), 1e-9);
  }
}

TEST(CodeFigures2017, Q355IsReadInTheColumnOfQ345) {
  for (const double t : {16.0, 40.0, 63.0, 80.0, 100.0}) {
    const auto answer = SteelStrengths(k2017, CSteelGrade::Q355, t);
    EXPECT_EQ(answer->m_dF, SteelStrengths(k2017, CSteelGrade::Q345, t)->m_dF);
    EXPECT_EQ(answer.Source().m_nStatus, CFigureStatus::Derived);
    ASSERT_NE(answer.Source().m_pNote, nullptr);
    EXPECT_NE(std::string(answer.Source().m_pNote->m_szEnglish).find("Q345"), std::string::npos);
  }
  EXPECT_EQ(*FilletWeldStrength(k2017, CSteelGrade::Q355), 200);
  EXPECT_EQ(*BearingStrength(k2017, CBoltKind::Bearing, CSteelGrade::Q355), 590);
  EXPECT_EQ(EpsilonK(CSteelGrade::Q355), std::sqrt(235.0 / 345));
}

}  // namespace
