// Members as the command reads them from a case file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cases/case_schema.h"
#include "cases/case_source.h"
#include "members/cases/member_case.h"
#include "reports/report_document.h"

namespace orv3::cli {

// One member of a file.
struct CReadMember {
  std::string m_strId = {};
  std::string m_strCode = {};  // its own edition, "both", or empty
  CReportSheet m_sheet = {};
  // Under each combination of its "cases", which it is named by; else the one that it is itself.
  std::vector<CMemberCase> m_arrCase = {};
  bool m_bEnvelope = false;  // it has "cases"
};

// Ties the keys of the schema to the fields of a member.
class CMemberReader {
 public:
  CMemberReader();
  const CCaseSchema& Schema() const noexcept { return m_schema; }
  // Why the case cannot be read; a refused case keeps its name.
  std::optional<CCaseFault> Read(const CReadCase& read, CReadMember& member) const;

 private:
  std::optional<CCaseFault> ReadCombinations(const CReadCase& read, CReadMember& member) const;
  std::optional<CCaseFault> ReadCase(const CCaseValues& values, CMemberCase& input) const;
  std::string TextAt(const CCaseValues& values, std::string_view key) const;

  CCaseSchema m_schema;
  std::vector<const CInputKey<CMemberCase>*> m_arrKey;  // null: of the report's head, or "cases"
  const CCaseSchema::CRule* m_pParts = nullptr;
};

// The fault of a member under the combination of that name.
CCaseFault OfCombination(const std::string& name, CCaseFault fault);

}  // namespace orv3::cli
