// Calculation reports of the connection checks.
#pragma once

#include <string>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/weld_case.h"
#include "connections/weld_group/group_case.h"
#include "framework/export.h"

namespace orv3 {

// The body of the report of one case that `check` has just run: HTML for CReportCase, UTF-8.
ORV3CAL_API std::string CaseReport(const CBoltCase& input, const CBoltCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CFilletCase& input, const CFilletCheck& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CButtCase& input, const CButtCheck& check,
                                   CLanguage language);

ORV3CAL_API std::string CaseReport(const CBoltCase2017& input, const CBoltCheck2017& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CFilletCase2017& input, const CFilletCheck2017& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CButtCase2017& input, const CButtCheck2017& check,
                                   CLanguage language);
ORV3CAL_API std::string CaseReport(const CWeldGroupCase& input, const CWeldGroupCheck& check,
                                   CLanguage language);

}  // namespace orv3
