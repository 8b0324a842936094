#include "codes/steel_strength.h"

#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "codes/gb2017/tables.h"
#include "codes/grade_notes.h"
#include "codes/legacy_grades.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr CTextLiteral kOneTable = {"2003 版管材与板材同用一表",
                                    "the 2003 edition has one table for plates and tubes"};
constexpr CTextLiteral kDoubtedSteel = {
    "存疑：f 与 fv 不合该牌号其余各组的抗力分项系数",
    "doubtful: f and fv do not follow the resistance factor of the grade's other bands"};

CCodeAnswer<CSteelStrengths> Strengths2003(CSteelGrade grade, double t, CSteelProduct product) {
  constexpr CCodeEdition kEdition = CCodeEdition::Gb2003;
  const int row = LegacyGrade(grade);
  if (row < 0) return NotInEdition(kEdition, grade, GradesOf(kEdition));
  if (!(t > 0 && t <= kThickestPlate))
    return NotPossible("t", t, ThicknessAbove(0, kThickestPlate));
  int f = 0, fv = 0, fce = 0;
  CTableSearch::SearchSub1(row, t, SUB1_F, f);
  CTableSearch::SearchSub1(row, t, SUB1_FV, fv);
  CTableSearch::SearchSub1(row, t, SUB1_FCE, fce);
  CCodeSource source = {kEdition, {"表 3.4.1-1", "Table 3.4.1-1"}};
  if (product == CSteelProduct::Tube) source.m_pNote = &kOneTable;
  return {{f + 0.0, fv + 0.0, fce + 0.0, NominalYield(grade), {}}, source};
}

CTextLiteral SteelTable(CSteelGrade grade, CSteelProduct product) {
  if (product == CSteelProduct::Tube) return {"4.4.3 表 4.4.3", "4.4.3, Table 4.4.3"};
  if (grade == CSteelGrade::Q345GJ) return {"4.4.2 表 4.4.2", "4.4.2, Table 4.4.2"};
  return {"4.4.1 表 4.4.1", "4.4.1, Table 4.4.1"};
}

// The row of a thickness; with null the range of the grade's bands, 0 to 0 when it has none.
struct CSteelBand {
  const gb2017::CSteelRow* m_pRow = nullptr;
  double m_dOver = 0, m_dTo = 0;
};

CSteelBand FindBand(CSteelGrade grade, double t, CSteelProduct product) noexcept {
  const gb2017::CBandRange range =
      gb2017::kSteelBands[static_cast<std::size_t>(grade)][static_cast<std::size_t>(product)];
  CSteelBand band;
  for (std::size_t i = range.m_nFirst; i < range.m_nEnd; ++i) {
    const gb2017::CSteelRow& row = gb2017::kSteel[i];
    if (t > row.m_dOver && t <= row.m_dTo) band.m_pRow = &row;
  }
  if (range.m_nEnd == 0) return band;
  band.m_dOver = gb2017::kSteel[range.m_nFirst].m_dOver;
  band.m_dTo = gb2017::kSteel[range.m_nEnd - 1].m_dTo;
  return band;
}

CCodeRefusal NoBand(CSteelGrade grade, double t, const CSteelBand& band) {
  constexpr CCodeEdition kEdition = CCodeEdition::Gb2017;
  if (band.m_dTo > 0) return NotPossible("t", t, ThicknessAbove(band.m_dOver, band.m_dTo));
  const std::string name = GradeName(grade);
  return NotInEdition("grade", kEdition, {" " + name + " 管材", name + " tubes"},
                      {"请给出其一：Q235、Q345、Q355、Q390、Q420、Q460",
                       "give one of Q235, Q345, Q355, Q390, Q420, Q460"});
}

CCodeSource SourceOf(CSteelGrade grade, const gb2017::CSteelRow& row, bool bDoubtful) {
  CCodeSource source = {CCodeEdition::Gb2017, SteelTable(grade, row.m_product.m_nProduct)};
  if (bDoubtful) {
    source.m_nStatus = CFigureStatus::Doubtful;
    source.m_pNote = &kDoubtedSteel;
  }
  return OfGrade(grade, source);
}

constexpr const char* kColumns[] = {"f", "fv", "fce", "fy", "fu"};

double Column(const CSteelStrengths& all, CSteelStrength strength) {
  switch (strength) {
    case CSteelStrength::F:
      return all.m_dF;
    case CSteelStrength::Fv:
      return all.m_dFv;
    case CSteelStrength::Fce:
      return all.m_dFce;
    case CSteelStrength::Fy:
      return all.m_dFy;
    case CSteelStrength::Fu:
      break;
  }
  return all.m_dFu.value_or(0);
}

// Whether the list "f fv" has the word.
bool HasWord(std::string_view list, std::string_view word) noexcept {
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find(' ', at), list.size());
    if (list.substr(at, end - at) == word) return true;
    at = end + 1;
  }
  return false;
}

CSteelStrengths StrengthsOf(const gb2017::CSteelRow& row) noexcept {
  return {row.m_dF, row.m_dFv, row.m_dFce, row.m_dFy, row.m_dFu};
}

CCodeAnswer<double> Strength2003(CSteelGrade grade, double t, CSteelStrength strength,
                                 CSteelProduct product) {
  if (strength == CSteelStrength::Fy || strength == CSteelStrength::Fu) {
    const std::string column = kColumns[static_cast<std::size_t>(strength)];
    return NotInEdition("strength", CCodeEdition::Gb2003, {" " + column, column},
                        {"请给出其一：f、fv、fce", "give one of f, fv, fce"});
  }
  return Strengths2003(grade, t, product).Then([&](const CSteelStrengths& all) {
    return Column(all, strength);
  });
}

}  // namespace

CCodeAnswer<CSteelStrengths> SteelStrengths(CCodeEdition edition, CSteelGrade grade, double t,
                                            CSteelProduct product) {
  if (edition == CCodeEdition::Gb2003) return Strengths2003(grade, t, product);
  const CSteelBand band = FindBand(ColumnGrade(grade), t, product);
  if (band.m_pRow == nullptr) return NoBand(grade, t, band);
  const gb2017::CSteelRow& row = *band.m_pRow;
  return {StrengthsOf(row), SourceOf(grade, row, !row.m_strDoubt.empty())};
}

CCodeAnswer<double> SteelStrength(CCodeEdition edition, CSteelGrade grade, double t,
                                  CSteelStrength strength, CSteelProduct product) {
  if (edition == CCodeEdition::Gb2003) return Strength2003(grade, t, strength, product);
  const CSteelBand band = FindBand(ColumnGrade(grade), t, product);
  if (band.m_pRow == nullptr) return NoBand(grade, t, band);
  const gb2017::CSteelRow& row = *band.m_pRow;
  const char* column = kColumns[static_cast<std::size_t>(strength)];
  return {Column(StrengthsOf(row), strength),
          SourceOf(grade, row, HasWord(row.m_strDoubt, column))};
}

}  // namespace orv3
