// Members as the command reads them from a case file and answers them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "case_schema.h"
#include "case_source.h"
#include "members/cases/member_case.h"
#include "members/cases/member_results.h"
#include "output.h"

namespace orv3::cli {

// Ties the keys of the schema to the fields of a member.
class CMemberReader {
 public:
  CMemberReader();
  const CCaseSchema& Schema() const noexcept { return m_schema; }
  // Why the case cannot be read; a refused case keeps its name.
  std::optional<CCaseFault> Read(const CReadCase& read, CMemberCase& input) const;

 private:
  CCaseSchema m_schema;
  std::vector<const CInputKey<CMemberCase>*> m_arrKey;
};

std::string ClauseText(CCodeEdition edition, const char* clause);  // "GB 50017-2017 8.2.1"

CJson MemberJson(const CMemberCheck& check, CLanguage language);
std::string MemberText(const CMemberCheck& check, CLanguage language);
std::string NoteLine(const CMemberAnswer& answer, CLanguage language);

}  // namespace orv3::cli
