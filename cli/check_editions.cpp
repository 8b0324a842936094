#include "check_editions.h"

#include "edition_option.h"
#include "error.h"
#include "framework/excerpt.h"

namespace orv3::cli {
namespace {

constexpr CCodeEdition kBoth[] = {CCodeEdition::Gb2017, CCodeEdition::Gb2003};
constexpr CTextLiteral kRefused = {"拒绝", "refused"};

}  // namespace

std::span<const CCodeEdition> EditionsNamed(std::string_view text,
                                            std::span<const CCodeEdition> otherwise) {
  if (text == "both") return kBoth;
  for (const CCodeEdition& edition : kBoth) {
    if (text == EditionFacts(edition).m_szYear) return {&edition, 1};
  }
  return otherwise;
}

std::vector<CCodeEdition> EditionsAsked(const std::string& option) {
  const std::string asked = YearAsked(option);
  const auto editions = EditionsNamed(asked.empty() ? "2017" : asked, {});
  if (editions.empty()) {
    const std::string place = option.empty() ? "the variable ORV3CAL_CODE" : "--code";
    Refuse(place + ": \"" + Excerpt(asked) + "\" is not possible; give 2017, 2003 or both");
  }
  return {editions.begin(), editions.end()};
}

std::vector<std::string> CAnyEditionRun::RefusedRow(const std::string& number,
                                                    const std::string& id) const {
  return {number, Excerpt(id), Year(), kRefused.In(m_nLanguage), "", m_fault->Line(m_nLanguage)};
}

}  // namespace orv3::cli
