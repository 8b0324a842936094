#include "edition_option.h"

#include "error.h"
#include "framework/utf8.h"
#include "platform/places.h"

namespace orv3::cli {
namespace {

constexpr const char* kVariable = "ORV3CAL_CODE";

}  // namespace

void AddEditionOption(CLI::App& command, std::string& year) {
  command
      .add_option("--code", year,
                  "The edition of GB 50017: 2017 (in force) or 2003 (withdrawn, for existing "
                  "structures); the variable ORV3CAL_CODE if it is not given, else 2017")
      ->type_name("YEAR")
      ->check([](const std::string& text) {
        return text.empty() ? "names no edition; give one of 2003, 2017" : std::string();
      });
}

std::string YearAsked(const std::string& year) {
  return year.empty() ? ToUtf8(Environment(kVariable)) : year;
}

CCodeEdition EditionAsked(const std::string& year) {
  const std::string asked = YearAsked(year);
  if (asked.empty()) return kDefaultEdition;
  const CCodeAnswer<CCodeEdition> edition = EditionByYear(asked);
  if (edition) return *edition;
  const char* place = year.empty() ? "the variable ORV3CAL_CODE: " : "--code: ";
  const CCodeRefusal& refusal = edition.Refusal();
  Refuse(place + refusal.m_what.m_strEnglish + "; " + refusal.m_right.m_strEnglish);
}

}  // namespace orv3::cli
