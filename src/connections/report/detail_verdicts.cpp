#include "connections/report/detail_verdicts.h"

#include "framework/plain_number.h"

namespace orv3 {
namespace {

// "70 ≥ 66 \\mm", with the digits that tell apart what fails.
std::string Numbers(const CDetail& detail, bool bPass) {
  if (detail.m_bMost) return Relation(detail.m_dSize, detail.m_dLimit, bPass) + " \\mm";
  const CComparedText text = Compared(detail.m_dLimit, detail.m_dSize);
  return text.m_strLimit + (bPass ? " ≥ " : " < ") + text.m_strEffect + " \\mm";
}

}  // namespace

void AddDetailVerdicts(std::span<const CDetail> details, std::span<const CCasePart> parts,
                       std::vector<CReportVerdict>& verdicts) {
  for (std::size_t i = 0; i < details.size(); ++i) {
    const CDetail& detail = details[i];
    verdicts.push_back({detail.m_name, detail.m_szClause,
                        std::string(detail.m_szSize) + (detail.m_bMost ? " ≤ " : " ≥ ") +
                            detail.m_szLimit,
                        Numbers(detail, parts[i].m_bPass), parts[i].m_dUtilisation,
                        parts[i].m_bPass});
  }
}

}  // namespace orv3
