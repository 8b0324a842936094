#include "reports/case_answer.h"

namespace orv3 {

const CCasePart& WorstPart(std::span<const CCasePart> parts) {
  const CCasePart* worst = &parts.front();
  for (const CCasePart& part : parts) {
    if (std::isnan(worst->m_dUtilisation)) break;
    if (!(part.m_dUtilisation <= worst->m_dUtilisation)) worst = &part;
  }
  return *worst;
}

}  // namespace orv3
