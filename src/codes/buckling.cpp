#include "codes/buckling.h"

#include <cmath>
#include <iterator>

#include "catalogue/code_tables/table_search.h"
#include "codes/grade_notes.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

using enum CBucklingClass;

struct CClassPair {
  CPrintedClass m_x, m_y;
};
constexpr CClassPair Pair(CBucklingClass x, CBucklingClass y) { return {{x, false}, {y, false}}; }

// Tables 7.2.1-1 and 5.1.2-1, plates under 40 mm, in the order of CBucklingShape. The editions
// differ in rolled I with b/h > 0.8 and in rolled angles alone.
struct CThinRow {
  CClassPair m_2003, m_2017;
};
constexpr CThinRow Both(CClassPair pair) { return {pair, pair}; }
constexpr CClassPair kStars = {{A, true}, {A, true}};

constexpr CThinRow kThin[] = {
    Both(Pair(A, A)),                      // rolled tube
    Both(Pair(B, B)),                      // welded tube
    Both(Pair(A, B)),                      // rolled I, b/h <= 0.8
    {Pair(B, B), {{A, true}, {B, true}}},  // rolled I, b/h > 0.8
    Both(Pair(B, B)),                      // welded I, flame-cut
    Both(Pair(B, C)),                      // welded I, rolled or sheared
    Both(Pair(B, B)),                      // rolled T
    Both(Pair(B, B)),                      // welded T, flame-cut
    Both(Pair(B, C)),                      // welded T, rolled or sheared
    Both(Pair(B, B)),                      // rolled channel
    {Pair(B, B), kStars},                  // rolled equal angle
    {Pair(B, B), kStars},                  // rolled unequal angle
    Both(Pair(B, B)),                      // welded box, b/t > 20
    Both(Pair(C, C)),                      // welded box, b/t <= 20
    Both(Pair(B, B)),                      // rolled box
    Both(Pair(B, B)),                      // solid
    Both(Pair(B, B)),                      // lattice
};
static_assert(std::size(kThin) == std::size(kBucklingShapeNames));

constexpr double kThick = 40;      // mm, from which on the second table holds
constexpr double kVeryThick = 80;  // mm, of rolled I

// Tables 7.2.1-2 and 5.1.2-2, the same in both editions; null where they have no row.
const CClassPair* ThickRow(CBucklingShape shape, double t) noexcept {
  static constexpr CClassPair kRolledI[] = {Pair(B, C), Pair(C, D)};
  static constexpr CClassPair kFlameCut = Pair(B, B);
  static constexpr CClassPair kSheared = Pair(C, D);
  static constexpr CClassPair kBox[] = {Pair(B, B), Pair(C, C)};
  switch (shape) {
    case CBucklingShape::RolledINarrow:
    case CBucklingShape::RolledIWide:
      return &kRolledI[t < kVeryThick ? 0 : 1];
    case CBucklingShape::WeldedIFlameCut:
      return &kFlameCut;
    case CBucklingShape::WeldedIRolled:
      return &kSheared;
    case CBucklingShape::WeldedBox:
      return &kBox[0];
    case CBucklingShape::WeldedBoxThick:
      return &kBox[1];
    default:
      return nullptr;
  }
}

// In a sentence, in the order of CBucklingShape.
constexpr CTextLiteral kShapes[] = {
    {"轧制圆管", "rolled tubes"},
    {"焊接圆管", "welded tubes"},
    {"轧制工字形（b/h ≤ 0.8）", "rolled I (b/h ≤ 0.8)"},
    {"轧制工字形（b/h > 0.8）", "rolled I (b/h > 0.8)"},
    {"焊接工字形（翼缘为焰切边）", "welded I (flame-cut flanges)"},
    {"焊接工字形（翼缘为轧制或剪切边）", "welded I (rolled or sheared flanges)"},
    {"轧制 T 形", "rolled T"},
    {"焊接 T 形", "welded T"},
    {"焊接 T 形", "welded T"},
    {"轧制槽钢", "rolled channels"},
    {"轧制等边角钢", "rolled equal angles"},
    {"轧制不等边角钢", "rolled unequal angles"},
    {"焊接箱形（板件宽厚比 > 20）", "welded boxes (b/t > 20)"},
    {"焊接箱形（板件宽厚比 ≤ 20）", "welded boxes (b/t ≤ 20)"},
    {"轧制矩形管", "rolled rectangular tubes"},
    {"实心截面", "solid sections"},
    {"格构式截面", "lattice sections"},
};
static_assert(std::size(kShapes) == std::size(kBucklingShapeNames));

