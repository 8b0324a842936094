// The editions of the steel design code GB 50017.
#pragma once

#include <string_view>

#include "codes/answer.h"

namespace orv3 {

inline constexpr CCodeEdition kCodeEditions[] = {CCodeEdition::Gb2003, CCodeEdition::Gb2017};

// The edition that a question without one is answered by: the one in force.
inline constexpr CCodeEdition kDefaultEdition = CCodeEdition::Gb2017;

struct CEditionFacts {
  const char* m_szYear;  // "2017", as a user names the edition
  const char* m_szName;  // "GB 50017-2017"
  CTextLiteral m_status;
};

ORV3CAL_API const CEditionFacts& EditionFacts(CCodeEdition edition) noexcept;

// The edition by its year, "2003" or "2017"; any other text is refused by name.
ORV3CAL_API CCodeAnswer<CCodeEdition> EditionByYear(std::string_view year);

}  // namespace orv3
