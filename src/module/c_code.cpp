// The C interface: figures of the design code.
#include "catalogue/code_tables/table_search.h"
#include "catalogue/code_tables/thickness_group.h"
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
    static constexpr const char* kKinds[] = {"fcw", "ftw12", "ftw3", "fvw", "ffw"};
    CheckThickness(thickness);
    const int grade = WordAmong(steel, "steel", kSteels);
    int strength = 0;
    if (!CTableSearch::SearchSub2(grade, ThicknessGroup(grade, thickness),
                                  WordAmong(kind, "kind", kKinds), strength))
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
