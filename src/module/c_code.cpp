// The C interface: figures of the design code.
#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
#include "codes/edition.h"
#include "codes/slip.h"
#include "codes/steel_strength.h"
#include "codes/weld_strength.h"
#include "connections/cases/case_rules.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "module/c_support.h"

namespace orv3::c_interface {
namespace {

void CheckThickness(double thickness) {
  if (!(thickness > 0 && thickness <= 100))
    throw CFailure("thickness: " + PlainNumber(thickness) +
                   " mm is in no group of the table; give a thickness above 0 and up to " +
                   PlainNumber(kThickestPlate));
}

void CheckWithin(const char* argument, double value, double least, double most) {
  if (value >= least && value <= most) return;
  throw CFailure(std::string(argument) + ": " + ToUtf8(FormatShortest(value)) +
                 " is not possible; give " + PlainNumber(least) + " to " + PlainNumber(most));
}

// What the code answers; CFailure with the reason when it answers none.
template <class VALUE>
VALUE Needed(const CCodeAnswer<VALUE>& answer) {
  if (!answer) throw CFailure(answer.Refusal().Text().m_strEnglish);
  return *answer;
}

CCodeEdition EditionAsked(const orv3_char* code) {
  return Needed(EditionByYear(Utf8Of(code, "code")));
}

CSteelGrade GradeOf(CCodeEdition edition, const orv3_char* steel, const char* argument = "steel") {
  return Needed(GradeByName(edition, Utf8Of(steel, argument)));
}

double ButtWeld(const CButtWeldStrengths& butt, int kind) noexcept {
  const double strengths[] = {butt.m_dFcw, butt.m_dFtw12, butt.m_dFtw3, butt.m_dFvw};
  return strengths[kind];
}

double FilletWeld(CCodeEdition edition, CSteelGrade grade, const orv3_char* electrode) {
  if (electrode == nullptr || *electrode == 0) return Needed(FilletWeldStrength(edition, grade));
  const int which = WordAmong(electrode, "electrode", kElectrodeNames);
  return Needed(FilletWeldStrength(edition, grade, static_cast<CElectrode>(which)));
}

constexpr const char* kWeldKinds[] = {"fcw", "ftw12", "ftw3", "fvw", "ffw"};
constexpr int kFillet = 4;

}  // namespace
}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_steel_strength(const orv3_char* steel, double thickness, const orv3_char* kind,
                                  double* value) {
  return Guarded([&] {
    static constexpr const char* kKinds[] = {"f", "fv", "fce"};
    CheckThickness(thickness);
    int strength = 0;
    if (!CTableSearch::SearchSub1(WordAmong(steel, "steel", kSteels), thickness,
                                  WordAmong(kind, "kind", kKinds), strength))
      throw CFailure("the table has no such strength");
    return GiveValue(strength, value);
  });
}

int ORV3_CALL orv3_weld_strength(const orv3_char* steel, double thickness, const orv3_char* kind,
                                 double* value) {
  return Guarded([&] {
    CheckThickness(thickness);
    const int grade = WordAmong(steel, "steel", kSteels);
    int strength = 0;
    if (!CTableSearch::SearchSub2(grade, ThicknessGroup(grade, thickness),
                                  WordAmong(kind, "kind", kWeldKinds), strength))
      throw CFailure("the table has no such strength");
    return GiveValue(strength, value);
  });
}

int ORV3_CALL orv3_phi(double slenderness, double yield, const orv3_char* buckling_class,
                       double* value) {
  return Guarded([&] {
    static constexpr const char* kClasses[] = {"a", "b", "c", "d"};
    CheckWithin("slenderness", slenderness, 0, 1000);
    CheckWithin("yield", yield, 100, 1000);
    const int bucklingClass = WordAmong(buckling_class, "buckling_class", kClasses);
    double phi = 0;
    CTableSearch::SearchSub12(slenderness, yield, bucklingClass, phi);
    return GiveValue(phi, value);
  });
}

int ORV3_CALL orv3_code_steel(const orv3_char* code, const orv3_char* steel,
                              const orv3_char* product, double thickness, const orv3_char* kind,
                              double* value) {
  return Guarded([&] {
    static constexpr const char* kKinds[] = {"f", "fv", "fce", "fy", "fu"};
    static constexpr const char* kProducts[] = {"plate", "tube"};
    const CCodeEdition edition = EditionAsked(code);
    const auto strength = static_cast<CSteelStrength>(WordAmong(kind, "kind", kKinds));
    const auto which = static_cast<CSteelProduct>(WordAmong(product, "product", kProducts));
    return GiveValue(
        Needed(SteelStrength(edition, GradeOf(edition, steel), thickness, strength, which)), value);
  });
}

int ORV3_CALL orv3_code_weld(const orv3_char* code, const orv3_char* steel, double thickness,
                             const orv3_char* kind, const orv3_char* electrode, double* value) {
  return Guarded([&] {
    const CCodeEdition edition = EditionAsked(code);
    const CSteelGrade grade = GradeOf(edition, steel);
    const int which = WordAmong(kind, "kind", kWeldKinds);
    const CButtWeldStrengths butt = Needed(ButtWeldStrengths(edition, grade, thickness));
    return GiveValue(
        which == kFillet ? FilletWeld(edition, grade, electrode) : ButtWeld(butt, which), value);
  });
}

int ORV3_CALL orv3_code_bolt(const orv3_char* code, const orv3_char* bolt, const orv3_char* grade,
                             const orv3_char* kind, double* value) {
  return Guarded([&] {
    static constexpr const char* kBolts[] = {"C", "AB", "bearing"};
    static constexpr const char* kKinds[] = {"ft", "fv", "fc"};
    const CCodeEdition edition = EditionAsked(code);
    const auto which = static_cast<CBoltKind>(WordAmong(bolt, "bolt", kBolts));
    const int strength = WordAmong(kind, "kind", kKinds);
    if (strength == 2)
      return GiveValue(Needed(BearingStrength(edition, which, GradeOf(edition, grade, "grade"))),
                       value);
    const auto boltGrade = static_cast<CBoltGrade>(WordAmong(grade, "grade", kBoltGradeNames));
    const CBoltStrengths strengths = Needed(BoltStrengths(edition, which, boltGrade));
    return GiveValue(strength == 0 ? strengths.m_dFt : strengths.m_dFv, value);
  });
}

int ORV3_CALL orv3_code_slip(const orv3_char* code, int surface, const orv3_char* steel,
                             double* value) {
  return Guarded([&] {
    const CCodeEdition edition = EditionAsked(code);
    return GiveValue(Needed(SlipFactor(edition, surface, GradeOf(edition, steel))), value);
  });
}

int ORV3_CALL orv3_code_hole(const orv3_char* code, const orv3_char* hole, double* value) {
  return Guarded([&] {
    const auto kind = static_cast<CHoleKind>(WordAmong(hole, "hole", kHoleNames));
    return GiveValue(Needed(HoleFactor(EditionAsked(code), kind)), value);
  });
}

int ORV3_CALL orv3_code_preload(const orv3_char* code, const orv3_char* grade, double diameter,
                                double* value) {
  return Guarded([&] {
    const auto boltGrade = static_cast<CBoltGrade>(WordAmong(grade, "grade", kBoltGradeNames));
    return GiveValue(Needed(Preload(EditionAsked(code), boltGrade, diameter)), value);
  });
}
