// Calculation reports of members.
#pragma once

#include <span>
#include <string>

#include "members/cases/member_case.h"
#include "members/cases/member_envelope.h"

namespace orv3 {

// What a report tells of one member.
struct CMemberReport {
  std::string m_strId;
  std::span<const CMemberCase> m_arrCase;  // as it was checked under each combination
  bool m_bEnvelope = false;                // they are combinations, with names
  const CMemberCheck& m_check;             // that has just run the last of them
  const CMemberEnvelope& m_envelope;       // of them all
};

// The body of the report: HTML for CReportCase, UTF-8.
ORV3CAL_API std::string CaseReport(const CMemberReport& report, CLanguage language);

}  // namespace orv3
