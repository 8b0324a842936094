#include "codes/slip.h"

#include <iterator>

#include "codes/gb2017/tables.h"
#include "codes/grade_notes.h"
#include "codes/legacy_grades.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr CTextLiteral kSurfaces2003[] = {
    {"喷砂（丸）", "sand- or shot-blasted"},
    {"喷砂（丸）后涂无机富锌漆", "sand- or shot-blasted, inorganic zinc-rich paint"},
    {"喷砂（丸）后生赤锈", "sand- or shot-blasted and rusted red"},
    {"钢丝刷清除浮锈", "loose rust brushed off with a wire brush"},
    {"未经处理的干净轧制表面", "clean rolled surface without treatment"},
};
constexpr CTextLiteral kSurfaces2017[] = {
    {"喷硬质石英砂或铸钢棱角砂", "blasted with hard quartz sand or cast steel grit"},
    {"抛丸（喷砂）", "shot-blasted (sand-blasted)"},
    {"钢丝刷清除浮锈或未经处理的干净轧制面",
     "wire-brushed, or clean rolled surface without treatment"},
};
static_assert(std::size(kSurfaces2017) == std::size(gb2017::kSlip));

constexpr CSteelGrade kSlipGrades[] = {CSteelGrade::Q235, CSteelGrade::Q345, CSteelGrade::Q390,
                                       CSteelGrade::Q420, CSteelGrade::Q460};

// The column of the 2017 table, -1 for a steel that it does not have.
int SlipColumn(CSteelGrade grade) noexcept {
  for (std::size_t i = 0; i < std::size(kSlipGrades); ++i) {
    if (kSlipGrades[i] == ColumnGrade(grade)) return static_cast<int>(i);
  }
  return -1;
}

CCodeRefusal UnknownSurface(CCodeEdition edition, int surface) {
  CText right = {"请给出其一：", "give one of "};
  for (int i = 0; i < SurfaceCount(edition); ++i) {
    const CTextLiteral name = SurfaceName(edition, i);
    const std::string number = std::to_string(i) + " ";
    right.m_strChinese += (i == 0 ? "" : "、") + number + name.m_szChinese;
    right.m_strEnglish += (i == 0 ? "" : ", ") + number + name.m_szEnglish;
  }
  return NotPossible("surface", surface, std::move(right));
}

// The table prints "-" for this surface with this steel.
CCodeRefusal NoFigure(int surface, CSteelGrade grade) {
  const CTextLiteral name = SurfaceName(CCodeEdition::Gb2017, surface);
  const std::string steel = GradeName(grade);
  return {
      "surface",
      {std::string("表 11.4.2-1 对 ") + steel + " 的“" + name.m_szChinese + "”无数值（“-”）",
       std::string("Table 11.4.2-1 has no figure (\"-\") for ") + steel + ", " + name.m_szEnglish},
      {"请给出 0 或 1（喷砂、抛丸）", "give 0 or 1 (blasted surfaces)"}};
}

CCodeRefusal NotInTable(CSteelGrade grade) {
  const std::string steel = GradeName(grade);
  return {
      "grade", {"表 11.4.2-1 没有 " + steel, "Table 11.4.2-1 has no " + steel}, OneOf(kSlipGrades)};
}

CCodeAnswer<double> Slip2003(int surface, CSteelGrade grade) {
  static constexpr int kColumn[] = {0, 1, 1, 2};  // Q235; Q345 and Q390; Q420
  const int row = LegacyGrade(grade);
  if (row < 0) return NotInEdition(CCodeEdition::Gb2003, grade, GradesOf(CCodeEdition::Gb2003));
  double mu = 0;
  CTableSearch::SearchSub8(std::min(surface, 3), kColumn[row], mu);  // 3 and 4 share a row
  return {mu, {CCodeEdition::Gb2003, {"表 7.2.2-1", "Table 7.2.2-1"}}};
}

constexpr const char* kHighStrength[] = {"8.8", "10.9"};
constexpr double kDiameters[] = {16, 20, 22, 24, 27, 30};

}  // namespace

int SurfaceCount(CCodeEdition edition) noexcept {
  return static_cast<int>(edition == CCodeEdition::Gb2003 ? std::size(kSurfaces2003)
                                                          : std::size(kSurfaces2017));
}

CTextLiteral SurfaceName(CCodeEdition edition, int surface) {
  const auto at = static_cast<std::size_t>(surface);
  return edition == CCodeEdition::Gb2003 ? kSurfaces2003[at] : kSurfaces2017[at];
}

CCodeAnswer<double> SlipFactor(CCodeEdition edition, int surface, CSteelGrade grade) {
  if (surface < 0 || surface >= SurfaceCount(edition)) return UnknownSurface(edition, surface);
  if (edition == CCodeEdition::Gb2003) return Slip2003(surface, grade);
  const int column = SlipColumn(grade);
  if (column < 0) return NotInTable(grade);
  const std::optional<double> mu = gb2017::kSlip[surface].m_arrMu[column];
  if (!mu) return NoFigure(surface, grade);
  return {*mu, OfGrade(grade, {edition, {"11.4.2 表 11.4.2-1", "11.4.2, Table 11.4.2-1"}})};
}

CCodeAnswer<double> HoleFactor(CCodeEdition edition, CHoleKind kind) {
  if (edition == CCodeEdition::Gb2017)
    return {gb2017::kHoleFactors[static_cast<std::size_t>(kind)].m_dK,
            {edition, {"11.4.2", "11.4.2"}}};
  if (kind == CHoleKind::Standard) {
    static constexpr CTextLiteral kNote = {"2003 版仅有标准孔，公式中无 k",
                                           "the 2003 edition has standard holes alone and no k"};
    return {1.0, {edition, {"7.2.2", "7.2.2"}, CFigureStatus::Derived, &kNote}};
  }
  const std::string name = HoleName(kind);
  return NotInEdition("hole", edition, {" " + name + " 孔", name + " holes"},
                      {"请给出 standard，或用 2017 版", "give standard, or take the 2017 edition"});
}

CCodeAnswer<double> Preload(CCodeEdition edition, CBoltGrade grade, double d) {
  if (grade != CBoltGrade::G88 && grade != CBoltGrade::G109)
    return NoneOf("grade", BoltGradeName(grade), kHighStrength);
  const std::size_t row = grade == CBoltGrade::G88 ? 0 : 1;
  for (std::size_t i = 0; i < std::size(kDiameters); ++i) {
    if (kDiameters[i] != d) continue;
    if (edition == CCodeEdition::Gb2003)
      return {CTableSearch::g_sub9[row][i], {edition, {"表 7.2.2-2", "Table 7.2.2-2"}}};
    return {gb2017::kPreloads[row].m_arrP[i],
            {edition, {"11.4.2 表 11.4.2-2", "11.4.2, Table 11.4.2-2"}}};
  }
  return NotPossible("d", d,
                     {"请给出其一：16、20、22、24、27、30", "give one of 16, 20, 22, 24, 27, 30"});
}

}  // namespace orv3
