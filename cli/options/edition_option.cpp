#include "options/edition_option.h"

#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "platform/places.h"

namespace orv3::cli {
namespace {

constexpr const char* kCodeVariable = "ORV3CAL_CODE";

}  // namespace

void AddEditionOption(CLI::App& command, std::string& year) {
  command
      .add_option(
          "--code", year,
          Say("GB 50017 的版本：2017（现行）或 2003（已废止，用于既有结构）；未给出时用变量 "
              "ORV3CAL_CODE，再则 2017",
              "The edition of GB 50017: 2017 (in force) or 2003 (withdrawn, for existing "
              "structures); the variable ORV3CAL_CODE if it is not given, else 2017"))
      ->type_name("YEAR")
      ->check(NamesEdition);
}

std::string NamesEdition(const std::string& year) {
  return year.empty() ? Say("没有给出版本；请给出下列之一：2003、2017",
                            "names no edition; give one of 2003, 2017")
                      : std::string();
}

std::string YearAsked(const std::string& year) {
  return year.empty() ? ToUtf8(Environment(kCodeVariable)) : year;
}

CCodeEdition EditionAsked(const std::string& year) {
  const std::string asked = YearAsked(year);
  // The variable is for checks as well, which both editions can make.
  if (asked.empty() || (year.empty() && asked == "both")) return kDefaultEdition;
  const CCodeAnswer<CCodeEdition> edition = EditionByYear(asked);
  if (edition) return *edition;
  const CCodeRefusal& refusal = edition.Refusal();
  const std::string place =
      year.empty() ? Say("环境变量 ORV3CAL_CODE", "the variable ORV3CAL_CODE") : "--code";
  Refuse(Say("{1}：{2}；{3}", "{1}: {2}; {3}", {place, Say(refusal.m_what), Say(refusal.m_right)}));
}

}  // namespace orv3::cli
