// Rules of detailing among the verdicts of a report.
#pragma once

#include <span>
#include <vector>

#include "connections/detail.h"
#include "reports/case_answer.h"
#include "reports/report_page.h"

namespace orv3 {

// `parts` as they were judged, in the order of `details`.
void AddDetailVerdicts(std::span<const CDetail> details, std::span<const CCasePart> parts,
                       std::vector<CReportVerdict>& verdicts);

}  // namespace orv3