constexpr CCodeSource ClassSource(CCodeEdition edition, bool bThick) noexcept {
  if (edition == CCodeEdition::Gb2003)
    return {edition, bThick ? CTextLiteral{"表 5.1.2-2", "Table 5.1.2-2"}
                            : CTextLiteral{"表 5.1.2-1", "Table 5.1.2-1"}};
  return {edition, bThick ? CTextLiteral{"7.2.1 表 7.2.1-2", "7.2.1, Table 7.2.1-2"}
                          : CTextLiteral{"7.2.1 表 7.2.1-1", "7.2.1, Table 7.2.1-1"}};
}

CCodeSource ThinSource(CCodeEdition edition, CBucklingShape shape) noexcept {
  static constexpr CTextLiteral kUnequal = {
      "存疑：表列轧制等边角钢为 a*，此处不等边角钢取同类",
      "doubtful: the table has equal angles as a*; unequal ones are taken alike"};
  CCodeSource source = ClassSource(edition, false);
  if (edition == CCodeEdition::Gb2017 && shape == CBucklingShape::RolledUnequalAngle) {
    source.m_nStatus = CFigureStatus::Doubtful;
    source.m_pNote = &kUnequal;
  }
  return source;
}

constexpr double kLargestLambda = 1000;
constexpr double kLeastYield = 100;
constexpr double kLargestYield = 1000;

}  // namespace

const char* CPrintedClass::Text() const noexcept {
  static constexpr const char* kPlain[] = {"a", "b", "c", "d"};
  static constexpr const char* kStarred[] = {"a*", "b*"};
  const auto at = static_cast<std::size_t>(m_nClass);
  return m_bStar ? kStarred[at] : kPlain[at];
}

CCodeAnswer<CPrintedClass> PrintedBucklingClass(CCodeEdition edition, CBucklingShape shape,
                                                CSectionAxis axis, double t) {
  if (!(t > 0 && std::isfinite(t)))
    return NotPossible("t", t, {"请给出大于 0 的厚度", "give a thickness above 0"});
  const bool bX = axis == CSectionAxis::X;
  if (t < kThick) {
    const CThinRow& row = kThin[static_cast<std::size_t>(shape)];
    const CClassPair& pair = edition == CCodeEdition::Gb2003 ? row.m_2003 : row.m_2017;
    return {bX ? pair.m_x : pair.m_y, ThinSource(edition, shape)};
  }
  const CClassPair* pair = ThickRow(shape, t);
  if (pair != nullptr) return {bX ? pair->m_x : pair->m_y, ClassSource(edition, true)};
  const CTextLiteral& name = kShapes[static_cast<std::size_t>(shape)];
  return NotPossible(
      "t", t,
      {std::string("请给出小于 40 mm 的厚度：板厚 40 mm 及以上的表中没有") + name.m_szChinese,
       std::string("give less than 40 mm: the table of thicker plates has no ") +
           name.m_szEnglish});
}

CCodeAnswer<CBucklingClass> BucklingClass(CCodeEdition edition, CBucklingShape shape,
                                          CSectionAxis axis, double t, CSteelGrade grade) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  return PrintedBucklingClass(edition, shape, axis, t).Then([&](const CPrintedClass& printed) {
    return printed.For(grade);
  });
}

double StabilityFactor(double lambda, double fy, CBucklingClass bucklingClass) noexcept {
  double phi = 0;
  CTableSearch::SearchSub12(lambda, fy, static_cast<int>(bucklingClass), phi);
  return phi;
}

CCodeAnswer<double> StabilityFactor(CCodeEdition edition, double lambda, double fy,
                                    CBucklingClass bucklingClass) {
  if (!(lambda >= 0 && lambda <= kLargestLambda))
    return NotPossible("lambda", lambda, FromTo(0, kLargestLambda));
  if (!(fy >= kLeastYield && fy <= kLargestYield))
    return NotPossible("fy", fy, FromTo(kLeastYield, kLargestYield, "N/mm²"));
  const CTextLiteral place = edition == CCodeEdition::Gb2003 ? CTextLiteral{"附录 C", "Appendix C"}
                                                             : CTextLiteral{"附录 D", "Appendix D"};
  return {StabilityFactor(lambda, fy, bucklingClass), {edition, place}};
}

}  // namespace orv3
