// Calculation reports of the connection checks.
#pragma once

#include <span>
#include <string>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "framework/export.h"

namespace orv3 {

// The report of one case that `check` has just run: an HTML part for ReportDocument, UTF-8.
ORV3CAL_API std::string CaseReport(const CBoltCase& input, const CBoltCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CFilletCase& input, const CFilletCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CButtCase& input, const CButtCheck& check,
                                   CLanguage language);

// One self-contained file of such parts, each on a page of its own; prints on A4.
ORV3CAL_API std::string ReportDocument(const std::string& title,
                                       std::span<const std::string> bodies, CLanguage language);

}  // namespace orv3
