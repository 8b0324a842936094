// The symbols of a member's calculation: how they are written, what they are called and where the
// code has them.
#pragma once

#include <string_view>

#include "codes/answer.h"
#include "framework/language.h"

namespace orv3 {

struct CMemberSymbol {
  const char* m_szSymbol;   // as the steps of a check name it
  const char* m_szWritten;  // in the notation of Formula (report_page.h)
  CTextLiteral m_name;
  const char* m_sz2017 = "";  // clause, or "T 4.4.1" for a table
  const char* m_sz2003 = "";

  const char* Clause(CCodeEdition edition) const noexcept {
    return edition == CCodeEdition::Gb2017 ? m_sz2017 : m_sz2003;
  }
};

// A symbol that the table lacks is written as it is, without a name.
CMemberSymbol MemberSymbol(const char* symbol) noexcept;

}  // namespace orv3
