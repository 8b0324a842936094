#include "codes/weld_strength.h"

#include <array>
#include <vector>

#include "catalogue/code_tables/thickness_group.h"
#include "codes/gb2017/tables.h"
#include "codes/grade_notes.h"
#include "codes/legacy_grades.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr CCodeSource kWelds2003 = {CCodeEdition::Gb2003, {"表 3.4.1-3", "Table 3.4.1-3"}};
constexpr CCodeSource kWelds2017 = {CCodeEdition::Gb2017, {"4.4.5 表 4.4.5", "4.4.5, Table 4.4.5"}};
constexpr CTextLiteral kDoubtedWeld = {"存疑：低于母材的 f，而其余牌号与之相等",
                                       "doubtful: below f of the plate, which it equals elsewhere"};

CCodeAnswer<CButtWeldStrengths> Butt2003(CSteelGrade grade, double t) {
  const int row = LegacyGrade(grade);
  if (row < 0) return NotInEdition(CCodeEdition::Gb2003, grade, GradesOf(CCodeEdition::Gb2003));
  if (!(t > 0 && t <= kThickestPlate))
    return NotPossible("t", t, ThicknessAbove(0, kThickestPlate));
  const double(&cells)[4] = CTableSearch::g_sub2[PlateRow(row, t)];
  return {{cells[0], cells[1], cells[2], cells[3]}, kWelds2003};
}

// ffw of 2003 by its grades, with the one electrode that goes with each.
struct CLegacyFillet {
  CElectrode m_nElectrode;
  double m_dFfw;
};
constexpr CLegacyFillet kLegacyFillet[4] = {
    {CElectrode::E43, 160}, {CElectrode::E50, 200}, {CElectrode::E55, 220}, {CElectrode::E55, 220}};

// The electrodes of a grade in the order of the table.
struct CElectrodeList {
  std::array<CElectrode, 2> m_arrElectrode{};
  std::size_t m_nCount = 0;
};

CElectrodeList FindElectrodes(CSteelGrade grade) noexcept {
  CElectrodeList list;
  for (const gb2017::CElectrodeRow& row : gb2017::kElectrodes) {
    if (row.m_grade.m_nGrade == grade && list.m_nCount < list.m_arrElectrode.size())
      list.m_arrElectrode[list.m_nCount++] = row.m_electrode.m_nElectrode;
  }
  return list;
}

CCodeRefusal NotPaired(CCodeEdition edition, CSteelGrade grade, CElectrode electrode) {
  const std::string name = ElectrodeName(electrode);
  const std::string steel = GradeName(grade);
  std::vector<const char*> right;
  for (const CElectrode each : ElectrodesOf(edition, grade)) right.push_back(ElectrodeName(each));
  return {"electrode",
          {name + " 不与 " + steel + " 相配", name + " does not go with " + steel},
          OneOf(right)};
}

}  // namespace

CCodeAnswer<CButtWeldStrengths> ButtWeldStrengths(CCodeEdition edition, CSteelGrade grade,
                                                  double t) {
  if (edition == CCodeEdition::Gb2003) return Butt2003(grade, t);
  double over = -1;
  double to = 0;
  for (const gb2017::CWeldRow& row : gb2017::kWelds) {
    if (row.m_grade.m_nGrade != ColumnGrade(grade)) continue;
    if (t > row.m_dOver && t <= row.m_dTo) {
      CCodeSource source = OfGrade(grade, kWelds2017);
      if (!row.m_strDoubt.empty()) {
        source.m_nStatus = CFigureStatus::Doubtful;
        source.m_pNote = &kDoubtedWeld;
      }
      return {{row.m_dFcw, row.m_dFtw12, row.m_dFtw3, row.m_dFvw}, source};
    }
    if (over < 0) over = row.m_dOver;
    to = row.m_dTo;
  }
  return NotPossible("t", t, ThicknessAbove(over, to));
}

std::span<const CElectrode> ElectrodesOf(CCodeEdition edition, CSteelGrade grade) noexcept {
  if (edition == CCodeEdition::Gb2003) {
    const int row = LegacyGrade(grade);
    if (row < 0) return {};
    return {&kLegacyFillet[row].m_nElectrode, 1};
  }
  using enum CSteelGrade;
  static const CElectrodeList kLists[] = {
      FindElectrodes(Q235), FindElectrodes(Q345), FindElectrodes(Q345),  FindElectrodes(Q390),
      FindElectrodes(Q420), FindElectrodes(Q460), FindElectrodes(Q345GJ)};
  const CElectrodeList& list = kLists[static_cast<std::size_t>(grade)];
  return {list.m_arrElectrode.data(), list.m_nCount};
}

CCodeAnswer<double> FilletWeldStrength(CCodeEdition edition, CSteelGrade grade,
                                       std::optional<CElectrode> electrode) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (edition == CCodeEdition::Gb2003) {
    const CLegacyFillet& fillet = kLegacyFillet[LegacyGrade(grade)];
    if (electrode.value_or(fillet.m_nElectrode) != fillet.m_nElectrode)
      return NotPaired(edition, grade, *electrode);
    return {fillet.m_dFfw, kWelds2003};
  }
  for (const gb2017::CElectrodeRow& row : gb2017::kElectrodes) {
    if (row.m_grade.m_nGrade == ColumnGrade(grade) &&
        electrode.value_or(row.m_electrode.m_nElectrode) == row.m_electrode.m_nElectrode)
      return {row.m_dFfw, OfGrade(grade, kWelds2017)};
  }
  return NotPaired(edition, grade, *electrode);
}

}  // namespace orv3
