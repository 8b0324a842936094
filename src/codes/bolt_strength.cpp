#include "codes/bolt_strength.h"

#include <array>

#include "codes/gb2017/tables.h"
#include "codes/grade_notes.h"
#include "codes/legacy_grades.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr CCodeSource kBolts2003 = {CCodeEdition::Gb2003, {"表 3.4.1-4", "Table 3.4.1-4"}};
constexpr CCodeSource kBolts2017 = {CCodeEdition::Gb2017, {"4.4.6 表 4.4.6", "4.4.6, Table 4.4.6"}};

// The two property classes of each kind.
using CGradePair = std::array<CBoltGrade, 2>;
constexpr CGradePair kGrades[] = {{CBoltGrade::G46, CBoltGrade::G48},
                                  {CBoltGrade::G56, CBoltGrade::G88},
                                  {CBoltGrade::G88, CBoltGrade::G109}};
CText KindText(CBoltKind kind) {
  switch (kind) {
    case CBoltKind::OrdinaryC:
      return {"C 级普通螺栓", "ordinary bolts of class C"};
    case CBoltKind::OrdinaryAB:
      return {"A、B 级普通螺栓", "ordinary bolts of classes A and B"};
    case CBoltKind::Bearing:
      break;
  }
  return {"承压型高强度螺栓", "high-strength bolts in bearing"};
}

CCodeRefusal NotOfKind(CBoltKind kind, CBoltGrade grade) {
  const CGradePair& right = kGrades[static_cast<std::size_t>(kind)];
  const char* const names[] = {BoltGradeName(right[0]), BoltGradeName(right[1])};
  const CText text = KindText(kind);
  const std::string name = BoltGradeName(grade);
  return {"grade",
          {text.m_strChinese + "没有 " + name + " 级", text.m_strEnglish + " have no " + name},
          OneOf(names)};
}

// Family, row and first column of g_sub3.
struct CLegacyBolt {
  int m_nFamily, m_nGrade, m_nColumn;
};
constexpr CLegacyBolt kLegacyBolts[3][2] = {
    {{SUB3_ORDINARY, SUB3_46_48, 0}, {SUB3_ORDINARY, SUB3_46_48, 0}},
    {{SUB3_ORDINARY, SUB3_56, 3}, {SUB3_ORDINARY, SUB3_88, 3}},
    {{SUB3_BEARING, SUB3_88, 7}, {SUB3_BEARING, SUB3_109, 7}},
};

CBoltStrengths Bolt2003(CBoltKind kind, std::size_t at) noexcept {
  const CLegacyBolt& bolt = kLegacyBolts[static_cast<std::size_t>(kind)][at];
  int ft = 0, fv = 0;
  CTableSearch::SearchSub3(bolt.m_nFamily, bolt.m_nGrade, bolt.m_nColumn, ft);
  CTableSearch::SearchSub3(bolt.m_nFamily, bolt.m_nGrade, bolt.m_nColumn + 1, fv);
  return {ft + 0.0, fv + 0.0, {}};
}

// The rows of the table: two of class C, two of A and B, three anchor steels, two of bearing type.
constexpr std::size_t kFirstRow[] = {0, 2, 7};
constexpr std::size_t kFirstAnchor = 4;

constexpr CSteelGrade kAnchors[] = {CSteelGrade::Q235, CSteelGrade::Q345, CSteelGrade::Q390};

}  // namespace

CCodeAnswer<CBoltStrengths> BoltStrengths(CCodeEdition edition, CBoltKind kind, CBoltGrade grade) {
  const CGradePair& pair = kGrades[static_cast<std::size_t>(kind)];
  if (grade != pair[0] && grade != pair[1]) return NotOfKind(kind, grade);
  const std::size_t at = grade == pair[0] ? 0 : 1;
  if (edition == CCodeEdition::Gb2003) return {Bolt2003(kind, at), kBolts2003};
  const gb2017::CBoltRow& row = gb2017::kBolts[kFirstRow[static_cast<std::size_t>(kind)] + at];
  return {{row.m_dFt, row.m_fv.value_or(0), row.m_fu}, kBolts2017};
}

CCodeAnswer<double> AnchorStrength(CCodeEdition edition, CSteelGrade steel) {
  const std::size_t count = edition == CCodeEdition::Gb2003 ? 2 : 3;
  const CSteelGrade column = edition == CCodeEdition::Gb2003 ? steel : ColumnGrade(steel);
  for (std::size_t i = 0; i < count; ++i) {
    if (kAnchors[i] != column) continue;
    if (edition == CCodeEdition::Gb2017)
      return {gb2017::kBolts[kFirstAnchor + i].m_dFt, OfGrade(steel, kBolts2017)};
    int ft = 0;
    CTableSearch::SearchSub3(SUB3_ANCHOR, SUB3_Q235 + static_cast<int>(i), 6, ft);
    return {ft + 0.0, kBolts2003};
  }
  const std::string name = GradeName(steel);
  return NotInEdition("grade", edition, {" " + name + " 锚栓", name + " anchor bolts"},
                      OneOf(std::span(kAnchors).first(count)));
}

CCodeAnswer<double> BearingStrength(CCodeEdition edition, CBoltKind kind, CSteelGrade plate) {
  if (!HasGrade(edition, plate)) return NotInEdition(edition, plate, GradesOf(edition));
  if (edition == CCodeEdition::Gb2003) {
    static constexpr int kColumn[] = {2, 5, 9};
    int fc = 0;
    CTableSearch::SearchSub3(SUB3_MEMBER, SUB3_Q235 + LegacyGrade(plate),
                             kColumn[static_cast<std::size_t>(kind)], fc);
    return {fc + 0.0, kBolts2003};
  }
  for (const gb2017::CBearingRow& row : gb2017::kBearing) {
    if (row.m_grade.m_nGrade == ColumnGrade(plate))
      return {row.m_arrFc[static_cast<std::size_t>(kind)], OfGrade(plate, kBolts2017)};
  }
  return NotInEdition(edition, plate, GradesOf(edition));
}

}  // namespace orv3
