// Calculation reports of the connection checks.
#pragma once

#include <string>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "framework/export.h"

namespace orv3 {

// The body of the report of one case that `check` has just run: HTML for CReportCase, UTF-8.
ORV3CAL_API std::string CaseReport(const CBoltCase& input, const CBoltCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CFilletCase& input, const CFilletCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CButtCase& input, const CButtCheck& check,
                                   CLanguage language);

}  // namespace orv3
