#include "connections/report/detail_verdicts.h"

#include <string>

namespace orv3 {

void AddDetailVerdicts(std::span<const CDetail> details, std::span<const CCasePart> parts,
                       std::vector<CReportVerdict>& verdicts) {
  for (std::size_t i = 0; i < details.size(); ++i) {
    const CDetail& detail = details[i];
    const bool bMost = detail.m_bMost;
    const std::string condition = std::string(bMost ? detail.m_szSize : detail.m_szLimit) + " ≤ " +
                                  (bMost ? detail.m_szLimit : detail.m_szSize);
    const double less = bMost ? detail.m_dSize : detail.m_dLimit;
    const double more = bMost ? detail.m_dLimit : detail.m_dSize;
    verdicts.push_back({detail.m_name, detail.m_szClause, condition,
                        Relation(less, more, parts[i].m_bPass) + " \\mm", parts[i].m_dUtilisation,
                        parts[i].m_bPass});
  }
}

}  // namespace orv3
