#include "codes/edition.h"

#include "codes/refusals.h"

namespace orv3 {

const CEditionFacts& EditionFacts(CCodeEdition edition) noexcept {
  static constexpr CEditionFacts kFacts[] = {
      {"2003", "GB 50017-2003", {"已废止，用于既有结构", "withdrawn, for existing structures"}},
      {"2017", "GB 50017-2017", {"自 2018-07-01 起施行", "in force since 2018-07-01"}},
  };
  return kFacts[static_cast<std::size_t>(edition)];
}

CCodeAnswer<CCodeEdition> EditionByYear(std::string_view year) {
  for (const CCodeEdition edition : kCodeEditions) {
    if (EditionFacts(edition).m_szYear == year) return {edition, {edition, {"", ""}}};
  }
  static constexpr const char* kYears[] = {"2003", "2017"};
  return NoneOf("code", year, kYears);
}

}  // namespace orv3
